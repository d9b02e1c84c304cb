#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

// What sonoria-cli's outputs are called and carry, from the options to the files on disk: names
// from --pattern, --mirror and --existing; ReplayGain and normalising, where the albums are found,
// measured off the main thread before the run, and each output's fields (or its samples) are
// checked against ffmpeg's own meter.
using namespace Qt::StringLiterals;
using SonoriaTest::lines;

namespace {

// ffmpeg's integrated loudness of the files played one after the other.
double ffmpegLoudness(const QStringList& paths) {
    return SonoriaTest::ffmpegLoudness(paths).integrated;
}

QMap<QString, QString> gainFields(const QString& path) {
    QMap<QString, QString> fields;
    const TagLib::FileRef ref(QFile::encodeName(path).constData());
    if (!ref.file())
        return fields;
    for (const auto& [name, values] : ref.file()->properties()) {
        const QString key = QString::fromStdString(name.to8Bit(true));
        if (key.startsWith(u"REPLAYGAIN_"_s) || key.startsWith(u"R128_"_s))
            fields.insert(key, QString::fromStdString(values.front().to8Bit(true)));
    }
    return fields;
}

// "-7.23 dB" as a number; NaN for any other form (a decimal comma included).
double gainOf(const QString& text) {
    static const QRegularExpression form(uR"(^-?\d+\.\d\d dB$)"_s);
    return form.match(text).hasMatch() ? text.chopped(3).toDouble() : qQNaN();
}

} // namespace

class TestCliOutputs : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_work.isValid());
        // One album at three levels 12 and 6 dB apart, and a single without album tags.
        QVERIFY(QDir(m_work.path()).mkpath(u"album"_s) && QDir(m_work.path()).mkpath(u"single"_s));
        for (const char* volume : {"0.25", "1", "2"}) {
            const QString path = m_work.filePath(u"album/%1.flac"_s.arg(QLatin1String(volume)));
            QVERIFY(SonoriaTest::makeMedia(
                path, u"sine=frequency=1000:sample_rate=48000:duration=12"_s,
                {u"-af"_s, u"volume=%1,aformat=channel_layouts=stereo"_s.arg(QLatin1String(volume)),
                 u"-metadata"_s, u"album=Levels"_s, u"-metadata"_s, u"album_artist=Tester"_s}));
            m_album.append(path);
        }
        m_single = m_work.filePath(u"single/one.flac"_s);
        QVERIFY(SonoriaTest::makeMedia(m_single, u"sine=frequency=500:duration=6"_s,
                                       {u"-af"_s, u"volume=0.5,aformat=channel_layouts=stereo"_s}));
    }

    // Album values: one album gain for the three, the single its own album; a German locale
    // changes no decimal point.
    void albumTags() {
        const QString out = m_work.filePath(u"tagged"_s);
        SONORIA_COMPARE_EXIT(SonoriaTest::runCli(albumRun(out) << m_single,
                                                 SonoriaTest::cliEnvironment(u"de_DE.UTF-8"_s)),
                             0);
        const double album = -18.0 - ffmpegLoudness(m_album);
        for (const QString& source : std::as_const(m_album)) {
            const QMap<QString, QString> fields =
                gainFields(out + u'/' + QFileInfo(source).completeBaseName() + u".flac"_s);
            QCOMPARE(fields.keys(),
                     (QStringList{u"REPLAYGAIN_ALBUM_GAIN"_s, u"REPLAYGAIN_ALBUM_PEAK"_s,
                                  u"REPLAYGAIN_TRACK_GAIN"_s, u"REPLAYGAIN_TRACK_PEAK"_s}));
            QVERIFY2(std::abs(gainOf(fields[u"REPLAYGAIN_ALBUM_GAIN"_s]) - album) <= 0.1,
                     qPrintable(fields[u"REPLAYGAIN_ALBUM_GAIN"_s] + u" vs "_s +
                                QString::number(album)));
            QVERIFY(std::abs(gainOf(fields[u"REPLAYGAIN_TRACK_GAIN"_s]) -
                             (-18.0 - ffmpegLoudness({source}))) <= 0.1);
            QCOMPARE(fields[u"REPLAYGAIN_ALBUM_PEAK"_s],
                     gainFields(out + u"/0.25.flac"_s).value(u"REPLAYGAIN_ALBUM_PEAK"_s));
        }
        const QMap<QString, QString> single = gainFields(out + u"/one.flac"_s);
        QCOMPARE(single.value(u"REPLAYGAIN_ALBUM_GAIN"_s),
                 single.value(u"REPLAYGAIN_TRACK_GAIN"_s));
        QCOMPARE(single.value(u"REPLAYGAIN_ALBUM_PEAK"_s),
                 single.value(u"REPLAYGAIN_TRACK_PEAK"_s));
    }

    // The album's gain applied to its samples: together at -18 LUFS, their differences kept, no
    // gain fields left to apply it twice.
    void albumNormalised() {
        const QString out = m_work.filePath(u"normalised"_s);
        SONORIA_COMPARE_EXIT(SonoriaTest::runCli(albumRun(out) << u"--normalise"_s), 0);
        QStringList outputs;
        for (const QString& source : std::as_const(m_album)) {
            outputs.append(out + u'/' + QFileInfo(source).completeBaseName() + u".flac"_s);
            QCOMPARE(gainFields(outputs.last()), (QMap<QString, QString>{}));
        }
        QVERIFY2(std::abs(ffmpegLoudness(outputs) + 18.0) <= 0.5,
                 qPrintable(QString::number(ffmpegLoudness(outputs))));
        QVERIFY(std::abs((ffmpegLoudness({outputs.at(2)}) - ffmpegLoudness({outputs.at(1)})) -
                         (ffmpegLoudness({m_album.at(2)}) - ffmpegLoudness({m_album.at(1)}))) <=
                0.15);
    }

    // A source that loads but cannot be decoded fails with the meter's reason; the others of
    // the run still convert.
    void unmeasurableSourceFails() {
        const QString cut = m_work.filePath(u"cut.flac"_s);
        QVERIFY(SonoriaTest::makeTone(cut, 2.0));
        QVERIFY(SonoriaTest::cutFlacAfterMetadata(cut));
        const QString out = m_work.filePath(u"cut-out"_s);
        const SonoriaTest::RunResult result = SonoriaTest::runCli(
            {u"--replaygain"_s, u"track"_s, u"--no-organize"_s, u"-o"_s, out, cut, m_single});
        SONORIA_COMPARE_EXIT(result, 1);
        QVERIFY2(result.out.contains(
                     u"failed: %1: The loudness of the source could not be measured: "_s.arg(cut)),
                 qPrintable(result.out));
        QCOMPARE(QDir(out).entryList(QDir::Files | QDir::Hidden), QStringList{u"one.mp3"_s});
        QVERIFY(gainFields(out + u"/one.mp3"_s).contains(u"REPLAYGAIN_TRACK_GAIN"_s));
    }

    // Names from tags below mirrored folders; a second run leaves the earlier results as they are,
    // "both" numbers new ones, "replace" swaps in new files under the same names.
    void namesFromTagsMirrorAndExistingOutputs() {
        const QString in = m_work.filePath(u"to name"_s);
        const QString out = m_work.filePath(u"by artist"_s);
        QVERIFY(QDir().mkpath(in + u"/A"_s) && QDir().mkpath(in + u"/B"_s));
        QVERIFY(SonoriaTest::makeTone(in + u"/A/x.flac"_s, 1.0,
                                      {"-metadata", "artist=Nina", "-metadata", "title=One"}));
        QVERIFY(SonoriaTest::makeTone(in + u"/B/x.flac"_s, 1.0));
        const QStringList arguments{
            "--no-organize", "--pattern", "{artist}/{title}", "--mirror", "-o", out, in};
        const QStringList tree{u"A"_s, u"A/Nina"_s,           u"A/Nina/One.mp3"_s,
                               u"B"_s, u"B/Unknown Artist"_s, u"B/Unknown Artist/x.mp3"_s};
        SonoriaTest::RunResult result = SonoriaTest::runCli(arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        QCOMPARE(SonoriaTest::filesBelow(out, true), tree);
        QVERIFY2(result.out.contains(u"done: %1/A/x.flac -> %2/A/Nina/One.mp3"_s.arg(in, out)),
                 qPrintable(result.out));
        const QByteArray first = SonoriaTest::readFile(out + u"/A/Nina/One.mp3"_s);

        // A dry run says what a run would leave, and counts only what it would convert.
        result = SonoriaTest::runCli(QStringList{"-n"} + arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        QCOMPARE(lines(result.out).filter(u"already converted: "_s).size(), 2);
        QVERIFY2(result.out.contains(u"0 files would be converted"_s), qPrintable(result.out));
        QVERIFY2(
            SonoriaTest::runCli(QStringList{"-n", "--existing", "both"} + arguments)
                .out.contains(u"would convert: %1/A/x.flac -> %2/A/Nina/One(1).mp3"_s.arg(in, out)),
            "keep both plans a numbered name");

        result = SonoriaTest::runCli(arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(result.out.contains(
                     u"already converted: %1/B/x.flac -> %2/B/Unknown Artist/x.mp3"_s.arg(in, out)),
                 qPrintable(result.out));
        QCOMPARE(lines(result.out).filter(u"already converted: "_s).size(), 2);
        // The summary does not count them as converted now.
        QVERIFY2(
            result.out.contains(u"0 files have been converted.\n2 files were already converted"_s),
            qPrintable(result.out));
        QCOMPARE(SonoriaTest::filesBelow(out, true), tree);

        result = SonoriaTest::runCli(arguments + QStringList{"--existing", "both"});
        SONORIA_COMPARE_EXIT(result, 0);
        QStringList numbered =
            tree + QStringList{u"A/Nina/One(1).mp3"_s, u"B/Unknown Artist/x(1).mp3"_s};
        numbered.sort();
        QCOMPARE(SonoriaTest::filesBelow(out, true), numbered);
        QCOMPARE(SonoriaTest::readFile(out + u"/A/Nina/One.mp3"_s), first);

        // Replace, at 64 kbit/s so that the new file differs: the same names, new contents; the
        // numbered files are not what was planned and stay as they were.
        const QByteArray second = SonoriaTest::readFile(out + u"/A/Nina/One(1).mp3"_s);
        result = SonoriaTest::runCli(arguments + QStringList{"--existing", "replace", "-b", "64"});
        SONORIA_COMPARE_EXIT(result, 0);
        QCOMPARE(SonoriaTest::filesBelow(out, true), numbered);
        QCOMPARE(ProbeReference::read(out + u"/A/Nina/One.mp3"_s).bitRate, 64000.0);
        QCOMPARE(SonoriaTest::readFile(out + u"/A/Nina/One(1).mp3"_s), second);
    }

private:
    // The album into `out` as FLAC at 48 kHz, with album gains.
    QStringList albumRun(const QString& out) const {
        const QStringList options{"--replaygain", "album", "-f", "FLAC", "-r", "48000"};
        return options + QStringList{"--no-organize", "-o", out} + m_album;
    }

    QTemporaryDir m_work;
    QStringList m_album;
    QString m_single;
};

SONORIA_TEST_MAIN(TestCliOutputs)
#include "tst_clioutputs.moc"
