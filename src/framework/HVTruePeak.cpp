#include "framework/HVTruePeak.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

namespace {
// Independent maxima the compiler can keep in one vector register.
constexpr std::size_t kLanes = 8;

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
    // Four times the samples of the source pass here, so this loop is a fifth of the meter's
    // cost when written with floats, whose maximum the compiler may not vectorise. The magnitude
    // of a float without its sign bit orders like an unsigned integer, and integers vectorise.
    // A NaN (above the pattern of infinity) counts as silence, as std::max let it before.
    constexpr uint32_t kMagnitude = 0x7fffffffU;
    constexpr uint32_t kInfinity = 0x7f800000U;
    const std::size_t count = std::size_t(frames) * std::size_t(m_channels);
    const float* samples = m_buffer.data();
    uint32_t lanes[kLanes] = {};
    std::size_t i = 0;
    for (; i + kLanes <= count; i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            uint32_t bits = 0;
            std::memcpy(&bits, samples + i + lane, sizeof bits);
            bits &= kMagnitude;
            bits = bits > kInfinity ? 0 : bits;
            lanes[lane] = std::max(lanes[lane], bits);
        }
    }
    uint32_t largest = 0;
    for (; i < count; ++i) {
        uint32_t bits = 0;
        std::memcpy(&bits, samples + i, sizeof bits);
        bits &= kMagnitude;
        largest = std::max(largest, bits > kInfinity ? 0 : bits);
    }
    for (const uint32_t lane : lanes)
        largest = std::max(largest, lane);
    float peak = 0;
    std::memcpy(&peak, &largest, sizeof peak);
    m_peak = std::max(m_peak, peak);
}
