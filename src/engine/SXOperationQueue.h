#pragma once

#include "engine/SXOperation.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QThreadPool>
#include <memory>

using SXOperationPtr = std::shared_ptr<SXOperation>;

// Runs operations on its own thread pool, at most maxConcurrentOperationCount at a time, in the
// order they were added. The queue keeps each operation alive until its main() has returned
// (or until it was skipped because it had been cancelled while it waited), then lets it go.
class SXOperationQueue : public QObject {
    Q_OBJECT
public:
    explicit SXOperationQueue(QObject* parent = nullptr);
    // Cancels what is left and waits for the running operations to return.
    ~SXOperationQueue() override;

    void setMaxConcurrentOperationCount(int count); // values below 1 count as 1
    int maxConcurrentOperationCount() const;

    void addOperation(SXOperationPtr operation);
    // The operations that have not finished, in the order they were added. A waiting operation
    // that has been cancelled is no longer listed: it will never run.
    QList<SXOperationPtr> operations() const;
    int operationCount() const;
    void cancelAllOperations();
    // Blocks until every added operation has returned or been skipped. Do not call it from a
    // thread that the operations' callbacks wait for (for example the main thread when a
    // listener blocks on it).
    void waitUntilAllOperationsAreFinished();

Q_SIGNALS:
    // Emitted on the worker thread once an operation's main() has returned; skipped (cancelled
    // while waiting) operations emit nothing. The queue has already dropped it from its list.
    void operationFinished(SXOperationPtr operation);

private:
    void runOperation(const SXOperationPtr& operation);
    void forget(const SXOperationPtr& operation);

    QThreadPool m_pool;
    mutable QMutex m_lock;
    QList<SXOperationPtr> m_operations;
};
