#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <atomic>
#include <memory>

class TaskWrapperController;

// Runs one external program once as a child process and streams its merged standard output and
// standard error to a controller. The child gets its own process group, so signals reach the
// programs a shell script starts, and /dev/null as standard input, so it never reads the
// terminal. It is killed (SIGKILL) when the thread that started it ends, so it never outlives
// the program, not even one killed with SIGKILL. A wrapper is used for one run and then
// destroyed.
class TaskWrapper : public QObject {
    Q_OBJECT
public:
    // arguments[0] is the executable, the rest are its arguments. Nothing starts yet. The
    // controller is not owned; it is cleared once the termination has been reported.
    TaskWrapper(TaskWrapperController* controller, const QStringList& arguments);
    // Stops the child and, when it outlives a short grace after the terminate request, kills it.
    // No callback reaches the controller after destruction apart from the processFinished of the
    // final stop (when the child had not terminated yet).
    ~TaskWrapper() override;

    TaskWrapper(const TaskWrapper&) = delete;
    TaskWrapper& operator=(const TaskWrapper&) = delete;

    // Sends processStarted, then launches the child. Output and termination are delivered
    // through the calling thread's event loop, which must keep running (and the thread must not
    // end: the child dies with it) until the termination has been reported. A program that cannot
    // be launched is reported (through that event loop) as a termination with status 127. A second
    // call does nothing.
    void startProcess();
    // Blocks until the child has exited and its termination has been reported. On the starting
    // thread this processes the child's events itself; on another thread it relies on the
    // starting thread's event loop.
    void waitUntilTaskExit();
    // SIGSTOP / SIGCONT to the child's process group; no report. Callable from any thread.
    void suspend();
    void resume();
    // Logs "stop process", stops delivering output, asks the child to terminate (SIGTERM, then
    // SIGCONT so a suspended child can act on it) and reports processFinished while a controller
    // is set. Every call repeats the request and the report. Callable from any thread.
    void stopProcess();

    // Process id of the running child; 0 before the launch and after the termination.
    qint64 processId() const;

    // Grace between the terminate request and the kill when a wrapper is destroyed.
    static constexpr int kDestroyGraceMs = 2000;
    // A child ended by signal N is reported with status kSignalStatusBase + N.
    static constexpr int kSignalStatusBase = 128;
    // How much nicer than this process the children run.
    static constexpr int kChildNicenessIncrement = 4;

private:
    void getData();
    void handleEndOfOutput();
    void FFMpegDidTerminate(int exitCode, QProcess::ExitStatus exitStatus);
    void handleProcessError(QProcess::ProcessError error);
    void reportTermination(int status);
    void signalChild(int signalNumber) const;
    bool waitForExitFlag(int timeoutMs) const;
    void releaseProcess();

    QProcess* m_task = nullptr; // lives on the thread that called startProcess
    std::atomic<TaskWrapperController*> m_controller;
    QStringList m_arguments;
    std::atomic<qint64> m_pid{0};
    std::atomic<bool> m_deliverOutput{false};
    std::atomic<bool> m_reported{false}; // the termination has been reported
    // Set once the child is gone (or never ran). Shared with a handler bound to the process
    // object so it stays valid while the wrapper is being destroyed.
    std::shared_ptr<std::atomic<bool>> m_exited = std::make_shared<std::atomic<bool>>(false);
};
