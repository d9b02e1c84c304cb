#pragma once

#include <QMutex>
#include <QStringList>

// Collects the program's diagnostic lines while it exists, so tests can look for exact texts.
// Other Qt messages pass on to the handler that was installed before.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList lines() const;
    bool contains(const QString& line) const;
    int count(const QString& line) const;
    void clear();
};
