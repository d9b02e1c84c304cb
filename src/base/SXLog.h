#pragma once

#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcSonoria)

// The program's diagnostic lines. They are free text without levels and their wording is part of
// the interface (scripts and tests look for them), so callers pass the finished line.
// Lines go to the system journal; standard error gets a copy only when asked for.
class SXLog {
public:
    static void line(const QString& text);

    // Installs the message handler. Call once, early in main().
    static void install(bool mirrorToStandardError);

    // True when SONORIA_VERBOSE is set to a non-empty value other than "0".
    static bool verboseFromEnvironment();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);
};
