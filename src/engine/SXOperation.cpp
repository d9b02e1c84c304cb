#include "engine/SXOperation.h"

#include <QMutexLocker>

SXOperation::~SXOperation() = default;

void SXOperation::cancel() {
    QMutexLocker locker(&m_phaseLock);
    m_cancelled = true;
}

bool SXOperation::beginExecuting() {
    QMutexLocker locker(&m_phaseLock);
    if (m_cancelled.load()) {
        m_phase = Phase::Finished;
        return false;
    }
    m_phase = Phase::Executing;
    return true;
}

void SXOperation::markFinished() {
    QMutexLocker locker(&m_phaseLock);
    m_phase = Phase::Finished;
}
