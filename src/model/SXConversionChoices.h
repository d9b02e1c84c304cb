#pragma once

#include <QString>
#include <optional>

// Which ReplayGain fields a container's outputs get: none (the source's are copied), the track's,
// or the track's and the album's.
enum class SXReplayGainMode { Off, Track, Album };

// What a container asks of the encoder, as numbers. The pop-ups and the catalogue speak in
// titles ("192", "Lossless", "Use Source", "Stereo"); they are read here, once, so that nothing
// further down parses a display text. An empty optional means "as the source has it".
struct SXConversionChoices {
    std::optional<int> bitRate;    // kbit/s
    std::optional<int> sampleRate; // Hz
    std::optional<int> channels;
    // The format sets its own size ("Lossless"): no bit rate is asked of the encoder.
    bool lossless = false;
    // Loudness: measured before the run when either asks for it.
    SXReplayGainMode replayGain = SXReplayGainMode::Off;
    bool normalise = false; // the gain is applied to the samples instead of being tagged

    // The choices that the three titles of a container stand for. A title that names no number
    // of its own keeps the source's value, except a bit rate, where any word but "Use Source"
    // means the format sets its own size ("Lossless"). A unit after the number is ignored.
    static SXConversionChoices fromTitles(const QString& bitRate, const QString& sampleRate,
                                          const QString& channels);
};
