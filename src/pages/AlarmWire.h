#pragma once

#include <initializer_list>
#include <string_view>

#include "link/LineReader.h"
#include "link/Statement.h"
#include "model/AlarmBlock.h"

namespace ostrel {

/// The alarm configuration that an alarm or action line is about: its next two fields are channel
/// and configuration. Either beyond its array is a bound failure.
template <class Records>
auto& AlarmCell(LineReader& line, Records& records) {
  auto& record = records[line.Index()];
  return record.ALARM[line.Index()];
}

/// Reads the common group of an alarm line: start and stop in seconds since midnight, week byte,
/// notification bits. An empty week stands for a disabled alarm. A clear notification bit changes
/// nothing.
void ReadAlarmGroup(LineReader& line, AlarmBlock& alarm);

/// Reads eight groups of action numbers, one for each list place, with a number for each list in
/// the order given.
void ReadActions(LineReader& line, std::initializer_list<ActionList*> lists);

/// The words that the alarm statements of a channel kind use.
struct AlarmWords {
  std::string_view key;     ///< "ALMD", behind "+" or "-"
  std::string_view high;    ///< token of ACTHI
  std::string_view low;     ///< token of ACTLO
  std::string_view normal;  ///< token of ACTNO; empty where the kind has no such list
};

/// Appends the tokens from ",SREST" to ",WEEK=", and ",EQ=" where the kind has a condition flag.
void AddCommonTokens(Statement& statement, const AlarmBlock& alarm, const AlarmShape& shape);

/// Adds the alarm statements of one channel, one for each configuration. `addThresholds` appends
/// the threshold tokens of the kind.
template <class Cells, class AddThresholds>
void AddAlarms(StatementList& out, const AlarmWords& words, int channel, const Cells& cells,
               const AlarmShape& shape, const AddThresholds& addThresholds) {
  for (int config = 0; config < shape.configs; ++config) {
    const auto& [alarm, thresholds] = cells[config];
    Statement statement(alarm.HABIL ? "+" : "-");
    statement.Text(words.key).Digits(channel);
    if (alarm.HABIL) statement.Text("=").Text(alarm.TEXTO);
    statement.Num(",INDEX=", config);
    if (alarm.HABIL) {
      addThresholds(statement, thresholds);
      AddCommonTokens(statement, alarm, shape);
      statement.Actions(words.high, alarm.ACTHI).Actions(words.low, alarm.ACTLO);
      if (shape.hasNormal) statement.Actions(words.normal, alarm.ACTNO);
    }
    out.Add(statement);
  }
}

}  // namespace ostrel
