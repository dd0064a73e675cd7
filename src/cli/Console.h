#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "base/Printable.h"
#include "host/ExitCode.h"

namespace ostrel::cli {

/// Where a command writes: results to the output, words about its work to the other stream, one
/// line each. For programs each of these lines is a JSON object: {"error":...,"exitCode":5} or
/// {"note":...}.
class Console {
 public:
  Console(std::ostream& out, std::ostream& err, bool quiet, bool json)
      : out_(out), err_(err), quiet_(quiet), json_(json) {}

  std::ostream& Out() { return out_; }
  std::ostream& Err() { return err_; }
  /// Whether progress may be drawn.
  bool MayDraw() const { return !quiet_ && !json_; }
  /// Says in one line why a command failed, and gives the exit code on.
  ExitCode Fail(ExitCode code, std::string_view sentence);
  /// Says something about the work in one line, unless told to be quiet.
  void Note(std::string_view sentence);
  /// Says something that is to be known in any case.
  void Say(std::string_view sentence);

 private:
  std::ostream& out_;
  std::ostream& err_;
  bool quiet_;
  bool json_;
};

}  // namespace ostrel::cli
