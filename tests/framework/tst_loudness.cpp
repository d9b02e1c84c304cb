#include "framework/HVLoudness.h"
#include "framework/HVTruePeak.h"
#include "support/TestSupport.h"

#include <QTemporaryDir>

#include <cmath>

// The meter against ffmpeg's own EBU R 128 filter on the same files: integrated loudness within
// 0.1 LU and true peak within a few tenths of a dB, for a track and for an album gated as one.
using namespace Qt::StringLiterals;

class TestLoudness : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    static double decibels(double linear) { return 20.0 * std::log10(linear); }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void measuresAsFfmpeg_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<bool>("dualMono");
        QTest::addColumn<QString>("source");
        const QString sine = u"sine=frequency=1000:duration=6"_s;
        QTest::newRow("stereo 1 kHz, flac")
            << u"a.flac"_s << u"volume=4,aformat=channel_layouts=stereo"_s << false << sine;
        QTest::newRow("quiet stereo, 48 kHz wav")
            << u"b.wav"_s << u"volume=0.2,aresample=48000,aformat=channel_layouts=stereo"_s << false
            << sine;
        QTest::newRow("mono, heard on both sides")
            << u"c.flac"_s << u"volume=2,aformat=channel_layouts=mono"_s << true << sine;
        QTest::newRow("5.1 with a low-frequency channel, mp3 decoded")
            << u"d.m4a"_s << u"volume=3,aformat=channel_layouts=5.1"_s << false << sine;
        QTest::newRow("stereo mp3")
            << u"e.mp3"_s << u"volume=6,aformat=channel_layouts=stereo"_s << false << sine;
        // A quarter of the sample rate at 45 degrees: every sample is 3 dB below the waveform's
        // crests, which only the oversampled peak finds. Faded in and out, because a tone that
        // starts on a crest rings differently through every oversampling filter.
        QTest::newRow("peaks between the samples")
            << u"f.wav"_s << u"afade=t=in:d=0.5,afade=t=out:st=5.5:d=0.5"_s << false
            << u"aevalsrc=0.5*sin(2*PI*11025*t+PI/4)|0.5*sin(2*PI*11025*t+PI/4):s=44100:d=6"_s;
    }
    void measuresAsFfmpeg() {
        QFETCH(QString, name);
        QFETCH(QString, filter);
        QFETCH(bool, dualMono);
        QFETCH(QString, source);
        const QString path = m_dir.filePath(name);
        QVERIFY(SonoriaTest::makeMedia(path, source, {u"-af"_s, filter}));
        QString error;
        const std::optional<HVLoudnessMeasurement> measured =
            HVLoudness::measure(path, false, nullptr, &error);
        QVERIFY2(measured, qPrintable(error));
        QVERIFY(measured->integrated && !measured->meter);
        const SonoriaTest::LoudnessReference reference =
            SonoriaTest::ffmpegLoudness({path}, dualMono);
        QVERIFY2(std::abs(*measured->integrated - reference.integrated) <= 0.1,
                 qPrintable(u"%1 vs %2"_s.arg(*measured->integrated).arg(reference.integrated)));
        QVERIFY2(
            std::abs(decibels(measured->truePeak) - reference.truePeakDb) <= 0.3,
            qPrintable(u"%1 vs %2"_s.arg(decibels(measured->truePeak)).arg(reference.truePeakDb)));
    }

    // Three tracks 12 and 6 dB apart: the album is gated over all blocks at once, so the quiet
    // track falls under the relative gate and the album is the power mean of the other two,
    // which no average of the three gains would give. ffmpeg hears the three as one programme
    // (blocks straddle the joins, so the tracks are long enough for those not to matter).
    void albumIsOneProgramme() {
        QStringList paths;
        QList<HVLoudnessMeasurement> tracks;
        for (const char* volume : {"0.25", "1", "2"}) {
            const QString path = m_dir.filePath(u"album-%1.flac"_s.arg(QLatin1String(volume)));
            QVERIFY(SonoriaTest::makeMedia(
                path, u"sine=frequency=1000:duration=20"_s,
                {u"-af"_s,
                 u"volume=%1,aformat=channel_layouts=stereo"_s.arg(QLatin1String(volume))}));
            QString error;
            const std::optional<HVLoudnessMeasurement> measured =
                HVLoudness::measure(path, true, nullptr, &error);
            QVERIFY2(measured && measured->meter, qPrintable(error));
            tracks.append(*measured);
            paths.append(path);
        }
        // Silence has no loudness, and as a track of the album it changes nothing.
        const QString silence = m_dir.filePath(u"silence.flac"_s);
        QVERIFY(SonoriaTest::makeMedia(silence, u"anullsrc=channel_layout=stereo:duration=3"_s,
                                       {u"-ac"_s, u"2"_s}));
        const std::optional<HVLoudnessMeasurement> silent =
            HVLoudness::measure(silence, true, nullptr, nullptr);
        QVERIFY(silent && !silent->integrated);
        QCOMPARE(silent->truePeak, 0.0);
        QVERIFY(!HVLoudness::albumLoudness({*silent}));
        tracks.append(*silent);
        paths.append(silence);
        const std::optional<double> album = HVLoudness::albumLoudness(tracks);
        QVERIFY(album);
        const SonoriaTest::LoudnessReference reference = SonoriaTest::ffmpegLoudness(paths);
        QVERIFY2(std::abs(*album - reference.integrated) <= 0.1,
                 qPrintable(u"%1 vs %2"_s.arg(*album).arg(reference.integrated)));
        const double gatedMean = 10.0 * std::log10((std::pow(10.0, *tracks[1].integrated / 10.0) +
                                                    std::pow(10.0, *tracks[2].integrated / 10.0)) /
                                                   2.0);
        QVERIFY2(std::abs(*album - gatedMean) <= 0.02,
                 qPrintable(u"%1 vs %2"_s.arg(*album).arg(gatedMean)));
        QVERIFY(!HVLoudness::albumLoudness({}));
    }

    // Tones of amplitude 0.5 whose crests mostly fall between the samples, faded in and out,
    // fed in awkward pieces: the peak is the crest within 0.05 dB from the bass to the top of
    // the band, at each oversampling factor, and never below the sample peak.
    void truePeakFindsTheCrest_data() {
        QTest::addColumn<int>("rate");
        QTest::addColumn<double>("frequency");
        for (const int rate : {44100, 48000, 96000})
            // Off a simple ratio near the top, so the crests drift across the oversampled
            // points (at 0.45 exactly they would keep missing the same crest by 0.1 dB).
            for (const double frequency : {997.0, rate / 4.0, rate * 0.45 - 11.1})
                QTest::addRow("%d Hz at %d", int(frequency), rate) << rate << frequency;
        QTest::newRow("192 kHz, the samples themselves") << 192000 << 1000.0;
    }
    void truePeakFindsTheCrest() {
        QFETCH(int, rate);
        QFETCH(double, frequency);
        const std::size_t frames = std::size_t(rate) / 2;
        std::vector<float> samples(frames * 2);
        float samplePeak = 0;
        for (std::size_t i = 0; i < frames; ++i) {
            const double fade = std::min(1.0, double(std::min(i, frames - 1 - i)) / 2000.0);
            const double t = double(i) / rate;
            samples[2 * i] = float(0.5 * fade * std::sin(2 * M_PI * frequency * t + M_PI / 4));
            samples[2 * i + 1] = -samples[2 * i];
            samplePeak = std::max(samplePeak, std::abs(samples[2 * i]));
        }
        HVTruePeak meter(2, rate);
        for (std::size_t done = 0, piece = 1; done < frames; done += piece, piece = piece * 3 + 1)
            meter.add(samples.data() + 2 * done, std::min(piece, frames - done));
        const double peak = meter.finish();
        QVERIFY2(std::abs(decibels(peak / 0.5)) <= 0.05, qPrintable(QString::number(peak)));
        QVERIFY(peak >= samplePeak);
    }

    void failuresHaveReasons_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("cancelled");
        QTest::newRow("not media") << QByteArray("just some text, no audio\n") << false;
        QTest::newRow("missing") << QByteArray() << false;
        QTest::newRow("cancelled") << QByteArray("tone") << true;
    }
    void failuresHaveReasons() {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, cancelled);
        QString path = m_dir.filePath(u"broken-%1"_s.arg(QTest::currentDataTag()));
        if (cancelled)
            QVERIFY(SonoriaTest::makeTone(path += u".flac"_s, 3.0));
        else if (!bytes.isEmpty())
            QVERIFY(SonoriaTest::writeFile(path, bytes));
        const std::atomic<bool> cancel{cancelled};
        QString error;
        QVERIFY(!HVLoudness::measure(path, false, &cancel, &error) && !error.isEmpty());
    }
};

SONORIA_TEST_MAIN(TestLoudness)
#include "tst_loudness.moc"
