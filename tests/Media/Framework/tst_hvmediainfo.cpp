#include "Media/Framework/HVMediaInfo.h"
#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace {

QStringList args(const QString& text) {
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const char* const kToneAndPicture =
    "testsrc=duration=2:size=160x120:rate=10[out0];sine=frequency=440:sample_rate=44100:"
    "duration=2[out1]";

} // namespace

class TestHVMediaInfo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        m_cover = m_dir.filePath(QStringLiteral("cover.png"));
        QVERIFY(SonoriaTest::makeMedia(m_cover, QStringLiteral("color=c=red:size=64x64"),
                                       args("-frames:v 1")));
    }

    void probesLikeFfprobe_data() {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("extra");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("sampleRate");
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("mediaType");

        const QString tone = QStringLiteral("sine=frequency=440:sample_rate=44100:duration=2");
        const QString tone48 = QStringLiteral("sine=frequency=440:sample_rate=48000:duration=2");
        const QString both = QString::fromLatin1(kToneAndPicture);
        const int audio = HVMediaTypeAudio;
        const int video = HVMediaTypeVideo;
        QTest::newRow("mp3 stereo")
            << "stereo.mp3" << tone << args("-ac 2 -b:a 192k") << 2 << 44100 << "mp3" << audio;
        QTest::newRow("aac in m4a")
            << "tone.m4a" << tone << args("-c:a aac -ac 2") << 2 << 44100 << "aac" << audio;
        QTest::newRow("flac") << "tone.flac" << tone << args("-ac 2") << 2 << 44100 << "flac"
                              << audio;
        QTest::newRow("ogg vorbis") << "tone.ogg" << tone << args("-c:a libvorbis -ac 2") << 2
                                    << 44100 << "vorbis" << audio;
        QTest::newRow("opus") << "tone.opus" << tone48 << args("-c:a libopus -ac 2") << 2 << 48000
                              << "opus" << audio;
        QTest::newRow("wav") << "tone.wav" << tone << args("-ac 2") << 2 << 44100 << "pcm_s16le"
                             << audio;
        QTest::newRow("wma") << "tone.wma" << tone << args("-c:a wmav2 -ac 2") << 2 << 44100
                             << "wmav2" << audio;
        QTest::newRow("ac3 5.1") << "surround.ac3" << tone48 << args("-ac 6") << 6 << 48000 << "ac3"
                                 << audio;
        QTest::newRow("mp2") << "tone.mp2" << tone << args("-ac 2") << 2 << 44100 << "mp2" << audio;
        QTest::newRow("mp4 video")
            << "movie.mp4" << both << args("-c:v libx264 -pix_fmt yuv420p -c:a aac -ac 2") << 2
            << 44100 << "aac" << video;
        const QString cover = QStringLiteral("-i %1 -map 0:a -map 1:v -c:v png -id3v2_version 3 "
                                             "-disposition:v attached_pic")
                                  .arg(m_cover);
        QTest::newRow("mp3 with cover art")
            << "cover.mp3" << tone << args(cover) << 1 << 44100 << "mp3" << audio;
    }

    // Every accepted kind of input against the command-line prober's view of the same file, plus
    // the values the file was made with, so a shared mistake of both would still show.
    void probesLikeFfprobe() {
        QFETCH(QString, fileName);
        QFETCH(QString, source);
        QFETCH(QStringList, extra);
        QFETCH(int, channels);
        QFETCH(int, sampleRate);
        QFETCH(QString, codec);
        QFETCH(int, mediaType);

        const QString path = m_dir.filePath(fileName);
        QVERIFY(SonoriaTest::makeMedia(path, source, extra));
        const ProbeReference reference = ProbeReference::read(path);
        QVERIFY(reference.ok);

        HVMediaInfoItem item;
        item.setFilePath(path);
        QString error;
        QVERIFY2(HVMediaInfo::dumpMediaInfo(item, &error), qPrintable(error));
        QVERIFY(error.isEmpty());

        QCOMPARE(item.audioChannels(), reference.channels);
        QCOMPARE(item.audioSamplerate(), reference.sampleRate);
        QCOMPARE(item.strAudioCodecName(), reference.codecName);
        QCOMPARE(item.audioBitrate(), reference.bitRate);
        QVERIFY2(
            qAbs(item.duration() - reference.duration) < 0.001,
            qPrintable(QStringLiteral("%1 vs %2").arg(item.duration()).arg(reference.duration)));

        QCOMPARE(item.audioChannels(), channels);
        QCOMPARE(item.audioSamplerate(), double(sampleRate));
        QCOMPARE(item.strAudioCodecName(), codec);
        QVERIFY(item.audioBitrate() > 8000);
        QVERIFY2(qAbs(item.duration() - 2.0) < 0.1, qPrintable(QString::number(item.duration())));
        QCOMPARE(item.eumMediaType(), mediaType);
        QCOMPARE(item.filePath(), path);
    }

    // Whatever is handed over, the probe answers with an error, at once, and leaves the record
    // as it was.
    void rejectsWhatIsNotAudio() {
        const QString text = m_dir.filePath(QStringLiteral("letter.mp3"));
        QVERIFY(SonoriaTest::writeFile(text, "Dear reader, plain text and not a sound at all.\n"));
        const QString empty = m_dir.filePath(QStringLiteral("empty.mp3"));
        QVERIFY(SonoriaTest::writeFile(empty, {}));
        const QString whole = m_dir.filePath(QStringLiteral("whole.mp3"));
        QVERIFY(SonoriaTest::makeTone(whole, 3));
        const QString truncated = m_dir.filePath(QStringLiteral("truncated.mp3"));
        QVERIFY(SonoriaTest::writeFile(truncated, SonoriaTest::readFile(whole).left(300)));
        const QString silentFilm = m_dir.filePath(QStringLiteral("silent.mp4"));
        QVERIFY(SonoriaTest::makeMedia(
            silentFilm, QStringLiteral("testsrc=duration=1:size=160x120"), args("-c:v mpeg4")));
        const QString folder = m_dir.filePath(QStringLiteral("folder.mp3"));
        QVERIFY(QDir().mkpath(folder));
        // Reading a pipe nobody writes to would block for ever.
        const QString pipe = m_dir.filePath(QStringLiteral("pipe.mp3"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

        for (const QString& path : {text, empty, truncated, silentFilm, folder, pipe,
                                    m_dir.filePath(QStringLiteral("missing.mp3")), QString()}) {
            HVMediaInfoItem item;
            item.setFilePath(path);
            item.setAudioSamplerate(1234);
            QString error;
            QVERIFY2(!HVMediaInfo::dumpMediaInfo(item, &error), qPrintable(path));
            QVERIFY2(!error.isEmpty(), qPrintable(path));
            QCOMPARE(item.audioSamplerate(), 1234.0);
            QCOMPARE(item.eumMediaType(), int(HVMediaTypeUnknown));
            QVERIFY(!HVMediaInfo::dumpMediaInfo(item)); // no place for the error is fine too
        }
    }

    // Names libav could mistake for addresses or options are still local files.
    void probesAwkwardFileNames() {
        const QStringList names{QStringLiteral("http:tone.mp3"), QStringLiteral("-i tone.mp3"),
                                QStringLiteral("Träume über 100%.mp3"),
                                QStringLiteral("concat:a|b.mp3")};
        const QString plain = m_dir.filePath(QStringLiteral("plain.mp3"));
        QVERIFY(SonoriaTest::makeTone(plain, 1));
        for (const QString& name : names) {
            const QString path = m_dir.filePath(name);
            QVERIFY2(QFile::copy(plain, path), qPrintable(name));
            HVMediaInfoItem item;
            item.setFilePath(path);
            QString error;
            QVERIFY2(HVMediaInfo::dumpMediaInfo(item, &error), qPrintable(name + error));
            QCOMPARE(item.audioSamplerate(), 44100.0);
        }
        // A relative path is taken from the working folder.
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_dir.path()));
        HVMediaInfoItem relative;
        relative.setFilePath(QStringLiteral("http:tone.mp3"));
        const bool ok = HVMediaInfo::dumpMediaInfo(relative);
        QDir::setCurrent(previous);
        QVERIFY(ok);
    }

    // Several threads probing the same files at once get what one thread gets alone.
    void probesFromSeveralThreads() {
        QStringList paths;
        for (const char* name : {"a.mp3", "b.flac", "c.m4a", "d.ogg"}) {
            paths << m_dir.filePath(QLatin1String(name));
            QVERIFY(SonoriaTest::makeTone(paths.last(), 1));
        }
        std::vector<std::thread> threads;
        std::atomic<int> mismatches{0};
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&paths, &mismatches] {
                for (int round = 0; round < 10; ++round) {
                    for (const QString& path : paths) {
                        HVMediaInfoItem item;
                        item.setFilePath(path);
                        if (!HVMediaInfo::dumpMediaInfo(item) || item.audioSamplerate() != 44100 ||
                            qAbs(item.duration() - 1.0) > 0.1)
                            ++mismatches;
                    }
                }
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(mismatches.load(), 0);
    }

private:
    QTemporaryDir m_dir;
    QString m_cover;
};

SONORIA_TEST_MAIN(TestHVMediaInfo)
#include "tst_hvmediainfo.moc"
