#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrel {

/// What a file operation came to: empty text for success, else the system's words on why it failed,
/// without the path.
struct FileResult {
  std::string error;

  bool Ok() const { return error.empty(); }
};

/// The file system as the few steps that reading and safe saving need; injected so that each step
/// can be made to fail. Paths are UTF-8, contents are octets.
class Files {
 public:
  virtual ~Files() = default;
  /// The whole content, or nothing when the file cannot be read.
  virtual std::optional<std::string> Read(const std::string& path) = 0;
  virtual bool Exists(const std::string& path) = 0;
  /// Where a path leads through symbolic links; the path itself where it is no link.
  virtual std::string Resolve(const std::string& path) = 0;
  /// Makes a new empty file, with the permissions that any new file gets; fails if it exists.
  virtual FileResult Create(const std::string& path) = 0;
  /// Replaces the content of an existing file.
  virtual FileResult Write(const std::string& path, std::string_view octets) = 0;
  /// Brings the content to the disk itself.
  virtual FileResult Sync(const std::string& path) = 0;
  /// Moves a file over another in one step.
  virtual FileResult Rename(const std::string& from, const std::string& to) = 0;
  virtual FileResult Remove(const std::string& path) = 0;
  /// Makes a folder and its parents; one that stands is success.
  virtual FileResult MakeFolder(const std::string& path) = 0;
};

/// Saves so that after any failure the old or the new file stands whole: writes a temporary file
/// beside the target, syncs it and renames it over. Follows a symbolic link at the target.
/// After a failure no temporary file is left where removing it works.
FileResult SaveWhole(Files& files, const std::string& path, std::string_view octets);

}  // namespace ostrel
