#include "platform/Files.h"

namespace ostrel {
namespace {

constexpr int kTemporaryNames = 100;

/// Makes the first free one of the names beside `target`.
FileResult CreateBeside(Files& files, const std::string& target, std::string& temporary) {
  for (int i = 0; i < kTemporaryNames; ++i) {
    temporary = target + ".new" + std::to_string(i);
    if (files.Exists(temporary)) continue;
    return files.Create(temporary);
  }
  return {"too many temporary files beside it"};
}

}  // namespace

FileResult SaveWhole(Files& files, const std::string& path, std::string_view octets) {
  const std::string target = files.Resolve(path);
  std::string temporary;
  FileResult result = CreateBeside(files, target, temporary);
  if (!result.Ok()) return result;
  result = files.Write(temporary, octets);
  if (result.Ok()) result = files.Sync(temporary);
  if (result.Ok()) result = files.Rename(temporary, target);
  if (!result.Ok()) files.Remove(temporary);
  return result;
}

}  // namespace ostrel
