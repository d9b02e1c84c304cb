#include "framework/HVMediaInfo.h"

#include "framework/HVLocalInput.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <memory>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/pixfmt.h>
}

namespace {

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

// An ID3v2 tag: a 10-byte header ("ID3", version, flags, then the size of what follows in four
// 7-bit bytes), frames and padding, and a 10-byte footer when flag bit 4 says so.
constexpr qint64 id3v2HeaderSize = 10;

// Length of the ID3v2 tag whose header `header` is, 0 when it is none. The header test is the
// one libavformat applies.
qint64 id3v2TagLength(const QByteArray& header) {
    if (header.size() < id3v2HeaderSize || !header.startsWith("ID3"))
        return 0;
    const auto byte = [&header](int index) { return quint8(header[index]); };
    if (byte(3) == 0xff || byte(4) == 0xff)
        return 0;
    qint64 size = 0;
    for (int index = 6; index < id3v2HeaderSize; ++index) {
        if (byte(index) & 0x80)
            return 0;
        size = (size << 7) | byte(index);
    }
    const bool hasFooter = byte(5) & 0x10;
    return id3v2HeaderSize + size + (hasFooter ? id3v2HeaderSize : 0);
}

// Bytes of the ID3v2 tags the file starts with (some writers put several in a row).
qint64 leadingTagsLength(QFile& file) {
    qint64 offset = 0;
    while (file.seek(offset)) {
        const qint64 length = id3v2TagLength(file.read(id3v2HeaderSize));
        if (length == 0)
            break;
        offset += length;
    }
    return offset;
}

// libavformat's own format detection over the bytes from `offset` on: windows doubling from
// 2 KiB until a demuxer is sure, the last one (1 MiB, or the end of the file) taking the best
// guess. The file name gives demuxers that know its extension a say, as libavformat does.
const AVInputFormat* detectFormatAt(QFile& file, qint64 offset, const QByteArray& fileName) {
    constexpr qint64 firstWindow = 2048;
    constexpr qint64 lastWindow = 1 << 20;
    if (!file.seek(offset))
        return nullptr;
    std::vector<unsigned char> window;
    qint64 filled = 0;
    for (qint64 size = firstWindow; size <= lastWindow; size *= 2) {
        window.resize(size + AVPROBE_PADDING_SIZE);
        const qint64 got =
            file.read(reinterpret_cast<char*>(window.data()) + filled, size - filled);
        if (got < 0)
            return nullptr;
        filled += got;
        std::fill(window.begin() + filled, window.end(), 0);
        const bool lastTry = filled < size || size == lastWindow;
        AVProbeData data = {fileName.constData(), window.data(), int(filled), nullptr};
        int score = lastTry ? 0 : AVPROBE_SCORE_RETRY;
        if (const AVInputFormat* format = av_probe_input_format2(&data, 1, &score))
            return format;
        if (lastTry)
            break;
    }
    return nullptr;
}

// Where the demuxer should start reading, and which one.
struct MediaStart {
    const AVInputFormat* format = nullptr; // none: libavformat detects it from the first byte
    qint64 offset = 0;
};

// libavformat detects a file's format over a window that grows from 2 KiB and skips a leading
// ID3v2 tag only once the window holds all of it: behind a 300 KB cover every format detector
// ran nine times over up to 512 KB (20 ms a file), and behind a cover over 1 MiB the extension
// alone decided. Skipping the tags by their own header makes detection cost the same as for an
// untagged file. The tags are tag-library business, so the demuxer starts after them too.
MediaStart findMediaStart(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const qint64 tagsLength = leadingTagsLength(file);
    if (tagsLength == 0)
        return {};
    // Nothing recognisable after the tags: leave it all to libavformat, as for any other file.
    const AVInputFormat* format = detectFormatAt(file, tagsLength, QFile::encodeName(path));
    return format ? MediaStart{format, tagsLength} : MediaStart{};
}

// avformat_find_stream_info decodes a cover picture only to learn its size and pixel format,
// which nobody here reads: 2 to 20 ms for a 300 KB to 1 MB cover, ten times the rest of the
// probe. Marking them known spares the decode; the context is closed right after the probe.
void skipCoverDecoding(AVFormatContext& context) {
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        AVStream& stream = *context.streams[i];
        if ((stream.disposition & AV_DISPOSITION_ATTACHED_PIC) == 0)
            continue;
        AVCodecParameters& picture = *stream.codecpar;
        if (picture.width <= 0 || picture.height <= 0)
            picture.width = picture.height = 1;
        if (picture.format < 0)
            picture.format = AV_PIX_FMT_RGB24;
    }
}

// Opens the file and reads just enough packets to know its streams (libav's default probe size
// and analysis duration bound that read; nothing is decoded beyond it).
FormatContextPtr openMedia(const QString& path, QString* error) {
    const MediaStart start = findMediaStart(path);
    AVFormatContext* raw = nullptr;
    const int opened = HVLocalInput::open(&raw, path, start.format, start.offset);
    if (opened < 0) {
        fail(error,
             QStringLiteral("cannot open %1 as media: %2").arg(path, libavErrorText(opened)));
        return nullptr;
    }
    FormatContextPtr context(raw);
    skipCoverDecoding(*context);
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
    item.setDurationExact(context->duration_estimation_method != AVFMT_DURATION_FROM_BITRATE);
    item.setEumMediaType(hasRealVideoStream(*context) ? HVMediaTypeVideo : HVMediaTypeAudio);
    item.setStrAudioCodecName(QString::fromUtf8(avcodec_get_name(codec.codec_id)));
    return true;
}

QString HVMediaInfo::codecOfEncoder(const QString& encoder) {
    const AVCodec* codec = avcodec_find_encoder_by_name(encoder.toUtf8().constData());
    return codec ? QString::fromUtf8(avcodec_get_name(codec->id)) : QString();
}
