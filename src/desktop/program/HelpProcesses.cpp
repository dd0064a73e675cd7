#include "desktop/program/HelpProcesses.h"

#include "desktop/forms/Words.h"

namespace ostrel {

bool HelpProcesses::Start(std::string_view commandLine) {
  if (real_.Start(commandLine)) return true;
  if (commandLine.starts_with("Explorer "))
    dialogs_.ShowMessage({.text = FromQt(Words::tr("This installation has no help pages.")),
                          .title = FromQt(Words::tr("Help")),
                          .icon = BoxIcon::Information});
  return false;
}

}  // namespace ostrel
