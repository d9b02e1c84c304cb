#include "SXLog.h"

#include <QByteArray>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <systemd/sd-journal.h>
#include <thread>

Q_LOGGING_CATEGORY(lcSonoria, "sonoria", QtInfoMsg)

namespace {
std::atomic<bool> g_mirror{false};
QtMessageHandler g_previous = nullptr;

void sendToJournal(const QByteArray& line) {
    sd_journal_send("MESSAGE=%s", line.constData(), "PRIORITY=6", "SYSLOG_IDENTIFIER=sonoria",
                    nullptr);
}

// A journal entry is a socket write of tens of microseconds, more when journald is busy, and a
// run starting 1,000 conversions logs a line per item on the window's thread. Lines therefore go
// to a writer thread, in the order they were logged. The writer is never destroyed (objects
// destroyed at exit still log); at exit it sends what waits and later lines go out directly.
class JournalWriter {
public:
    static JournalWriter& shared() {
        static auto* writer = new JournalWriter;
        return *writer;
    }

    void post(QByteArray line) {
        std::unique_lock lock(m_mutex);
        if (m_stopped) {
            lock.unlock();
            sendToJournal(line);
            return;
        }
        if (!m_thread.joinable()) {
            m_thread = std::thread([this] { run(); });
            std::atexit([] { shared().stop(); });
        }
        m_lines.push_back(std::move(line));
        m_wake.notify_one();
    }

private:
    void stop() {
        {
            std::lock_guard lock(m_mutex);
            m_stopped = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }

    void run() {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_wake.wait(lock, [this] { return m_stopped || !m_lines.empty(); });
            if (m_lines.empty())
                return; // stopped, and everything sent
            std::deque<QByteArray> batch;
            batch.swap(m_lines);
            lock.unlock();
            for (const QByteArray& line : batch)
                sendToJournal(line);
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<QByteArray> m_lines;
    std::thread m_thread;
    bool m_stopped = false;
};
} // namespace

void SXLog::line(const QString& text) {
    qCInfo(lcSonoria).noquote() << text;
}

void SXLog::install(bool mirrorToStandardError) {
    g_mirror = mirrorToStandardError;
    QtMessageHandler previous = qInstallMessageHandler(&SXLog::handle);
    if (previous != &SXLog::handle)
        g_previous = previous;
}

bool SXLog::verboseFromEnvironment() {
    const QByteArray value = qgetenv("SONORIA_VERBOSE");
    return !value.isEmpty() && value != "0";
}

void SXLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (qstrcmp(context.category, lcSonoria().categoryName()) != 0) {
        if (g_previous)
            g_previous(type, context, message);
        else
            std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
        return;
    }
    const QByteArray utf8 = message.toUtf8();
    JournalWriter::shared().post(utf8);
    if (g_mirror) {
        std::fprintf(stderr, "%s\n", utf8.constData());
        std::fflush(stderr);
    }
}
