#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/Json.h"
#include "shell/Configurator.h"

namespace ostrel::cli {

/// One field in which two configurations differ.
struct Difference {
  std::string section, key;
  std::string before, after;  ///< as a person reads them
  bool isSent = true;         ///< a statement carries it under the features in question
};

/// How two configurations differ.
struct Comparison {
  std::vector<Difference> differences;
  /// Whether they are the same to a logger; when its features are not known, whether all fields
  /// are the same.
  bool isSame = true;
};

/// Compares two configurations of the configurator's model. With features, they are the same when
/// they give the same statements, and a difference counts as sent when copying that one field from
/// either to the other changes a statement.
Comparison Compare(Configurator& configurator, DeviceConf before, DeviceConf after,
                   std::optional<std::int32_t> features);

/// Compares what two configurators of different models hold, field by field.
Comparison CompareModels(const Configurator& before, const Configurator& after);

/// Lists differences by section; those that no statement carries come last.
void PrintDifferences(Console& console, const Comparison& comparison);
void WriteDifferences(JsonWriter& json, const Comparison& comparison);

}  // namespace ostrel::cli
