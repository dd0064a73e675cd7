#pragma once

#include <optional>

#include "cli/Result.h"
#include "shell/compare/Comparison.h"

namespace ostrel::cli {

/// Lists differences by section; those that no statement carries come last.
void PrintDifferences(std::ostream& out, const Comparison& comparison);
/// The same for programs: all of them, or those that are sent, or those that are not.
Json DifferencesJson(const Comparison& comparison, std::optional<bool> isSent = {});

}  // namespace ostrel::cli
