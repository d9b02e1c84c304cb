#include "FileHelper.h"

#include "base/SXHomeFolder.h"
#include "base/GlobalFun.h"
#include "base/SXBundle.h"
#include "base/SXFolderVisit.h"

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

} // namespace

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
    return getFreeSizeOfFileSystemHolding(SXHomeFolder::processHome());
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
    return SXHomeFolder::documentsFolder();
}

QString FileHelper::getLibraryPath() {
    return SXHomeFolder::dataFolder();
}

QString FileHelper::getAppPath() {
    return SXBundle::executableDirectory();
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
    GlobalFun::makeSureFolderExists(folder);
    return folder + QStringLiteral("/lang.dat");
}

QString FileHelper::findFile(const QString& folder, const QString& fileName) {
    SXFolderVisit visit;
    if (!visit.enter(folder))
        return {};
    return findIn(folder, fileName, visit);
}
