#include "factory/SerialCounter.h"

#include "base/Values.h"
#include "link/WireText.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

constexpr int kCounters = 10'000;
constexpr std::size_t kCounterDigits = 4;
constexpr std::string_view kSection = "NS";
constexpr std::string_view kKey = "NS";

}  // namespace

FileResult SerialCounter::Raise(int& value) {
  if (FileResult made = files_.MakeFolder(folder_); !made.Ok()) return made;
  FileResult raised;
  const FileResult locked =
      files_.WhileLocked(folder_ + "/TestOstrel.lock", [&] { raised = RaiseLocked(value); });
  return locked.Ok() ? raised : locked;
}

FileResult SerialCounter::RaiseLocked(int& value) {
  const std::string path = folder_ + "/TestOstrel.ini";
  std::string octets;
  int last = 0;
  if (files_.Exists(path)) {
    if (FileResult read = files_.ReadInto(path, octets); !read.Ok()) return read;
    // A file that was cut must not start the numbers over.
    const std::string text = IniTool(files_).ProfileRead(kSection, kKey, path);
    const auto stored = IsIntText(text) ? RoundToEven<int>(NumVal(text)) : std::nullopt;
    if (!octets.empty() && (!stored || *stored < 0)) return {"it holds no counter"};
    last = stored.value_or(0);
  } else if (FileResult made = files_.Create(path); !made.Ok()) {
    return made;  // made as any file is, so that the other stations may write it
  }
  const int next = (last % kCounters + 1) % kCounters;
  const std::string content = "[NS]\r\nNS=" + std::to_string(next) + "\r\n";
  if (FileResult kept = SaveWhole(files_, path, content); !kept.Ok()) return kept;
  value = next;
  return {};
}

std::string SerialOf(const DateTime& today, int counter) {
  const int date = (today.year % 100 * 100 + today.month) * 100 + today.day;
  return std::to_string(date) + Padded(counter, kCounterDigits);
}

}  // namespace ostrel
