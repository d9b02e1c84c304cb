#include "engine/SXPlaylistFileLibrary.h"

#include "base/SXLog.h"
#include "framework/MTETagFileKind.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QSaveFile>
#include <QUrl>

#include <audioproperties.h>
#include <fileref.h>
#include <tag.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {
const QByteArray kHeader = QByteArrayLiteral("#EXTM3U");

// Threads of this process queue on the mutex, other processes on the flock. The flock alone
// would do (two descriptors of one process exclude each other too), but the mutex keeps the
// order inside the process independent of the file system.
QMutex& playlistMutex() {
    static QMutex mutex;
    return mutex;
}

class FolderLock {
public:
    explicit FolderLock(const QString& folder)
        : m_guard(&playlistMutex())
        , m_fd(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (m_fd < 0)
            return;
        int result = 0;
        do {
            result = ::flock(m_fd, LOCK_EX);
        } while (result != 0 && errno == EINTR);
        m_locked = result == 0;
    }
    ~FolderLock() {
        if (m_fd >= 0)
            ::close(m_fd); // closing releases the flock
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    bool isLocked() const { return m_locked; }

private:
    QMutexLocker<QMutex> m_guard;
    int m_fd = -1;
    bool m_locked = false;
};

// "#EXTINF:<seconds>,<title>": the tag's title and length when TagLib reads the file, else the
// file's name and -1 (unknown length), as the format allows.
QByteArray extinfLine(const QString& file) {
    QString title;
    int seconds = -1;
    MTETagFileKind::prepareForThreads();
    const TagLib::FileRef ref(QFile::encodeName(file).constData(), true,
                              TagLib::AudioProperties::Fast);
    if (!ref.isNull()) {
        if (ref.tag())
            title = QString::fromStdWString(ref.tag()->title().toWString()).trimmed();
        if (ref.audioProperties() && ref.audioProperties()->lengthInSeconds() > 0)
            seconds = ref.audioProperties()->lengthInSeconds();
    }
    if (title.isEmpty())
        title = QFileInfo(file).completeBaseName();
    title.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    return "#EXTINF:" + QByteArray::number(seconds) + ',' + title.toUtf8();
}

// The file an entry line names, as an absolute clean path (entries may be relative to the
// playlist's folder, absolute, or file URLs); empty for comments and blank lines.
QString entryTarget(const QByteArray& rawLine, const QString& playlistFolder) {
    QByteArray line = rawLine;
    if (line.endsWith('\r'))
        line.chop(1);
    if (line.isEmpty() || line.startsWith('#'))
        return {};
    QString path = QString::fromUtf8(line);
    if (path.startsWith(QLatin1String("file:")))
        path = QUrl(path).toLocalFile();
    if (path.isEmpty())
        return {};
    return QDir::cleanPath(QDir(playlistFolder).absoluteFilePath(path));
}

bool listsFile(const QByteArray& playlist, const QString& playlistFolder, const QString& file) {
    const QString wanted = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    const QString wantedReal = QFileInfo(file).canonicalFilePath();
    const QList<QByteArray> lines = playlist.split('\n');
    for (const QByteArray& line : lines) {
        const QString target = entryTarget(line, playlistFolder);
        if (target.isEmpty())
            continue;
        if (target == wanted ||
            (!wantedReal.isEmpty() && QFileInfo(target).canonicalFilePath() == wantedReal))
            return true;
    }
    return false;
}
} // namespace

SXPlaylistFileLibrary::SXPlaylistFileLibrary(const QString& musicDirectory)
    : m_library(musicDirectory) {}

QString SXPlaylistFileLibrary::playlistPath(const QString& playlistName) const {
    QString fileName = playlistName;
    fileName.replace(QLatin1Char('/'), QLatin1Char('_')).replace(QChar(0), QLatin1Char('_'));
    return m_library.musicDirectory() + QLatin1Char('/') + fileName + QStringLiteral(".m3u8");
}

SXDeliveryResult SXPlaylistFileLibrary::deliver(const QString& playlistName,
                                                const QString& file) const {
    if (!m_library.ensureExists()) {
        SXLog::line(QStringLiteral("could not find iTunes library"));
        return SXDeliveryResult::LibraryUnreachable;
    }
    if (!QFileInfo(file).isFile()) {
        SXLog::line(QStringLiteral("library delivery: no such file: %1").arg(file));
        return SXDeliveryResult::Failed;
    }
    if (m_library.addFile(file).isEmpty())
        SXLog::line(QStringLiteral("could not link %1 into the music folder").arg(file));
    if (playlistName.isEmpty())
        return SXDeliveryResult::LibraryOnly;
    return addToPlaylist(playlistPath(playlistName), file);
}

QString SXPlaylistFileLibrary::entryFor(const QString& file) const {
    const QString relative = m_library.relativePath(file);
    if (relative.isNull())
        return QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    // Every reader takes a line that starts with '#' for a comment or a directive: a file named
    // "#hash.mp3" would silently vanish from the playlist.
    return relative.startsWith(QLatin1Char('#')) ? QStringLiteral("./") + relative : relative;
}

SXDeliveryResult SXPlaylistFileLibrary::addToPlaylist(const QString& path,
                                                      const QString& file) const {
    const QString entry = entryFor(file);
    if (entry.contains(QLatin1Char('\n')) || entry.contains(QLatin1Char('\r'))) {
        // A playlist holds one path per line; such a name cannot be written without breaking it.
        SXLog::line(
            QStringLiteral("cannot list a file whose name holds a line break: %1").arg(file));
        return SXDeliveryResult::Failed;
    }
    const FolderLock lock(m_library.musicDirectory());
    if (!lock.isLocked())
        SXLog::line(
            QStringLiteral("could not lock the music folder; writing %1 unlocked").arg(path));

    QByteArray content;
    QFile existing(path);
    if (existing.exists()) {
        if (!existing.open(QIODevice::ReadOnly)) {
            SXLog::line(QStringLiteral("could not read playlist %1").arg(path));
            return SXDeliveryResult::Failed;
        }
        content = existing.readAll();
        existing.close();
    }
    if (listsFile(content, m_library.musicDirectory(), file))
        return SXDeliveryResult::AlreadyListed;

    if (content.trimmed().isEmpty())
        content = kHeader + '\n';
    else if (!content.endsWith('\n'))
        content += '\n';
    content += extinfLine(file) + '\n' + entry.toUtf8() + '\n';

    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size() || !out.commit()) {
        SXLog::line(QStringLiteral("could not write playlist %1: %2").arg(path, out.errorString()));
        return SXDeliveryResult::Failed;
    }
    return SXDeliveryResult::Added;
}
