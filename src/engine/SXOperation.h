#pragma once

#include <QMutex>
#include <atomic>

// One unit of work for an SXOperationQueue. The queue calls main() once on one of its worker
// threads, unless the operation was cancelled before its turn came; then main() never runs.
// Subclasses that cancel work in progress override cancel() and call the base version.
class SXOperation {
public:
    SXOperation() = default;
    virtual ~SXOperation();
    SXOperation(const SXOperation&) = delete;
    SXOperation& operator=(const SXOperation&) = delete;

    virtual void main() = 0;
    // Marks the operation cancelled. Callable from any thread.
    virtual void cancel();

    bool isCancelled() const { return m_cancelled.load(); }
    bool isExecuting() const { return m_phase.load() == Phase::Executing; }
    bool isFinished() const { return m_phase.load() == Phase::Finished; }

private:
    friend class SXOperationQueue;
    enum class Phase { Pending, Executing, Finished };

    // Called by the queue on the worker thread. The check of the cancel flag and the move to
    // Executing happen under one lock, so a cancel either wins (main never runs) or arrives
    // while main runs (and main sees it).
    bool beginExecuting();
    void markFinished();

    mutable QMutex m_phaseLock;
    std::atomic<bool> m_cancelled{false};
    std::atomic<Phase> m_phase{Phase::Pending};
};
