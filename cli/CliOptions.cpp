#include "CliOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

const char* const kHelp =
    QT_TRANSLATE_NOOP("CliOptionsParser", R"(Usage: sonoria-cli [options] FILE|FOLDER...
Convert audio and video files to audio formats.

  -f, --format NAME       output format, a catalogue name (default "MP3")
  -o, --output DIR        output folder (default: the stored last folder, else Music/Sonoria)
      --no-organize       write into DIR itself instead of DIR/<format name>
  -j, --jobs N            simultaneous conversions (default: the stored maximum, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   one of the format's offered choices
      --pattern PATTERN   name outputs from their tags: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; "/" makes
                          folders (default "{filename}": the source's own name)
      --mirror            keep the place of each file below the FOLDER it was found in
      --existing WHAT     an output with the planned name is already there: "skip" it when it is
                          whole and newer than its source (default: the stored preference,
                          else skip), keep "both" (number the new file), or "replace" an
                          output this program wrote (never any other file)
      --library           deliver finished files to the music library and playlist
      --replaygain MODE   measure the loudness and tag the outputs with ReplayGain: "track",
                          or "album" for track and album values (off by default)
      --normalise         convert at the measured loudness (the album's with --replaygain
                          album), true peak at most -1 dBTP; no ReplayGain tags are written
      --list-formats      print the catalogue: names, extensions, choices and defaults
      --info FILE         print what the file information panel shows for a file
      --check-tags SOURCE OUTPUT   compare the tags of two files: what arrived, what changed,
                          what was lost and why (exit status 1 when anything was lost)
  -n, --dry-run           load and probe, print what would be converted and where, convert nothing
  -v, --verbose           mirror the log lines to standard error (as does SONORIA_VERBOSE=1)
  -h, --help              show this text

A name that starts with "-" needs "--" before it, or "./" in front.
Stored settings are read, never changed.

Exit status: 0 every file converted; 1 a file failed, could not be loaded or was cancelled
(also after SIGTERM, which cancels the run); 2 usage error; 130 interrupted by SIGINT (Ctrl-C
cancels the run; partial outputs are removed).
)");

struct Declared {
    QCommandLineOption format{
        {QStringLiteral("f"), QStringLiteral("format")}, QString(), QStringLiteral("NAME")};
    QCommandLineOption output{
        {QStringLiteral("o"), QStringLiteral("output")}, QString(), QStringLiteral("DIR")};
    QCommandLineOption noOrganize{QStringLiteral("no-organize")};
    QCommandLineOption jobs{
        {QStringLiteral("j"), QStringLiteral("jobs")}, QString(), QStringLiteral("N")};
    QCommandLineOption bitrate{
        {QStringLiteral("b"), QStringLiteral("bitrate")}, QString(), QStringLiteral("V")};
    QCommandLineOption samplerate{
        {QStringLiteral("r"), QStringLiteral("samplerate")}, QString(), QStringLiteral("V")};
    QCommandLineOption channels{
        {QStringLiteral("c"), QStringLiteral("channels")}, QString(), QStringLiteral("V")};
    QCommandLineOption library{QStringLiteral("library")};
    QCommandLineOption replayGain{QStringLiteral("replaygain"), QString(), QStringLiteral("MODE")};
    QCommandLineOption normalise{QStringLiteral("normalise")};
    QCommandLineOption pattern{QStringLiteral("pattern"), QString(), QStringLiteral("PATTERN")};
    QCommandLineOption mirror{QStringLiteral("mirror")};
    QCommandLineOption existing{QStringLiteral("existing"), QString(), QStringLiteral("WHAT")};
    QCommandLineOption listFormats{QStringLiteral("list-formats")};
    QCommandLineOption info{QStringLiteral("info"), QString(), QStringLiteral("FILE")};
    QCommandLineOption checkTags{QStringLiteral("check-tags")};
    QCommandLineOption dryRun{{QStringLiteral("n"), QStringLiteral("dry-run")}};
    QCommandLineOption verbose{{QStringLiteral("v"), QStringLiteral("verbose")}};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}};

    QList<QCommandLineOption> all() const {
        return {format,  output,     noOrganize, jobs,    bitrate, samplerate, channels,
                library, replayGain, normalise,  pattern, mirror,  existing,   listFormats,
                info,    checkTags,  dryRun,     verbose, help};
    }
};

// Options that take a value may be given once; a second value is more likely a slip than a wish.
bool checkSingleValues(const QCommandLineParser& parser, const Declared& declared, QString* error) {
    for (const QCommandLineOption& option : declared.all()) {
        if (!option.valueName().isEmpty() && parser.values(option).size() > 1) {
            *error =
                QCoreApplication::translate("CliOptionsParser", "option --%1 given more than once")
                    .arg(option.names().last());
            return false;
        }
    }
    return true;
}

std::optional<int> parseJobs(const QString& text, QString* error) {
    bool ok = false;
    const int jobs = text.trimmed().toInt(&ok);
    if (!ok || jobs < 1) {
        *error = QCoreApplication::translate("CliOptionsParser",
                                             "--jobs needs a whole number of 1 or more, not \"%1\"")
                     .arg(text);
        return std::nullopt;
    }
    return jobs;
}

std::optional<SXReplayGainMode> parseReplayGain(const QString& text, QString* error) {
    if (text.compare(QLatin1String("track"), Qt::CaseInsensitive) == 0)
        return SXReplayGainMode::Track;
    if (text.compare(QLatin1String("album"), Qt::CaseInsensitive) == 0)
        return SXReplayGainMode::Album;
    *error = QCoreApplication::translate("CliOptionsParser",
                                         "--replaygain takes \"track\" or \"album\", not \"%1\"")
                 .arg(text);
    return std::nullopt;
}

} // namespace

QString CliOptionsParser::helpText() {
    return QCoreApplication::translate("CliOptionsParser", kHelp);
}

std::optional<CliOptions> CliOptionsParser::parse(const QStringList& arguments, QString* error) {
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsCompactedShortOptions);
    const Declared declared;
    parser.addOptions(declared.all());
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return std::nullopt;
    }
    if (!checkSingleValues(parser, declared, error))
        return std::nullopt;

    CliOptions options;
    options.verbose = parser.isSet(declared.verbose);
    if (parser.isSet(declared.help)) {
        options.mode = CliOptions::Mode::Help;
        return options;
    }
    if (parser.isSet(declared.format))
        options.formatName = parser.value(declared.format);
    options.outputFolder = parser.value(declared.output);
    if (parser.isSet(declared.output) && options.outputFolder.isEmpty()) {
        *error = QCoreApplication::translate("CliOptionsParser", "--output needs a folder");
        return std::nullopt;
    }
    options.organize = !parser.isSet(declared.noOrganize);
    if (parser.isSet(declared.jobs)) {
        options.jobs = parseJobs(parser.value(declared.jobs), error);
        if (!options.jobs)
            return std::nullopt;
    }
    options.bitrate = parser.value(declared.bitrate);
    options.samplerate = parser.value(declared.samplerate);
    options.channels = parser.value(declared.channels);
    options.library = parser.isSet(declared.library);
    if (parser.isSet(declared.replayGain)) {
        const std::optional<SXReplayGainMode> mode =
            parseReplayGain(parser.value(declared.replayGain), error);
        if (!mode)
            return std::nullopt;
        options.replayGain = *mode;
    }
    options.normalise = parser.isSet(declared.normalise);
    if (parser.isSet(declared.pattern))
        options.pattern = parser.value(declared.pattern);
    options.mirror = parser.isSet(declared.mirror);
    if (parser.isSet(declared.existing)) {
        options.existing = ConvertExistingNames::parse(parser.value(declared.existing));
        if (!options.existing) {
            *error = QCoreApplication::translate(
                         "CliOptionsParser", "--existing takes skip, both or replace, not \"%1\"")
                         .arg(parser.value(declared.existing));
            return std::nullopt;
        }
    }
    options.dryRun = parser.isSet(declared.dryRun);
    options.inputs = parser.positionalArguments();

    if (parser.isSet(declared.checkTags)) {
        if (options.inputs.size() != 2) {
            *error = QCoreApplication::translate("CliOptionsParser",
                                                 "--check-tags takes two files: SOURCE and OUTPUT");
            return std::nullopt;
        }
        options.mode = CliOptions::Mode::CheckTags;
        return options;
    }
    if (parser.isSet(declared.listFormats)) {
        options.mode = CliOptions::Mode::ListFormats;
    } else if (parser.isSet(declared.info)) {
        options.mode = CliOptions::Mode::Info;
        options.infoFile = parser.value(declared.info);
    }
    if (options.mode != CliOptions::Mode::Convert && !options.inputs.isEmpty()) {
        *error = QCoreApplication::translate(
            "CliOptionsParser", "--list-formats and --info take no FILE|FOLDER arguments");
        return std::nullopt;
    }
    if (options.mode == CliOptions::Mode::Convert && options.inputs.isEmpty()) {
        *error = QCoreApplication::translate(
            "CliOptionsParser", "no input: give at least one FILE or FOLDER (see --help)");
        return std::nullopt;
    }
    return options;
}
