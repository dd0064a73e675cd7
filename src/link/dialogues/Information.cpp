#include "link/dialogues/Information.h"

#include <array>

#include "link/LineReader.h"
#include "link/LinkTimes.h"
#include "link/WireText.h"
#include "link/dialogues/NumberedStream.h"
#include "platform/Digits.h"

namespace ostrel {
namespace {

constexpr int kCentury = 2000;

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

DateTime ClockOf(std::string_view answer) {
  const auto part = [answer](std::size_t first) {
    return RoundToEven<int>(NumVal(Characters(answer, first, 2))).value_or(0);
  };
  return CountedOn({part(4) + kCentury, part(6), part(8), part(10), part(12), part(14)});
}

}  // namespace

LinkFault ReadInformation(Line& line, DeviceInfo& info,
                          const std::function<void(std::string_view key)>& changed) {
  NumberedStream stream(line, "#44", "#BB");
  const auto take = [&](const StreamRecord& record) -> LinkFault {
    LineReader reader(record.line);
    for (const InfoValue& value : kInfoValues) {
      if (value.key != record.key) continue;
      value.read(reader, info);
      if (changed) changed(value.key);
    }
    return {};
  };
  LinkFault fault = line.WaitFault();
  for (int attempt = 0; attempt < kLinkAttempts && line.GoesOn(); ++attempt) {
    fault = stream.Read(take);
    // A stream that just stops behind a good line is not asked for again.
    if (stream.Expected() > 0 && fault.kind != LinkFault::Kind::OutOfSequence) break;
  }
  return fault;
}

LinkFault ReadClock(Line& line, DateTime& clock) {
  LinkFault fault = line.WaitFault();
  for (int attempt = 0; attempt < kLinkAttempts && line.GoesOn(); ++attempt) {
    fault = line.AskFor("#5D", "#A2");
    if (!fault.Ok()) continue;
    clock = ClockOf(line.RxLine);
    break;
  }
  return fault;
}

std::string ClockMessage(const DateTime& now) {
  std::string message = "#5C";
  for (const int part : {now.year % 100, now.month, now.day, now.hour, now.minute, now.second})
    message += Padded(part, 2);
  return message;
}

}  // namespace ostrel
