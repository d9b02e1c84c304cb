#include "SXFileLocalManager.h"

#include "Common/Util/SXHomeFolder.h"
#include "Shared/GlobalFun.h"
#include "Shared/SXBundle.h"

#include <QDir>
#include <QFile>

namespace {

// Undoes the shell quoting that the desktop's tools write: surrounding double quotes and
// backslash escapes inside them.
QString unquoted(const QString& value) {
    if (value.size() < 2 || !value.startsWith(QLatin1Char('"')) ||
        !value.endsWith(QLatin1Char('"')))
        return value;
    QString plain;
    const QString inner = value.mid(1, value.size() - 2);
    for (qsizetype i = 0; i < inner.size(); ++i) {
        if (inner.at(i) == QLatin1Char('\\') && i + 1 < inner.size())
            ++i;
        plain += inner.at(i);
    }
    return plain;
}

} // namespace

QString SXFileLocalManager::getDefaultOutputDir(const QString& fmtName) {
    return musicDirectory() + QLatin1Char('/') + SXBundle::productName() + QLatin1Char('/') +
           fmtName;
}

QString SXFileLocalManager::getDefaultUpperOutputDir() {
    const QString folder = musicDirectory() + QLatin1Char('/') + SXBundle::productName();
    // A failure shows later, when output is written there; the path is still the right answer.
    GlobalFun::MakeSureFolderExsist(folder);
    return folder;
}

QString SXFileLocalManager::convertedAudioDirectory() {
    return moviesDirectory() + QLatin1Char('/') + SXBundle::productName() +
           QStringLiteral("/Audio Converted");
}

QString SXFileLocalManager::musicDirectory() {
    return userDirectory(QStringLiteral("XDG_MUSIC_DIR"), QStringLiteral("Music"));
}

QString SXFileLocalManager::moviesDirectory() {
    return userDirectory(QStringLiteral("XDG_VIDEOS_DIR"), QStringLiteral("Videos"));
}

QString SXFileLocalManager::userDirectory(const QString& key, const QString& fallbackName) {
    // The real home's own settings, not $XDG_CONFIG_HOME: like the home itself, the answer must
    // not depend on how this process was started.
    const QString home = SXHomeFolder::realHome();
    QFile config(home + QStringLiteral("/.config/user-dirs.dirs"));
    if (config.open(QIODevice::ReadOnly)) {
        const QString chosen =
            userDirectoryFromConfig(QString::fromUtf8(config.readAll()), key, home);
        if (!chosen.isEmpty())
            return chosen;
    }
    return home + QLatin1Char('/') + fallbackName;
}

QString SXFileLocalManager::userDirectoryFromConfig(const QString& configText, const QString& key,
                                                    const QString& home) {
    QString value;
    // The file is a shell fragment: the last assignment wins.
    const QStringList lines = configText.split(QLatin1Char('\n'));
    for (const QString& rawLine : lines) {
        const QString line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals > 0 && line.left(equals).trimmed() == key)
            value = unquoted(line.mid(equals + 1).trimmed());
    }

    const QString homeVariable = QStringLiteral("$HOME");
    QString folder;
    if (value == homeVariable || value.startsWith(homeVariable + QLatin1Char('/')))
        folder = home + value.mid(homeVariable.size());
    else if (value.startsWith(QLatin1Char('/')))
        folder = value;
    else
        return {}; // missing, empty or relative: the desktop's own tools ignore those too
    folder = QDir::cleanPath(folder);
    return folder == QDir::cleanPath(home) ? QString() : folder;
}
