#pragma once

#include <cstddef>
#include <vector>

// The true peak of a stream of interleaved float samples: the largest magnitude of the signal
// between its samples as well as at them, found as R 128 asks by oversampling (four times below
// 96 kHz, twice below 192 kHz) and taking the sample peak of the result.
//
// The oversampling is a Kaiser-windowed sinc split into its phases. The phase that falls on the
// samples is the samples themselves, so the true peak is never below the sample peak, and only
// the phases between them are filtered, on whole channels at a time where the compiler can use
// the widest vectors the processor has. A general resampler costs nearly three times as much: it
// filters every phase, interleaved, with a longer filter. The signal is silent before its first
// sample and after its last, so a file that starts or ends on a crest rings as a player plays it.
class HVTruePeak {
public:
    HVTruePeak(int channels, int sampleRate);

    void add(const float* samples, std::size_t frames);
    // Linear, 1.0 = full scale, the largest over all channels; flushes the filter's tail, so the
    // stream ends here.
    double finish();

    // Taps on each side of the point being found: the filter of every phase has twice as many.
    static constexpr std::size_t kSide = 12;

private:
    void filter(bool ending);

    int m_channels = 0;
    int m_factor = 1;
    float m_peak = 0;
    // The phases between the samples, kSide * 2 taps each, the nearest past sample first.
    std::vector<float> m_taps;
    // One plane per channel: the samples still needed by the filter, then the new ones.
    std::vector<std::vector<float>> m_planes;
};
