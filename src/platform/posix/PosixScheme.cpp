#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include "platform/qt/SystemScheme.h"

namespace ostrel {
namespace {

constexpr int kPortalWait = 300;  // ms
constexpr unsigned kPreferDark = 1;

}  // namespace

std::optional<bool> DesktopWantsDark() {
  QDBusMessage ask = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                    "/org/freedesktop/portal/desktop",
                                                    "org.freedesktop.portal.Settings", "Read");
  ask << QString("org.freedesktop.appearance") << QString("color-scheme");
  const QDBusMessage answer = QDBusConnection::sessionBus().call(ask, QDBus::Block, kPortalWait);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return {};
  QVariant value = answer.arguments().first();
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  if (value.toUInt() == 0) return {};
  return value.toUInt() == kPreferDark;
}

}  // namespace ostrel
