#include "player/HVAudioDecoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
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
    swr_free(&m_swr);
}

bool HVAudioDecoder::open(const QString& path, QString* error) {
    switch (m_source.open(path)) {
    case HVFrameSource::OpenResult::Opened:
        break;
    case HVFrameSource::OpenResult::Unreadable:
        return fail(error, QStringLiteral("cannot open %1 as media").arg(path));
    case HVFrameSource::OpenResult::NoAudio:
        return fail(error, QStringLiteral("no audio stream in %1").arg(path));
    case HVFrameSource::OpenResult::NotDecodable:
        return fail(error, QStringLiteral("cannot decode the audio of %1").arg(path));
    }
    m_duration = m_source.duration();
    if (!openResampler())
        return fail(error, QStringLiteral("cannot convert the audio of %1").arg(path));
    m_opened = true;
    return true;
}

bool HVAudioDecoder::openResampler() {
    swr_free(&m_swr);
    const AVCodecContext& codec = *m_source.codec();
    AVChannelLayout out = {};
    av_channel_layout_default(&out, m_channels);
    AVChannelLayout in = {};
    m_source.channelLayout(&in);
    const int made = swr_alloc_set_opts2(&m_swr, &out, AV_SAMPLE_FMT_S16, m_sampleRate, &in,
                                         codec.sample_fmt, codec.sample_rate, 0, nullptr);
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
    while (m_opened && !m_finished) {
        const AVFrame* frame = m_source.next();
        if (!frame) {
            m_finished = true;
            return drainResampler();
        }
        if (QByteArray block = convertFrame(*frame); !block.isEmpty())
            return block;
    }
    return {};
}

QByteArray HVAudioDecoder::convertFrame(const AVFrame& frame) {
    if (m_skipUntil > 0 && frame.pts != AV_NOPTS_VALUE && frame.sample_rate > 0) {
        const double end = double(frame.pts) * av_q2d(m_source.stream()->time_base) +
                           double(frame.nb_samples) / frame.sample_rate;
        if (end < m_skipUntil)
            return {};
        m_skipUntil = 0;
    }
    const int capacity = swr_get_out_samples(m_swr, frame.nb_samples);
    if (capacity <= 0)
        return {};
    QByteArray block(capacity * m_channels * 2, Qt::Uninitialized);
    auto* out = reinterpret_cast<uint8_t*>(block.data());
    const int made = swr_convert(
        m_swr, &out, capacity, const_cast<const uint8_t**>(frame.extended_data), frame.nb_samples);
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
    if (!m_opened)
        return;
    seconds = qMax(seconds, 0.0) + m_rangeStart;
    if (m_rangeEnd >= 0) {
        const qint64 frameBytes = qint64(m_channels) * 2;
        m_bytesLeft = qMax<qint64>(0, qint64((m_rangeEnd - seconds) * m_sampleRate)) * frameBytes;
    }
    m_source.seek(seconds);
    openResampler(); // drop the samples it still held from before
    m_skipUntil = seconds;
    m_finished = false;
}
