#pragma once

#include <span>
#include <utility>

#include "sim/Alarm.h"
#include "sim/wire/StatementCursor.h"

namespace ostrel::sim {

// The alarm statements of all kinds of channel, from behind the channel's number on. A row is the
// alarm configurations of one channel.

/// Whether a firmware tells the persistence of an alarm on a level. One that is not told stays.
enum class Persistence { Told, Unknown };

/// "=text,INDEX= k,PC=..." of a contact.
void ReadContactAlarm(StatementCursor& in, std::span<Alarm> row);
/// "=text,INDEX= k,MAX=..." of a level.
void ReadLevelAlarm(StatementCursor& in, std::span<Alarm> row,
                    Persistence persistence = Persistence::Told);
/// "=text,INDEX= 0,..." of a flag.
void ReadFlagAlarm(StatementCursor& in, std::span<Alarm> row);
/// ",INDEX= k": takes an alarm out.
void RemoveAlarm(StatementCursor& in, std::span<Alarm> row);

/// The end of a statement: everything of a channel but its alarms goes.
template <class Channel>
void Disable(StatementCursor& in, Channel& channel) {
  in.End();
  Channel fresh;
  fresh.alarms = std::move(channel.alarms);
  channel = std::move(fresh);
}

// Parts that timers share with alarms.

/// ",START=h:mm:ss,STOP=h:mm:ss,WEEK=1111111", or nothing for always. `Range` has `start`, `stop`
/// and `week`.
template <class Range>
void ReadRange(StatementCursor& in, Range& range) {
  range.start = 0;
  range.stop = kWholeDay;
  range.week = kEveryDay;
  if (!in.Has(",START=")) return;
  range.start = in.TimeOfDay();
  in.Expect(",STOP=");
  range.stop = in.TimeOfDay();
  in.Expect(",WEEK=");
  range.week = in.Week();
}

/// ",EQ= n": 0 always, else flag F(n-1).
int ReadFlag(StatementCursor& in);
/// A token and up to 8 numbers behind it.
Actions ReadActions(StatementCursor& in, std::string_view token);

}  // namespace ostrel::sim
