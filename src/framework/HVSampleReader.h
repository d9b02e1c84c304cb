#pragma once

#include "framework/HVFrameSource.h"

#include <QString>

#include <atomic>
#include <cstddef>
#include <functional>
#include <vector>

struct AVFrame;
struct SwrContext;

// Decodes the best audio stream of a file, whole and in order, into interleaved 32-bit float
// samples at the source's own rate and channel count, with the same libraries that probe it, so
// that measuring sees exactly what the converter reads. Not thread-safe; one thread uses it.
class HVSampleReader {
public:
    // What each channel carries, for a meter that weighs them differently.
    enum class Channel { Front, Centre, Surround, LowFrequency, Other };

    HVSampleReader() = default;
    ~HVSampleReader();
    HVSampleReader(const HVSampleReader&) = delete;
    HVSampleReader& operator=(const HVSampleReader&) = delete;

    // False with *error (a sentence for the user) when the file has no audio that can be decoded.
    bool open(const QString& path, QString* error);
    int sampleRate() const { return m_sampleRate; }
    int channels() const { return int(m_roles.size()); }
    const std::vector<Channel>& channelRoles() const { return m_roles; }

    // Hands every block of samples to `consume` (frames are samples per channel) until the end of
    // the stream. False with *error when decoding broke off, or when `cancel` was set.
    using Consumer = std::function<void(const float* samples, std::size_t frames)>;
    bool readAll(const Consumer& consume, const std::atomic<bool>* cancel, QString* error);

private:
    bool convert(const AVFrame* frame, const Consumer& consume);

    HVFrameSource m_source;
    SwrContext* m_swr = nullptr;
    int m_sampleRate = 0;
    std::vector<Channel> m_roles;
    std::vector<float> m_buffer;
};
