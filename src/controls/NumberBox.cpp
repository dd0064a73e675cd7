#include "controls/NumberBox.h"

namespace ostrel {

bool CheckNumberBox(TextBox& box, std::string_view kind) {
  const bool valid =
      (kind == "int" && IsIntText(box.Text())) || (kind == "float" && IsFloatText(box.Text()));
  box.face.SetColour(valid ? BackColour::Window : BackColour::Red);
  return valid;
}

}  // namespace ostrel
