#include "ConvertTestSupport.h"

#include "engine/ConvertEngineChoice.h"
#include "engine/TranscodeWorkerPool.h"
#include "support/TestSupport.h"

#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <sys/stat.h>

using namespace ConvertTest;

namespace {
// A source that arrives in real time through a named pipe, so that its conversion runs long
// enough to be disturbed.
struct RealtimeSource {
    QString path;
    QProcess feeder;

    bool start(const QString& folder, double seconds) {
        path = folder + u"/live source.wav"_s;
        if (::mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
            return false;
        feeder.start(u"ffmpeg"_s,
                     {u"-nostdin"_s, u"-loglevel"_s, u"error"_s, u"-re"_s, u"-f"_s, u"lavfi"_s,
                      u"-i"_s, u"sine=frequency=330:duration=%1"_s.arg(seconds), u"-f"_s, u"wav"_s,
                      u"-y"_s, path});
        return feeder.waitForStarted();
    }
    ~RealtimeSource() {
        feeder.kill();
        feeder.waitForFinished();
    }
};

// The sonoria-workers this test process started.
QList<qint64> workers() {
    QList<qint64> found;
    for (const qint64 pid : SonoriaTest::childProcesses(QCoreApplication::applicationPid())) {
        if (SonoriaTest::readFile(u"/proc/%1/comm"_s.arg(pid)).trimmed() == "sonoria-worker")
            found.append(pid);
    }
    return found;
}

int openDescriptors(qint64 pid) {
    return int(QDir(u"/proc/%1/fd"_s.arg(pid))
                   .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                   .size());
}

// A running conversion of a live source on a queue of its own.
struct Running {
    Item item;
    Recorder recorder;
    SXOperationQueue queue;
    ConvertOperationPtr operation;

    Running(const QString& source, double seconds, const QString& folder)
        : item(makeItem(source, seconds)) {
        operation = makeOperation(item, folder, &recorder);
        queue.addOperation(operation);
    }
    // The worker that converts it, once it reports progress.
    qint64 worker() {
        if (!QTest::qWaitFor([this] { return recorder.count(u"progress"_s) > 0; }, 20000))
            return 0;
        const QList<qint64> pids = workers();
        return pids.size() == 1 ? pids.first() : 0;
    }
};

// A short source converted to its end: finished with a whole file.
bool convertsAfterwards(const QString& folder, const QString& source) {
    const Item next = makeItem(source, 1.0);
    const ConvertOperationPtr operation = convert(next, folder, nullptr);
    return stateOf(next) == CvtStateFinished && QFileInfo(operation->strOutFilePath()).size() > 0;
}
} // namespace

class WorkerFaultsTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_tone;

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(!ConvertEngineChoice::workerPath().isEmpty(), "sonoria-worker not found");
        QVERIFY(SonoriaTest::makeTone(m_tone.filePath(u"tone.wav"_s), 1.0));
        QVERIFY(SonoriaTest::makeTone(m_tone.filePath(u"short.wav"_s), 0.2));
    }
    void cleanup() {
        TranscodeWorkerPool::setHangTimeout(std::chrono::seconds(60));
        TranscodeWorkerPool::instance().endIdle();
    }

    // A worker killed mid-job, or one that stops answering (SIGSTOP: it is timed out), fails
    // only that job, with its reason, and leaves no file; the next job gets a new worker.
    void brokenWorkerFailsOnlyItsJob_data() {
        QTest::addColumn<int>("signalNumber");
        QTest::addColumn<QString>("reason");
        QTest::newRow("killed") << int(SIGKILL) << u"stopped unexpectedly (signal 9)"_s;
        QTest::newRow("hanging") << int(SIGSTOP) << u"stopped responding for 2 seconds"_s;
    }
    void brokenWorkerFailsOnlyItsJob() {
        QFETCH(int, signalNumber);
        QFETCH(QString, reason);
        QTemporaryDir dir;
        const QString out = dir.filePath(u"out"_s);
        RealtimeSource source;
        QVERIFY(source.start(dir.path(), 30.0));
        Running running(source.path, 30.0, out);
        const qint64 worker = running.worker();
        QVERIFY(worker > 0);
        // Shortened once the job runs: opening a live source takes a while.
        TranscodeWorkerPool::setHangTimeout(std::chrono::seconds(2));
        ::kill(pid_t(worker), signalNumber);
        running.queue.waitUntilAllOperationsAreFinished();

        QCOMPARE(stateOf(running.item), int(CvtStateFailed));
        const QString failure = running.item->mediaInfo()->failReason();
        QVERIFY2(failure.contains(reason), qPrintable(failure));
        QCOMPARE(SonoriaTest::filesBelow(out), QStringList());
        QVERIFY(!SonoriaTest::processIsAlive(worker));

        QVERIFY(convertsAfterwards(out, m_tone.filePath(u"tone.wav"_s)));
        QVERIFY(!workers().contains(worker));
    }

    // A cancel leaves nothing on disk, whether the job runs or is paused (the stopped worker
    // must still act on it), and the worker serves the next job. Paused for longer than a hang, a
    // job is not timed out, and resumed it goes on. A job waiting behind it on the single slot is
    // cancelled first: it never runs and reports nothing.
    void cancelLeavesNothing_data() {
        QTest::addColumn<bool>("paused");
        QTest::newRow("while running") << false;
        QTest::newRow("while paused") << true;
    }
    void cancelLeavesNothing() {
        QFETCH(bool, paused);
        QTemporaryDir dir;
        const QString out = dir.filePath(u"out"_s);
        RealtimeSource source;
        QVERIFY(source.start(dir.path(), 30.0));
        Running running(source.path, 30.0, out);
        running.queue.setMaxConcurrentOperationCount(1);
        Recorder waitingRecorder;
        const Item waitingItem = makeItem(m_tone.filePath(u"tone.wav"_s), 1.0);
        const ConvertOperationPtr waiting = makeOperation(waitingItem, out, &waitingRecorder);
        running.queue.addOperation(waiting);
        const qint64 worker = running.worker();
        QVERIFY(worker > 0);
        // While it writes, only a hidden temporary file is there, never the final name.
        QVERIFY(!QFileInfo::exists(running.operation->strOutFilePath()));
        QCOMPARE(QDir(out).entryList(QDir::Files | QDir::Hidden).size(), 1);

        waiting->cancel();
        QCOMPARE(stateOf(waitingItem), int(CvtStateCanceled));
        if (paused) {
            TranscodeWorkerPool::setHangTimeout(std::chrono::seconds(1));
            running.operation->pause();
            QTest::qWait(2500);
            QCOMPARE(stateOf(running.item), int(CvtStatePaused));
            const int reports = running.recorder.count(u"progress"_s);
            running.operation->resume();
            QTRY_VERIFY_WITH_TIMEOUT(running.recorder.count(u"progress"_s) > reports, 10000);
            running.operation->pause();
            QCOMPARE(stateOf(running.item), int(CvtStatePaused));
        }
        running.operation->cancel();
        running.queue.waitUntilAllOperationsAreFinished();
        QCOMPARE(stateOf(running.item), int(CvtStateCanceled));
        QVERIFY2(running.recorder.isWellFormed(), qPrintable(running.recorder.events().join(u' ')));
        QCOMPARE(waitingRecorder.events(), QStringList());
        QCOMPARE(SonoriaTest::filesBelow(out), QStringList());
        QVERIFY(convertsAfterwards(dir.filePath(u"next"_s), m_tone.filePath(u"tone.wav"_s)));
        QCOMPARE(workers(), QList<qint64>{worker});
    }

    // A hundred jobs through one worker: neither it nor this process keeps a descriptor more.
    void manyJobsLeakNoDescriptors() {
        QTemporaryDir dir;
        SXOperationQueue queue;
        queue.setMaxConcurrentOperationCount(1);
        Recorder recorder;
        QList<Item> items;
        auto runBatch = [&](int count) {
            for (int i = 0; i < count; ++i) {
                items.append(makeItem(m_tone.filePath(u"short.wav"_s), 0.2));
                queue.addOperation(makeOperation(items.last(), dir.path(), &recorder));
            }
            queue.waitUntilAllOperationsAreFinished();
        };
        runBatch(10);
        const QList<qint64> first = workers();
        QCOMPARE(first.size(), 1);
        const int workerDescriptors = openDescriptors(first.first());
        const int ownDescriptors = openDescriptors(QCoreApplication::applicationPid());
        runBatch(90);
        QCOMPARE(workers(), first);
        QCOMPARE(openDescriptors(first.first()), workerDescriptors);
        QCOMPARE(openDescriptors(QCoreApplication::applicationPid()), ownDescriptors);
        for (const Item& item : items)
            QCOMPARE(stateOf(item), int(CvtStateFinished));
        QCOMPARE(SonoriaTest::filesBelow(dir.path()).size(), 100);
    }
};

SONORIA_TEST_MAIN(WorkerFaultsTest)
#include "tst_workerfaults.moc"
