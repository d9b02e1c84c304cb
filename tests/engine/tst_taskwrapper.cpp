#include "base/SXSignalWatcher.h"
#include "engine/TaskWrapper.h"
#include "engine/TaskWrapperController.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QMutex>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <csignal>
#include <memory>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

// Every callback as the wrapper delivered it, with the thread it came on.
class RecordingController : public TaskWrapperController {
public:
    struct Event {
        QString kind;
        QString text; // the output, or the termination's status
        QThread* thread = nullptr;
    };
    void appendOutput(const QString& output) override { record({u"output"_s, output}); }
    void processStarted() override { record({u"started"_s}); }
    void processFinished() override { record({u"finished"_s}); }
    void launcherDidTerminatedWithCode(int code) override {
        record({u"terminated"_s, QString::number(code)});
    }

    QList<Event> events() const {
        QMutexLocker guard(&m_lock);
        return m_events;
    }
    // The kinds of all events, or (given a kind) the texts of those of that kind.
    QStringList list(const QString& kind = QString()) const {
        QStringList result;
        for (const Event& event : events()) {
            if (kind.isNull() || event.kind == kind)
                result << (kind.isNull() ? event.kind : event.text);
        }
        return result;
    }
    QStringList kinds() const { return list(); }
    QStringList chunks() const { return list(u"output"_s); }
    QString output() const { return chunks().join(QString()); }
    int status() const { return list(u"terminated"_s).value(0, u"-1"_s).toInt(); }
    bool terminated() const { return status() != -1; }
    // Every run: started first, then output and stop reports, one termination last.
    bool hasRunShape() const {
        static const QRegularExpression shape(u"^started( output| finished)* terminated$"_s);
        return shape.match(kinds().join(u' ')).hasMatch();
    }

private:
    void record(Event event) {
        event.thread = QThread::currentThread();
        QMutexLocker guard(&m_lock);
        m_events << event;
    }
    mutable QMutex m_lock;
    QList<Event> m_events;
};

// The state letter of /proc/<pid>/stat. A shell waiting in vfork for a child that was stopped
// before its exec shows 'D' instead of 'T'; it writes nothing either.
char processState(qint64 pid) {
    const QByteArray line = SonoriaTest::readFile(u"/proc/%1/stat"_s.arg(pid));
    const qsizetype close = line.lastIndexOf(')');
    return close >= 0 && close + 2 < line.size() ? line.at(close + 2) : '?';
}
bool isSuspended(qint64 pid) {
    return processState(pid) == 'T' || processState(pid) == 'D';
}

} // namespace

class TestTaskWrapper : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase() { SXSignalWatcher::ignoreBrokenPipe(); }

    void runsChildAndReportsOutputAndStatus_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("body"); // null: no such file
        QTest::addColumn<bool>("executable");
        QTest::addColumn<QString>("expectedOutput");
        QTest::addColumn<int>("expectedStatus");
        QTest::addColumn<int>("undecodedChunks");
        QTest::newRow("arguments in order, both streams in write order, status 3")
            << u"child.sh"_s
            << u"printf '%s|' \"$@\"\nsleep 0.3\necho\necho out1\necho err1 >&2\necho out2\n"
               "echo err2 >&2\nexit 3\n"_s
            << true << u"a b|--flag|é|\nout1\nerr1\nout2\nerr2\n"_s << 3 << 0;
        QTest::newRow("exits at once without output")
            << u"quick.sh"_s << u"exit 0\n"_s << true << QString() << 0 << 0;
        // Pauses between the writes make each one its own read; the middle one is cut inside a
        // two-byte character and arrives as a null string.
        QTest::newRow("invalid UTF-8 chunk")
            << u"bytes.sh"_s
            << u"printf 'ok\\n'\nsleep 0.4\nprintf '\\303'\nsleep 0.4\n"
               "printf '\\303\\251t\\303\\251\\n'\n"_s
            << true << u"ok\nété\n"_s << 0 << 1;
        // A child ended by a signal reads as a shell shows it, never as an exit status.
        QTest::newRow("killed by a signal")
            << u"killed.sh"_s << u"kill -9 $$\n"_s << true << QString() << 128 + 9 << 0;
        // The child runs nicer than the program, so the window stays responsive.
        const int expectedNiceness =
            std::min(19, ::getpriority(PRIO_PROCESS, 0) + TaskWrapper::kChildNicenessIncrement);
        QTest::newRow("a lower priority than the program")
            << u"niceness.sh"_s << u"nice\n"_s << true << QString::number(expectedNiceness) + u'\n'
            << 0 << 0;
        // The programs ignore SIGPIPE (as this test does); their children must not inherit that
        // (QProcess gives it its default action back).
        QTest::newRow("SIGPIPE has its default action")
            << u"sigpipe.sh"_s << u"kill -PIPE $$\necho survived\n"_s << true << QString()
            << TaskWrapper::kSignalStatusBase + SIGPIPE << 0;
        // A failed launch is reported as a shell would: status 127.
        QTest::newRow("missing program")
            << u"missing"_s << QString() << false << QString() << 127 << 0;
        QTest::newRow("not executable")
            << u"plain.txt"_s << u"echo never\n"_s << false << QString() << 127 << 0;
    }
    void runsChildAndReportsOutputAndStatus() {
        QFETCH(QString, name);
        QFETCH(QString, body);
        QFETCH(bool, executable);
        QFETCH(int, expectedStatus);
        QString program = m_dir.filePath(name);
        if (executable)
            program = SonoriaTest::writeScript(m_dir.path(), name, body);
        else if (!body.isNull())
            QVERIFY(SonoriaTest::writeFile(program, "#!/bin/sh\n" + body.toUtf8()));
        LogCapture log;
        RecordingController controller;
        auto wrapper = std::make_unique<TaskWrapper>(
            &controller, QStringList{program, u"a b"_s, u"--flag"_s, u"é"_s});
        wrapper->startProcess();
        // Reports come through the event loop, never from inside startProcess.
        QCOMPARE(controller.kinds(), QStringList{u"started"_s});
        QVERIFY(expectedStatus == 127 || wrapper->processId() > 0);
        // Returns only once the ended child has been reported.
        wrapper->waitUntilTaskExit();
        QCOMPARE(controller.status(), expectedStatus);
        QTest::qWait(200); // late callbacks would show up

        QVERIFY2(controller.hasRunShape(), qPrintable(controller.kinds().join(u' ')));
        QTEST(controller.output(), "expectedOutput");
        QTEST(int(std::ranges::count_if(controller.chunks(), &QString::isNull)), "undecodedChunks");
        QCOMPARE(wrapper->processId(), qint64(0));
        // Output end and termination may come in either order; a stop reported after the
        // termination would have reached a cleared controller.
        QVERIFY(controller.kinds().count(u"finished"_s) <= 1);
        for (const auto& event : controller.events())
            QCOMPARE(event.thread, QThread::currentThread());
        QVERIFY(log.contains(u"ffmpeg did finished:terminate status:%1"_s.arg(expectedStatus)));

        // Destroying a wrapper whose child has ended reaches the former controller no more.
        const QStringList before = controller.kinds();
        wrapper.reset();
        QTest::qWait(200);
        QCOMPARE(controller.kinds(), before);
        QVERIFY(log.contains(u"Task dealloc"_s));
    }

    // A suspended child writes nothing until resumed, and a stop wakes it to act on the request.
    // One that ignores the request keeps running; destruction then gives a grace and kills the
    // whole group, without reporting a termination.
    void suspendedAndStubbornChildren() {
        RecordingController controller;
        // The grandchild inherits the ignored TERM; the shell itself only notes it in a file.
        auto wrapper = std::make_unique<TaskWrapper>(
            &controller, QStringList{SonoriaTest::writeScript(
                             m_dir.path(), u"stubborn.sh"_s,
                             u"trap '' TERM\nsleep 30 &\necho $!\ntrap 'touch \"$0.term\"' TERM\n"
                             "while :; do echo tick; sleep 0.05; done\n"_s)});
        wrapper->startProcess();
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().count(u"tick"_s) >= 3, 10000);
        const qint64 child = wrapper->processId();
        const qint64 grandchild = controller.output().section(u'\n', 0, 0).toLongLong();

        wrapper->suspend();
        QTRY_VERIFY_WITH_TIMEOUT(isSuspended(child), 5000);
        QTest::qWait(300); // lets what was already in the pipe arrive
        const qsizetype held = controller.output().size();
        QTest::qWait(500);
        QCOMPARE(controller.output().size(), held);
        wrapper->resume();
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().size() > held, 5000);

        wrapper->suspend();
        QTRY_VERIFY_WITH_TIMEOUT(isSuspended(child), 5000);
        wrapper->stopProcess();
        QCOMPARE(controller.kinds().last(), u"finished"_s); // at once, not queued
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(m_dir.filePath(u"stubborn.sh.term"_s)), 5000);
        QTest::qWait(300);
        QVERIFY(!controller.terminated());
        // Still alive and not stopped; on a busy machine it may be caught for a moment in
        // another state (waiting for the disk while it starts its next sleep).
        QTRY_VERIFY2_WITH_TIMEOUT(
            processState(child) == 'S' || processState(child) == 'R',
            qPrintable(u"state %1"_s.arg(QChar::fromLatin1(processState(child)))), 2000);

        QElapsedTimer timer;
        timer.start();
        wrapper.reset();
        QVERIFY(timer.elapsed() >= TaskWrapper::kDestroyGraceMs - 100);
        QVERIFY(!SonoriaTest::processIsAlive(child));
        QTRY_VERIFY_WITH_TIMEOUT(!SonoriaTest::processIsAlive(grandchild), 5000);
        QTest::qWait(200);
        QVERIFY(!controller.terminated());
        QCOMPARE(controller.kinds().last(), u"finished"_s); // from the final stop
    }

    // A child started on a worker thread and stopped from this one: the signal reaches the
    // whole group, the stop report comes here at once, everything else on the worker.
    void stopFromAnotherThreadEndsTheGroup() {
        LogCapture log;
        RecordingController controller;
        // The background sleep is a grandchild: only a signal to the group reaches it.
        const QString path =
            SonoriaTest::writeScript(m_dir.path(), u"group.sh"_s, u"sleep 30 &\necho $!\nwait\n"_s);
        QThread worker;
        worker.start();
        const auto joinWorker = qScopeGuard([&worker] {
            worker.quit();
            worker.wait();
        });
        // Started on the worker, whose event loop then owns the child.
        auto wrapper = std::make_unique<TaskWrapper>(&controller, QStringList{path});
        wrapper->moveToThread(&worker);
        QMetaObject::invokeMethod(
            wrapper.get(), [&] { wrapper->startProcess(); }, Qt::BlockingQueuedConnection);
        QTRY_VERIFY_WITH_TIMEOUT(controller.output().endsWith(u'\n'), 10000);
        const qint64 grandchild = controller.output().trimmed().toLongLong();
        QVERIFY(SonoriaTest::processIsAlive(grandchild));

        wrapper->stopProcess();
        QTRY_VERIFY_WITH_TIMEOUT(controller.terminated(), 10000);
        QCOMPARE(controller.status(), TaskWrapper::kSignalStatusBase + SIGTERM);
        QTRY_VERIFY_WITH_TIMEOUT(!SonoriaTest::processIsAlive(grandchild), 5000);
        QVERIFY(controller.hasRunShape());
        for (const auto& event : controller.events())
            QCOMPARE(event.thread,
                     event.kind == "finished"_L1 ? QThread::currentThread() : &worker);

        // Later stops still log, but no longer report.
        const QStringList before = controller.kinds();
        wrapper->stopProcess();
        QCOMPARE(log.count(u"stop process"_s), 2);
        QCOMPARE(controller.kinds(), before);

        // A foreign thread may wait for the exit and destroy the wrapper once the child has ended.
        wrapper->waitUntilTaskExit();
        wrapper.reset();
    }

    // A program killed with SIGKILL can stop nothing: its child must die with it all the same.
    // The child is started as the program starts ffmpeg, on an operation-queue worker thread.
    void childDiesWithAProgramKilledBySigkill() {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        const QString output = m_dir.filePath(u"endless.wav"_s);
        program.start(QStringLiteral(SONORIA_CHILD_STARTER_PATH),
                      {u"ffmpeg"_s, u"-nostdin"_s, u"-v"_s, u"error"_s, u"-re"_s, u"-f"_s,
                       u"lavfi"_s, u"-i"_s, u"sine=d=600"_s, u"-y"_s, output});
        QVERIFY(program.waitForStarted());
        const auto killProgram = qScopeGuard([&program] {
            program.kill();
            program.waitForFinished();
        });
        QTRY_VERIFY_WITH_TIMEOUT(program.canReadLine(), 10000);
        const qint64 child = program.readLine().trimmed().toLongLong();
        QVERIFY(child > 0);
        QVERIFY(SonoriaTest::childProcesses(program.processId()).contains(child));
        // Under way: ffmpeg has begun writing.
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(output).size() > 0, 10000);

        ::kill(static_cast<pid_t>(program.processId()), SIGKILL);
        QVERIFY(program.waitForFinished(5000));
        QTRY_VERIFY_WITH_TIMEOUT(!SonoriaTest::processIsAlive(child), 2000);
        QVERIFY(SonoriaTest::processesMentioning(output).isEmpty());
    }
};

SONORIA_TEST_MAIN(TestTaskWrapper)
#include "tst_taskwrapper.moc"
