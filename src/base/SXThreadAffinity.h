#pragma once

#include <QObject>

// Front ends connect to the workspace's signals without queued connections, so a signal emitted
// from a worker would run widget code on that worker. In debug builds this watches every signal
// that `object`'s class declares (its QObject base excepted) and asserts that it is emitted on
// the thread the object lives in. Call it from the most derived constructor. Release builds do
// nothing.
void sxAssertSignalsOnOwnerThread(QObject* object);

// The watcher behind it: a child of the watched object whose slot every signal reaches directly.
class SXSignalThreadCheck : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

public Q_SLOTS:
    void emitted();
};
