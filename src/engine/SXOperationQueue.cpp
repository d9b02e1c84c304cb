#include "engine/SXOperationQueue.h"

#include <QMutexLocker>
#include <algorithm>

SXOperationQueue::SXOperationQueue(QObject* parent)
    : QObject(parent) {
    qRegisterMetaType<SXOperationPtr>("SXOperationPtr");
    // A conversion holds its thread for minutes; keeping idle threads around buys nothing.
    m_pool.setExpiryTimeout(5000);
}

SXOperationQueue::~SXOperationQueue() {
    cancelAllOperations();
    m_pool.waitForDone();
}

void SXOperationQueue::setMaxConcurrentOperationCount(int count) {
    m_pool.setMaxThreadCount(std::max(1, count));
}

int SXOperationQueue::maxConcurrentOperationCount() const {
    return m_pool.maxThreadCount();
}

void SXOperationQueue::addOperation(SXOperationPtr operation) {
    if (!operation)
        return;
    {
        QMutexLocker locker(&m_lock);
        m_operations.append(operation);
    }
    m_pool.start([this, operation] { runOperation(operation); });
}

QList<SXOperationPtr> SXOperationQueue::operations() const {
    QMutexLocker locker(&m_lock);
    QList<SXOperationPtr> waitingOrRunning;
    for (const SXOperationPtr& operation : m_operations) {
        const bool skipped = operation->isCancelled() && !operation->isExecuting();
        if (!skipped && !operation->isFinished())
            waitingOrRunning.append(operation);
    }
    return waitingOrRunning;
}

int SXOperationQueue::operationCount() const {
    return static_cast<int>(operations().size());
}

void SXOperationQueue::cancelAllOperations() {
    QList<SXOperationPtr> all;
    {
        QMutexLocker locker(&m_lock);
        all = m_operations;
    }
    // Outside the lock: a cancel may stop a child process and call back into its operation.
    for (const SXOperationPtr& operation : all)
        operation->cancel();
}

void SXOperationQueue::waitUntilAllOperationsAreFinished() {
    m_pool.waitForDone();
}

void SXOperationQueue::runOperation(const SXOperationPtr& operation) {
    if (!operation->beginExecuting()) {
        forget(operation);
        return;
    }
    operation->main();
    operation->markFinished();
    forget(operation);
    Q_EMIT operationFinished(operation);
}

void SXOperationQueue::forget(const SXOperationPtr& operation) {
    QMutexLocker locker(&m_lock);
    m_operations.removeOne(operation);
}
