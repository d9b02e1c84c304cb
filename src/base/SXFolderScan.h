#pragma once

#include "base/SXPathFailure.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

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

// Remembers which folders a recursive walk has entered, by device and inode, so that a walk that
// follows symbolic links enters every folder at most once. A link back to an ancestor, or two
// links to the same folder, therefore cannot make a scan run forever.
class SXFolderVisit {
public:
    // True when `path` is a folder (links followed) that this walk has not entered before; the
    // folder is then recorded as entered.
    bool enter(const QString& path);

private:
    QSet<std::pair<quint64, quint64>> m_entered;
};
