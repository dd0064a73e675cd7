#pragma once

#include "cli/Result.h"
#include "shell/Comparison.h"

namespace ostrel::cli {

/// Lists differences by section; those that no statement carries come last.
void PrintDifferences(std::ostream& out, const Comparison& comparison);
/// The same for programs.
Json DifferencesJson(const Comparison& comparison);

}  // namespace ostrel::cli
