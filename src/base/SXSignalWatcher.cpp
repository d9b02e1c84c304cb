#include "base/SXSignalWatcher.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Both ends are close-on-exec so the children never hold them; the write end is non-blocking so
// a burst of signals can never block the handler (a full pipe drops the byte: the ones already
// in it are enough to act on).
int g_pipe[2] = {-1, -1};

extern "C" void onSignal(int signalNumber) {
    const int savedErrno = errno;
    const auto byte = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t written = ::write(g_pipe[1], &byte, 1);
    errno = savedErrno;
}

bool setAction(int signalNumber, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = handler == SIG_DFL || handler == SIG_IGN ? 0 : SA_RESTART;
    return ::sigaction(signalNumber, &action, nullptr) == 0;
}

} // namespace

SXSignalWatcher::SXSignalWatcher(QObject* parent)
    : QObject(parent) {}

SXSignalWatcher::~SXSignalWatcher() {
    if (!m_notifier)
        return;
    for (const int signalNumber : std::as_const(m_signals))
        setAction(signalNumber, SIG_DFL);
    delete m_notifier;
    ::close(g_pipe[0]);
    ::close(g_pipe[1]);
    g_pipe[0] = g_pipe[1] = -1;
}

bool SXSignalWatcher::install(const QList<int>& signalNumbers) {
    if (g_pipe[0] >= 0)
        return false; // one watcher per process
    if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    m_notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SXSignalWatcher::readPipe);

    bool installed = true;
    for (const int signalNumber : signalNumbers) {
        if (setAction(signalNumber, onSignal))
            m_signals.append(signalNumber);
        else
            installed = false;
    }
    return installed;
}

QList<int> SXSignalWatcher::terminationSignals() {
    return {SIGINT, SIGTERM, SIGHUP};
}

void SXSignalWatcher::ignoreBrokenPipe() {
    setAction(SIGPIPE, SIG_IGN);
}

void SXSignalWatcher::readPipe() {
    unsigned char byte = 0;
    while (::read(g_pipe[0], &byte, 1) == 1)
        Q_EMIT received(int(byte));
}
