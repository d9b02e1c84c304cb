#include "ConvertTestSupport.h"

#include "base/SXSettings.h"
#include "engine/ConvertCommandLine.h"
#include "framework/MTEAudioFileMgr.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

using namespace ConvertTest;

class ConvertOperationTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    QString m_tone; // one-second WAV, copied wherever a test needs a source

    QString copyTone(const QString& folder, const QString& name) {
        return QFile::copy(m_tone, folder + u'/' + name) ? folder + u'/' + name : QString();
    }

private Q_SLOTS:
    void initTestCase() {
        m_tone = m_dir.filePath(u"tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(m_tone, 1.0));
        // The library the conversions deliver to is an MPD nobody answers for.
        SXSettings::setValue(SXSettingsKey::LibraryBackend, u"mpd"_s);
        SXSettings::setValue(SXSettingsKey::MpdHost, u"127.0.0.1"_s);
        SXSettings::setValue(SXSettingsKey::MpdPort, 1);
    }

    // Parallel runs into a folder where the plain and the first numbered name are taken: each
    // run gets a name of its own and the existing files keep their contents.
    void outputsAreNeverSharedNorReplaced() {
        QTemporaryDir dir;
        const QString folder = dir.filePath(u"out"_s);
        const QString source = copyTone(dir.path(), u"same.wav"_s);
        const QStringList taken{u"same.mp3"_s, u"same(1).mp3"_s};
        for (const QString& name : taken)
            QVERIFY(SonoriaTest::writeFile(folder + u'/' + name, name.toUtf8()));
        constexpr int kRuns = 4;
        SXOperationQueue queue;
        queue.setMaxConcurrentOperationCount(kRuns);
        QList<ConvertOperationPtr> operations;
        Recorder recorders[kRuns];
        for (int i = 0; i < kRuns; ++i) {
            operations.append(makeOperation(makeItem(source, 1.0), folder, &recorders[i]));
            queue.addOperation(operations.last());
        }
        queue.waitUntilAllOperationsAreFinished();
        QSet<QString> outputs;
        for (int i = 0; i < kRuns; ++i) {
            QCOMPARE(stateOf(operations[i]->musicToConvert()), int(CvtStateFinished));
            QVERIFY(recorders[i].isWellFormed());
            QVERIFY(QFileInfo(operations[i]->strOutFilePath()).size() > 0);
            outputs.insert(QFileInfo(operations[i]->strOutFilePath()).fileName());
        }
        QCOMPARE(outputs,
                 (QSet<QString>{"same(2).mp3", "same(3).mp3", "same(4).mp3", "same(5).mp3"}));
        for (const QString& name : taken)
            QCOMPARE(SonoriaTest::readFile(folder + u'/' + name), name.toUtf8());
    }

    // Names a shell or ffmpeg would read as something else convert next to their source, which
    // stays as it was. A ringtone is encoded as m4a first, then given its own extension under a
    // free name. A library that cannot be reached fails quietly and the item still finishes.
    // Once finished, cancel and pause change nothing. (Tags: tst_tagcopymatrix.)
    void convertsNextToTheSource_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("output");
        QTest::newRow("shell characters") << u"it's a \"test\" $HOME; rm -rf x & y.wav"_s
                                          << u"it's a \"test\" $HOME; rm -rf x & y.mp3"_s;
        QTest::newRow("leading dash") << u"-y.wav"_s << u"-y.mp3"_s;
        QTest::newRow("non-ASCII") << u"Ünïcödé 音楽 ñ.wav"_s << u"Ünïcödé 音楽 ñ.mp3"_s;
        QTest::newRow("backslash and star") << u"a\\b*?[c].wav"_s << u"a\\b*?[c].mp3"_s;
        QTest::newRow("ringtone beside a taken name") << u"song.wav"_s << u"song(1).m4r"_s;
        QTest::newRow("AAC for an unreachable library") << u"song.wav"_s << u"song.m4a"_s;
    }
    void convertsNextToTheSource() {
        QFETCH(QString, name);
        QFETCH(QString, output);
        QTemporaryDir dir;
        const QString source = copyTone(dir.path(), name);
        const QByteArray hash = SonoriaTest::fileHash(source);
        const QString suffix = QFileInfo(output).suffix();
        const bool ringtone = suffix == "m4r"_L1;
        const bool library = suffix == "m4a"_L1;
        if (ringtone)
            QVERIFY(SonoriaTest::writeFile(dir.filePath(u"song.m4r"_s), "earlier"));
        auto item = ringtone  ? makeItem(source, 1.0, u"Ringtone"_s, u"aac"_s, u"m4r"_s)
                    : library ? makeItem(source, 1.0, u"AAC"_s, u"aac"_s, u"m4a"_s)
                              : makeItem(source, 1.0);
        item->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(source, true));
        item.job.addToLibrary = library;
        LogCapture log;
        Recorder recorder;
        auto operation = convert(item, QString(), &recorder);
        QCOMPARE(stateOf(item), int(CvtStateFinished));
        QCOMPARE(operation->strOutFilePath(), dir.filePath(output));
        QVERIFY2(recorder.isWellFormed(), qPrintable(recorder.events().join(u' ')));
        QCOMPARE(recorder.count(u"sync"_s), library ? 1 : 0);
        // The ffmpeg child exited 0, or the worker reported the job done.
        QVERIFY(
            log.contains(u"exit code:0"_s) ||
            !log.lines().filter(QRegularExpression(u"^worker \\d+: job \\d+ done$"_s)).isEmpty());
        QCOMPARE(SonoriaTest::fileHash(source), hash);
        QCOMPARE(entries(dir.path()).size(), ringtone ? 3 : 2);
        const QString encoded = ringtone ? u"m4a"_s : suffix; // what the child writes
        QCOMPARE(log.lines().filter(u"args:"_s).filter(u'.' + encoded + u"\")"_s).size(), 1);
        if (ringtone)
            QCOMPARE(SonoriaTest::readFile(dir.filePath(u"song.m4r"_s)), "earlier");
        operation->cancel();
        operation->pause();
        QCOMPARE(stateOf(item), int(CvtStateFinished));
        QVERIFY(QFileInfo(operation->strOutFilePath()).size() > 0);
    }

    // The chosen values, the source's where a choice says "Use Source", 0 for a lossless
    // format, and stereo above 192 kbit/s whatever was asked; always in this order.
    void commandLineRules_data() {
        QTest::addColumn<QString>("bitRate");
        QTest::addColumn<QString>("sampleRate");
        QTest::addColumn<QString>("channels");
        QTest::addColumn<QStringList>("asked"); // -ar, -b:a, -ac
        QTest::newRow("chosen numbers")
            << u"192"_s << u"44100"_s << u"Mono"_s << QStringList{"44100.00", "192.00k", "1"};
        QTest::newRow("above 192 kbit/s")
            << u"224"_s << u"22050"_s << u"Mono"_s << QStringList{"22050.00", "224.00k", "2"};
        QTest::newRow("the source's") << u"Use Source"_s << u"Use Source"_s << u"Use Source"_s
                                      << QStringList{"48000.00", "96.51k", "6"};
        QTest::newRow("lossless") << u"Lossless"_s << u"Use Source"_s << u"Stereo"_s
                                  << QStringList{"48000.00", "0.00k", "2"};
    }
    void commandLineRules() {
        QFETCH(QString, bitRate);
        QFETCH(QString, sampleRate);
        QFETCH(QString, channels);
        QFETCH(QStringList, asked);
        ConvertJob job;
        job.sourcePath = u"/music/-in.flac"_s;
        job.sourceBitRate = 96512;
        job.sourceSampleRate = 48000;
        job.sourceChannels = 6;
        job.encoder = u"libmp3lame"_s;
        job.choices = SXConversionChoices::fromTitles(bitRate, sampleRate, channels);
        QCOMPARE(ConvertCommandLine::arguments(u"/x/ffmpeg"_s, job, u"/o.mp3"_s),
                 (QStringList{"/x/ffmpeg", "-i", "/music/-in.flac", "-vn", "-acodec", "libmp3lame",
                              "-ar", asked[0], "-b:a", asked[1], "-ac", asked[2], "-y", "/o.mp3"}));
    }
};

SONORIA_TEST_MAIN(ConvertOperationTest)
#include "tst_convertoperation.moc"
