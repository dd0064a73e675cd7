#include "shell/SafetyCopies.h"

#include <algorithm>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

constexpr std::string_view kEnding = ".ocf";

/// A serial number as it can stand in a file name.
std::string NameOf(std::string_view serial) {
  std::string name;
  for (const char c : serial) {
    const bool isPlain =
        (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-';
    name += isPlain ? c : '_';
  }
  return name.empty() ? "unknown" : name;
}

/// "20260302-090507".
std::string StampOf(const DateTime& time) {
  std::string stamp = DateTimeText(time);
  std::erase_if(stamp, [](char c) { return c == '-' || c == ':'; });
  std::ranges::replace(stamp, ' ', '-');
  return stamp;
}

/// Lines as a file holds them. None holds a carriage return, which ends a line on the wire, so that
/// they can be told apart whatever else they hold.
std::string LinesText(std::span<const std::string> lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return ToCodePage(text);
}

}  // namespace

std::string SafetyCopies::LinesBeside(const std::string& copy) {
  return copy.substr(0, copy.size() - kEnding.size()) + ".lines";
}

SafetyCopies::Kept SafetyCopies::Keep(const Held& held) {
  FileResult made = files_.MakeFolder(folder_);
  if (made.Ok()) made = files_.Protect(folder_);
  if (!made.Ok()) return {made, folder_};
  IniClass document(files_);
  SaveConfiguration(held.conf, held.profile, document);
  const std::string octets = ToCodePage(document.OutputINI());
  const std::string name =
      folder_ + "/" + NameOf(held.serialNumber) + "-" + StampOf(clock_.LocalNow());
  Kept kept{.result = {}, .path = name + std::string(kEnding)};
  kept.result = SaveNew(files_, kept.path, octets);
  for (int next = 2; kept.result.stands; ++next) {
    kept.path = name + "-" + std::to_string(next) + std::string(kEnding);
    kept.result = SaveNew(files_, kept.path, octets);
  }
  if (kept.result.Ok() && !held.lines.empty())
    kept.result = SaveNew(files_, LinesBeside(kept.path), LinesText(held.lines));
  return kept;
}

}  // namespace ostrel
