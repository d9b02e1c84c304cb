#pragma once

#include <QElapsedTimer>
#include <QObject>

// Measures how long the main thread stays away from its event loop: a zero-interval timer runs
// whenever the loop is idle, so the longest gap between two of its ticks is the longest block.
class MainThreadWatch final : public QObject {
    Q_OBJECT
public:
    explicit MainThreadWatch(QObject* parent = nullptr);
    void start();
    void stop();
    // The longest gap seen, in milliseconds, and how many gaps exceeded `limitMs`.
    double longestBlockMs() const { return m_longestNs / 1e6; }
    int blocksOver(double limitMs) const;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QElapsedTimer m_clock;
    qint64 m_lastNs = 0;
    qint64 m_longestNs = 0;
    QList<qint64> m_longGapsNs; // every gap over 10 ms
    int m_timerId = 0;
};
