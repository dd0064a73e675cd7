#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Files.h"

namespace ostrel {

/// A file system in memory. Its maps are open to tests; it keeps a log of what changed it, and any
/// change can be made to fail. Folders are not asked for: a file may stand anywhere.
class VirtualFiles final : public Files {
 public:
  enum class Change {
    Create,
    Mode,
    Write,
    Sync,
    Rename,
    MoveToNew,
    Remove,
    MakeFolder,
    Append,
    Lock
  };

  std::map<std::string, std::string> contents;  ///< octets by path
  std::map<std::string, std::string> links;     ///< symbolic links: where each path leads
  std::set<std::string> folders;
  std::map<std::string, int> modes;  ///< permissions by path, where they are not 0644
  std::vector<std::string> log;      ///< one line a change tried: "rename /a.new0 /a"

  /// Makes the n-th change from now fail, counted from 1. A failing write leaves half the octets.
  void FailOperation(std::size_t n);
  /// Makes the n-th change of a kind from now fail, counted from 1.
  void FailOperation(Change kind, std::size_t n);
  /// Makes that change and all after it fail, as when the process is killed in its midst.
  void FailFrom(std::size_t n);
  /// Nothing fails any more.
  void Heal();

  FileResult ReadUpTo(const std::string& path, std::size_t most, std::string& octets) override;
  FileResult ReadEnd(const std::string& path, std::size_t most, std::string& octets) override;
  bool Exists(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  /// There is no present folder here: the path itself.
  std::string Absolute(const std::string& path) override { return path; }
  std::string Resolve(const std::string& path) override;
  FileResult MayReplace(const std::string& path) override;
  /// One process saves here: always the same name.
  std::string TemporaryBeside(const std::string& path) override;
  FileResult Create(const std::string& path) override;
  FileResult CopyMode(const std::string& from, const std::string& to) override;
  FileResult Protect(const std::string& path) override;
  FileResult Preserve(const std::string& path) override;
  FileResult Write(const std::string& path, std::string_view octets) override;
  FileResult Sync(const std::string& path) override;
  FileResult Rename(const std::string& from, const std::string& to) override;
  FileResult MoveToNew(const std::string& from, const std::string& to) override;
  FileResult Remove(const std::string& path) override;
  FileResult MakeFolder(const std::string& path) override;
  FileResult Append(const std::string& path, std::string_view octets) override;
  FileResult WhileLocked(const std::string& path, const std::function<void()>& work) override;

 private:
  void Move(const std::string& from, const std::string& to);
  bool Fails(Change kind, const std::string& what);

  std::size_t changes_ = 0;
  std::map<Change, std::size_t> changesOfKind_;
  std::set<std::size_t> failing_;
  std::set<std::pair<Change, std::size_t>> failingOfKind_;
  std::optional<std::size_t> failFrom_;
};

}  // namespace ostrel
