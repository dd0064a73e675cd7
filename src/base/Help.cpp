#include "base/Help.h"

#include <string>

namespace ostrel {

bool ShowHelp(Processes& processes, std::string_view programFolder, std::string_view topic) {
  std::string commandLine = "Explorer ";
  commandLine.append(programFolder).append("\\html\\").append(topic).append("_ES.htm");
  return processes.Start(commandLine);
}

}  // namespace ostrel
