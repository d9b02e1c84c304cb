#include "Media/Framework/MTEAudioFileMgr.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QTemporaryDir>

#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/tpropertymap.h>
#include <taglib/unsynchronizedlyricsframe.h>
#include <taglib/vorbisfile.h>
#include <taglib/xiphcomment.h>

// Reading, writing and reading back tags of every kind a conversion can produce, checked both
// through fresh handles and through TagLib directly, as other players would read them.
class TestMTEAudioFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesAndReadsBackEveryField_data();
    void writesAndReadsBackEveryField();
    void mp3GetsId3v23WithEnglishLyricsAndNoId3v1();
    void emptyTextAndEmptyPictureListRemoveFields();
    void kindComesFromTheContent();
    void picturesStayInTheFileUntilAskedFor();
    void brokenFilesNeverCrash();
    void readingNeverChangesTheFile();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }
    void fillAllFields(MTEAudioFile& handle) const;

    QTemporaryDir m_dir;
    MTEArtwork m_png;
    MTEArtwork m_jpeg;
};

namespace {

QByteArray readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString taglibProperty(const QString& path, const char* name) {
    const TagLib::FileRef ref(QFile::encodeName(path).constData());
    if (ref.isNull())
        return {};
    return QString::fromStdString(ref.file()->properties()[name].toString().to8Bit(true));
}

const QString kTitle = QStringLiteral("Título — 東京");
const QString kLyric = QStringLiteral("La la la\nsecond line ♪");

} // namespace

void TestMTEAudioFile::initTestCase() {
    QVERIFY(m_dir.isValid());
    QVERIFY(SonoriaTest::makeMedia(path(QStringLiteral("cover.png")),
                                   QStringLiteral("color=c=red:s=32x32"), {"-frames:v", "1"}));
    QVERIFY(SonoriaTest::makeMedia(path(QStringLiteral("cover.jpg")),
                                   QStringLiteral("color=c=blue:s=48x48"), {"-frames:v", "1"}));
    m_png = {readAll(path(QStringLiteral("cover.png"))), QStringLiteral("image/png")};
    m_jpeg = {readAll(path(QStringLiteral("cover.jpg"))), QStringLiteral("image/jpeg")};
    QVERIFY(m_png.data.startsWith("\x89PNG"));
    QVERIFY(m_jpeg.data.startsWith("\xFF\xD8"));
}

void TestMTEAudioFile::fillAllFields(MTEAudioFile& handle) const {
    handle.setTitle(kTitle);
    handle.setArtist(QStringLiteral("The Artist"));
    handle.setAlbumArtist(QStringLiteral("Various"));
    handle.setComposer(QStringLiteral("Composer Ö"));
    handle.setAlbum(QStringLiteral("The Album"));
    handle.setDate(QStringLiteral("2021"));
    handle.setGenre(QStringLiteral("Jazz"));
    handle.setTrack(QStringLiteral("3/12"));
    handle.setCopyright(QStringLiteral("2021 Someone"));
    handle.setPublisher(QStringLiteral("Label Records"));
    handle.setComment(QStringLiteral("a comment"));
    handle.setLyric(kLyric);
    handle.setAlbumImg({m_png, m_jpeg});
}

void TestMTEAudioFile::writesAndReadsBackEveryField_data() {
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QStringList>("encoder");
    QTest::addColumn<int>("fileType");
    QTest::addColumn<QString>("tagVersion");
    QTest::addColumn<bool>("keepsAllPictures");

    QTest::newRow("mp3") << "mp3" << QStringList{"-c:a", "libmp3lame"}
                         << int(MTEAudioFile::FileTypeMPEGOrFLAC) << "ID3 v2.3" << true;
    QTest::newRow("m4a") << "m4a" << QStringList{"-c:a", "aac"} << int(MTEAudioFile::FileTypeMP4)
                         << "MP4" << true;
    QTest::newRow("flac") << "flac" << QStringList{"-c:a", "flac"}
                          << int(MTEAudioFile::FileTypeMPEGOrFLAC) << "Vorbis Comment" << true;
    QTest::newRow("ogg") << "ogg" << QStringList{"-c:a", "libvorbis"}
                         << int(MTEAudioFile::FileTypeOggVorbis) << "Vorbis Comment" << true;
    QTest::newRow("opus") << "opus" << QStringList{"-c:a", "libopus"}
                          << int(MTEAudioFile::FileTypeOpus) << "Vorbis Comment" << true;
    QTest::newRow("wav") << "wav" << QStringList{"-c:a", "pcm_s16le"}
                         << int(MTEAudioFile::FileTypeWAV) << "ID3 v2.3" << true;
    QTest::newRow("aiff") << "aiff" << QStringList{"-c:a", "pcm_s16be"}
                          << int(MTEAudioFile::FileTypeAIFF) << "ID3 v2.3" << true;
    QTest::newRow("wma") << "wma" << QStringList{"-c:a", "wmav2"} << int(MTEAudioFile::FileTypeASF)
                         << "ASF" << true;
    QTest::newRow("wv") << "wv" << QStringList{"-c:a", "wavpack"}
                        << int(MTEAudioFile::FileTypeWavPack) << "APE v2" << false;
}

void TestMTEAudioFile::writesAndReadsBackEveryField() {
    QFETCH(QString, extension);
    QFETCH(QStringList, encoder);
    QFETCH(int, fileType);
    QFETCH(QString, tagVersion);
    QFETCH(bool, keepsAllPictures);
    const QString file = path(QStringLiteral("all.") + extension);
    QVERIFY(SonoriaTest::makeTone(file, 1.0, encoder));

    const auto writer = MTEAudioFileMgr::createAudioFileWithPath(file, false);
    QVERIFY(writer);
    QCOMPARE(writer->eumFileType(), fileType);
    fillAllFields(*writer);
    QString error;
    QVERIFY2(writer->saveNew(file, &error), qPrintable(error));

    const auto reader = MTEAudioFileMgr::createAudioFileWithPath(file, true);
    QVERIFY(reader);
    QCOMPARE(reader->strTagVersion(), tagVersion);
    QVERIFY(reader->sampleRate() > 0);
    QVERIFY(reader->bitrate() > 0);
    QCOMPARE(reader->title(), kTitle);
    QCOMPARE(reader->artist(), QStringLiteral("The Artist"));
    QCOMPARE(reader->albumArtist(), QStringLiteral("Various"));
    QCOMPARE(reader->composer(), QStringLiteral("Composer Ö"));
    QCOMPARE(reader->album(), QStringLiteral("The Album"));
    QCOMPARE(reader->date(), QStringLiteral("2021"));
    QCOMPARE(reader->genre(), QStringLiteral("Jazz"));
    QCOMPARE(reader->track(), QStringLiteral("3/12"));
    QCOMPARE(reader->copyright(), QStringLiteral("2021 Someone"));
    QCOMPARE(reader->publisher(), QStringLiteral("Label Records"));
    QCOMPARE(reader->comment(), QStringLiteral("a comment"));
    QCOMPARE(reader->lyric(), kLyric);
    const MTEArtworkList expected =
        keepsAllPictures ? MTEArtworkList{m_png, m_jpeg} : MTEArtworkList{m_png};
    QCOMPARE(reader->albumImg(), expected);

    // Every text value sits under the kind's own key, and every own key has a generic name.
    const QMap<QString, QVariant> info = reader->dicReadInfo();
    const QMap<QString, QString> map = reader->dicMap();
    QCOMPARE(map.size(), 13);
    QCOMPARE(info.value(map.value(QStringLiteral("title"))).toString(), kTitle);
    QCOMPARE(info.value(map.value(QStringLiteral("albumImg"))).value<MTEArtworkList>(), expected);
    for (const QString& key : info.keys())
        QVERIFY2(!map.keys(key).isEmpty(), qPrintable(key));

    // Other players reading through TagLib's common names see the same text.
    QCOMPARE(taglibProperty(file, "TITLE"), kTitle);
    QCOMPARE(taglibProperty(file, "ALBUM"), QStringLiteral("The Album"));
    QCOMPARE(taglibProperty(file, "LYRICS"), kLyric);
}

void TestMTEAudioFile::mp3GetsId3v23WithEnglishLyricsAndNoId3v1() {
    const QString file = path(QStringLiteral("frames.mp3"));
    QVERIFY(SonoriaTest::makeTone(file, 1.0, {"-c:a", "libmp3lame"}));
    const auto writer = MTEAudioFileMgr::createAudioFileWithPath(file, false);
    QVERIFY(writer);
    fillAllFields(*writer);
    QVERIFY(writer->saveNew(file));

    TagLib::MPEG::File mpeg(QFile::encodeName(file).constData());
    QVERIFY(mpeg.isValid());
    QVERIFY(!mpeg.hasID3v1Tag());
    QVERIFY(!mpeg.hasAPETag());
    QVERIFY(mpeg.hasID3v2Tag());
    TagLib::ID3v2::Tag* tag = mpeg.ID3v2Tag();
    QCOMPARE(tag->header()->majorVersion(), 3u);
    const TagLib::ID3v2::FrameList lyrics = tag->frameListMap()["USLT"];
    QCOMPARE(lyrics.size(), 1u);
    auto* uslt = dynamic_cast<TagLib::ID3v2::UnsynchronizedLyricsFrame*>(lyrics.front());
    QVERIFY(uslt);
    QCOMPARE(uslt->language(), TagLib::ByteVector("eng"));
    QVERIFY(uslt->description().isEmpty());
    QCOMPARE(tag->frameListMap()["APIC"].size(), 2u);
    QCOMPARE(tag->frameListMap()["TPUB"].size(), 1u);
    QCOMPARE(tag->frameListMap()["COMM"].size(), 1u);
}

void TestMTEAudioFile::emptyTextAndEmptyPictureListRemoveFields() {
    for (const QString& extension : {QStringLiteral("mp3"), QStringLiteral("flac"),
                                     QStringLiteral("ogg"), QStringLiteral("m4a")}) {
        const QString file = path(QStringLiteral("remove.") + extension);
        QVERIFY(SonoriaTest::makeTone(file, 1.0));
        auto writer = MTEAudioFileMgr::createAudioFileWithPath(file, false);
        fillAllFields(*writer);
        QVERIFY(writer->saveNew(file));

        // Only the fields held are touched: artist stays, title and pictures go.
        auto editor = MTEAudioFileMgr::createAudioFileWithPath(file, false);
        editor->setTitle(QString());
        editor->setAlbumImg({});
        QVERIFY(editor->saveNew(file));

        const auto reader = MTEAudioFileMgr::createAudioFileWithPath(file, true);
        QVERIFY2(reader->title().isEmpty(), qPrintable(extension));
        QVERIFY2(!reader->dicReadInfo().contains(reader->dicMap().value("title")),
                 qPrintable(extension));
        QCOMPARE(reader->artist(), QStringLiteral("The Artist"));
        QVERIFY2(reader->albumImg().isEmpty(), qPrintable(extension));
        QVERIFY(!reader->dicReadInfo().contains(reader->dicMap().value("albumImg")));
    }
    TagLib::FLAC::File flac(QFile::encodeName(path(QStringLiteral("remove.flac"))).constData());
    QVERIFY(flac.pictureList().isEmpty());
}

void TestMTEAudioFile::kindComesFromTheContent() {
    // An MP3 named .flac and a FLAC named .mp3 are still read (and written) as what they are.
    const QString mp3 = path(QStringLiteral("really-mp3.flac"));
    const QString flac = path(QStringLiteral("really-flac.mp3"));
    QVERIFY(SonoriaTest::makeTone(mp3, 1.0, {"-c:a", "libmp3lame", "-f", "mp3"}));
    QVERIFY(SonoriaTest::makeTone(flac, 1.0, {"-c:a", "flac", "-f", "flac"}));

    const auto mp3Handle = MTEAudioFileMgr::createAudioFileWithPath(mp3, true);
    QVERIFY(mp3Handle);
    QCOMPARE(mp3Handle->dicMap().value(QStringLiteral("title")), QStringLiteral("TIT2"));
    const auto flacHandle = MTEAudioFileMgr::createAudioFileWithPath(flac, true);
    QVERIFY(flacHandle);
    QCOMPARE(flacHandle->eumFileType(), int(MTEAudioFile::FileTypeMPEGOrFLAC));
    QCOMPARE(flacHandle->dicMap().value(QStringLiteral("title")), QStringLiteral("TITLE"));
    QCOMPARE(flacHandle->sampleRate(), 44100);

    flacHandle->setTitle(QStringLiteral("renamed"));
    QVERIFY(flacHandle->saveNew(flac));
    QCOMPARE(MTEAudioFileMgr::createAudioFileWithPath(flac, true)->title(),
             QStringLiteral("renamed"));
}

void TestMTEAudioFile::picturesStayInTheFileUntilAskedFor() {
    const QString bigCover = path(QStringLiteral("big.png"));
    QVERIFY(SonoriaTest::makeMedia(bigCover, QStringLiteral("color=c=gray:s=320x320"),
                                   {"-vf", "noise=alls=100:allf=u", "-frames:v", "1"}));
    const MTEArtwork big{readAll(bigCover), QStringLiteral("image/png")};
    QVERIFY2(big.data.size() > 200 * 1024, qPrintable(QString::number(big.data.size())));

    for (const QString& extension :
         {QStringLiteral("mp3"), QStringLiteral("m4a"), QStringLiteral("flac")}) {
        const QString file = path(QStringLiteral("big.") + extension);
        QVERIFY(SonoriaTest::makeTone(file, 1.0));
        auto writer = MTEAudioFileMgr::createAudioFileWithPath(file, false);
        writer->setTitle(QStringLiteral("with art"));
        writer->setAlbumImg({big});
        QVERIFY(writer->saveNew(file));

        const auto handle = MTEAudioFileMgr::createAudioFileWithPath(file, true);
        QCOMPARE(handle->title(), QStringLiteral("with art"));
        QVERIFY(!handle->isArtworkLoaded());
        const auto copied = handle->copy();
        QVERIFY(!copied->isArtworkLoaded());
        QCOMPARE(handle->albumImg(), MTEArtworkList{big});
        QVERIFY(handle->isArtworkLoaded());
        // The copy made before fetches its own pictures.
        QVERIFY(!copied->isArtworkLoaded());
        QCOMPARE(
            copied->dicReadInfo().value(copied->dicMap().value("albumImg")).value<MTEArtworkList>(),
            MTEArtworkList{big});
    }

    // A file that lost its pictures after it was read answers with none rather than failing.
    const QString file = path(QStringLiteral("big.mp3"));
    const auto stale = MTEAudioFileMgr::createAudioFileWithPath(file, true);
    auto remover = MTEAudioFileMgr::createAudioFileWithPath(file, false);
    remover->setAlbumImg({});
    QVERIFY(remover->saveNew(file));
    QVERIFY(stale->albumImg().isEmpty());
    QVERIFY(!stale->dicReadInfo().contains(QStringLiteral("APIC")));
}

void TestMTEAudioFile::brokenFilesNeverCrash() {
    auto write = [this](const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly))
            return QString();
        file.write(bytes);
        return file.fileName();
    };
    QVERIFY(!MTEAudioFileMgr::createAudioFileWithPath(write("text.mp3", "just some text\n"), true));
    QVERIFY(!MTEAudioFileMgr::createAudioFileWithPath(write("empty.mp3", {}), true));
    QVERIFY(!MTEAudioFileMgr::createAudioFileWithPath(write("empty.flac", {}), false));
    QVERIFY(!MTEAudioFileMgr::createAudioFileWithPath(path("missing.mp3"), true));
    QVERIFY(!MTEAudioFileMgr::createAudioFileWithPath(m_dir.path(), true));

    // Cut real files short: a handle may come back, but reading and saving it stays safe.
    for (const QString& extension :
         {QStringLiteral("mp3"), QStringLiteral("m4a"), QStringLiteral("flac"),
          QStringLiteral("ogg"), QStringLiteral("wav")}) {
        const QString whole = path(QStringLiteral("whole.") + extension);
        QVERIFY(SonoriaTest::makeTone(whole, 1.0));
        auto writer = MTEAudioFileMgr::createAudioFileWithPath(whole, false);
        fillAllFields(*writer);
        QVERIFY(writer->saveNew(whole));
        const QByteArray bytes = readAll(whole);
        for (const qsizetype size : {qsizetype(16), qsizetype(700), bytes.size() / 2}) {
            const QString cut =
                write(QStringLiteral("cut%1.").arg(size) + extension, bytes.left(size));
            if (const auto handle = MTEAudioFileMgr::createAudioFileWithPath(cut, true)) {
                handle->albumImg();
                handle->dicReadInfo();
                handle->setTitle(QStringLiteral("x"));
                handle->saveNew(cut);
            }
        }
    }
}

void TestMTEAudioFile::readingNeverChangesTheFile() {
    for (const QString& extension : {QStringLiteral("mp3"), QStringLiteral("m4a"),
                                     QStringLiteral("flac"), QStringLiteral("ogg")}) {
        const QString file = path(QStringLiteral("untouched.") + extension);
        QVERIFY(SonoriaTest::makeTone(file, 1.0));
        auto writer = MTEAudioFileMgr::createAudioFileWithPath(file, false);
        fillAllFields(*writer);
        QVERIFY(writer->saveNew(file));
        const QByteArray before = SonoriaTest::fileHash(file);

        const auto handle = MTEAudioFileMgr::createAudioFileWithPath(file, true);
        QVERIFY(handle);
        handle->setTitle(QStringLiteral("edited in memory only"));
        handle->albumImg();
        handle->dicReadInfo();
        handle->copy()->albumImg();
        QVERIFY(MTEAudioFileMgr::createAudioFileWithPath(file, false));
        QCOMPARE(SonoriaTest::fileHash(file), before);
    }
}

SONORIA_TEST_MAIN(TestMTEAudioFile)
#include "tst_mteaudiofile.moc"
