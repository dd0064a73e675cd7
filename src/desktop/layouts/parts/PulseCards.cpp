#include "desktop/layouts/parts/PulseCards.h"

#include "desktop/forms/Words.h"

namespace ostrel {

std::array<Card, 3> PulseCards(FormView& view, const ControlNames& names) {
  const Card unit = MakeCard(view, names("FrameUnidad"));
  unit.grid->addWidget(Narrow(view.ShowNamed(names("Unidad"), Words::tr("Unit")), 10), 0, 0);
  const Card base = MakeCard(view, names("FrameTimeBase"));
  base.grid->addWidget(Narrow(view.ShowNamed(names("TimeBase"), Words::tr("Time base")), 7), 0, 0);
  base.grid->addWidget(view.Show(names("LabelSeconds")), 0, 1);
  const Card weight = MakeCard(view, names("FrameConversion"));
  weight.grid->addWidget(view.LabelFor(names("Ratio"), std::string_view(names("Label1"))), 0, 0);
  weight.grid->addWidget(Narrow(view.Show(names("Ratio")), 9), 0, 1);
  weight.grid->addWidget(view.Show(names("RatioUnit")), 0, 2);
  weight.grid->addWidget(view.Show(names("HelpBut")), 0, 3);
  return {unit, base, weight};
}

}  // namespace ostrel
