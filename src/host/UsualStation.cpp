#include "host/UsualStation.h"

#include <QString>
#include <QSysInfo>

#include "host/Folders.h"

namespace ostrel {

Station UsualStation() {
  return {.operatorName = qEnvironmentVariable("USER").toStdString(),
          .name = QSysInfo::machineHostName().toStdString(),
          .folder = UserDataFolder() + "/factory"};
}

}  // namespace ostrel
