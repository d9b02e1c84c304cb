#include "framework/HVTruePeak.h"

#include <algorithm>
#include <cmath>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

namespace {
int oversampling(int sampleRate) {
    if (sampleRate < 96000)
        return 4;
    return sampleRate < 192000 ? 2 : 1;
}
} // namespace

HVTruePeak::HVTruePeak(int channels, int sampleRate)
    : m_channels(channels)
    , m_factor(oversampling(sampleRate)) {
    if (channels <= 0 || sampleRate <= 0)
        return;
    // Channels are filtered independently, so any layout with this count will do.
    AVChannelLayout layout;
    av_channel_layout_default(&layout, channels);
    const int made = swr_alloc_set_opts2(&m_swr, &layout, AV_SAMPLE_FMT_FLT, sampleRate * m_factor,
                                         &layout, AV_SAMPLE_FMT_FLT, sampleRate, 0, nullptr);
    av_channel_layout_uninit(&layout);
    if (made < 0 || swr_init(m_swr) < 0)
        swr_free(&m_swr);
}

HVTruePeak::~HVTruePeak() {
    swr_free(&m_swr);
}

void HVTruePeak::add(const float* samples, std::size_t frames) {
    if (!m_swr || frames == 0)
        return;
    const int capacity = swr_get_out_samples(m_swr, int(frames));
    m_buffer.resize(std::size_t(std::max(capacity, 0)) * std::size_t(m_channels));
    auto* out = reinterpret_cast<uint8_t*>(m_buffer.data());
    const auto* in = reinterpret_cast<const uint8_t*>(samples);
    scan(swr_convert(m_swr, &out, capacity, &in, int(frames)));
}

double HVTruePeak::finish() {
    if (!m_swr)
        return m_peak;
    for (;;) {
        const int capacity = std::max(swr_get_out_samples(m_swr, 0), 64);
        m_buffer.resize(std::size_t(capacity) * std::size_t(m_channels));
        auto* out = reinterpret_cast<uint8_t*>(m_buffer.data());
        const int made = swr_convert(m_swr, &out, capacity, nullptr, 0);
        if (made <= 0)
            break;
        scan(made);
    }
    return m_peak;
}

void HVTruePeak::scan(int frames) {
    if (frames <= 0)
        return;
    const auto end = m_buffer.begin() + std::ptrdiff_t(frames) * m_channels;
    for (auto it = m_buffer.begin(); it != end; ++it)
        m_peak = std::max(m_peak, std::fabs(*it));
}
