#include "WorkerTranscode.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/audio_fifo.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

#include <chrono>
#include <climits>
#include <cstdlib>
#include <memory>

namespace worker {
namespace {

struct FormatInputCloser {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};
struct FormatOutputCloser {
    void operator()(AVFormatContext* context) const {
        if (context && context->pb && !(context->oformat->flags & AVFMT_NOFILE))
            avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
struct CodecCloser {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
struct SwrCloser {
    void operator()(SwrContext* context) const { swr_free(&context); }
};
struct FifoCloser {
    void operator()(AVAudioFifo* fifo) const { av_audio_fifo_free(fifo); }
};
struct FrameCloser {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct PacketCloser {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

std::string errorText(int error) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return text;
}

// The sample format the filter graph of ffmpeg negotiates for the encoder: the source's own
// (packed or planar) when the encoder takes it, else the one with the closest size at or above
// the source's, double for 32-bit sources when offered (libavfilter's swap_sample_fmts).
AVSampleFormat negotiatedFormat(const AVSampleFormat* offered, AVSampleFormat source) {
    if (!offered)
        return source;
    const int bytes = av_get_bytes_per_sample(source);
    AVSampleFormat best = offered[0];
    int bestScore = INT_MIN;
    for (const AVSampleFormat* format = offered; *format != AV_SAMPLE_FMT_NONE; ++format) {
        const int outBytes = av_get_bytes_per_sample(*format);
        if (av_get_packed_sample_fmt(*format) == source ||
            av_get_planar_sample_fmt(*format) == source)
            return *format;
        if (bytes == 4 && outBytes == 8)
            return *format;
        int score = -std::abs(outBytes - bytes);
        if (outBytes >= bytes)
            score += INT_MAX / 2;
        if (score > bestScore) {
            bestScore = score;
            best = *format;
        }
    }
    return best;
}

class Transcoder {
public:
    Transcoder(const TranscodeJob& job, const TranscodeHooks& hooks)
        : m_job(job)
        , m_hooks(hooks) {}

    TranscodeResult run() {
        if (std::string problem = open(); !problem.empty())
            return {TranscodeOutcome::Failed, problem};
        std::unique_ptr<AVPacket, PacketCloser> packet(av_packet_alloc());
        int read = 0;
        while ((read = av_read_frame(m_input.get(), packet.get())) >= 0) {
            if (m_hooks.cancelled && m_hooks.cancelled())
                return {TranscodeOutcome::Cancelled, {}};
            if (packet->stream_index == m_streamIndex) {
                // ffmpeg reports a damaged packet and goes on with the next one.
                if (avcodec_send_packet(m_decoder.get(), packet.get()) < 0)
                    m_decodingTrouble = true;
                if (std::string problem = drainDecoder(); !problem.empty())
                    return {TranscodeOutcome::Failed, problem};
            }
            av_packet_unref(packet.get());
        }
        if (read != AVERROR_EOF)
            m_decodingTrouble = true;
        avcodec_send_packet(m_decoder.get(), nullptr);
        if (std::string problem = drainDecoder(); !problem.empty())
            return {TranscodeOutcome::Failed, problem};
        if (std::string problem = finish(); !problem.empty())
            return {TranscodeOutcome::Failed, problem};
        // A damaged packet is skipped, as ffmpeg skips it; the engine's check of the output
        // decides whether what is left is whole, and this explains a short one.
        return {TranscodeOutcome::Done, m_decodingTrouble ? "Error while decoding stream" : ""};
    }

private:
    std::string open() {
        // A 16-bit WAV asks libavformat to look for another codec hidden in its samples, and
        // by default every demuxer's probe runs over up to 32 growing packets for that: for a
        // short file twenty times the cost of reading it whole. The first packet is probed
        // alone, which still finds a hidden MP3 and is what the loader's probe does too.
        AVDictionary* options = nullptr;
        av_dict_set(&options, "max_probe_packets", "0", 0);
        AVFormatContext* input = nullptr;
        const int opened = avformat_open_input(&input, m_job.input.c_str(), nullptr, &options);
        av_dict_free(&options);
        if (opened < 0)
            return "Error opening input: " + errorText(opened);
        m_input.reset(input);
        if (const int error = avformat_find_stream_info(input, nullptr); error < 0)
            return "Could not find codec parameters: " + errorText(error);
        for (unsigned i = 0; i < input->nb_streams; ++i) {
            if (input->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_AUDIO) {
                m_streamIndex = int(i);
                break;
            }
        }
        if (m_streamIndex < 0)
            return "Output file does not contain any stream";
        for (unsigned i = 0; i < input->nb_streams; ++i) {
            if (int(i) != m_streamIndex)
                input->streams[i]->discard = AVDISCARD_ALL;
        }
        const AVStream* stream = input->streams[m_streamIndex];
        if (std::string problem = openDecoder(stream); !problem.empty())
            return problem;
        if (std::string problem = openEncoder(); !problem.empty())
            return problem;
        if (std::string problem = openOutput(); !problem.empty())
            return problem;
        const double seconds = input->duration != AV_NOPTS_VALUE
                                   ? double(input->duration) / AV_TIME_BASE
                                   : (stream->duration != AV_NOPTS_VALUE
                                          ? double(stream->duration) * av_q2d(stream->time_base)
                                          : 0.0);
        m_total = std::int64_t(seconds * m_job.sampleRate + 0.5);
        return {};
    }

    std::string openDecoder(const AVStream* stream) {
        const AVCodec* codec = avcodec_find_decoder(stream->codecpar->codec_id);
        if (!codec)
            return "Decoding error: no decoder for the audio stream";
        m_decoder.reset(avcodec_alloc_context3(codec));
        avcodec_parameters_to_context(m_decoder.get(), stream->codecpar);
        m_decoder->pkt_timebase = stream->time_base;
        if (const int error = avcodec_open2(m_decoder.get(), codec, nullptr); error < 0)
            return "Error while opening decoder: " + errorText(error);
        return {};
    }

    std::string openEncoder() {
        const AVCodec* codec = avcodec_find_encoder_by_name(m_job.encoder.c_str());
        if (!codec)
            return "Unknown encoder '" + m_job.encoder + "'";
        m_encoder.reset(avcodec_alloc_context3(codec));
        AVCodecContext* encoder = m_encoder.get();
        encoder->sample_rate = m_job.sampleRate;
        av_channel_layout_default(&encoder->ch_layout, m_job.channels);
        encoder->sample_fmt = negotiatedFormat(codec->sample_fmts, m_decoder->sample_fmt);
        encoder->bit_rate = m_job.bitRate;
        encoder->time_base = AVRational{1, m_job.sampleRate};
        // As ffmpeg does: the decoder's depth is passed on only when no conversion is made.
        AVChannelLayout source{};
        sourceLayout(&source);
        const bool converted = encoder->sample_fmt != m_decoder->sample_fmt ||
                               encoder->sample_rate != m_decoder->sample_rate ||
                               av_channel_layout_compare(&encoder->ch_layout, &source) != 0;
        if (!converted)
            encoder->bits_per_raw_sample = std::min(
                m_decoder->bits_per_raw_sample, av_get_bytes_per_sample(encoder->sample_fmt) * 8);
        av_channel_layout_uninit(&source);
        const AVOutputFormat* muxer = av_guess_format(nullptr, m_job.output.c_str(), nullptr);
        if (!muxer)
            return "Unable to find a suitable output format for '" + m_job.output + "'";
        if (muxer->flags & AVFMT_GLOBALHEADER)
            encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        if (const int error = avcodec_open2(encoder, codec, nullptr); error < 0)
            return "Error while opening encoder: " + errorText(error);
        m_frameSize =
            (codec->capabilities & AV_CODEC_CAP_VARIABLE_FRAME_SIZE) ? 0 : encoder->frame_size;
        m_fifo.reset(av_audio_fifo_alloc(encoder->sample_fmt, m_job.channels, 4096));
        return {};
    }

    // The decoder's layout, or the default one for its count when it names none (as ffmpeg
    // guesses an input's layout).
    void sourceLayout(AVChannelLayout* layout) const {
        if (m_decoder->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
            av_channel_layout_default(layout, m_decoder->ch_layout.nb_channels);
        else
            av_channel_layout_copy(layout, &m_decoder->ch_layout);
    }

    std::string openOutput() {
        AVFormatContext* output = nullptr;
        if (const int error =
                avformat_alloc_output_context2(&output, nullptr, nullptr, m_job.output.c_str());
            error < 0)
            return "Unable to find a suitable output format: " + errorText(error);
        m_output.reset(output);
        AVStream* stream = avformat_new_stream(output, nullptr);
        if (!stream)
            return "Could not allocate the output stream";
        avcodec_parameters_from_context(stream->codecpar, m_encoder.get());
        stream->time_base = m_encoder->time_base;
        if (const int error = avio_open(&output->pb, m_job.output.c_str(), AVIO_FLAG_WRITE);
            error < 0)
            return "Error opening output " + m_job.output + ": " + errorText(error);
        if (const int error = avformat_write_header(output, nullptr); error < 0)
            return "Could not write header for output file: " + errorText(error);
        return {};
    }

    std::string drainDecoder() {
        std::unique_ptr<AVFrame, FrameCloser> frame(av_frame_alloc());
        while (true) {
            const int error = avcodec_receive_frame(m_decoder.get(), frame.get());
            if (error == AVERROR(EAGAIN) || error == AVERROR_EOF)
                return {};
            if (error < 0) {
                m_decodingTrouble = true;
                return {};
            }
            std::string problem = convert(frame.get());
            av_frame_unref(frame.get());
            if (!problem.empty())
                return problem;
        }
    }

    // Brings decoded samples into the encoder's format, rate and layout, as the resampler
    // ffmpeg's filter graph inserts would (none when nothing differs).
    std::string convert(const AVFrame* frame) {
        if (!m_resamplerChecked) {
            m_resamplerChecked = true;
            m_firstPts = firstPts(frame);
            AVChannelLayout source{};
            sourceLayout(&source);
            const bool same = frame->format == m_encoder->sample_fmt &&
                              frame->sample_rate == m_encoder->sample_rate &&
                              av_channel_layout_compare(&source, &m_encoder->ch_layout) == 0;
            if (!same) {
                SwrContext* resampler = nullptr;
                const int error = swr_alloc_set_opts2(&resampler, &m_encoder->ch_layout,
                                                      m_encoder->sample_fmt, m_encoder->sample_rate,
                                                      &source, AVSampleFormat(frame->format),
                                                      frame->sample_rate, 0, nullptr);
                m_resampler.reset(resampler);
                if (error < 0 || swr_init(resampler) < 0) {
                    av_channel_layout_uninit(&source);
                    return "Error while filtering: cannot convert the audio";
                }
            }
            av_channel_layout_uninit(&source);
        }
        if (!m_resampler)
            return queue(frame->extended_data, frame->nb_samples);
        return resample(const_cast<const uint8_t**>(frame->extended_data), frame->nb_samples);
    }

    // The time of the first sample the encoder gets, as ffmpeg gives it: the source's time of the
    // first decoded frame, counted from the start of the file, in samples of the output rate.
    // A container with a start time (an MP4's edit list) keeps that offset, as with ffmpeg.
    std::int64_t firstPts(const AVFrame* frame) const {
        if (frame->pts == AV_NOPTS_VALUE)
            return 0;
        const AVStream* stream = m_input->streams[m_streamIndex];
        std::int64_t pts = frame->pts;
        if (m_input->start_time != AV_NOPTS_VALUE)
            pts -= av_rescale_q(m_input->start_time, AV_TIME_BASE_Q, stream->time_base);
        const std::int64_t inRate = frame->sample_rate;
        const std::int64_t outRate = m_encoder->sample_rate;
        const std::int64_t atInRate =
            av_rescale_q(pts, stream->time_base, AVRational{1, int(inRate)});
        if (inRate == outRate)
            return atInRate;
        const std::int64_t scaled = atInRate * outRate;
        return (scaled >= 0 ? scaled + inRate / 2 : scaled - inRate / 2) / inRate;
    }

    std::string resample(const uint8_t** data, int samples) {
        const int room = swr_get_out_samples(m_resampler.get(), samples);
        if (room <= 0)
            return {};
        std::unique_ptr<AVFrame, FrameCloser> out(av_frame_alloc());
        out->format = m_encoder->sample_fmt;
        out->nb_samples = room;
        av_channel_layout_copy(&out->ch_layout, &m_encoder->ch_layout);
        if (av_frame_get_buffer(out.get(), 0) < 0)
            return "Error while filtering: Cannot allocate memory";
        const int made = swr_convert(m_resampler.get(), out->extended_data, room, data, samples);
        if (made < 0)
            return "Error while filtering: " + errorText(made);
        return made > 0 ? queue(out->extended_data, made) : std::string();
    }

    std::string queue(uint8_t** data, int samples) {
        if (av_audio_fifo_write(m_fifo.get(), reinterpret_cast<void**>(data), samples) < samples)
            return "Error while filtering: Cannot allocate memory";
        const int chunk = m_frameSize > 0 ? m_frameSize : av_audio_fifo_size(m_fifo.get());
        while (av_audio_fifo_size(m_fifo.get()) >= chunk && chunk > 0) {
            if (std::string problem = encodeFromFifo(chunk); !problem.empty())
                return problem;
        }
        return {};
    }

    std::string encodeFromFifo(int samples) {
        std::unique_ptr<AVFrame, FrameCloser> frame(av_frame_alloc());
        frame->format = m_encoder->sample_fmt;
        frame->nb_samples = samples;
        frame->sample_rate = m_encoder->sample_rate;
        av_channel_layout_copy(&frame->ch_layout, &m_encoder->ch_layout);
        if (av_frame_get_buffer(frame.get(), 0) < 0)
            return "Error while filtering: Cannot allocate memory";
        av_audio_fifo_read(m_fifo.get(), reinterpret_cast<void**>(frame->extended_data), samples);
        frame->pts = m_firstPts + m_samplesDone;
        m_samplesDone += samples;
        if (m_hooks.progress)
            m_hooks.progress(m_samplesDone, m_total);
        return encode(frame.get());
    }

    // Sends a frame (nullptr: the end) to the encoder and writes what it gives back.
    std::string encode(const AVFrame* frame) {
        if (const int error = avcodec_send_frame(m_encoder.get(), frame); error < 0)
            return "Error while encoding: " + errorText(error);
        std::unique_ptr<AVPacket, PacketCloser> packet(av_packet_alloc());
        while (true) {
            const int error = avcodec_receive_packet(m_encoder.get(), packet.get());
            if (error == AVERROR(EAGAIN) || error == AVERROR_EOF)
                return {};
            if (error < 0)
                return "Error while encoding: " + errorText(error);
            AVStream* stream = m_output->streams[0];
            av_packet_rescale_ts(packet.get(), m_encoder->time_base, stream->time_base);
            packet->stream_index = 0;
            if (const int written = av_interleaved_write_frame(m_output.get(), packet.get());
                written < 0)
                return "Error submitting a packet to the muxer: " + errorText(written);
        }
    }

    std::string finish() {
        if (m_resampler) {
            // What the resampler still holds (its filter's delay) comes out on a flush.
            while (true) {
                const int before = int(m_samplesDone) + av_audio_fifo_size(m_fifo.get());
                if (std::string problem = resample(nullptr, 0); !problem.empty())
                    return problem;
                if (int(m_samplesDone) + av_audio_fifo_size(m_fifo.get()) == before)
                    break;
            }
        }
        if (const int rest = av_audio_fifo_size(m_fifo.get()); rest > 0) {
            if (std::string problem = encodeFromFifo(rest); !problem.empty())
                return problem;
        }
        if (std::string problem = encode(nullptr); !problem.empty())
            return problem;
        if (m_samplesDone == 0)
            return "Output file is empty, nothing was encoded";
        if (const int error = av_write_trailer(m_output.get()); error < 0)
            return "Error writing trailer: " + errorText(error);
        if (const int error = avio_closep(&m_output->pb); error < 0)
            return "Error closing file: " + errorText(error);
        return {};
    }

    const TranscodeJob& m_job;
    const TranscodeHooks& m_hooks;
    std::unique_ptr<AVFormatContext, FormatInputCloser> m_input;
    std::unique_ptr<AVFormatContext, FormatOutputCloser> m_output;
    std::unique_ptr<AVCodecContext, CodecCloser> m_decoder;
    std::unique_ptr<AVCodecContext, CodecCloser> m_encoder;
    std::unique_ptr<SwrContext, SwrCloser> m_resampler;
    std::unique_ptr<AVAudioFifo, FifoCloser> m_fifo;
    int m_streamIndex = -1;
    int m_frameSize = 0;
    bool m_resamplerChecked = false;
    bool m_decodingTrouble = false;
    std::int64_t m_firstPts = 0;
    std::int64_t m_samplesDone = 0;
    std::int64_t m_total = 0;
};

} // namespace

TranscodeResult transcode(const TranscodeJob& job, const TranscodeHooks& hooks) {
    return Transcoder(job, hooks).run();
}

} // namespace worker
