#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"
#include "desktop/session/FaultNote.h"
#include "desktop/window/FieldText.h"

namespace ostrel {
namespace {

Card SessionCard(FormView& view, const LayoutContext& context) {
  const Card card = MakeCard(view, Words::tr("Session"));
  view.SetRowText("Puerto", context.portText);
  QLabel* port = view.LabelFor("Puerto", Words::tr("Port:"));
  auto* ports = view.Show<QComboBox>("Puerto");
  ports->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  ports->setMinimumContentsLength(12);
  card.grid->addWidget(port, 0, 0);
  card.grid->addWidget(ports, 0, 1, 1, 2);
  card.grid->addWidget(view.ShowWithWords("ModemCheck", Words::tr("By modem")), 1, 0);
  card.grid->addWidget(view.ShowNamed("CallNum", Words::tr("Number to call")), 1, 1);
  card.grid->addWidget(view.ShowWithWords("SearchBut", Words::tr("Search ports")), 1, 2);
  view.Show<QLineEdit>("CallNum")->setPlaceholderText(Words::tr("Number to call"));
  card.grid->addWidget(view.Show("IniCom"), 2, 0, 1, 3);
  view.Show("IniCom")->setProperty("primary", true);
  card.grid->addWidget(Joined(view, {view.ShowWithWords("Leer", Words::tr("Read")),
                                     view.ShowWithWords("Escribir", Words::tr("Write"))}),
                       3, 0, 1, 3);
  auto* status = view.Show<QLabel>("ComStat");
  status->setObjectName("Status");
  status->setWordWrap(true);
  auto* fault = view.Own(new FaultNote("FaultNote", &view));
  card.grid->addWidget(status, 4, 0, 1, 3);
  card.grid->addWidget(fault, 5, 0, 1, 3);
  card.grid->addWidget(ProgressPlace(view), 6, 0, 1, 3);
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(7, 1);
  return card;
}

Card DeviceCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Device information"));
  const auto add = [&](std::string_view control, const QString& label) {
    AddField(card, view.LabelFor(control, label), view.Show(control), 2);
  };
  add("FirmText", Words::tr("Firmware:"));
  add("SerialText", Words::tr("Serial number:"));
  add("VBatText", Words::tr("Battery:"));
  add("MaxHText", Words::tr("Log depth:"));
  add("UsedHText", Words::tr("Log in use:"));
  auto* bar = view.Show<QProgressBar>("RSSIBar");
  bar->setTextVisible(false);
  bar->setMinimumWidth(kNarrowBar);
  AddField(card, view.LabelFor("RSSIBar", Words::tr("Signal:")), bar);
  card.grid->addWidget(view.Show("LabelRSSI"), card.grid->rowCount() - 1, 2);
  card.grid->setColumnMinimumWidth(2, 34);
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card LoggerCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Logger"));
  AddField(card, view.LabelFor("NameBox", Words::tr("Name:")), view.Show("NameBox"));
  AddField(card, view.LabelFor("PTLF", Words::tr("Own number:")), view.Show("PTLF"));
  auto* centre = new QLabel(Words::tr("SMS centre:"), &view);
  AddField(card, centre, OptionBox(view, {"CSMMovi", "CSMVoda", "CSMAmen", "CSMOtro"}, 2));
  card.grid->addWidget(view.ShowNamed("SMSCBox", Words::tr("SMS centre")), card.grid->rowCount(),
                       1);
  QLabel* restored = view.LabelFor("RestoreText", Words::tr("Restoration text:"));
  restored->setWordWrap(true);
  AddField(card, restored, view.Show("RestoreText"));
  const auto addCount = [&](std::string_view control, const QString& label, const QString& unit) {
    QLabel* labelWidget = view.LabelFor(control, label);
    AddField(card, labelWidget,
             Joined(view, {Narrow(view.Show(control), 5), new QLabel(unit, &view)}, Qt::Horizontal,
                    true));
  };
  addCount("RENVT", Words::tr("Resend every:"), Words::tr("minutes"));
  addCount("RENVN", Words::tr("At most:"), Words::tr("times"));
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

/// The controls in which one telephone is entered.
QGridLayout* PhoneEntry(FormView& view, const LayoutContext& context) {
  view.SetRowText("Privilegios", context.wordText);
  auto* grid = new QGridLayout;
  grid->setSpacing(6);
  int row = 0;
  const auto add = [&](std::string_view control, const QString& words) {
    grid->addWidget(view.LabelFor(control, words), row, 0);
    grid->addWidget(view.Show(control), row++, 1);
  };
  add("NewTlf", Words::tr("Number:"));
  add("PrioBox", Words::tr("Priority:"));
  add("Privilegios", Words::tr("Privilege:"));
  grid->setColumnMinimumWidth(1, 150);
  grid->setRowStretch(row, 1);
  return grid;
}

QVBoxLayout* PhoneMask(FormView& view) {
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  column->addWidget(view.Show("CheckMask"));
  column->addWidget(OptionBox(view, {"MaskInclude", "MaskExclude"}, 2));
  column->addWidget(view.ShowNamed("MaskSelection", Words::tr("Channels of the mask")), 1);
  return column;
}

QVBoxLayout* PhoneList(FormView& view) {
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  view.SetColumns(
      "ListaTlf",
      {Words::tr("Number"), Words::tr("Priority"), Words::tr("Privilege"), Words::tr("Alarms of")},
      [](const ListRow& row) { return PhoneCells(ToQt(row.text)); });
  column->addWidget(view.LabelFor("ListaTlf", std::string_view("LabelEditar")));
  column->addWidget(view.Show("ListaTlf"), 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(6);
  buttons->addWidget(view.Show("Anadir"));
  buttons->addWidget(view.Show("Borrar"));
  buttons->addStretch(1);
  column->addLayout(buttons);
  return column;
}

/// A list is as high as the room below the rest of the page allows.
void TakesWhatIsLeft(QWidget* list) {
  constexpr int kLeast = 80;
  list->setMinimumHeight(kLeast);
  list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

Card PhoneCard(FormView& view, const LayoutContext& context) {
  const Card card = MakeCard(view, Words::tr("Authorised telephones"));
  card.grid->setHorizontalSpacing(18);
  card.grid->addLayout(PhoneEntry(view, context), 0, 0);
  card.grid->addLayout(PhoneMask(view), 0, 1);
  card.grid->addLayout(PhoneList(view), 0, 2);
  card.grid->setColumnStretch(1, 2);
  card.grid->setColumnStretch(2, 5);
  for (const auto* list : {"MaskSelection", "ListaTlf"}) TakesWhatIsLeft(view.Show(list));
  return card;
}

}  // namespace

void LayOutGeneral(FormView& view, const LayoutContext& context) {
  QVBoxLayout* page = MakeSheet(view, Words::tr("General"));
  auto* warning = view.Show<QLabel>("WarningText");
  warning->setWordWrap(true);
  auto* top = new QHBoxLayout;
  top->addWidget(SessionCard(view, context).box, 7);
  top->addWidget(DeviceCard(view).box, 4);
  const Card logger = LoggerCard(view), phones = PhoneCard(view, context);
  for (const Card& card : {logger, phones}) card.box->setProperty(kCoveredInReading, true);
  top->addWidget(logger.box, 5);
  auto* notice = Joined(view, {view.Show("Warning"), warning});
  static_cast<QBoxLayout*>(notice->layout())->setStretch(1, 1);
  page->addWidget(notice);
  page->addLayout(top);
  page->addWidget(phones.box, 1);
}

}  // namespace ostrel
