#include "framework/HVSampleReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <mutex>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/log.h>
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
    av_frame_free(&m_frame);
    av_packet_free(&m_packet);
    swr_free(&m_swr);
    avcodec_free_context(&m_codec);
    avformat_close_input(&m_format);
}

bool HVSampleReader::open(const QString& path, QString* error) {
    // Damaged input is reported through *error, not by libav on standard error.
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_QUIET); });
    // As the probe does: a local file only, whatever its name looks like.
    const QByteArray url = "file:" + QFile::encodeName(QFileInfo(path).absoluteFilePath());
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    const int opened = avformat_open_input(&m_format, url.constData(), nullptr, &options);
    av_dict_free(&options);
    if (opened < 0 || avformat_find_stream_info(m_format, nullptr) < 0)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "the file cannot be opened"));
    const AVCodec* codec = nullptr;
    m_stream = av_find_best_stream(m_format, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    if (m_stream < 0 || !codec)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "the file holds no audio"));
    for (unsigned i = 0; i < m_format->nb_streams; ++i)
        m_format->streams[i]->discard = int(i) == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    m_codec = avcodec_alloc_context3(codec);
    if (!m_codec ||
        avcodec_parameters_to_context(m_codec, m_format->streams[m_stream]->codecpar) < 0 ||
        avcodec_open2(m_codec, codec, nullptr) < 0 || m_codec->sample_rate <= 0 ||
        m_codec->ch_layout.nb_channels <= 0)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));

    AVChannelLayout layout = {};
    if (m_codec->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
        av_channel_layout_default(&layout, m_codec->ch_layout.nb_channels);
    else
        av_channel_layout_copy(&layout, &m_codec->ch_layout);
    for (int i = 0; i < layout.nb_channels; ++i)
        m_roles.push_back(roleOf(av_channel_layout_channel_from_index(&layout, unsigned(i))));
    m_sampleRate = m_codec->sample_rate;
    // Only the sample format changes: the rate and the channels stay the source's.
    const int made = swr_alloc_set_opts2(&m_swr, &layout, AV_SAMPLE_FMT_FLT, m_sampleRate, &layout,
                                         m_codec->sample_fmt, m_sampleRate, 0, nullptr);
    av_channel_layout_uninit(&layout);
    m_packet = av_packet_alloc();
    m_frame = av_frame_alloc();
    if (made < 0 || swr_init(m_swr) < 0 || !m_packet || !m_frame)
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
    if (!m_codec)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    bool inputDone = false;
    bool decodedAny = false;
    for (;;) {
        if (cancel && *cancel)
            return fail(error,
                        QT_TRANSLATE_NOOP("HVSampleReader", "the measurement was cancelled"));
        const int received = avcodec_receive_frame(m_codec, m_frame);
        if (received == 0) {
            decodedAny = true;
            const bool converted = convert(m_frame, consume);
            av_frame_unref(m_frame);
            if (!converted)
                return fail(error,
                            QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
            continue;
        }
        if (received == AVERROR_EOF || (received == AVERROR(EAGAIN) && inputDone))
            break;
        if (received != AVERROR(EAGAIN) && received != AVERROR_INVALIDDATA)
            break;
        const int read = av_read_frame(m_format, m_packet);
        if (read < 0) {
            inputDone = true;
            avcodec_send_packet(m_codec, nullptr); // flush what the decoder holds
            continue;
        }
        // A damaged packet is skipped, as the converter skips it.
        if (m_packet->stream_index == m_stream)
            avcodec_send_packet(m_codec, m_packet);
        av_packet_unref(m_packet);
    }
    if (!decodedAny)
        return fail(error, QT_TRANSLATE_NOOP("HVSampleReader", "its audio cannot be decoded"));
    return convert(nullptr, consume); // what the converter still holds
}
