#include <QLabel>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

Card FilesCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Files"));
  int row = 0;
  for (const auto& [label, path, browse] : {std::tuple{"LabelFirm", "FirmPath", "FirmBut"},
                                            {"LabelLoader", "LoaderPath", "LoaderBut"}}) {
    card.grid->addWidget(view.LabelFor(path, std::string_view(label)), row, 0);
    card.grid->addWidget(view.Show(path), row, 1);
    card.grid->addWidget(view.Show(browse), row++, 2);
  }
  card.grid->setColumnStretch(1, 1);
  return card;
}

Card StateCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Update"));
  auto* info = view.Show<QLabel>("LabelInfo");
  info->setWordWrap(true);
  card.grid->addWidget(view.Show("StarBut"), 0, 0);
  card.grid->addWidget(info, 0, 1);
  card.grid->addWidget(ProgressPlace(view), 1, 0, 1, 2);
  auto* advice = view.Own(new QLabel(
      Words::tr("The logger has no firmware from the erasing of its flash until its lamp blinks "
                "again. Keep it powered and connected so long, whatever happens."),
      &view));
  advice->setWordWrap(true);
  card.grid->addWidget(advice, 2, 0, 1, 2);
  card.grid->setColumnStretch(1, 1);
  return card;
}

}  // namespace

void LayOutFirm(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(FilesCard(view).box);
  page->addWidget(StateCard(view).box);
  page->addStretch(1);
}

}  // namespace ostrel
