#include "desktop/SXDesktopNotifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>

bool SXDesktopNotifier::notify(const QString& summary, const QString& body) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString desktopEntry = QGuiApplication::desktopFileName();
    const QVariantMap hints{{QStringLiteral("desktop-entry"), desktopEntry}};
    // app_name, replaces_id, app_icon, summary, body, actions, hints, expire_timeout (-1: the
    // server's default).
    call << QGuiApplication::applicationDisplayName() << uint(0) << desktopEntry << summary << body
         << QStringList() << hints << int(-1);
    return bus.send(call);
}
