#include "controls/NumberBox.h"

#include <charconv>

namespace ostrel {

double NumberIn(const TextBox& box) { return NumVal(WithDecimalPoint(box.Text())); }

namespace {

/// "0", which stands for no address, four numbers from 0 to 255 with points between them, or the
/// empty text of what a logger did not tell.
bool IsAddressText(std::string_view text) {
  if (text.empty() || text == "0") return true;
  constexpr int kParts = 4;
  for (int part = 1; part <= kParts; ++part) {
    const std::string_view digits = text.substr(0, part < kParts ? text.find('.') : text.size());
    std::uint8_t octet = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), octet);
    if (read.ec != std::errc() || read.ptr != digits.data() + digits.size()) return false;
    text.remove_prefix(std::min(digits.size() + 1, text.size()));
  }
  return true;
}

bool Colour(TextBox& box, std::string_view text, std::string_view kind) {
  const bool valid = (kind == "int" && IsIntText(text)) || (kind == "float" && IsFloatText(text)) ||
                     (kind == kAddressKind && IsAddressText(text));
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
