#include "host/UsualStation.h"

#include <QSysInfo>

#include "host/Folders.h"

namespace ostrel {

Station UsualStation() {
  return {.operatorName = qEnvironmentVariable("USER").toStdString(),
          .name = QSysInfo::machineHostName().toStdString(),
          .folder = UserDataFolder() + "/factory"};
}

}  // namespace ostrel
