#include "base/SXSystemInfo.h"

#include <QFile>
#include <QStringList>

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

bool SXSystemInfo::versionNumbersFromRelease(const QString& release, qint64* major, qint64* minor,
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

bool SXSystemInfo::kernelVersion(qint64* major, qint64* minor, qint64* bugFix) {
    struct utsname system {};
    if (uname(&system) != 0)
        return false;
    return versionNumbersFromRelease(QString::fromLocal8Bit(system.release), major, minor, bugFix);
}

QString SXSystemInfo::systemVersionString() {
    qint64 major = 0;
    qint64 minor = 0;
    qint64 bugFix = 0;
    kernelVersion(&major, &minor, &bugFix);
    return QStringLiteral("%1.%2.%3")
        .arg(static_cast<quint32>(major))
        .arg(static_cast<quint32>(minor))
        .arg(static_cast<quint32>(bugFix));
}

QString SXSystemInfo::computerModelFromFile(const QString& productNameFile) {
    QFile file(productNameFile);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("PC");
    const QString model = QString::fromUtf8(file.readAll()).trimmed();
    return model.isEmpty() ? QStringLiteral("PC") : model;
}

QString SXSystemInfo::computerModel() {
    return computerModelFromFile(QStringLiteral("/sys/class/dmi/id/product_name"));
}
