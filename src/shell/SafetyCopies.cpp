#include "shell/SafetyCopies.h"

#include <algorithm>

#include "shell/ConfigurationFile.h"

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
  if (const FileResult made = files_.MakeFolder(folder_); !made.Ok()) return {made, folder_};
  const std::string name = folder_ + "/" + NameOf(serialNumber) + "-" + StampOf(clock_.LocalNow());
  std::string path = name + ".ocf";
  for (int next = 2; files_.Exists(path); ++next) path = name + "-" + std::to_string(next) + ".ocf";
  return {WriteConfiguration(files_, path, held, profile), path};
}

}  // namespace ostrel
