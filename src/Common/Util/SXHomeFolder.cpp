#include "SXHomeFolder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <vector>

#include <pwd.h>
#include <unistd.h>

QString SXHomeFolder::realHome() {
    const QString standIn = qEnvironmentVariable(kRealHomeVariable);
    // A relative path would move with the working folder; it is no home and is ignored.
    if (QDir::isAbsolutePath(standIn))
        return QDir::cleanPath(standIn);
    return fromUserDatabase();
}

QString SXHomeFolder::fromUserDatabase() {
    const long suggested = ::sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(suggested > 0 ? static_cast<size_t>(suggested) : 16384);
    struct passwd record {};
    struct passwd* pw = nullptr;
    while (::getpwuid_r(::getuid(), &record, buffer.data(), buffer.size(), &pw) == ERANGE)
        buffer.resize(buffer.size() * 2);
    // Q_ASSERT vanishes in release builds; this stop must not.
    if (!pw)
        qt_assert("pw", __FILE__, __LINE__);
    return QDir::cleanPath(QFile::decodeName(pw->pw_dir));
}

QString SXHomeFolder::processHome() {
    return QDir::homePath();
}

QString SXHomeFolder::documentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString SXHomeFolder::dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}
