#include "CliSignalWatcher.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Both ends are close-on-exec so the ffmpeg children never hold them; the write end is
// non-blocking so a burst of signals can never block the handler.
int g_pipe[2] = {-1, -1};

extern "C" void onSignal(int signalNumber) {
    const int savedErrno = errno;
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t written = ::write(g_pipe[1], &byte, 1);
    errno = savedErrno;
}

} // namespace

CliSignalWatcher::CliSignalWatcher(QObject* parent)
    : QObject(parent) {}

CliSignalWatcher::~CliSignalWatcher() {
    if (g_pipe[0] < 0)
        return;
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    delete m_notifier;
    ::close(g_pipe[0]);
    ::close(g_pipe[1]);
    g_pipe[0] = g_pipe[1] = -1;
}

bool CliSignalWatcher::install() {
    if (g_pipe[0] >= 0)
        return false; // one watcher per process
    if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    m_notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &CliSignalWatcher::readPipe);

    struct sigaction action {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    return ::sigaction(SIGINT, &action, nullptr) == 0 &&
           ::sigaction(SIGTERM, &action, nullptr) == 0;
}

void CliSignalWatcher::readPipe() {
    unsigned char byte = 0;
    while (::read(g_pipe[0], &byte, 1) == 1)
        Q_EMIT received(int(byte));
}
