#include "controls/NumberBox.h"

namespace ostrel {

double NumberIn(const TextBox& box) { return NumVal(WithDecimalPoint(box.Text())); }

namespace {

bool Colour(TextBox& box, std::string_view text, std::string_view kind) {
  const bool valid = (kind == "int" && IsIntText(text)) || (kind == "float" && IsFloatText(text));
  box.face.SetColour(valid ? BackColour::Window : BackColour::Red);
  return valid;
}

}  // namespace

bool TestNumberBox(TextBox& box) {
  return box.NumberKind().empty() || Colour(box, WithDecimalPoint(box.Text()), box.NumberKind());
}

bool CheckNumberBox(TextBox& box, std::string_view kind) {
  box.SetText(WithDecimalPoint(box.Text()));
  return Colour(box, box.Text(), kind);
}

}  // namespace ostrel
