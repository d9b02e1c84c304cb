#include "workspace/SXFileInfoText.h"

#include "base/SXTimeText.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXReadableNames.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

namespace {

// "Unknow" is the source text the panel has always shown; the catalogues spell it.
QString unknownText() {
    return SXFileInfoText::tr("Unknow");
}

QString orUnknown(const QString& text) {
    return text.isEmpty() ? unknownText() : text;
}

QString codecName(const LSMedia* media) {
    return media ? SXReadableNames::codecName(media->strAudioCodecName()) : QString();
}

// PCM is constant by nature and lossless codecs follow the music; for a lossy stream the probe
// cannot tell.
QString bitRateModeText(const LSMedia* media) {
    const QString codec = media ? media->strAudioCodecName() : QString();
    if (codec.startsWith(QLatin1String("pcm_")))
        return SXFileInfoText::tr("Constant");
    if (SXReadableNames::isLossless(codec))
        return SXFileInfoText::tr("Variable");
    return SXFileInfoText::tr("mod");
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
    return {QStringLiteral("tfInfoFailReason"), SXFileInfoText::tr("Failed because"),
            failure ? failure->reason : QString(), failure.has_value()};
}

// What of the tags did not arrive as they were in the last output, one field a line.
SXFileInfoLine tagReportLine(const SXMusicInfo& item) {
    const QStringList lines = item.tagReport().lines();
    return {QStringLiteral("tfInfoTagReport"), SXFileInfoText::tr("Tags not kept"),
            lines.join(QLatin1Char('\n')), !lines.isEmpty()};
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
        return unknownText();
    return tr("%1kbps").arg(QLocale().toString(kbps, 'f', 0));
}

QString SXFileInfoText::sampleRateText(const MTEAudioFile* tags, const LSMedia* media) {
    double hertz = 0;
    if (tags && tags->sampleRate() >= 1)
        hertz = tags->sampleRate();
    else if (media)
        hertz = media->audioSamplerate();
    else
        return unknownText();
    return tr("%1kHz").arg(QLocale().toString(hertz / 1000.0, 'f', 1));
}

QString SXFileInfoText::fileSizeText(double bytes) {
    return QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeTraditionalFormat);
}

QString SXFileInfoText::id3TagText(const QString& tagVersion) {
    // Split at every single blank, so two blanks in a row make an empty second part.
    const QStringList parts = tagVersion.split(QLatin1Char(' '));
    return parts.size() >= 2 ? parts.at(1) : QString();
}

QString SXFileInfoText::kindText(const QString& filePath, int mediaType) {
    const QString suffix = QFileInfo(filePath).suffix().toUpper();
    return mediaType == HVMediaTypeAudio ? tr("%1 audio file").arg(suffix)
                                         : tr("%1 video file").arg(suffix);
}

QList<SXFileInfoLine> SXFileInfoText::linesForItem(const SXMusicInfo& item) {
    const std::shared_ptr<MTEAudioFile> tagHandle = item.metHandler();
    const LSMediaPtr mediaRecord = item.mediaInfo();
    const MTEAudioFile* tags = tagHandle.get();
    const LSMedia* media = mediaRecord.get();
    const int channels = media ? media->audioChannels() : 0;
    const QString tagVersion = tags ? tags->strTagVersion() : QString();
    // The revision within the family ("v2.4" of "ID3 v2.4"); "RIFF INFO" and "MP4" have none.
    QString tagRevision = id3TagText(tagVersion);
    if (!tagRevision.startsWith(QLatin1Char('v')))
        tagRevision.clear();
    const QString path = media ? media->filePath() : QString();

    // In reading order: what the music is, then what the file holds, then where it lies.
    return {
        {QStringLiteral("tfInfoTitle"), tr("Title"), titleText(tags, media)},
        {QStringLiteral("tfInfoArtist"), tr("Artist"),
         orUnknown(tags ? tags->artist() : QString())},
        {QStringLiteral("tfInfoAlbum"), tr("Album"), orUnknown(tags ? tags->album() : QString())},
        {QStringLiteral("tfInfoKind"), tr("Kind"),
         kindText(path, media ? media->eumMediaType() : HVMediaTypeUnknown)},
        {QStringLiteral("tfInfoFormat"), tr("Format"), codecName(media)},
        {QStringLiteral("tfInfoEncodeWith"), tr("Encoded with"), codecName(media)},
        {QStringLiteral("tfInfoLength"), tr("Length"),
         media ? SXTimeText::clockString(media->duration()) : QString()},
        {QStringLiteral("tfInfoBitRate"), tr("Bit rate"), bitRateText(tags, media)},
        {QStringLiteral("tfInfoBitRateMode"), tr("Bit rate mode"), bitRateModeText(media)},
        {QStringLiteral("tfInfoSampleRate"), tr("Sample rate"), sampleRateText(tags, media)},
        {QStringLiteral("tfInfoChannels"), tr("Channels"),
         orUnknown(SXReadableNames::channelsName(channels))},
        {QStringLiteral("tfInfoChannelsMod"), tr("Channel count"), QLocale().toString(channels)},
        {QStringLiteral("tfInfoFileSize"), tr("Size"),
         fileSizeText(media ? media->dFileSize() : 0)},
        {QStringLiteral("tfInfoTagFmt"), tr("Tag format"),
         SXReadableNames::tagFamilyName(tagVersion)},
        // A family without revisions shows no line.
        {QStringLiteral("tfInfoId3Tag"), tr("Tag version"), tagRevision, !tagRevision.isEmpty()},
        {QStringLiteral("tfInfoDateMdf"), tr("Date modified"),
         media ? media->strLastModified() : QString()},
        {QStringLiteral("tfInfoWhere"), tr("Where"), path},
        tagReportLine(item),
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
