#pragma once

#include <string>
#include <vector>

#include "platform/Settings.h"

namespace ostrel {

/// The files last opened or saved, newest first, kept per user.
class RecentFiles {
 public:
  explicit RecentFiles(Settings& settings) : settings_(settings) {}

  std::vector<std::string> Paths() const;
  /// Puts a path first. At most eight stay.
  void Add(const std::string& path);
  /// Forgets a path.
  void Remove(const std::string& path);

 private:
  void Keep(const std::vector<std::string>& paths);

  Settings& settings_;
};

}  // namespace ostrel
