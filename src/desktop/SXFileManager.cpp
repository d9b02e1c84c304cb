#include "desktop/SXFileManager.h"

#include "base/SXLog.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFileInfo>

namespace {
const QString kFileManagerService = QStringLiteral("org.freedesktop.FileManager1");
} // namespace

bool SXFileManager::openingSuppressed() {
    return qEnvironmentVariableIntValue("SONORIA_NO_DESKTOP_OPEN") == 1;
}

bool SXFileManager::revealItem(const QString& path) {
    if (path.isEmpty())
        return false;
    if (openingSuppressed()) {
        SXLog::line(QStringLiteral("reveal %1").arg(path));
        return true;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusConnectionInterface* names = bus.isConnected() ? bus.interface() : nullptr;
    // Asking an absent service would start a bus activation attempt and wait for its failure.
    if (names && names->isServiceRegistered(kFileManagerService).value()) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            kFileManagerService, QStringLiteral("/org/freedesktop/FileManager1"),
            kFileManagerService, QStringLiteral("ShowItems"));
        call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
        if (bus.send(call))
            return true;
    }
    const QFileInfo info(path);
    return openFolder(info.isDir() ? info.absoluteFilePath() : info.absolutePath());
}

bool SXFileManager::openFolder(const QString& path) {
    return !path.isEmpty() && openUrl(QUrl::fromLocalFile(path));
}

bool SXFileManager::openUrl(const QUrl& url) {
    if (openingSuppressed()) {
        SXLog::line(QStringLiteral("open %1").arg(url.toString()));
        return true;
    }
    return QDesktopServices::openUrl(url);
}
