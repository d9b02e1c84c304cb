#pragma once

#include <QList>
#include <QObject>

class QSocketNotifier;

// Turns Unix signals into a Qt signal on the thread that owns the watcher (the main thread), for
// both programs: the desktop program and sonoria-cli stop their conversions on SIGINT, SIGTERM
// and SIGHUP with this. The handler only writes the signal number into a pipe (async-signal-safe,
// whatever thread the kernel picks); a socket notifier reads it in the event loop, so a signal
// that arrives before the loop runs waits there. One watcher per process.
class SXSignalWatcher : public QObject {
    Q_OBJECT
public:
    explicit SXSignalWatcher(QObject* parent = nullptr);
    // Gives the watched signals their default action back.
    ~SXSignalWatcher() override;

    // Installs the handlers; false when the pipe or a handler could not be set up, or another
    // watcher is installed.
    bool install(const QList<int>& signalNumbers = terminationSignals());

    // SIGINT (Ctrl-C), SIGTERM (kill, logout, shutdown) and SIGHUP (the terminal was closed).
    static QList<int> terminationSignals();
    // Ignores SIGPIPE for the whole process: a write to a pipe whose reader has gone (for example
    // `sonoria-cli … | head -1`) then fails with EPIPE instead of ending the program in the
    // middle of a run. QProcess gives its children the default action back (tst_taskwrapper).
    static void ignoreBrokenPipe();

Q_SIGNALS:
    void received(int signalNumber);

private:
    void readPipe();

    QSocketNotifier* m_notifier = nullptr;
    QList<int> m_signals;
};
