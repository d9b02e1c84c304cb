#include "Convert/TaskWrapper.h"
#include "Convert/TaskWrapperController.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMutex>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <memory>

namespace {

// One callback as the wrapper delivered it, with the thread it came on.
struct Event {
    QString kind; // "started", "output", "finished", "terminated"
    QString text;
    int code = 0;
    QThread* thread = nullptr;
};

class RecordingController : public TaskWrapperController {
public:
    void appendOutput(const QString& output) override { record({"output", output, 0}); }
    void processStarted() override { record({"started", {}, 0}); }
    void processFinished() override { record({"finished", {}, 0}); }
    void launcherDidTerminatedWithCode(int code) override { record({"terminated", {}, code}); }

    QList<Event> events(const QString& kind = {}) const {
        QMutexLocker guard(&m_lock);
        QList<Event> result;
        for (const Event& event : m_events)
            if (kind.isEmpty() || event.kind == kind)
                result << event;
        return result;
    }
    QStringList kinds() const {
        QStringList result;
        for (const Event& event : events())
            result << event.kind;
        return result;
    }
    // Everything the child wrote, from the chunks that decoded.
    QString output() const {
        QString text;
        for (const Event& event : events(QStringLiteral("output")))
            text += event.text;
        return text;
    }
    bool terminated() const { return !events(QStringLiteral("terminated")).isEmpty(); }
    int status() const { return terminated() ? events(QStringLiteral("terminated"))[0].code : -1; }

private:
    void record(Event event) {
        event.thread = QThread::currentThread();
        QMutexLocker guard(&m_lock);
        m_events << event;
    }
    mutable QMutex m_lock;
    QList<Event> m_events;
};

// Keeps the event loop turning for a while, so late callbacks would show up.
void settle(int ms = 200) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

bool processExists(qint64 pid) {
    return pid > 0 && ::kill(static_cast<pid_t>(pid), 0) == 0;
}

char processState(qint64 pid) {
    const QByteArray line = SonoriaTest::readFile(QStringLiteral("/proc/%1/stat").arg(pid));
    const qsizetype close = line.lastIndexOf(')');
    return close >= 0 && close + 2 < line.size() ? line.at(close + 2) : '?';
}

// SIGSTOP has reached the child. A shell waiting in vfork for a child that was stopped before
// its exec stays in 'D' instead of 'T'; it writes nothing either.
bool isSuspended(qint64 pid) {
    const char state = processState(pid);
    return state == 'T' || state == 'D';
}

// The one shape every run must have: started first, one termination last.
void verifyRunShape(const RecordingController& controller) {
    const QStringList kinds = controller.kinds();
    QVERIFY(!kinds.isEmpty());
    QCOMPARE(kinds.first(), QStringLiteral("started"));
    QCOMPARE(kinds.count(QStringLiteral("started")), 1);
    QCOMPARE(kinds.count(QStringLiteral("terminated")), 1);
    QCOMPARE(kinds.last(), QStringLiteral("terminated"));
}

} // namespace

class TestTaskWrapper : public QObject {
    Q_OBJECT

    QString script(const QString& name, const QString& body) {
        return SonoriaTest::writeScript(m_dir.path(), name, body);
    }
    QTemporaryDir m_dir;

private Q_SLOTS:
    void init() { QVERIFY(m_dir.isValid()); }

    void runsChildAndReportsOutputAndStatus_data() {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("expectedOutput");
        QTest::addColumn<int>("expectedStatus");
        QTest::newRow("stdout, status 0") << "echo hello\nexit 0\n"
                                          << "hello\n"
                                          << 0;
        QTest::newRow("stderr only, status 3") << "echo oops >&2\nexit 3\n"
                                               << "oops\n"
                                               << 3;
        QTest::newRow("interleaved streams keep write order")
            << "echo out1\necho err1 >&2\necho out2\necho err2 >&2\n"
            << "out1\nerr1\nout2\nerr2\n"
            << 0;
        QTest::newRow("exits at once without output") << "exit 0\n"
                                                      << "" << 0;
        QTest::newRow("arguments passed in order") << "printf '%s|' \"$@\"\n"
                                                   << "a b|--flag|é|" << 0;
    }
    void runsChildAndReportsOutputAndStatus() {
        QFETCH(QString, body);
        QFETCH(QString, expectedOutput);
        QFETCH(int, expectedStatus);
        LogCapture log;
        RecordingController controller;
        auto wrapper = std::make_unique<TaskWrapper>(
            &controller,
            QStringList{script(QStringLiteral("child.sh"), body), QStringLiteral("a b"),
                        QStringLiteral("--flag"), QStringLiteral("é")});
        wrapper->startProcess();
        QVERIFY(wrapper->processId() > 0);
        QTRY_VERIFY_WITH_TIMEOUT(controller.terminated(), 10000);
        settle();

        verifyRunShape(controller);
        QCOMPARE(controller.output(), expectedOutput);
        QCOMPARE(controller.status(), expectedStatus);
        QCOMPARE(wrapper->processId(), qint64(0));
        // Output end and termination may come in either order; a stop reported after the
        // termination would have reached a cleared controller.
        QVERIFY(controller.kinds().count(QStringLiteral("finished")) <= 1);
        for (const Event& event : controller.events())
            QCOMPARE(event.thread, QThread::currentThread());
        QVERIFY(log.contains(
            QStringLiteral("ffmpeg did finished:terminate status:%1").arg(expectedStatus)));

        // Destroying a wrapper whose child has ended reaches the former controller no more.
        const int before = int(controller.events().size());
        wrapper.reset();
        settle();
        QCOMPARE(controller.events().size(), before);
        QVERIFY(log.contains(QStringLiteral("Task dealloc")));
        QVERIFY(log.contains(QStringLiteral("stop process")));
    }

    void childIgnoringTerminateIsKilledOnDestruction() {
        LogCapture log;
        RecordingController controller;
        const QString path =
            script(QStringLiteral("stubborn.sh"), "trap '' TERM\nsleep 30 &\necho $!\nwait\n");
        auto wrapper = std::make_unique<TaskWrapper>(&controller, QStringList{path});
        wrapper->startProcess();
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().endsWith(QLatin1Char('\n')), 10000);
        const qint64 child = wrapper->processId();
        const qint64 grandchild = controller.output().trimmed().toLongLong();

        // The request is only a request: the report comes, the child keeps running.
        wrapper->stopProcess();
        QCOMPARE(controller.kinds().last(), QStringLiteral("finished")); // at once, not queued
        QVERIFY(log.contains(QStringLiteral("stop process")));
        settle(300);
        QVERIFY(!controller.terminated());
        QVERIFY(processState(child) == 'S' || processState(child) == 'R');

        // Destruction gives a grace, then kills the whole group and returns.
        QElapsedTimer timer;
        timer.start();
        wrapper.reset();
        QVERIFY(timer.elapsed() >= TaskWrapper::kDestroyGraceMs - 100);
        QVERIFY(!processExists(child));
        QTRY_VERIFY_WITH_TIMEOUT(!processExists(grandchild), 5000);
        settle();
        QVERIFY(!controller.terminated()); // the termination is never reported after destruction
        QCOMPARE(controller.kinds().last(), QStringLiteral("finished")); // from the final stop
        QVERIFY(log.contains(QStringLiteral("Task dealloc")));
    }

    // A suspended child writes nothing until resumed, and still acts on a stop; its trap then
    // picks the status.
    void suspendHoldsOutputUntilResume() {
        RecordingController controller;
        TaskWrapper wrapper(&controller, {script(QStringLiteral("ticks.sh"),
                                                 "trap 'exit 7' TERM\n"
                                                 "while :; do echo tick; sleep 0.05; done\n")});
        wrapper.startProcess();
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().count(QStringLiteral("tick")) >= 3, 10000);

        wrapper.suspend();
        QTRY_VERIFY_WITH_TIMEOUT(isSuspended(wrapper.processId()), 5000);
        settle(300); // lets what was already in the pipe arrive
        const qsizetype held = controller.output().size();
        settle(500);
        QCOMPARE(controller.output().size(), held);
        QVERIFY(!controller.terminated());

        wrapper.resume();
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().size() > held, 5000);
        wrapper.suspend();
        QTRY_VERIFY_WITH_TIMEOUT(isSuspended(wrapper.processId()), 5000);
        wrapper.stopProcess();
        QTRY_VERIFY_WITH_TIMEOUT(controller.terminated(), 10000);
        QCOMPARE(controller.status(), 7);
        verifyRunShape(controller);
    }

    void invalidUtf8ChunkArrivesAsNullString() {
        RecordingController controller;
        // Pauses between the writes make each one its own read. The middle chunk is cut inside
        // a two-byte character.
        TaskWrapper wrapper(&controller,
                            {script(QStringLiteral("bytes.sh"),
                                    "printf 'ok\\n'\nsleep 0.4\nprintf '\\303'\nsleep 0.4\n"
                                    "printf '\\303\\251t\\303\\251\\n'\n")});
        wrapper.startProcess();
        QTRY_VERIFY_WITH_TIMEOUT(controller.terminated(), 10000);
        verifyRunShape(controller);
        const QList<Event> chunks = controller.events(QStringLiteral("output"));
        QCOMPARE(chunks.size(), 3);
        QCOMPARE(chunks.at(0).text, QStringLiteral("ok\n"));
        QVERIFY(chunks.at(1).text.isNull());
        QCOMPARE(chunks.at(2).text, QStringLiteral("été\n"));
    }

    void failedLaunchIsReportedAsStatus127() {
        const QString notExecutable = m_dir.filePath(QStringLiteral("plain.txt"));
        QVERIFY(SonoriaTest::writeFile(notExecutable, "#!/bin/sh\necho never\n"));
        for (const QString& program : {m_dir.filePath(QStringLiteral("missing")), notExecutable}) {
            LogCapture log;
            RecordingController controller;
            TaskWrapper wrapper(&controller, {program});
            wrapper.startProcess();
            // The report comes through the event loop, never from inside startProcess.
            QCOMPARE(controller.kinds(), QStringList{QStringLiteral("started")});
            wrapper.waitUntilTaskExit();
            QCOMPARE(controller.status(), 127);
            settle();
            verifyRunShape(controller);
            QCOMPARE(controller.output(), QString());
            QCOMPARE(wrapper.processId(), qint64(0));
            QVERIFY(log.contains(QStringLiteral("ffmpeg did finished:terminate status:127")));
        }

        // waitUntilTaskExit also returns once a running child has ended and been reported.
        RecordingController controller;
        TaskWrapper wrapper(&controller,
                            {script(QStringLiteral("late.sh"), "sleep 0.3\necho done\nexit 4\n")});
        wrapper.startProcess();
        wrapper.waitUntilTaskExit();
        QCOMPARE(controller.status(), 4);
        QCOMPARE(controller.output(), QStringLiteral("done\n"));
    }

    // A child started on a worker thread and stopped from this one: the signal reaches the
    // whole group, the stop report comes here at once, everything else on the worker.
    void stopFromAnotherThreadEndsTheGroup() {
        LogCapture log;
        RecordingController controller;
        // The background sleep is a grandchild: only a signal to the group reaches it.
        const QString path = script(QStringLiteral("group.sh"), "sleep 30 &\necho $!\nwait\n");
        QThread worker;
        worker.start();
        const auto joinWorker = qScopeGuard([&worker] {
            worker.quit();
            worker.wait();
        });
        QObject context; // runs the start on the worker, whose event loop then owns the child
        context.moveToThread(&worker);
        std::unique_ptr<TaskWrapper> wrapper;
        QMetaObject::invokeMethod(
            &context,
            [&] {
                wrapper = std::make_unique<TaskWrapper>(&controller, QStringList{path});
                wrapper->startProcess();
            },
            Qt::BlockingQueuedConnection);
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().endsWith(QLatin1Char('\n')), 10000);
        const qint64 grandchild = controller.output().trimmed().toLongLong();
        QVERIFY(processExists(grandchild));

        wrapper->stopProcess();
        QVERIFY(log.contains(QStringLiteral("stop process")));
        QTRY_VERIFY_WITH_TIMEOUT(controller.terminated(), 10000);
        QCOMPARE(controller.status(), 15);
        QVERIFY(log.contains(QStringLiteral("ffmpeg did finished:terminate status:15")));
        QTRY_VERIFY_WITH_TIMEOUT(!processExists(grandchild), 5000);
        verifyRunShape(controller);
        for (const Event& event : controller.events())
            QCOMPARE(event.thread,
                     event.kind == QLatin1String("finished") ? QThread::currentThread() : &worker);

        // Later stops still log, but no longer report.
        const int before = int(controller.events().size());
        wrapper->stopProcess();
        QCOMPARE(log.count(QStringLiteral("stop process")), 2);
        QCOMPARE(controller.events().size(), before);

        // A foreign thread may wait for the exit and destroy the wrapper once the child has ended.
        wrapper->waitUntilTaskExit();
        wrapper.reset();
    }
};

SONORIA_TEST_MAIN(TestTaskWrapper)
#include "tst_taskwrapper.moc"
