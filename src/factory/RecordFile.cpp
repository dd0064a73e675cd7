#include "factory/RecordFile.h"

#include <algorithm>

#include "base/Csv.h"
#include "base/Numbers.h"
#include "base/Printable.h"
#include "factory/FolderLock.h"

namespace ostrel {
namespace {

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : "; ") + text;
  return joined;
}

std::string Headings(const std::vector<std::string>& values) {
  std::vector<std::string> row{"time",    "test",    "model",        "operator",
                               "station", "serial",  "given serial", "verdict",
                               "checked", "seconds", "failures"};
  for (const std::string& name : values) row.insert(row.end(), {name, name + " band"});
  return CsvRow(row);
}

/// What stands ahead of a new row: the headings of a table that has none yet, an end for a row that
/// was torn, which may have left a quote open. No cell holds a line end.
std::string StartOf(Files& files, const std::string& path, const std::vector<std::string>& values) {
  constexpr std::size_t kLongestRow = 65'536;
  std::string end;
  const FileResult read = files.ReadEnd(path, kLongestRow, end);
  if (!read.Ok() && files.Exists(path)) return "";
  if (end.empty()) return Headings(values);
  const std::string_view torn = std::string_view(end).substr(end.rfind('\n') + 1);
  if (torn.empty()) return "";
  return std::ranges::count(torn, '"') % 2 != 0 ? "\"\r\n" : "\r\n";
}

/// What somebody typed or a board told, as a cell.
std::string Typed(const std::string& text) { return SheetText(Printable(text)); }

std::string RowOf(const TestRecord& record, const std::vector<std::string>& values) {
  const std::chrono::duration<double> seconds = record.duration;
  std::vector<std::string> row{DateTimeText(record.startedAt),
                               record.test,
                               record.model,
                               Typed(record.operatorName),
                               Typed(record.station),
                               Typed(record.serial),
                               record.givenSerial,
                               std::string(VerdictWord(record.verdict)),
                               record.checked ? "yes" : "no",
                               DecText(std::round(seconds.count() * 1000) / 1000),
                               Typed(Joined(record.failures))};
  for (const std::string& name : values) {
    const auto measured = std::ranges::find(record.values, name, &Measurement::name);
    const bool stands = measured != record.values.end();
    row.push_back(stands ? measured->Text() : "");
    row.push_back(stands ? measured->band.Text() : "");
  }
  return CsvRow(row);
}

}  // namespace

std::string RecordPath(const std::string& folder, const std::string& test) {
  return folder + "/test-" + test + ".csv";
}

FileResult KeepRecord(const Platform& platform, const std::string& folder, const TestRecord& record,
                      const std::vector<std::string>& values) {
  Files& files = platform.files;
  if (FileResult made = files.MakeFolder(folder); !made.Ok()) return made;
  const std::string path = RecordPath(folder, record.test);
  FileResult kept;
  const FileResult locked = WhileFolderLocked(platform, folder, [&] {
    kept = files.Append(path, StartOf(files, path, values) + RowOf(record, values));
  });
  return locked.Ok() ? kept : locked;
}

}  // namespace ostrel
