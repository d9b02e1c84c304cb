#pragma once

#include <QObject>
#include <atomic>
#include <functional>

// Turns many requests from any thread into at most one call per interval on the main thread.
// Two conversions of short files report progress hundreds of times a second; repainting the
// list for each report cost the window a core the converters needed. A request always leads to
// a call after it, so the last state is drawn.
class SXRedrawThrottle {
public:
    // `context` lives on the main thread and owns this (calls die with it).
    SXRedrawThrottle(QObject& context, int intervalMs, std::function<void()> call);

    // Any thread.
    void request();

private:
    QObject& m_context;
    const int m_intervalMs;
    std::function<void()> m_call;
    std::atomic<bool> m_waiting{false};
};
