#include "workspace/SXRedrawThrottle.h"

#include <QTimer>

SXRedrawThrottle::SXRedrawThrottle(QObject& context, int intervalMs, std::function<void()> call)
    : m_context(context)
    , m_intervalMs(intervalMs)
    , m_call(std::move(call)) {}

void SXRedrawThrottle::request() {
    if (m_waiting.exchange(true))
        return; // a call is on its way and will show this request's state too
    QMetaObject::invokeMethod(
        &m_context,
        [this] {
            QTimer::singleShot(m_intervalMs, &m_context, [this] {
                // Cleared before the call: a request made while it draws brings another.
                m_waiting.store(false);
                m_call();
            });
        },
        Qt::QueuedConnection);
}
