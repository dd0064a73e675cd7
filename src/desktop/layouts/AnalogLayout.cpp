#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/ScaleLayout.h"

namespace ostrel {
namespace {

Card InputCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Input"));
  AddField(card, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  AddField(card, view.LabelFor("Unidad", Words::tr("Unit:")), Narrow(view.Show("Unidad"), 12));
  AddField(card, view.LabelFor("Grupo", Words::tr("Power group:")), Narrow(view.Show("Grupo"), 8));
  card.grid->setColumnStretch(1, 1);
  card.grid->setRowStretch(card.grid->rowCount(), 1);
  return card;
}

Card InterfaceCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Interface"));
  card.grid->addWidget(
      OptionBox(view, {"Int_NoHabil", "Int_4_20", "Int_0_5", "Int_0_10", "Int_Press"}, 1), 0, 0, 2,
      1);
  card.grid->addWidget(view.Show("Label11"), 0, 1);
  card.grid->addWidget(view.Show("Jumper"), 1, 1, Qt::AlignTop);
  card.grid->setRowStretch(1, 1);
  return card;
}

}  // namespace

void LayOutAnalog(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  auto* top = new QHBoxLayout;
  top->addWidget(InputCard(view).box, 4);
  top->addWidget(InterfaceCard(view).box, 4);
  top->addWidget(ScaleCard(view).box, 4);
  page->addLayout(top);
  page->addWidget(LayOutAlarmPanel(view, LevelThresholdWords("Asterisk")));
  // The asterisk at the persistence is explained here.
  page->addWidget(LayOutNotice(view, "Notice"));
  page->addStretch(1);
}

}  // namespace ostrel
