#pragma once

#include "framework/HVMediaInfoItem.h"

#include <QString>

// Reads a file's audio properties in-process with libavformat. Each call opens its own demuxer
// context and closes it before returning, so calls from several threads never share state.
class HVMediaInfo {
public:
    // Fills audioBitrate (bit/s), audioSamplerate, audioChannels, duration (s), eumMediaType and
    // strAudioCodecName of `item` from the file at item.filePath(). Returns false and sets
    // *error when the file cannot be read as media or carries no usable audio stream; the item
    // is left untouched then.
    static bool dumpMediaInfo(HVMediaInfoItem& item, QString* error = nullptr);
    // The short name of the codec the encoder `encoder` writes ("libmp3lame" -> "mp3"), as
    // dumpMediaInfo reports it for the result; empty when libavcodec has no such encoder.
    static QString codecOfEncoder(const QString& encoder);
};
