#pragma once

#include <QString>

// The one place that knows where the user's home is. There are two:
// - the real home, the home folder of the real user id in the user database. The default output
//   folders are built on it so that they stay the same however the process was started;
// - the process's own home ($HOME and the XDG variables), which the standard folders follow.
//
// $SONORIA_HOME, when it holds an absolute path, stands in for the real home. The test suite sets
// it so that no test writes into the user's folders; child processes inherit it, so the
// command-line tool started by a test obeys it as well.
class SXHomeFolder {
public:
    static constexpr const char* kRealHomeVariable = "SONORIA_HOME";

    // $SONORIA_HOME when it is an absolute path, otherwise fromUserDatabase(); cleaned.
    static QString realHome();
    // Home folder of the real user id in the user database. Stops the process when the database
    // has no record for the id: there is no sensible place for output then.
    static QString fromUserDatabase();

    // The process's own home: $HOME, or the root folder when $HOME is unset.
    static QString processHome();
    static QString documentsFolder(); // the desktop's documents folder of the process's home
    static QString dataFolder();      // per-user application data ($XDG_DATA_HOME, ~/.local/share)
};
