#include "ConvertTestSupport.h"

#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QProcess>
#include <QTemporaryDir>
#include <memory>
#include <sys/stat.h>

using namespace ConvertTest;

namespace {
constexpr double kFeedSeconds = 30.0;
constexpr int kProgressTimeoutMs = 30000;

// A source that arrives in real time: a second ffmpeg writes a tone into a named pipe at play
// speed, so the conversion reading it runs long enough to be paused and cancelled.
struct RealtimeSource {
    QString path;
    std::unique_ptr<QProcess> feeder;

    bool start(const QString& folder) {
        path = folder + QStringLiteral("/live source.wav");
        if (::mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
            return false;
        feeder = std::make_unique<QProcess>();
        feeder->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        feeder->start(QStringLiteral("ffmpeg"),
                      {QStringLiteral("-nostdin"), QStringLiteral("-loglevel"),
                       QStringLiteral("error"), QStringLiteral("-re"), QStringLiteral("-f"),
                       QStringLiteral("lavfi"), QStringLiteral("-i"),
                       QStringLiteral("sine=frequency=330:duration=%1").arg(kFeedSeconds),
                       QStringLiteral("-f"), QStringLiteral("wav"), QStringLiteral("-y"), path});
        return feeder->waitForStarted();
    }
    ~RealtimeSource() {
        if (feeder && feeder->state() != QProcess::NotRunning) {
            feeder->kill();
            feeder->waitForFinished();
        }
    }
};
} // namespace

class ConvertCancelTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cancelWhileRunning();
    void cancelWhilePaused();
    void cancelWhileQueued();
    void cancelAfterFinishChangesNothing();
};

void ConvertCancelTest::cancelWhileRunning() {
    QTemporaryDir dir;
    RealtimeSource source;
    QVERIFY(source.start(dir.path()));
    const QString folder = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));
    LogCapture log;
    Recorder recorder;
    SXOperationQueue queue;
    auto item = makeItem(source.path, kFeedSeconds);
    auto operation = makeOperation(item, folder, &recorder);
    queue.addOperation(operation);
    QTRY_VERIFY_WITH_TIMEOUT(recorder.count(QStringLiteral("progress")) > 0, kProgressTimeoutMs);
    QCOMPARE(stateOf(item), int(CvtStateConverting));
    QVERIFY(QFileInfo::exists(operation->strOutFilePath()));

    operation->cancel();
    QCOMPARE(stateOf(item), int(CvtStateCanceled));
    queue.waitUntilAllOperationsAreFinished();

    QCOMPARE(stateOf(item), int(CvtStateCanceled));
    QVERIFY2(recorder.isWellFormed(), qPrintable(recorder.events().join(u' ')));
    QCOMPARE(entries(folder), QStringList());
    QVERIFY(log.contains(QStringLiteral("stop process")));
    QVERIFY(!log.contains(QStringLiteral("exit code:0")));
}

void ConvertCancelTest::cancelWhilePaused() {
    QTemporaryDir dir;
    RealtimeSource source;
    QVERIFY(source.start(dir.path()));
    Recorder recorder;
    SXOperationQueue queue;
    auto item = makeItem(source.path, kFeedSeconds);
    auto operation = makeOperation(item, QString(), &recorder);
    queue.addOperation(operation);
    QTRY_VERIFY_WITH_TIMEOUT(recorder.count(QStringLiteral("progress")) > 0, kProgressTimeoutMs);

    operation->pause();
    QCOMPARE(stateOf(item), int(CvtStatePaused));
    operation->resume();
    QCOMPARE(stateOf(item), int(CvtStateConverting));
    operation->pause();
    QCOMPARE(stateOf(item), int(CvtStatePaused));
    // A suspended child must be woken to act on the stop; otherwise this wait never ends.
    operation->cancel();
    queue.waitUntilAllOperationsAreFinished();

    QCOMPARE(stateOf(item), int(CvtStateCanceled));
    QCOMPARE(recorder.count(QStringLiteral("finish")), 1);
    QVERIFY(recorder.isWellFormed());
    QCOMPARE(entries(dir.path()), QStringList{QStringLiteral("live source.wav")});
}

void ConvertCancelTest::cancelWhileQueued() {
    QTemporaryDir dir;
    RealtimeSource source;
    QVERIFY(source.start(dir.path()));
    const QString waitingSource = dir.filePath(QStringLiteral("waiting.wav"));
    QVERIFY(SonoriaTest::makeTone(waitingSource, 1.0));
    const QString folder = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));

    SXOperationQueue queue;
    queue.setMaxConcurrentOperationCount(1);
    Recorder runningRecorder;
    Recorder waitingRecorder;
    auto running = makeOperation(makeItem(source.path, kFeedSeconds), folder, &runningRecorder);
    auto waitingItem = makeItem(waitingSource, 1.0);
    auto waiting = makeOperation(waitingItem, folder, &waitingRecorder);
    queue.addOperation(running);
    queue.addOperation(waiting);
    QTRY_VERIFY_WITH_TIMEOUT(runningRecorder.count(QStringLiteral("start")) == 1,
                             kProgressTimeoutMs);
    QCOMPARE(queue.operationCount(), 2);

    waiting->cancel();
    QCOMPARE(stateOf(waitingItem), int(CvtStateCanceled));
    QCOMPARE(queue.operations(), QList<SXOperationPtr>{running});
    running->cancel();
    queue.waitUntilAllOperationsAreFinished();

    QCOMPARE(waitingRecorder.events(), QStringList());
    QCOMPARE(stateOf(waitingItem), int(CvtStateCanceled));
    QCOMPARE(entries(folder), QStringList());
    QCOMPARE(queue.operationCount(), 0);
}

void ConvertCancelTest::cancelAfterFinishChangesNothing() {
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("short.wav"));
    QVERIFY(SonoriaTest::makeTone(source, 1.0));
    Recorder recorder;
    auto item = makeItem(source, 1.0);
    auto operation = convert(item, QString(), &recorder);
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    operation->cancel();
    operation->pause();
    QCOMPARE(stateOf(item), int(CvtStateFinished));
    QVERIFY(QFileInfo(operation->strOutFilePath()).size() > 0);
}

SONORIA_TEST_MAIN(ConvertCancelTest)
#include "tst_convertcancel.moc"
