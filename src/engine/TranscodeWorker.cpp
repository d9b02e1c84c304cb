#include "engine/TranscodeWorker.h"

#include "base/SXLog.h"
#include "engine/TaskWrapper.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
// How long a worker asked to quit may take before it is killed.
constexpr int kQuitGraceMs = 2000;
constexpr int kOrphanedStatus = 1;
constexpr int kExecFailedStatus = 127;
} // namespace

std::unique_ptr<TranscodeWorker> TranscodeWorker::launch(const QString& program) {
    const QByteArray path = QFile::encodeName(program);
    int toWorker[2];
    int fromWorker[2];
    if (::pipe2(toWorker, O_CLOEXEC) != 0)
        return nullptr;
    if (::pipe2(fromWorker, O_CLOEXEC) != 0) {
        ::close(toWorker[0]);
        ::close(toWorker[1]);
        return nullptr;
    }
    const int devNull = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    const pid_t parent = ::getpid();
    char* const argv[] = {const_cast<char*>(path.constData()), nullptr};
    const pid_t pid = ::fork();
    if (pid == 0) {
        // Between fork and exec: async-signal-safe calls only. As for the ffmpeg children
        // (TaskWrapper): the worker dies with the program, even one killed by SIGKILL; it runs
        // in its own process group and a little nicer than the program.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent)
            ::_exit(kOrphanedStatus);
        ::setpgid(0, 0);
        // The forking thread may block signals (the program's signal watcher does); the worker
        // starts with none blocked.
        sigset_t none;
        sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        [[maybe_unused]] const int niceness = ::nice(TaskWrapper::kChildNicenessIncrement);
        ::dup2(toWorker[0], STDIN_FILENO);
        ::dup2(fromWorker[1], STDOUT_FILENO);
        if (devNull >= 0)
            ::dup2(devNull, STDERR_FILENO);
        // Nothing else of the program's reaches the worker (a pipe of another worker held open
        // here would keep that one from ever seeing the end of its input).
        ::close_range(3, ~0U, 0);
        ::execv(argv[0], argv);
        ::_exit(kExecFailedStatus);
    }
    ::close(toWorker[0]);
    ::close(fromWorker[1]);
    if (devNull >= 0)
        ::close(devNull);
    if (pid < 0) {
        ::close(toWorker[1]);
        ::close(fromWorker[0]);
        return nullptr;
    }
    ::setpgid(pid, pid);
    SXLog::line(QStringLiteral("worker started: %1").arg(pid));
    return std::unique_ptr<TranscodeWorker>(new TranscodeWorker(pid, toWorker[1], fromWorker[0]));
}

TranscodeWorker::TranscodeWorker(pid_t pid, int toWorker, int fromWorker)
    : m_pid(pid)
    , m_toWorker(toWorker)
    , m_fromWorker(fromWorker) {}

TranscodeWorker::~TranscodeWorker() {
    if (!m_reaped) {
        send(QByteArrayLiteral("quit"));
        ::close(m_toWorker);
        m_toWorker = -1;
        // A stopped worker could not act on the request.
        signal(SIGCONT);
        for (int waited = 0; waited < kQuitGraceMs && reap(false) == 0; waited += 10)
            QThread::msleep(10);
        if (!m_reaped) {
            kill();
            reap(true);
        }
    }
    if (m_toWorker >= 0)
        ::close(m_toWorker);
    ::close(m_fromWorker);
}

bool TranscodeWorker::send(const QByteArray& line) {
    if (m_toWorker < 0)
        return false;
    // A worker that died makes the write fail with EPIPE and raise SIGPIPE, which would end the
    // whole program where nothing ignores it: the signal is blocked on this thread for the write
    // and, when it came, taken back before it is unblocked.
    sigset_t pipeSignal;
    sigset_t previous;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &pipeSignal, &previous);
    const QByteArray data = line + '\n';
    qsizetype written = 0;
    bool broken = false;
    while (written < data.size()) {
        const ssize_t n = ::write(m_toWorker, data.constData() + written, data.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            broken = true;
            break;
        }
        written += n;
    }
    if (broken && errno == EPIPE) {
        const timespec none{0, 0};
        while (::sigtimedwait(&pipeSignal, nullptr, &none) < 0 && errno == EINTR) {
        }
    }
    ::pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    return !broken;
}

TranscodeWorker::Read TranscodeWorker::readLine(int timeoutMs, QByteArray* line) {
    while (true) {
        if (const qsizetype end = m_buffer.indexOf('\n'); end >= 0) {
            *line = m_buffer.left(end);
            m_buffer.remove(0, end + 1);
            return Read::Line;
        }
        pollfd in{m_fromWorker, POLLIN, 0};
        const int ready = ::poll(&in, 1, timeoutMs);
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0)
            return Read::Timeout;
        char chunk[4096];
        const ssize_t got = ::read(m_fromWorker, chunk, sizeof chunk);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return Read::Ended;
        m_buffer.append(chunk, got);
    }
}

void TranscodeWorker::signal(int signalNumber) const {
    if (!m_reaped && m_pid > 0)
        ::kill(m_pid, signalNumber);
}

void TranscodeWorker::kill() const {
    signal(SIGKILL);
}

int TranscodeWorker::reap(bool wait) {
    if (m_reaped)
        return m_pid;
    int status = 0;
    pid_t done = 0;
    do {
        done = ::waitpid(m_pid, &status, wait ? 0 : WNOHANG);
    } while (done < 0 && errno == EINTR);
    if (done == m_pid || (done < 0 && errno == ECHILD)) {
        m_reaped = true;
        m_status = done == m_pid ? status : 0;
        return m_pid;
    }
    return 0;
}

bool TranscodeWorker::alive() {
    return reap(false) == 0;
}

QString TranscodeWorker::howItEnded() {
    reap(true);
    if (WIFSIGNALED(m_status))
        return QCoreApplication::translate("ConvertFailure",
                                           "The converter stopped unexpectedly (signal %1)")
            .arg(WTERMSIG(m_status));
    return QCoreApplication::translate("ConvertFailure",
                                       "The converter stopped unexpectedly (exit status %1)")
        .arg(WEXITSTATUS(m_status));
}

QByteArray TranscodeWorker::encode(const QByteArray& value) {
    // Every byte but the unreserved ones, slashes and spaces becomes %XX: a TAB, line break or
    // '%' in a path can never split a field, and the worker decodes any %XX the same way.
    return value.toPercentEncoding(QByteArrayLiteral("/ "));
}

QByteArray TranscodeWorker::decode(const QByteArray& value) {
    return QByteArray::fromPercentEncoding(value);
}
