#include "Convert/ConvertOutputFile.h"

#include "Convert/ConvertOutputPath.h"
#include "Model/LSMedia.h"
#include "Shared/SXLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString ConvertOutputFile::folderFor(const QString& chosen, const LSMedia& media) {
    return chosen.isEmpty() ? QFileInfo(media.filePath()).absolutePath()
                            : QDir(chosen).absolutePath();
}

QString ConvertOutputFile::reserve(const LSMedia& media, const QString& folder,
                                   const QString& encodeExt) {
    const QString ext = encodeExt.isEmpty() ? media.strOutFileExt() : encodeExt;
    QString name = media.strOutFileName();
    if (!ext.isEmpty())
        name += QLatin1Char('.') + ext;
    bool reserved = false;
    QString error;
    const QString path =
        ConvertOutputPath::reserve(folder + QLatin1Char('/') + name, ext, &reserved, &error);
    if (!reserved)
        SXLog::line(QStringLiteral("can't create output file %1: %2").arg(path, error));
    m_owns = reserved;
    return path;
}

void ConvertOutputFile::removeIfOwn(const QString& path) {
    if (m_owns && QFileInfo::exists(path))
        QFile::remove(path);
    m_owns = false;
}

QString ConvertOutputFile::moveToExtension(const QString& current, const QString& ext) {
    const QFileInfo info(current);
    if (!info.exists())
        return current;
    QString wanted = current;
    if (!info.suffix().isEmpty())
        wanted.chop(info.suffix().size() + 1);
    if (!ext.isEmpty())
        wanted += QLatin1Char('.') + ext;
    QString error;
    const QString target = ConvertOutputPath::moveWithoutReplacing(current, wanted, &error);
    if (target.isEmpty())
        SXLog::line(QStringLiteral("can't move %1 to %2: %3").arg(current, wanted, error));
    return target;
}
