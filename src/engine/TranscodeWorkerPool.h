#pragma once

#include "engine/TranscodeWorker.h"

#include <QString>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

// The sonoria-worker processes of the program. A conversion takes one for its job and gives it
// back when the job ended cleanly, so the next job of its scheduler slot reuses it: at most as
// many exist as conversions run at once. One left idle for a few seconds (the run is over) is
// ended, and so are all of them when the program exits.
//
// Why a launcher thread: the kernel kills a worker (PR_SET_PDEATHSIG) when the *thread* that
// forked it ends, not the process. Conversions run on the operation queue's pool threads, which
// expire when idle; a worker forked there would be killed under the next job of its slot, which
// may run on another thread. So every worker is forked on the pool's own thread, which lives as
// long as the pool, that is until the program exits: then the workers die with it, even when the
// program was killed and cleans up nothing.
class TranscodeWorkerPool {
public:
    static TranscodeWorkerPool& instance();

    // An idle worker of `program`, or a new one; nullptr when none can be started.
    std::unique_ptr<TranscodeWorker> acquire(const QString& program);
    // Takes back a worker whose job ended with its report; it waits for the next job.
    void release(std::unique_ptr<TranscodeWorker> worker, const QString& program);
    // Ends the idle workers now.
    void endIdle();
    int idleCount() const;

    // How long a worker may go without a report while converting before it counts as hanging
    // (a paused conversion never does). Tests shorten it.
    static void setHangTimeout(std::chrono::milliseconds timeout);
    static std::chrono::milliseconds hangTimeout();

private:
    TranscodeWorkerPool();
    ~TranscodeWorkerPool();
    void launcherLoop();
    void endExpired(std::unique_lock<std::mutex>& lock);

    struct Launch {
        QString program;
        std::promise<std::unique_ptr<TranscodeWorker>> result;
    };
    struct Idle {
        std::unique_ptr<TranscodeWorker> worker;
        QString program;
        std::chrono::steady_clock::time_point since;
    };

    mutable std::mutex m_lock;
    std::condition_variable m_wake;
    std::deque<Launch*> m_launches;
    std::vector<Idle> m_idle;
    bool m_stopping = false;
    std::thread m_launcher; // last: started once everything above exists
};
