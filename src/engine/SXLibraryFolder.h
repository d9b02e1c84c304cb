#pragma once

#include <QString>

// The user's music folder seen as a library. Players on Linux index that folder instead of
// offering an "add" call, so a file below it is in the library, and a file elsewhere is made
// visible by a symbolic link in <music>/Sonoria/Library. The library script follows the same
// rule, so both delivery routes agree on where a file ends up.
class SXLibraryFolder {
public:
    explicit SXLibraryFolder(const QString& musicDirectory);

    QString musicDirectory() const { return m_musicDirectory; }
    QString linkDirectory() const;

    // Creates the music folder when it is missing; false when it cannot.
    bool ensureExists() const;

    // The file's path relative to the music folder, or a null string when the file does not lie
    // below it. Both the paths as given and their real paths (links resolved) are tried.
    QString relativePath(const QString& file) const;

    // Makes sure the file is in the library. Returns the path under the music folder that shows
    // it (the file itself, an earlier link to it, or a new link), or an empty string on failure.
    // An existing entry is never replaced: a taken name becomes "name 2.ext", "name 3.ext", ...
    QString addFile(const QString& file) const;

private:
    QString m_musicDirectory;
};
