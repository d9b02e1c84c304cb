#include "Media/Framework/MTEAudioFileMgr.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <thread>
#include <vector>

// Handles travel: their values are copied into handles of other kinds after a conversion,
// duplicated for other containers and archived for drag and drop.
class TestMTEAudioFileCopy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void copiesTagsAcrossKindsThroughGenericNames_data();
    void copiesTagsAcrossKindsThroughGenericNames();
    void copiesAreIndependent();
    void archiveKeepsValuesAndPictures();
    void savingIntoAnotherKindIsRefused();
    void concurrentPictureFetchesAgree();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }
    QString makeTaggedSource(const QString& name);

    QTemporaryDir m_dir;
    MTEArtwork m_cover;
};

namespace {

const QStringList kTextFields{"title", "artist", "albumArtist", "composer",  "album",   "date",
                              "genre", "track",  "copyright",   "publisher", "comment", "lyric"};

QString generic(const MTEAudioFile& handle, const QString& name) {
    return handle.readInfoValue(handle.dicMap().value(name)).toString();
}

// What a finished conversion does with the source's tags: own key -> generic name (the last
// that maps to it) -> the destination's own key.
void copyTags(const MTEAudioFile& source, MTEAudioFile& destination) {
    const QMap<QString, QVariant> info = source.dicReadInfo();
    const QMap<QString, QString> sourceMap = source.dicMap();
    const QMap<QString, QString> destinationMap = destination.dicMap();
    for (auto it = info.cbegin(); it != info.cend(); ++it) {
        const QStringList names = sourceMap.keys(it.key());
        if (names.isEmpty())
            continue;
        const QString key = destinationMap.value(names.last());
        if (!key.isEmpty())
            destination.setReadInfoValue(key, it.value());
    }
}

} // namespace

void TestMTEAudioFileCopy::initTestCase() {
    QVERIFY(m_dir.isValid());
    const QString cover = path(QStringLiteral("cover.jpg"));
    QVERIFY(SonoriaTest::makeMedia(cover, QStringLiteral("testsrc=s=64x64"), {"-frames:v", "1"}));
    QFile file(cover);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_cover = {file.readAll(), QStringLiteral("image/jpeg")};
}

QString TestMTEAudioFileCopy::makeTaggedSource(const QString& name) {
    const QString file = path(name);
    if (!SonoriaTest::makeTone(file, 1.0))
        return {};
    auto handle = MTEAudioFileMgr::createAudioFileWithPath(file, false);
    if (!handle)
        return {};
    for (const QString& field : kTextFields)
        handle->setReadInfoValue(handle->dicMap().value(field), field + QStringLiteral(" ✓"));
    handle->setTrack(QStringLiteral("7"));
    handle->setDate(QStringLiteral("1999"));
    handle->setAlbumImg({m_cover});
    return handle->saveNew(file) ? file : QString();
}

void TestMTEAudioFileCopy::copiesTagsAcrossKindsThroughGenericNames_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("mp3 to flac") << "mp3"
                                 << "flac";
    QTest::newRow("flac to mp3") << "flac"
                                 << "mp3";
    QTest::newRow("m4a to ogg") << "m4a"
                                << "ogg";
    QTest::newRow("ogg to m4a") << "ogg"
                                << "m4a";
    QTest::newRow("opus to wav") << "opus"
                                 << "wav";
    QTest::newRow("aiff to wma") << "aiff"
                                 << "wma";
    QTest::newRow("wma to opus") << "wma"
                                 << "opus";
}

void TestMTEAudioFileCopy::copiesTagsAcrossKindsThroughGenericNames() {
    QFETCH(QString, from);
    QFETCH(QString, to);
    const QString sourcePath = makeTaggedSource(QStringLiteral("source.") + from);
    QVERIFY(!sourcePath.isEmpty());
    const QByteArray sourceHash = SonoriaTest::fileHash(sourcePath);
    const QString outputPath = path(QStringLiteral("output.") + to);
    QVERIFY(SonoriaTest::makeTone(outputPath, 1.0));

    const auto source = MTEAudioFileMgr::createAudioFileWithPath(sourcePath, true);
    QVERIFY(source);
    source->setComposer(QStringLiteral("edited before converting"));
    auto destination = MTEAudioFileMgr::createAudioFileWithPath(outputPath, false);
    QVERIFY(destination);
    destination->setStatus(1);
    copyTags(*source, *destination);
    QString error;
    QVERIFY2(destination->saveNew(outputPath, &error), qPrintable(error));

    const auto result = MTEAudioFileMgr::createAudioFileWithPath(outputPath, true);
    QVERIFY(result);
    for (const QString& field : kTextFields) {
        const QString expected = field == QLatin1String("composer") ? source->composer()
                                 : field == QLatin1String("track")  ? QStringLiteral("7")
                                 : field == QLatin1String("date")   ? QStringLiteral("1999")
                                                                  : field + QStringLiteral(" ✓");
        QCOMPARE(generic(*result, field), expected);
    }
    QCOMPARE(result->albumImg(), MTEArtworkList{m_cover});
    QCOMPARE(SonoriaTest::fileHash(sourcePath), sourceHash);
}

void TestMTEAudioFileCopy::copiesAreIndependent() {
    const auto original =
        MTEAudioFileMgr::createAudioFileWithPath(makeTaggedSource("independent.mp3"), true);
    QVERIFY(original);
    original->setStatus(3);
    const auto copied = original->copy();
    QCOMPARE(copied->status(), 3);
    QCOMPARE(copied->filePath(), original->filePath());
    QCOMPARE(copied->dicReadInfo(), original->dicReadInfo());

    copied->setTitle(QStringLiteral("copy only"));
    copied->setAlbumImg({});
    copied->setStatus(1);
    QCOMPARE(original->title(), QStringLiteral("title ✓"));
    QCOMPARE(original->albumImg(), MTEArtworkList{m_cover});
    QCOMPARE(original->status(), 3);

    original->setArtist(QStringLiteral("original only"));
    QCOMPARE(copied->artist(), QStringLiteral("artist ✓"));
    QVERIFY(copied->albumImg().isEmpty());
}

void TestMTEAudioFileCopy::archiveKeepsValuesAndPictures() {
    const QString file = makeTaggedSource(QStringLiteral("archived.m4a"));
    const auto fetched = MTEAudioFileMgr::createAudioFileWithPath(file, true);
    const auto untouched = MTEAudioFileMgr::createAudioFileWithPath(file, true);
    QVERIFY(fetched && untouched);
    fetched->setLyric(QStringLiteral("edited"));
    fetched->setStatus(2);
    const MTEArtworkList replaced{{QByteArray("\x89PNG not really"), QStringLiteral("image/png")}};
    fetched->setAlbumImg(replaced);

    auto roundTrip = [](const MTEAudioFile& handle) {
        SXCoder coder;
        handle.encodeWithCoder(coder);
        bool ok = false;
        const SXCoder restored = SXCoder::fromData(coder.toData(), &ok);
        return ok ? MTEAudioFile::decodeWithCoder(restored) : nullptr;
    };
    const auto restored = roundTrip(*fetched);
    QVERIFY(restored);
    QCOMPARE(restored->filePath(), file);
    QCOMPARE(restored->eumFileType(), int(MTEAudioFile::FileTypeMP4));
    QCOMPARE(restored->status(), 2);
    QCOMPARE(restored->strTagVersion(), fetched->strTagVersion());
    QCOMPARE(restored->bitrate(), fetched->bitrate());
    QCOMPARE(restored->sampleRate(), fetched->sampleRate());
    QCOMPARE(restored->dicMap(), fetched->dicMap());
    QCOMPARE(restored->dicReadInfo(), fetched->dicReadInfo());
    QCOMPARE(restored->albumImg(), replaced);

    // Pictures never fetched stay in the file and are fetched by the restored handle.
    const auto lazy = roundTrip(*untouched);
    QVERIFY(lazy);
    QVERIFY(!lazy->isArtworkLoaded());
    QCOMPARE(lazy->albumImg(), MTEArtworkList{m_cover});

    // A restored handle still writes its file kind.
    const QString output = path(QStringLiteral("archived-out.m4a"));
    QVERIFY(SonoriaTest::makeTone(output, 1.0));
    QVERIFY(restored->saveNew(output));
    QCOMPARE(MTEAudioFileMgr::createAudioFileWithPath(output, true)->lyric(),
             QStringLiteral("edited"));

    QVERIFY(!MTEAudioFile::decodeWithCoder(SXCoder(false)));
    QVERIFY(!MTEAudioFile::decodeWithCoder(SXCoder()));
}

void TestMTEAudioFileCopy::savingIntoAnotherKindIsRefused() {
    const auto mp3 = MTEAudioFileMgr::createAudioFileWithPath(makeTaggedSource("refuse.mp3"), true);
    QVERIFY(mp3);
    const QString flac = path(QStringLiteral("refuse.flac"));
    QVERIFY(SonoriaTest::makeTone(flac, 1.0));
    const QByteArray before = SonoriaTest::fileHash(flac);
    QString error;
    QVERIFY(!mp3->saveNew(flac, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!mp3->saveNew(path(QStringLiteral("missing.mp3")), &error));
    QCOMPARE(SonoriaTest::fileHash(flac), before);
}

void TestMTEAudioFileCopy::concurrentPictureFetchesAgree() {
    const auto handle =
        MTEAudioFileMgr::createAudioFileWithPath(makeTaggedSource("threads.flac"), true);
    QVERIFY(handle);
    std::vector<MTEArtworkList> seen(8);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < seen.size(); ++i)
        threads.emplace_back([&, i] {
            const auto own = i % 2 ? handle->copy() : handle;
            seen[i] = own->albumImg();
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const MTEArtworkList& images : seen)
        QCOMPARE(images, MTEArtworkList{m_cover});
}

SONORIA_TEST_MAIN(TestMTEAudioFileCopy)
#include "tst_mteaudiofilecopy.moc"
