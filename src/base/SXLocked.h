#pragma once

#include <QMutex>

// Whole-field reads and writes under a record's lock: a list drawing on the main thread must
// never see half of a value that a worker is writing.
template <class T> T sxLockedGet(QMutex& lock, const T& field) {
    QMutexLocker guard(&lock);
    return field;
}

template <class T> void sxLockedSet(QMutex& lock, T& field, const T& value) {
    QMutexLocker guard(&lock);
    field = value;
}
