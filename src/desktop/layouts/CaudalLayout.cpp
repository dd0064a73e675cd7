#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/PulseCards.h"

namespace ostrel {
namespace {

Card MeterCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Flow meter"));
  AddField(card, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  AddField(card, new QLabel(Words::tr("State:"), &view),
           OptionBox(view, {"Int_Habil", "Int_NoHabil"}, 2));
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card TotalCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("FrameTotal"));
  card.grid->addWidget(view.Show("TotalText"), 0, 0);
  card.grid->addWidget(view.Show("BotonModificar"), 0, 1);
  card.grid->setColumnMinimumWidth(0, 90);
  return card;
}

}  // namespace

void LayOutCaudal(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  auto* top = new QHBoxLayout;
  top->addWidget(MeterCard(view).box, 1);
  const auto [unit, base, weight] = PulseCards(view);
  auto* flow = new QGridLayout;
  flow->addWidget(unit.box, 0, 0);
  flow->addWidget(base.box, 0, 1);
  flow->addWidget(TotalCard(view).box, 0, 2);
  flow->addWidget(weight.box, 1, 0, 1, 3);
  top->addLayout(flow);
  page->addLayout(top);
  page->addWidget(LayOutAlarmPanel(view, LevelThresholdWords("Asterisk")));
  // The asterisk at the persistence is explained here.
  page->addWidget(LayOutNotice(view, "Notice"));
  page->addStretch(1);
}

}  // namespace ostrel
