#include "sim/AlarmStatement.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

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

void ReadValidity(StatementCursor& in, Alarm& alarm) {
  alarm.start = 0;
  alarm.stop = kWholeDay;
  alarm.week = kEveryDay;
  if (!in.Has(",START=")) return;
  alarm.start = in.TimeOfDay();
  in.Expect(",STOP=");
  alarm.stop = in.TimeOfDay();
  in.Expect(",WEEK=");
  alarm.week = in.Week();
}

void ReadFlag(StatementCursor& in, Alarm& alarm) {
  in.Expect(",EQ=");
  alarm.flag = in.Whole(0, kFlags);
}

void ReadActions(StatementCursor& in, std::string_view token, Actions& actions) {
  in.Expect(token);
  std::size_t place = 0;
  while (!in.Rest().empty() && in.Rest().front() != ',') {
    if (place == actions.size()) return in.Fail("more than 8 actions");
    actions[place++] = in.Whole(1, std::numeric_limits<std::int16_t>::max());
  }
}

std::string ReadText(StatementCursor& in) {
  in.Expect("=");
  return in.Text();
}

}  // namespace

int ReadAlarmIndex(StatementCursor& in, int alarms) {
  in.Expect(",INDEX=");
  return in.Whole(0, alarms - 1);
}

void ReadDigitalAlarm(StatementCursor& in, AlarmRow& row) {
  Alarm alarm;
  alarm.text = ReadText(in);
  const int index = ReadAlarmIndex(in, kAlarms);
  in.Expect(",PC=");
  alarm.persistence = in.Decimal();
  in.Expect(",PO=");
  alarm.rearm = in.Decimal();
  ReadNotification(in, alarm);
  ReadValidity(in, alarm);
  ReadFlag(in, alarm);
  ReadActions(in, ",ACTCLOSE=", alarm.high);
  ReadActions(in, ",ACTOPEN=", alarm.low);
  in.End();
  row[static_cast<std::size_t>(index)] = std::move(alarm);
}

void ReadAnalogAlarm(StatementCursor& in, AlarmRow& row, bool withPersistence) {
  Alarm alarm;
  alarm.text = ReadText(in);
  Alarm& held = row[static_cast<std::size_t>(ReadAlarmIndex(in, kAlarms))];
  in.Expect(",MAX=");
  alarm.maximum = in.Decimal();
  in.Expect(",MIN=");
  alarm.minimum = in.Decimal();
  in.Expect(",HIST=");
  alarm.hysteresis = in.Decimal();
  alarm.persistence = held.persistence;
  if (withPersistence) {
    in.Expect(",P=");
    alarm.persistence = in.Decimal();
  }
  ReadNotification(in, alarm);
  ReadValidity(in, alarm);
  ReadFlag(in, alarm);
  ReadActions(in, ",ACTHI=", alarm.high);
  ReadActions(in, ",ACTLO=", alarm.low);
  ReadActions(in, ",ACTNOM=", alarm.normal);
  in.End();
  held = std::move(alarm);
}

void ReadFlagAlarm(StatementCursor& in, Alarm& held) {
  Alarm alarm;
  alarm.text = ReadText(in);
  ReadAlarmIndex(in, 1);
  ReadNotification(in, alarm);
  ReadValidity(in, alarm);
  ReadActions(in, ",ACTHI=", alarm.high);
  ReadActions(in, ",ACTLO=", alarm.low);
  in.End();
  held = std::move(alarm);
}

}  // namespace ostrel::sim
