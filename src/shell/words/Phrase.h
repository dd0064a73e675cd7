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
  std::vector<Phrase> parts{};  ///< phrases of their own, whose places come behind the arguments

  Phrase() = default;
  template <std::convertible_to<std::string> Text>
  Phrase(Text&& words, std::vector<std::string> values = {}, std::vector<Phrase> inner = {})
      : text(std::forward<Text>(words)), arguments(std::move(values)), parts(std::move(inner)) {}
  bool operator==(const Phrase&) const = default;
};

/// A text with its arguments in their places.
std::string Filled(std::string_view text, const std::vector<std::string>& arguments);
/// A phrase with all that goes into it, each text of it as `translate` gives it.
template <class Translate>
std::string Filled(const Phrase& phrase, const Translate& translate) {
  std::vector<std::string> values = phrase.arguments;
  for (const Phrase& part : phrase.parts) values.push_back(Filled(part, translate));
  return Filled(translate(phrase.text), values);
}
inline std::string Filled(const Phrase& phrase) {
  return Filled(phrase, [](const std::string& text) { return text; });
}

}  // namespace ostrel
