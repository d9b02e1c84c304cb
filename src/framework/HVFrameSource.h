#pragma once

#include <QString>

struct AVChannelLayout;
struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct AVStream;

// The decoded frames of a file's best audio stream (a video file's sound included), in order:
// the one decoding loop of the player and the loudness meter. It opens the file as the probe
// does (HVLocalInput), skips every other stream in the demuxer, skips damaged packets as the
// converter does and flushes the decoder at the end.
// Not thread-safe; one thread uses it.
class HVFrameSource {
public:
    enum class OpenResult { Opened, Unreadable, NoAudio, NotDecodable };

    HVFrameSource() = default;
    ~HVFrameSource();
    HVFrameSource(const HVFrameSource&) = delete;
    HVFrameSource& operator=(const HVFrameSource&) = delete;

    OpenResult open(const QString& path);
    // The next frame, valid until the next call; null at the end of the stream.
    AVFrame* next();
    // To the key frame at or before `seconds` from the file's start; the decoder forgets what it
    // held. Frames before `seconds` still come and are the caller's to drop.
    void seek(double seconds);

    const AVCodecContext* codec() const { return m_codec; }
    // The decoder's channel layout, a default one for its channel count when the file names
    // none (a layout for the resampler); the caller uninitialises it.
    void channelLayout(AVChannelLayout* layout) const;
    const AVStream* stream() const;
    // Seconds from the stream or the container; 0 while unknown.
    double duration() const;

private:
    AVFormatContext* m_format = nullptr;
    AVCodecContext* m_codec = nullptr;
    AVPacket* m_packet = nullptr;
    AVFrame* m_frame = nullptr;
    int m_stream = -1;
    bool m_inputDone = false;
};
