#pragma once

#include <string>

#include "shell/session/FaultWords.h"

namespace ostrel::cli {

/// The words for a fault in one line: "what: what helps; how the logger stands".
std::string FaultText(const FaultWords& words);

}  // namespace ostrel::cli
