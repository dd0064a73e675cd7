#pragma once

#include "desktop/forms/FormView.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {

/// The frame of a linear scale: two points of signal and value, and below in words what they mean.
/// The controls have the names of an analog input's.
Card ScaleCard(FormView& view, const ControlNames& names = {});

}  // namespace ostrel
