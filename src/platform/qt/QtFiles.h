#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace ostrel {

/// The file system of the machine.
class QtFiles final : public Files {
 public:
  /// Nothing also for what is no regular file.
  std::optional<std::string> Read(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::string Resolve(const std::string& path) override;
  FileResult Create(const std::string& path) override;
  FileResult Write(const std::string& path, std::string_view octets) override;
  FileResult Sync(const std::string& path) override;
  /// Brings the change of the folder to the disk, too.
  FileResult Rename(const std::string& from, const std::string& to) override;
  FileResult Remove(const std::string& path) override;
  FileResult MakeFolder(const std::string& path) override;
};

}  // namespace ostrel
