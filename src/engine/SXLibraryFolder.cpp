#include "engine/SXLibraryFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
// Below `dir` (both absolute and clean): the relative rest, else a null string.
QString relativeBelow(const QString& dir, const QString& file) {
    if (dir.isEmpty() || file.isEmpty())
        return {};
    const QString prefix = dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
    if (!file.startsWith(prefix) || file.size() == prefix.size())
        return {};
    return file.mid(prefix.size());
}

QString candidateName(const QFileInfo& file, int number) {
    if (number == 1)
        return file.fileName();
    const QString suffix = file.suffix();
    const QString stem = suffix.isEmpty() ? file.fileName() : file.completeBaseName();
    const QString numbered = stem + QStringLiteral(" %1").arg(number);
    return suffix.isEmpty() ? numbered : numbered + QLatin1Char('.') + suffix;
}

constexpr int kMaxNameAttempts = 10000;
} // namespace

SXLibraryFolder::SXLibraryFolder(const QString& musicDirectory)
    : m_musicDirectory(QDir::cleanPath(QDir(musicDirectory).absolutePath())) {}

QString SXLibraryFolder::linkDirectory() const {
    return m_musicDirectory + QStringLiteral("/Sonoria/Library");
}

bool SXLibraryFolder::ensureExists() const {
    return QDir().mkpath(m_musicDirectory) && QFileInfo(m_musicDirectory).isDir();
}

QString SXLibraryFolder::relativePath(const QString& file) const {
    const QFileInfo info(file);
    QString relative = relativeBelow(m_musicDirectory, QDir::cleanPath(info.absoluteFilePath()));
    if (!relative.isNull())
        return relative;
    const QString realMusic = QFileInfo(m_musicDirectory).canonicalFilePath();
    const QString realFile = info.canonicalFilePath();
    return relativeBelow(realMusic, realFile);
}

QString SXLibraryFolder::addFile(const QString& file) const {
    const QFileInfo info(file);
    if (!info.isFile())
        return {};
    if (!relativePath(file).isNull())
        return QDir::cleanPath(info.absoluteFilePath());
    const QString target = info.canonicalFilePath();
    const QString folder = linkDirectory();
    if (!QDir().mkpath(folder))
        return {};
    for (int number = 1; number <= kMaxNameAttempts; ++number) {
        const QString link = folder + QLatin1Char('/') + candidateName(info, number);
        const QFileInfo existing(link);
        if (existing.isSymLink() && existing.symLinkTarget() == target)
            return link;
        // symlink(2) fails on any existing entry, so a name taken meanwhile is skipped, not
        // replaced.
        if (!existing.exists() && !existing.isSymLink() && QFile::link(target, link))
            return link;
    }
    return {};
}
