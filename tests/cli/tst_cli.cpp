#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <unistd.h>

using namespace Qt::StringLiterals;
using SonoriaTest::filesBelow;
using SonoriaTest::lines;
using SonoriaTest::RunResult;

namespace {
// The source tree: awkward names, a sub-folder, and several input kinds.
const QStringList kSources{u"plain tone.wav"_s, u"sub/it's \"quoted\" $HOME;ls.flac"_s,
                           u"-leading dash.mp3"_s, u"sub/ünïcødé 日本.m4a"_s};
} // namespace

class TestCli : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_work.isValid());
        m_sources = fresh(u"sources"_s);
        QVERIFY(QDir().mkpath(m_sources + u"/sub"_s));
        for (const QString& name : kSources)
            QVERIFY(SonoriaTest::makeTone(source(name), 1.0, {"-ac", "2"}));
        m_textAsMp3 = fresh(u"not audio.mp3"_s);
        QVERIFY(
            SonoriaTest::writeFile(m_textAsMp3, "this is a text file, whatever its name says\n"));
    }
    void cleanupTestCase() {
        // What the temporary folder's removal cannot enter or name.
        const QString dir = fresh(u"unreadable"_s);
        for (const QString& locked : {u"/locked"_s, u"/outer/locked"_s})
            QFile::setPermissions(dir + locked,
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        ::unlink(QFile::encodeName(dir + u"/raw"_s).append("/lat\xe9in1.wav").constData());
    }
    void convertsAFolderOrganisedByFormat() {
        const QString out = fresh(u"organised"_s);
        const QStringList arguments{"-f", "MP3", "-o", out, "-j", "2", m_sources};
        // A dry run first: a line per file it would convert, and nothing made.
        const QStringList before = filesBelow(m_work.path(), true);
        const RunResult planned = runCli(QStringList{"--dry-run"} + arguments);
        SONORIA_COMPARE_EXIT(planned, 0);
        QCOMPARE(filesBelow(m_work.path(), true), before);
        QCOMPARE(lines(planned.out).size(), kSources.size() + 1);

        const RunResult result = runCli(arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        // Without a terminal: one line per file, then the window's summary.
        const QStringList shown = lines(result.out);
        QCOMPARE(shown.size(), kSources.size() + 1);
        QCOMPARE(shown.last(), u"4 files have been converted."_s);
        QStringList made{u"MP3"_s};
        for (const QString& name : kSources) {
            made.append(u"MP3/"_s + QFileInfo(name).completeBaseName() + u".mp3"_s);
            QVERIFY2(shown.contains(u"done: %1 -> %2/%3"_s.arg(source(name), out, made.last())),
                     qPrintable(result.out));
            QVERIFY(planned.out.contains(
                u"would convert: %1 -> %2/%3"_s.arg(source(name), out, made.last())));
        }
        // The format's folder and its four files, nothing else.
        made.sort();
        QCOMPARE(filesBelow(out, true), made);
    }
    void neverReplacesAndChoicesReachTheFile() {
        const QString out = fresh(u"flat"_s);
        QVERIFY(SonoriaTest::writeFile(out + u"/plain tone.mp3"_s, "keep me"));
        const QString wav = source(u"plain tone.wav"_s);
        // Choices match the catalogue's texts without regard to letter case.
        const RunResult result =
            runCli({"--no-organize", "-b", "64", "-r", "22050", "-c", "mono", "-o", out, wav});
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(result.out.contains(u"done: %1 -> %2/plain tone(1).mp3"_s.arg(wav, out)),
                 qPrintable(result.out));
        QCOMPARE(filesBelow(out, true), (QStringList{u"plain tone(1).mp3"_s, u"plain tone.mp3"_s}));
        QCOMPARE(SonoriaTest::readFile(out + u"/plain tone.mp3"_s), QByteArray("keep me"));
        const ProbeReference made = ProbeReference::read(out + u"/plain tone(1).mp3"_s);
        QVERIFY(made.codecName == "mp3"_L1 && made.sampleRate == 22050 && made.channels == 1 &&
                made.bitRate == 64000);
    }
    void usageErrorsExitTwoWithOneLine_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");
        const QString in = u"sources"_s;
        QTest::newRow("unknown format") << QStringList{"-f", "MP5", in} << "unknown format";
        QTest::newRow("bit rate not offered") << QStringList{"-b", "100", in} << "does not offer";
        QTest::newRow("channels not offered")
            << QStringList{"-f", "MP3", "-c", "Use Source", in} << "does not offer";
        QTest::newRow("no input") << QStringList{"-f", "MP3"} << "no input";
        QTest::newRow("zero jobs") << QStringList{"-j", "0", in} << "--jobs";
        QTest::newRow("jobs not a number") << QStringList{"--jobs", "two", in} << "--jobs";
        QTest::newRow("library not offered")
            << QStringList{"-f", "Ringtone", "--library", in} << "music library";
        QTest::newRow("replaygain mode unknown")
            << QStringList{"--replaygain", "loud", in} << "--replaygain";
        QTest::newRow("unknown option") << QStringList{"--frobnicate", in} << "frobnicate";
        QTest::newRow("missing value") << QStringList{"-f"} << "-f";
        QTest::newRow("one file to check") << QStringList{"--check-tags", in} << "two files";
        QTest::newRow("existing not offered")
            << QStringList{"--existing", "overwrite", in} << "skip, both or replace";
        // A quoted argument cannot drive the terminal.
        QTest::newRow("hostile argument") << QStringList{"-f", "MP\x1b[2J3", in} << "MP\\e[2J3";
    }
    void usageErrorsExitTwoWithOneLine() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, reason);
        const QStringList before = filesBelow(m_work.path(), true);
        const RunResult result = runCli(arguments);
        SONORIA_COMPARE_EXIT(result, 2);
        QVERIFY(result.out.isEmpty());
        QCOMPARE(lines(result.err).size(), 1);
        QVERIFY2(result.err.contains(reason), qPrintable(result.err));
        QCOMPARE(filesBelow(m_work.path(), true), before);
    }
    void failuresAreNamedAndExitOne() {
        const QString out = fresh(u"failures"_s);
        const QString wav = source(u"plain tone.wav"_s);
        RunResult result = runCli({"-v", "-o", out, m_textAsMp3, wav, fresh(u"no such.wav"_s)});
        SONORIA_COMPARE_EXIT(result, 1);
        // Each file that did not load, with its folder and why.
        for (const QString& expected :
             {u"The following files could not be added:\n"_s,
              u"failed to load: %1: The file holds no audio that can be read\n"_s.arg(m_textAsMp3),
              u"failed to load: %1: No such file or directory\n"_s.arg(fresh(u"no such.wav"_s))})
            QVERIFY2(result.err.contains(expected), qPrintable(result.err));
        // -v mirrors the log lines to standard error.
        QVERIFY(result.err.contains(u"finish complete load media....."_s));
        // The loadable file is still converted.
        QCOMPARE(filesBelow(out, true), (QStringList{u"MP3"_s, u"MP3/plain tone.mp3"_s}));

        // An output folder that cannot be made (a regular file stands there): no child starts, and
        // the folder is named with the reason.
        result = runCli({"-v", "--no-organize", "-o", m_textAsMp3, wav});
        SONORIA_COMPARE_EXIT(result, 1);
        QVERIFY2(result.err.contains(u"sonoria-cli: Cannot write into the output folder \""_s +
                                     m_textAsMp3 +
                                     u"\": The output folder's name is taken by a file"_s),
                 qPrintable(result.err));
        QVERIFY(!result.err.contains(u"args:"_s));
        // --info on a file that does not load.
        result = runCli({"--info", m_textAsMp3});
        SONORIA_COMPARE_EXIT(result, 1);
        QVERIFY(result.out.isEmpty() && result.err.contains(u"cannot read"_s));

        // A file that loads but gives nothing to convert (a FLAC cut after its metadata): the line
        // and the summary name it with the reason; the counts come last.
        const QString cut = fresh(u"cut.flac"_s);
        QVERIFY(SonoriaTest::makeTone(cut, 2.0));
        QVERIFY(SonoriaTest::cutFlacAfterMetadata(cut));
        result = runCli({"--no-organize", "-o", fresh(u"cut-out"_s), cut});
        SONORIA_COMPARE_EXIT(result, 1);
        const QStringList shown = lines(result.out);
        QVERIFY2(!shown.isEmpty() &&
                     shown.first() == u"failed: %1: The source gave no audio to convert"_s.arg(cut),
                 qPrintable(result.out));
        QVERIFY2(shown.at(1).endsWith(u"1 file failed: "_s), qPrintable(shown.at(1)));
        QCOMPARE(shown.at(2), u"cut: "_s + shown.first().section(u": "_s, 2));
        QCOMPARE(shown.last(), u"Converted: 0. Failed: 1."_s);
    }
    void hostileTextIsEscaped_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::newRow("ESC") << u"a\x1b[2Jb"_s << u"a\\e[2Jb"_s;
        QTest::newRow("BEL") << u"a\ab"_s << u"a\\ab"_s;
        QTest::newRow("CR") << u"a\rb"_s << u"a\\rb"_s;
        QTest::newRow("LF") << u"a\nb"_s << u"a\\nb"_s;
        QTest::newRow("tab") << u"a\tb"_s << u"a\\tb"_s;
        QTest::newRow("other C0") << u"a\u0001b"_s << u"a\\x01b"_s;
        QTest::newRow("C1 CSI") << u"a\u009bb"_s << u"a\\u009bb"_s;
        QTest::newRow("DEL") << u"a\u007fb"_s << u"a\\x7fb"_s;
        QTest::newRow("backslash") << u"a\\eb"_s << u"a\\\\eb"_s;
    }
    // A name or tag value cannot drive the terminal or split the lines scripts read: every line
    // that carries one shows its control characters escaped.
    void hostileTextIsEscaped() {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        const QString folder = fresh(u"hostile-"_s + QString::fromLatin1(QTest::currentDataTag()));
        const QString file = folder + u'/' + name + u".flac"_s;
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(SonoriaTest::makeTone(file, 0.3, {u"-metadata"_s, u"title="_s + name}));
        const auto quiet = [](const QString& text) {
            for (const QChar c : text) {
                const char16_t u = c.unicode();
                if ((u < 0x20 && u != u'\n') || (u >= 0x7f && u < 0xa0))
                    return false;
            }
            return true;
        };

        RunResult result = runCli({"--no-organize", "-o", folder + u"/out"_s, file});
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(quiet(result.out) && quiet(result.err), qPrintable(result.out));
        QCOMPARE(lines(result.out).size(), 2);
        QVERIFY2(result.out.startsWith(u"done: %1/%2.flac -> "_s.arg(folder, shown)),
                 qPrintable(result.out));

        result = runCli({"--info", file});
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY(quiet(result.out));
        QVERIFY2(lines(result.out).contains(u"%1 %2"_s.arg(u"Title:"_s, -15).arg(shown)),
                 qPrintable(result.out));
    }
    void unreadableFoldersAndBadNamesFailTheRun_data() {
        QTest::addColumn<QString>("input");  // a shell word, below $DIR
        QTest::addColumn<QString>("failed"); // the path reported, below the folder
        QTest::addColumn<QString>("reason");
        const QString cannotRead = u"The folder cannot be read: Permission denied"_s;
        const QString badName = u"raw/lat\uFFFDin1.wav"_s;
        QTest::newRow("folder cannot be read") << u"\"$DIR/locked\""_s << u"locked"_s << cannotRead;
        QTest::newRow("sub-folder cannot be read")
            << u"\"$DIR/outer\""_s << u"outer/locked"_s << cannotRead;
        QTest::newRow("name not UTF-8 in a folder")
            << u"\"$DIR/raw\""_s << badName << u"The file name is not valid UTF-8"_s;
        QTest::newRow("name not UTF-8 given") << u"\"$DIR/raw/$(printf 'lat\\351in1.wav')\""_s
                                              << badName << u"The file name is not valid UTF-8"_s;
    }
    void unreadableFoldersAndBadNamesFailTheRun() {
        QFETCH(QString, input);
        QFETCH(QString, failed);
        QFETCH(QString, reason);
        const QString dir = fresh(u"unreadable"_s);
        if (!QFileInfo::exists(dir)) {
            QVERIFY(QDir().mkpath(dir + u"/locked"_s) && QDir().mkpath(dir + u"/outer/locked"_s) &&
                    QDir().mkpath(dir + u"/raw"_s));
            QVERIFY(SonoriaTest::makeTone(dir + u"/outer/good.wav"_s, 0.3));
            QVERIFY(SonoriaTest::makeTone(dir + u"/raw/good.wav"_s, 0.3));
            QVERIFY(!SonoriaTest::makeToneWithRawName(dir + u"/raw"_s, "lat\xe9in1.wav").isEmpty());
            for (const QString& locked : {u"/locked"_s, u"/outer/locked"_s})
                QVERIFY(QFile::setPermissions(dir + locked, {}));
        }
        // Root reads every folder: the tool runs without the two capabilities that allow it.
        const QString asUser = ::geteuid() == 0
                                   ? u"setpriv --inh-caps=-all "
                                     "--bounding-set=-dac_override,-dac_read_search -- "_s
                                   : QString();
        QProcessEnvironment env = SonoriaTest::cliEnvironment();
        env.insert(u"CLI"_s, QStringLiteral(SONORIA_CLI_PATH));
        env.insert(u"DIR"_s, dir);
        const RunResult result = SonoriaTest::runProgram(
            u"sh"_s, {u"-c"_s, u"exec %1\"$CLI\" --dry-run %2"_s.arg(asUser, input)}, env,
            m_work.path());
        SONORIA_COMPARE_EXIT(result, 1);
        QVERIFY2(
            lines(result.err).contains(u"failed to load: %1/%2: %3"_s.arg(dir, failed, reason)),
            qPrintable(result.err));
    }
    void cueSheetsAreConvertedByTrack() {
        const QString album = fresh(u"cue"_s);
        QVERIFY(QDir().mkpath(album));
        QVERIFY(SonoriaTest::makeTone(album + u"/disc.flac"_s, 3.0));
        QVERIFY(SonoriaTest::writeFile(album + u"/disc.cue"_s,
                                       "FILE \"disc.flac\" WAVE\n"
                                       "TRACK 01 AUDIO\n  TITLE \"One\"\n  INDEX 01 00:00:00\n"
                                       "TRACK 02 AUDIO\n  TITLE \"Two\"\n  INDEX 01 00:01:00\n"));
        const QString out = fresh(u"cue-out"_s);
        const RunResult result = runCli({"-f", "WAV", "--no-organize", "-o", out, album});
        SONORIA_COMPARE_EXIT(result, 0);
        // The sheet's tracks, and not its whole file once more.
        QCOMPARE(filesBelow(out), (QStringList{u"01 One.wav"_s, u"02 Two.wav"_s}));
        for (const QString& track : {u"01 One"_s, u"02 Two"_s})
            QVERIFY2(result.out.contains(u"done: %1/disc.cue#%2 -> %3/%4.wav"_s.arg(
                         album, track.left(2), out, track)),
                     qPrintable(result.out));
    }
    void listsTheCatalogueInOrder() {
        const RunResult result = runCli({"--list-formats"});
        SONORIA_COMPARE_EXIT(result, 0);
        const QStringList formats = lines(result.out).filter(u" (."_s);
        QVERIFY2(formats.size() >= 4, qPrintable(result.out));
        QVERIFY(formats.at(0).startsWith(u"MP3 (.mp3): "_s));
        QVERIFY(formats.at(1).startsWith(u"AAC (.m4a): "_s));
        QVERIFY(formats.at(2).startsWith(u"Ringtone (.m4r): "_s));
        // Choices with the default marked, and the library option.
        QVERIFY(result.out.contains(u"64, 96, 128, 160, 192*, 224, 256, 320"_s));
        QVERIFY(result.out.contains(u"not offered"_s));
    }
    void storedFolderIsUsedAndSettingsStayUntouched() {
        // Every run so far went without a settings file and left none behind.
        QVERIFY(!QFileInfo::exists(settingsFile()));
        const QString stored = fresh(u"stored folder"_s);
        {
            QSettings settings(settingsFile(), QSettings::IniFormat);
            settings.setValue(u"DEFAULT_OUTPUT_PATH_KEY"_s, stored);
            settings.setValue(u"com.sx.MaxTastKey"_s, 1);
            settings.setValue(u"DEFAUTL_SET_ORIGANIZED_KEY"_s, false);
        }
        const QByteArray before = SonoriaTest::fileHash(settingsFile());
        QVERIFY(!before.isEmpty());
        QCOMPARE(runCli({source(u"plain tone.wav"_s)}).exitCode, 0);
        // The stored folder, organised by format: the tool's own default, not the stored check box.
        QVERIFY(QFileInfo::exists(stored + u"/MP3/plain tone.mp3"_s));
        QCOMPARE(SonoriaTest::fileHash(settingsFile()), before);
        QFile::remove(settingsFile());
    }
    void drawsAProgressBarOnATerminal() {
        // script(1) gives the tool a terminal; the values reach its command line through the
        // environment, so no path is ever quoted into the command text.
        QProcessEnvironment env = SonoriaTest::cliEnvironment();
        env.insert(u"CLI"_s, QStringLiteral(SONORIA_CLI_PATH));
        env.insert(u"OUT"_s, fresh(u"terminal"_s));
        env.insert(u"SRC"_s, m_sources);
        const RunResult result = SonoriaTest::runProgram(
            u"script"_s, {"-qec", "\"$CLI\" -o \"$OUT\" \"$SRC\"", "/dev/null"}, env);
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(result.out.contains(u"\r["_s), qPrintable(result.out));
        QVERIFY(result.out.contains(u"100%  4/4 done"_s));
        // No per-file lines on a terminal; the summary still ends the output.
        QVERIFY(!result.out.contains(u"done: "_s));
        QVERIFY(result.out.trimmed().endsWith(u"4 files have been converted."_s));
    }
    // What the tool says of tags that did not arrive: --check-tags on any two files, and the
    // lost fields named per file after a run.
    void lostTagsAreNamed() {
        const QString song = fresh(u"song.flac"_s);
        QVERIFY(SonoriaTest::makeTone(song, 1.0,
                                      {"-metadata", "title=Morning", "-metadata", "lyrics=la la"}));
        // ffmpeg copies Vorbis comments into Ogg: nothing lost.
        RunResult result = runCli({"--check-tags", song, encode(song, u"ogg"_s, u"libvorbis"_s)});
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(result.out.contains(u"kept     Title"_s) && !result.out.contains(u"lost"_s),
                 qPrintable(result.out));
        // AC3 holds no tags at all.
        result = runCli({"--check-tags", song, encode(song, u"ac3"_s, u"ac3"_s)});
        SONORIA_COMPARE_EXIT(result, 1);
        QVERIFY2(result.out.contains(u"lost     Title: AC3 files hold no tags"_s) &&
                     result.out.contains(u"lost     Lyrics: AC3 files hold no tags"_s),
                 qPrintable(result.out));

        const QString out = fresh(u"lost tags"_s);
        result = runCli({"-f", "AC3", "-o", out, "--no-organize", song});
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(result.out.contains(u"tags: "_s + song + u": Title: AC3 files hold no tags"_s),
                 qPrintable(result.out));
        QVERIFY(QFileInfo::exists(out + u"/song.ac3"_s));
    }

private:
    // `source` made into `extension` by ffmpeg itself, its tags copied as ffmpeg copies them.
    QString encode(const QString& source, const QString& extension, const QString& codec) const {
        const QString path = fresh(u"by-ffmpeg."_s + extension);
        const int code = SonoriaTest::run(
            u"ffmpeg"_s, {u"-nostdin"_s, u"-loglevel"_s, u"error"_s, u"-y"_s, u"-i"_s, source,
                          u"-map_metadata"_s, u"0"_s, u"-c:a"_s, codec, path});
        return code == 0 ? path : QString();
    }
    // In the work folder: a usage error must leave it as it was.
    RunResult runCli(const QStringList& arguments) const {
        return SonoriaTest::runCli(arguments, {}, m_work.path());
    }
    QString settingsFile() const { return SonoriaTest::configHome() + u"/Sonoria/Sonoria.conf"_s; }
    QString fresh(const QString& name) const { return m_work.path() + u'/' + name; }
    QString source(const QString& name) const { return m_sources + u'/' + name; }

    QTemporaryDir m_work;
    QString m_sources;
    QString m_textAsMp3;
};

SONORIA_TEST_MAIN(TestCli)
#include "tst_cli.moc"
