#include "workspace/SXCatalogueTexts.h"

#include <QLocale>

namespace {
// The catalogue's descriptions, listed here so that the translation tools see them.
[[maybe_unused]] const char* const kDescriptions[] = {
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "MPEG Layer III audio, playable everywhere"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts",
                      "Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same "
                      "quality"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "AAC ringtone for phones"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts",
                      "Free Lossless Audio Codec: exact copy of the sound, about half the size of "
                      "WAV"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts",
                      "Apple Lossless in an MPEG-4 file: exact copy of the sound"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "Uncompressed 16-bit PCM in a WAVE file"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "Uncompressed 16-bit PCM in an AIFF file"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "Vorbis in an Ogg file: free and open lossy audio"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "Opus in an Ogg file: the best quality at low bit rates"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "Windows Media Audio 2"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "Dolby Digital (AC-3) stream for video and home cinema"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts", "MPEG Layer II audio stream for broadcast and DVD"),
    QT_TRANSLATE_NOOP("SXCatalogueTexts",
                      "WavPack lossless audio: exact copy of the sound, compact and fast"),
};
} // namespace

QString SXCatalogueTexts::choiceTitle(Choice kind, const QString& title) {
    if (title == QLatin1String("Use Source"))
        return tr("Use Source");
    if (title == QLatin1String("Lossless"))
        return tr("Lossless");
    if (title == QLatin1String("Stereo"))
        return tr("Stereo");
    if (title == QLatin1String("Mono"))
        return tr("Mono");
    bool number = false;
    const int value = title.toInt(&number);
    if (!number || kind == Choice::Channels)
        return title;
    const QString digits = QLocale().toString(value);
    return kind == Choice::BitRate ? tr("%1 kbit/s").arg(digits) : tr("%1 Hz").arg(digits);
}

QString SXCatalogueTexts::description(const QString& text) {
    return QCoreApplication::translate("SXCatalogueTexts", text.toUtf8().constData());
}

QString SXCatalogueTexts::formatName(const QString& name) {
    if (name == QLatin1String("Ringtone"))
        return tr("Ringtone");
    return name;
}
