#include "platform/posix/PosixFiles.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

namespace ostrel {
namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;
constexpr std::string_view kUnfinished = "~ostrel-";  // between a file's name and its program's
/// Octets of a file's name that a temporary one keeps, so that its end finds room.
constexpr std::size_t kMostKept = 160;
constexpr mode_t kPermissions = 0777;
constexpr mode_t kWritable = 0222;
constexpr mode_t kOwnFile = 0600;
constexpr mode_t kOwnFolder = 0700;
constexpr mode_t kPreserved = 0400;
constexpr mode_t kAnyNewFile = 0666;  // less what the process's mask takes away

/// An open file, closed at the end of its scope.
class Handle {
 public:
  /// A terminal named by mistake does not become the program's own.
  Handle(const std::string& path, int flags, mode_t modeOfNew = kAnyNewFile)
      : number_(::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, modeOfNew)) {}
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

/// Reads to the end, or beyond the most that is read of a file.
bool ReadAll(int handle, std::size_t most, std::string& octets) {
  while (octets.size() <= most) {
    constexpr std::size_t kBlock = 65'536;
    const std::size_t size = octets.size();
    octets.resize(size + kBlock);
    const ssize_t got = ::read(handle, octets.data() + size, kBlock);
    octets.resize(size + static_cast<std::size_t>(got > 0 ? got : 0));
    if (got < 0 && errno != EINTR) return false;
    if (got == 0) break;
  }
  return true;
}

/// Opens a file to be read; not blocking, so that a pipe by this name cannot hold the program up.
Handle ToRead(const std::string& path) { return Handle(path, O_RDONLY | O_NONBLOCK); }

/// Looks at a file that was opened, which must be a regular one.
FileResult LookAt(const Handle& file, struct stat& state) {
  if (!file || ::fstat(file.Number(), &state) != 0) return Outcome(false);
  if (!S_ISREG(state.st_mode)) return {"it is no regular file"};
  return {};
}

/// Brings a change of the folder of a file to the disk. A folder that cannot be read or synced, as
/// on some network drives, is no reason to fail.
FileResult SyncFolderOf(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  const Handle handle(folder.empty() ? "." : folder.string(), O_RDONLY | O_DIRECTORY);
  return Outcome(!handle || SyncHandle(handle.Number()) || errno == EINVAL);
}

/// Gets the lock of a file. A process that dies gives it back, too.
bool LockWhole(int handle) {
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  return ::fcntl(handle, F_OFD_SETLK, &whole) == 0;
}

/// What tells the processes of this machine from those of others that share a folder.
std::string MachinePart() {
  std::array<char, 65> host{};
  if (::gethostname(host.data(), host.size() - 1) != 0) return "-";
  return std::string(host.data()) + "-";
}

/// How the temporary files of a file begin that programs of this machine make.
std::string TemporaryStart(const fs::path& path) {
  return path.filename().string().substr(0, kMostKept) + std::string(kUnfinished) + MachinePart();
}

/// Whether a temporary file of this ending was left by a process that is gone, or by a former one
/// of this process's number.
bool IsLeftOver(std::string_view ending) {
  pid_t process = 0;
  const auto [end, error] = std::from_chars(ending.data(), ending.data() + ending.size(), process);
  if (error != std::errc() || end != ending.data() + ending.size() || process <= 0) return false;
  return process == ::getpid() || (::kill(process, 0) != 0 && errno == ESRCH);
}

}  // namespace

FileResult PosixFiles::ReadUpTo(const std::string& path, std::size_t most, std::string& octets) {
  octets.clear();
  const Handle file = ToRead(path);
  struct stat state {};
  if (FileResult looked = LookAt(file, state); !looked.Ok()) return looked;
  const bool isLarge = state.st_size > static_cast<off_t>(most);
  if (!isLarge && !ReadAll(file.Number(), most, octets)) {
    const FileResult failed = Outcome(false);
    octets.clear();
    return failed;
  }
  if (!isLarge && octets.size() <= most) return {};
  octets.clear();
  return TooLarge(most);
}

FileResult PosixFiles::ReadEnd(const std::string& path, std::size_t most, std::string& octets) {
  octets.clear();
  const Handle file = ToRead(path);
  struct stat state {};
  if (FileResult looked = LookAt(file, state); !looked.Ok()) return looked;
  const off_t start = std::max<off_t>(state.st_size - static_cast<off_t>(most), 0);
  if (::lseek(file.Number(), start, SEEK_SET) >= 0 && ReadAll(file.Number(), most, octets))
    return {};
  const FileResult failed = Outcome(false);
  octets.clear();
  return failed;
}

bool PosixFiles::Exists(const std::string& path) {
  std::error_code error;
  return fs::exists(path, error);
}

std::vector<std::string> PosixFiles::List(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_regular_file(ignored)) names.push_back(entry->path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

std::string PosixFiles::Absolute(const std::string& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  return error ? path : absolute.lexically_normal().string();
}

std::string PosixFiles::Resolve(const std::string& path) {
  fs::path target = path;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const fs::path next = fs::read_symlink(target, error);
    if (error) break;
    target = target.parent_path() / next;
  }
  return target.string();
}

FileResult PosixFiles::MayReplace(const std::string& path) {
  struct stat state {};
  if (::stat(path.c_str(), &state) != 0) {
    if (errno == ELOOP) return {"it is a link that leads in a circle"};
    return {};  // nothing stands there, or what is wrong shows at the writing
  }
  // The bits count also for who may write everywhere.
  const bool isReadOnly =
      S_ISREG(state.st_mode) &&
      ((state.st_mode & kWritable) == 0 || (::access(path.c_str(), W_OK) != 0 && errno == EACCES));
  return isReadOnly ? FileResult{"it is read-only"} : FileResult{};
}

std::string PosixFiles::TemporaryBeside(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  const std::string start = TemporaryStart(path);
  std::error_code error;
  fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with(start) && IsLeftOver(std::string_view(name).substr(start.size())))
      Remove(entry->path().string());
  }
  return (folder / (start + std::to_string(::getpid()))).string();
}

FileResult PosixFiles::Create(const std::string& path) {
  const Handle file(path, O_WRONLY | O_CREAT | O_EXCL, kOwnFile);
  return Outcome(bool(file));
}

FileResult PosixFiles::CopyMode(const std::string& from, const std::string& to) {
  struct stat state {};
  const Handle file(to, O_WRONLY);
  if (!file || ::stat(from.c_str(), &state) != 0) return Outcome(false);
  // Only who may do everything can give a file away; for others it stays their own.
  [[maybe_unused]] const int given = ::fchown(file.Number(), state.st_uid, state.st_gid);
  return Outcome(::fchmod(file.Number(), state.st_mode & kPermissions) == 0 &&
                 SyncHandle(file.Number()));
}

FileResult PosixFiles::Protect(const std::string& path) {
  std::error_code error;
  const mode_t mode = fs::is_directory(path, error) ? kOwnFolder : kOwnFile;
  return Outcome(::chmod(path.c_str(), mode) == 0);
}

FileResult PosixFiles::Preserve(const std::string& path) {
  return Outcome(::chmod(path.c_str(), kPreserved) == 0);
}

FileResult PosixFiles::Write(const std::string& path, std::string_view octets) {
  Handle file(path, O_WRONLY | O_TRUNC);
  return Outcome(file && WriteAll(file.Number(), octets) && file.Close());
}

FileResult PosixFiles::Sync(const std::string& path) {
  const Handle file(path, O_WRONLY);
  return Outcome(file && SyncHandle(file.Number()));
}

FileResult PosixFiles::Rename(const std::string& from, const std::string& to) {
  // A device or a pipe by this name is somebody else's.
  if (std::error_code error; fs::exists(to, error) && !fs::is_regular_file(to, error))
    return {"what stands there is no file to replace"};
  if (std::rename(from.c_str(), to.c_str()) != 0) return Outcome(false);
  return SyncFolderOf(to);
}

FileResult PosixFiles::MoveToNew(const std::string& from, const std::string& to) {
  // A second name and then the first one taken away, where the system has no such move.
  const bool moved =
      ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 ||
      (errno != EEXIST && ::link(from.c_str(), to.c_str()) == 0 && ::unlink(from.c_str()) == 0);
  if (moved) return SyncFolderOf(to);
  const bool stands = errno == EEXIST;
  return {Outcome(false).error, stands};
}

FileResult PosixFiles::Remove(const std::string& path) {
  return Outcome(::unlink(path.c_str()) == 0);
}

FileResult PosixFiles::MakeFolder(const std::string& path) {
  std::error_code error;
  fs::create_directories(path, error);
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) return {};
  return {error ? error.message() : "is no folder"};
}

FileResult PosixFiles::Append(const std::string& path, std::string_view octets) {
  Handle file(path, O_WRONLY | O_APPEND | O_CREAT);
  struct stat before {};
  if (!file || ::fstat(file.Number(), &before) != 0) return Outcome(false);
  // The name of a new file is to last as long as what stands in it.
  if (before.st_size == 0)
    if (FileResult named = SyncFolderOf(path); !named.Ok()) return named;
  if (WriteAll(file.Number(), octets) && SyncHandle(file.Number())) return Outcome(file.Close());
  const FileResult failed = Outcome(false);
  [[maybe_unused]] const int taken = ::ftruncate(file.Number(), before.st_size);
  return failed;
}

FileResult PosixFiles::WhileLocked(const std::string& path, const std::function<void()>& work) {
  const Handle file(path, O_RDWR | O_CREAT);
  if (!file) return Outcome(false);
  if (!LockWhole(file.Number()))
    return errno == EAGAIN || errno == EACCES ? FileResult{std::string(kHeldElsewhere)}
                                              : Outcome(false);
  work();
  return {};
}

}  // namespace ostrel
