#include "sim/Faults.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace ostrel::sim {
namespace {

struct FaultRow {
  FaultKind kind;
  std::string_view name;
  bool needsNumber;
  int least;         ///< lowest number that makes sense
  int milliseconds;  ///< -1 where the switch takes none, else what stands for none given
  std::string_view help;
};

constexpr int kNeedsTime = 0;

constexpr FaultRow kFaultRows[] = {
    {FaultKind::DropOctet, "drop-octet", true, 1, -1, "loses each N-th octet that it sends"},
    {FaultKind::FlipBit, "flip-bit", true, 1, -1, "turns over one bit of each N-th octet"},
    {FaultKind::Duplicate, "duplicate", true, 1, -1, "sends each N-th frame twice"},
    {FaultKind::Delay, "delay", true, 1, kNeedsTime, "holds each N-th frame up for ms"},
    {FaultKind::BadChecksum, "bad-checksum", true, 1, -1, "spoils the checksum of each N-th frame"},
    {FaultKind::CarrierDrop, "carrier-drop", true, 1, -1,
     "loses the carrier behind the N-th frame"},
    {FaultKind::Vanish, "vanish", true, 1, -1, "goes away behind the N-th frame"},
    {FaultKind::Silent, "silent", false, 1, -1, "does not answer each N-th request, or any"},
    {FaultKind::SilentAfterRecord, "silent-after-record", true, 0, -1,
     "ends the configuration stream with record N"},
    {FaultKind::SilentAfterStatement, "silent-after-statement", true, 0, -1,
     "hears nothing more of an upload behind statement N"},
    {FaultKind::RefuseStatement, "refuse-statement", true, 0, -1, "refuses statement N"},
    {FaultKind::TornRefusal, "torn-refusal", true, 0, 250,
     "refuses statement N in two parts, ms apart"},
    {FaultKind::WrongClosing, "wrong-closing", false, 1, -1,
     "denies each N-th closing of an upload, or any"},
    {FaultKind::RefuseCommand, "refuse-command", false, 1, -1,
     "denies each N-th total or voice list order, or any"},
    {FaultKind::SilentAfterNumber, "silent-after-number", true, 1, -1,
     "ends the voice list behind its N-th number"},
    {FaultKind::WrongSum, "wrong-sum", false, 1, -1,
     "tells each N-th check sum of the voice list wrong, or any"},
    {FaultKind::Noise, "noise", false, 1, -1,
     "answers each N-th request, or any, as a device of another speed"},
    {FaultKind::Echo, "echo", false, 1, -1,
     "sends each N-th request back, or any, as a loopback plug"},
    {FaultKind::RefuseErase, "refuse-erase", false, 1, -1,
     "refuses each N-th erasing of its flash, or any"},
    {FaultKind::ReadyLate, "ready-late", false, 1, kNeedsTime,
     "is ready for each N-th image, or any, ms later"},
    {FaultKind::NoAliveMark, "no-alive-mark", true, 1, -1,
     "gives no sign of life in block N of an image"},
    {FaultKind::SilentAfterOctet, "silent-after-octet", true, 1, -1,
     "hears nothing more of an image behind its N-th octet"},
    {FaultKind::RefuseLoader, "refuse-loader", false, 1, -1, "refuses each N-th loader, or any"},
};

const FaultRow& RowOf(FaultKind kind) {
  return *std::ranges::find(kFaultRows, kind, &FaultRow::kind);
}

/// Takes digits off the head of a text; nothing when there are none or far too many.
std::optional<int> TakeNumber(std::string_view& text) {
  int value = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
  if (parsed.ec != std::errc{} || text.front() == '-') return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(parsed.ptr - text.data()));
  return value;
}

bool TakeChar(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

std::string ReadNumbers(std::string_view& text, const FaultRow& row, Fault& fault) {
  const auto first = TakeNumber(text);
  if (!first) return "a number belongs behind \"@\"";
  fault.first = fault.last = *first;
  if (TakeChar(text, '-')) {
    const auto last = TakeNumber(text);
    if (!last || *last < *first) return "a range runs from the lower to the higher number";
    fault.last = *last;
  }
  if (fault.first < row.least) return "numbers start at " + std::to_string(row.least);
  return {};
}

std::string ReadDetails(std::string_view text, const FaultRow& row, Fault& fault) {
  fault.first = fault.last = std::max(1, row.least);
  const bool numbered = TakeChar(text, '@');
  if (numbered) {
    if (std::string error = ReadNumbers(text, row, fault); !error.empty()) return error;
  } else if (row.needsNumber) {
    return "\"@\" and a number are missing";
  }
  fault.milliseconds = std::max(0, row.milliseconds);
  if (row.milliseconds >= 0 && TakeChar(text, ':')) {
    const auto milliseconds = TakeNumber(text);
    if (!milliseconds) return "a time in ms belongs behind \":\"";
    fault.milliseconds = *milliseconds;
  } else if (row.milliseconds == kNeedsTime) {
    return "\":\" and a time in ms are missing";
  }
  fault.once = text == "!once";
  if (!fault.once && !text.empty()) return "\"" + std::string(text) + "\" is too much";
  return {};
}

}  // namespace

std::optional<Fault> ParseFault(std::string_view text, std::string& error) {
  error.clear();
  const std::string_view name = text.substr(0, text.find_first_of("@:!"));
  const auto* row = std::ranges::find(kFaultRows, name, &FaultRow::name);
  if (row == std::ranges::end(kFaultRows)) {
    error = "no fault is called \"" + std::string(name) + "\"";
    return std::nullopt;
  }
  Fault fault{.kind = row->kind};
  error = ReadDetails(text.substr(name.size()), *row, fault);
  if (error.empty()) return fault;
  error = std::string(name) + ": " + error;
  return std::nullopt;
}

std::string FaultText(const Fault& fault) {
  const FaultRow& row = RowOf(fault.kind);
  std::string text(row.name);
  text += '@' + std::to_string(fault.first);
  if (fault.last > fault.first) text += '-' + std::to_string(fault.last);
  if (row.milliseconds >= 0) text += ':' + std::to_string(fault.milliseconds);
  if (fault.once) text += "!once";
  return text;
}

std::string FaultHelp() {
  std::string help;
  for (const FaultRow& row : kFaultRows) {
    std::string usage(row.name);
    usage += row.needsNumber ? "@N" : "[@N]";
    if (row.milliseconds >= 0) usage += row.milliseconds == kNeedsTime ? ":ms" : "[:ms]";
    usage.resize(std::max<std::size_t>(usage.size() + 2, 28), ' ');
    help.append(usage).append(row.help).append("\n");
  }
  return help +
         "Records and statements count by the number that they carry, from 0, all else from 1. N\n"
         "may be a range such as 10-90: the seed then picks. A switch acts each time; with !once\n"
         "behind it, a single time.\n";
}

FaultPlan::FaultPlan(const Faults& faults, std::uint64_t seed) : random_(seed) {
  for (const Fault& fault : faults)
    switches_.push_back({.fault = fault, .aim = random_.Between(fault.first, fault.last)});
}

std::optional<Fault> FaultPlan::Strike(Switch& one) {
  one.count = 0;
  one.spent = one.fault.once;
  one.aim = random_.Between(one.fault.first, one.fault.last);
  return one.fault;
}

std::optional<Fault> FaultPlan::Count(FaultKind kind) {
  std::optional<Fault> struck;
  for (Switch& one : switches_) {
    if (one.fault.kind != kind || one.spent) continue;
    if (++one.count >= one.aim) struck = Strike(one);
  }
  return struck;
}

std::optional<Fault> FaultPlan::At(FaultKind kind, int number) {
  std::optional<Fault> struck;
  for (Switch& one : switches_) {
    if (one.fault.kind == kind && !one.spent && one.aim == number) struck = Strike(one);
  }
  return struck;
}

}  // namespace ostrel::sim
