#pragma once

#include <QString>

// Where the user's folders are, the one place that knows: the home, the documents and data
// folders, and where output goes by default: the desktop's music folder of the process's own home
// ($HOME and user-dirs.dirs under $XDG_CONFIG_HOME, as every other desktop program reads them),
// else Music under $HOME. Nothing here creates a folder: a folder appears only when a run writes
// into it.
class SXFileLocalManager {
public:
    // <music>/Sonoria, the folder the Start dialog offers first.
    static QString getDefaultUpperOutputDir();

    static QString musicDirectory();

    // The process's own home: $HOME, or the root folder when $HOME is unset.
    static QString processHome();
    static QString documentsFolder(); // the desktop's documents folder of the process's home
    static QString dataFolder();      // per-user application data ($XDG_DATA_HOME, ~/.local/share)
};
