#include "GlobalFun.h"

#include "SXBundle.h"
#include "SXSettings.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QUuid>

#include <limits>

#include <sys/utsname.h>

namespace {

// Leading decimal digits of `piece` as a number; false when it does not start with a digit.
bool leadingNumber(QStringView piece, qint64* value) {
    qint64 number = 0;
    qsizetype digits = 0;
    for (; digits < piece.size() && piece.at(digits).isDigit(); ++digits) {
        const int digit = piece.at(digits).digitValue();
        if (digit < 0 || number > (std::numeric_limits<qint64>::max() - digit) / 10)
            return false;
        number = number * 10 + digit;
    }
    if (digits == 0)
        return false;
    *value = number;
    return true;
}

} // namespace

QString GlobalFun::getGUID() {
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

QString GlobalFun::normalizedVersion(const QString& shortVersion) {
    QStringList components = shortVersion.split(QLatin1Char('.'));
    while (components.size() < 3)
        components << QStringLiteral("0");
    return components.mid(0, 3).join(QLatin1Char('.'));
}

QString GlobalFun::getAppVersion() {
    return normalizedVersion(SXBundle::shortVersionString());
}

QString GlobalFun::getAppBuildNumber() {
    return SXBundle::bundleVersion();
}

QString GlobalFun::getAppBuildVersion() {
    return getAppVersion() + QLatin1Char('.') + getAppBuildNumber();
}

QString GlobalFun::bundleID() {
    return SXBundle::bundleIdentifier();
}

bool GlobalFun::versionNumbersFromRelease(const QString& release, qint64* major, qint64* minor,
                                          qint64* bugFix) {
    // "6.1.0-18-amd64": the numbers are the leading digits of the first three dot pieces.
    const QStringList pieces = release.split(QLatin1Char('.'));
    if (!leadingNumber(pieces.value(0), major))
        return false;
    if (pieces.size() < 2 || !leadingNumber(pieces.at(1), minor))
        return false;
    if (pieces.size() < 3 || !leadingNumber(pieces.at(2), bugFix))
        *bugFix = 0;
    return true;
}

bool GlobalFun::getMajorMinorBugFix(qint64* major, qint64* minor, qint64* bugFix) {
    struct utsname system {};
    if (uname(&system) != 0)
        return false;
    return versionNumbersFromRelease(QString::fromLocal8Bit(system.release), major, minor, bugFix);
}

QString GlobalFun::getSystemVersionString() {
    qint64 major = 0;
    qint64 minor = 0;
    qint64 bugFix = 0;
    getMajorMinorBugFix(&major, &minor, &bugFix);
    return QStringLiteral("%1.%2.%3")
        .arg(static_cast<quint32>(major))
        .arg(static_cast<quint32>(minor))
        .arg(static_cast<quint32>(bugFix));
}

QString GlobalFun::computerModelFromFile(const QString& productNameFile) {
    QFile file(productNameFile);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("PC");
    const QString model = QString::fromUtf8(file.readAll()).trimmed();
    return model.isEmpty() ? QStringLiteral("PC") : model;
}

QString GlobalFun::computerModel() {
    return computerModelFromFile(QStringLiteral("/sys/class/dmi/id/product_name"));
}
