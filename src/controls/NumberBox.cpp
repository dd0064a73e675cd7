#include "controls/NumberBox.h"

#include <charconv>

namespace ostrel {
namespace {

void Paint(TextBox& box, bool valid) {
  box.face.SetColour(valid ? BackColour::Window : BackColour::Red);
}

}  // namespace

bool CheckNumberBox(TextBox& box, std::string_view kind) {
  const bool valid =
      (kind == "int" && IsIntText(box.Text())) || (kind == "float" && IsFloatText(box.Text()));
  Paint(box, valid);
  return valid;
}

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

bool CheckAddressBox(TextBox& box) {
  const bool valid = IsAddressText(box.Text());
  Paint(box, valid);
  return valid;
}

}  // namespace ostrel
