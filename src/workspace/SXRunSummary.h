#pragma once

#include "base/SXPathFailure.h"
#include "model/SXMusicInfo.h"

#include <QCoreApplication>
#include <QString>

// What the end of a run tells the user, counted once from the items for the window's alert, the
// desktop notification and the command-line tool: files converted now, files whose output was
// already there, failures with their reasons, and outputs that could not keep all their tags.
class SXRunSummary {
    Q_DECLARE_TR_FUNCTIONS(SXRunSummary)

public:
    int converted = 0;        // finished, written by this run
    int alreadyConverted = 0; // finished, the earlier output left as it was
    SXPathFailureList failures;
    SXPathFailureList tagLosses; // source path, "Field: reason" for each lost field

    static SXRunSummary of(const SXMusicInfoList& items);

    // The lines under the summary's message: the outputs already there, the files that lost tags.
    QString informativeText() const;
    // Every failure with its folder and reason, then every lost field: the list behind the alert.
    QString details() const;
};
