#pragma once

#include <initializer_list>
#include <string_view>

#include "link/LineReader.h"
#include "link/Statement.h"
#include "model/AlarmBlock.h"
#include "model/ConfModbus.h"

namespace ostrel {

/// The alarm configuration that an alarm or action line is about: its next two fields are channel
/// and configuration. Either beyond its array is a bound failure.
template <class Records>
auto& AlarmCell(LineReader& line, Records& records) {
  auto& record = records[line.Index()];
  return record.ALARM[line.Index()];
}

/// Whether a line's level alarm ends with the persistence, or a statement's has it.
enum class Persistence { Present, Absent };

// Each reads the rest of an alarm line behind channel and configuration: text, thresholds, the
// common group, and the condition flag where the kind has one.
//
// Of the common group an empty week stands for a disabled alarm, and a clear notification bit
// changes nothing.
void ReadAlarm(LineReader& line, Alarm<LevelThresholds>& cell,
               Persistence persistence = Persistence::Present);
void ReadAlarm(LineReader& line, Alarm<RegisterThresholds>& cell, Persistence persistence);
void ReadAlarm(LineReader& line, Alarm<ContactThresholds>& cell);
void ReadAlarm(LineReader& line, Alarm<NoThresholds>& cell);

/// Reads the eight places of action lists, with a number for each list in the order given.
void ReadActions(LineReader& line, std::initializer_list<ActionList*> lists);
/// The lists of a level alarm: high, normal, low.
void ReadLevelActions(LineReader& line, AlarmBlock& alarm);
/// The lists of a contact or a flag: high, low.
void ReadContactActions(LineReader& line, AlarmBlock& alarm);

// Each adds the alarm statement of one configuration. `key` is the word behind "+" or "-", such as
// "ALMD".
void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<LevelThresholds>& cell, Persistence persistence = Persistence::Present);
void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<RegisterThresholds>& cell, Persistence persistence);
void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<ContactThresholds>& cell);
void AddAlarm(StatementList& out, std::string_view key, int channel, int config, AlarmShape shape,
              const Alarm<NoThresholds>& cell);

/// Adds the statements of all alarm configurations of a channel.
template <class Cells, class... More>
void AddAlarms(StatementList& out, std::string_view key, int channel, AlarmShape shape,
               const Cells& cells, More... more) {
  for (int config = 0; config < shape.configs; ++config)
    AddAlarm(out, key, channel, config, shape, cells[config], more...);
}

/// Sets a time of day that a logger tells in seconds since midnight. One that does not exist leaves
/// it as it was.
void SetTime(TimeOfDay& time, double seconds);
/// Sets a range of validity that a logger tells: two times of the day, and the days.
void SetRange(ValidityRange& valid, double start, double stop, double week);
/// Whether a week names days; one that fits no mask names none.
bool NamesDays(double week);
/// Appends the tokens of a range of validity; none when it is valid at all times.
void AddRange(Statement& statement, const ValidityRange& valid);

}  // namespace ostrel
