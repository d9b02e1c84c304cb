#include "workspace/SXReadableNames.h"

#include <QHash>
#include <QRegularExpression>

namespace {

// Proper names, the same in every language.
const QHash<QString, QString>& knownCodecs() {
    static const QHash<QString, QString> names{
        {QStringLiteral("mp3"), QStringLiteral("MP3")},
        {QStringLiteral("mp2"), QStringLiteral("MP2")},
        {QStringLiteral("mp1"), QStringLiteral("MP1")},
        {QStringLiteral("aac"), QStringLiteral("AAC")},
        {QStringLiteral("aac_latm"), QStringLiteral("AAC")},
        {QStringLiteral("alac"), QStringLiteral("ALAC")},
        {QStringLiteral("flac"), QStringLiteral("FLAC")},
        {QStringLiteral("vorbis"), QStringLiteral("Vorbis")},
        {QStringLiteral("opus"), QStringLiteral("Opus")},
        {QStringLiteral("wavpack"), QStringLiteral("WavPack")},
        {QStringLiteral("ape"), QStringLiteral("Monkey's Audio")},
        {QStringLiteral("tta"), QStringLiteral("TTA")},
        {QStringLiteral("wmav1"), QStringLiteral("WMA")},
        {QStringLiteral("wmav2"), QStringLiteral("WMA")},
        {QStringLiteral("wmapro"), QStringLiteral("WMA Pro")},
        {QStringLiteral("wmalossless"), QStringLiteral("WMA Lossless")},
        {QStringLiteral("ac3"), QStringLiteral("AC-3")},
        {QStringLiteral("eac3"), QStringLiteral("E-AC-3")},
        {QStringLiteral("dts"), QStringLiteral("DTS")},
        {QStringLiteral("truehd"), QStringLiteral("TrueHD")},
        {QStringLiteral("amr_nb"), QStringLiteral("AMR-NB")},
        {QStringLiteral("amr_wb"), QStringLiteral("AMR-WB")},
        {QStringLiteral("speex"), QStringLiteral("Speex")},
        {QStringLiteral("pcm_alaw"), QStringLiteral("A-law")},
        {QStringLiteral("pcm_mulaw"), QStringLiteral("\u00b5-law")},
    };
    return names;
}

} // namespace

QString SXReadableNames::codecName(const QString& avcodecName) {
    const QString name = avcodecName.toLower();
    if (const auto known = knownCodecs().constFind(name); known != knownCodecs().cend())
        return known.value();
    // pcm_s16le, pcm_u8, pcm_f32be, pcm_s24daud: the sample size is what people compare.
    static const QRegularExpression pcm(QStringLiteral("^pcm_([suf])(\\d+)"));
    if (const QRegularExpressionMatch match = pcm.match(name); match.hasMatch()) {
        const QString bits = match.captured(2);
        return match.captured(1) == QLatin1String("f") ? tr("PCM %1-bit float").arg(bits)
                                                       : tr("PCM %1-bit").arg(bits);
    }
    if (name.startsWith(QLatin1String("adpcm_")))
        return QStringLiteral("ADPCM");
    return avcodecName.toUpper();
}

QString SXReadableNames::channelsName(int channels) {
    switch (channels) {
    case 0:
        return {};
    case 1:
        return tr("Mono");
    case 2:
        return tr("Stereo");
    case 6:
        return QStringLiteral("5.1");
    case 8:
        return QStringLiteral("7.1");
    default:
        return tr("%n channels", nullptr, channels);
    }
}

QString SXReadableNames::tagFamilyName(const QString& tagVersion) {
    if (tagVersion.startsWith(QLatin1String("ID3 v2")))
        return QStringLiteral("ID3v2");
    if (tagVersion.startsWith(QLatin1String("ID3 v1")))
        return QStringLiteral("ID3v1");
    if (tagVersion.startsWith(QLatin1String("APE")))
        return QStringLiteral("APE");
    if (tagVersion == QLatin1String("Vorbis Comment"))
        return tr("Vorbis comments");
    return tagVersion; // "MP4", "ASF", "RIFF INFO" are their own names
}

bool SXReadableNames::isLossless(const QString& avcodecName) {
    static const QStringList lossless{QStringLiteral("flac"),    QStringLiteral("alac"),
                                      QStringLiteral("wavpack"), QStringLiteral("ape"),
                                      QStringLiteral("tta"),     QStringLiteral("wmalossless"),
                                      QStringLiteral("truehd")};
    const QString name = avcodecName.toLower();
    return lossless.contains(name) || name.startsWith(QLatin1String("pcm_"));
}
