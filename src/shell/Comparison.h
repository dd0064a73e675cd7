#pragma once

#include <string>
#include <vector>

#include "model/DeviceConf.h"

namespace ostrel {

class Configurator;

/// One field of a configuration as a file holds it.
struct FieldLine {
  std::string section, key, text;

  bool operator==(const FieldLine&) const = default;
};

/// All fields of a configuration that a file of the configurator's model holds, in file order. Free
/// telephone slots are left out: nothing of them is shown, sent or saved.
std::vector<FieldLine> FieldLines(const Configurator& configurator, const DeviceConf& conf);

/// A field in which two configurations differ. A side that lacks the field has an empty text.
struct FieldDifference {
  std::string section, key, left, right;

  bool operator==(const FieldDifference&) const = default;
};

/// What differs, in the order of the left side; fields that only the right side has come last.
std::vector<FieldDifference> CompareFields(const std::vector<FieldLine>& left,
                                           const std::vector<FieldLine>& right);

}  // namespace ostrel
