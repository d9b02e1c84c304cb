#include "engine/ConvertOutputRecord.h"

#include "base/SXFileLocalManager.h"
#include "base/SXLog.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QSaveFile>
#include <QUrl>

#include <sys/stat.h>

namespace {

// Past this many lines the record drops those of files that are gone or changed.
constexpr int kCompactAfterLines = 2000;
QMutex g_recordLock;

// "device inode size mtime-seconds mtime-nanoseconds" of the file at `path`; empty when there is
// no regular file.
QByteArray identityOf(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return QByteArray::number(quint64(status.st_dev)) + ' ' +
           QByteArray::number(quint64(status.st_ino)) + ' ' +
           QByteArray::number(qint64(status.st_size)) + ' ' +
           QByteArray::number(qint64(status.st_mtim.tv_sec)) + ' ' +
           QByteArray::number(qint64(status.st_mtim.tv_nsec));
}

QList<QByteArray> readLines() {
    QFile file(ConvertOutputRecord::recordFile());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> lines = file.readAll().split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

// A line is "identity<TAB>percent-encoded path".
QByteArray lineFor(const QByteArray& identity, const QString& path) {
    return identity + '\t' + QUrl::toPercentEncoding(path) + '\n';
}

void compact(const QList<QByteArray>& lines) {
    QSaveFile file(ConvertOutputRecord::recordFile());
    if (!file.open(QIODevice::WriteOnly))
        return;
    for (const QByteArray& line : lines) {
        const qsizetype tab = line.indexOf('\t');
        const QString path = QUrl::fromPercentEncoding(line.mid(tab + 1));
        if (tab > 0 && identityOf(path) == line.left(tab))
            file.write(line + '\n');
    }
    file.commit();
}

} // namespace

QString ConvertOutputRecord::recordFile() {
    return SXFileLocalManager::dataFolder() + QStringLiteral("/sonoria/written-outputs");
}

void ConvertOutputRecord::remember(const QString& path) {
    const QByteArray identity = identityOf(path);
    if (identity.isEmpty())
        return;
    QMutexLocker locker(&g_recordLock);
    QDir().mkpath(QFileInfo(recordFile()).absolutePath());
    const QList<QByteArray> lines = readLines();
    if (lines.size() > kCompactAfterLines)
        compact(lines);
    QFile file(recordFile());
    // One short write in append mode: another instance appending at the same time cannot
    // interleave inside the line.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append) ||
        file.write(lineFor(identity, path)) < 0)
        SXLog::line(QStringLiteral("cannot record the output %1 in %2").arg(path, recordFile()));
}

bool ConvertOutputRecord::wroteThis(const QString& path) {
    const QByteArray identity = identityOf(path);
    if (identity.isEmpty())
        return false;
    QMutexLocker locker(&g_recordLock);
    for (const QByteArray& line : readLines()) {
        if (line.startsWith(identity + '\t'))
            return true;
    }
    return false;
}
