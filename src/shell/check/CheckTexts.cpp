#include "base/Printable.h"
#include "base/Utf8.h"
#include "shell/check/CheckRules.h"
#include "store/IniTool.h"

// What the reader of a file makes of the values in it.

namespace ostrel {

const std::string* TextOf(const FieldView& field) {
  if (const auto* text = std::get_if<const std::string*>(&field)) return *text;
  if (const auto* phone = std::get_if<const ConfPhone*>(&field)) return &(*phone)->TLF;
  return nullptr;
}

std::vector<Finding> TextsNotKept(const ModelConfiguration& configuration) {
  std::vector<Finding> found;
  for (const ConstField& field : FieldsOf(configuration.conf, configuration.profile)) {
    const std::string* text = TextOf(field.value);
    std::string loss = text ? LossInProfile(*text) : std::string();
    if (!loss.empty()) found.push_back({field.Section(), field.Key(), std::move(loss)});
  }
  return found;
}

std::vector<Finding> CutValues(const Examined& file) {
  std::vector<Finding> found;
  std::string section;
  file.Document().Visit(
      [&](std::string_view name) { section = name; },
      [&](std::string_view key, std::string_view value) {
        const std::size_t length = CharacterCount(ProfilePart(value));
        if (length <= kProfileValueLimit) return;
        found.push_back({section,
                         std::string(key),
                         {"%1 characters, of which only the first 254 are read: shorten it",
                          {std::to_string(length)}}});
      });
  return found;
}

/// Of a file, what it holds and the reader drops; of a configuration that is to be saved, what the
/// file would drop.
std::vector<Finding> StrippedTexts(const Examined& file) {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    const std::string* text = TextOf(field.value);
    // A control character is told by the rule on what cannot be sent.
    if (!text || UpToControl(*text).size() < text->size()) continue;
    const std::string* value = file.Written(i);
    const bool isStripped = value && ProfilePart(*value).size() < value->size();
    std::string loss = LossInProfile(isStripped ? *value : *text);
    if (!loss.empty()) found.push_back({field.Section(), field.Key(), std::move(loss)});
  }
  return found;
}

}  // namespace ostrel
