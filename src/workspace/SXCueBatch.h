#pragma once

#include "model/SXMusicInfo.h"

#include <QStringList>

// The items an add run makes of its paths once cue sheets are taken into account: a sheet
// becomes one item per track (or one item that carries the reason it cannot be offered), an
// audio file with a sheet in its tags becomes its tracks, and an audio file that a sheet of the
// same add run plays is not listed on its own. Runs on the add run's batch thread.
class SXCueBatch {
public:
    // Items for `candidates` (already expanded, in order) in `container`, without the tracks
    // `current` already holds.
    static SXMusicInfoList items(const QStringList& candidates, const QString& container,
                                 const SXMusicInfoList& current);
};
