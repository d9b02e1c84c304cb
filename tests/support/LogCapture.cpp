#include "LogCapture.h"

#include "base/SXLog.h"

#include <cstring>

namespace {
QMutex g_lock;
QStringList g_lines;
QtMessageHandler g_previous = nullptr;

void capture(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (context.category && std::strcmp(context.category, lcSonoria().categoryName()) == 0) {
        QMutexLocker guard(&g_lock);
        g_lines << message;
        return;
    }
    if (g_previous)
        g_previous(type, context, message);
}
} // namespace

LogCapture::LogCapture() {
    clear();
    g_previous = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture() {
    qInstallMessageHandler(g_previous);
}

QStringList LogCapture::lines() const {
    QMutexLocker guard(&g_lock);
    return g_lines;
}

bool LogCapture::contains(const QString& line) const {
    return lines().contains(line);
}

int LogCapture::count(const QString& line) const {
    return int(lines().count(line));
}

void LogCapture::clear() {
    QMutexLocker guard(&g_lock);
    g_lines.clear();
}
