#pragma once

#include <QString>
#include <QStringList>

struct ConvertJob;

// The numbers the encoder is asked for: exactly what ffmpeg reads from the argument list, so that
// a converter given these instead of the list makes the same file.
struct ConvertEncoderSettings {
    QString encoder;    // ffmpeg's encoder name ("libmp3lame")
    int sampleRate = 0; // Hz
    qint64 bitRate = 0; // bit/s; 0 for the lossless encoders
    int channels = 0;
};

// The ffmpeg command line of one conversion: which ffmpeg runs, and the arguments its job gets,
// always in the same order and never more than these. Every rule that turns a container's
// choices into numbers for ffmpeg is here.
class ConvertCommandLine {
public:
    // The ffmpeg beside our own executable, else the one on PATH; empty when there is none.
    static QString ffmpegPath();

    // The argument vector (element 0 is the executable), in its fixed order.
    static QStringList arguments(const QString& executable, const ConvertJob& job,
                                 const QString& outputFile);

    // The encoder's numbers of those arguments, as ffmpeg reads them.
    static ConvertEncoderSettings settings(const ConvertJob& job);

    // The arguments as the log shows them: ("a", "b", ...).
    static QString readable(const QStringList& arguments);
};
