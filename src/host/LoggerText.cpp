#include "host/LoggerText.h"

#include <charconv>

#include "link/WireText.h"

namespace ostrel {

std::optional<std::int32_t> ReadFeatures(std::string_view text) {
  if (text.starts_with("0x") || text.starts_with("0X")) text.remove_prefix(2);
  std::uint32_t mask = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), mask, 16);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return static_cast<std::int32_t>(mask);
}

std::string NoWholeNumber(const std::string& text) {
  const std::string_view digits = std::string_view(text).substr(text.starts_with('-') ? 1 : 0);
  const bool isPlain = !digits.empty() && digits.find_first_not_of("0123456789") == digits.npos &&
                       (digits.size() == 1 || digits.front() != '0');
  return isPlain ? std::string() : text + " is no whole number";
}

std::string ClockText(const DateTime& time) {
  return time == DateTime{} ? std::string() : DateTimeText(time);
}

std::string WithoutSecrets(std::string_view octets) { return MaskPasswords(MaskCode(octets)); }

}  // namespace ostrel
