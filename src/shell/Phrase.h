#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ostrel {

/// Part of a sentence in English, without a capital and a full stop. "%1" and "%2" stand where its
/// arguments go. A face that speaks other languages knows the part by its text.
struct Phrase {
  std::string text{};
  std::vector<std::string> arguments{};

  Phrase() = default;
  template <std::convertible_to<std::string> Text>
  Phrase(Text&& words, std::vector<std::string> values = {})
      : text(std::forward<Text>(words)), arguments(std::move(values)) {}
  bool operator==(const Phrase&) const = default;
};

/// A text with its arguments in their places.
std::string Filled(std::string_view text, const std::vector<std::string>& arguments);
inline std::string Filled(const Phrase& phrase) { return Filled(phrase.text, phrase.arguments); }

}  // namespace ostrel
