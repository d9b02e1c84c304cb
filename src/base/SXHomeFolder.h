#pragma once

#include <QString>

// The one place that knows where the user's home is: the process's own home ($HOME and the XDG
// variables), which the standard folders follow. The tests point them at a temporary folder.
class SXHomeFolder {
public:
    // The process's own home: $HOME, or the root folder when $HOME is unset.
    static QString processHome();
    static QString documentsFolder(); // the desktop's documents folder of the process's home
    static QString dataFolder();      // per-user application data ($XDG_DATA_HOME, ~/.local/share)
};
