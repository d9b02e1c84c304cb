#include "SXLog.h"

#include <QByteArray>
#include <atomic>
#include <cstdio>
#include <systemd/sd-journal.h>

Q_LOGGING_CATEGORY(lcSonoria, "sonoria", QtInfoMsg)

namespace {
std::atomic<bool> g_mirror{false};
QtMessageHandler g_previous = nullptr;
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
    sd_journal_send("MESSAGE=%s", utf8.constData(), "PRIORITY=6", "SYSLOG_IDENTIFIER=sonoria",
                    nullptr);
    if (g_mirror) {
        std::fprintf(stderr, "%s\n", utf8.constData());
        std::fflush(stderr);
    }
}
