#include "engine/TaskWrapper.h"

#include "base/SXLog.h"
#include "engine/TaskWrapperController.h"

#include <QCoreApplication>
#include <QThread>
#include <cerrno>
#include <csignal>
#include <sys/prctl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {
// Status reported when the program could not be launched, as a shell reports it.
constexpr int kLaunchFailedStatus = 127;
// Exit status of a child whose parent died before the child could tie itself to it; nobody is
// left to read it.
constexpr int kOrphanedStatus = 1;
// How long the destructor waits for a killed child to be reaped.
constexpr int kKillWaitMs = 5000;
} // namespace

TaskWrapper::TaskWrapper(TaskWrapperController* controller, const QStringList& arguments)
    : m_controller(controller)
    , m_arguments(arguments) {}

TaskWrapper::~TaskWrapper() {
    SXLog::line(QStringLiteral("Task dealloc"));
    stopProcess();
    releaseProcess();
}

void TaskWrapper::startProcess() {
    if (m_task)
        return;
    if (TaskWrapperController* controller = m_controller.load())
        controller->processStarted();

    m_task = new QProcess; // no parent: the wrapper may live on another thread
    m_task->setProcessChannelMode(QProcess::MergedChannels);
    // An inherited terminal would let the child swallow keystrokes, and a child in a background
    // process group that reads the terminal gets stopped.
    m_task->setStandardInputFile(QProcess::nullDevice());
    // Runs in the child between fork and exec: async-signal-safe calls only.
    const pid_t parent = ::getpid();
    m_task->setChildProcessModifier([parent] {
        // The child dies with the program, even with one killed by SIGKILL, which can clean up
        // nothing: an encoder left behind would go on writing a file nobody wants. Had the
        // program already died before this line, the child was handed to another parent
        // (init or a subreaper) and nothing will ever signal it: it ends here instead.
        //
        // The kernel sends the signal when the *thread* that forked ends, not the process. The
        // children are started on an operation-queue worker (QThreadPool) inside
        // ConvertOperation::main, which returns only once the child has terminated and been
        // reaped; a pool thread expires only while it is idle, between operations, so it never
        // ends under a live child. The same holds for any caller: startProcess requires the
        // starting thread's event loop to run until the termination has been reported.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(kOrphanedStatus);
        ::setpgid(0, 0);
        // Conversions are background work: a little below the program itself, so that the
        // window stays quick to answer while several encoders keep every core busy. Alone on
        // the machine they still get all of it.
        [[maybe_unused]] const int niceness = ::nice(kChildNicenessIncrement);
    });

    connect(m_task, &QProcess::readyRead, this, &TaskWrapper::getData, Qt::DirectConnection);
    connect(m_task, &QProcess::readChannelFinished, this, &TaskWrapper::handleEndOfOutput,
            Qt::DirectConnection);
    connect(m_task, &QProcess::finished, this, &TaskWrapper::FFMpegDidTerminate,
            Qt::DirectConnection);
    connect(m_task, &QProcess::errorOccurred, this, &TaskWrapper::handleProcessError,
            Qt::DirectConnection);
    // Bound to the process object, not to the wrapper, so it also fires while the wrapper is
    // being destroyed on another thread.
    connect(m_task, &QProcess::finished, m_task, [exited = m_exited] { exited->store(true); });

    m_deliverOutput = true;
    if (m_arguments.isEmpty()) {
        handleProcessError(QProcess::FailedToStart);
        return;
    }
    m_task->start(m_arguments.first(), m_arguments.mid(1));
    const qint64 pid = m_task->processId();
    if (pid > 0) {
        // The child joins its own group too; doing it here as well closes the window in which
        // a signal to the group would miss a child that has not run yet.
        ::setpgid(static_cast<pid_t>(pid), static_cast<pid_t>(pid));
        m_pid = pid;
    }
}

void TaskWrapper::waitUntilTaskExit() {
    if (!m_task)
        return;
    if (QThread::currentThread() == m_task->thread()) {
        if (m_task->state() != QProcess::NotRunning)
            m_task->waitForFinished(-1);
        // A failed launch is reported through a queued call; deliver it before returning.
        while (!m_reported.load())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return;
    }
    while (!m_reported.load())
        QThread::msleep(10);
}

void TaskWrapper::suspend() {
    signalChild(SIGSTOP);
}

void TaskWrapper::resume() {
    signalChild(SIGCONT);
}

void TaskWrapper::stopProcess() {
    SXLog::line(QStringLiteral("stop process"));
    m_deliverOutput = false;
    signalChild(SIGTERM);
    // A suspended child only acts on the request once it runs again.
    signalChild(SIGCONT);
    if (TaskWrapperController* controller = m_controller.load())
        controller->processFinished();
}

qint64 TaskWrapper::processId() const {
    return m_pid.load();
}

void TaskWrapper::getData() {
    const QByteArray chunk = m_task->readAll();
    if (chunk.isEmpty() || !m_deliverOutput.load())
        return;
    TaskWrapperController* controller = m_controller.load();
    if (!controller)
        return;
    controller->appendOutput(chunk.isValidUtf8() ? QString::fromUtf8(chunk) : QString());
}

void TaskWrapper::handleEndOfOutput() {
    if (!m_deliverOutput.load())
        return;
    // QProcess also reports the end of output after it has reaped the child; its pid may
    // belong to another process by then.
    if (m_task->processId() == 0)
        m_pid = 0;
    stopProcess();
}

void TaskWrapper::FFMpegDidTerminate(int exitCode, QProcess::ExitStatus exitStatus) {
    // On Unix a child ended by a signal reports CrashExit with the signal number as exit code;
    // it is passed on as a shell would, 128 + the signal, so it never reads as an exit status.
    reportTermination(exitStatus == QProcess::CrashExit ? kSignalStatusBase + exitCode : exitCode);
}

void TaskWrapper::handleProcessError(QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart)
        return; // a crash still ends in finished(), which reports it
    m_pid = 0;
    m_exited->store(true);
    // Always through the event loop, so the report never arrives inside startProcess.
    QMetaObject::invokeMethod(
        m_task, [this] { reportTermination(kLaunchFailedStatus); }, Qt::QueuedConnection);
}

void TaskWrapper::reportTermination(int status) {
    m_pid = 0;
    m_deliverOutput = false;
    m_reported = true;
    SXLog::line(QStringLiteral("ffmpeg did finished:terminate status:%1").arg(status));
    if (TaskWrapperController* controller = m_controller.exchange(nullptr))
        controller->launcherDidTerminatedWithCode(status);
}

void TaskWrapper::signalChild(int signalNumber) const {
    const auto pid = static_cast<pid_t>(m_pid.load());
    if (pid <= 0)
        return;
    // The group reaches the programs a script starts; the pid alone covers a child that has
    // left its group.
    if (::kill(-pid, signalNumber) != 0 && errno == ESRCH)
        ::kill(pid, signalNumber);
}

bool TaskWrapper::waitForExitFlag(int timeoutMs) const {
    int waited = 0;
    while (!m_exited->load()) {
        if (timeoutMs >= 0 && waited >= timeoutMs)
            return false;
        QThread::msleep(10);
        waited += 10;
    }
    return true;
}

void TaskWrapper::releaseProcess() {
    if (!m_task)
        return;
    m_task->disconnect(this);
    m_controller = nullptr;
    if (QThread::currentThread() == m_task->thread()) {
        if (m_task->state() != QProcess::NotRunning && !m_task->waitForFinished(kDestroyGraceMs)) {
            signalChild(SIGKILL);
            m_task->waitForFinished(kKillWaitMs);
        }
        delete m_task;
    } else {
        bool gone = waitForExitFlag(kDestroyGraceMs);
        if (!gone) {
            signalChild(SIGKILL);
            gone = waitForExitFlag(kKillWaitMs);
        }
        // Once the child is gone the process object has cleaned up on its own thread and may be
        // deleted here; otherwise that thread still owns live notifiers and must destroy it.
        if (gone)
            delete m_task;
        else
            m_task->deleteLater();
    }
    m_task = nullptr;
}
