#pragma once

#include <ostream>
#include <span>
#include <string>

#include "host/ExitCode.h"
#include "recording/Replay.h"
#include "sim/Logger.h"

namespace ostrel {

/// What the command line of the simulated logger asks for.
struct SimOptions {
  sim::LoggerOptions logger;
  bool isPaced = false;
  bool isEmpty = false;   ///< starts without a configuration
  std::string stateFile;  ///< empty for none
  std::string fixture;    ///< file of the fixture that it is tested in; empty for a good board
  std::string replay;     ///< recording whose logger is played; empty for none
  std::string link;       ///< path that is to lead to the pseudo-terminal; empty for none
};

/// Reads the arguments of `ostrel-sim`. False when the program is to end with `code`, after it has
/// told help or what is wrong.
bool ParseSimOptions(std::span<const std::string> args, SimOptions& options, std::ostream& out,
                     std::ostream& err, ExitCode& code);

/// One line about an exchange: seconds, request, and what came of it. Access codes and passwords
/// are not told.
std::string ExchangeLine(const sim::Exchange& exchange);

/// The same about a request to a replay.
std::string ReplayLine(TimePoint at, const ReplayedRequest& request);

}  // namespace ostrel
