#include "player/HVAudioDecoder.h"

#include <QFile>
#include <QFileInfo>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

namespace {
bool fail(QString* error, const QString& text) {
    if (error)
        *error = text;
    return false;
}
} // namespace

HVAudioDecoder::HVAudioDecoder(int sampleRate, int channels)
    : m_sampleRate(sampleRate)
    , m_channels(channels) {}

HVAudioDecoder::~HVAudioDecoder() {
    av_frame_free(&m_frame);
    av_packet_free(&m_packet);
    swr_free(&m_swr);
    avcodec_free_context(&m_codec);
    avformat_close_input(&m_format);
}

bool HVAudioDecoder::open(const QString& path, QString* error) {
    // As the probe does: a local file only, whatever its name looks like.
    const QByteArray url = "file:" + QFile::encodeName(QFileInfo(path).absoluteFilePath());
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    const int opened = avformat_open_input(&m_format, url.constData(), nullptr, &options);
    av_dict_free(&options);
    if (opened < 0 || avformat_find_stream_info(m_format, nullptr) < 0)
        return fail(error, QStringLiteral("cannot open %1 as media").arg(path));
    const AVCodec* codec = nullptr;
    m_stream = av_find_best_stream(m_format, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    if (m_stream < 0 || !codec)
        return fail(error, QStringLiteral("no audio stream in %1").arg(path));
    // Pictures and other streams are skipped by the demuxer instead of being read and dropped.
    for (unsigned i = 0; i < m_format->nb_streams; ++i)
        m_format->streams[i]->discard = int(i) == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    const AVStream* stream = m_format->streams[m_stream];
    m_codec = avcodec_alloc_context3(codec);
    if (!m_codec || avcodec_parameters_to_context(m_codec, stream->codecpar) < 0 ||
        avcodec_open2(m_codec, codec, nullptr) < 0)
        return fail(error, QStringLiteral("cannot decode the audio of %1").arg(path));
    if (stream->duration != AV_NOPTS_VALUE && stream->duration > 0)
        m_duration = double(stream->duration) * av_q2d(stream->time_base);
    else if (m_format->duration != AV_NOPTS_VALUE && m_format->duration > 0)
        m_duration = double(m_format->duration) / AV_TIME_BASE;
    m_packet = av_packet_alloc();
    m_frame = av_frame_alloc();
    if (!m_packet || !m_frame || !openResampler())
        return fail(error, QStringLiteral("cannot convert the audio of %1").arg(path));
    return true;
}

bool HVAudioDecoder::openResampler() {
    swr_free(&m_swr);
    AVChannelLayout out = {};
    av_channel_layout_default(&out, m_channels);
    AVChannelLayout in = {};
    if (m_codec->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
        av_channel_layout_default(&in, m_codec->ch_layout.nb_channels);
    else
        av_channel_layout_copy(&in, &m_codec->ch_layout);
    const int made = swr_alloc_set_opts2(&m_swr, &out, AV_SAMPLE_FMT_S16, m_sampleRate, &in,
                                         m_codec->sample_fmt, m_codec->sample_rate, 0, nullptr);
    av_channel_layout_uninit(&in);
    av_channel_layout_uninit(&out);
    return made >= 0 && swr_init(m_swr) >= 0;
}

void HVAudioDecoder::limitTo(double startSeconds, double endSeconds) {
    m_rangeStart = qMax(startSeconds, 0.0);
    m_rangeEnd = endSeconds;
    seek(0);
}

double HVAudioDecoder::duration() const {
    if (m_rangeEnd >= 0)
        return m_rangeEnd - m_rangeStart;
    return m_duration > m_rangeStart ? m_duration - m_rangeStart : 0.0;
}

QByteArray HVAudioDecoder::decodeSome() {
    QByteArray block = decodeNext();
    if (m_bytesLeft < 0)
        return block;
    // The part ends inside this block: the rest of the file is another track.
    if (block.size() >= m_bytesLeft) {
        block.truncate(m_bytesLeft);
        m_finished = true;
    }
    m_bytesLeft -= block.size();
    return block;
}

QByteArray HVAudioDecoder::decodeNext() {
    while (m_codec && !m_finished) {
        const int received = avcodec_receive_frame(m_codec, m_frame);
        if (received == 0) {
            QByteArray block = convertFrame();
            av_frame_unref(m_frame);
            if (!block.isEmpty())
                return block;
            continue;
        }
        if (received == AVERROR_EOF) {
            m_finished = true;
            return drainResampler();
        }
        if (m_inputDone) { // EAGAIN after the flush packet cannot happen; treat as the end
            m_finished = true;
            break;
        }
        const int read = av_read_frame(m_format, m_packet);
        if (read < 0) {
            m_inputDone = true;
            avcodec_send_packet(m_codec, nullptr); // flush what the decoder holds
            continue;
        }
        if (m_packet->stream_index == m_stream)
            avcodec_send_packet(m_codec, m_packet); // a damaged packet is skipped
        av_packet_unref(m_packet);
    }
    return {};
}

QByteArray HVAudioDecoder::convertFrame() {
    const AVStream* stream = m_format->streams[m_stream];
    if (m_skipUntil > 0 && m_frame->pts != AV_NOPTS_VALUE && m_frame->sample_rate > 0) {
        const double end = double(m_frame->pts) * av_q2d(stream->time_base) +
                           double(m_frame->nb_samples) / m_frame->sample_rate;
        if (end < m_skipUntil)
            return {};
        m_skipUntil = 0;
    }
    const int capacity = swr_get_out_samples(m_swr, m_frame->nb_samples);
    if (capacity <= 0)
        return {};
    QByteArray block(capacity * m_channels * 2, Qt::Uninitialized);
    auto* out = reinterpret_cast<uint8_t*>(block.data());
    const int made =
        swr_convert(m_swr, &out, capacity, const_cast<const uint8_t**>(m_frame->extended_data),
                    m_frame->nb_samples);
    block.truncate(qMax(made, 0) * m_channels * 2);
    return block;
}

QByteArray HVAudioDecoder::drainResampler() {
    const int capacity = swr_get_out_samples(m_swr, 0);
    if (capacity <= 0)
        return {};
    QByteArray block(capacity * m_channels * 2, Qt::Uninitialized);
    auto* out = reinterpret_cast<uint8_t*>(block.data());
    const int made = swr_convert(m_swr, &out, capacity, nullptr, 0);
    block.truncate(qMax(made, 0) * m_channels * 2);
    return block;
}

void HVAudioDecoder::seek(double seconds) {
    if (!m_format || !m_codec)
        return;
    seconds = qMax(seconds, 0.0) + m_rangeStart;
    if (m_rangeEnd >= 0) {
        const qint64 frameBytes = qint64(m_channels) * 2;
        m_bytesLeft = qMax<qint64>(0, qint64((m_rangeEnd - seconds) * m_sampleRate)) * frameBytes;
    }
    av_seek_frame(m_format, -1, int64_t(seconds * AV_TIME_BASE), AVSEEK_FLAG_BACKWARD);
    avcodec_flush_buffers(m_codec);
    openResampler(); // drop the samples it still held from before
    m_skipUntil = seconds;
    m_inputDone = false;
    m_finished = false;
}
