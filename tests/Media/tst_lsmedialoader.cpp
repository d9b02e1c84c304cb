#include "Media/Framework/MTEAudioFile.h"
#include "Media/LSMediaLoader.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>

namespace {

// One callback as the delegate saw it.
struct Event {
    enum Kind { Start, Progress, Complete } kind;
    int item = -1;       // Start: index of the item in the batch
    double progress = 0; // Progress
    bool operator==(const Event& other) const {
        return kind == other.kind && item == other.item && qFuzzyCompare(progress, other.progress);
    }
};

Event start(int item) {
    return {Event::Start, item, 0};
}
Event progress(double value) {
    return {Event::Progress, -1, value};
}
Event complete() {
    return {Event::Complete, -1, 0};
}

// Records every callback and the threads they came on; the test reads the record once the
// completion has been released to it.
class RecordingDelegate : public LSMediaLoaderDelegate {
public:
    explicit RecordingDelegate(const SXMusicInfoList& batch)
        : m_batch(batch) {}

    void mediaLoaderStartLoadMusic(LSMediaLoader* loader, const SXMusicInfoPtr& item) override {
        const int index = int(m_batch.indexOf(item));
        record(start(index));
        if (index == cancelAtItem)
            loader->cancel();
    }
    void mediaLoaderDidReceiveProgress(LSMediaLoader*, double value) override {
        record(progress(value));
    }
    void mediaLoaderDidCompleteLoadMedias(LSMediaLoader*,
                                          const std::optional<SXMusicInfoList>& list,
                                          const std::optional<QSet<int>>& failedIndex) override {
        medias = list;
        failed = failedIndex;
        record(complete());
        m_completed.release();
    }
    bool waitForCompletion() { return m_completed.tryAcquire(1, 60000); }

    int cancelAtItem = -1;
    QList<Event> events;
    QSet<QThread*> threads;
    std::optional<SXMusicInfoList> medias;
    std::optional<QSet<int>> failed;

private:
    void record(const Event& event) {
        events << event;
        threads.insert(QThread::currentThread());
    }

    SXMusicInfoList m_batch;
    QSemaphore m_completed;
};

// An item as the workspace makes one for an added path.
SXMusicInfoPtr makeItem(const QString& path) {
    auto media = std::make_shared<LSMedia>();
    media->setFilePath(path);
    media->setStrOutFileName(QFileInfo(path).completeBaseName());
    auto item = std::make_shared<SXMusicInfo>();
    item->setStrMusicType(QStringLiteral("MP3"));
    item->setMediaInfo(media);
    item->setStrFilePath(path);
    return item;
}

SXMusicInfoList makeItems(const QStringList& paths) {
    SXMusicInfoList items;
    for (const QString& path : paths)
        items << makeItem(path);
    return items;
}

} // namespace

class TestLSMediaLoader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        m_mp3 = path("tone.mp3");
        QVERIFY(SonoriaTest::makeTone(m_mp3, 2, {QStringLiteral("-b:a"), QStringLiteral("128k")}));
        m_flac = path("tone.flac");
        QVERIFY(SonoriaTest::makeTone(m_flac, 1, {QStringLiteral("-ac"), QStringLiteral("2")}));
        m_text = path("letter.mp3");
        QVERIFY(SonoriaTest::writeFile(m_text, "Not a sound, only words.\n"));
    }

    // The middle item fails: progress still covers it, the batch comes back whole with its index
    // marked, and the good items carry the probe's values, size, date and tag handle.
    void loadsBatchAndMarksFailures() {
        const QDateTime stamp(QDate(2021, 3, 7), QTime(14, 5, 9));
        QFile mp3(m_mp3);
        QVERIFY(mp3.open(QIODevice::ReadWrite));
        QVERIFY(mp3.setFileTime(stamp, QFileDevice::FileModificationTime));
        mp3.close();

        const SXMusicInfoList batch = makeItems({m_mp3, m_text, m_flac});
        RecordingDelegate delegate(batch);
        LogCapture log;
        const LSMediaLoaderPtr loader = LSMediaLoader::create();
        loader->setDelegate(&delegate);
        QCOMPARE(loader->delegate(), &delegate);
        loader->loadMediasWithMediaArray(batch);
        QVERIFY(delegate.waitForCompletion());
        QVERIFY(loader->waitUntilDone(60000));

        const QList<Event> expected{start(0), progress(1.0 / 3), start(1),  progress(2.0 / 3),
                                    start(2), progress(1.0),     complete()};
        QCOMPARE(delegate.events, expected);
        QVERIFY(!delegate.threads.contains(QThread::currentThread()));
        QCOMPARE(delegate.medias, std::optional<SXMusicInfoList>(batch));
        QCOMPARE(delegate.failed, std::optional<QSet<int>>(QSet<int>{1}));
        QCOMPARE(log.count(QStringLiteral("Failed:index:1")), 1);
        QVERIFY(!log.contains(QStringLiteral("Failed:index:0")));
        QVERIFY(!loader->bCanceled());

        const LSMediaPtr good = batch[0]->mediaInfo();
        QCOMPARE(good->audioBitrate(), 128000.0);
        QCOMPARE(good->dAOBitrate(), 128.0);
        QCOMPARE(good->dAOSamplerate(), 44100.0);
        QCOMPARE(good->iAOChanels(), 1);
        QCOMPARE(good->eumMediaType(), int(HVMediaTypeAudio));
        QCOMPARE(good->dFileSize(), double(QFileInfo(m_mp3).size()));
        QVERIFY2(good->strLastModified().startsWith(QStringLiteral("7/3/21 14:5")),
                 qPrintable(good->strLastModified()));
        QCOMPARE(good->strLastModified(),
                 QLocale::system().toString(stamp, QStringLiteral("d/M/yy H:m a")));
        QVERIFY(batch[0]->metHandler());
        QCOMPARE(batch[2]->mediaInfo()->iAOChanels(), 2);
        QVERIFY(batch[2]->metHandler());

        const LSMediaPtr bad = batch[1]->mediaInfo();
        QVERIFY(!batch[1]->metHandler());
        QCOMPARE(bad->dFileSize(), 0.0);
        QVERIFY(bad->strLastModified().isEmpty());
        QCOMPARE(bad->iAOChanels(), 0);
    }

    // Nothing to probe: the answer comes before the call returns, on the caller's thread.
    void emptyBatchCompletesAtOnce() {
        RecordingDelegate delegate({});
        const LSMediaLoaderPtr loader = LSMediaLoader::create();
        loader->setDelegate(&delegate);
        loader->loadMediasWithMediaArray({});
        QCOMPARE(delegate.events, QList<Event>{complete()});
        QCOMPARE(delegate.threads, QSet<QThread*>{QThread::currentThread()});
        QVERIFY(!delegate.medias.has_value());
        QVERIFY(!delegate.failed.has_value());
        QVERIFY(loader->waitUntilDone(0));

        // Without a delegate there is simply nobody to tell.
        const LSMediaLoaderPtr silent = LSMediaLoader::create();
        silent->loadMediasWithMediaArray(makeItems({m_mp3, m_text}));
        QVERIFY(silent->waitUntilDone(60000));
    }

    // A cancel while item 2 is being probed: nothing more is reported or read, and the batch is
    // dropped as a whole.
    void cancelStopsBetweenItems() {
        const SXMusicInfoList batch = makeItems({m_mp3, m_flac, m_mp3});
        RecordingDelegate delegate(batch);
        delegate.cancelAtItem = 1;
        const LSMediaLoaderPtr loader = LSMediaLoader::create();
        loader->setDelegate(&delegate);
        loader->loadMediasWithMediaArray(batch);
        QVERIFY(delegate.waitForCompletion());
        QVERIFY(loader->waitUntilDone(60000));

        const QList<Event> expected{start(0), progress(1.0 / 3), start(1), complete()};
        QCOMPARE(delegate.events, expected);
        QVERIFY(!delegate.medias.has_value());
        QVERIFY(!delegate.failed.has_value());
        QVERIFY(loader->bCanceled());
        QVERIFY(batch[0]->metHandler());
        QVERIFY(!batch[1]->metHandler());
        QCOMPARE(batch[1]->mediaInfo()->iAOChanels(), 0);
        QCOMPARE(batch[2]->mediaInfo()->audioSamplerate(), 0.0);

        // Cancelled before it starts: not one item is touched.
        const SXMusicInfoList second = makeItems({m_mp3});
        RecordingDelegate idle(second);
        const LSMediaLoaderPtr early = LSMediaLoader::create();
        early->setDelegate(&idle);
        early->cancel();
        early->loadMediasWithMediaArray(second);
        QVERIFY(idle.waitForCompletion());
        QCOMPARE(idle.events, QList<Event>{complete()});
        QVERIFY(!idle.medias.has_value());
        QCOMPARE(second[0]->mediaInfo()->audioSamplerate(), 0.0);
    }

    // Readable media whose tags cannot be read is loaded all the same, without a tag handle.
    // The caller lets go of the loader at once: the worker keeps it alive while the batch runs.
    void loadsMediaWithoutReadableTags() {
        const QString ac3 = path("surround.ac3");
        QVERIFY(SonoriaTest::makeTone(ac3, 1, {QStringLiteral("-ac"), QStringLiteral("6")}));
        const QString mka = path("tone.mka");
        QVERIFY(
            SonoriaTest::makeTone(mka, 1, {QStringLiteral("-c:a"), QStringLiteral("libvorbis")}));
        const SXMusicInfoList batch = makeItems({ac3, mka});
        RecordingDelegate delegate(batch);
        LogCapture log;
        std::weak_ptr<LSMediaLoader> watcher;
        {
            const LSMediaLoaderPtr loader = LSMediaLoader::create();
            watcher = loader;
            loader->setDelegate(&delegate);
            loader->loadMediasWithMediaArray(batch);
        }
        QVERIFY(delegate.waitForCompletion());
        QTRY_VERIFY_WITH_TIMEOUT(watcher.expired(), 10000);

        QCOMPARE(delegate.failed, std::optional<QSet<int>>(QSet<int>{}));
        QCOMPARE(log.count(QStringLiteral("load %1 failed!").arg(ac3)), 1);
        QCOMPARE(log.count(QStringLiteral("load %1 failed!").arg(mka)), 1);
        QVERIFY(!log.lines().join(QLatin1Char('\n')).contains(QStringLiteral("Failed:index")));
        for (const SXMusicInfoPtr& item : batch) {
            QVERIFY(!item->metHandler());
            QVERIFY(item->mediaInfo()->dFileSize() > 0);
            QVERIFY(!item->mediaInfo()->strLastModified().isEmpty());
        }
        QCOMPARE(batch[0]->mediaInfo()->iAOChanels(), 6);
    }

    // Every kind of unreadable input ends in the failure set; the batch goes on to the end.
    // (Which file contents the probe rejects is the probe's own test.)
    void badInputsNeverStopTheBatch() {
        const QString empty = path("empty.mp3");
        QVERIFY(SonoriaTest::writeFile(empty, {}));
        const QString folder = path("album.flac");
        QVERIFY(QDir().mkpath(folder));

        SXMusicInfoList batch = makeItems({m_text, empty, folder, path("gone.mp3"), m_flac});
        batch.insert(1, std::make_shared<SXMusicInfo>()); // an item without a media record
        RecordingDelegate delegate(batch);
        const LSMediaLoaderPtr loader = LSMediaLoader::create();
        loader->setDelegate(&delegate);
        loader->loadMediasWithMediaArray(batch);
        QVERIFY(delegate.waitForCompletion());
        QCOMPARE(delegate.failed, std::optional<QSet<int>>(QSet<int>{0, 1, 2, 3, 4}));
        QCOMPARE(delegate.events.count(), 2 * batch.size() + 1);
        QVERIFY(batch.last()->metHandler());
    }

private:
    QString path(const char* name) const { return m_dir.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_dir;
    QString m_mp3;
    QString m_flac;
    QString m_text;
};

SONORIA_TEST_MAIN(TestLSMediaLoader)
#include "tst_lsmedialoader.moc"
