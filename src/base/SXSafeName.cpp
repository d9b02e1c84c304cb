#include "base/SXSafeName.h"

#include <QStringView>

namespace {
bool isTrimmedAtEnd(QChar c) {
    return c == u'.' || c.isSpace();
}
} // namespace

QString SXSafeName::component(const QString& text, int maxBytes) {
    QString clean;
    clean.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            clean += c;
            clean += text.at(++i);
        } else if (c.isSurrogate() || c == u'/') {
            clean += u'_'; // a lone half of a pair has no UTF-8 form
        } else if (c.category() == QChar::Other_Control) {
            clean += u' '; // NUL, tabs, line breaks: a gap, not words run together
        } else {
            clean += c;
        }
    }
    clean = clean.trimmed();
    if (!clean.isEmpty() && (clean.front() == u'.' || clean.front() == u'-'))
        clean.front() = u'_';

    // Cut at the last whole character that fits; a pair of surrogates is one character.
    int bytes = 0;
    qsizetype end = 0;
    while (end < clean.size()) {
        const qsizetype width = clean.at(end).isHighSurrogate() ? 2 : 1;
        const int size = int(QStringView(clean).mid(end, width).toUtf8().size());
        if (bytes + size > maxBytes)
            break;
        bytes += size;
        end += width;
    }
    clean.truncate(end);
    while (!clean.isEmpty() && isTrimmedAtEnd(clean.back()))
        clean.chop(1);
    return clean.isEmpty() ? QStringLiteral("_") : clean;
}
