#pragma once

#include <string>
#include <string_view>

#include "cli/Console.h"
#include "shell/session/TransferWatch.h"

namespace ostrel::cli {

/// Shows on a terminal how far a transfer is, with the time that remains. It takes its line away at
/// its end.
class TransferLine {
 public:
  TransferLine(Console& console, TransferWatch& watch, std::string_view label, bool isShown);
  ~TransferLine();
  TransferLine(const TransferLine&) = delete;
  TransferLine& operator=(const TransferLine&) = delete;

 private:
  void Draw();

  Console& console_;
  TransferWatch& watch_;
  std::string label_;
  std::string drawn_;
};

}  // namespace ostrel::cli
