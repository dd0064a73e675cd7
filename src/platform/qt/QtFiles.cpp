#include "platform/qt/QtFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ostrel {
namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;
constexpr mode_t kAnyNewFile = 0666;  // less what the process's mask takes away

/// An open file, closed at the end of its scope.
class Handle {
 public:
  Handle(const std::string& path, int flags)
      : number_(::open(path.c_str(), flags | O_CLOEXEC, kAnyNewFile)) {}
  ~Handle() {
    if (number_ >= 0) ::close(number_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  explicit operator bool() const { return number_ >= 0; }
  int Number() const { return number_; }
  /// Closes early and tells whether that worked: some systems report lost octets only here.
  bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

/// Result of a call that has just failed or, with `ok`, has not.
FileResult Outcome(bool ok) {
  if (ok) return {};
  return {std::generic_category().message(errno)};
}

bool SyncHandle(int handle) {
  while (::fsync(handle) != 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

bool WriteAll(int handle, std::string_view octets) {
  while (!octets.empty()) {
    const ssize_t written = ::write(handle, octets.data(), octets.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) octets.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

std::optional<std::string> QtFiles::Read(const std::string& path) {
  // Non-blocking, so that a pipe by this name cannot hold the program up.
  const Handle file(path, O_RDONLY | O_NONBLOCK);
  struct stat state {};
  if (!file || ::fstat(file.Number(), &state) != 0 || !S_ISREG(state.st_mode)) return std::nullopt;
  std::string content;
  while (true) {
    constexpr std::size_t kBlock = 65'536;
    const std::size_t size = content.size();
    content.resize(size + kBlock);
    const ssize_t got = ::read(file.Number(), content.data() + size, kBlock);
    if (got < 0 && errno != EINTR) return std::nullopt;
    content.resize(size + static_cast<std::size_t>(got > 0 ? got : 0));
    if (got == 0) return content;
  }
}

bool QtFiles::Exists(const std::string& path) {
  std::error_code error;
  return fs::exists(path, error);
}

std::string QtFiles::Resolve(const std::string& path) {
  fs::path target = path;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const fs::path next = fs::read_symlink(target, error);
    if (error) break;
    target = target.parent_path() / next;
  }
  return target.string();
}

FileResult QtFiles::Create(const std::string& path) {
  const Handle file(path, O_WRONLY | O_CREAT | O_EXCL);
  return Outcome(bool(file));
}

FileResult QtFiles::Write(const std::string& path, std::string_view octets) {
  Handle file(path, O_WRONLY | O_TRUNC);
  return Outcome(file && WriteAll(file.Number(), octets) && file.Close());
}

FileResult QtFiles::Sync(const std::string& path) {
  const Handle file(path, O_WRONLY);
  return Outcome(file && SyncHandle(file.Number()));
}

FileResult QtFiles::Rename(const std::string& from, const std::string& to) {
  // A device or a pipe by this name is somebody else's.
  if (std::error_code error; fs::exists(to, error) && !fs::is_regular_file(to, error))
    return {"what stands there is no file to replace"};
  if (std::rename(from.c_str(), to.c_str()) != 0) return Outcome(false);
  const fs::path folder = fs::path(to).parent_path();
  const Handle handle(folder.empty() ? "." : folder.string(), O_RDONLY | O_DIRECTORY);
  // A folder that cannot be read or synced, as on some network drives, is no reason to fail.
  const bool synced = !handle || SyncHandle(handle.Number()) || errno == EINVAL;
  return Outcome(synced);
}

FileResult QtFiles::Remove(const std::string& path) { return Outcome(::unlink(path.c_str()) == 0); }

FileResult QtFiles::MakeFolder(const std::string& path) {
  std::error_code error;
  fs::create_directories(path, error);
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) return {};
  return {error ? error.message() : "is no folder"};
}

}  // namespace ostrel
