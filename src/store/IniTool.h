#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "store/IniClass.h"
#include "store/ProfileIndex.h"

namespace ostrel {

/// Most characters of a value that a reader gets; the rest is cut.
inline constexpr std::size_t kProfileValueLimit = 254;

/// Reads single keys of a configuration file. The file is read and indexed once and then serves
/// every key asked of the same path until `Forget`.
class IniTool {
 public:
  explicit IniTool(Files& files) : files_(files) {}

  /// The value of a key, in UTF-8; empty when file, section or key is missing. Names compare
  /// ignoring letter case and the first occurrence counts. Blanks around the value go, then one
  /// pair of matching quotes around it, then all beyond `kProfileValueLimit` characters.
  std::string ProfileRead(std::string_view section, std::string_view key, const std::string& path);

  /// Drops the file that is held, so that the next read sees the disk. To be called before a file
  /// is opened anew, and after one is written.
  void Forget() { index_.reset(); }

 private:
  Files& files_;
  std::string path_;
  std::optional<ProfileIndex> index_;
};

/// The value of a key as `IniTool::ProfileRead` gives it.
std::string ProfileValue(ProfileIndex& index, std::string_view section, std::string_view key);

/// The part of a written value, in UTF-8, that the reader looks at: without the blanks around it
/// and the quotes around that. It is cut to `kProfileValueLimit` when it is read.
std::string_view ProfilePart(std::string_view value);

/// Why a text that is written as a value is not read back as it is; empty when it is.
std::string LossInProfile(std::string_view text);

/// Writes a key of an open document. A value ends before its first control character, which would
/// tear the line. Raises `IniError` as `IniClass::WriteKey` does.
void ConfWriteKey(std::string_view value, std::string_view section, std::string_view key,
                  IniClass& ini);

/// Reads a key of the file at `path`, as `ProfileRead` does.
std::string ConfReadKey(IniTool& tool, std::string_view section, std::string_view key,
                        const std::string& path);

}  // namespace ostrel
