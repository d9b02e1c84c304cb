#include "framework/HVLoudness.h"

#include "framework/HVSampleReader.h"
#include "framework/HVTruePeak.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <vector>

#include <ebur128.h>

namespace {

// Where R 128 puts each channel, so that it gets its weight: surround channels come in pairs,
// the first of a pair being the left one; the low-frequency channel is left out; a mono source is
// one channel heard on both sides; anything unusual is weighed as a front channel.
int meterChannel(HVSampleReader::Channel role, int channels, int* fronts, int* surrounds) {
    if (channels == 1)
        return EBUR128_DUAL_MONO;
    switch (role) {
    case HVSampleReader::Channel::Front:
        return (*fronts)++ % 2 == 0 ? EBUR128_LEFT : EBUR128_RIGHT;
    case HVSampleReader::Channel::Centre:
        return EBUR128_CENTER;
    case HVSampleReader::Channel::Surround:
        return (*surrounds)++ % 2 == 0 ? EBUR128_LEFT_SURROUND : EBUR128_RIGHT_SURROUND;
    case HVSampleReader::Channel::LowFrequency:
        return EBUR128_UNUSED;
    case HVSampleReader::Channel::Other:
        break;
    }
    return EBUR128_LEFT;
}

void destroyMeter(const void* meter) {
    auto* state = static_cast<ebur128_state*>(const_cast<void*>(meter));
    ebur128_destroy(&state);
}

std::optional<double> gated(int result, double loudness) {
    if (result != EBUR128_SUCCESS || !std::isfinite(loudness))
        return std::nullopt;
    return loudness;
}

} // namespace

std::optional<HVLoudnessMeasurement> HVLoudness::measure(const QString& path, bool keepMeter,
                                                         const std::atomic<bool>* cancel,
                                                         QString* error) {
    HVSampleReader reader;
    if (!reader.open(path, error))
        return std::nullopt;
    const int channels = reader.channels();
    std::shared_ptr<void> meter(
        ebur128_init(unsigned(channels), unsigned(reader.sampleRate()), EBUR128_MODE_I),
        [](void* state) { destroyMeter(state); });
    auto* state = static_cast<ebur128_state*>(meter.get());
    // libebur128 refuses a stream without channels or with a rate it cannot filter.
    if (!state) {
        if (error)
            *error = QCoreApplication::translate("HVLoudness", "its loudness cannot be measured");
        return std::nullopt;
    }
    HVTruePeak truePeak(channels, reader.sampleRate());
    int fronts = 0;
    int surrounds = 0;
    for (int i = 0; i < channels; ++i)
        ebur128_set_channel(
            state, unsigned(i),
            meterChannel(reader.channelRoles().at(std::size_t(i)), channels, &fronts, &surrounds));
    bool added = true;
    const bool read = reader.readAll(
        [&](const float* samples, std::size_t frames) {
            added = added && ebur128_add_frames_float(state, samples, frames) == EBUR128_SUCCESS;
            truePeak.add(samples, frames);
        },
        cancel, error);
    if (!read)
        return std::nullopt;
    if (!added) {
        if (error)
            *error = QCoreApplication::translate("HVLoudness", "its loudness cannot be measured");
        return std::nullopt;
    }
    HVLoudnessMeasurement measurement;
    double loudness = 0;
    const int result = ebur128_loudness_global(state, &loudness);
    measurement.integrated = gated(result, loudness);
    measurement.truePeak = truePeak.finish();
    if (keepMeter)
        measurement.meter = std::move(meter);
    return measurement;
}

std::optional<double> HVLoudness::albumLoudness(const QList<HVLoudnessMeasurement>& tracks) {
    // The library only reads the meters it is handed, but takes them as non-const.
    std::vector<ebur128_state*> meters;
    for (const HVLoudnessMeasurement& track : tracks) {
        if (track.meter)
            meters.push_back(static_cast<ebur128_state*>(const_cast<void*>(track.meter.get())));
    }
    if (meters.empty())
        return std::nullopt;
    double loudness = 0;
    const int result = ebur128_loudness_global_multiple(meters.data(), meters.size(), &loudness);
    return gated(result, loudness);
}
