#include "GlobalFun.h"

#include "SXBundle.h"
#include "SXFolderVisit.h"
#include "SXSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QUuid>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include <dirent.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <system_error>

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

// Seconds as the 32-bit count the clock strings work with. Truncated toward zero; NaN counts 0
// and values beyond the range saturate instead of being undefined.
int truncatedToInt(double value) {
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

// The decimal number at the start of `piece` (optional blanks and sign first), 0 when there is
// none. Written out instead of strtod because the C locale of a Qt program follows the user's
// locale, where the decimal separator may be a comma.
double leadingDecimal(const QString& piece) {
    const QByteArray bytes = piece.toUtf8();
    const char* cursor = bytes.constData();
    const char* end = cursor + bytes.size();
    while (cursor < end && (*cursor == ' ' || (*cursor >= '\t' && *cursor <= '\r')))
        ++cursor;
    bool negative = false;
    if (cursor < end && (*cursor == '+' || *cursor == '-')) {
        negative = *cursor == '-';
        ++cursor;
    }
    // Only digits or a decimal point may follow: "inf", "nan" and a second sign are not numbers
    // of a clock.
    if (cursor == end || !((*cursor >= '0' && *cursor <= '9') || *cursor == '.'))
        return 0.0;
    double value = 0.0;
    const auto [stop, error] = std::from_chars(cursor, end, value, std::chars_format::general);
    Q_UNUSED(stop);
    if (error != std::errc())
        return 0.0;
    return negative ? -value : value;
}

struct PathParts {
    QString base;      // the path without the extension and its dot
    QString extension; // without the dot
    bool hasExtension = false;
};

// Splits off the extension of the last path component. A leading dot (hidden file) does not
// start an extension.
PathParts splitExtension(const QString& path) {
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    if (dot <= slash + 1)
        return {path, {}, false};
    return {path.left(dot), path.mid(dot + 1), true};
}

// Anything at the path, a dangling symbolic link included: writing through such a link would
// create a file somewhere the user did not choose.
bool somethingExistsAt(const QString& path) {
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

QString counterText(int k) {
    return QStringLiteral("(%1)").arg(k);
}

QString scanText(const char* text) {
    return QCoreApplication::translate("GlobalFun", text);
}

bool accepted(const QString& path, const QStringList& filter) {
    const PathParts parts = splitExtension(path);
    return parts.hasExtension && filter.contains(parts.extension, Qt::CaseInsensitive);
}

// A name QString cannot carry: decoding and encoding it again does not give its bytes back, so
// the path we would make of it names another file or none.
bool nameSurvivesDecoding(const QByteArray& name) {
    return QFile::encodeName(QFile::decodeName(name)) == name;
}

// Natural order: runs of digits compare by their value, the rest without regard to case (then
// by the locale, so accented letters sort as the user expects). QCollator's numeric mode needs
// ICU and a real locale, which a C locale or a minimal system does not give.
bool naturalLess(const QString& a, const QString& b) {
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (a.at(i).isDigit() && b.at(j).isDigit()) {
            qsizetype ei = i, ej = j;
            while (ei < a.size() && a.at(ei).isDigit())
                ++ei;
            while (ej < b.size() && b.at(ej).isDigit())
                ++ej;
            QStringView na = QStringView(a).mid(i, ei - i), nb = QStringView(b).mid(j, ej - j);
            while (na.size() > 1 && na.front() == u'0')
                na = na.mid(1);
            while (nb.size() > 1 && nb.front() == u'0')
                nb = nb.mid(1);
            if (na.size() != nb.size())
                return na.size() < nb.size();
            if (const int order = na.compare(nb); order != 0)
                return order < 0;
            i = ei;
            j = ej;
            continue;
        }
        qsizetype ei = i, ej = j;
        while (ei < a.size() && !a.at(ei).isDigit())
            ++ei;
        while (ej < b.size() && !b.at(ej).isDigit())
            ++ej;
        const QString ta = a.mid(i, ei - i).toCaseFolded(), tb = b.mid(j, ej - j).toCaseFolded();
        if (const int order = QString::localeAwareCompare(ta, tb); order != 0)
            return order < 0;
        i = ei;
        j = ej;
    }
    if ((a.size() - i) != (b.size() - j))
        return (a.size() - i) < (b.size() - j);
    return a < b;
}

bool isFolderAt(const QByteArray& encodedPath) {
    struct stat status {};
    return ::stat(encodedPath.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Lists with readdir(3), which gives the names' raw bytes, so that a name that is not valid
// UTF-8 is noticed and reported instead of vanishing; a folder that cannot be listed is
// reported too. Unsorted: the entries come in the order the file system returns them.
void collectFiles(const QString& dir, const QStringList& filter, SXFolderVisit& visit,
                  QStringList& found, SXPathFailureList* failures) {
    const QByteArray encodedDir = QFile::encodeName(dir);
    DIR* stream = ::opendir(encodedDir.constData());
    if (!stream) {
        const QString error = QString::fromStdString(std::generic_category().message(errno));
        if (failures)
            failures->append({dir, scanText("The folder cannot be read: %1").arg(error)});
        return;
    }
    QStringList files;
    QStringList folders;
    while (const dirent* entry = ::readdir(stream)) {
        const QByteArray name(entry->d_name);
        // Hidden entries are the system's and other programs' (a trash folder, a file
        // manager's metadata, "._" resource forks): a file manager does not show them either.
        if (name.startsWith('.'))
            continue;
        const QString path = dir + QLatin1Char('/') + QFile::decodeName(name);
        if (!nameSurvivesDecoding(name)) {
            if (failures && (accepted(path, filter) || isFolderAt(encodedDir + '/' + name)))
                failures->append({path, scanText("The file name is not valid UTF-8")});
            continue;
        }
        (isFolderAt(encodedDir + '/' + name) ? folders : files).append(path);
    }
    ::closedir(stream);
    // In the order a file manager shows them: "2" before "10", case aside; files, then folders.
    const auto byName = [](const QString& a, const QString& b) { return naturalLess(a, b); };
    std::sort(files.begin(), files.end(), byName);
    std::sort(folders.begin(), folders.end(), byName);
    for (const QString& path : std::as_const(files)) {
        const QFileInfo info(path);
        if (info.exists() && !info.isDir() && accepted(path, filter))
            found << path; // a dangling link is left out
    }
    for (const QString& path : std::as_const(folders)) {
        if (visit.enter(path))
            collectFiles(path, filter, visit, found, failures);
    }
}

QMutex g_switchLock;
std::function<bool()> g_experimentalSwitch;

} // namespace

QString GlobalFun::getTimeStringBySecond(double seconds) {
    int hour = 0;
    int minite = 0;
    int second = 0;
    getHourMiniteSecondWithTime(&hour, &minite, &second, seconds);
    QString text;
    if (hour >= 0)
        text += QString::asprintf("%02d:", hour);
    text += QString::asprintf("%02d:", minite);
    text += QString::asprintf("%02d", second);
    return text;
}

void GlobalFun::getHourMiniteSecondWithTime(int* hour, int* minite, int* second, double seconds) {
    const int total = truncatedToInt(seconds);
    const int hours = total / 3600;
    if (hour)
        *hour = hours;
    if (minite)
        *minite = (total - hours * 3600) / 60;
    if (second)
        *second = total % 60;
}

double GlobalFun::getSecondsByTimeString(const QString& timeString) {
    static constexpr double weights[] = {3600.0, 60.0, 1.0};
    const QStringList pieces = timeString.split(QLatin1Char(':'));
    double total = 0.0;
    for (qsizetype i = 0; i < pieces.size() && i < 3; ++i)
        total += weights[i] * leadingDecimal(pieces.at(i));
    return total;
}

QString GlobalFun::getEstimateStrBySecond(double seconds) {
    const QString remaining = QStringLiteral("%1 %2 %3 %4 remaining");
    if (seconds < 60) {
        // printf rounds the value; the plural test deliberately looks at the unrounded one.
        char number[512];
        std::snprintf(number, sizeof number, "%0.0f", seconds);
        return QStringLiteral("%1 %2 remaining")
            .arg(QString::fromLatin1(number),
                 seconds > 1.0 ? QStringLiteral("seconds") : QStringLiteral("second"));
    }
    if (seconds < 3600) {
        const int whole = truncatedToInt(seconds);
        const int minites = whole / 60;
        const int rest = truncatedToInt(seconds - minites * 60.0) % 60;
        return remaining.arg(minites)
            .arg(whole > 119 ? QStringLiteral("minites") : QStringLiteral("minite"))
            .arg(rest)
            .arg(rest > 1 ? QStringLiteral("seconds") : QStringLiteral("second"));
    }
    // An hour or more, and NaN, which fails both tests above.
    const int whole = truncatedToInt(seconds);
    const int hours = whole / 3600;
    const int rest = truncatedToInt(seconds - hours * 3600.0);
    return remaining.arg(hours)
        .arg(whole > 7199 ? QStringLiteral("hours") : QStringLiteral("hour"))
        .arg(rest / 60)
        .arg(rest > 119 ? QStringLiteral("minites") : QStringLiteral("minite"));
}

QString GlobalFun::makeSureFullPathIdentical(const QString& path, const QString& ext,
                                             const std::function<bool(const QString&)>& taken) {
    const auto isTaken = [&taken](const QString& candidate) {
        return somethingExistsAt(candidate) || (taken && taken(candidate));
    };
    const PathParts given = splitExtension(path);
    QString current = path;
    if (!given.hasExtension || given.extension != ext)
        current = path + QLatin1Char('.') + ext;
    if (!isTaken(current))
        return current;

    // The counter belongs to the file's own name: a folder on the way that happens to be called
    // "Album(1)" is the user's choice and stays as it is.
    const qsizetype slash = current.lastIndexOf(QLatin1Char('/'));
    const QString folder = current.left(slash + 1);
    QString name = current.mid(slash + 1);
    int k = 1;
    for (;;) {
        const PathParts parts = splitExtension(name);
        QString candidate;
        if (!name.contains(counterText(k))) {
            candidate = parts.base + counterText(k);
        } else {
            const QString previous = counterText(k);
            ++k;
            candidate = QString(parts.base).replace(previous, counterText(k));
        }
        candidate += QLatin1Char('.') + parts.extension;
        if (!isTaken(folder + candidate))
            return folder + candidate;
        name = candidate;
    }
}

bool GlobalFun::makeSureFolderExists(const QString& path) {
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).isDir())
        return true;
    // mkpath fails when a regular file stands at the path or on the way to it.
    return QDir().mkpath(path);
}

QStringList GlobalFun::fileListAtDirenctory(const QString& dir, const QStringList& filter,
                                            SXPathFailureList* failures) {
    QStringList found;
    SXFolderVisit visit;
    if (visit.enter(dir))
        collectFiles(dir, filter, visit, found, failures);
    return found;
}

QStringList GlobalFun::getSupportedFmts() {
    QStringList formats = {QStringLiteral("wmv"),  QStringLiteral("rm"),   QStringLiteral("mpg"),
                           QStringLiteral("ts"),   QStringLiteral("avi"),  QStringLiteral("mkv"),
                           QStringLiteral("mov"),  QStringLiteral("flv"),  QStringLiteral("mp4"),
                           QStringLiteral("rmvb"), QStringLiteral("vob"),  QStringLiteral("m4v"),
                           QStringLiteral("3gp"),  QStringLiteral("nsv"),  QStringLiteral("ogm"),
                           QStringLiteral("asf"),  QStringLiteral("f4v"),  QStringLiteral("swf"),
                           QStringLiteral("mp3"),  QStringLiteral("wav"),  QStringLiteral("m4a"),
                           QStringLiteral("ape"),  QStringLiteral("ogg"),  QStringLiteral("flac"),
                           QStringLiteral("aac"),  QStringLiteral("wma"),  QStringLiteral("ac3"),
                           QStringLiteral("amr"),  QStringLiteral("m4r"),  QStringLiteral("mp2"),
                           QStringLiteral("dsd"),  QStringLiteral("opus"), QStringLiteral("oga"),
                           QStringLiteral("aiff"), QStringLiteral("aif"),  QStringLiteral("aifc"),
                           QStringLiteral("wv"),   QStringLiteral("webm"), QStringLiteral("mka"),
                           QStringLiteral("m4b"),  QStringLiteral("mpc"),  QStringLiteral("tta"),
                           QStringLiteral("au"),   QStringLiteral("caf"),  QStringLiteral("spx")};
    std::function<bool()> experimental;
    {
        QMutexLocker lock(&g_switchLock);
        experimental = g_experimentalSwitch;
    }
    if (experimental && !experimental()) {
        for (const char* gated : {"vob", "m4v", "m4r", "drm"})
            formats.removeAll(QLatin1String(gated));
    }
    return formats;
}

void GlobalFun::setExperimentalSwitch(std::function<bool()> isExperimentalOn) {
    QMutexLocker lock(&g_switchLock);
    g_experimentalSwitch = std::move(isExperimentalOn);
}

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
