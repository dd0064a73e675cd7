#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {
namespace {

Card ProbeCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Probe"));
  AddField(card, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  AddField(card, view.LabelFor("Unidad", Words::tr("Unit:")), Narrow(view.Show("Unidad"), 12));
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card IdentityCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("FrameID"));
  card.grid->addWidget(OptionBox(view, {"OptionNoId", "OptionId"}, 1), 0, 0, 1, 2);
  QWidget* first = Narrow(view.ShowNamed("ID0", Words::tr("First half of the identity")), 15);
  QWidget* second = Narrow(view.ShowNamed("ID1", Words::tr("Second half of the identity")), 15);
  card.grid->addWidget(Joined(view, {first, second}, Qt::Horizontal, true), 1, 0);
  card.grid->addWidget(view.Show("BotonLeerId"), 1, 1);
  card.grid->setRowStretch(2, 1);
  return card;
}

}  // namespace

void LayOutOneWire(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  auto* top = new QHBoxLayout;
  top->addWidget(ProbeCard(view).box, 1);
  const Card kind = MakeCard(view, std::string_view("FrameInterface"));
  kind.grid->addWidget(OptionBox(view, {"Int_NoHabil", "Int_1WTemp", "Int_1WHum"}, 1), 0, 0);
  top->addWidget(kind.box);
  top->addWidget(IdentityCard(view).box);
  page->addLayout(top);
  page->addWidget(LayOutAlarmPanel(view, LevelThresholdWords()));
  page->addStretch(1);
}

}  // namespace ostrel
