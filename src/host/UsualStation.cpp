#include "host/UsualStation.h"

#include <QString>
#include <QSysInfo>

#include "host/Folders.h"
#include "platform/RunningProgram.h"

namespace ostrel {

Station UsualStation() {
  return {.operatorName = ThisProgram().user,
          .name = QSysInfo::machineHostName().toStdString(),
          .folder = UserDataFolder() + "/factory"};
}

}  // namespace ostrel
