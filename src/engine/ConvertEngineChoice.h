#pragma once

#include <QString>
#include <QStringList>

struct ConvertJob;

// Which program converts a job: the long-lived sonoria-worker or an ffmpeg child of its own.
// The worker takes a job only when its output is the ffmpeg child's, decoded sample for sample:
// an encoder it is known to feed exactly as ffmpeg does, and no cue range or loudness gain (ffmpeg
// applies those with its filters). SONORIA_ENGINE=ffmpeg sends every job to ffmpeg.
class ConvertEngineChoice {
public:
    static bool workerTakes(const ConvertJob& job);
    // The encoders whose outputs the worker makes exactly as ffmpeg does.
    static const QStringList& workerEncoders();
    // The worker beside our own executable (where it is installed, and where the build puts it
    // beside sonoria-cli), else $SONORIA_WORKER (the build tree's tests, which sit elsewhere);
    // empty when there is none.
    static QString workerPath();
    // SONORIA_ENGINE=ffmpeg.
    static bool ffmpegForced();
};
