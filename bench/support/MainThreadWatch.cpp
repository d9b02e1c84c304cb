#include "MainThreadWatch.h"

#include <QTimerEvent>

#include <algorithm>
#include <cstdio>

MainThreadWatch::MainThreadWatch(QObject* parent)
    : QObject(parent) {}

void MainThreadWatch::start() {
    stop();
    m_clock.start();
    m_lastNs = 0;
    m_longestNs = 0;
    m_longGapsNs.clear();
    // A 5 ms precise timer: a finer one wakes the thread so often that the watch itself takes a
    // share of the two cores away from the conversions it is meant to leave alone.
    m_timerId = startTimer(int(kIntervalNs / 1'000'000), Qt::PreciseTimer);
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
    const qint64 gap = std::max<qint64>(0, now - m_lastNs - kIntervalNs); // the lateness
    m_lastNs = now;
    m_longestNs = std::max(m_longestNs, gap);
    if (gap > 10'000'000)
        m_longGapsNs.append(gap);
    if (m_reportOverMs > 0 && gap / 1e6 > m_reportOverMs)
        std::fprintf(stderr, "block %.1f ms ending at %.3f s\n", gap / 1e6, now / 1e9);
}
