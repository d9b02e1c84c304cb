#include "framework/HVFrameSource.h"

#include "framework/HVLocalInput.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
}

HVFrameSource::~HVFrameSource() {
    av_frame_free(&m_frame);
    av_packet_free(&m_packet);
    avcodec_free_context(&m_codec);
    avformat_close_input(&m_format);
}

HVFrameSource::OpenResult HVFrameSource::open(const QString& path) {
    const int opened = HVLocalInput::open(&m_format, path);
    if (opened < 0 || avformat_find_stream_info(m_format, nullptr) < 0)
        return OpenResult::Unreadable;
    const AVCodec* decoder = nullptr;
    m_stream = av_find_best_stream(m_format, AVMEDIA_TYPE_AUDIO, -1, -1, &decoder, 0);
    if (m_stream < 0 || !decoder)
        return OpenResult::NoAudio;
    // Pictures and other streams are skipped by the demuxer instead of being read and dropped.
    for (unsigned i = 0; i < m_format->nb_streams; ++i)
        m_format->streams[i]->discard = int(i) == m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    m_codec = avcodec_alloc_context3(decoder);
    m_packet = av_packet_alloc();
    m_frame = av_frame_alloc();
    if (!m_codec || !m_packet || !m_frame ||
        avcodec_parameters_to_context(m_codec, m_format->streams[m_stream]->codecpar) < 0 ||
        avcodec_open2(m_codec, decoder, nullptr) < 0 || m_codec->sample_rate <= 0 ||
        m_codec->ch_layout.nb_channels <= 0)
        return OpenResult::NotDecodable;
    return OpenResult::Opened;
}

AVFrame* HVFrameSource::next() {
    if (!m_codec)
        return nullptr;
    av_frame_unref(m_frame);
    for (;;) {
        const int received = avcodec_receive_frame(m_codec, m_frame);
        if (received == 0)
            return m_frame;
        // The end, or an error the decoder will not get over; damaged data only skips a packet.
        if (received != AVERROR(EAGAIN) && received != AVERROR_INVALIDDATA)
            return nullptr;
        if (m_inputDone)
            return nullptr;
        if (av_read_frame(m_format, m_packet) < 0) {
            m_inputDone = true;
            avcodec_send_packet(m_codec, nullptr); // flush what the decoder holds
            continue;
        }
        if (m_packet->stream_index == m_stream)
            avcodec_send_packet(m_codec, m_packet); // a damaged packet is skipped
        av_packet_unref(m_packet);
    }
}

void HVFrameSource::seek(double seconds) {
    if (!m_codec)
        return;
    av_seek_frame(m_format, -1, int64_t(seconds * AV_TIME_BASE), AVSEEK_FLAG_BACKWARD);
    avcodec_flush_buffers(m_codec);
    m_inputDone = false;
}

void HVFrameSource::channelLayout(AVChannelLayout* layout) const {
    if (m_codec->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
        av_channel_layout_default(layout, m_codec->ch_layout.nb_channels);
    else
        av_channel_layout_copy(layout, &m_codec->ch_layout);
}

const AVStream* HVFrameSource::stream() const {
    return m_format && m_stream >= 0 ? m_format->streams[m_stream] : nullptr;
}

double HVFrameSource::duration() const {
    const AVStream* audio = stream();
    if (audio && audio->duration != AV_NOPTS_VALUE && audio->duration > 0)
        return double(audio->duration) * av_q2d(audio->time_base);
    if (m_format && m_format->duration != AV_NOPTS_VALUE && m_format->duration > 0)
        return double(m_format->duration) / AV_TIME_BASE;
    return 0;
}
