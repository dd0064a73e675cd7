#include "cli/FaultText.h"

namespace ostrel::cli {

std::string FaultText(const FaultWords& words) {
  std::string line = Filled(words.what);
  if (!words.remedy.text.empty()) line += ": " + Filled(words.remedy);
  if (!words.outcome.text.empty()) line += "; " + Filled(words.outcome);
  return line;
}

}  // namespace ostrel::cli
