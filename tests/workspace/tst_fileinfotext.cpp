#include "support/TestSupport.h"

#include "framework/MTEAudioFileMgr.h"
#include "workspace/SXFileInfoText.h"
#include "workspace/SXReadableNames.h"

#include <QLocale>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class TestFileInfoText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Numbers and sizes as an American English desktop writes them, whatever the machine's.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    // What the panel shows without tags, and that a file's tags win over its probe.
    void fallbacksWithoutTagsAndTagsOverTheProbe() {
        const auto item = SXMusicInfo::newForSource(u"/music/Album.Take 2.flac"_s, QString());
        const LSMediaPtr media = item->mediaInfo();
        media->setAudioChannels(6);
        media->setAudioBitrate(320499);
        media->setAudioSamplerate(44100);
        media->setDuration(205.9);
        media->setDFileSize(3145728);
        media->setEumMediaType(HVMediaTypeAudio);
        media->setStrAudioCodecName(u"flac"_s);

        const QList<SXFileInfoLine> lines = SXFileInfoText::linesForItem(*item);
        QCOMPARE(lines.size(), 19);
        QCOMPARE(lines.first().labelName, u"tfInfoTitle"_s);
        QCOMPARE(lines.at(16).labelName, u"tfInfoWhere"_s);
        // Why the last run failed: only for a failed item, with a general reason when none came.
        QCOMPARE(lines.last().labelName, u"tfInfoFailReason"_s);
        QVERIFY(!lines.last().shown);
        media->setEumCvtState(CvtStateFailed);
        QVERIFY(SXFileInfoText::linesForItem(*item).last().shown);
        QCOMPARE(SXFileInfoText::linesForItem(*item).last().text,
                 u"ffmpeg failed without giving a reason"_s);
        media->setFailReason(u"No space left on device"_s);
        QCOMPARE(SXFileInfoText::linesForItem(*item).last().text, u"No space left on device"_s);
        // Without a catalogue the source texts show ("Unknow"); six channels read "5.1"; only the
        // last extension leaves the title.
        const QList<std::pair<const char*, QString>> expected{
            {"Album", u"Unknow"_s},       {"Artist", u"Unknow"_s},
            {"BitRate", u"320kbps"_s},    {"BitRateMode", u"Variable"_s},
            {"Channels", u"5.1"_s},       {"ChannelsMod", u"6"_s},
            {"FileSize", u"3.0 MB"_s},    {"Format", u"FLAC"_s},
            {"EncodeWith", u"FLAC"_s},    {"Kind", u"FLAC audio file"_s},
            {"Length", u"00:03:25"_s},    {"SampleRate", u"44.1kHz"_s},
            {"TagFmt", QString()},        {"Id3Tag", QString()},
            {"Title", u"Album.Take 2"_s}, {"Where", u"/music/Album.Take 2.flac"_s}};
        for (const auto& [label, text] : expected)
            QCOMPARE(SXFileInfoText::textForLabel(lines, u"tfInfo"_s + QLatin1String(label)), text);
        QVERIFY(!SXFileInfoText::artworkForItem(*item));

        // Without any record nothing fails: the texts fall back.
        const QList<SXFileInfoLine> bare = SXFileInfoText::linesForItem(SXMusicInfo());
        QCOMPARE(SXFileInfoText::textForLabel(bare, u"tfInfoBitRate"_s), u"Unknow"_s);
        QCOMPARE(SXFileInfoText::textForLabel(bare, u"tfInfoSampleRate"_s), u"Unknow"_s);
        QCOMPARE(SXFileInfoText::textForLabel(bare, u"tfInfoLength"_s), QString());

        // A tagged file whose probe disagrees: the tag library's figures are shown.
        QTemporaryDir dir;
        const QString path = dir.filePath(u"tagged.mp3"_s);
        QVERIFY(SonoriaTest::makeTone(
            path, 1.0, {"-b:a", "96k", "-ar", "32000", "-metadata", "title=Tagged"}));
        const auto tagged = SXMusicInfo::newForSource(path, QString());
        tagged->mediaInfo()->setAudioBitrate(1000);
        tagged->mediaInfo()->setAudioSamplerate(8000);
        tagged->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(path, true));
        QVERIFY(tagged->metHandler());
        const QList<SXFileInfoLine> taggedLines = SXFileInfoText::linesForItem(*tagged);
        const auto text = [&taggedLines](const QString& label) {
            return SXFileInfoText::textForLabel(taggedLines, label);
        };
        QCOMPARE(text(u"tfInfoTitle"_s), u"Tagged"_s);
        QCOMPARE(text(u"tfInfoBitRate"_s), u"%1kbps"_s.arg(tagged->metHandler()->bitrate()));
        QCOMPARE(text(u"tfInfoSampleRate"_s), u"32.0kHz"_s);
        const QString version = tagged->metHandler()->strTagVersion();
        QVERIFY2(version.startsWith(u"ID3 v2."_s), qPrintable(version));
        QCOMPARE(text(u"tfInfoTagFmt"_s), u"ID3v2"_s);
        QCOMPARE(text(u"tfInfoId3Tag"_s), version.section(u' ', 1, 1));
    }

    // One field's text at a time: the names a codec, a channel count or a tag family reads by,
    // and the rules of single fields of the panel.
    void singleTexts_data() {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("expected");
        const auto codec = SXReadableNames::codecName;
        QTest::newRow("pcm") << codec(u"pcm_s16le"_s) << u"PCM 16-bit"_s;
        QTest::newRow("pcm float") << codec(u"pcm_f32be"_s) << u"PCM 32-bit float"_s;
        QTest::newRow("known codec") << codec(u"ac3"_s) << u"AC-3"_s;
        QTest::newRow("unknown codec in capitals") << codec(u"qdm2"_s) << u"QDM2"_s;
        QTest::newRow("stereo") << SXReadableNames::channelsName(2) << u"Stereo"_s;
        QTest::newRow("three channels") << SXReadableNames::channelsName(3) << u"3 channels"_s;
        QTest::newRow("7.1") << SXReadableNames::channelsName(8) << u"7.1"_s;
        QTest::newRow("id3v2") << SXReadableNames::tagFamilyName(u"ID3 v2.3"_s) << u"ID3v2"_s;
        QTest::newRow("vorbis comments")
            << SXReadableNames::tagFamilyName(u"Vorbis Comment"_s) << u"Vorbis comments"_s;
        QTest::newRow("ape") << SXReadableNames::tagFamilyName(u"APE v2"_s) << u"APE"_s;
        QTest::newRow("id3 version") << SXFileInfoText::id3TagText(u"ID3 v2.4"_s) << u"v2.4"_s;
        QTest::newRow("id3 without version") << SXFileInfoText::id3TagText(u"ID3v2"_s) << QString();
        // Two blanks make an empty second part.
        QTest::newRow("two blanks") << SXFileInfoText::id3TagText(u"APE  2000"_s) << QString();
        QTest::newRow("megabytes") << SXFileInfoText::fileSizeText(1572864) << u"1.5 MB"_s;
        QTest::newRow("never 0.0M") << SXFileInfoText::fileSizeText(27648) << u"27.0 kB"_s;
        QTest::newRow("video kind")
            << SXFileInfoText::kindText(u"/a/clip.Mp4"_s, HVMediaTypeVideo) << u"MP4 video file"_s;
        QTest::newRow("kind without extension")
            << SXFileInfoText::kindText(u"/a/noext"_s, HVMediaTypeUnknown) << u" video file"_s;
        LSMedia media;
        media.setAudioChannels(2);
        media.setAudioSamplerate(48000);
        QTest::newRow("sample rate of the probe")
            << SXFileInfoText::sampleRateText(nullptr, &media) << u"48.0kHz"_s;
    }

    void singleTexts() {
        QFETCH(QString, shown);
        QFETCH(QString, expected);
        QCOMPARE(shown, expected);
    }
};

SONORIA_TEST_MAIN(TestFileInfoText)
#include "tst_fileinfotext.moc"
