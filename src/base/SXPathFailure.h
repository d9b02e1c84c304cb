#pragma once

#include <QList>
#include <QString>

// A file or folder that could not be taken, and why, in plain words for the user ("The folder
// cannot be read: Permission denied"). Scans, the loader and a run's end collect them so that
// every front end can name each one with its folder.
struct SXPathFailure {
    QString path;
    QString reason;

    bool operator==(const SXPathFailure&) const = default;
};

using SXPathFailureList = QList<SXPathFailure>;
