#include "MainThreadWatch.h"

#include <QTimerEvent>

MainThreadWatch::MainThreadWatch(QObject* parent)
    : QObject(parent) {}

void MainThreadWatch::start() {
    m_clock.start();
    m_lastNs = 0;
    // A 1 ms precise timer: ticks as often as the loop comes back, without spinning a core.
    m_timerId = startTimer(1, Qt::PreciseTimer);
}

void MainThreadWatch::stop() {
    if (m_timerId)
        killTimer(m_timerId);
    m_timerId = 0;
}

int MainThreadWatch::blocksOver(double limitMs) const {
    int count = 0;
    for (qint64 gap : m_longGapsNs)
        count += gap / 1e6 > limitMs ? 1 : 0;
    return count;
}

void MainThreadWatch::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timerId)
        return;
    const qint64 now = m_clock.nsecsElapsed();
    const qint64 gap = now - m_lastNs;
    m_lastNs = now;
    m_longestNs = std::max(m_longestNs, gap);
    if (gap > 10'000'000)
        m_longGapsNs.append(gap);
}
