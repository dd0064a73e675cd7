#include "cli/Result.h"

#include <array>
#include <charconv>
#include <cmath>

namespace ostrel::cli {

void WriteJson(std::ostream& out, const Json& value, JsonLayout layout) {
  constexpr int kIndent = 2, kOneLine = -1;
  out << value.dump(layout == JsonLayout::Indented ? kIndent : kOneLine, ' ', false,
                    Json::error_handler_t::replace)
      << '\n';
}

Json JsonNumber(float number) {
  if (!std::isfinite(number)) return nullptr;
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
  double shown = 0;
  std::from_chars(text.data(), end.ptr, shown);
  return shown;
}

}  // namespace ostrel::cli
