#include <QLabel>
#include <QVBoxLayout>

#include "blocks/inputs/Sampling.h"
#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
void LayOutSampleRate(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  auto* warning = view.Show<QLabel>("WarningText");
  warning->setWordWrap(true);
  auto* notice = new QHBoxLayout;
  notice->addWidget(view.Show("Warning"));
  notice->addWidget(warning, 1);
  page->addLayout(notice);
  const Card weights = MakeCard(view, Words::tr("Totalisers"));
  for (int meter = 0; meter < Sampling::kMeters; ++meter) {
    const std::string number = "(" + std::to_string(meter) + ")";
    AddField(weights, view.LabelFor("ComboT" + number, std::string_view("LabelT" + number)),
             Narrow(view.Show("ComboT" + number), 12));
  }
  weights.grid->setColumnStretch(1, 1);
  const Card sampling = MakeCard(view, Words::tr("Sampling"));
  AddField(sampling, view.LabelFor("ComboSampleRate", std::string_view("LabelFrecuencia")),
           Narrow(view.Show("ComboSampleRate"), 10));
  auto* autonomy = view.Show<QLabel>("WarningMsg");
  autonomy->setWordWrap(true);
  sampling.grid->addWidget(autonomy, sampling.grid->rowCount(), 0, 1, 2);
  sampling.grid->setColumnStretch(1, 1);
  // Not every model has a rate to choose.
  view.Whenever({"ComboSampleRate"},
                [box = sampling.box, &rate = view.GetForm().Get<ComboBox>("ComboSampleRate")] {
                  box->setVisible(rate.face.Visible());
                });
  for (const Card& card : {weights, sampling}) {
    card.box->setMaximumWidth(640);
    page->addWidget(card.box);
  }
  page->addStretch(1);
}

}  // namespace ostrel
