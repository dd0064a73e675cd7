#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

constexpr int kGroups = 4;

Card GroupCard(FormView& view, int group) {
  const std::string number = "(" + std::to_string(group) + ")";
  const Card card = MakeCard(view, "Frame" + number);
  AddField(card, view.LabelFor("ComboSalida" + number, Words::tr("Output:")),
           view.Show("ComboSalida" + number));
  AddField(card, view.LabelFor("ComboTension" + number, Words::tr("Excitation (V):")),
           view.Show("ComboTension" + number));
  AddField(card, view.LabelFor("Period" + number, Words::tr("Activation (1/100 s):")),
           view.Show("Period" + number));
  card.grid->setColumnStretch(1, 1);
  return card;
}

}  // namespace

void LayOutGrupos(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  auto* cards = new QGridLayout;
  for (int group = 0; group < kGroups; ++group)
    cards->addWidget(GroupCard(view, group).box, group / 2, group % 2);
  page->addLayout(cards);
  page->addStretch(1);
}

}  // namespace ostrel
