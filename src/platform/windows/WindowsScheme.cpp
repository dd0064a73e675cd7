#include <windows.h>

#include "platform/qt/SystemScheme.h"

namespace ostrel {

std::optional<bool> DesktopWantsDark() {
  DWORD light = 0;
  DWORD size = sizeof light;
  const LSTATUS code = ::RegGetValueW(
      HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
      L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  return code == ERROR_SUCCESS ? std::optional(light == 0) : std::nullopt;
}

}  // namespace ostrel
