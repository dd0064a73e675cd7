#pragma once

#include <string_view>

#include "controls/Controls.h"

namespace ostrel {

/// Tests the text of a box as "int" or "float" and colours it: window background when it is a
/// number, pure red otherwise. Any other kind counts as invalid. The result tells which.
bool CheckNumberBox(TextBox& box, std::string_view kind);

/// True for "0", which stands for no address, for four numbers from 0 to 255 with points between
/// them, and for the empty text of what a logger did not tell.
bool IsAddressText(std::string_view text);

/// Tests the text of an address box, and colours it as `CheckNumberBox` does.
bool CheckAddressBox(TextBox& box);

}  // namespace ostrel
