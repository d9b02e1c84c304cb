#include "ConvertTestSupport.h"
#include "NativeTags.h"

#include "engine/ConvertCommandLine.h"
#include "framework/HVLoudness.h"
#include "framework/MTEAudioFileMgr.h"
#include "support/TestSupport.h"

#include <QLocale>
#include <QTemporaryDir>

#include <cmath>

// ReplayGain in the conversion: what the measured values become in each output family's own
// fields (read back at the level of frames, atoms, comments and attributes), the gain an ffmpeg
// volume filter applies when normalising (checked on the output with ffmpeg's own meter), and
// the argument list left exactly as it was when neither is asked for.
using namespace ConvertTest;

namespace {

// The loudness fields of a file under the family's own keys, "key=value" each.
QStringList loudnessFields(const QString& path) {
    QMultiMap<QString, QString> fields = NativeTags::read(path).fields;
    fields.removeIf([](const auto& field) {
        return !field.key().contains(u"replaygain"_s, Qt::CaseInsensitive) &&
               !field.key().startsWith(u"R128_"_s);
    });
    return NativeTags::lines(fields);
}

} // namespace

class ReplayGainTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    QString m_source;

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        // A decimal comma in the user's language must not reach a tag or an argument.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        m_source = m_dir.filePath(u"source.flac"_s);
        // An earlier program's gain in the source, which a measured one replaces.
        QVERIFY(SonoriaTest::makeMedia(m_source,
                                       u"sine=frequency=1000:sample_rate=44100:duration=4"_s,
                                       {u"-af"_s, u"volume=2,aformat=channel_layouts=stereo"_s,
                                        u"-metadata"_s, u"REPLAYGAIN_TRACK_GAIN=-99.00 dB"_s}));
    }

    // Normalising adds one volume filter after -vn: the gain, lowered so that the peak stays
    // under -1 dBTP, and never a word of ReplayGain in an output that already sounds at its gain.
    // Tags alone, or nothing to apply, leave the list byte for byte as it has always been.
    void commandLine_data() {
        QTest::addColumn<int>("tags");
        QTest::addColumn<bool>("normalise");
        QTest::addColumn<double>("trackGain"); // NaN: not measured (silent)
        QTest::addColumn<double>("trackPeak");
        QTest::addColumn<double>("albumGain");
        QTest::addColumn<double>("albumPeak");
        QTest::addColumn<QString>("filter"); // empty: none
        const int off = int(SXReplayGainMode::Off);
        const int track = int(SXReplayGainMode::Track);
        const int album = int(SXReplayGainMode::Album);
        const double none = qQNaN();
        QTest::newRow("off") << off << false << none << 0.0 << none << 0.0 << QString();
        QTest::newRow("track tags") << track << false << -4.0 << 0.5 << -5.0 << 0.5 << QString();
        QTest::newRow("album tags") << album << false << -4.0 << 0.5 << -5.0 << 0.5 << QString();
        QTest::newRow("normalise, silent source")
            << off << true << none << 0.0 << none << 0.0 << QString();
        QTest::newRow("room to raise")
            << off << true << 6.0 << 0.1 << 0.0 << 0.0 << u"volume=6.00dB"_s;
        // 0.5 is -6.02 dBTP: raised by 5.02 dB it reaches the -1 dBTP ceiling.
        QTest::newRow("raise limited by the peak")
            << track << true << 6.0 << 0.5 << 0.0 << 0.0 << u"volume=5.02dB"_s;
        QTest::newRow("album gain and peak in album mode")
            << album << true << 2.0 << 0.2 << -3.5 << 0.9 << u"volume=-3.50dB"_s;
        QTest::newRow("over full scale is lowered further")
            << off << true << -2.0 << 1.2 << 0.0 << 0.0 << u"volume=-2.58dB"_s;
    }
    void commandLine() {
        QFETCH(int, tags);
        QFETCH(bool, normalise);
        QFETCH(double, trackGain);
        QFETCH(double, trackPeak);
        QFETCH(double, albumGain);
        QFETCH(double, albumPeak);
        QFETCH(QString, filter);
        Item item = makeItem(u"/music/a b.flac"_s, 10.0);
        const QStringList plain = ConvertCommandLine::arguments(u"ffmpeg"_s, item.job, u"o"_s);
        const auto measured = [](double gain) {
            return std::isnan(gain) ? std::nullopt : std::optional<double>(gain);
        };
        item.job.loudness = {SXReplayGainMode(tags), normalise, measured(trackGain), trackPeak,
                             measured(albumGain),    albumPeak};
        QStringList arguments = ConvertCommandLine::arguments(u"ffmpeg"_s, item.job, u"o"_s);
        if (!filter.isEmpty()) {
            QCOMPARE(arguments.mid(4, 2), (QStringList{u"-af"_s, filter}));
            arguments.remove(4, 2);
            QVERIFY(item.job.loudness.tagFields(u"flac"_s).replace);
            QVERIFY(item.job.loudness.tagFields(u"flac"_s).fields.isEmpty());
        }
        QCOMPARE(arguments, plain);
    }

    void fieldTexts_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<int>("tags");
        QTest::addColumn<double>("trackGain");
        QTest::addColumn<QStringList>("expected"); // name=value, in name order
        QTest::newRow("mp3, track") << u"mp3"_s << int(SXReplayGainMode::Track) << -7.2349
                                    << QStringList{u"REPLAYGAIN_TRACK_GAIN=-7.23 dB"_s,
                                                   u"REPLAYGAIN_TRACK_PEAK=0.988547"_s};
        QTest::newRow("flac, album, a hair under zero")
            << u"flac"_s << int(SXReplayGainMode::Album) << -0.004
            << QStringList{u"REPLAYGAIN_ALBUM_GAIN=2.50 dB"_s, u"REPLAYGAIN_ALBUM_PEAK=1.000000"_s,
                           u"REPLAYGAIN_TRACK_GAIN=0.00 dB"_s, u"REPLAYGAIN_TRACK_PEAK=0.988547"_s};
        // R128 gains are in 1/256 dB, which a 16-bit field holds up to 128 dB.
        QTest::newRow("opus, far too quiet, clamped")
            << u"opus"_s << int(SXReplayGainMode::Track) << 200.0
            << QStringList{u"R128_TRACK_GAIN=32767"_s};
    }
    void fieldTexts() {
        QFETCH(QString, extension);
        QFETCH(int, tags);
        QFETCH(double, trackGain);
        const ConvertLoudness loudness{
            SXReplayGainMode(tags), false, trackGain, 0.9885471, 2.5, 1.0};
        const MTELoudnessFields fields = loudness.tagFields(extension);
        QVERIFY(fields.replace);
        QTEST(NativeTags::lines(QMultiMap<QString, QString>(fields.fields)), "expected");
    }

    // Album values through a real conversion into each family's own fields; the source's stale
    // gain is gone.
    void tagsReadBack_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("encoder");
        // The track gain's key; the other three are spelled alike. Opus keeps no peaks, WAV none.
        QTest::addColumn<QString>("trackGainKey");
        QTest::newRow("flac") << u"flac"_s << u"flac"_s << u"REPLAYGAIN_TRACK_GAIN"_s;
        QTest::newRow("ogg") << u"ogg"_s << u"libvorbis"_s << u"REPLAYGAIN_TRACK_GAIN"_s;
        QTest::newRow("opus") << u"opus"_s << u"libopus"_s << u"R128_TRACK_GAIN"_s;
        QTest::newRow("mp3") << u"mp3"_s << u"libmp3lame"_s << u"TXXX:REPLAYGAIN_TRACK_GAIN"_s;
        QTest::newRow("m4a") << u"m4a"_s << u"aac"_s
                             << u"----:com.apple.iTunes:replaygain_track_gain"_s;
        QTest::newRow("wma") << u"wma"_s << u"wmav2"_s << u"replaygain_track_gain"_s;
        QTest::newRow("wavpack") << u"wv"_s << u"wavpack"_s << u"APE:REPLAYGAIN_TRACK_GAIN"_s;
        QTest::newRow("wav") << u"wav"_s << u"pcm_s16le"_s << QString();
    }
    void tagsReadBack() {
        QFETCH(QString, extension);
        QFETCH(QString, encoder);
        QFETCH(QString, trackGainKey);
        Item item = makeItem(m_source, 4.0, u"Format"_s, encoder, extension);
        item->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(m_source, true));
        const bool opus = extension == u"opus"_s;
        if (opus)
            item.job.choices.sampleRate = 48000; // the only rates the encoder takes
        item.job.loudness = {SXReplayGainMode::Album, false, -7.2349, 0.9885471, 2.5, 1.0};
        const ConvertOperationPtr operation = convert(item, m_dir.filePath(extension), nullptr);
        QVERIFY2(stateOf(item) == CvtStateFinished, qPrintable(item->mediaInfo()->failReason()));

        // R128 gains are towards -23 LUFS, in 1/256 dB: (-7.2349 - 5) * 256 = -3132.1.
        const QStringList values =
            opus ? QStringList{u"-3132"_s, {}, u"-640"_s, {}}
                 : QStringList{u"-7.23 dB"_s, u"0.988547"_s, u"2.50 dB"_s, u"1.000000"_s};
        const QStringList names{u"TRACK_GAIN"_s, u"TRACK_PEAK"_s, u"ALBUM_GAIN"_s, u"ALBUM_PEAK"_s};
        const bool lower = trackGainKey.endsWith(u"gain"_s);
        QMultiMap<QString, QString> expected;
        for (qsizetype i = 0; i < names.size() && !trackGainKey.isEmpty(); ++i) {
            if (!values[i].isEmpty())
                expected.insert(trackGainKey.chopped(10) + (lower ? names[i].toLower() : names[i]),
                                values[i]);
        }
        QCOMPARE(loudnessFields(operation->strOutFilePath()), NativeTags::lines(expected));
    }

    // The gain applied to the samples, measured on the output by ffmpeg: at -18 LUFS when there
    // is room, never over -1 dBTP.
    void normalisedOutput_data() {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<bool>("limited");
        QTest::newRow("quiet tone, raised")
            << u"sine=frequency=1000:duration=6,volume=0.4"_s << false;
        QTest::newRow("loud tone, lowered")
            << u"sine=frequency=1000:duration=6,volume=7.5"_s << false;
        // Clicks at nearly full scale in a quiet tone: the peak, not the loudness, sets the gain.
        QTest::newRow("quiet tone with clicks, raise limited")
            << u"aevalsrc=0.02*sin(2*PI*1000*t)+0.8*lt(mod(t\\,1)\\,0.001):s=44100:d=6"_s << true;
    }
    void normalisedOutput() {
        QFETCH(QString, signal);
        QFETCH(bool, limited);
        const QString source = m_dir.filePath(u"normalise-%1.wav"_s.arg(QTest::currentDataTag()));
        QVERIFY(SonoriaTest::makeMedia(source, signal,
                                       {u"-af"_s, u"aformat=channel_layouts=stereo"_s}));
        const std::optional<HVLoudnessMeasurement> measured =
            HVLoudness::measure(source, false, nullptr, nullptr);
        QVERIFY(measured && measured->integrated);
        Item item = makeItem(source, 6.0, u"FLAC"_s, u"flac"_s, u"flac"_s);
        item.job.loudness.normalise = true;
        item.job.loudness.trackGain = ConvertLoudness::gainFor(*measured->integrated);
        item.job.loudness.trackPeak = measured->truePeak;
        const ConvertOperationPtr operation =
            convert(item, m_dir.filePath(u"normalised"_s), nullptr);
        QVERIFY2(stateOf(item) == CvtStateFinished, qPrintable(item->mediaInfo()->failReason()));
        const SonoriaTest::LoudnessReference output =
            SonoriaTest::ffmpegLoudness({operation->strOutFilePath()});
        // ffmpeg prints tenths; its true-peak interpolation differs from the meter's by a few
        // hundredths.
        QVERIFY2(output.truePeakDb <= -1.0 + 0.1, qPrintable(QString::number(output.truePeakDb)));
        if (limited) {
            QVERIFY2(output.truePeakDb >= -1.5, qPrintable(QString::number(output.truePeakDb)));
            QVERIFY(output.integrated < -18.5);
        } else {
            QVERIFY2(std::abs(output.integrated + 18.0) <= 0.5,
                     qPrintable(QString::number(output.integrated)));
        }
        QCOMPARE(loudnessFields(operation->strOutFilePath()), QStringList());
    }
};

SONORIA_TEST_MAIN(ReplayGainTest)
#include "tst_replaygain.moc"
