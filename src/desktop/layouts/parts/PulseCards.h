#pragma once

#include <array>

#include "desktop/layouts/parts/LayoutParts.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// The frames that a pulse input has wherever it stands: unit, time base, weight of a pulse.
std::array<Card, 3> PulseCards(FormView& view, const ControlNames& names = {});

}  // namespace ostrel
