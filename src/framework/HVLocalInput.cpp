#include "framework/HVLocalInput.h"

#include <QFile>
#include <QFileInfo>

#include <mutex>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
}

int HVLocalInput::open(AVFormatContext** context, const QString& path, const AVInputFormat* format,
                       qint64 skipBytes) {
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_QUIET); });
    const QByteArray url = "file:" + QFile::encodeName(QFileInfo(path).absoluteFilePath());
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // By default every demuxer's probe runs over up to 32 growing packets of a 16-bit WAV, in
    // case they hide another codec: ten times a whole MP3 probe, twenty times reading a short
    // file. The first packet is still probed, which finds a hidden MP3; the converter worker
    // does the same.
    av_dict_set(&options, "max_probe_packets", "0", 0);
    if (skipBytes > 0)
        av_dict_set_int(&options, "skip_initial_bytes", skipBytes, 0);
    const int opened = avformat_open_input(context, url.constData(), format, &options);
    av_dict_free(&options);
    return opened;
}
