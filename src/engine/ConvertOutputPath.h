#pragma once

#include <QString>

// Output names that never replace an existing file, even when several conversions pick a name
// in the same folder at the same moment. While a conversion runs its name is only claimed in
// this process (nothing carries it on disk until the output is whole); the final move refuses
// to replace what another program put there meanwhile.
class ConvertOutputPath {
public:
    // Picks a name for `path` with extension `ext` (the counter rule of
    // FileHelper::unusedPath) that names nothing on disk and that no other
    // conversion of this process has claimed, and claims it until release().
    static QString claim(const QString& path, const QString& ext);
    // Claims `path` itself, whether or not a file is there (an output to be replaced); false
    // when another conversion of this process holds it.
    static bool claimExact(const QString& path);
    static void release(const QString& path);
    static bool isClaimed(const QString& path);

    // rename(2) that never replaces: renameat2 with RENAME_NOREPLACE where the file system has
    // it, else a hard link (which fails on an existing name) and removing the old name. 0 or the
    // errno of the failure (EEXIST when the name is taken).
    static int renameNoReplace(const QString& from, const QString& to);
};
