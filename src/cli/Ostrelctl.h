#pragma once

#include <span>
#include <string>

#include "cli/Environment.h"
#include "host/ExitCode.h"

namespace ostrel::cli {

/// Runs the command line `ostrelctl`; `args` are its arguments without the program's name.
ExitCode RunOstrelctl(std::span<const std::string> args, Environment& environment);

}  // namespace ostrel::cli
