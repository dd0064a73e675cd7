#include "platform/Files.h"

#include <functional>

namespace ostrel {
namespace {

/// Makes a temporary file with a content, which is its owner's alone until `finish` moves it to its
/// place. `setMode` gives it its permissions last: they may be such that nobody writes any more.
FileResult ByTemporary(Files& files, const std::string& temporary, std::string_view octets,
                       const std::function<FileResult()>& setMode,
                       const std::function<FileResult()>& finish) {
  FileResult result = files.Create(temporary);
  if (!result.Ok()) return result;
  result = files.Protect(temporary);
  if (result.Ok()) result = files.Write(temporary, octets);
  if (result.Ok()) result = files.Sync(temporary);
  if (result.Ok() && setMode) result = setMode();
  if (result.Ok()) result = finish();
  if (!result.Ok()) files.Remove(temporary);
  return result;
}

}  // namespace

std::optional<std::string> Files::Read(const std::string& path) {
  std::string octets;
  if (!ReadInto(path, octets).Ok()) return std::nullopt;
  return octets;
}

FileResult TooLarge(std::size_t most) {
  return {"it is larger than " + std::to_string(most >> 20U) + " MB"};
}

FileResult SaveWhole(Files& files, const std::string& path, std::string_view octets,
                     Replacing replacing, Readers readers) {
  if (replacing == Replacing::Unprotected)
    if (FileResult may = files.MayReplace(path); !may.Ok()) return may;
  const std::string target = files.Resolve(path);
  const std::string temporary = files.TemporaryBeside(target);
  const bool keepsMode = readers == Readers::AsBefore && files.Exists(target);
  return ByTemporary(
      files, temporary, octets,
      [&] { return keepsMode ? files.CopyMode(target, temporary) : FileResult(); },
      [&] { return files.Rename(temporary, target); });
}

FileResult SaveNew(Files& files, const std::string& path, std::string_view octets) {
  const std::string temporary = files.TemporaryBeside(path);
  return ByTemporary(
      files, temporary, octets, [&] { return files.Preserve(temporary); },
      [&] { return files.MoveToNew(temporary, path); });
}

}  // namespace ostrel
