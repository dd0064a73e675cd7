#include "shell/writing/SafetyCopies.h"

#include <algorithm>
#include <optional>
#include <regex>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "shell/files/ConfigurationFile.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

constexpr std::string_view kEnding = ".ocf";
constexpr std::string_view kLineEnd = "\r\n";

/// A serial number as it can stand in a file name.
std::string NameOf(std::string_view serial) {
  std::string name;
  for (const char c : serial) {
    const bool isPlain =
        (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-';
    name += isPlain ? c : '_';
  }
  return name.empty() ? "unknown" : name;
}

/// "20260302-090507".
std::string StampOf(const DateTime& time) {
  std::string stamp = DateTimeText(time);
  std::erase_if(stamp, [](char c) { return c == '-' || c == ':'; });
  std::ranges::replace(stamp, ' ', '-');
  return stamp;
}

/// The parts of a copy's name; nothing when it is none.
std::optional<SafetyCopies::Copy> ReadName(const std::string& name) {
  static const std::regex kForm(R"((.+)-(\d{4})(\d{2})(\d{2})-(\d{2})(\d{2})(\d{2})(-\d+)?)");
  std::smatch part;
  if (!std::regex_match(name, part, kForm)) return {};
  return SafetyCopies::Copy{.name = name,
                            .serial = part[1],
                            .date = part[2].str() + "-" + part[3].str() + "-" + part[4].str() +
                                    " " + part[5].str() + ":" + part[6].str() + ":" + part[7].str(),
                            .model = {}};
}

/// Lines as a file holds them. None holds a carriage return, which ends a line on the wire, so that
/// they can be told apart whatever else they hold.
std::string LinesText(std::span<const std::string> lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(kLineEnd);
  return ToCodePage(text);
}

}  // namespace

std::vector<SafetyCopies::Copy> SafetyCopies::List() const {
  std::vector<Copy> copies;
  for (const std::string& file : files_.List(folder_)) {
    if (!file.ends_with(kEnding)) continue;
    auto copy = ReadName(file.substr(0, file.size() - kEnding.size()));
    if (!copy) continue;
    IniTool tool(files_);
    copy->model = ModelOfStamp(tool.ProfileRead(kStampSection, kStampKey, PathOf(copy->name)));
    copies.push_back(std::move(*copy));
  }
  std::ranges::stable_sort(copies, {}, &Copy::date);
  return copies;
}

std::string SafetyCopies::PathOf(const std::string& name) const {
  return folder_ + "/" + name + std::string(kEnding);
}

bool SafetyCopies::IsOf(const std::string& name, std::string_view serialNumber) {
  const auto copy = ReadName(name);
  return !copy || copy->serial == NameOf(serialNumber);
}

std::vector<std::string> SafetyCopies::Lines(const std::string& name) const {
  std::vector<std::string> lines;
  const std::string text =
      FromCodePage(files_.Read(LinesBeside(PathOf(name))).value_or(std::string()));
  for (std::size_t at = 0, end = 0; (end = text.find(kLineEnd, at)) != std::string::npos;
       at = end + kLineEnd.size())
    lines.push_back(text.substr(at, end - at));
  return lines;
}

std::string SafetyCopies::LinesBeside(const std::string& copy) {
  return copy.substr(0, copy.size() - kEnding.size()) + ".lines";
}

SafetyCopies::Kept SafetyCopies::Keep(const Held& held) {
  FileResult made = files_.MakeFolder(folder_);
  if (made.Ok()) made = files_.Protect(folder_);
  if (!made.Ok()) return {made, folder_};
  const std::string octets = ContentOf(files_, held.conf, held.profile);
  const std::string name =
      folder_ + "/" + NameOf(held.serialNumber) + "-" + StampOf(clock_.LocalNow());
  Kept kept;
  kept.path = name + std::string(kEnding);
  kept.result = SaveNew(files_, kept.path, octets);
  for (int next = 2; kept.result.stands; ++next) {
    kept.path = name + "-" + std::to_string(next) + std::string(kEnding);
    kept.result = SaveNew(files_, kept.path, octets);
  }
  if (kept.result.Ok() && !held.lines.empty())
    kept.result = SaveNew(files_, LinesBeside(kept.path), LinesText(held.lines));
  return kept;
}

}  // namespace ostrel
