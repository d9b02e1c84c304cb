#include "Convert/ConvertOutputPath.h"

#include "Shared/GlobalFun.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {
// Each round either returns or finds the name it tried taken by someone else; only a folder that
// keeps filling up faster than we look could exhaust this.
constexpr int kMaxRounds = 10000;

QString systemError(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

// rename(2) without replacing: renameat2 where the file system supports it, else a hard link
// (which fails on an existing name) followed by removing the old name.
int renameNoReplace(const QByteArray& from, const QByteArray& to) {
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    if (::link(from.constData(), to.constData()) != 0)
        return errno;
    if (::unlink(from.constData()) != 0) {
        const int error = errno;
        ::unlink(to.constData());
        return error;
    }
    return 0;
}
} // namespace

QString ConvertOutputPath::reserve(const QString& path, const QString& ext, bool* reserved,
                                   QString* error) {
    *reserved = false;
    QString candidate;
    for (int round = 0; round < kMaxRounds; ++round) {
        candidate = GlobalFun::makeSureFullPathIdentical(path, ext);
        QFile file(candidate);
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            *reserved = true;
            return candidate;
        }
        if (!QFileInfo::exists(candidate)) {
            if (error)
                *error = file.errorString();
            return candidate;
        }
        // Another writer took the name between the check and the creation: pick again.
    }
    if (error)
        *error = QStringLiteral("no free name");
    return candidate;
}

QString ConvertOutputPath::moveWithoutReplacing(const QString& from, const QString& wanted,
                                                QString* error) {
    const QString ext = QFileInfo(wanted).suffix();
    for (int round = 0; round < kMaxRounds; ++round) {
        const QString target = GlobalFun::makeSureFullPathIdentical(wanted, ext);
        const int result = renameNoReplace(QFile::encodeName(from), QFile::encodeName(target));
        if (result == 0)
            return target;
        if (result != EEXIST) {
            if (error)
                *error = systemError(result);
            return {};
        }
    }
    if (error)
        *error = QStringLiteral("no free name");
    return {};
}
