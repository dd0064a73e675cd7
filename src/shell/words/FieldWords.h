#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "blocks/Configuration.h"

namespace ostrel {

// Fields and their values in words, for those who read a configuration. `say` gives a text of the
// description in the language of the reader.

/// The language of the description itself.
inline std::string InEnglish(std::string_view text) { return std::string(text); }

/// Words for the section of a field: "digital input 3".
std::string SectionWords(const FieldId& id, const Translation& say = InEnglish);

/// Words for a field within its section: "alarm 0, actions, high, place 7".
std::string KeyWords(const FieldId& id, const FieldMeta& meta, const Translation& say = InEnglish);

/// What a code stands for; null for a field that is none, or a code that is unknown.
const CodeWords* CodeOf(const FieldView& value, const FieldMeta& meta);

/// Whether passwords are shown, or "****" in their place.
enum class Passwords { Hidden, Shown };

/// The text of a field in a configuration file, as it may be shown.
std::string ShownText(const FieldView& value, const FieldMeta& meta, bool isS100,
                      Passwords passwords = Passwords::Hidden);

/// A value as a person reads it: texts in quotes, numbers with their unit and without a place for
/// the sign, codes in words, yes and no, the days of a week. Control characters are shown as such.
std::string ReadableValue(const FieldView& value, const FieldMeta& meta, bool isS100,
                          Passwords passwords = Passwords::Hidden,
                          const Translation& say = InEnglish);

/// All of these texts that are not part of a record's description, for those who translate them.
std::vector<std::string> FieldPhrases();

}  // namespace ostrel
