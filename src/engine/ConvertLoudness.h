#pragma once

#include "framework/MTETagCopy.h"
#include "model/SXConversionChoices.h"

#include <QString>
#include <optional>

// What a conversion does about loudness (ReplayGain 2.0): the container's wish and what was
// measured before the run, as plain numbers. Gains are in dB towards -18 LUFS, peaks are the
// sources' true peaks as linear sample values. Every rule that turns them into tags or into a
// gain applied to the samples is here.
struct ConvertLoudness {
    SXReplayGainMode tags = SXReplayGainMode::Off;
    bool normalise = false;

    // nullopt: not measured, or silent (no gain can be derived from silence).
    std::optional<double> trackGain;
    double trackPeak = 0;
    std::optional<double> albumGain;
    double albumPeak = 0;
    // Why the source could not be measured; empty when it was (or nothing was asked).
    QString failure;

    static constexpr double kReferenceLufs = -18.0;
    // Opus output gains are relative to this (RFC 7845), not to the ReplayGain reference.
    static constexpr double kOpusReferenceLufs = -23.0;
    // A normalised output's true peak stays at or below this (dBTP).
    static constexpr double kCeilingDbtp = -1.0;

    bool wanted() const { return tags != SXReplayGainMode::Off || normalise; }
    // Album values are measured only when album tags are asked for.
    bool wantsAlbum() const { return tags == SXReplayGainMode::Album; }
    static double gainFor(double integratedLufs) { return kReferenceLufs - integratedLufs; }

    // The gain an ffmpeg volume filter applies for "Normalise loudness": the album's in album
    // mode, else the track's, lowered so that the peak stays under the ceiling. nullopt when
    // nothing is to be applied.
    std::optional<double> appliedGain() const;
    // The fields the output at `extension` gets in place of the source's loudness fields.
    MTELoudnessFields tagFields(const QString& extension) const;

    // "-7.23 dB" and "0.988547", whatever the user's locale.
    static QString gainText(double gain);
    static QString peakText(double peak);
    // Why an item whose loudness was asked for did not convert, from the meter's reason.
    static QString notMeasured(const QString& detail);
    // An RFC 7845 R128 gain: `gain` (towards -18 LUFS) moved to -23 LUFS, in 1/256 dB steps.
    static int opusGain(double gain);
};
