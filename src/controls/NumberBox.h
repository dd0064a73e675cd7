#pragma once

#include <string_view>

#include "controls/Controls.h"

namespace ostrel {

/// Tests the text of a box as "int" or "float" and colours it: window background when it is a
/// number, pure red otherwise. Any other kind counts as invalid. The result tells which.
bool CheckNumberBox(TextBox& box, std::string_view kind);

}  // namespace ostrel
