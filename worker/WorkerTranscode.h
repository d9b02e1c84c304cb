#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace worker {

// One conversion as the engine asks for it: the same values its ffmpeg command line carries
// (-acodec, -ar, -b:a, -ac).
struct TranscodeJob {
    std::string input;
    std::string output; // the muxer is picked from its extension, as ffmpeg picks it
    std::string encoder;
    int sampleRate = 0;
    std::int64_t bitRate = 0; // bit/s; 0 for the lossless encoders
    int channels = 0;
};

struct TranscodeHooks {
    // Asked between packets; true ends the conversion at once.
    std::function<bool()> cancelled;
    // Samples given to the encoder so far, and how many the source's duration promises.
    std::function<void(std::int64_t done, std::int64_t total)> progress;
};

enum class TranscodeOutcome { Done, Failed, Cancelled };

struct TranscodeResult {
    TranscodeOutcome outcome = TranscodeOutcome::Done;
    std::string reason; // when failed: ffmpeg's words for it; when done: decoding trouble met
};

// Decodes the first audio stream of the input and encodes it into the output the way the
// ffmpeg command line does: the same sample format negotiation and resampler (libswresample with
// its defaults, only where format, rate or channel layout differ), the encoder's frame size,
// the muxer ffmpeg picks from the extension. On failure or cancel the output is left as it is;
// the engine removes it.
TranscodeResult transcode(const TranscodeJob& job, const TranscodeHooks& hooks);

} // namespace worker
