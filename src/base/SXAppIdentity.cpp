#include "base/SXAppIdentity.h"

#include "base/SXInstallation.h"
#include "base/SXSettings.h"

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>
#include <QUuid>

QString SXAppIdentity::installationId() {
    // Two threads asking for the first time must not store two different identifiers.
    static QMutex creating;
    QMutexLocker lock(&creating);
    const QString stored = SXSettings::stringForKey(SXSettingsKey::Guid);
    if (!stored.isEmpty())
        return stored;
    const QString created = QUuid::createUuid().toString(QUuid::WithoutBraces);
    SXSettings::setValue(SXSettingsKey::Guid, created);
    SXSettings::synchronize();
    return created;
}

QString SXAppIdentity::normalizedVersion(const QString& shortVersion) {
    QStringList components = shortVersion.split(QLatin1Char('.'));
    while (components.size() < 3)
        components << QStringLiteral("0");
    return components.mid(0, 3).join(QLatin1Char('.'));
}

QString SXAppIdentity::appVersion() {
    return normalizedVersion(SXInstallation::version());
}

QString SXAppIdentity::buildNumber() {
    return SXInstallation::buildNumber();
}

QString SXAppIdentity::buildVersion() {
    return appVersion() + QLatin1Char('.') + buildNumber();
}

QString SXAppIdentity::applicationId() {
    return SXInstallation::applicationId();
}
