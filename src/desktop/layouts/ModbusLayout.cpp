#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {
namespace {

Card ModbusChannelCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Channel"));
  AddField(card, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  AddField(card, view.LabelFor("Unidad", Words::tr("Unit:")), Narrow(view.Show("Unidad"), 12));
  AddField(card, new QLabel(Words::tr("Mode:"), &view),
           OptionBox(view, {"OptAnalog", "OptDigital"}, 2));
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card RegisterCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Register"));
  AddField(card, view.LabelFor("SlaveAddres", std::string_view("Label8")),
           Narrow(view.Show("SlaveAddres"), 8));
  AddField(card, view.LabelFor("RegAddres", std::string_view("Label9")),
           Narrow(view.Show("RegAddres"), 8));
  AddField(card, new QLabel(Words::tr("Size:"), &view),
           OptionBox(view, {"Size16Opt", "Size32Opt", "SizeFloatOpt"}, 3));
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card ConversionCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Conversion"));
  auto* plus = view.LabelFor("Constante", std::string_view("LabelPlus"));
  AddField(
      card, view.LabelFor("Multiplicador", std::string_view("LabelMult")),
      Joined(view, {Narrow(view.Show("Multiplicador"), 9), plus, Narrow(view.Show("Constante"), 9)},
             Qt::Horizontal, true));
  view.ShowNamed("Constante", Words::tr("Constant"));
  AddField(
      card, view.LabelFor("Mascara", std::string_view("LabelMask")),
      Joined(view, {Narrow(view.Show("Mascara"), 9), view.Show("HelpBut")}, Qt::Horizontal, true));
  card.grid->addWidget(view.Show("CheckNegar"), card.grid->rowCount(), 1);
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

/// On a digital channel two of the thresholds are times.
void ShowUnitsByMode(FormView& view) {
  const auto& digital = view.GetForm().Get<OptionButton>("OptDigital");
  const auto& unit = view.GetForm().Get<TextBox>("Unidad");
  for (const auto* name : {"Unit of Minimo", "Unit of Maximo"})
    view.Whenever({"OptDigital", "Unidad"},
                  [label = view.findChild<QLabel*>(name), &digital, &unit] {
                    label->setText(digital.Selected() ? Words::tr("s") : ToQt(unit.Text()));
                  });
}

}  // namespace

void LayOutModbusBus(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  const Card speed = MakeCard(view, std::string_view("FrameVelocidad"));
  speed.grid->addWidget(Narrow(view.ShowNamed("ComboVelocidad", Words::tr("Bit rate")), 12), 0, 0);
  speed.grid->addWidget(view.Show("LabelBaudios"), 0, 1);
  speed.grid->setColumnStretch(2, 1);
  const Card role = MakeCard(view, std::string_view("FrameMasterSlave"));
  role.grid->addWidget(OptionBox(view, {"MasterOpt", "SlaveOpt"}, 2), 0, 0, 1, 3);
  auto* line = view.Show<QLabel>("Line1");
  line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  role.grid->addWidget(line, 1, 0, 1, 3);
  role.grid->addWidget(view.LabelFor("SlaveAddress", std::string_view("LabelAddress")), 2, 0);
  role.grid->addWidget(Narrow(view.Show("SlaveAddress"), 8), 2, 1);
  role.grid->setColumnStretch(2, 1);
  for (const Card& card : {speed, role}) {
    card.box->setMaximumWidth(480);
    page->addWidget(card.box);
  }
  view.Show<QLabel>("WarningText")->setWordWrap(true);
  auto* notice = new QHBoxLayout;
  notice->addWidget(view.Show("Warning"));
  notice->addWidget(view.Show("WarningText"), 1);
  page->addLayout(notice);
  page->addStretch(1);
}

void LayOutModbusChannel(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  auto* top = new QHBoxLayout;
  top->addWidget(ModbusChannelCard(view).box, 4);
  top->addWidget(RegisterCard(view).box, 4);
  top->addWidget(ConversionCard(view).box, 5);
  page->addLayout(top);
  page->addWidget(LayOutAlarmPanel(view, {{"Minimo", {}, {}, "LabelMin"},
                                          {"Maximo", {}, {}, "LabelMax"},
                                          {"Histeresis", {}, {}, "LabelHist"},
                                          {"Persist", {}, {}, "LabelPersist"}}));
  ShowUnitsByMode(view);
  for (const auto* name : {"Notice", "NoticeTimer"}) page->addWidget(LayOutNotice(view, name));
  page->addStretch(1);
}

}  // namespace ostrel
