#pragma once

#include "base/SXPathFailure.h"
#include "model/SXMusicInfo.h"

#include <QCoreApplication>
#include <QString>
#include <optional>

// What the front ends say about failures: the reason of one item, the detailed list of an
// alert, the counts of a run. Shared by the window, its notification and the command-line tool.
class SXFailureTexts {
    Q_DECLARE_TR_FUNCTIONS(SXFailureTexts)

public:
    // The record's reason, or a general one when the conversion gave none.
    static QString conversionReason(const LSMedia* media);
    // The failure of an item that ended its last run failed; nullopt for any other item.
    static std::optional<SXPathFailure> conversionFailure(const SXMusicInfo& item);
    // The reason a load failed as the loader recorded it, or a general one.
    static QString loadReason(const LSMedia* media);
    // "path: reason", one failure a line: the scrollable details of an alert.
    static QString detailLines(const SXPathFailureList& failures);
    // "Converted: 3. Failed: 2.", the body of the notification at the end of a run and the
    // last line of the command-line tool; files that did not load are counted when there are.
    static QString runCounts(int succeeded, int failed, int notLoaded = 0);
    // A row's tool tip: the file's path, and under it the reason of a failed run or that the
    // last run found the output already converted.
    static QString rowToolTip(const SXMusicInfo& item);
};
