#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/PulseCards.h"
#include "desktop/layouts/ScaleLayout.h"
#include "model/ConfExpansion.h"

namespace ostrel {
namespace {

/// A tab of the page, with a column for its boxes.
QVBoxLayout* AddTab(QStackedWidget& tabs) {
  auto* tab = new QWidget(&tabs);
  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(0, 0, 0, 0);
  tabs.addWidget(tab);
  return column;
}

QString ModeText(const ListRow& row) {
  switch (row.value) {
    case kModeDigital:
      return Words::tr("Digital");
    case kModeFlow:
      return Words::tr("Flow meter");
    case kModeCounter:
      return Words::tr("Counter");
    case kModeAnalog:
      return Words::tr("Analog");
    default:
      return Words::tr("Not enabled");
  }
}

/// Mode and address in one row, each list at its label.
Card AddressCard(FormView& view) {
  view.SetRowText("ModeCombo", ModeText);
  const Card card = MakeCard(view, QString());
  card.grid->addWidget(view.Show("Titulo"), 0, 0);
  card.grid->setColumnMinimumWidth(0, 90);
  int column = 1;
  for (const auto& [control, label] :
       {std::pair{"ModeCombo", "LabelMode"}, std::pair{"AddressCombo", "LabelAddress"},
        std::pair{"InputCombo", "LabelInput"}, std::pair{"GroupCombo", "LabelGroup"}}) {
    card.grid->addWidget(view.LabelFor(control, std::string_view(label)), 0, column++,
                         Qt::AlignRight | Qt::AlignVCenter);
    card.grid->addWidget(view.Show(control), 0, column++);
  }
  card.grid->addWidget(view.Show("FindFree"), 0, column++);
  card.grid->setColumnStretch(column, 1);
  auto* shared = view.Show<QLabel>("Shared");
  shared->setWordWrap(true);
  card.grid->addWidget(shared, 1, 1, 1, column);
  return card;
}

void LayOutDigitalTab(FormView& view, QVBoxLayout& tab) {
  const Card input = MakeCard(view, Words::tr("Input"));
  AddField(input, view.LabelFor("D_Nombre", Words::tr("Name:")), view.Show("D_Nombre"));
  view.Show("D_Nombre")->setMaximumWidth(360);
  AddField(input, new QLabel(Words::tr("Contact at rest:"), &view),
           OptionBox(view, {"D_Int_NA", "D_Int_NC"}, 2));
  input.grid->setColumnStretch(1, 1);
  tab.addWidget(input.box);
  tab.addWidget(LayOutAlarmPanel(view, {{"Persist", {}}, {"Rearm", {}}}, {.prefix = "D_"}));
  tab.addStretch(1);
}

void LayOutFlowTab(FormView& view, QVBoxLayout& tab) {
  const Card meter = MakeCard(view, Words::tr("Flow meter"));
  AddField(meter, view.LabelFor("Q_Nombre", Words::tr("Name:")), view.Show("Q_Nombre"));
  auto* top = new QHBoxLayout;
  top->addWidget(meter.box, 1);
  for (const Card& card : PulseCards(view, {.prefix = "Q_"})) top->addWidget(card.box);
  tab.addLayout(top);
  tab.addWidget(LayOutAlarmPanel(view, LevelThresholdWords(), {.prefix = "Q_"}));
  tab.addWidget(LayOutNotice(view, "Q_Notice"));
  tab.addStretch(1);
}

void LayOutCounterTab(FormView& view, QVBoxLayout& tab) {
  const Card counter = MakeCard(view, Words::tr("Counter"));
  AddField(counter, view.LabelFor("C_Nombre", Words::tr("Name:")), view.Show("C_Nombre"));
  AddField(counter, view.LabelFor("C_Unidad", Words::tr("Unit:")),
           Narrow(view.Show("C_Unidad"), 12));
  const Card weight = MakeCard(view, std::string_view("C_FrameConversion"));
  weight.grid->addWidget(view.LabelFor("C_Ratio", std::string_view("C_Label1")), 0, 0);
  weight.grid->addWidget(Narrow(view.Show("C_Ratio"), 12), 0, 1);
  weight.grid->addWidget(UnitBeside(view, "C_Ratio", "C_Unidad"), 0, 2);
  weight.grid->setColumnStretch(3, 1);
  const Card total = MakeCard(view, Words::tr("Totaliser"));
  total.grid->addWidget(view.Show("C_TotalText"), 0, 0);
  total.grid->addWidget(view.Show("C_BotonModificar"), 0, 1);
  total.grid->setColumnStretch(2, 1);
  for (const Card& card : {counter, weight, total}) {
    card.box->setMaximumWidth(520);
    tab.addWidget(card.box);
  }
  tab.addStretch(1);
}

void LayOutAnalogTab(FormView& view, QVBoxLayout& tab) {
  const ControlNames names{.prefix = "A_"};
  const Card input = MakeCard(view, Words::tr("Input"));
  AddField(input, view.LabelFor("A_Nombre", Words::tr("Name:")), view.Show("A_Nombre"));
  AddField(input, view.LabelFor("A_Unidad", Words::tr("Unit:")), Narrow(view.Show("A_Unidad"), 12));
  AddField(input, new QLabel(Words::tr("Interface:"), &view),
           OptionBox(view, {"Int_4_20", "Int_0_10"}, 2, names));
  input.grid->setColumnStretch(1, 1);
  input.grid->setRowStretch(input.grid->rowCount(), 1);
  auto* top = new QHBoxLayout;
  top->addWidget(input.box, 1);
  top->addWidget(ScaleCard(view, names).box, 1);
  tab.addLayout(top);
  tab.addWidget(LayOutAlarmPanel(view, LevelThresholdWords(), names));
  tab.addStretch(1);
}

}  // namespace

void LayOutExpansion(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(AddressCard(view).box);
  auto* tabs = view.Show<QStackedWidget>("SSTab1");
  QVBoxLayout* off = AddTab(*tabs);
  off->addWidget(view.Show("LabelNoHabil"), 0, Qt::AlignTop);
  off->addStretch(1);
  LayOutDigitalTab(view, *AddTab(*tabs));
  LayOutFlowTab(view, *AddTab(*tabs));
  LayOutCounterTab(view, *AddTab(*tabs));
  LayOutAnalogTab(view, *AddTab(*tabs));
  view.Follow("SSTab1");
  page->addWidget(tabs, 1);
}

}  // namespace ostrel
