#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace ostrel {

/// The file system of the machine.
class PosixFiles final : public Files {
 public:
  FileResult ReadUpTo(const std::string& path, std::size_t most, std::string& octets) override;
  FileResult ReadEnd(const std::string& path, std::size_t most, std::string& octets) override;
  bool Exists(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  std::string Absolute(const std::string& path) override;
  std::string Resolve(const std::string& path) override;
  FileResult MayReplace(const std::string& path) override;
  /// The name bears the number of this process. A file whose process is gone was left by a kill.
  std::string TemporaryBeside(const std::string& path) override;
  FileResult Create(const std::string& path) override;
  FileResult CopyMode(const std::string& from, const std::string& to) override;
  FileResult Protect(const std::string& path) override;
  FileResult Preserve(const std::string& path) override;
  FileResult Write(const std::string& path, std::string_view octets) override;
  FileResult Sync(const std::string& path) override;
  /// Brings the change of the folder to the disk, too.
  FileResult Rename(const std::string& from, const std::string& to) override;
  FileResult MoveToNew(const std::string& from, const std::string& to) override;
  FileResult Remove(const std::string& path) override;
  FileResult MakeFolder(const std::string& path) override;
  FileResult Append(const std::string& path, std::string_view octets) override;
  /// By a lock of the system on the whole file, which network file systems hand on to their server
  /// and which goes with the process that holds it.
  FileResult WhileLocked(const std::string& path, const std::function<void()>& work) override;
};

}  // namespace ostrel
