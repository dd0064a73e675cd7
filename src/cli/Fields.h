#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Field.h"
#include "shell/Configurator.h"

namespace ostrel::cli {

/// One field of a configuration, with its place in the file.
struct FieldEntry {
  std::string section, key;
  FieldRef field;
};

/// All fields of a configuration that a file of the configurator's model holds, in file order. They
/// refer to `conf`.
std::vector<FieldEntry> FieldsOf(const Configurator& configurator, DeviceConf& conf);

/// Sections in the order in which they first appear, each with all of its fields.
struct SectionFields {
  std::string name;
  std::vector<FieldEntry> fields;
};
std::vector<SectionFields> BySection(const std::vector<FieldEntry>& fields);

/// A section name or key as its word and the numbers behind it: "ACTHI( 0 7)" is ACTHI, 0 and 7.
struct NumberedName {
  std::string_view word;
  std::vector<int> numbers;
};
NumberedName SplitName(std::string_view name);

/// The value as a person reads it: texts in quotes, numbers without a place for the sign, yes and
/// no, the days of a week.
std::string ReadableValue(const FieldEntry& entry, bool isS100);

/// Words for a section, such as "digital input 3"; the name itself for one that has none.
std::string SectionWords(std::string_view section);
/// Words for a key, such as "alarm 0, text"; empty for one that has none.
std::string KeyWords(std::string_view key);

}  // namespace ostrel::cli
