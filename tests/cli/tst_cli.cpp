#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <csignal>

namespace {

struct CliResult {
    int exitCode = -1;
    QString out;
    QString err;
};

// The source tree: awkward names, a sub-folder, and several input kinds.
const QStringList kSources{
    QStringLiteral("plain tone.wav"),
    QStringLiteral("sub/it's \"quoted\" $HOME;ls.flac"),
    QStringLiteral("-leading dash.mp3"),
    QStringLiteral("sub/ünïcødé 日本.m4a"),
};

QStringList filesBelow(const QString& dir) {
    QStringList files;
    QDirIterator it(dir, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(QDir(dir).relativeFilePath(it.next()));
    files.sort();
    return files;
}

// codec_name,sample_rate,channels of the first audio stream, from ffprobe.
QString probe(const QString& path) {
    QString output;
    SonoriaTest::run(QStringLiteral("ffprobe"),
                     {QStringLiteral("-v"), QStringLiteral("error"),
                      QStringLiteral("-select_streams"), QStringLiteral("a:0"),
                      QStringLiteral("-show_entries"),
                      QStringLiteral("stream=codec_name,sample_rate,channels"),
                      QStringLiteral("-of"), QStringLiteral("csv=p=0"), path},
                     &output);
    return output.trimmed();
}

// The nominal bit rate of the first audio stream in bit/s ("N/A" for lossless streams).
QString probeBitRate(const QString& path) {
    QString output;
    SonoriaTest::run(QStringLiteral("ffprobe"),
                     {QStringLiteral("-v"), QStringLiteral("error"),
                      QStringLiteral("-select_streams"), QStringLiteral("a:0"),
                      QStringLiteral("-show_entries"), QStringLiteral("stream=bit_rate"),
                      QStringLiteral("-of"), QStringLiteral("csv=p=0"), path},
                     &output);
    return output.trimmed();
}

QStringList nonEmptyLines(const QString& text) {
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class TestCli : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void convertsAFolderOrganisedByFormat_data();
    void convertsAFolderOrganisedByFormat();
    void writesBesideExistingFilesWithoutReplacing();
    void choicesReachTheOutput();
    void usageErrorsExitTwoWithOneLine_data();
    void usageErrorsExitTwoWithOneLine();
    void loadFailuresAreNamedAndExitOne();
    void dryRunCreatesNothing();
    void listsTheCatalogue();
    void infoShowsThePanelTexts();
    void storedFolderIsUsedAndSettingsStayUntouched();
    void drawsAProgressLineOnATerminal();
    void signalCancelsAndRemovesPartialOutput_data();
    void signalCancelsAndRemovesPartialOutput();

private:
    QProcessEnvironment environment() const;
    CliResult runCli(const QStringList& arguments, int timeoutMs = 180000) const;
    QString settingsFile() const {
        return m_config.path() + QStringLiteral("/Sonoria/Sonoria.conf");
    }
    QString fresh(const QString& name) const { return m_work.path() + QLatin1Char('/') + name; }

    QTemporaryDir m_work;
    QTemporaryDir m_config;
    QTemporaryDir m_home;
    QString m_sources;
    QString m_textAsMp3;
};

QProcessEnvironment TestCli::environment() const {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
    env.insert(QStringLiteral("HOME"), m_home.path());
    env.remove(QStringLiteral("SONORIA_VERBOSE"));
    return env;
}

CliResult TestCli::runCli(const QStringList& arguments, int timeoutMs) const {
    QProcess process;
    process.setProcessEnvironment(environment());
    process.setWorkingDirectory(m_work.path());
    process.start(QStringLiteral(SONORIA_CLI_PATH), arguments);
    CliResult result;
    if (!process.waitForStarted(10000))
        return result;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return result;
}

void TestCli::initTestCase() {
    QVERIFY(m_work.isValid() && m_config.isValid() && m_home.isValid());
    m_sources = fresh(QStringLiteral("sources"));
    QVERIFY(QDir().mkpath(m_sources + QStringLiteral("/sub")));
    for (const QString& name : kSources)
        QVERIFY(SonoriaTest::makeTone(m_sources + QLatin1Char('/') + name, 1.0,
                                      {QStringLiteral("-ac"), QStringLiteral("2")}));
    m_textAsMp3 = fresh(QStringLiteral("not audio.mp3"));
    QFile text(m_textAsMp3);
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("this is a text file, whatever its name says\n");
}

void TestCli::convertsAFolderOrganisedByFormat_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("ext");
    QTest::addColumn<QString>("codec");
    QTest::newRow("MP3") << "MP3"
                         << "mp3"
                         << "mp3";
    QTest::newRow("FLAC") << "FLAC"
                          << "flac"
                          << "flac";
}

void TestCli::convertsAFolderOrganisedByFormat() {
    QFETCH(QString, format);
    QFETCH(QString, ext);
    QFETCH(QString, codec);
    QHash<QString, QByteArray> hashes;
    for (const QString& name : kSources)
        hashes.insert(name, SonoriaTest::fileHash(m_sources + QLatin1Char('/') + name));
    const QString out = fresh(QStringLiteral("organised-") + format);

    const CliResult result = runCli({QStringLiteral("-f"), format, QStringLiteral("-o"), out,
                                     QStringLiteral("-j"), QStringLiteral("2"), m_sources});
    QCOMPARE(result.exitCode, 0);

    // Without a terminal: one line per file, then the window's summary.
    const QStringList lines = nonEmptyLines(result.out);
    QCOMPARE(lines.size(), kSources.size() + 1);
    QCOMPARE(lines.last(), QStringLiteral("4 files has been successfully converted."));
    for (const QString& name : kSources) {
        const QString source = m_sources + QLatin1Char('/') + name;
        const QString output = out + QLatin1Char('/') + format + QLatin1Char('/') +
                               QFileInfo(name).completeBaseName() + QLatin1Char('.') + ext;
        QVERIFY2(lines.contains(QStringLiteral("done: %1 -> %2").arg(source, output)),
                 qPrintable(result.out));
        QVERIFY2(probe(output).startsWith(codec + QLatin1Char(',')), qPrintable(output));
        QCOMPARE(SonoriaTest::fileHash(source), hashes.value(name));
    }
    // Everything went into DIR/<format>, nothing else was made.
    QCOMPARE(QDir(out).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{format});
    QCOMPARE(QDir(out + QLatin1Char('/') + format).entryList(QDir::Files).size(), kSources.size());
}

void TestCli::writesBesideExistingFilesWithoutReplacing() {
    const QString out = fresh(QStringLiteral("flat"));
    QVERIFY(QDir().mkpath(out));
    const QString taken = out + QStringLiteral("/plain tone.mp3");
    QFile existing(taken);
    QVERIFY(existing.open(QIODevice::WriteOnly));
    existing.write("keep me");
    existing.close();

    const QString source = m_sources + QStringLiteral("/plain tone.wav");
    const CliResult result =
        runCli({QStringLiteral("--no-organize"), QStringLiteral("-o"), out, source});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(
        result.out.contains(QStringLiteral("done: %1 -> %2/plain tone(1).mp3").arg(source, out)),
        qPrintable(result.out));
    QCOMPARE(filesBelow(out),
             (QStringList{QStringLiteral("plain tone(1).mp3"), QStringLiteral("plain tone.mp3")}));
    QFile kept(taken);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("keep me"));
    QVERIFY(probe(out + QStringLiteral("/plain tone(1).mp3")).startsWith(QStringLiteral("mp3,")));
}

void TestCli::choicesReachTheOutput() {
    const QString out = fresh(QStringLiteral("choices"));
    const QString source = m_sources + QStringLiteral("/plain tone.wav");
    // Choices match the catalogue's texts without regard to letter case.
    CliResult result = runCli({QStringLiteral("-b"), QStringLiteral("64"), QStringLiteral("-r"),
                               QStringLiteral("22050"), QStringLiteral("-c"),
                               QStringLiteral("mono"), QStringLiteral("-o"), out, source});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(probe(out + QStringLiteral("/MP3/plain tone.mp3")), QStringLiteral("mp3,22050,1"));
    QCOMPARE(probeBitRate(out + QStringLiteral("/MP3/plain tone.mp3")), QStringLiteral("64000"));

    result = runCli({QStringLiteral("-f"), QStringLiteral("FLAC"), QStringLiteral("--samplerate"),
                     QStringLiteral("48000"), QStringLiteral("-o"), out, source});
    QCOMPARE(result.exitCode, 0);
    // "Use Source" channels keep the source's two.
    QCOMPARE(probe(out + QStringLiteral("/FLAC/plain tone.flac")), QStringLiteral("flac,48000,2"));
}

void TestCli::usageErrorsExitTwoWithOneLine_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QString in = QStringLiteral("sources");
    QTest::newRow("unknown format") << QStringList{"-f", "MP5", in} << "unknown format";
    QTest::newRow("bit rate not offered") << QStringList{"-b", "100", in} << "does not offer";
    QTest::newRow("channels not offered")
        << QStringList{"-f", "MP3", "-c", "Use Source", in} << "does not offer";
    QTest::newRow("no input") << QStringList{"-f", "MP3"} << "no input";
    QTest::newRow("zero jobs") << QStringList{"-j", "0", in} << "--jobs";
    QTest::newRow("jobs not a number") << QStringList{"--jobs", "two", in} << "--jobs";
    QTest::newRow("library not offered")
        << QStringList{"-f", "Ringtone", "--library", in} << "music library";
    QTest::newRow("unknown option") << QStringList{"--frobnicate", in} << "frobnicate";
    QTest::newRow("missing value") << QStringList{"-f"} << "-f";
}

void TestCli::usageErrorsExitTwoWithOneLine() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const QStringList before = filesBelow(m_work.path());
    const CliResult result = runCli(arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.out.isEmpty());
    QCOMPARE(nonEmptyLines(result.err).size(), 1);
    QVERIFY2(result.err.contains(reason), qPrintable(result.err));
    QCOMPARE(filesBelow(m_work.path()), before);
}

void TestCli::loadFailuresAreNamedAndExitOne() {
    const QString out = fresh(QStringLiteral("failures"));
    const QString good = m_sources + QStringLiteral("/plain tone.wav");
    const CliResult result = runCli({QStringLiteral("-o"), out, m_textAsMp3, good,
                                     fresh(QStringLiteral("does not exist.wav"))});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.err.contains(QStringLiteral("Following file(s) load failed!\nnot audio.mp3\n")),
             qPrintable(result.err));
    QVERIFY(result.err.contains(QStringLiteral("does not exist.wav")));
    // The loadable file is still converted.
    QVERIFY(result.out.contains(QStringLiteral("1 files has been successfully converted.")));
    QCOMPARE(filesBelow(out),
             (QStringList{QStringLiteral("MP3"), QStringLiteral("MP3/plain tone.mp3")}));

    // A file that loads but cannot be converted (its output folder is a regular file): named
    // per line and in the window's summary.
    const CliResult failed =
        runCli({QStringLiteral("--no-organize"), QStringLiteral("-o"), m_textAsMp3, good});
    QCOMPARE(failed.exitCode, 1);
    QCOMPARE(nonEmptyLines(failed.out),
             (QStringList{QStringLiteral("failed: ") + good,
                          QStringLiteral("0 files has been successfully converted.except 1 files "
                                         "failed,including: "),
                          QStringLiteral("plain tone")}));
}

void TestCli::dryRunCreatesNothing() {
    const QString out = fresh(QStringLiteral("dry"));
    QVERIFY(QDir().mkpath(out + QStringLiteral("/MP3")));
    QFile taken(out + QStringLiteral("/MP3/plain tone.mp3"));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    taken.close();
    const QStringList before = filesBelow(m_work.path());

    CliResult result = runCli({QStringLiteral("-n"), QStringLiteral("-o"), out, m_sources});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(filesBelow(m_work.path()), before);
    const QStringList lines = nonEmptyLines(result.out);
    QCOMPARE(lines.size(), kSources.size() + 1);
    // The name a file would get now, next to the one that is taken.
    QVERIFY2(lines.contains(
                 QStringLiteral("would convert: %1/plain tone.wav -> %2/MP3/plain tone(1).mp3")
                     .arg(m_sources, out)),
             qPrintable(result.out));
    QVERIFY(lines.contains(
        QStringLiteral("would convert: %1/sub/ünïcødé 日本.m4a -> %2/MP3/ünïcødé 日本.mp3")
            .arg(m_sources, out)));

    // -v mirrors the log lines to standard error.
    result =
        runCli({QStringLiteral("--dry-run"), QStringLiteral("-v"), QStringLiteral("--no-organize"),
                QStringLiteral("-o"), fresh(QStringLiteral("dry-missing")), m_textAsMp3});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.err.contains(QStringLiteral("Following file(s) load failed!")));
    QVERIFY(result.err.contains(QStringLiteral("finish complete load media.....")));
    QCOMPARE(filesBelow(m_work.path()), before);
}

void TestCli::listsTheCatalogue() {
    const CliResult result = runCli({QStringLiteral("--list-formats")});
    QCOMPARE(result.exitCode, 0);
    QStringList formatLines;
    for (const QString& line : nonEmptyLines(result.out)) {
        if (!line.startsWith(QLatin1Char(' ')) && line.contains(QStringLiteral("(.")))
            formatLines.append(line);
    }
    QVERIFY2(formatLines.size() >= 4, qPrintable(result.out));
    QVERIFY(formatLines.at(0).startsWith(QStringLiteral("MP3 (.mp3): ")));
    QVERIFY(formatLines.at(1).startsWith(QStringLiteral("AAC (.m4a): ")));
    QVERIFY(formatLines.at(2).startsWith(QStringLiteral("Ringtone (.m4r): ")));
    // Choices with the default marked, and the library option.
    QVERIFY(result.out.contains(QStringLiteral("64, 96, 128, 160, 192*, 224, 256, 320")));
    QVERIFY(result.out.contains(QStringLiteral("not offered")));
}

void TestCli::infoShowsThePanelTexts() {
    const QString bare = fresh(QStringLiteral("surround.wav"));
    QVERIFY(SonoriaTest::makeTone(bare, 3.0, {QStringLiteral("-ac"), QStringLiteral("6")}));
    CliResult result = runCli({QStringLiteral("--info"), bare});
    QCOMPARE(result.exitCode, 0);
    const QStringList lines = nonEmptyLines(result.out);
    const auto shows = [&lines](const QString& caption, const QString& text) {
        return lines.contains(
            QStringLiteral("%1 %2").arg(caption + QLatin1Char(':'), -15).arg(text));
    };
    QVERIFY2(shows(QStringLiteral("Album"), QStringLiteral("Unknow")), qPrintable(result.out));
    QVERIFY(shows(QStringLiteral("Artist"), QStringLiteral("Unknow")));
    QVERIFY(shows(QStringLiteral("Bit rate mode"), QStringLiteral("mod")));
    // Six channels still read "Mono" next to their count.
    QVERIFY(shows(QStringLiteral("Channels"), QStringLiteral("Mono")));
    QVERIFY(shows(QStringLiteral("Channel count"), QStringLiteral("6")));
    QVERIFY(shows(QStringLiteral("Kind"), QStringLiteral("WAV audio file")));
    QVERIFY(shows(QStringLiteral("Length"), QStringLiteral("00:00:03")));
    QVERIFY(shows(QStringLiteral("Sample rate"), QStringLiteral("44.1kHz")));
    QVERIFY(shows(QStringLiteral("Title"), QStringLiteral("surround")));
    QVERIFY(shows(QStringLiteral("Where"), bare));

    const QString tagged = fresh(QStringLiteral("tagged.mp3"));
    QVERIFY(SonoriaTest::makeTone(tagged, 1.0,
                                  {QStringLiteral("-metadata"), QStringLiteral("title=Song Title"),
                                   QStringLiteral("-metadata"), QStringLiteral("artist=Someone")}));
    result = runCli({QStringLiteral("--info"), tagged});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.out.contains(QStringLiteral("Song Title")), qPrintable(result.out));
    QVERIFY(result.out.contains(QStringLiteral("Someone")));
    QVERIFY(result.out.contains(QStringLiteral("MP3 audio file")));

    result = runCli({QStringLiteral("--info"), m_textAsMp3});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.out.isEmpty());
}

void TestCli::storedFolderIsUsedAndSettingsStayUntouched() {
    const QString stored = fresh(QStringLiteral("stored folder"));
    {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("DEFAULT_OUTPUT_PATH_KEY"), stored);
        settings.setValue(QStringLiteral("com.sx.MaxTastKey"), 1);
        settings.setValue(QStringLiteral("DEFAUTL_SET_ORIGANIZED_KEY"), false);
    }
    const QByteArray before = SonoriaTest::fileHash(settingsFile());
    QVERIFY(!before.isEmpty());
    const CliResult result = runCli({m_sources + QStringLiteral("/plain tone.wav")});
    QCOMPARE(result.exitCode, 0);
    // The stored folder, organised by format: the tool's own default, not the stored check box.
    QVERIFY(QFileInfo::exists(stored + QStringLiteral("/MP3/plain tone.mp3")));
    QCOMPARE(SonoriaTest::fileHash(settingsFile()), before);
    QFile::remove(settingsFile());

    // Runs without a settings file leave none behind.
    runCli({QStringLiteral("-o"), fresh(QStringLiteral("no-settings")),
            m_sources + QStringLiteral("/plain tone.wav")});
    runCli({QStringLiteral("--list-formats")});
    QVERIFY(!QFileInfo::exists(settingsFile()));
}

void TestCli::drawsAProgressLineOnATerminal() {
    // script(1) gives the tool a terminal; the values reach its command line through the
    // environment, so no path is ever quoted into the command text.
    QProcess process;
    QProcessEnvironment env = environment();
    env.insert(QStringLiteral("CLI"), QStringLiteral(SONORIA_CLI_PATH));
    env.insert(QStringLiteral("OUT"), fresh(QStringLiteral("terminal")));
    env.insert(QStringLiteral("SRC"), m_sources);
    process.setProcessEnvironment(env);
    process.start(QStringLiteral("script"),
                  {QStringLiteral("-qec"), QStringLiteral("\"$CLI\" -o \"$OUT\" \"$SRC\""),
                   QStringLiteral("/dev/null")});
    QVERIFY(process.waitForFinished(180000));
    QCOMPARE(process.exitCode(), 0);
    const QString shown = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(shown.contains(QStringLiteral("\r[")), qPrintable(shown));
    QVERIFY(shown.contains(QStringLiteral("4/4 done")));
    QVERIFY(shown.contains(QStringLiteral("100%")));
    // No per-file lines on a terminal; the summary still ends the output.
    QVERIFY(!shown.contains(QStringLiteral("done: ")));
    QVERIFY(shown.trimmed().endsWith(QStringLiteral("4 files has been successfully converted.")));
}

void TestCli::signalCancelsAndRemovesPartialOutput_data() {
    QTest::addColumn<int>("signalNumber");
    QTest::addColumn<int>("status");
    QTest::newRow("SIGTERM") << int(SIGTERM) << 1;
    QTest::newRow("SIGINT") << int(SIGINT) << 130;
}

void TestCli::signalCancelsAndRemovesPartialOutput() {
    QFETCH(int, signalNumber);
    QFETCH(int, status);
    const QString longSource = fresh(QStringLiteral("long.wav"));
    if (!QFileInfo::exists(longSource))
        QVERIFY(SonoriaTest::makeTone(longSource, 60.0));
    const QString out = fresh(QStringLiteral("signal-%1").arg(signalNumber));

    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(SONORIA_CLI_PATH),
                  {QStringLiteral("--no-organize"), QStringLiteral("-o"), out, longSource});
    QVERIFY(process.waitForStarted());
    // The output name is reserved just before ffmpeg starts: the conversion is under way.
    const QString output = out + QStringLiteral("/long.mp3");
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(output), 60000);
    ::kill(pid_t(process.processId()), signalNumber);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), status);
    QVERIFY(QString::fromUtf8(process.readAllStandardOutput())
                .contains(QStringLiteral("cancelled: ") + longSource));
    QCOMPARE(filesBelow(out), QStringList());
}

SONORIA_TEST_MAIN(TestCli)
#include "tst_cli.moc"
