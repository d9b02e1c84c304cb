#include "framework/HVMediaInfo.h"
#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <thread>
#include <utility>
#include <vector>

namespace {

QStringList args(const QString& text) {
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Probes `path` into a fresh record; the error text goes to *error.
bool probe(const QString& path, HVMediaInfoItem& item, QString* error = nullptr) {
    item.setFilePath(path);
    return HVMediaInfo::dumpMediaInfo(item, error);
}

} // namespace

class TestHVMediaInfo : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    QString m_tone; // one second of MP3
    QString path(const QString& name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void initTestCase() {
        m_tone = path(QStringLiteral("plain.mp3"));
        QVERIFY(SonoriaTest::makeTone(m_tone, 1));
    }

    void probesLikeFfprobe_data() {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("extra");
        QTest::addColumn<int>("mediaType");
        QTest::addColumn<QString>("trueSuffix");

        const QString cover = path(QStringLiteral("cover.png"));
        QVERIFY(SonoriaTest::makeMedia(cover, "color=c=red:size=64x64", args("-frames:v 1")));
        // Covers as large as real ones: noise keeps the JPEG from shrinking. The larger one is
        // over the 1 MiB that libavformat looks at to tell a format.
        const QString photo = path(QStringLiteral("photo.jpg"));
        const QString poster = path(QStringLiteral("poster.jpg"));
        for (const auto& [picture, size] : {std::pair{photo, 640}, std::pair{poster, 1280}})
            QVERIFY(SonoriaTest::makeMedia(
                picture,
                QStringLiteral("nullsrc=s=%1x%1,geq=r='random(1)*255':g='random(2)*255':"
                               "b='random(3)*255'")
                    .arg(size),
                args("-frames:v 1 -q:v 1")));
        QVERIFY(QFileInfo(photo).size() > 250'000 && QFileInfo(poster).size() > 1'100'000);
        const auto with = [](const QString& picture) {
            return "-i " + picture + " -map 0:a -map 1:v -c:v copy ";
        };
        const QString withPhoto = with(photo);
        const QString id3Cover = " -id3v2_version 3 -disposition:v attached_pic";

        // trueSuffix: the file's real kind when its name says otherwise.
        const auto row = [](const char* name, int rate, const QString& extra,
                            int type = HVMediaTypeAudio, const QString& trueSuffix = {}) {
            QString source =
                QStringLiteral("sine=frequency=440:sample_rate=%1:duration=2").arg(rate);
            if (type == HVMediaTypeVideo)
                source.prepend(QStringLiteral("testsrc=duration=2:size=160x120:rate=10[out0];"))
                    .append(QStringLiteral("[out1]"));
            QTest::newRow(name) << QString::fromLatin1(name) << source << args(extra) << type
                                << trueSuffix;
        };
        row("stereo.mp3", 44100, "-ac 2 -b:a 192k");
        row("tone.m4a", 44100, "-c:a aac -ac 2");
        row("tone.flac", 44100, "-ac 2");
        row("tone.ogg", 44100, "-c:a libvorbis -ac 2");
        row("tone.opus", 48000, "-c:a libopus -ac 2");
        row("tone.wav", 44100, "-ac 2");
        row("tone.wma", 44100, "-c:a wmav2 -ac 2");
        row("surround.ac3", 48000, "-ac 6");
        row("tone.mp2", 44100, "-ac 2");
        row("movie.mp4", 44100, "-c:v libx264 -pix_fmt yuv420p -c:a aac -ac 2", HVMediaTypeVideo);
        row("cover.mp3", 44100, with(cover) + id3Cover);
        row("photo.mp3", 44100, withPhoto + "-ac 2" + id3Cover);
        // Without the Xing header the duration comes from the size of what follows the tag.
        row("photo-cbr.mp3", 44100, withPhoto + "-write_xing 0" + id3Cover);
        row("poster.flac", 48000, with(poster) + "-ac 2 -disposition:v attached_pic");
        row("photo-flac.mp3", 44100, withPhoto + "-c:a flac -disposition:v attached_pic -f flac",
            HVMediaTypeAudio, "flac");
        // ffprobe itself goes by the extension when a tag fills its whole look at the file.
        row("poster-mp3.m4a", 44100, with(poster) + "-c:a libmp3lame -f mp3" + id3Cover,
            HVMediaTypeAudio, "mp3");
    }

    // Every accepted kind of input against the command-line prober's view of the same file,
    // under its true name when its own misleads.
    void probesLikeFfprobe() {
        QFETCH(QString, fileName);
        QFETCH(QString, source);
        QFETCH(QStringList, extra);
        QFETCH(QString, trueSuffix);

        const QString file = path(fileName);
        QVERIFY(SonoriaTest::makeMedia(file, source, extra));
        const QString trulyNamed = trueSuffix.isEmpty() ? file : file + '.' + trueSuffix;
        QVERIFY(trulyNamed == file || QFile::copy(file, trulyNamed));
        const ProbeReference reference = ProbeReference::read(trulyNamed);
        QVERIFY(reference.ok && reference.bitRate > 8000);

        HVMediaInfoItem item;
        QString error;
        QVERIFY2(probe(file, item, &error) && error.isEmpty(), qPrintable(error));
        QTEST(item.eumMediaType(), "mediaType");
        QCOMPARE(item.audioChannels(), reference.channels);
        QCOMPARE(item.audioSamplerate(), reference.sampleRate);
        QCOMPARE(item.strAudioCodecName(), reference.codecName);
        QCOMPARE(item.audioBitrate(), reference.bitRate);
        QVERIFY2(
            qAbs(item.duration() - reference.duration) < 0.001 && qAbs(item.duration() - 2.0) < 0.1,
            qPrintable(QStringLiteral("%1 vs %2").arg(item.duration()).arg(reference.duration)));
    }

    // Whatever is handed over, the probe answers with an error, at once, and leaves the record
    // as it was.
    void rejectsWhatIsNotAudio() {
        const QString text = path(QStringLiteral("letter.mp3"));
        QVERIFY(SonoriaTest::writeFile(text, "Dear reader, plain text and not a sound at all.\n"));
        const QString empty = path(QStringLiteral("empty.mp3"));
        QVERIFY(SonoriaTest::writeFile(empty, {}));
        const QString truncated = path(QStringLiteral("truncated.mp3"));
        QVERIFY(SonoriaTest::writeFile(truncated, SonoriaTest::readFile(m_tone).left(300)));
        const QString silentFilm = path(QStringLiteral("silent.mp4"));
        QVERIFY(SonoriaTest::makeMedia(silentFilm, "testsrc=duration=1:size=160x120",
                                       args("-c:v mpeg4")));
        const QString folder = path(QStringLiteral("folder.mp3"));
        QVERIFY(QDir().mkpath(folder));
        // Reading a pipe nobody writes to would block for ever.
        const QString pipe = path(QStringLiteral("pipe.mp3"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

        for (const QString& bad : {text, empty, truncated, silentFilm, folder, pipe,
                                   path(QStringLiteral("missing.mp3")), QString()}) {
            HVMediaInfoItem item;
            item.setAudioSamplerate(1234);
            QString error;
            QVERIFY2(!probe(bad, item, &error) && !error.isEmpty(), qPrintable(bad));
            QCOMPARE(item.audioSamplerate(), 1234.0);
            QCOMPARE(item.eumMediaType(), int(HVMediaTypeUnknown));
            QVERIFY(!HVMediaInfo::dumpMediaInfo(item)); // no place for the error is fine too
        }
    }

    // Names libav could mistake for addresses or options are still local files, also when
    // relative to the working folder; and several threads probing them at once get what one
    // thread gets alone.
    void probesAwkwardNamesFromSeveralThreads() {
        QStringList names{"http:tone.mp3", "-i tone.mp3", "Träume über 100%.mp3", "concat:a|b.mp3"};
        for (const QString& name : names)
            QVERIFY2(QFile::copy(m_tone, path(name)), qPrintable(name));
        names.append(QStringLiteral("threads.flac"));
        QVERIFY(SonoriaTest::makeTone(path(names.last()), 1));
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_dir.path()));
        HVMediaInfoItem relative;
        const bool ok = probe(names.first(), relative);
        QDir::setCurrent(previous);
        QVERIFY(ok);

        std::atomic<int> mismatches{0};
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&] {
                for (int round = 0; round < 20; ++round) {
                    HVMediaInfoItem item;
                    if (!probe(path(names.at(round % names.size())), item) ||
                        item.audioSamplerate() != 44100 || qAbs(item.duration() - 1.0) > 0.1)
                        ++mismatches;
                }
            });
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(mismatches.load(), 0);
    }
};

SONORIA_TEST_MAIN(TestHVMediaInfo)
#include "tst_hvmediainfo.moc"
