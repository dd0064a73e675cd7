#include "shell/SafetyCopies.h"

#include <algorithm>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

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

}  // namespace

SafetyCopies::Kept SafetyCopies::Keep(const DeviceConf& held, const TargetProfile& profile,
                                      std::string_view serialNumber) {
  FileResult made = files_.MakeFolder(folder_);
  if (made.Ok()) made = files_.Protect(folder_);
  if (!made.Ok()) return {made, folder_};
  IniClass document(files_);
  SaveConfiguration(held, profile, document);
  const std::string octets = ToCodePage(document.OutputINI());
  const std::string name = folder_ + "/" + NameOf(serialNumber) + "-" + StampOf(clock_.LocalNow());
  Kept kept{.result = {}, .path = name + ".ocf"};
  kept.result = SaveNew(files_, kept.path, octets);
  for (int next = 2; kept.result.stands; ++next) {
    kept.path = name + "-" + std::to_string(next) + ".ocf";
    kept.result = SaveNew(files_, kept.path, octets);
  }
  return kept;
}

}  // namespace ostrel
