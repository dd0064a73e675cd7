#include "host/Folders.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace ostrel {
namespace {

constexpr const char* kProductFolder = "/ostrel-configurator";

}  // namespace

std::string UserDataFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString() +
         kProductFolder;
}

std::string ShippedFolder() {
  return QCoreApplication::applicationDirPath().toStdString() + "/../share" + kProductFolder;
}

}  // namespace ostrel
