#pragma once

#include "framework/HVFrameSource.h"

#include <QByteArray>
#include <QString>

struct SwrContext;

// Decodes the best audio stream of a file (a video file's sound included) into interleaved
// signed 16-bit samples at a chosen rate and channel count: the frames of HVFrameSource, the
// decoder that probing and measuring already trust, through libswresample. Not thread-safe; one
// thread uses it.
class HVAudioDecoder {
public:
    HVAudioDecoder(int sampleRate, int channels);
    ~HVAudioDecoder();
    HVAudioDecoder(const HVAudioDecoder&) = delete;
    HVAudioDecoder& operator=(const HVAudioDecoder&) = delete;

    // False with *error set when the file has no audio the libraries can decode.
    bool open(const QString& path, QString* error = nullptr);
    // Only the part of the file from `startSeconds` to `endSeconds` (negative: its end) plays,
    // as for a track of a cue sheet; seek() and duration() then count from the part's start.
    void limitTo(double startSeconds, double endSeconds);
    // Seconds; 0 while unknown.
    double duration() const;
    // The next block of samples; empty at the end of the stream (or after an error).
    QByteArray decodeSome();
    // Moves to `seconds` from the start (of the part); the next block starts there.
    void seek(double seconds);

    int bytesPerSecond() const { return m_sampleRate * m_channels * 2; }

private:
    bool openResampler();
    QByteArray decodeNext();
    QByteArray convertFrame(const AVFrame& frame);
    QByteArray drainResampler();

    int m_sampleRate;
    int m_channels;
    HVFrameSource m_source;
    SwrContext* m_swr = nullptr;
    bool m_opened = false;
    double m_duration = 0;
    double m_skipUntil = 0; // after a seek, samples before the target are dropped
    double m_rangeStart = 0;
    double m_rangeEnd = -1;
    qint64 m_bytesLeft = -1; // of the part, from the last seek; -1: to the end of the file
    bool m_finished = false;
};
