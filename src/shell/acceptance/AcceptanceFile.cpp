#include "shell/acceptance/AcceptanceFile.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/Csv.h"

namespace ostrel {
namespace {

using Row = std::vector<std::string>;

constexpr std::string_view kForm = "acceptance";
constexpr std::string_view kVersion = "1";
constexpr std::size_t kHeadCells = 5;
constexpr std::size_t kPointCells = 8;

/// A text as part of a file name: what is no letter, digit or "-" stands as "%" and its code, so
/// that two texts never share a name.
std::string InFileName(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string name;
  for (const char c : text) {
    const auto octet = static_cast<unsigned char>(c);
    const bool isPlain =
        (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-';
    name +=
        isPlain ? std::string(1, c) : std::string{'%', kDigits[octet >> 4U], kDigits[octet & 15U]};
  }
  return name;
}

std::string TimeCell(const AcceptancePoint& point) {
  return point.time ? DateTimeText(*point.time) : std::string();
}

std::optional<Verdict> VerdictOf(std::string_view word) {
  for (const Verdict verdict : {Verdict::Open, Verdict::Passed, Verdict::Failed})
    if (VerdictWord(verdict) == word) return verdict;
  return {};
}

std::optional<AcceptancePoint> PointOf(const Row& row) {
  if (row.size() != kPointCells) return {};
  AcceptancePoint point{.node = row[0], .kind = row[1], .name = row[3]};
  const char* end = row[2].data() + row[2].size();
  const auto number = std::from_chars(row[2].data(), end, point.number);
  const auto verdict = VerdictOf(row[4]);
  point.time = ReadDateTime(row[7]);
  if (number.ptr != end || !verdict || row[7].empty() == point.time.has_value()) return {};
  point.verdict = *verdict;
  point.note = row[5];
  point.value = row[6];
  return point;
}

}  // namespace

std::string AcceptanceText(const Acceptance& acceptance) {
  std::string text = CsvRow(Row{std::string(kForm), std::string(kVersion), acceptance.serialNumber,
                                acceptance.configuration, acceptance.model});
  for (const AcceptancePoint& point : acceptance.points)
    text += CsvRow(Row{point.node, point.kind, std::to_string(point.number), point.name,
                       std::string(VerdictWord(point.verdict)), point.note, point.value,
                       TimeCell(point)});
  return text;
}

std::optional<Acceptance> ReadAcceptance(std::string_view text) {
  const auto rows = ReadCsv(text);
  if (!rows || rows->empty()) return {};
  const Row& head = rows->front();
  if (head.size() != kHeadCells || head[0] != kForm || head[1] != kVersion) return {};
  Acceptance acceptance{.serialNumber = head[2], .configuration = head[3], .model = head[4]};
  for (auto row = rows->begin() + 1; row != rows->end(); ++row) {
    auto point = PointOf(*row);
    if (!point) return {};
    acceptance.points.push_back(std::move(*point));
  }
  return acceptance;
}

std::string AcceptanceTable(const Acceptance& acceptance, const Translation& translate) {
  Row headings;
  for (const auto* word : {"serial number", "configuration", "kind", "number", "name", "verdict",
                           "note", "value", "time"})
    headings.push_back(translate(word));
  std::string text = CsvRow(headings);
  for (const AcceptancePoint& point : acceptance.points)
    text += CsvRow(Row{SheetText(acceptance.serialNumber), SheetText(acceptance.configuration),
                       translate(point.kind), std::to_string(point.number), SheetText(point.name),
                       translate(VerdictWord(point.verdict)), SheetText(point.note), point.value,
                       TimeCell(point)});
  return text;
}

std::string AcceptanceFiles::PathOf(const std::string& serialNumber,
                                    const std::string& configuration) const {
  return folder_ + "/" + InFileName(serialNumber) + "@" + InFileName(configuration) + ".csv";
}

AcceptanceFiles::Kept AcceptanceFiles::Read(const std::string& serialNumber,
                                            const std::string& configuration) const {
  const std::string path = PathOf(serialNumber, configuration);
  Kept kept{.result = {}, .acceptance = {serialNumber, configuration}};
  if (!files_.Exists(path)) return kept;
  std::string octets;
  kept.result = files_.ReadInto(path, octets);
  if (!kept.result.Ok()) return kept;
  if (auto read = ReadAcceptance(octets))
    kept.acceptance = std::move(*read);
  else
    kept.result.error = "it is damaged, or made by a newer program";
  return kept;
}

std::optional<Acceptance> AcceptanceFiles::Latest(const std::string& serialNumber) const {
  const auto lastVerdict = [](const Acceptance& acceptance) {
    std::optional<DateTime> last;
    for (const AcceptancePoint& point : acceptance.points) last = std::max(last, point.time);
    return last;
  };
  std::optional<Acceptance> latest;
  for (const std::string& name : files_.List(folder_)) {
    if (!name.starts_with(InFileName(serialNumber) + "@") || !name.ends_with(".csv")) continue;
    auto each = ReadAcceptance(files_.Read(folder_ + "/" + name).value_or(std::string()));
    if (each && (!latest || lastVerdict(*each) > lastVerdict(*latest))) latest = std::move(each);
  }
  return latest;
}

FileResult AcceptanceFiles::Keep(const Acceptance& acceptance) {
  FileResult made = files_.MakeFolder(folder_);
  if (made.Ok()) made = files_.Protect(folder_);
  if (!made.Ok()) return made;
  return SaveWhole(files_, PathOf(acceptance.serialNumber, acceptance.configuration),
                   AcceptanceText(acceptance), Replacing::Unprotected, Readers::OwnerAlone);
}

}  // namespace ostrel
