#include "model/AlarmBlock.h"

namespace ostrel {

void ClearAlarm(AlarmBlock& alarm) {
  AlarmBlock cleared;
  cleared.GPRS = alarm.GPRS;
  cleared.ACTHI = alarm.ACTHI;
  cleared.ACTLO = alarm.ACTLO;
  cleared.ACTNO = alarm.ACTNO;
  alarm = std::move(cleared);
}

}  // namespace ostrel
