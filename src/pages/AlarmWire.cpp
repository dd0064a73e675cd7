#include "pages/AlarmWire.h"

#include "link/Comms.h"
#include "model/Assign.h"

namespace ostrel {
namespace {

constexpr std::int32_t kNotifySms = 1;
constexpr std::int32_t kNotifyVoz = 2;
constexpr std::int32_t kNotifyRest = 4;
constexpr std::int32_t kNotifyRenv = 8;
constexpr std::int32_t kNotifyGprs = 16;

void SetByBit(std::int32_t bits, std::int32_t bit, Bool16& field) {
  if ((bits & bit) != 0) field = kTrue;
}

}  // namespace

void ReadAlarmGroup(LineReader& line, AlarmBlock& alarm) {
  auto start = RoundToEven<std::int32_t>(line.Number());
  auto stop = RoundToEven<std::int32_t>(line.Number());
  const double weekNumber = line.Number();
  const auto week = RoundToEven<std::uint8_t>(weekNumber);
  if (start && stop && week) alarm.SIEMPRE = Bool16(CheckSiempre(*start, *stop, *week));
  if (start) alarm.INICIO = SecondsToTime(*start).value_or(alarm.INICIO);
  if (stop) alarm.FINAL = SecondsToTime(*stop).value_or(alarm.FINAL);
  alarm.SEMANA = week.value_or(alarm.SEMANA);
  alarm.HABIL = Bool16(weekNumber >= 1);
  std::int32_t bits = 0;
  line.Into(bits);
  SetByBit(bits, kNotifySms, alarm.SMS);
  SetByBit(bits, kNotifyVoz, alarm.VOZ);
  SetByBit(bits, kNotifyRest, alarm.REST);
  SetByBit(bits, kNotifyRenv, alarm.RENV);
  SetByBit(bits, kNotifyGprs, alarm.GPRS);
}

void ReadActions(LineReader& line, std::initializer_list<ActionList*> lists) {
  for (int place = 0; place < kActionPlaces; ++place)
    for (ActionList* list : lists) line.Into((*list)[place]);
}

void AddCommonTokens(Statement& statement, const AlarmBlock& alarm, const AlarmShape& shape) {
  statement.TokenIf(bool(alarm.REST), ",SREST")
      .TokenIf(bool(alarm.RENV), ",RESEND")
      .TokenIf(bool(alarm.VOZ), ",RING")
      .TokenIf(bool(alarm.GPRS), ",GPRS")
      .TokenIf(!alarm.SMS && !alarm.VOZ && !alarm.GPRS, ",NOSEND");
  if (!alarm.SIEMPRE) {
    statement.Text(",START=").Text(TimeText(alarm.INICIO));
    statement.Text(",STOP=").Text(TimeText(alarm.FINAL));
    statement.Text(",WEEK=").Text(WeekText(alarm.SEMANA));
  }
  if (shape.hasFlag) statement.Num(",EQ=", alarm.FLAG);
}

}  // namespace ostrel
