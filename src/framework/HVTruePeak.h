#pragma once

#include <cstddef>
#include <memory>
#include <vector>

struct SwrContext;

// The true peak of a stream of interleaved float samples: the largest magnitude of the signal
// between its samples as well as at them, found as R 128 asks by oversampling (four times below
// 96 kHz, twice below 192 kHz) and taking the sample peak of the result. libswresample does the
// oversampling with its vectorised filters, which costs a third of what the loudness meter's own
// true-peak mode costs; that mode was most of the price of measuring a file.
class HVTruePeak {
public:
    HVTruePeak(int channels, int sampleRate);
    ~HVTruePeak();
    HVTruePeak(const HVTruePeak&) = delete;
    HVTruePeak& operator=(const HVTruePeak&) = delete;

    // False when the resampler could not be set up (then add() and peak() do nothing useful).
    bool isValid() const { return m_swr != nullptr; }
    void add(const float* samples, std::size_t frames);
    // Linear, 1.0 = full scale, the largest over all channels; flushes the filter's tail, so the
    // stream ends here.
    double finish();

private:
    void scan(int frames);

    SwrContext* m_swr = nullptr;
    int m_channels = 0;
    int m_factor = 1;
    float m_peak = 0;
    std::vector<float> m_buffer;
};
