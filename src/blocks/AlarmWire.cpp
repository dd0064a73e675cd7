#include "blocks/AlarmWire.h"

#include "base/Values.h"
#include "link/Comms.h"

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

/// Reads start and stop in seconds since midnight, week byte, notification bits.
void ReadCommonGroup(LineReader& line, AlarmBlock& alarm) {
  const double start = line.Number();
  const double stop = line.Number();
  const double week = line.Number();
  SetRange(alarm.valid, start, stop, week);
  alarm.HABIL = Bool16(week >= 1);
  std::int32_t bits = 0;
  line.Into(bits);
  SetByBit(bits, kNotifySms, alarm.SMS);
  SetByBit(bits, kNotifyVoz, alarm.VOZ);
  SetByBit(bits, kNotifyRest, alarm.REST);
  SetByBit(bits, kNotifyRenv, alarm.RENV);
  SetByBit(bits, kNotifyGprs, alarm.GPRS);
}

/// The tokens of the common group, from ",SREST" on.
void AddCommonTokens(Statement& statement, const AlarmBlock& alarm, AlarmShape shape) {
  statement.TokenIf(bool(alarm.REST), ",SREST")
      .TokenIf(bool(alarm.RENV), ",RESEND")
      .TokenIf(bool(alarm.VOZ), ",RING")
      .TokenIf(bool(alarm.GPRS), ",GPRS")
      .TokenIf(!alarm.SMS && !alarm.VOZ && !alarm.GPRS, ",NOSEND");
  AddRange(statement, alarm.valid);
  if (shape.hasFlag) statement.Num(",EQ=", alarm.FLAG);
}

void AddLevelActions(Statement& statement, const AlarmBlock& alarm, AlarmShape shape) {
  statement.Actions(",ACTHI=", alarm.ACTHI).Actions(",ACTLO=", alarm.ACTLO);
  if (shape.hasNormal) statement.Actions(",ACTNOM=", alarm.ACTNO);
}

/// Starts the statement of an alarm; a disabled one has nothing more to say.
Statement AlarmStatement(std::string_view key, int channel, int config, const AlarmBlock& alarm) {
  Statement statement(alarm.HABIL ? "+" : "-");
  statement.Text(key).Digits(channel);
  if (alarm.HABIL) statement.Text("=").Text(alarm.TEXTO);
  statement.Num(",INDEX=", config);
  return statement;
}

/// Reads an alarm with a minimum, a maximum and a hysteresis; its record has a word of its own for
/// the persistence.
template <class Thresholds>
void ReadLevels(LineReader& line, Alarm<Thresholds>& cell, float Thresholds::*persist,
                Persistence persistence) {
  auto& [alarm, limits] = cell;
  line.Into(alarm.TEXTO);
  line.Into(limits.MINIMO);
  line.Into(limits.MAXIMO);
  line.Into(limits.HISTERESIS);
  ReadCommonGroup(line, alarm);
  line.Into(alarm.FLAG);
  if (persistence == Persistence::Present) line.Into(limits.*persist);
}

template <class Thresholds>
void AddLevels(StatementList& out, Statement statement, AlarmShape shape,
               const Alarm<Thresholds>& cell, float Thresholds::*persist, Persistence persistence) {
  const auto& [alarm, limits] = cell;
  if (alarm.HABIL) {
    statement.Num(",MAX=", limits.MAXIMO)
        .Num(",MIN=", limits.MINIMO)
        .Num(",HIST=", limits.HISTERESIS);
    if (persistence == Persistence::Present) statement.Num(",P=", limits.*persist);
    AddCommonTokens(statement, alarm, shape);
    AddLevelActions(statement, alarm, shape);
  }
  out.Add(statement);
}

}  // namespace

void ReadAlarm(LineReader& line, Alarm<LevelThresholds>& cell, Persistence persistence) {
  ReadLevels(line, cell, &LevelThresholds::PERSISTENCIA, persistence);
}

void ReadAlarm(LineReader& line, Alarm<RegisterThresholds>& cell, Persistence persistence) {
  ReadLevels(line, cell, &RegisterThresholds::PERSIST, persistence);
}

void ReadAlarm(LineReader& line, Alarm<ContactThresholds>& cell) {
  auto& [alarm, limits] = cell;
  line.Into(alarm.TEXTO);
  line.Into(limits.PERSIST);
  line.Into(limits.REARM);
  ReadCommonGroup(line, alarm);
  line.Into(alarm.FLAG);
}

void ReadAlarm(LineReader& line, Alarm<NoThresholds>& cell) {
  line.Into(cell.common.TEXTO);
  ReadCommonGroup(line, cell.common);
}

void ReadActions(LineReader& line, std::initializer_list<ActionList*> lists) {
  for (int place = 0; place < kActionPlaces; ++place)
    for (ActionList* list : lists) line.Into((*list)[place]);
}

void ReadLevelActions(LineReader& line, AlarmBlock& alarm) {
  ReadActions(line, {&alarm.ACTHI, &alarm.ACTNO, &alarm.ACTLO});
}

void ReadContactActions(LineReader& line, AlarmBlock& alarm) {
  ReadActions(line, {&alarm.ACTHI, &alarm.ACTLO});
}

void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<LevelThresholds>& cell, Persistence persistence) {
  AddLevels(out, AlarmStatement(key, channel, config, cell.common), shape, cell,
            &LevelThresholds::PERSISTENCIA, persistence);
}

void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<RegisterThresholds>& cell, Persistence persistence) {
  AddLevels(out, AlarmStatement(key, channel, config, cell.common), shape, cell,
            &RegisterThresholds::PERSIST, persistence);
}

void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<ContactThresholds>& cell) {
  const auto& [alarm, limits] = cell;
  Statement statement = AlarmStatement(key, channel, config, alarm);
  if (alarm.HABIL) {
    statement.Num(",PC=", limits.PERSIST).Num(",PO=", limits.REARM);
    AddCommonTokens(statement, alarm, shape);
    statement.Actions(",ACTCLOSE=", alarm.ACTHI).Actions(",ACTOPEN=", alarm.ACTLO);
  }
  out.Add(statement);
}

void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<NoThresholds>& cell) {
  Statement statement = AlarmStatement(key, channel, config, cell.common);
  if (cell.common.HABIL) {
    AddCommonTokens(statement, cell.common, shape);
    AddLevelActions(statement, cell.common, shape);
  }
  out.Add(statement);
}

void SetTime(TimeOfDay& time, double seconds) {
  if (auto whole = RoundToEven<std::int32_t>(seconds)) time = SecondsToTime(*whole).value_or(time);
}

void SetRange(ValidityRange& valid, double start, double stop, double week) {
  const auto first = RoundToEven<std::int32_t>(start);
  const auto last = RoundToEven<std::int32_t>(stop);
  const auto days = RoundToEven<std::uint8_t>(week);
  if (first && last && days) valid.SIEMPRE = Bool16(CheckSiempre(*first, *last, *days));
  SetTime(valid.INICIO, start);
  SetTime(valid.FINAL, stop);
  valid.SEMANA = days.value_or(valid.SEMANA);
}

bool NamesDays(double week) { return week >= 1 && RoundToEven<std::uint8_t>(week).has_value(); }

void AddRange(Statement& statement, const ValidityRange& valid) {
  if (valid.SIEMPRE) return;
  statement.Text(",START=").Text(TimeText(valid.INICIO));
  statement.Text(",STOP=").Text(TimeText(valid.FINAL));
  statement.Text(",WEEK=").Text(WeekText(valid.SEMANA));
}

}  // namespace ostrel
