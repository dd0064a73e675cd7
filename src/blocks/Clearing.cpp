#include "blocks/Clearing.h"

namespace ostrel {

void ClearAlarm(AlarmBlock& alarm) {
  alarm.HABIL = alarm.REST = alarm.RENV = alarm.SMS = alarm.VOZ = kFalse;
  alarm.TEXTO.clear();
  alarm.valid = kAlways;
}

}  // namespace ostrel
