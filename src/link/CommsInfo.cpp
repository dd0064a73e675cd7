#include <array>

#include "link/Comms.h"
#include "link/WireText.h"
#include "platform/Clock.h"

namespace ostrel {
namespace {

constexpr std::string_view kStreamHead = "#BB";
constexpr std::string_view kClockHead = "#A2";
constexpr int kAttempts = 3;
constexpr std::size_t kKeyAt = 7;
constexpr int kCentury = 2000;
constexpr std::int32_t kLastSecondOfDay = 86'399;
constexpr unsigned kAllDays = 0x7F;

/// One value of the logger's information stream.
struct InfoValue {
  std::string_view key;
  void (*read)(LineReader& line, DeviceInfo& info);
};

constexpr std::array<InfoValue, 7> kInfoValues{{
    {"VERSION", [](LineReader& line, DeviceInfo& info) { line.Into(info.FirmwareVersion); }},
    {"FEATURES", [](LineReader& line, DeviceInfo& info) { line.Into(info.Features); }},
    {"SERIAL", [](LineReader& line, DeviceInfo& info) { line.Into(info.SerialNumber); }},
    {"VBAT", [](LineReader& line, DeviceInfo& info) { line.Into(info.BatteryVoltage); }},
    {"RSSI", [](LineReader& line, DeviceInfo& info) { line.Into(info.Rssi); }},
    {"LOG.SIZE", [](LineReader& line, DeviceInfo& info) { info.LogSize = line.Number(); }},
    {"LOG.USE", [](LineReader& line, DeviceInfo& info) { info.LogUsed = line.Number(); }},
}};

}  // namespace

bool Comms::ReadInfo() {
  if (LinkBusy || !PortOpen()) return false;
  const Dialogue dialogue(*this);
  const Limit limit(*this, TimeFor(kAttempts));
  bool taken = false;
  for (int attempt = 0; attempt < kAttempts && !taken && Alive(); ++attempt)
    infoFault_ = ReadInfoOnce(taken);
  return false;
}

LinkFault Comms::ReadInfoOnce(bool& taken) {
  RecordExpected_ = 0;
  if (!Ask("#44")) return WaitFault(RecordExpected_);
  if (RxLine == kStreamHead) return FaultNow(LinkFault::Kind::EmptyStream);
  while (RxLine != kStreamHead) {
    taken = ParseInfoLine();
    if (!taken) return FaultNow(LinkFault::Kind::OutOfSequence, RecordExpected_, RxLine);
    if (!RxSer(ReplyTimeout)) return WaitFault(RecordExpected_);
  }
  return {};
}

bool Comms::ParseInfoLine() {
  if (!TakeRecordNumber(kStreamHead)) return false;
  LineReader line(RxLine);
  const std::string_view key = Characters(FieldOfLine(RxLine, 1), kKeyAt);
  for (const InfoValue& value : kInfoValues) {
    if (value.key != key) continue;
    value.read(line, records_.info);
    if (hooks_.infoChanged) hooks_.infoChanged(value.key);
  }
  return true;
}

void Comms::ReadDeviceRTC() {
  if (LinkBusy) return;
  const Dialogue dialogue(*this);
  const Limit limit(*this, TimeFor(kAttempts));
  for (int attempt = 0; attempt < kAttempts && Alive(); ++attempt) {
    Ask("#5D");
    if (!RxLine.starts_with(kClockHead)) continue;
    ParseClock();
    return;
  }
}

/// Takes the twelve digits of a clock answer. A date or time beyond its range counts on from the
/// nearest real one, so an unset clock is a date long past and not an error.
void Comms::ParseClock() {
  const auto part = [this](std::size_t first) {
    return RoundToEven<int>(NumVal(Characters(RxLine, first, 2))).value_or(0);
  };
  records_.live.DeviceClock =
      CountedOn({part(4) + kCentury, part(6), part(8), part(10), part(12), part(14)});
}

bool Comms::WriteDeviceRTC() {
  const DateTime now = platform_.clock.LocalNow();
  std::string message = "#5C";
  for (const int part : {now.year % 100, now.month, now.day, now.hour, now.minute, now.second})
    message += Padded(part, 2);
  return Confirm(std::move(message), "#A3");
}

/// A setting and the answer by which the logger confirms it.
bool Comms::Confirm(std::string message, std::string_view answer) {
  if (LinkBusy) return false;
  fault_ = {};
  const Dialogue dialogue(*this);
  const Limit limit(*this, TimeFor(1));
  if (!Ask(std::move(message))) return FailWaiting(0);
  return RxLine == answer || Fail(LinkFault::Kind::NotTakenOver, 0, RxLine);
}

bool CheckSiempre(std::int32_t start, std::int32_t stop, std::uint8_t days) {
  return (days & kAllDays) == kAllDays && start == 0 && stop >= kLastSecondOfDay;
}

}  // namespace ostrel
