#include <QSettings>

#include "platform/qt/SystemScheme.h"

namespace ostrel {

std::optional<bool> DesktopWantsDark() {
  const QSettings settings(
      "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
      QSettings::NativeFormat);
  const QVariant light = settings.value("AppsUseLightTheme");
  return light.isValid() ? std::optional(light.toInt() == 0) : std::nullopt;
}

}  // namespace ostrel
