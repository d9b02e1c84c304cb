#include "CliOutput.h"

#include <unistd.h>

namespace CliOutput {

void write(FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

QString escaped(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        switch (u) {
        case u'\\':
            result += QStringLiteral("\\\\");
            continue;
        case u'\x1b':
            result += QStringLiteral("\\e");
            continue;
        case u'\a':
            result += QStringLiteral("\\a");
            continue;
        case u'\r':
            result += QStringLiteral("\\r");
            continue;
        case u'\n':
            result += QStringLiteral("\\n");
            continue;
        case u'\t':
            result += QStringLiteral("\\t");
            continue;
        default:
            break;
        }
        if (u < 0x20 || u == 0x7f)
            result += QStringLiteral("\\x%1").arg(int(u), 2, 16, QLatin1Char('0'));
        else if (u >= 0x80 && u < 0xa0)
            result += QStringLiteral("\\u%1").arg(int(u), 4, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result;
}

void usageError(const QString& reason) {
    // The reason may quote an argument, which can hold anything.
    line(stderr, QStringLiteral("sonoria-cli: ") + escaped(reason));
}

bool stdoutIsTerminal() {
    return ::isatty(STDOUT_FILENO) == 1;
}

} // namespace CliOutput
