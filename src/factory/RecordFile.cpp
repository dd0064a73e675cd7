#include "factory/RecordFile.h"

#include <algorithm>

#include "base/Numbers.h"

namespace ostrel {
namespace {

/// Fields of one row, separated by commas; quoted where they hold what would tear the row.
class CsvRow {
 public:
  CsvRow& Add(std::string_view field) {
    if (!row_.empty()) row_ += ',';
    const bool isPlain = field.find_first_of(",\"\r\n") == std::string_view::npos;
    // A row that begins with an empty field has its comma, too.
    if (isPlain && !(row_.empty() && field.empty())) {
      row_ += field;
      return *this;
    }
    row_ += '"';
    for (const char c : field) row_.append(c == '"' ? 2U : 1U, c);
    row_ += '"';
    return *this;
  }
  std::string Line() const { return row_ + "\r\n"; }

 private:
  std::string row_;
};

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : "; ") + text;
  return joined;
}

std::string Headings(const std::vector<std::string>& values) {
  CsvRow row;
  for (const std::string_view word : {"time", "test", "model", "operator", "station", "serial",
                                      "given serial", "verdict", "checked", "seconds", "failures"})
    row.Add(word);
  for (const std::string& name : values) row.Add(name).Add(name + " band");
  return row.Line();
}

/// What stands ahead of a new row: the headings of a new table, an end for a row that was torn.
std::string StartOf(Files& files, const std::string& path, const std::vector<std::string>& values) {
  std::string octets;
  files.ReadInto(path, octets);
  if (!octets.empty()) return octets.ends_with('\n') ? "" : "\r\n";
  return files.Exists(path) ? "" : Headings(values);
}

std::string RowOf(const TestRecord& record, const std::vector<std::string>& values) {
  CsvRow row;
  row.Add(DateTimeText(record.startedAt)).Add(record.test).Add(record.model);
  row.Add(record.operatorName).Add(record.station).Add(record.serial).Add(record.givenSerial);
  row.Add(VerdictWord(record.verdict)).Add(record.checked ? "yes" : "no");
  const std::chrono::duration<double> seconds = record.duration;
  row.Add(DecText(std::round(seconds.count() * 1000) / 1000)).Add(Joined(record.failures));
  for (const std::string& name : values) {
    const auto measured = std::ranges::find(record.values, name, &Measurement::name);
    const bool stands = measured != record.values.end();
    row.Add(stands ? measured->Text() : "").Add(stands ? measured->band.Text() : "");
  }
  return row.Line();
}

}  // namespace

std::string RecordPath(const std::string& folder, const std::string& test) {
  return folder + "/test-" + test + ".csv";
}

FileResult KeepRecord(Files& files, const std::string& folder, const TestRecord& record,
                      const std::vector<std::string>& values) {
  if (FileResult made = files.MakeFolder(folder); !made.Ok()) return made;
  const std::string path = RecordPath(folder, record.test);
  FileResult kept;
  const FileResult locked = files.WhileLocked(folder + "/TestOstrel.lock", [&] {
    kept = files.Append(path, StartOf(files, path, values) + RowOf(record, values));
  });
  return locked.Ok() ? kept : locked;
}

}  // namespace ostrel
