#pragma once

#include <QList>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

// The loudness of one source as EBU R 128 measures it (libebur128 over the samples
// HVSampleReader decodes): its integrated loudness and its true peak. A measurement may keep the
// meter's gating blocks, so that the loudness of several sources together (an album) is gated
// over all of their blocks at once, as one long programme would be, not averaged.
struct HVLoudnessMeasurement {
    // LUFS; nullopt for a source too quiet to be gated (silence).
    std::optional<double> integrated;
    double truePeak = 0; // linear, 1.0 = full scale, the largest of the channels
    // The meter itself, read-only once measured; only kept when asked for.
    std::shared_ptr<const void> meter;
};

class HVLoudness {
public:
    // Measures the file at `path` on the calling thread. With `keepMeter`, the measurement can
    // take part in albumLoudness(). nullopt with *error (a sentence for the user) when the file
    // cannot be decoded or `cancel` was set meanwhile.
    static std::optional<HVLoudnessMeasurement>
    measure(const QString& path, bool keepMeter, const std::atomic<bool>* cancel, QString* error);

    // The integrated loudness of all `tracks` together (each measured with its meter kept),
    // nullopt when none holds a meter or all are silent.
    static std::optional<double> albumLoudness(const QList<HVLoudnessMeasurement>& tracks);
};
