#include "framework/HVSampleReader.h"

#include <QCoreApplication>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

namespace {
bool fail(QString* error, const char* text) {
    if (error)
        *error = QCoreApplication::translate("HVSampleReader", text);
    return false;
}

HVSampleReader::Channel roleOf(AVChannel channel) {
    switch (channel) {
    case AV_CHAN_FRONT_LEFT:
    case AV_CHAN_FRONT_RIGHT:
        return HVSampleReader::Channel::Front;
    case AV_CHAN_FRONT_CENTER:
        return HVSampleReader::Channel::Centre;
    case AV_CHAN_LOW_FREQUENCY:
    case AV_CHAN_LOW_FREQUENCY_2:
        return HVSampleReader::Channel::LowFrequency;
    case AV_CHAN_BACK_LEFT:
    case AV_CHAN_BACK_RIGHT:
    case AV_CHAN_SIDE_LEFT:
    case AV_CHAN_SIDE_RIGHT:
        return HVSampleReader::Channel::Surround;
    default:
        return HVSampleReader::Channel::Other;
    }
}
} // namespace

HVSampleReader::~HVSampleReader() {
    swr_free(&m_swr);
}

bool HVSampleReader::open(const QString& path, QString* error) {
    switch (m_source.open(path)) {
    case HVFrameSource::OpenResult::Opened:
        break;
    case HVFrameSource::OpenResult::Unreadable:
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "the file cannot be opened"));
    case HVFrameSource::OpenResult::NoAudio:
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "the file holds no audio"));
    case HVFrameSource::OpenResult::NotDecodable:
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    }
    const AVCodecContext& codec = *m_source.codec();
    AVChannelLayout layout = {};
    m_source.channelLayout(&layout);
    for (int i = 0; i < layout.nb_channels; ++i)
        m_roles.push_back(roleOf(av_channel_layout_channel_from_index(&layout, unsigned(i))));
    m_sampleRate = codec.sample_rate;
    // Only the sample format changes: the rate and the channels stay the source's.
    const int made = swr_alloc_set_opts2(&m_swr, &layout, AV_SAMPLE_FMT_FLT, m_sampleRate, &layout,
                                         codec.sample_fmt, m_sampleRate, 0, nullptr);
    av_channel_layout_uninit(&layout);
    if (made < 0 || swr_init(m_swr) < 0)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    return true;
}

bool HVSampleReader::convert(const AVFrame* frame, const Consumer& consume) {
    const int capacity = swr_get_out_samples(m_swr, frame ? frame->nb_samples : 0);
    if (capacity <= 0)
        return true;
    m_buffer.resize(std::size_t(capacity) * m_roles.size());
    auto* out = reinterpret_cast<uint8_t*>(m_buffer.data());
    const int made =
        frame ? swr_convert(m_swr, &out, capacity,
                            const_cast<const uint8_t**>(frame->extended_data), frame->nb_samples)
              : swr_convert(m_swr, &out, capacity, nullptr, 0);
    if (made < 0)
        return false;
    if (made > 0)
        consume(m_buffer.data(), std::size_t(made));
    return true;
}

bool HVSampleReader::readAll(const Consumer& consume, const std::atomic<bool>* cancel,
                             QString* error) {
    if (!m_swr)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    bool decodedAny = false;
    while (const AVFrame* frame = m_source.next()) {
        if (cancel && *cancel)
            return fail(error,
                        QT_TRANSLATE_NOOP("HVSampleReader", "the measurement was cancelled"));
        decodedAny = true;
        if (!convert(frame, consume))
            return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    }
    if (cancel && *cancel)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "the measurement was cancelled"));
    if (!decodedAny)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    return convert(nullptr, consume); // what the converter still holds
}
