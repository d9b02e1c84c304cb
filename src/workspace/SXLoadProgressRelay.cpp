#include "workspace/SXLoadProgressRelay.h"

#include <QMutexLocker>
#include <QTimer>

SXLoadProgressRelay::SXLoadProgressRelay(QObject& context, Deliver deliver)
    : m_context(context)
    , m_deliver(std::move(deliver)) {}

void SXLoadProgressRelay::clear() {
    QMutexLocker locker(&m_lock);
    m_text.reset();
    m_value.reset();
}

void SXLoadProgressRelay::reportText(const QString& text) {
    {
        QMutexLocker locker(&m_lock);
        m_text = text;
    }
    post();
}

void SXLoadProgressRelay::reportValue(double value) {
    {
        QMutexLocker locker(&m_lock);
        m_value = value;
    }
    post();
}

void SXLoadProgressRelay::post() {
    if (!m_posted.exchange(true))
        QMetaObject::invokeMethod(
            &m_context, [this] { deliver(); }, Qt::QueuedConnection);
}

bool SXLoadProgressRelay::takePending(std::optional<QString>& text, std::optional<double>& value) {
    text.swap(m_text);
    value.swap(m_value);
    return text || value;
}

void SXLoadProgressRelay::flush() {
    std::optional<QString> text;
    std::optional<double> value;
    {
        QMutexLocker locker(&m_lock);
        if (!takePending(text, value))
            return;
    }
    m_deliver(text, value);
}

void SXLoadProgressRelay::deliver() {
    std::optional<QString> text;
    std::optional<double> value;
    {
        QMutexLocker locker(&m_lock);
        if (!takePending(text, value)) {
            // Idle again: the next report posts anew. Cleared under the lock, so a report
            // cannot slip in between and find the flag still set.
            m_posted.store(false);
            return;
        }
    }
    m_deliver(text, value);
    // Reports of the next interval gather meanwhile; this delivers them, or finds none.
    QTimer::singleShot(kIntervalMs, &m_context, [this] { deliver(); });
}
