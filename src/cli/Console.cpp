#include "cli/Console.h"

#include "base/Printable.h"

namespace ostrel::cli {

ExitCode Console::Fail(ExitCode code, std::string_view sentence) {
  out_.flush();
  err_ << "ostrelctl: " << Printable(sentence) << std::endl;
  return code;
}

void Console::Note(std::string_view sentence) {
  if (quiet_) return;
  out_.flush();
  err_ << Printable(sentence) << std::endl;
}

}  // namespace ostrel::cli
