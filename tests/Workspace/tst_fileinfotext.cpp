#include "support/TestSupport.h"

#include "Media/Framework/MTEAudioFileMgr.h"
#include "Workspace/SXFileInfoText.h"

#include <QTemporaryDir>

namespace {

std::shared_ptr<SXMusicInfo> itemWithMedia(const QString& path) {
    auto media = std::make_shared<LSMedia>();
    media->setFilePath(path);
    auto item = std::make_shared<SXMusicInfo>();
    item->setStrFilePath(path);
    item->setMediaInfo(media);
    return item;
}

} // namespace

class TestFileInfoText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fallbacksWithoutTags();
    void singleFieldRules();
    void tagValuesWinOverTheProbe();
};

void TestFileInfoText::fallbacksWithoutTags() {
    const auto item = itemWithMedia(QStringLiteral("/music/Album.Take 2.flac"));
    const LSMediaPtr media = item->mediaInfo();
    media->setAudioChannels(6);
    media->setAudioBitrate(320499);
    media->setAudioSamplerate(44100);
    media->setDuration(205.9);
    media->setDFileSize(3145728);
    media->setEumMediaType(HVMediaTypeAudio);
    media->setStrAudioCodecName(QStringLiteral("flac"));

    const QList<SXFileInfoLine> lines = SXFileInfoText::linesForItem(*item);
    QStringList order;
    for (const SXFileInfoLine& line : lines)
        order.append(line.labelName);
    QCOMPARE(order.first(), QStringLiteral("tfInfoAlbum"));
    QCOMPARE(order.last(), QStringLiteral("tfInfoWhere"));
    QCOMPARE(order.size(), 17);

    const auto text = [&lines](const char* label) {
        return SXFileInfoText::textForLabel(lines, QString::fromLatin1(label));
    };
    QCOMPARE(text("tfInfoAlbum"), QStringLiteral("Unknow"));
    QCOMPARE(text("tfInfoArtist"), QStringLiteral("Unknow"));
    QCOMPARE(text("tfInfoBitRate"), QStringLiteral("320kbps"));
    QCOMPARE(text("tfInfoBitRateMode"), QStringLiteral("mod"));
    QCOMPARE(text("tfInfoChannels"), QStringLiteral("Mono"));
    QCOMPARE(text("tfInfoChannelsMod"), QStringLiteral("6"));
    QCOMPARE(text("tfInfoFileSize"), QStringLiteral("3.0M"));
    QCOMPARE(text("tfInfoFormat"), QStringLiteral("FLAC"));
    QCOMPARE(text("tfInfoEncodeWith"), QStringLiteral("FLAC"));
    QCOMPARE(text("tfInfoKind"), QStringLiteral("FLAC audio file"));
    QCOMPARE(text("tfInfoLength"), QStringLiteral("00:03:25"));
    QCOMPARE(text("tfInfoSampleRate"), QStringLiteral("44.1kHz"));
    QCOMPARE(text("tfInfoTagFmt"), QString());
    QCOMPARE(text("tfInfoId3Tag"), QString());
    // Only the last extension goes.
    QCOMPARE(text("tfInfoTitle"), QStringLiteral("Album.Take 2"));
    QCOMPARE(text("tfInfoWhere"), QStringLiteral("/music/Album.Take 2.flac"));
    QVERIFY(!SXFileInfoText::artworkForItem(*item));

    // Without any record nothing fails: the texts fall back.
    SXMusicInfo empty;
    const QList<SXFileInfoLine> bare = SXFileInfoText::linesForItem(empty);
    QCOMPARE(SXFileInfoText::textForLabel(bare, QStringLiteral("tfInfoBitRate")),
             QStringLiteral("Unknow"));
    QCOMPARE(SXFileInfoText::textForLabel(bare, QStringLiteral("tfInfoSampleRate")),
             QStringLiteral("Unknow"));
    QCOMPARE(SXFileInfoText::textForLabel(bare, QStringLiteral("tfInfoLength")), QString());
}

void TestFileInfoText::singleFieldRules() {
    QCOMPARE(SXFileInfoText::id3TagText(QStringLiteral("ID3 v2.4")), QStringLiteral("v2.4"));
    QCOMPARE(SXFileInfoText::id3TagText(QStringLiteral("ID3v2")), QString());
    // Two blanks make an empty second part.
    QCOMPARE(SXFileInfoText::id3TagText(QStringLiteral("APE  2000")), QString());
    QCOMPARE(SXFileInfoText::fileSizeText(1572864), QStringLiteral("1.5M"));
    QCOMPARE(SXFileInfoText::kindText(QStringLiteral("/a/clip.Mp4"), HVMediaTypeVideo),
             QStringLiteral("MP4 video file"));
    QCOMPARE(SXFileInfoText::kindText(QStringLiteral("/a/noext"), HVMediaTypeUnknown),
             QStringLiteral(" video file"));
    auto media = std::make_shared<LSMedia>();
    media->setAudioChannels(2);
    media->setAudioSamplerate(48000);
    QCOMPARE(SXFileInfoText::sampleRateText(nullptr, media.get()), QStringLiteral("48.0kHz"));
}

void TestFileInfoText::tagValuesWinOverTheProbe() {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("tagged.mp3"));
    QVERIFY(SonoriaTest::makeTone(path, 1.0,
                                  {QStringLiteral("-b:a"), QStringLiteral("96k"),
                                   QStringLiteral("-ar"), QStringLiteral("32000"),
                                   QStringLiteral("-metadata"), QStringLiteral("title=Tagged"),
                                   QStringLiteral("-metadata"), QStringLiteral("album=An Album")}));
    const auto item = itemWithMedia(path);
    // A probe that disagrees: the tag library's figures are shown.
    item->mediaInfo()->setAudioBitrate(1000);
    item->mediaInfo()->setAudioSamplerate(8000);
    item->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(path, true));
    QVERIFY(item->metHandler());

    const QList<SXFileInfoLine> lines = SXFileInfoText::linesForItem(*item);
    QCOMPARE(SXFileInfoText::textForLabel(lines, QStringLiteral("tfInfoTitle")),
             QStringLiteral("Tagged"));
    QCOMPARE(SXFileInfoText::textForLabel(lines, QStringLiteral("tfInfoAlbum")),
             QStringLiteral("An Album"));
    const int tagKbps = item->metHandler()->bitrate();
    QVERIFY2(tagKbps >= 90 && tagKbps <= 110, qPrintable(QString::number(tagKbps)));
    QCOMPARE(SXFileInfoText::textForLabel(lines, QStringLiteral("tfInfoBitRate")),
             QStringLiteral("%1kbps").arg(tagKbps));
    QCOMPARE(SXFileInfoText::textForLabel(lines, QStringLiteral("tfInfoSampleRate")),
             QStringLiteral("32.0kHz"));
    const QString version = item->metHandler()->strTagVersion();
    QCOMPARE(SXFileInfoText::textForLabel(lines, QStringLiteral("tfInfoTagFmt")), version);
    QCOMPARE(SXFileInfoText::textForLabel(lines, QStringLiteral("tfInfoId3Tag")),
             version.section(QLatin1Char(' '), 1, 1));
}

SONORIA_TEST_MAIN(TestFileInfoText)
#include "tst_fileinfotext.moc"
