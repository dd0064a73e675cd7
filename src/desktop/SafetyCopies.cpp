#include "desktop/SafetyCopies.h"

#include <QDir>
#include <utility>

#include "desktop/Words.h"
#include "shell/Configurator.h"

namespace ostrel {
namespace {

/// A serial number as it can stand in a file name.
QString NameOf(const std::string& serial) {
  QString name;
  for (const QChar letter : ToQt(serial)) {
    const bool isPlain = letter == u'-' || (letter.isLetterOrNumber() && letter.unicode() < 128);
    name += isPlain ? letter : QChar(u'_');
  }
  return name.isEmpty() ? QString("unknown") : name;
}

QString StampOf(const DateTime& now) {
  const auto two = [](int number) { return QString::number(number).rightJustified(2, u'0'); };
  return QString::number(now.year) + two(now.month) + two(now.day) + "-" + two(now.hour) +
         two(now.minute) + two(now.second);
}

}  // namespace

FileResult SafetyCopies::Keep(Configurator& configurator) {
  if (const FileResult made = files_.MakeFolder(folder_); !made.Ok()) return made;
  const std::string name =
      folder_ + "/" +
      FromQt(NameOf(configurator.info.SerialNumber) + "-" + StampOf(clock_.LocalNow()));
  std::string path = name + ".ocf";
  for (int next = 2; files_.Exists(path); ++next) path = name + "-" + std::to_string(next) + ".ocf";
  const std::string kept = std::exchange(configurator.ConfFilePath, path);
  const FileResult result = configurator.SaveConf();
  configurator.ConfFilePath = kept;
  return result;
}

std::vector<QString> SafetyCopies::Newest(int most) const {
  const QFileInfoList found = QDir(ToQt(folder_)).entryInfoList({"*.ocf"}, QDir::Files, QDir::Time);
  std::vector<QString> paths;
  for (const QFileInfo& info : found) {
    if (static_cast<int>(paths.size()) == most) break;
    paths.push_back(info.absoluteFilePath());
  }
  return paths;
}

}  // namespace ostrel
