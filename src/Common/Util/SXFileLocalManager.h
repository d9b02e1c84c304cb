#pragma once

#include <QString>

// Where output goes by default. Every folder is built on the user's real home folder
// (SXHomeFolder::realHome), taken from the user database rather than from $HOME, so the defaults
// stay the same however the process was started. "Music" and "Movies" follow the desktop's user
// folders (user-dirs.dirs) when it names them, else they are Music and Videos under the real home.
class SXFileLocalManager {
public:
    // <music>/Sonoria/<fmtName>; the name is used as it stands and nothing is created.
    static QString getDefaultOutputDir(const QString& fmtName);
    // <music>/Sonoria, created with its parents when nothing is there yet.
    static QString getDefaultUpperOutputDir();
    // <videos>/Sonoria/Audio Converted; the application creates it at launch.
    static QString convertedAudioDirectory();

    static QString musicDirectory();
    static QString moviesDirectory();

    // The folder that user-dirs.dirs text `configText` assigns to `key` (such as
    // "XDG_MUSIC_DIR"), with "$HOME" read as `home`. Empty when the key is missing, its value is
    // malformed, or it points at the home folder itself, which the desktop uses for "not set".
    static QString userDirectoryFromConfig(const QString& configText, const QString& key,
                                           const QString& home);

private:
    static QString userDirectory(const QString& key, const QString& fallbackName);
};
