#pragma once

#include <QElapsedTimer>
#include <QObject>

// Measures how long the main thread stays away from its event loop: a 5 ms timer notices its own
// lateness, and the longest lateness is the longest block (to within the timer's slack).
class MainThreadWatch final : public QObject {
    Q_OBJECT
public:
    explicit MainThreadWatch(QObject* parent = nullptr);
    // Starts afresh: what an earlier start measured is forgotten.
    void start();
    void stop();
    // The longest gap seen, in milliseconds, and how many gaps exceeded `limitMs`.
    double longestBlockMs() const { return m_longestNs / 1e6; }
    int blocksOver(double limitMs) const;
    // Prints every gap over `ms` with its time on standard error as it happens (0: none).
    void reportBlocksOver(double ms) { m_reportOverMs = ms; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QElapsedTimer m_clock;
    qint64 m_lastNs = 0;
    qint64 m_longestNs = 0;
    QList<qint64> m_longGapsNs; // every gap over 10 ms
    static constexpr qint64 kIntervalNs = 5'000'000;
    int m_timerId = 0;
    double m_reportOverMs = 0;
};
