#include "shell/files/RecentFiles.h"

#include <algorithm>
#include <cstddef>

namespace ostrel {
namespace {

constexpr std::string_view kWindow = "Window";
constexpr std::string_view kKey = "Recent";
constexpr char kSeparator = '\n';
constexpr std::size_t kMost = 8;

}  // namespace

std::vector<std::string> RecentFiles::Paths() const {
  std::vector<std::string> paths;
  std::string rest = settings_.Get(kMaker, kWindow, kKey);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(kSeparator), rest.size());
    if (end > 0) paths.push_back(rest.substr(0, end));
    rest.erase(0, end + 1);
  }
  return paths;
}

void RecentFiles::Add(const std::string& path) {
  std::vector<std::string> paths = Paths();
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  if (paths.size() > kMost) paths.resize(kMost);
  Keep(paths);
}

void RecentFiles::Remove(const std::string& path) {
  std::vector<std::string> paths = Paths();
  std::erase(paths, path);
  Keep(paths);
}

void RecentFiles::Keep(const std::vector<std::string>& paths) {
  std::string text;
  for (const std::string& each : paths) text += each + kSeparator;
  settings_.Set(kMaker, kWindow, kKey, text);
}

}  // namespace ostrel
