#include "engine/LSMediaLoader.h"
#include "framework/MTEAudioFile.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>

namespace {

// Records every callback as text ("start 1", "progress 0.5", "complete") and the threads they
// came on; the test reads the record once the completion has been released to it.
class RecordingListener : public LSMediaLoaderListener {
public:
    explicit RecordingListener(const SXMusicInfoList& batch)
        : m_batch(batch) {}

    void mediaLoaderStartLoadMusic(LSMediaLoader* loader, const SXMusicInfoPtr& item) override {
        const int index = int(m_batch.indexOf(item));
        record(QStringLiteral("start %1").arg(index));
        if (index == cancelAtItem)
            loader->cancel();
    }
    void mediaLoaderDidReceiveProgress(LSMediaLoader*, double value) override {
        record(QStringLiteral("progress %1").arg(value));
    }
    void mediaLoaderDidCompleteLoadMedias(LSMediaLoader*,
                                          const std::optional<SXMusicInfoList>& list,
                                          const std::optional<QSet<int>>& failedIndex) override {
        medias = list;
        failed = failedIndex;
        record(QStringLiteral("complete"));
        m_completed.release();
    }
    bool waitForCompletion() { return m_completed.tryAcquire(1, 60000); }

    int cancelAtItem = -1;
    QStringList events;
    QSet<QThread*> threads;
    std::optional<SXMusicInfoList> medias;
    std::optional<QSet<int>> failed;

private:
    void record(const QString& event) {
        events << event;
        threads.insert(QThread::currentThread());
    }

    SXMusicInfoList m_batch;
    QSemaphore m_completed;
};

// Items as the workspace makes them for added paths.
SXMusicInfoList makeItems(const QStringList& paths) {
    SXMusicInfoList items;
    for (const QString& path : paths)
        items << SXMusicInfo::newForSource(path, QStringLiteral("MP3"));
    return items;
}

} // namespace

class TestLSMediaLoader : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    const QString m_mp3 = path("tone.mp3");
    const QString m_flac = path("tone.flac");
    const QString m_text = path("letter.mp3");
    const QString m_ac3 = path("surround.ac3");
    const QString m_mka = path("tone.mka");

    QString path(const char* name) const { return m_dir.filePath(QString::fromUtf8(name)); }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        QVERIFY(SonoriaTest::makeTone(m_mp3, 2, {"-b:a", "128k"}));
        QVERIFY(SonoriaTest::makeTone(m_flac, 1, {"-ac", "2"}));
        QVERIFY(SonoriaTest::writeFile(m_text, "Not a sound, only words.\n"));
        QVERIFY(SonoriaTest::makeTone(m_ac3, 1, {"-ac", "6"}));
        QVERIFY(SonoriaTest::makeTone(m_mka, 1, {"-c:a", "libvorbis"}));
    }

    // Unreadable items (text named .mp3, an item without a media record, a missing file; what
    // else the probe refuses is its own test's) end in the failure set, progress still covers them
    // and the batch comes back whole. Good items carry the probe's values, size, date and tag
    // handle; readable media whose tags cannot be read (AC-3, Matroska) loads all the same, without
    // a tag handle. The caller lets go of the loader at once: the worker keeps it alive while the
    // batch runs.
    void loadsBatchAndMarksFailures() {
        const QDateTime stamp(QDate(2021, 3, 7), QTime(14, 5, 9));
        QCOMPARE(
            SonoriaTest::run(QStringLiteral("touch"), {"-d", stamp.toString(Qt::ISODate), m_mp3}),
            0);

        SXMusicInfoList batch = makeItems({m_mp3, m_text, m_flac, m_ac3, m_mka, path("gone.mp3")});
        batch.insert(5, std::make_shared<SXMusicInfo>());
        RecordingListener listener(batch);
        LogCapture log;
        std::weak_ptr<LSMediaLoader> watcher;
        {
            const LSMediaLoaderPtr loader = LSMediaLoader::create();
            watcher = loader;
            loader->setListener(&listener);
            loader->loadMediasWithMediaArray(batch);
        }
        QVERIFY(listener.waitForCompletion());
        QTRY_VERIFY_WITH_TIMEOUT(watcher.expired(), 10000);

        QStringList expected;
        for (int i = 0; i < 7; ++i)
            expected << QStringLiteral("start %1").arg(i)
                     << QStringLiteral("progress %1").arg((i + 1) / 7.0);
        QCOMPARE(listener.events, expected << "complete");
        QVERIFY(!listener.threads.contains(QThread::currentThread()));
        QCOMPARE(listener.medias, std::optional<SXMusicInfoList>(batch));
        QCOMPARE(listener.failed, std::optional<QSet<int>>(QSet<int>{1, 5, 6}));
        QCOMPARE(log.lines().filter(QRegularExpression("^(load |Failed:index)")),
                 QStringList({"Failed:index:1", "load " + m_ac3 + " failed!",
                              "load " + m_mka + " failed!", "Failed:index:5", "Failed:index:6"}));

        const LSMediaPtr good = batch[0]->mediaInfo();
        QVERIFY(good->audioBitrate() == 128000 && good->audioSamplerate() == 44100 &&
                good->audioChannels() == 1 && good->dFileSize() == QFileInfo(m_mp3).size());
        // The locale's own short format, never a 24-hour clock with a marker ("14:5 PM").
        QCOMPARE(good->strLastModified(), QLocale().toString(stamp, QLocale::ShortFormat));
        QVERIFY(batch[0]->metHandler() && batch[2]->metHandler());
        QCOMPARE(batch[2]->mediaInfo()->audioChannels(), 2);
        QCOMPARE(batch[3]->mediaInfo()->audioChannels(), 6);
        for (const SXMusicInfoPtr& untagged : batch.mid(3, 2))
            QVERIFY(!untagged->metHandler() && untagged->mediaInfo()->dFileSize() > 0 &&
                    !untagged->mediaInfo()->strLastModified().isEmpty());

        const LSMediaPtr bad = batch[1]->mediaInfo();
        QVERIFY(!batch[1]->metHandler() && bad->dFileSize() == 0 &&
                bad->strLastModified().isEmpty() && bad->audioChannels() == 0);
    }

    // Nothing to probe: the answer comes before the call returns, on the caller's thread.
    // Cancelled before it starts, not one item is touched.
    void emptyOrCancelledBatchCompletesAtOnce() {
        RecordingListener listener({});
        const LSMediaLoaderPtr loader = LSMediaLoader::create();
        loader->setListener(&listener);
        loader->loadMediasWithMediaArray({});
        QCOMPARE(listener.events, QStringList{"complete"});
        QCOMPARE(listener.threads, QSet<QThread*>{QThread::currentThread()});
        QVERIFY(!listener.medias.has_value() && !listener.failed.has_value());
        QVERIFY(loader->waitUntilDone(0) && !loader->bCanceled());

        // Without a listener there is simply nobody to tell.
        const LSMediaLoaderPtr silent = LSMediaLoader::create();
        silent->loadMediasWithMediaArray(makeItems({m_mp3, m_text}));
        QVERIFY(silent->waitUntilDone(60000));

        const SXMusicInfoList second = makeItems({m_mp3});
        RecordingListener idle(second);
        const LSMediaLoaderPtr early = LSMediaLoader::create();
        early->setListener(&idle);
        early->cancel();
        early->loadMediasWithMediaArray(second);
        QVERIFY(idle.waitForCompletion());
        QCOMPARE(idle.events, QStringList{"complete"});
        QVERIFY(!idle.medias.has_value());
        QCOMPARE(second[0]->mediaInfo()->audioSamplerate(), 0.0);
    }

    // A cancel while item 2 is being probed: nothing more is reported or read, and the batch is
    // dropped as a whole.
    void cancelStopsBetweenItems() {
        const SXMusicInfoList batch = makeItems({m_mp3, m_flac, m_mp3});
        RecordingListener listener(batch);
        listener.cancelAtItem = 1;
        const LSMediaLoaderPtr loader = LSMediaLoader::create();
        loader->setListener(&listener);
        loader->loadMediasWithMediaArray(batch);
        QVERIFY(listener.waitForCompletion() && loader->waitUntilDone(60000));
        QCOMPARE(listener.events,
                 QStringList({"start 0", "progress 0.333333", "start 1", "complete"}));
        QVERIFY(!listener.medias.has_value() && !listener.failed.has_value());
        QVERIFY(loader->bCanceled() && batch[0]->metHandler() && !batch[1]->metHandler());
        QVERIFY(batch[1]->mediaInfo()->dFileSize() == 0 &&
                batch[2]->mediaInfo()->audioSamplerate() == 0);
    }
};

SONORIA_TEST_MAIN(TestLSMediaLoader)
#include "tst_lsmedialoader.moc"
