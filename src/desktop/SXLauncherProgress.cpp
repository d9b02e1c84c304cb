#include "desktop/SXLauncherProgress.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace {
const QString kInterface = QStringLiteral("com.canonical.Unity.LauncherEntry");
// Listeners match on the interface and the URI; the path only has to be a valid one of ours.
const QString kPath = QStringLiteral("/app/sonoria/Sonoria/LauncherEntry");
} // namespace

SXLauncherProgress::SXLauncherProgress(QString desktopFileName)
    : m_desktopFileName(std::move(desktopFileName)) {}

QString SXLauncherProgress::appUri() const {
    QString name =
        m_desktopFileName.isEmpty() ? QGuiApplication::desktopFileName() : m_desktopFileName;
    if (!name.endsWith(QLatin1String(".desktop")))
        name += QLatin1String(".desktop");
    return QStringLiteral("application://") + name;
}

void SXLauncherProgress::showProgress(double fraction) {
    // A run without items has no fraction to tell; the bar then stands at its start.
    fraction = std::isfinite(fraction) ? std::clamp(fraction, 0.0, 1.0) : 0.0;
    // The refresh comes every 0.4 s; a bar that has not moved is not worth a bus message.
    if (m_visible && std::abs(fraction - m_lastFraction) < 0.001)
        return;
    send(fraction, true);
}

void SXLauncherProgress::hide() {
    if (m_visible)
        send(m_lastFraction < 0 ? 0.0 : m_lastFraction, false);
}

void SXLauncherProgress::send(double fraction, bool visible) {
    m_lastFraction = fraction;
    m_visible = visible;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage update = QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("Update"));
    const QVariantMap properties{{QStringLiteral("progress"), fraction},
                                 {QStringLiteral("progress-visible"), visible}};
    update << appUri() << properties;
    bus.send(update);
}
