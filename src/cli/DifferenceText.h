#pragma once

#include "cli/Console.h"
#include "cli/Json.h"
#include "shell/Comparison.h"

namespace ostrel::cli {

/// Lists differences by section; those that no statement carries come last.
void PrintDifferences(Console& console, const Comparison& comparison);
void WriteDifferences(JsonWriter& json, const Comparison& comparison);

}  // namespace ostrel::cli
