#pragma once

#include <QString>

// Output names that never replace an existing file, even when several conversions pick a name
// in the same folder at the same moment: a name counts as taken once a file is created there,
// and the creation itself is exclusive.
class ConvertOutputPath {
public:
    // Picks a free name for `path` with extension `ext` (the counter rule of
    // GlobalFun::makeSureFullPathIdentical) and creates it as an empty file, exclusively; a name
    // lost to another writer between the check and the creation is picked again. Returns the
    // reserved path. When the file cannot be created for another reason (missing or read-only
    // folder), returns the free name without a file, sets *reserved to false and *error.
    static QString reserve(const QString& path, const QString& ext, bool* reserved,
                           QString* error = nullptr);

    // Moves `from` to a free name for `wanted` (same counter rule, extension of `wanted`)
    // without ever replacing a file that exists there, and returns the name it got; an empty
    // string and *error on failure (then `from` is left where it was).
    static QString moveWithoutReplacing(const QString& from, const QString& wanted,
                                        QString* error = nullptr);
};
