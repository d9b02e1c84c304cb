#pragma once

#include <QString>

// Where output goes by default: the desktop's music folder of the process's own home ($HOME and
// user-dirs.dirs under $XDG_CONFIG_HOME, as every other desktop program reads them), else Music
// under $HOME. Nothing here creates a folder: a folder appears only when a run writes into it.
class SXFileLocalManager {
public:
    // <music>/Sonoria, the folder the Start dialog offers first.
    static QString getDefaultUpperOutputDir();

    static QString musicDirectory();
};
