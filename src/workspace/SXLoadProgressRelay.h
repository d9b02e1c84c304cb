#pragma once

#include <QMutex>
#include <QObject>
#include <QString>
#include <atomic>
#include <functional>
#include <optional>

// Carries a loader's reports from its worker thread to the main thread, at most one delivery
// per 25 ms: the newest text and fraction win. A batch of thousands of short files then wakes
// the window a few dozen times a second instead of twice per file. Whatever was reported last
// is always delivered.
class SXLoadProgressRelay {
public:
    // Called on the main thread with what changed since the last delivery.
    using Deliver =
        std::function<void(const std::optional<QString>& text, const std::optional<double>& value)>;

    // `context` lives on the main thread and outlives the reports (deliveries die with it).
    SXLoadProgressRelay(QObject& context, Deliver deliver);

    // Delivers at once what waits (main thread): the end of a batch comes after its reports.
    void flush();
    // Forgets what was not delivered yet (a new batch begins).
    void clear();
    // Any thread.
    void reportText(const QString& text);
    void reportValue(double value);

private:
    void post();
    void deliver(); // main thread
    // What waits, taken out; both empty when nothing does. The caller holds the lock.
    bool takePending(std::optional<QString>& text, std::optional<double>& value);

    static constexpr int kIntervalMs = 25;

    QObject& m_context;
    Deliver m_deliver;
    QMutex m_lock;
    std::optional<QString> m_text;
    std::optional<double> m_value;
    std::atomic<bool> m_posted{false};
};
