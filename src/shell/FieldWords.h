#pragma once

#include <string>

#include "blocks/Configuration.h"

namespace ostrel {

// Fields and their values in words, for those who read a configuration.

/// Words for the section of a field: "digital input 3".
std::string SectionWords(const FieldId& id);

/// Words for a field within its section: "alarm 0, actions, high, place 7".
std::string KeyWords(const FieldId& id, const FieldMeta& meta);

/// What a code stands for; null for a field that is none, or a code that is unknown.
const CodeWords* CodeOf(const FieldView& value, const FieldMeta& meta);

/// A value as a person reads it: texts in quotes, numbers with their unit and without a place for
/// the sign, codes in words, yes and no, the days of a week. Control characters are shown as such.
std::string ReadableValue(const FieldView& value, const FieldMeta& meta, bool isS100);

}  // namespace ostrel
