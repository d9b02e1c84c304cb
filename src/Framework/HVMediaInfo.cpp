#include "Framework/HVMediaInfo.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <memory>
#include <mutex>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/log.h>
}

namespace {

// libav prints its complaints about damaged input straight to standard error; the probe reports
// failures through its own error text instead.
void silenceLibavLogging() {
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_level(AV_LOG_QUIET); });
}

QString libavErrorText(int code) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromUtf8(text);
}

struct FormatContextCloser {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};
using FormatContextPtr = std::unique_ptr<AVFormatContext, FormatContextCloser>;

// Cover art and chapter thumbnails arrive as video streams; only moving pictures make a video.
bool hasRealVideoStream(const AVFormatContext& context) {
    constexpr int pictureOnly =
        AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS | AV_DISPOSITION_STILL_IMAGE;
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        const AVStream* stream = context.streams[i];
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
            (stream->disposition & pictureOnly) == 0)
            return true;
    }
    return false;
}

double durationSeconds(const AVFormatContext& context, const AVStream& stream) {
    if (stream.duration != AV_NOPTS_VALUE && stream.duration > 0)
        return double(stream.duration) * av_q2d(stream.time_base);
    if (context.duration != AV_NOPTS_VALUE && context.duration > 0)
        return double(context.duration) / AV_TIME_BASE;
    return 0;
}

bool fail(QString* error, const QString& text) {
    if (error)
        *error = text;
    return false;
}

// Opens the file and reads just enough packets to know its streams (libav's default probe size
// and analysis duration bound that read; nothing is decoded beyond it).
FormatContextPtr openMedia(const QString& path, QString* error) {
    // The "file:" prefix keeps a name such as "http:x.mp3" a local file, and the whitelist keeps
    // playlist-like inputs from reaching for anything but local files.
    const QByteArray url = "file:" + QFile::encodeName(QFileInfo(path).absoluteFilePath());
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // 16-bit PCM in WAV would otherwise be run past every format detector, up to a megabyte of
    // packets, in case it hides another codec; that costs ten times a whole MP3 probe. The rare
    // hidden stream is still found by ffmpeg itself when it converts.
    av_dict_set(&options, "max_probe_packets", "0", 0);
    AVFormatContext* raw = nullptr;
    const int opened = avformat_open_input(&raw, url.constData(), nullptr, &options);
    av_dict_free(&options);
    if (opened < 0) {
        fail(error,
             QStringLiteral("cannot open %1 as media: %2").arg(path, libavErrorText(opened)));
        return nullptr;
    }
    FormatContextPtr context(raw);
    const int found = avformat_find_stream_info(context.get(), nullptr);
    if (found < 0) {
        fail(error,
             QStringLiteral("cannot read the streams of %1: %2").arg(path, libavErrorText(found)));
        return nullptr;
    }
    return context;
}

} // namespace

bool HVMediaInfo::dumpMediaInfo(HVMediaInfoItem& item, QString* error) {
    silenceLibavLogging();
    const QString path = item.filePath();
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        return fail(error, QStringLiteral("no such file: %1").arg(path));
    // libav would open a folder or a device and then hang or fail in odd ways while reading.
    if (!info.isFile())
        return fail(error, QStringLiteral("not a regular file: %1").arg(path));

    const FormatContextPtr context = openMedia(path, error);
    if (!context)
        return false;
    const int index = av_find_best_stream(context.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (index < 0)
        return fail(error, QStringLiteral("no audio stream in %1").arg(path));
    const AVStream& stream = *context->streams[index];
    const AVCodecParameters& codec = *stream.codecpar;
    // A stream libav could not learn the layout of cannot be converted either.
    if (codec.sample_rate <= 0 || codec.ch_layout.nb_channels <= 0)
        return fail(error, QStringLiteral("unreadable audio stream in %1").arg(path));

    // FLAC and Opus streams carry no bit rate of their own; the container's average stands in.
    const qint64 bitRate = codec.bit_rate > 0 ? codec.bit_rate : qMax<qint64>(context->bit_rate, 0);
    item.setAudioBitrate(double(bitRate));
    item.setAudioSamplerate(double(codec.sample_rate));
    item.setAudioChannels(codec.ch_layout.nb_channels);
    item.setDuration(durationSeconds(*context, stream));
    item.setEumMediaType(hasRealVideoStream(*context) ? HVMediaTypeVideo : HVMediaTypeAudio);
    item.setStrAudioCodecName(QString::fromUtf8(avcodec_get_name(codec.codec_id)));
    return true;
}
