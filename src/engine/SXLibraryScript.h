#pragma once

#include <QString>

// The library script: resource "sync-music-library" (a POSIX shell script), run after a
// successful conversion when the user asked for every converted file to go to the library.
class SXLibraryScript {
public:
    // Runs the script with the output file's full path and name, as an argument vector (never
    // a command string, so no character of the name is interpreted), and waits for it. The
    // script is told the application's music folder, so both delivery routes agree on it. The
    // conversion ignores the result; it is the script's exit code, or -1 when the script is
    // missing, could not start, crashed or had to be stopped.
    static int run(const QString& outputFile);

    // The same with an explicit script and music folder. An empty music folder leaves the
    // choice to the script (the desktop's user-dirs.dirs, else ~/Music).
    static int runScript(const QString& scriptPath, const QString& outputFile,
                         const QString& musicDirectory);
};
