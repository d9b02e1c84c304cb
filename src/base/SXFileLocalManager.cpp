#include "SXFileLocalManager.h"

#include "base/SXInstallation.h"

#include <QDir>
#include <QStandardPaths>

QString SXFileLocalManager::getDefaultUpperOutputDir() {
    return musicDirectory() + QLatin1Char('/') + SXInstallation::productName();
}

QString SXFileLocalManager::musicDirectory() {
    // Qt reads user-dirs.dirs itself and falls back to $HOME/Music when it names no music folder.
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    return QDir::cleanPath(music.isEmpty() ? QDir::homePath() + QStringLiteral("/Music") : music);
}

QString SXFileLocalManager::processHome() {
    return QDir::homePath();
}

QString SXFileLocalManager::documentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString SXFileLocalManager::dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}
