#include "FileHelper.h"

#include "base/SXFileLocalManager.h"
#include "base/SXFolderScan.h"
#include "base/SXInstallation.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

constexpr quint64 kDiskFullBelowBytes = 560ULL * 1024 * 1024; // 587,202,560

std::filesystem::path nativePath(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

// Anything at the path, dangling links included.
bool occupied(const QString& path) {
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

bool copyRecursively(const QString& from, const QString& to) {
    if (occupied(to))
        return false;
    std::error_code error;
    std::filesystem::copy(nativePath(from), nativePath(to),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::copy_symlinks,
                          error);
    return !error;
}

QString findIn(const QString& folder, const QString& fileName, SXFolderVisit& visit) {
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo info(path);
        if (!info.exists())
            continue;
        if (info.isDir()) {
            if (visit.enter(path) && !findIn(path, fileName, visit).isNull())
                return path + QLatin1Char('/') + fileName;
        } else if (info.fileName() == fileName) {
            return fileName;
        }
    }
    return {};
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

} // namespace

QString FileHelper::extensionOf(const QString& path) {
    return splitExtension(path).extension;
}

QString FileHelper::unusedPath(const QString& path, const QString& ext,
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

bool FileHelper::makeSureFolderExists(const QString& path) {
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).isDir())
        return true;
    // mkpath fails when a regular file stands at the path or on the way to it.
    return QDir().mkpath(path);
}

bool FileHelper::fileExistsWithPath(const QString& path) {
    return !path.isEmpty() && QFileInfo::exists(path);
}

bool FileHelper::directoryExistsWithPath(const QString& path) {
    return fileExistsWithPath(path);
}

bool FileHelper::createFileWithPath(const QString& path) {
    // O_EXCL: an existing file is never emptied.
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0)
        return false;
    ::close(fd);
    return true;
}

bool FileHelper::createDirectoryWithPath(const QString& path) {
    return !path.isEmpty() && QDir().mkpath(path);
}

void FileHelper::checkAndCreateFileAtPath(const QString& path, bool iCloud) {
    Q_UNUSED(iCloud);
    if (!fileExistsWithPath(path))
        createDirectoryWithPath(path);
}

bool FileHelper::deleteFileWithPath(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir() && !info.isSymLink())
        return QDir(path).removeRecursively();
    return occupied(path) && ::unlink(QFile::encodeName(path).constData()) == 0;
}

bool FileHelper::deleteDirectoryWithPath(const QString& path) {
    return deleteFileWithPath(path);
}

bool FileHelper::moveFile(const QString& from, const QString& to) {
    if (!occupied(from) || occupied(to))
        return false;
    if (QFile::rename(from, to))
        return true;
    // A folder cannot be renamed onto another file system: copy it whole, then remove it.
    if (QFileInfo(from).isDir() && copyRecursively(from, to))
        return deleteFileWithPath(from);
    return false;
}

bool FileHelper::copyFile(const QString& from, const QString& to) {
    if (!occupied(from))
        return false;
    if (QFileInfo(from).isDir())
        return copyRecursively(from, to);
    return !occupied(to) && QFile::copy(from, to);
}

quint64 FileHelper::getFileSizeWithPath(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return 0;
    return static_cast<quint64>(status.st_size);
}

quint64 FileHelper::getFileSystemFreeSize() {
    return getFreeSizeOfFileSystemHolding(SXFileLocalManager::processHome());
}

quint64 FileHelper::getFreeSizeOfFileSystemHolding(const QString& path) {
    // A folder that does not exist (yet) would be made on the file system of its nearest
    // existing parent, so that one is asked instead of reporting a full disk.
    QString place = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    struct statvfs fileSystem {};
    while (::statvfs(QFile::encodeName(place).constData(), &fileSystem) != 0) {
        if (errno != ENOENT && errno != ENOTDIR)
            return 0;
        const QString parent = QFileInfo(place).path();
        if (parent == place)
            return 0;
        place = parent;
    }
    return static_cast<quint64>(fileSystem.f_bavail) * static_cast<quint64>(fileSystem.f_frsize);
}

bool FileHelper::isDiskFull() {
    return isDiskFullForFreeBytes(getFileSystemFreeSize());
}

bool FileHelper::isDiskFullForFreeBytes(quint64 freeBytes) {
    return freeBytes < kDiskFullBelowBytes;
}

QString FileHelper::getDocumentsPath() {
    return SXFileLocalManager::documentsFolder();
}

QString FileHelper::getLibraryPath() {
    return SXFileLocalManager::dataFolder();
}

QString FileHelper::getAppPath() {
    return SXInstallation::executableDirectory();
}

QString FileHelper::getTemporaryPath() {
    return QDir::tempPath();
}

QString FileHelper::dataDirectory() {
    return getDocumentsPath();
}

QString FileHelper::getDownloadListFile() {
    return dataDirectory() + QStringLiteral("/downloadlist");
}

QString FileHelper::getDownloadMediaDirectory() {
    return dataDirectory() + QStringLiteral("/Caches/Media");
}

QString FileHelper::getDownloadTempDirectory() {
    return dataDirectory() + QStringLiteral("/Caches/Temp");
}

QString FileHelper::getADImagesPath() {
    return getLibraryPath() + QStringLiteral("/Caches/AdImages");
}

QString FileHelper::getLangConfigPath() {
    const QString folder = getLibraryPath() + QStringLiteral("/Caches/lang");
    makeSureFolderExists(folder);
    return folder + QStringLiteral("/lang.dat");
}

QString FileHelper::findFile(const QString& folder, const QString& fileName) {
    SXFolderVisit visit;
    if (!visit.enter(folder))
        return {};
    return findIn(folder, fileName, visit);
}
