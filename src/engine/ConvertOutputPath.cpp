#include "engine/ConvertOutputPath.h"

#include "base/FileHelper.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {
QMutex g_claimsLock;
QSet<QString> g_claims; // guarded by g_claimsLock
} // namespace

QString ConvertOutputPath::claim(const QString& path, const QString& ext) {
    QMutexLocker locker(&g_claimsLock);
    const QString name = FileHelper::unusedPath(
        path, ext, [](const QString& candidate) { return g_claims.contains(candidate); });
    g_claims.insert(name);
    return name;
}

bool ConvertOutputPath::claimExact(const QString& path) {
    QMutexLocker locker(&g_claimsLock);
    if (g_claims.contains(path))
        return false;
    g_claims.insert(path);
    return true;
}

void ConvertOutputPath::release(const QString& path) {
    QMutexLocker locker(&g_claimsLock);
    g_claims.remove(path);
}

bool ConvertOutputPath::isClaimed(const QString& path) {
    QMutexLocker locker(&g_claimsLock);
    return g_claims.contains(path);
}

int ConvertOutputPath::renameNoReplace(const QString& from, const QString& to) {
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) ==
        0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    if (::link(source.constData(), target.constData()) != 0)
        return errno;
    if (::unlink(source.constData()) != 0) {
        const int error = errno;
        ::unlink(target.constData());
        return error;
    }
    return 0;
}
