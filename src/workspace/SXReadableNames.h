#pragma once

#include <QCoreApplication>
#include <QString>

// The names people know for what libav and the tag library call by their own names: codecs
// ("PCM 16-bit" for pcm_s16le), channel counts ("Stereo", "5.1") and tag families ("Vorbis
// comments" for the tag library's "Vorbis Comment"). Shown in the rows and the information panel.
class SXReadableNames {
    Q_DECLARE_TR_FUNCTIONS(SXReadableNames)

public:
    // An avcodec name ("mp3", "pcm_s24le", "wmav2"); a codec without a common name of its own is
    // shown in capitals, an empty name stays empty.
    static QString codecName(const QString& avcodecName);
    // "Mono", "Stereo", "5.1", "7.1", else "N channels"; empty for no channels at all.
    static QString channelsName(int channels);
    // The tag family of a tag version ("ID3 v2.4" gives "ID3v2", "APE v2" gives "APE").
    static QString tagFamilyName(const QString& tagVersion);
    // Whether the codec stores every sample as it was (its bit rate then follows the music).
    static bool isLossless(const QString& avcodecName);
};
