#include "workspace/SXFileInfoText.h"

#include "base/SXTimeText.h"
#include "workspace/SXFailureTexts.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

const QString kUnknown = QStringLiteral("Unknow");

QString orUnknown(const QString& text) {
    return text.isEmpty() ? kUnknown : text;
}

QString codecName(const LSMedia* media) {
    return media ? media->strAudioCodecName().toUpper() : QString();
}

// Title falls back to the file's name without its last extension, never to "Unknow".
QString titleText(const MTEAudioFile* tags, const LSMedia* media) {
    const QString title = tags ? tags->title() : QString();
    if (!title.isEmpty() || !media)
        return title;
    return QFileInfo(media->filePath()).completeBaseName();
}

// Why the item's last run failed; shown only for an item that failed.
SXFileInfoLine failureLine(const SXMusicInfo& item) {
    const std::optional<SXPathFailure> failure = SXFailureTexts::conversionFailure(item);
    return {QStringLiteral("tfInfoFailReason"),
            QCoreApplication::translate("SXFileInfoText", "Failed because"),
            failure ? failure->reason : QString(), failure.has_value()};
}

} // namespace

QString SXFileInfoText::bitRateText(const MTEAudioFile* tags, const LSMedia* media) {
    // The tag library's figure wins whenever it has one; the probe is the fallback.
    double kbps = 0;
    if (tags && tags->bitrate() >= 1)
        kbps = tags->bitrate();
    else if (media)
        kbps = media->audioBitrate() / 1000.0;
    else
        return kUnknown;
    return orUnknown(QString::asprintf("%.0fkbps", kbps));
}

QString SXFileInfoText::sampleRateText(const MTEAudioFile* tags, const LSMedia* media) {
    double hertz = 0;
    if (tags && tags->sampleRate() >= 1)
        hertz = tags->sampleRate();
    else if (media)
        hertz = media->audioSamplerate();
    else
        return kUnknown;
    return orUnknown(QString::asprintf("%.1fkHz", hertz / 1000.0));
}

QString SXFileInfoText::fileSizeText(double bytes) {
    return QString::asprintf("%.1fM", bytes / (1024.0 * 1024.0));
}

QString SXFileInfoText::id3TagText(const QString& tagVersion) {
    // Split at every single blank, so two blanks in a row make an empty second part.
    const QStringList parts = tagVersion.split(QLatin1Char(' '));
    return parts.size() >= 2 ? parts.at(1) : QString();
}

QString SXFileInfoText::kindText(const QString& filePath, int mediaType) {
    const QString kind =
        mediaType == HVMediaTypeAudio ? QStringLiteral("audio file") : QStringLiteral("video file");
    return QStringLiteral("%1 %2").arg(QFileInfo(filePath).suffix().toUpper(), kind);
}

QList<SXFileInfoLine> SXFileInfoText::linesForItem(const SXMusicInfo& item) {
    const std::shared_ptr<MTEAudioFile> tagHandle = item.metHandler();
    const LSMediaPtr mediaRecord = item.mediaInfo();
    const MTEAudioFile* tags = tagHandle.get();
    const LSMedia* media = mediaRecord.get();
    const int channels = media ? media->audioChannels() : 0;
    const QString tagVersion = tags ? tags->strTagVersion() : QString();
    const QString path = media ? media->filePath() : QString();

    return {
        {QStringLiteral("tfInfoAlbum"), QStringLiteral("Album"),
         orUnknown(tags ? tags->album() : QString())},
        {QStringLiteral("tfInfoArtist"), QStringLiteral("Artist"),
         orUnknown(tags ? tags->artist() : QString())},
        {QStringLiteral("tfInfoBitRate"), QStringLiteral("Bit rate"), bitRateText(tags, media)},
        {QStringLiteral("tfInfoBitRateMode"), QStringLiteral("Bit rate mode"),
         QStringLiteral("mod")},
        {QStringLiteral("tfInfoChannels"), QStringLiteral("Channels"),
         channels == 2 ? QStringLiteral("Stereo") : QStringLiteral("Mono")},
        {QStringLiteral("tfInfoChannelsMod"), QStringLiteral("Channel count"),
         QString::asprintf("%d", channels)},
        {QStringLiteral("tfInfoDateMdf"), QStringLiteral("Date modified"),
         media ? media->strLastModified() : QString()},
        {QStringLiteral("tfInfoEncodeWith"), QStringLiteral("Encoded with"), codecName(media)},
        {QStringLiteral("tfInfoFileSize"), QStringLiteral("Size"),
         fileSizeText(media ? media->dFileSize() : 0)},
        {QStringLiteral("tfInfoFormat"), QStringLiteral("Format"), codecName(media)},
        {QStringLiteral("tfInfoId3Tag"), QStringLiteral("ID3 tag"), id3TagText(tagVersion)},
        {QStringLiteral("tfInfoKind"), QStringLiteral("Kind"),
         kindText(path, media ? media->eumMediaType() : HVMediaTypeUnknown)},
        {QStringLiteral("tfInfoLength"), QStringLiteral("Length"),
         media ? SXTimeText::clockString(media->duration()) : QString()},
        {QStringLiteral("tfInfoSampleRate"), QStringLiteral("Sample rate"),
         sampleRateText(tags, media)},
        {QStringLiteral("tfInfoTagFmt"), QStringLiteral("Tag format"), tagVersion},
        {QStringLiteral("tfInfoTitle"), QStringLiteral("Title"), titleText(tags, media)},
        {QStringLiteral("tfInfoWhere"), QStringLiteral("Where"), path},
        failureLine(item),
    };
}

QString SXFileInfoText::textForLabel(const QList<SXFileInfoLine>& lines, const QString& labelName) {
    for (const SXFileInfoLine& line : lines) {
        if (line.labelName == labelName)
            return line.text;
    }
    return QString();
}

std::optional<MTEArtwork> SXFileInfoText::artworkForItem(const SXMusicInfo& item) {
    const std::shared_ptr<MTEAudioFile> tags = item.metHandler();
    if (!tags)
        return std::nullopt;
    const MTEArtworkList images = tags->albumImg();
    if (images.isEmpty())
        return std::nullopt;
    return images.last();
}
