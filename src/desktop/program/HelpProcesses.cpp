#include "desktop/program/HelpProcesses.h"

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr std::string_view kViewer = "Explorer ";
constexpr std::string_view kSuppliedEnding = "_ES.htm";

/// The word of a page that was asked for: "Digital" of "...\\html\\Digital_ES.htm".
std::string_view PageWord(std::string_view commandLine) {
  std::string_view word = commandLine.substr(commandLine.rfind('\\') + 1);
  if (word.ends_with(kSuppliedEnding)) word.remove_suffix(kSuppliedEnding.size());
  return word;
}

}  // namespace

bool HelpProcesses::Start(std::string_view commandLine) {
  if (real_.Start(commandLine)) return true;
  if (!commandLine.starts_with(kViewer)) return false;
  // The ending of a page, which is that of its language.
  const std::string ending = FromQt(Words::tr("EN"));
  const std::string page = ownPages_ + '/' + std::string(PageWord(commandLine)) + '_' + ending;
  if (real_.Start(std::string(kViewer) + page + ".htm")) return true;
  dialogs_.ShowMessage({.text = FromQt(Words::tr("This installation has no help pages.")),
                        .title = FromQt(Words::tr("Help")),
                        .icon = BoxIcon::Information});
  return false;
}

}  // namespace ostrel
