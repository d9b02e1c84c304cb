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

// A source that arrives in real time: a second ffmpeg writes a tone into a named pipe at play
// speed, so the conversion reading it runs long enough to be paused and cancelled.
struct RealtimeSource {
    QString path;
    QProcess feeder;

    bool start(const QString& folder) {
        path = folder + u"/live source.wav"_s;
        if (::mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
            return false;
        feeder.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        feeder.start(u"ffmpeg"_s,
                     {u"-nostdin"_s, u"-loglevel"_s, u"error"_s, u"-re"_s, u"-f"_s, u"lavfi"_s,
                      u"-i"_s, u"sine=frequency=330:duration=%1"_s.arg(kFeedSeconds), u"-f"_s,
                      u"wav"_s, u"-y"_s, path});
        return feeder.waitForStarted();
    }
    ~RealtimeSource() {
        if (feeder.state() != QProcess::NotRunning) {
            feeder.kill();
            feeder.waitForFinished();
        }
    }
};
} // namespace

class ConvertCancelTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // One conversion runs on a single-slot queue while a second waits. The waiting one is
    // cancelled first (it never runs, reports nothing), then the running one, either as it
    // runs or once paused (a suspended child must be woken to act on the stop, or the wait
    // never ends). Neither leaves a file.
    void cancelLeavesNothing_data() {
        QTest::addColumn<bool>("paused");
        QTest::newRow("while running") << false;
        QTest::newRow("while paused") << true;
    }
    void cancelLeavesNothing() {
        QFETCH(bool, paused);
        QTemporaryDir dir;
        RealtimeSource source;
        QVERIFY(source.start(dir.path()));
        const QString waitingSource = dir.filePath(u"waiting.wav"_s);
        QVERIFY(SonoriaTest::makeTone(waitingSource, 1.0));
        const QString folder = dir.filePath(u"out"_s);
        QVERIFY(QDir().mkpath(folder));

        LogCapture log;
        SXOperationQueue queue;
        queue.setMaxConcurrentOperationCount(1);
        Recorder recorder;
        Recorder waitingRecorder;
        auto item = makeItem(source.path, kFeedSeconds);
        auto running = makeOperation(item, folder, &recorder);
        auto waitingItem = makeItem(waitingSource, 1.0);
        auto waiting = makeOperation(waitingItem, folder, &waitingRecorder);
        queue.addOperation(running);
        queue.addOperation(waiting);
        QTRY_VERIFY_WITH_TIMEOUT(recorder.count(u"progress"_s) > 0, 30000);
        QCOMPARE(stateOf(item), int(CvtStateConverting));
        // While it writes, only a hidden temporary file is there, never the final name.
        QVERIFY(!QFileInfo::exists(running->strOutFilePath()));
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 1);

        waiting->cancel();
        QCOMPARE(stateOf(waitingItem), int(CvtStateCanceled));
        QCOMPARE(queue.operations(), QList<SXOperationPtr>{running});
        if (paused) {
            running->pause();
            QCOMPARE(stateOf(item), int(CvtStatePaused));
            running->resume();
            QCOMPARE(stateOf(item), int(CvtStateConverting));
            running->pause();
        }
        running->cancel();
        QCOMPARE(stateOf(item), int(CvtStateCanceled));
        queue.waitUntilAllOperationsAreFinished();

        QCOMPARE(stateOf(item), int(CvtStateCanceled));
        QVERIFY2(recorder.isWellFormed(), qPrintable(recorder.events().join(u' ')));
        QCOMPARE(waitingRecorder.events(), QStringList());
        QCOMPARE(stateOf(waitingItem), int(CvtStateCanceled));
        QCOMPARE(entries(folder), QStringList());
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList());
        QCOMPARE(queue.operationCount(), 0);
        // The ffmpeg child is told to stop, or the worker to cancel the job.
        QVERIFY(log.contains(u"stop process"_s) ||
                !log.lines().filter(u": cancel job "_s).isEmpty());
        QVERIFY(!log.contains(u"exit code:0"_s));
    }
};

SONORIA_TEST_MAIN(ConvertCancelTest)
#include "tst_convertcancel.moc"
