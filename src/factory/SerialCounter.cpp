#include "factory/SerialCounter.h"

#include <utility>

#include "base/Numbers.h"
#include "factory/FolderLock.h"
#include "platform/Digits.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

constexpr int kCounters = 10'000;
constexpr std::size_t kCounterDigits = 4;
constexpr std::string_view kSection = "NS";
constexpr std::string_view kKey = "NS";

std::string ContentOf(int counter) { return "[NS]\r\nNS=" + std::to_string(counter) + "\r\n"; }

}  // namespace

FileResult SerialCounter::Raise(int& value) {
  if (FileResult made = platform_.files.MakeFolder(folder_); !made.Ok()) return made;
  FileResult raised;
  const FileResult locked =
      WhileFolderLocked(platform_, folder_, [&] { raised = RaiseLocked(value); });
  return locked.Ok() ? raised : locked;
}

FileResult SerialCounter::RaiseLocked(int& value) {
  Files& files = platform_.files;
  const std::string path = Path();
  // Made as any file is, so that the other stations may write it.
  if (!files.Exists(path))
    if (FileResult made = files.Append(path, ContentOf(0)); !made.Ok()) {
      files.Remove(path);  // an empty one would be taken for one that was cut
      return made;
    }
  std::string octets;
  if (FileResult read = files.ReadInto(path, octets); !read.Ok()) return read;
  // A file that was cut must not start the numbers over.
  ProfileIndex index(std::move(octets));
  const std::string text = ProfileValue(index, kSection, kKey);
  const auto last = IsIntText(text) ? RoundToEven<int>(NumVal(text)) : std::nullopt;
  if (!last || *last < 0) return {"it holds no counter"};
  const int next = (*last % kCounters + 1) % kCounters;
  if (FileResult kept = SaveWhole(files, path, ContentOf(next)); !kept.Ok()) return kept;
  value = next;
  return {};
}

std::string SerialOf(const DateTime& today, int counter) {
  const int date = (today.year % 100 * 100 + today.month) * 100 + today.day;
  return std::to_string(date) + Padded(counter, kCounterDigits);
}

}  // namespace ostrel
