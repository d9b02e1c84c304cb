#pragma once

#include "engine/ConvertCommandLine.h"

#include <QByteArray>
#include <QString>
#include <atomic>
#include <functional>
#include <mutex>
#include <sys/types.h>

// One job converted by a sonoria-worker of the pool (TranscodeWorkerPool) instead of an ffmpeg
// child: the worker gets the source, the temporary output and the encoder's values of the ffmpeg
// command line the job would otherwise run, so both make the same file. Its progress reports
// drive the same percentages; a worker that dies or stops reporting fails only its job (with
// the reason) and is replaced for the next; one that ended its job cleanly goes back to the pool.
//
// Threads: run() on the conversion's thread; cancel(), pause() and resume() from any thread.
class ConvertWorkerRun {
public:
    struct Result {
        enum class Kind { Done, Failed, Cancelled, NotStarted };
        Kind kind = Kind::NotStarted;
        QString reason;   // Failed: why, in the user's words
        QString decoding; // Done: the decoding trouble met on the way, in ffmpeg's words
    };
    using Progress = std::function<void(double percent)>;

    // `settings`: the encoder's numbers of the job's ffmpeg command line
    // (ConvertCommandLine::settings); `seconds`: the source's duration, which the percentages count
    // against as with ffmpeg (0: unknown, the worker's own estimate then). NotStarted when no
    // worker could be started (the job then goes to ffmpeg); else returns once the job ended.
    Result run(const QString& workerProgram, const QString& source, const QString& output,
               const ConvertEncoderSettings& settings, double seconds, const Progress& progress);
    // Once running: the worker is told to stop and run() returns Cancelled; before: run() returns
    // Cancelled at once.
    void cancel();
    void pause();
    void resume();

    // The protocol's job line.
    static QByteArray jobLine(qint64 id, const QString& source, const QString& output,
                              const ConvertEncoderSettings& settings);

private:
    void publish(pid_t pid);

    std::mutex m_lock; // guards m_pid against the signals of pause and resume
    pid_t m_pid = 0;
    std::atomic<bool> m_cancel{false};
    std::atomic<bool> m_paused{false};
};
