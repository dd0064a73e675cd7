#pragma once

#include <string_view>

#include "controls/Controls.h"

namespace ostrel {

/// The number that a box stands for. A comma as its only separator is the decimal sign.
double NumberIn(const TextBox& box);

/// Tests the text of a box as `CheckNumberBox` does, and colours it; the text stays as it is. A box
/// for a text is always right.
bool TestNumberBox(TextBox& box);

/// Puts a decimal comma right into a point. Then tests the text of a box as "int" or "float" and
/// colours it: window background when it is a number, pure red otherwise. Any other kind counts as
/// invalid. The result tells which.
bool CheckNumberBox(TextBox& box, std::string_view kind);

}  // namespace ostrel
