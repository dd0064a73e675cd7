#include "platform/qt/QtSettings.h"

#include <QStringList>
#include <QUrl>
#include <QVariant>

namespace ostrel {
namespace {

/// One level of an address, with the separators of levels escaped.
QString Level(std::string_view text) {
  const auto size = static_cast<qsizetype>(text.size());
  return QString::fromLatin1(
      QUrl::toPercentEncoding(QString::fromUtf8(text.data(), size), " ", "/\\"));
}

QString Address(std::string_view application, std::string_view section, std::string_view key) {
  return Level(application) + '/' + Level(section) + '/' + Level(key);
}

}  // namespace

QtSettings::QtSettings()
    : store_(QSettings::IniFormat, QSettings::UserScope, QString::fromLatin1(kMaker),
             QString::fromLatin1(kProduct)) {}

QtSettings::QtSettings(const std::string& path)
    : store_(QString::fromStdString(path), QSettings::IniFormat) {}

std::string QtSettings::Get(std::string_view application, std::string_view section,
                            std::string_view key) const {
  const QVariant value = store_.value(Address(application, section, key));
  // A line that was written by hand with commas in it is read as a list.
  if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(",").toStdString();
  return value.toString().toStdString();
}

void QtSettings::Set(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) {
  const QString text = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
  store_.setValue(Address(application, section, key), text);
  store_.sync();
}

}  // namespace ostrel
