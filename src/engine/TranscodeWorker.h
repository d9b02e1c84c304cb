#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <sys/types.h>

// One sonoria-worker process and the two pipes to it: its standard input takes the protocol's
// lines, its standard output gives its reports (the protocol is described in
// worker/WorkerProtocol.h). Not tied to any thread: any thread may use it, one at a time; only
// pid() and signal() may be called from another thread meanwhile.
class TranscodeWorker {
public:
    // Starts `program`. Must be called on a thread that lives at least as long as the process
    // (TranscodeWorkerPool's launcher): the child is killed when the thread that forked it ends.
    // nullptr when it cannot be started.
    static std::unique_ptr<TranscodeWorker> launch(const QString& program);
    // Asks the process to quit, and kills it when it has not gone after a short grace.
    ~TranscodeWorker();
    TranscodeWorker(const TranscodeWorker&) = delete;
    TranscodeWorker& operator=(const TranscodeWorker&) = delete;

    pid_t pid() const { return m_pid; }
    // Writes one line (its end of line added). False when the worker no longer reads.
    bool send(const QByteArray& line);

    enum class Read { Line, Timeout, Ended };
    // The next report, waiting up to `timeoutMs`. Ended: the worker closed its output (it died).
    Read readLine(int timeoutMs, QByteArray* line);
    void signal(int signalNumber) const;
    void kill() const;
    // Waits for the process to end and says how it did, as the user reads it.
    QString howItEnded();
    // Whether the process is still there (an idle one may have been killed meanwhile).
    bool alive();

    // The protocol's value encoding: '%' and control bytes as %XX.
    static QByteArray encode(const QByteArray& value);
    static QByteArray decode(const QByteArray& value);

private:
    TranscodeWorker(pid_t pid, int toWorker, int fromWorker);
    int reap(bool wait);

    pid_t m_pid = 0;
    int m_toWorker = -1;
    int m_fromWorker = -1;
    QByteArray m_buffer;
    bool m_reaped = false;
    int m_status = 0;
};
