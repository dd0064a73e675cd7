#include "sim/wire/AlarmStatement.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::sim {
namespace {

void ReadNotification(StatementCursor& in, Alarm& alarm) {
  if (in.HasToken(",SREST")) alarm.notify |= kNotifyRestored;
  if (in.HasToken(",RESEND")) alarm.notify |= kNotifyAgain;
  const bool voice = in.HasToken(",RING");
  const bool gprs = in.HasToken(",GPRS");
  const bool nobody = in.HasToken(",NOSEND");
  if (nobody && (voice || gprs)) in.Fail("NOSEND beside RING or GPRS");
  if (voice) alarm.notify |= kNotifyVoice;
  if (gprs) alarm.notify |= kNotifyGprs;
  if (!voice && !gprs && !nobody) alarm.notify |= kNotifySms;
}

std::string ReadText(StatementCursor& in) {
  in.Expect("=");
  return in.Text();
}

Alarm& ReadIndex(StatementCursor& in, std::span<Alarm> row) {
  in.Expect(",INDEX=");
  return row[static_cast<std::size_t>(in.Whole(0, static_cast<int>(row.size()) - 1))];
}

float ReadDecimal(StatementCursor& in, std::string_view token) {
  in.Expect(token);
  return in.Decimal();
}

}  // namespace

int ReadFlag(StatementCursor& in) {
  in.Expect(",EQ=");
  return in.Whole(0, kFlags);
}

Actions ReadActions(StatementCursor& in, std::string_view token) {
  Actions actions{};
  in.Expect(token);
  std::size_t place = 0;
  while (!in.Rest().empty() && in.Rest().front() != ',') {
    if (place == actions.size()) {
      in.Fail("more than 8 actions");
      break;
    }
    actions[place++] = in.Whole(1, kMost16);
  }
  return actions;
}

void ReadContactAlarm(StatementCursor& in, std::span<Alarm> row) {
  Alarm alarm;
  alarm.text = ReadText(in);
  Alarm& held = ReadIndex(in, row);
  alarm.persistence = ReadDecimal(in, ",PC=");
  alarm.rearm = ReadDecimal(in, ",PO=");
  ReadNotification(in, alarm);
  ReadRange(in, alarm);
  alarm.flag = ReadFlag(in);
  alarm.high = ReadActions(in, ",ACTCLOSE=");
  alarm.low = ReadActions(in, ",ACTOPEN=");
  in.End();
  held = std::move(alarm);
}

void ReadLevelAlarm(StatementCursor& in, std::span<Alarm> row, Persistence persistence) {
  Alarm alarm;
  alarm.text = ReadText(in);
  Alarm& held = ReadIndex(in, row);
  alarm.maximum = ReadDecimal(in, ",MAX=");
  alarm.minimum = ReadDecimal(in, ",MIN=");
  alarm.hysteresis = ReadDecimal(in, ",HIST=");
  alarm.persistence = persistence == Persistence::Told ? ReadDecimal(in, ",P=") : held.persistence;
  ReadNotification(in, alarm);
  ReadRange(in, alarm);
  alarm.flag = ReadFlag(in);
  alarm.high = ReadActions(in, ",ACTHI=");
  alarm.low = ReadActions(in, ",ACTLO=");
  alarm.normal = ReadActions(in, ",ACTNOM=");
  in.End();
  held = std::move(alarm);
}

void ReadFlagAlarm(StatementCursor& in, std::span<Alarm> row) {
  Alarm alarm;
  alarm.text = ReadText(in);
  Alarm& held = ReadIndex(in, row);
  ReadNotification(in, alarm);
  ReadRange(in, alarm);
  alarm.high = ReadActions(in, ",ACTHI=");
  alarm.low = ReadActions(in, ",ACTLO=");
  in.End();
  held = std::move(alarm);
}

void RemoveAlarm(StatementCursor& in, std::span<Alarm> row) {
  Alarm& held = ReadIndex(in, row);
  in.End();
  held = {};
}

}  // namespace ostrel::sim
