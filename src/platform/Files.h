#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// What a file operation came to: empty text for success, else the system's words on why it failed,
/// without the path.
struct FileResult {
  std::string error;
  bool stands = false;  ///< failed because something stands at a name that was to be new

  bool Ok() const { return error.empty(); }
};

/// Most octets of a file that is read. No file of this program but a firmware comes near it: a
/// larger one was named by mistake.
inline constexpr std::size_t kMostFileOctets = 16U * 1024U * 1024U;

/// The file system as the few steps that reading and safe saving need; injected so that each step
/// can be made to fail. Paths are UTF-8, contents are octets.
class Files {
 public:
  virtual ~Files() = default;
  /// Brings the whole content into a text, which is empty after a failure. What is no regular file
  /// is not read, nor what is larger than `most`.
  virtual FileResult ReadUpTo(const std::string& path, std::size_t most, std::string& octets) = 0;
  /// The same with the limit of most files.
  FileResult ReadInto(const std::string& path, std::string& octets) {
    return ReadUpTo(path, kMostFileOctets, octets);
  }
  /// Brings the last octets of a file of any size into a text, all of a file that has no more than
  /// `most`.
  virtual FileResult ReadEnd(const std::string& path, std::size_t most, std::string& octets) = 0;
  /// The whole content, or nothing when the file cannot be read.
  std::optional<std::string> Read(const std::string& path);
  virtual bool Exists(const std::string& path) = 0;
  /// Names of the regular files of a folder, in the order of their octets; none where it cannot be
  /// read.
  virtual std::vector<std::string> List(const std::string& folder) = 0;
  /// A path that names the same file from any folder that a program may run in.
  virtual std::string Absolute(const std::string& path) = 0;
  /// Where a path leads through symbolic links; the path itself where it is no link.
  virtual std::string Resolve(const std::string& path) = 0;
  /// Why a file should not be replaced without a question: it is read-only, or a link that leads in
  /// a circle. Success where nothing stands.
  virtual FileResult MayReplace(const std::string& path) = 0;
  /// A name beside a file for its next content, which no other running program uses. What killed
  /// programs have left under such names is removed.
  virtual std::string TemporaryBeside(const std::string& path) = 0;
  /// Makes a new empty file, its owner's alone where the system has such permissions; fails if it
  /// exists.
  virtual FileResult Create(const std::string& path) = 0;
  /// Gives a file the permissions, and as far as possible the owner, of another one, and brings
  /// them to the disk.
  virtual FileResult CopyMode(const std::string& from, const std::string& to) = 0;
  /// Makes a file or a folder accessible to its owner alone.
  virtual FileResult Protect(const std::string& path) = 0;
  /// Makes a file one that its owner alone reads, and that nobody writes without a purpose.
  virtual FileResult Preserve(const std::string& path) = 0;
  /// Replaces the content of an existing file.
  virtual FileResult Write(const std::string& path, std::string_view octets) = 0;
  /// Brings the content to the disk itself.
  virtual FileResult Sync(const std::string& path) = 0;
  /// Moves a file over another in one step.
  virtual FileResult Rename(const std::string& from, const std::string& to) = 0;
  /// Moves a file to a name at which nothing stands, in one step.
  virtual FileResult MoveToNew(const std::string& from, const std::string& to) = 0;
  virtual FileResult Remove(const std::string& path) = 0;
  /// Makes a folder and its parents; one that stands is success.
  virtual FileResult MakeFolder(const std::string& path) = 0;
  /// Adds octets to the end of a file, which is made where there is none, and brings them to the
  /// disk: all of them, or none where that can be taken back.
  virtual FileResult Append(const std::string& path, std::string_view octets) = 0;
  /// Runs `work` while every other program that asks for the same lock waits, on this machine or on
  /// another one that shares the folder. The file at `path` stands for the lock; it is made where
  /// there is none and stays. Where another one has the lock, nothing is run, and the error is
  /// `kHeldElsewhere`.
  virtual FileResult WhileLocked(const std::string& path, const std::function<void()>& work) = 0;
};

/// The error of a lock that another program has.
inline constexpr std::string_view kHeldElsewhere = "another program holds it";

/// Opens a text file to which is added while it is open. Null when it cannot be, which `why` tells.
using OpenLogFile =
    std::function<std::unique_ptr<std::ostream>(const std::string& path, std::string& why)>;

/// What reading comes to for a file beyond the most that is read of it.
FileResult TooLarge(std::size_t most);

/// Whether a file may be replaced that `Files::MayReplace` speaks against.
enum class Replacing { Unprotected, Any };

/// Who may read a file that is replaced: who could before, or from now on its owner alone.
enum class Readers { AsBefore, OwnerAlone };

/// Saves so that after any failure the old or the new file stands whole: writes a temporary file
/// beside the target, syncs it and renames it over. Follows a symbolic link at the target, and
/// keeps the permissions of what it replaces, unless told otherwise; a new file is its owner's
/// alone. After a failure no temporary file is left where removing it works.
FileResult SaveWhole(Files& files, const std::string& path, std::string_view octets,
                     Replacing replacing = Replacing::Unprotected,
                     Readers readers = Readers::AsBefore);

/// Saves likewise at a name at which nothing may stand, to be preserved as it is.
FileResult SaveNew(Files& files, const std::string& path, std::string_view octets);

}  // namespace ostrel
