#pragma once

#include <QString>

struct AVFormatContext;
struct AVInputFormat;

// How every reader of media here (the probe, the player, the loudness meter) opens a file with
// libavformat: as a local file only, whatever its name looks like ("http:x.mp3" stays a file, and
// a playlist-like input reaches for nothing else); with libav's own complaints silenced, as each
// reader reports failures in its own words; and with a 16-bit WAV probed for a codec hidden in
// its samples on its first packet only.
namespace HVLocalInput {
// avformat_open_input's result for `path`. `format` and `skipBytes` let a caller that already
// knows where the media starts (after leading tags) say so.
int open(AVFormatContext** context, const QString& path, const AVInputFormat* format = nullptr,
         qint64 skipBytes = 0);
} // namespace HVLocalInput
