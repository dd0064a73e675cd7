#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Files.h"
#include "platform/Ledger.h"
#include "shell/ledger/History.h"

namespace ostrel::cli {

/// What stands for standard input or output where a command takes a file.
inline constexpr std::string_view kStandard = "-";

/// The file system of a machine, in which "-" is what comes in by standard input, and "history:12"
/// the configuration of an entry of the ledger. The input is read once, when it is first asked for,
/// and then serves every reader.
class StandardFiles final : public Files {
 public:
  /// Brings all that comes in into a text.
  using ReadInput = std::function<FileResult(std::string& octets)>;

  StandardFiles(Files& files, Ledger* books, ReadInput readInput)
      : files_(files), books_(books), readInput_(std::move(readInput)) {}

  /// What comes in by standard input has the limit of most files.
  FileResult ReadUpTo(const std::string& path, std::size_t most, std::string& octets) override;
  FileResult ReadEnd(const std::string& path, std::size_t most, std::string& octets) override;
  bool Exists(const std::string& path) override { return IsOwn(path) || files_.Exists(path); }
  std::vector<std::string> List(const std::string& folder) override { return files_.List(folder); }
  std::string Absolute(const std::string& path) override {
    return IsOwn(path) ? path : files_.Absolute(path);
  }
  std::string Resolve(const std::string& path) override { return files_.Resolve(path); }
  FileResult MayReplace(const std::string& path) override { return files_.MayReplace(path); }
  std::string TemporaryBeside(const std::string& path) override {
    return files_.TemporaryBeside(path);
  }
  FileResult Create(const std::string& path) override { return files_.Create(path); }
  FileResult CopyMode(const std::string& from, const std::string& to) override {
    return files_.CopyMode(from, to);
  }
  FileResult Protect(const std::string& path) override { return files_.Protect(path); }
  FileResult Preserve(const std::string& path) override { return files_.Preserve(path); }
  FileResult Write(const std::string& path, std::string_view octets) override {
    return files_.Write(path, octets);
  }
  FileResult Sync(const std::string& path) override { return files_.Sync(path); }
  FileResult Rename(const std::string& from, const std::string& to) override {
    return files_.Rename(from, to);
  }
  FileResult MoveToNew(const std::string& from, const std::string& to) override {
    return files_.MoveToNew(from, to);
  }
  FileResult Remove(const std::string& path) override { return files_.Remove(path); }
  FileResult MakeFolder(const std::string& path) override { return files_.MakeFolder(path); }
  FileResult Append(const std::string& path, std::string_view octets) override {
    return files_.Append(path, octets);
  }
  FileResult WhileLocked(const std::string& path, const std::function<void()>& work) override {
    return files_.WhileLocked(path, work);
  }

 private:
  static bool IsOwn(const std::string& path) {
    return path == kStandard || HistoryEntry(path) != 0;
  }
  FileResult ReadHistory(std::int64_t id, std::string& octets);

  Files& files_;
  Ledger* books_;
  ReadInput readInput_;
  std::optional<FileResult> read_;  ///< what reading the input came to
  std::string input_;
};

}  // namespace ostrel::cli
