#pragma once

#include <QString>

// What ffprobe says about the first audio stream of a file, in the units of our own probe
// (bits and samples per second, seconds). The command-line prober is the independent reference
// the probe and the conversions are checked against.
struct ProbeReference {
    double bitRate = 0; // the stream's, else the container's
    double sampleRate = 0;
    int channels = 0;
    double duration = 0; // the stream's, else the container's
    QString codecName;
    bool ok = false; // ffprobe ran and found an audio stream

    static ProbeReference read(const QString& path);
};
