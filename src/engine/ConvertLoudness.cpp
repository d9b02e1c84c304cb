#include "engine/ConvertLoudness.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
// The output kinds whose tags players read ReplayGain from. WAV and AIFF can hold an ID3v2 chunk,
// but no player looks for gains there, and AC3 or MP2 carry no tags at all.
bool carriesGainTags(const QString& extension) {
    static const QStringList kinds{"mp3", "m4a",  "m4r", "mp4", "flac", "ogg",
                                   "oga", "opus", "wma", "asf", "wv",   "ape"};
    return kinds.contains(extension.toLower());
}

double decibels(double linear) {
    return linear > 0 ? 20.0 * std::log10(linear) : -std::numeric_limits<double>::infinity();
}
} // namespace

std::optional<double> ConvertLoudness::appliedGain() const {
    if (!normalise)
        return std::nullopt;
    const bool album = wantsAlbum() && albumGain;
    const std::optional<double> gain = album ? albumGain : trackGain;
    if (!gain)
        return std::nullopt;
    // Raising the level must not push the true peak over the ceiling; lowering it never does.
    const double headroom = kCeilingDbtp - decibels(album ? albumPeak : trackPeak);
    return std::min(*gain, headroom);
}

MTELoudnessFields ConvertLoudness::tagFields(const QString& extension) const {
    MTELoudnessFields result;
    if (!wanted())
        return result; // the source's fields go along, as they always have
    result.replace = true;
    // A normalised output already sounds at its gain; a tag would have it applied twice.
    if (normalise || !carriesGainTags(extension))
        return result;
    const bool album = wantsAlbum();
    if (extension.compare(QLatin1String("opus"), Qt::CaseInsensitive) == 0) {
        // Opus players apply R128 gains only, in their own fixed-point form and without peaks.
        if (trackGain)
            result.fields.insert(QStringLiteral("R128_TRACK_GAIN"),
                                 QString::number(opusGain(*trackGain)));
        if (album && albumGain)
            result.fields.insert(QStringLiteral("R128_ALBUM_GAIN"),
                                 QString::number(opusGain(*albumGain)));
        return result;
    }
    if (trackGain) {
        result.fields.insert(QStringLiteral("REPLAYGAIN_TRACK_GAIN"), gainText(*trackGain));
        result.fields.insert(QStringLiteral("REPLAYGAIN_TRACK_PEAK"), peakText(trackPeak));
    }
    if (album && albumGain) {
        result.fields.insert(QStringLiteral("REPLAYGAIN_ALBUM_GAIN"), gainText(*albumGain));
        result.fields.insert(QStringLiteral("REPLAYGAIN_ALBUM_PEAK"), peakText(albumPeak));
    }
    return result;
}

QString ConvertLoudness::gainText(double gain) {
    // QString::number never uses the user's decimal separator.
    const double rounded = std::round(gain * 100.0) / 100.0;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'f', 2) + QStringLiteral(" dB");
}

QString ConvertLoudness::peakText(double peak) {
    return QString::number(peak, 'f', 6);
}

int ConvertLoudness::opusGain(double gain) {
    const double q78 = std::round((gain + kOpusReferenceLufs - kReferenceLufs) * 256.0);
    return int(std::clamp(q78, double(std::numeric_limits<int16_t>::min()),
                          double(std::numeric_limits<int16_t>::max())));
}

QString ConvertLoudness::notMeasured(const QString& detail) {
    return QCoreApplication::translate("ConvertLoudness",
                                       "The loudness of the source could not be measured: %1")
        .arg(detail);
}
