#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "cli/ExitCode.h"

namespace ostrel::cli {

/// A text as a terminal may show it: control characters, which a logger's or a file's text can
/// hold, are written as "\x1b".
std::string Printable(std::string_view text);

/// Where a command writes: results to the output, words about its work to the other stream.
class Console {
 public:
  Console(std::ostream& out, std::ostream& err, bool quiet) : out_(out), err_(err), quiet_(quiet) {}

  std::ostream& Out() { return out_; }
  std::ostream& Err() { return err_; }
  bool Quiet() const { return quiet_; }
  /// Says in one line why a command failed, and gives the exit code on.
  ExitCode Fail(ExitCode code, std::string_view sentence);
  /// Says something about the work in one line, unless told to be quiet.
  void Note(std::string_view sentence);

 private:
  std::ostream& out_;
  std::ostream& err_;
  bool quiet_;
};

}  // namespace ostrel::cli
