#pragma once

#include "engine/ConvertExisting.h"
#include "model/SXConversionChoices.h"

#include <QString>
#include <QStringList>
#include <optional>

// What the command line asks for, checked for form (numbers are numbers, an input is given).
// Whether the format and its choices exist is the catalogue's business (CliCatalogue).
struct CliOptions {
    enum class Mode { Help, ListFormats, Info, CheckTags, Convert };
    Mode mode = Mode::Convert;
    QString formatName = QStringLiteral("MP3");
    QString outputFolder; // empty: the stored last folder, else the default folder
    bool organize = true;
    std::optional<int> jobs; // empty: the stored maximum
    QString bitrate;         // empty: the format's default choice
    QString samplerate;
    QString channels;
    bool library = false;
    SXReplayGainMode replayGain = SXReplayGainMode::Off;
    bool normalise = false;
    std::optional<QString> pattern; // empty: the container's stored pattern
    bool mirror = false;
    std::optional<ConvertExisting> existing; // empty: the stored preference
    bool dryRun = false;
    bool verbose = false;
    QString infoFile;
    QStringList inputs; // as given; made absolute by the run (--check-tags: SOURCE, OUTPUT)
};

class CliOptionsParser {
public:
    // Parses the arguments (element 0 is the program). Returns nothing and sets *error to a
    // one-line reason for a usage error.
    static std::optional<CliOptions> parse(const QStringList& arguments, QString* error);
    static QString helpText();
};
