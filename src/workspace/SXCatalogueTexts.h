#pragma once

#include <QCoreApplication>
#include <QString>

// What people read of the format catalogue's own texts. The catalogue names its choices in
// English ("Use Source", "Stereo", "192"); those stay the values stored and compared everywhere,
// and only their display goes through the translation catalogues, with units and the locale's
// digit grouping for the numbers.
class SXCatalogueTexts {
    Q_DECLARE_TR_FUNCTIONS(SXCatalogueTexts)

public:
    enum class Choice { BitRate, SampleRate, Channels };

    // "192" as "192 kbit/s", "44100" as "44,100 Hz" (in the user's locale), "Use Source",
    // "Lossless", "Stereo" and "Mono" translated; anything else as it stands.
    static QString choiceTitle(Choice kind, const QString& title);
    // A format's one-line description from the catalogue, translated when the catalogue
    // knows it.
    static QString description(const QString& text);
    // A format's name as shown: the names of codecs and products ("MP3", "Apple Lossless") as
    // they are, a plain word ("Ringtone") in the user's language. The name itself stays the
    // container's key and what `sonoria-cli -f` takes.
    static QString formatName(const QString& name);
};
