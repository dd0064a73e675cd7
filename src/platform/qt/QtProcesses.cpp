#include "platform/qt/QtProcesses.h"

#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <algorithm>

namespace ostrel {
namespace {

constexpr std::string_view kShowDocument = "Explorer ";

}  // namespace

bool QtProcesses::Start(std::string_view commandLine) {
  if (commandLine.starts_with(kShowDocument)) {
    std::string path(commandLine.substr(kShowDocument.size()));
    std::replace(path.begin(), path.end(), '\\', '/');
    return QFileInfo(QString::fromStdString(path)).isFile() && opener_(path);
  }
  QStringList words = QProcess::splitCommand(
      QString::fromUtf8(commandLine.data(), static_cast<qsizetype>(commandLine.size())));
  if (words.isEmpty()) return false;
  const QString program = words.takeFirst();
  return QProcess::startDetached(program, words);
}

}  // namespace ostrel
