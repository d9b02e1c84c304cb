#include "base/SXThreadAffinity.h"

#include <QMetaMethod>
#include <QThread>

void SXSignalThreadCheck::emitted() {
    Q_ASSERT_X(QThread::currentThread() == parent()->thread(), "workspace signal",
               "emitted off the thread its object lives in");
}

void sxAssertSignalsOnOwnerThread(QObject* object) {
#ifdef QT_NO_DEBUG
    Q_UNUSED(object);
#else
    auto* check = new SXSignalThreadCheck(object);
    const QMetaMethod slot =
        check->metaObject()->method(check->metaObject()->indexOfSlot("emitted()"));
    const QMetaObject* meta = object->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            QObject::connect(object, method, check, slot, Qt::DirectConnection);
    }
#endif
}
