#include "ConvertTestSupport.h"

#include "engine/ConvertCommandLine.h"
#include "engine/ConvertEngineChoice.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QDataStream>
#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <cstring>

using namespace ConvertTest;

namespace {
constexpr double kSeconds = 2.0;

struct Encoder {
    const char* codec;
    const char* extension;
    bool lossless;
    int sampleRate;
};

// Every encoder the worker takes, each with the extension that picks its muxer.
const Encoder kEncoders[] = {
    {"libmp3lame", "mp3", false, 44100}, {"flac", "flac", true, 44100},
    {"pcm_s16le", "wav", true, 44100},   {"pcm_s16be", "aiff", true, 44100},
    {"alac", "m4a", true, 44100},        {"wavpack", "wv", true, 44100},
    {"aac", "m4a", false, 44100},        {"libvorbis", "ogg", false, 44100},
    {"libopus", "opus", false, 48000},   {"ac3", "ac3", false, 44100},
    {"mp2", "mp2", false, 44100},        {"wmav2", "wma", false, 44100},
};

// Sources that make the resampler do each of its jobs: none, rate, channels up and down, 8-bit
// samples, and the sound of video files (planar float from AAC and Vorbis). Last, a WAV whose
// header says 16-bit samples but that holds an MP3: the worker probes only the first packet of
// such a file, which must still find the MP3, as ffmpeg's fuller probe does.
struct Source {
    const char* name;
    QStringList ffmpegArguments; // before the output path
    int channels;                // asked of the encoder
};

QStringList lavfi(const QString& graph) {
    return {u"-f"_s, u"lavfi"_s, u"-i"_s, graph};
}

const QList<Source>& sources() {
    static const QString tone = u"sine=frequency=440:duration=%1"_s.arg(kSeconds);
    static const QList<Source> list{
        {"mono.wav", lavfi(tone) + QStringList{u"-ac"_s, u"1"_s}, 2},
        {"stereo48.wav", lavfi(tone + u":sample_rate=48000"_s) + QStringList{u"-ac"_s, u"2"_s}, 1},
        {"u8.wav",
         lavfi(tone + u":sample_rate=22050"_s) +
             QStringList{u"-ac"_s, u"1"_s, u"-acodec"_s, u"pcm_u8"_s},
         2},
        {"video.mp4",
         lavfi(u"testsrc=duration=%1:size=160x120"_s.arg(kSeconds)) + lavfi(tone) +
             QStringList{u"-shortest"_s, u"-c:v"_s, u"mpeg4"_s, u"-c:a"_s, u"aac"_s},
         2},
        {"video.mkv",
         lavfi(u"testsrc=duration=%1:size=160x120"_s.arg(kSeconds)) +
             lavfi(tone + u":sample_rate=48000"_s) +
             QStringList{u"-shortest"_s, u"-c:v"_s, u"mpeg4"_s, u"-c:a"_s, u"libvorbis"_s},
         2},
        {"hidden.wav", lavfi(tone) + QStringList{u"-ac"_s, u"2"_s, u"-f"_s, u"mp3"_s}, 2},
    };
    return list;
}

// The output decoded by ffmpeg to 32-bit samples.
QByteArray decoded(const QString& path) {
    QProcess ffmpeg;
    ffmpeg.start(u"ffmpeg"_s, {u"-nostdin"_s, u"-v"_s, u"error"_s, u"-i"_s, path, u"-f"_s,
                               u"s32le"_s, u"-acodec"_s, u"pcm_s32le"_s, u"-"_s});
    ffmpeg.waitForFinished(60000);
    return ffmpeg.readAllStandardOutput();
}

double snrDb(const QByteArray& signal, const QByteArray& test) {
    const qsizetype count = std::min(signal.size(), test.size()) / qsizetype(sizeof(qint32));
    double power = 0;
    double noise = 0;
    for (qsizetype i = 0; i < count; ++i) {
        qint32 a = 0;
        qint32 b = 0;
        std::memcpy(&a, signal.constData() + i * 4, 4);
        std::memcpy(&b, test.constData() + i * 4, 4);
        power += double(a) * a;
        noise += (double(a) - b) * (double(a) - b);
    }
    return noise == 0 ? 1000.0 : 10.0 * std::log10(power / noise);
}
} // namespace

class WorkerEquivalenceTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_sources;

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(!ConvertEngineChoice::workerPath().isEmpty(), "sonoria-worker not found");
        for (const Source& source : sources())
            QCOMPARE(
                SonoriaTest::run(
                    u"ffmpeg"_s,
                    QStringList{u"-nostdin"_s, u"-v"_s, u"error"_s} + source.ffmpegArguments +
                        QStringList{u"-y"_s, m_sources.filePath(QString::fromUtf8(source.name))}),
                0);
        const QString hidden = m_sources.filePath(u"hidden.wav"_s);
        const QByteArray frames = SonoriaTest::readFile(hidden);
        QByteArray wav;
        QDataStream header(&wav, QIODevice::WriteOnly);
        header.setByteOrder(QDataStream::LittleEndian);
        header.writeRawData("RIFF", 4);
        header << quint32(36 + frames.size());
        header.writeRawData("WAVEfmt ", 8);
        // PCM, two channels of 16 bits at 44.1 kHz.
        header << quint32(16) << quint16(1) << quint16(2) << quint32(44100) << quint32(44100 * 4)
               << quint16(4) << quint16(16);
        header.writeRawData("data", 4);
        header << quint32(frames.size());
        QVERIFY(SonoriaTest::writeFile(hidden, wav + frames));
        // ffmpeg hears the MP3's two seconds, not its bytes as a fraction of a second of noise.
        QVERIFY(decoded(hidden).size() >= qsizetype(kSeconds * 44100 * 2 * 4));
    }

    // The worker's output decodes to the ffmpeg child's samples: exactly for the lossless
    // encoders, and for the lossy ones to the same length with at least 60 dB between them.
    void sameAsFfmpeg_data() {
        QTest::addColumn<int>("encoder");
        QTest::addColumn<int>("source");
        for (int e = 0; e < int(std::size(kEncoders)); ++e) {
            for (int s = 0; s < sources().size(); ++s)
                QTest::addRow("%s from %s", kEncoders[e].codec, sources()[s].name) << e << s;
        }
    }
    void sameAsFfmpeg() {
        QFETCH(int, encoder);
        QFETCH(int, source);
        const Encoder& enc = kEncoders[encoder];
        const Source& src = sources()[source];
        Item item = makeItem(m_sources.filePath(QString::fromUtf8(src.name)), kSeconds, u"Test"_s,
                             QString::fromUtf8(enc.codec), QString::fromUtf8(enc.extension));
        item.job.choices = {enc.lossless ? std::nullopt : std::optional<int>(192), enc.sampleRate,
                            src.channels, enc.lossless};
        QVERIFY(ConvertEngineChoice::workerTakes(item.job));
        // Through the worker, then the same job through an ffmpeg child.
        QTemporaryDir out;
        LogCapture log;
        Recorder recorder;
        const ConvertOperationPtr operation = convert(item, out.path(), &recorder);
        QVERIFY(log.contains(u"engine: worker"_s));
        QCOMPARE(stateOf(item), int(CvtStateFinished));
        QVERIFY(recorder.isWellFormed());
        const QString reference = out.filePath(u"reference."_s + item.job.extension);
        const QStringList arguments =
            ConvertCommandLine::arguments(u"ffmpeg"_s, item.job, reference);
        QCOMPARE(SonoriaTest::run(arguments.first(), arguments.mid(1)), 0);
        const QByteArray worker = decoded(operation->strOutFilePath());
        const QByteArray ffmpeg = decoded(reference);
        QVERIFY(!ffmpeg.isEmpty());
        if (enc.lossless) {
            QVERIFY(worker == ffmpeg);
            return;
        }
        // One frame of the largest encoder (2048 samples) either way.
        const qsizetype frameBytes = 2048 * 4 * src.channels;
        QVERIFY(std::abs(worker.size() - ffmpeg.size()) <= frameBytes);
        QVERIFY2(snrDb(ffmpeg, worker) >= 60.0, qPrintable(u"%1 dB"_s.arg(snrDb(ffmpeg, worker))));
    }

    // The rule: the worker's encoders only, no cue range or gain, and never when ffmpeg is asked
    // for.
    void choice_data() {
        QTest::addColumn<QString>("encoder");
        QTest::addColumn<bool>("range");
        QTest::addColumn<bool>("forced");
        QTest::addColumn<bool>("worker");
        QTest::newRow("mp3") << u"libmp3lame"_s << false << false << true;
        QTest::newRow("cue track") << u"libmp3lame"_s << true << false << false;
        QTest::newRow("SONORIA_ENGINE=ffmpeg") << u"flac"_s << false << true << false;
        QTest::newRow("not taken") << u"libfdk_aac"_s << false << false << false;
    }
    void choice() {
        QFETCH(QString, encoder);
        QFETCH(bool, range);
        QFETCH(bool, forced);
        Item item = makeItem(m_sources.filePath(u"mono.wav"_s), kSeconds, u"Test"_s, encoder);
        item.job.hasRange = range;
        if (forced)
            qputenv("SONORIA_ENGINE", "ffmpeg");
        const bool takes = ConvertEngineChoice::workerTakes(item.job);
        qunsetenv("SONORIA_ENGINE");
        QTEST(takes, "worker");
    }
};

SONORIA_TEST_MAIN(WorkerEquivalenceTest)
#include "tst_workerequivalence.moc"
