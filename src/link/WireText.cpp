#include "link/WireText.h"

#include <algorithm>
#include <array>

#include "base/Values.h"

namespace ostrel {
namespace {

constexpr std::string_view kMask = "****";
/// Statements that carry a password, up to where it starts.
constexpr std::array<std::string_view, 2> kPasswordStatements{"APNPASS=", "FTPPASS="};
/// The line of the configuration stream that carries both.
constexpr std::string_view kPasswordLine = "GPRS,";
constexpr std::string_view kStreamHead = "BD";
constexpr std::array<std::size_t, 2> kPasswordFields{3, 16};
/// How many fields that line has, with the key: of a logger without FTP, and of one with it.
constexpr std::array<std::size_t, 2> kFieldCounts{12, 18};

/// Where the line with the passwords starts in a text; npos where it does not.
std::size_t FindPasswordLine(std::string_view text) {
  const std::size_t keyAt = kStreamHead.size() + kRecordDigits;
  for (std::size_t at = text.find(kStreamHead); at != std::string_view::npos;
       at = text.find(kStreamHead, at + 1))
    if (text.substr(std::min(at + keyAt, text.size())).starts_with(kPasswordLine)) return at;
  return std::string_view::npos;
}

/// Whether the fields of a line can be told from one another.
bool HasAllFields(std::string_view line) {
  const auto fields = static_cast<std::size_t>(std::ranges::count(line, ',')) + 1;
  return std::ranges::count(kFieldCounts, fields) > 0;
}

/// Masks the two fields of a line; all behind the key where they cannot be told from the others.
std::string MaskFields(std::string_view line) {
  if (!HasAllFields(line))
    return std::string(line.substr(0, line.find(',') + 1)) + std::string(kMask);
  const auto fields = static_cast<std::size_t>(std::ranges::count(line, ',')) + 1;
  std::string masked;
  for (std::size_t field = 1; field <= fields; ++field) {
    const std::string_view text = FieldOf(line, static_cast<int>(field));
    const bool isPassword = std::ranges::count(kPasswordFields, field) > 0 && !text.empty();
    if (field > 1) masked += ',';
    masked += isPassword ? kMask : text;
  }
  return masked;
}

/// Where the passwords of a text start: in the line of the stream, or behind a statement. What
/// comes first counts: a field of the line may hold the words of a statement, and the other way
/// round.
struct PasswordPlace {
  std::size_t line = std::string_view::npos;
  std::size_t statement = std::string_view::npos;
};

PasswordPlace PlaceOfPasswords(std::string_view text) {
  PasswordPlace place{.line = FindPasswordLine(text)};
  std::size_t first = place.line;
  for (const std::string_view statement : kPasswordStatements)
    if (const std::size_t at = text.find(statement); at < first) {
      first = at;
      place = {.statement = at + statement.size()};
    }
  return place;
}

}  // namespace

std::string HexOctet(std::uint8_t octet) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  return {kHex[octet >> 4U], kHex[octet & 0xFU]};
}

std::string_view Characters(std::string_view line, std::size_t first, std::size_t count) {
  return first > line.size() ? std::string_view() : line.substr(first - 1, count);
}

std::string MaskCode(std::string_view text) {
  constexpr std::string_view kCommand = "#11";
  constexpr std::string_view kFramed = ";11";
  constexpr std::size_t kFrameHead = 3;  // "#" and two digits
  if (text.starts_with(kCommand)) return std::string(kCommand).append(kMask);
  const bool framed = text.starts_with('#') && text.substr(0, kFrameHead + 3).ends_with(kFramed);
  return framed ? std::string(text.substr(0, kFrameHead + kFramed.size())).append(kMask)
                : std::string(text);
}

std::vector<std::string_view> PasswordsIn(std::string_view text) {
  const PasswordPlace place = PlaceOfPasswords(text);
  std::vector<std::string_view> found;
  if (place.statement <= text.size()) found.push_back(text.substr(place.statement));
  if (place.line < text.size() && HasAllFields(text.substr(place.line)))
    for (const std::size_t field : kPasswordFields)
      found.push_back(FieldOf(text.substr(place.line), static_cast<int>(field)));
  std::erase(found, std::string_view());
  return found;
}

std::string MaskPasswords(std::string_view text) {
  const PasswordPlace place = PlaceOfPasswords(text);
  if (place.statement <= text.size())
    return std::string(text.substr(0, place.statement)).append(kMask);
  if (place.line == std::string_view::npos) return std::string(text);
  return std::string(text.substr(0, place.line)) + MaskFields(text.substr(place.line));
}

}  // namespace ostrel
