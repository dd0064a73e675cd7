#pragma once

namespace ostrel {

/// Exit codes of the command line.
enum class ExitCode {
  Done = 0,
  Differences = 1,     ///< differences found by a comparison or a verification; errors by a check;
                       ///< a test not passed
  Usage = 2,           ///< the command line makes no sense
  NoSession = 3,       ///< port, modem or handshake
  DialogueFailed = 4,  ///< a dialogue failed or was interrupted
  BadFile = 5,         ///< a file was refused, or cannot be read or written
  Interrupted = 130,   ///< interrupted while no dialogue was under way
};

}  // namespace ostrel
