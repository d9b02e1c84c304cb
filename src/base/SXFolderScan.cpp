#include "base/SXFolderScan.h"

#include "base/FileHelper.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

#include <algorithm>

#include <dirent.h>
#include <sys/stat.h>
#include <system_error>

namespace {

QString scanText(const char* text) {
    return QCoreApplication::translate("SXFolderScan", text);
}

bool accepted(const QString& path, const QStringList& filter) {
    const QString extension = FileHelper::extensionOf(path);
    return !extension.isEmpty() && filter.contains(extension, Qt::CaseInsensitive);
}

// A name QString cannot carry: decoding and encoding it again does not give its bytes back, so
// the path we would make of it names another file or none.
bool nameSurvivesDecoding(const QByteArray& name) {
    return QFile::encodeName(QFile::decodeName(name)) == name;
}

// Natural order: runs of digits compare by their value, the rest without regard to case (then
// by the locale, so accented letters sort as the user expects). QCollator's numeric mode needs
// ICU and a real locale, which a C locale or a minimal system does not give.
bool naturalLess(const QString& a, const QString& b) {
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (a.at(i).isDigit() && b.at(j).isDigit()) {
            qsizetype ei = i, ej = j;
            while (ei < a.size() && a.at(ei).isDigit())
                ++ei;
            while (ej < b.size() && b.at(ej).isDigit())
                ++ej;
            QStringView na = QStringView(a).mid(i, ei - i), nb = QStringView(b).mid(j, ej - j);
            while (na.size() > 1 && na.front() == u'0')
                na = na.mid(1);
            while (nb.size() > 1 && nb.front() == u'0')
                nb = nb.mid(1);
            if (na.size() != nb.size())
                return na.size() < nb.size();
            if (const int order = na.compare(nb); order != 0)
                return order < 0;
            i = ei;
            j = ej;
            continue;
        }
        qsizetype ei = i, ej = j;
        while (ei < a.size() && !a.at(ei).isDigit())
            ++ei;
        while (ej < b.size() && !b.at(ej).isDigit())
            ++ej;
        const QString ta = a.mid(i, ei - i).toCaseFolded(), tb = b.mid(j, ej - j).toCaseFolded();
        if (const int order = QString::localeAwareCompare(ta, tb); order != 0)
            return order < 0;
        i = ei;
        j = ej;
    }
    if ((a.size() - i) != (b.size() - j))
        return (a.size() - i) < (b.size() - j);
    return a < b;
}

bool isFolderAt(const QByteArray& encodedPath) {
    struct stat status {};
    return ::stat(encodedPath.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Lists with readdir(3), which gives the names' raw bytes, so that a name that is not valid
// UTF-8 is noticed and reported instead of vanishing; a folder that cannot be listed is
// reported too. Unsorted: the entries come in the order the file system returns them.
void collectFiles(const QString& dir, const QStringList& filter, SXFolderVisit& visit,
                  QStringList& found, SXPathFailureList* failures) {
    const QByteArray encodedDir = QFile::encodeName(dir);
    DIR* stream = ::opendir(encodedDir.constData());
    if (!stream) {
        const QString error = QString::fromStdString(std::generic_category().message(errno));
        if (failures)
            failures->append({dir, scanText("The folder cannot be read: %1").arg(error)});
        return;
    }
    QStringList files;
    QStringList folders;
    while (const dirent* entry = ::readdir(stream)) {
        const QByteArray name(entry->d_name);
        // Hidden entries are the system's and other programs' (a trash folder, a file
        // manager's metadata, "._" resource forks): a file manager does not show them either.
        if (name.startsWith('.'))
            continue;
        const QString path = dir + QLatin1Char('/') + QFile::decodeName(name);
        if (!nameSurvivesDecoding(name)) {
            if (failures && (accepted(path, filter) || isFolderAt(encodedDir + '/' + name)))
                failures->append({path, scanText("The file name is not valid UTF-8")});
            continue;
        }
        (isFolderAt(encodedDir + '/' + name) ? folders : files).append(path);
    }
    ::closedir(stream);
    // In the order a file manager shows them: "2" before "10", case aside; files, then folders.
    const auto byName = [](const QString& a, const QString& b) { return naturalLess(a, b); };
    std::sort(files.begin(), files.end(), byName);
    std::sort(folders.begin(), folders.end(), byName);
    for (const QString& path : std::as_const(files)) {
        const QFileInfo info(path);
        if (info.exists() && !info.isDir() && accepted(path, filter))
            found << path; // a dangling link is left out
    }
    for (const QString& path : std::as_const(folders)) {
        if (visit.enter(path))
            collectFiles(path, filter, visit, found, failures);
    }
}

QMutex g_switchLock;
std::function<bool()> g_experimentalSwitch;

} // namespace

QStringList SXFolderScan::filesBelow(const QString& dir, const QStringList& filter,
                                     SXPathFailureList* failures) {
    QStringList found;
    SXFolderVisit visit;
    if (visit.enter(dir))
        collectFiles(dir, filter, visit, found, failures);
    return found;
}

QStringList SXFolderScan::acceptedExtensions() {
    QStringList formats = {QStringLiteral("wmv"),  QStringLiteral("rm"),   QStringLiteral("mpg"),
                           QStringLiteral("ts"),   QStringLiteral("avi"),  QStringLiteral("mkv"),
                           QStringLiteral("mov"),  QStringLiteral("flv"),  QStringLiteral("mp4"),
                           QStringLiteral("rmvb"), QStringLiteral("vob"),  QStringLiteral("m4v"),
                           QStringLiteral("3gp"),  QStringLiteral("nsv"),  QStringLiteral("ogm"),
                           QStringLiteral("asf"),  QStringLiteral("f4v"),  QStringLiteral("swf"),
                           QStringLiteral("mp3"),  QStringLiteral("wav"),  QStringLiteral("m4a"),
                           QStringLiteral("ape"),  QStringLiteral("ogg"),  QStringLiteral("flac"),
                           QStringLiteral("aac"),  QStringLiteral("wma"),  QStringLiteral("ac3"),
                           QStringLiteral("amr"),  QStringLiteral("m4r"),  QStringLiteral("mp2"),
                           QStringLiteral("dsd"),  QStringLiteral("opus"), QStringLiteral("oga"),
                           QStringLiteral("aiff"), QStringLiteral("aif"),  QStringLiteral("aifc"),
                           QStringLiteral("wv"),   QStringLiteral("webm"), QStringLiteral("mka"),
                           QStringLiteral("m4b"),  QStringLiteral("mpc"),  QStringLiteral("tta"),
                           QStringLiteral("au"),   QStringLiteral("caf"),  QStringLiteral("spx"),
                           QStringLiteral("cue")};
    std::function<bool()> experimental;
    {
        QMutexLocker lock(&g_switchLock);
        experimental = g_experimentalSwitch;
    }
    if (experimental && !experimental()) {
        for (const char* gated : {"vob", "m4v", "m4r", "drm"})
            formats.removeAll(QLatin1String(gated));
    }
    return formats;
}

void SXFolderScan::setExperimentalSwitch(std::function<bool()> isExperimentalOn) {
    QMutexLocker lock(&g_switchLock);
    g_experimentalSwitch = std::move(isExperimentalOn);
}

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
