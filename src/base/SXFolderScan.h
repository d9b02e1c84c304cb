#pragma once

#include "base/SXPathFailure.h"

#include <QStringList>

#include <functional>

// What a dropped or named folder contributes: the files below it with an accepted extension, in
// the order a file manager shows them, hidden entries left out. Static and safe to call from
// worker threads.
class SXFolderScan {
public:
    // Full paths of the files below `dir` whose extension matches `filter` (case-insensitive),
    // depth first, per folder its files in natural order, then its sub-folders. Symbolic links
    // are followed, yet every folder is scanned at most once. Folders that cannot be listed, and
    // names that are not valid UTF-8 (files with a matching extension, folders), are added to
    // `failures` with their reason.
    static QStringList filesBelow(const QString& dir, const QStringList& filter,
                                  SXPathFailureList* failures = nullptr);
    // The accepted source extensions, a fresh list each call.
    static QStringList acceptedExtensions();
    // Registers the getter of the remote "experimental" switch; without one the switch is on.
    static void setExperimentalSwitch(std::function<bool()> isExperimentalOn);
};
