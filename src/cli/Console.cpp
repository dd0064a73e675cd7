#include "cli/Console.h"

#include "base/Printable.h"
#include "cli/Result.h"

namespace ostrel::cli {

ExitCode Console::Fail(ExitCode code, std::string_view sentence) {
  out_.flush();
  if (json_)
    WriteJson(err_, {{"error", sentence}, {"exitCode", static_cast<int>(code)}},
              JsonLayout::OneLine);
  else
    err_ << "ostrelctl: " << Printable(sentence) << std::endl;
  return code;
}

void Console::Note(std::string_view sentence) {
  if (!quiet_) Say(sentence);
}

void Console::Say(std::string_view sentence) {
  out_.flush();
  if (json_)
    WriteJson(err_, {{"note", sentence}}, JsonLayout::OneLine);
  else
    err_ << Printable(sentence) << std::endl;
}

}  // namespace ostrel::cli
