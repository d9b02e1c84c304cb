#include "SXFolderVisit.h"

#include <QFile>

#include <sys/stat.h>

bool SXFolderVisit::enter(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISDIR(status.st_mode))
        return false;
    const std::pair<quint64, quint64> identity{static_cast<quint64>(status.st_dev),
                                               static_cast<quint64>(status.st_ino)};
    if (m_entered.contains(identity))
        return false;
    m_entered.insert(identity);
    return true;
}
