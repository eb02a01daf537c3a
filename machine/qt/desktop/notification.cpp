#include "machine/qt/desktop/notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace machine::qt {

void send_notification(const QString& title, const QString& text) {
    constexpr uint NEW_NOTE = 0;
    constexpr int AS_LONG_AS_USUAL = -1;
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/Notifications"), service, QStringLiteral("Notify"));
    const QString no_icon;
    call.setArguments(
        {title, NEW_NOTE, no_icon, title, text, QStringList(), QVariantMap(), AS_LONG_AS_USUAL});
    QDBusConnection::sessionBus().send(call);
}

}  // namespace machine::qt
