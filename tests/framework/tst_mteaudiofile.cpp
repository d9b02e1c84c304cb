#include "framework/MTEAudioFileMgr.h"
#include "framework/MTETagCopy.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <thread>
#include <vector>

#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/tpropertymap.h>
#include <taglib/unsynchronizedlyricsframe.h>
#include <taglib/xiphcomment.h>

// Tag handles of every kind a conversion can produce: written, read back through fresh handles
// and through TagLib directly (as other players read them), duplicated and archived. A finished
// conversion copies tags across kinds through the generic names, so every kind must map all of
// them one to one.
namespace {

using Handle = std::shared_ptr<MTEAudioFile>;

Handle open(const QString& path, bool read = true) {
    return MTEAudioFileMgr::createAudioFileWithPath(path, read);
}

struct Field {
    const char* name; // generic name
    void (MTEAudioFile::*set)(const QString&);
    QString (MTEAudioFile::*get)() const;
    QString value;
};

const Field kFields[] = {
    {"title", &MTEAudioFile::setTitle, &MTEAudioFile::title, "Título — 東京"},
    {"artist", &MTEAudioFile::setArtist, &MTEAudioFile::artist, "The Artist"},
    {"albumArtist", &MTEAudioFile::setAlbumArtist, &MTEAudioFile::albumArtist, "Various"},
    {"composer", &MTEAudioFile::setComposer, &MTEAudioFile::composer, "Composer Ö"},
    {"album", &MTEAudioFile::setAlbum, &MTEAudioFile::album, "The Album"},
    {"date", &MTEAudioFile::setDate, &MTEAudioFile::date, "2021"},
    {"genre", &MTEAudioFile::setGenre, &MTEAudioFile::genre, "Jazz"},
    {"track", &MTEAudioFile::setTrack, &MTEAudioFile::track, "3/12"},
    {"copyright", &MTEAudioFile::setCopyright, &MTEAudioFile::copyright, "2021 Someone"},
    {"publisher", &MTEAudioFile::setPublisher, &MTEAudioFile::publisher, "Label Records"},
    {"comment", &MTEAudioFile::setComment, &MTEAudioFile::comment, "a comment"},
    {"lyric", &MTEAudioFile::setLyric, &MTEAudioFile::lyric, "La la la\nsecond line ♪"},
    {"grouping", &MTEAudioFile::setGrouping, &MTEAudioFile::grouping, "Live sets"},
};

QString taglibProperty(const QString& path, const char* name) {
    const TagLib::FileRef ref(QFile::encodeName(path).constData());
    return ref.isNull()
               ? QString()
               : QString::fromStdString(ref.file()->properties()[name].toString().to8Bit(true));
}

Handle roundTrip(const MTEAudioFile& handle) {
    SXCoder coder;
    handle.encodeWithCoder(coder);
    bool ok = false;
    const SXCoder restored = SXCoder::fromData(coder.toData(), &ok);
    return ok ? MTEAudioFile::decodeWithCoder(restored) : nullptr;
}

} // namespace

class TestMTEAudioFile : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    MTEArtworkList m_covers; // a PNG and a JPEG

    QString path(const QString& name) const { return m_dir.filePath(name); }

    // A tone carrying every field of kFields and both covers; empty when that failed.
    QString makeTagged(const QString& name, const QStringList& encoder = {}) {
        const QString file = path(name);
        const Handle writer =
            SonoriaTest::makeTone(file, 1.0, encoder) ? open(file, false) : nullptr;
        if (!writer)
            return {};
        for (const Field& field : kFields)
            ((*writer).*field.set)(field.value);
        writer->setAlbumImg(m_covers);
        QString error;
        if (!writer->saveNew(file, &error))
            qWarning("saving tags of %s failed: %s", qPrintable(file), qPrintable(error));
        return error.isEmpty() ? file : QString();
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        QVERIFY(SonoriaTest::makeMedia(path("c.png"), "color=c=red:s=32x32", {"-frames:v", "1"}));
        QVERIFY(SonoriaTest::makeMedia(path("c.jpg"), "color=c=blue:s=48x48", {"-frames:v", "1"}));
        m_covers = {{SonoriaTest::readFile(path("c.png")), "image/png"},
                    {SonoriaTest::readFile(path("c.jpg")), "image/jpeg"}};
        QVERIFY(m_covers[0].data.startsWith("\x89PNG") && m_covers[1].data.startsWith("\xFF\xD8"));
    }

    void writesReadsBackAndRemovesEveryField_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("fileType");
        QTest::addColumn<QString>("tagVersion");
        const auto row = [](const char* ext, const char* codec, int type, const char* version) {
            QTest::newRow(ext) << QString(ext) << QString(codec) << type << QString(version);
        };
        row("mp3", "libmp3lame", 0, "ID3 v2.3");
        row("m4a", "aac", 1, "MP4");
        row("flac", "flac", 0, "Vorbis Comment");
        row("ogg", "libvorbis", 2, "Vorbis Comment");
        row("opus", "libopus", 3, "Vorbis Comment");
        row("wav", "pcm_s16le", 5, "ID3 v2.3");
        row("aiff", "pcm_s16be", 6, "ID3 v2.3");
        row("wma", "wmav2", 7, "ASF");
        row("wv", "wavpack", 9, "APE v2"); // APE keeps one picture
    }

    void writesReadsBackAndRemovesEveryField() {
        QFETCH(QString, extension);
        QFETCH(QString, codec);
        const QString file = makeTagged(QStringLiteral("all.") + extension, {"-c:a", codec});
        QVERIFY(!file.isEmpty());
        const QByteArray saved = SonoriaTest::fileHash(file);

        const Handle reader = open(file);
        QVERIFY(reader);
        const Handle early = reader->copy();
        const MTEArtworkList pictures = extension == "wv" ? m_covers.mid(0, 1) : m_covers;
        QTEST(reader->eumFileType(), "fileType");
        QTEST(reader->strTagVersion(), "tagVersion");
        QVERIFY(reader->sampleRate() > 0 && reader->bitrate() > 0);
        // Pictures stay in the file until asked for, by each handle on its own.
        QVERIFY(!reader->isArtworkLoaded() && !early->isArtworkLoaded());
        QCOMPARE(reader->albumImg(), pictures);
        QVERIFY(reader->isArtworkLoaded() && !early->isArtworkLoaded());
        // Every value sits under the kind's own key, and every own key has a generic name.
        const QMap<QString, QVariant> info = reader->dicReadInfo();
        const QMap<QString, QString> map = reader->dicMap();
        QCOMPARE(map.size(), 14);
        for (const Field& field : kFields) {
            QCOMPARE(((*reader).*field.get)(), field.value);
            QCOMPARE(info.value(map.value(field.name)).toString(), field.value);
        }
        QCOMPARE(info.value(map.value("albumImg")).value<MTEArtworkList>(), pictures);
        for (const QString& key : info.keys())
            QVERIFY2(!map.keys(key).isEmpty(), qPrintable(key));
        QCOMPARE(early->dicReadInfo().value(map.value("albumImg")).value<MTEArtworkList>(),
                 pictures);
        // Other players reading through TagLib's common names see the same text.
        QCOMPARE(taglibProperty(file, "TITLE"), kFields[0].value);
        QCOMPARE(taglibProperty(file, "LYRICS"), kFields[11].value);
        // Reading, fetching pictures and editing in memory never change the file.
        reader->setTitle(QStringLiteral("edited in memory only"));
        QCOMPARE(reader->dicReadInfo().value(map.value("title")),
                 QStringLiteral("edited in memory only"));
        QCOMPARE(SonoriaTest::fileHash(file), saved);

        if (extension == "mp3") { // ID3v2.3 only, lyrics in one unnamed English USLT frame
            TagLib::MPEG::File mpeg(QFile::encodeName(file).constData());
            QVERIFY(mpeg.hasID3v2Tag() && !mpeg.hasID3v1Tag() && !mpeg.hasAPETag());
            QCOMPARE(mpeg.ID3v2Tag()->header()->majorVersion(), 3u);
            const TagLib::ID3v2::FrameListMap frames = mpeg.ID3v2Tag()->frameListMap();
            QCOMPARE(frames["USLT"].size(), 1u);
            auto* uslt =
                dynamic_cast<TagLib::ID3v2::UnsynchronizedLyricsFrame*>(frames["USLT"].front());
            QVERIFY(uslt && uslt->description().isEmpty());
            QCOMPARE(uslt->language(), TagLib::ByteVector("eng"));
            QCOMPARE(frames["APIC"].size(), 2u);
            QVERIFY(frames["TPUB"].size() == 1 && frames["COMM"].size() == 1);
        }

        // Only the fields held are touched: an empty title and picture list remove those two. A
        // handle read before answers with no pictures rather than failing.
        const Handle stale = open(file);
        const Handle editor = open(file, false);
        editor->setTitle(QString());
        editor->setAlbumImg({});
        QVERIFY(editor->saveNew(file));
        const Handle after = open(file);
        QVERIFY(after->title().isEmpty() && after->albumImg().isEmpty());
        QVERIFY(!after->dicReadInfo().contains(map.value("title")));
        QVERIFY(!after->dicReadInfo().contains(map.value("albumImg")));
        QCOMPARE(after->artist(), kFields[1].value);
        QVERIFY(stale->albumImg().isEmpty());
        if (extension == "flac")
            QVERIFY(
                TagLib::FLAC::File(QFile::encodeName(file).constData()).pictureList().isEmpty());
    }

    // An MP3 named .flac and a FLAC named .mp3 are read and written as what they are; a handle
    // never writes into a file of another kind.
    void kindComesFromTheContent() {
        const QString mp3 = path(QStringLiteral("really-mp3.flac"));
        const QString flac = path(QStringLiteral("really-flac.mp3"));
        QVERIFY(SonoriaTest::makeTone(mp3, 1.0, {"-c:a", "libmp3lame", "-f", "mp3"}));
        QVERIFY(SonoriaTest::makeTone(flac, 1.0, {"-c:a", "flac", "-f", "flac"}));
        const Handle mp3Handle = open(mp3);
        QCOMPARE(mp3Handle->dicMap().value("title"), QStringLiteral("TIT2"));
        const Handle handle = open(flac);
        QCOMPARE(handle->eumFileType(), int(MTEAudioFile::FileTypeMPEGOrFLAC));
        QCOMPARE(handle->dicMap().value("title"), QStringLiteral("TITLE"));
        handle->setTitle(QStringLiteral("renamed"));
        QVERIFY(handle->saveNew(flac));
        QCOMPARE(open(flac)->title(), QStringLiteral("renamed"));

        const QByteArray before = SonoriaTest::fileHash(flac);
        QString error;
        QVERIFY(!mp3Handle->saveNew(flac, &error) && !error.isEmpty());
        QVERIFY(!mp3Handle->saveNew(path(QStringLiteral("missing.mp3"))));
        QCOMPARE(SonoriaTest::fileHash(flac), before);
    }

    // Taggers on this desktop keep an MP3's grouping in TIT1, newer players in GRP1: either is
    // read (GRP1 first), and an edit is written to GRP1.
    void mp3GroupingFromEitherFrame() {
        const QString mp3 = path(QStringLiteral("grouping.mp3"));
        QVERIFY(SonoriaTest::makeTone(mp3, 0.5, {"-c:a", "libmp3lame"}));
        auto addFrame = [&](const char* id, const char* text) {
            TagLib::MPEG::File file(QFile::encodeName(mp3).constData());
            auto* frame = new TagLib::ID3v2::TextIdentificationFrame(id, TagLib::String::UTF8);
            frame->setText(text);
            file.ID3v2Tag(true)->addFrame(frame);
            return file.save(TagLib::MPEG::File::ID3v2);
        };
        QVERIFY(addFrame("TIT1", "Content group"));
        QCOMPARE(open(mp3)->grouping(), QStringLiteral("Content group"));
        QVERIFY(addFrame("GRP1", "Player group"));
        const Handle handle = open(mp3);
        QCOMPARE(handle->grouping(), QStringLiteral("Player group"));
        handle->setGrouping(QStringLiteral("Edited"));
        QVERIFY(handle->saveNew(mp3));
        TagLib::MPEG::File file(QFile::encodeName(mp3).constData());
        QCOMPARE(file.ID3v2Tag()->frameListMap()["GRP1"].front()->toString(),
                 TagLib::String("Edited"));
    }

    // Copies fetch pictures on their own threads and share no state with the original. An
    // archived handle comes back with its values and edits; pictures it never fetched stay in
    // the file, for the restored handle to fetch.
    void copiesAndArchivesKeepTheirOwnState() {
        const QString file = makeTagged(QStringLiteral("copied.m4a"));
        const Handle original = open(file);
        const Handle untouched = open(file);
        QVERIFY(original && untouched);
        std::vector<MTEArtworkList> seen(8);
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < seen.size(); ++i)
            threads.emplace_back(
                [&, i] { seen[i] = (i % 2 ? original->copy() : original)->albumImg(); });
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(seen, std::vector<MTEArtworkList>(seen.size(), m_covers));

        original->setStatus(3);
        const Handle copied = original->copy();
        QVERIFY(copied->status() == 3 && copied->dicReadInfo() == original->dicReadInfo());
        copied->setTitle(QStringLiteral("copy only"));
        copied->setAlbumImg({});
        copied->setStatus(1);
        original->setArtist(QStringLiteral("original only"));
        QVERIFY(original->title() == kFields[0].value && original->albumImg() == m_covers &&
                original->status() == 3);
        QVERIFY(copied->artist() == kFields[1].value && copied->albumImg().isEmpty());

        original->setLyric(QStringLiteral("edited"));
        original->setStatus(2);
        const MTEArtworkList replaced{{"\x89PNG not really", "image/png"}};
        original->setAlbumImg(replaced);
        const Handle restored = roundTrip(*original);
        QVERIFY(restored && restored->filePath() == file && restored->status() == 2 &&
                restored->eumFileType() == MTEAudioFile::FileTypeMP4);
        QVERIFY(restored->strTagVersion() == original->strTagVersion() &&
                restored->bitrate() == original->bitrate() &&
                restored->sampleRate() == original->sampleRate());
        QVERIFY(restored->dicMap() == original->dicMap() &&
                restored->dicReadInfo() == original->dicReadInfo());
        QCOMPARE(restored->albumImg(), replaced);
        const Handle lazy = roundTrip(*untouched);
        QVERIFY(lazy && !lazy->isArtworkLoaded());
        QCOMPARE(lazy->albumImg(), m_covers);
        // A restored handle still writes its file kind.
        QVERIFY(restored->saveNew(file));
        QCOMPARE(open(file)->lyric(), QStringLiteral("edited"));
        QCOMPARE(open(file)->artist(), QStringLiteral("original only"));
        QVERIFY(!MTEAudioFile::decodeWithCoder(SXCoder(false)) &&
                !MTEAudioFile::decodeWithCoder(SXCoder()));
    }

    // A value with a NUL inside ("before\0after") keeps what follows the NUL, as a space, in
    // the handle (the panel, --info) and in a converted file's tags; ffmpeg would cut it there.
    void nulInsideAValueKeepsWhatFollows() {
        const QString source = path(QStringLiteral("nul.flac"));
        QVERIFY(SonoriaTest::makeTone(source, 0.5));
        {
            TagLib::FLAC::File flac(QFile::encodeName(source).constData());
            const TagLib::String value(std::string("before\0after", 12), TagLib::String::UTF8);
            flac.xiphComment()->addField("TITLE", value);
            flac.xiphComment()->addField("DISCNUMBER", value);
            QVERIFY(flac.save());
        }
        const Handle read = open(source);
        QVERIFY(read);
        QCOMPARE(read->title(), QStringLiteral("before after"));

        const QString output = path(QStringLiteral("nul.mp3"));
        QVERIFY(SonoriaTest::makeTone(output, 0.5));
        QVERIFY(MTETagCopy::copy(read.get(), *open(output, false), output));
        QCOMPARE(taglibProperty(output, "TITLE"), QStringLiteral("before after"));
        QCOMPARE(open(output)->title(), QStringLiteral("before after"));
        QVERIFY(taglibProperty(output, "DISCNUMBER").contains(QStringLiteral("after")));
    }

    void brokenFilesNeverCrash() {
        QVERIFY(SonoriaTest::writeFile(path("text.mp3"), "just some text\n"));
        QVERIFY(SonoriaTest::writeFile(path("empty.mp3"), {}));
        QVERIFY(SonoriaTest::writeFile(path("empty.flac"), {}));
        for (const QString& bad : {path("text.mp3"), path("empty.mp3"), path("empty.flac"),
                                   path("missing.mp3"), m_dir.path()})
            QVERIFY2(!open(bad) && !open(bad, false), qPrintable(bad));

        // Cut real files short: a handle may come back, but reading and saving it stays safe.
        for (const char* extension : {"mp3", "m4a", "flac", "ogg", "wav"}) {
            const QString whole = makeTagged(QStringLiteral("whole.") + QLatin1String(extension));
            const QByteArray bytes = SonoriaTest::readFile(whole);
            QVERIFY(!bytes.isEmpty());
            for (const qsizetype size : {qsizetype(16), qsizetype(700), bytes.size() / 2}) {
                const QString cut = path(QStringLiteral("cut%1.%2").arg(size).arg(extension));
                QVERIFY(SonoriaTest::writeFile(cut, bytes.left(size)));
                if (const Handle handle = open(cut)) {
                    handle->albumImg();
                    handle->setTitle(QStringLiteral("x"));
                    handle->saveNew(cut);
                }
            }
        }
    }
};

SONORIA_TEST_MAIN(TestMTEAudioFile)
#include "tst_mteaudiofile.moc"
