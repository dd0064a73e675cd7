#pragma once

#include "sim/Configuration.h"
#include "sim/StatementCursor.h"

namespace ostrel::sim {

// The alarm statements, from behind their channel number on.

/// "=text,INDEX= k,..." of a digital input.
void ReadDigitalAlarm(StatementCursor& in, AlarmRow& row);
/// The same of an analog input; `withPersistence` where the firmware knows ",P=".
void ReadAnalogAlarm(StatementCursor& in, AlarmRow& row, bool withPersistence);
/// The same of a flag, which has one alarm.
void ReadFlagAlarm(StatementCursor& in, Alarm& alarm);
/// ",INDEX= k" of a statement that takes an alarm out.
int ReadAlarmIndex(StatementCursor& in, int alarms);

}  // namespace ostrel::sim
