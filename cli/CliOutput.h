#pragma once

#include <QString>
#include <cstdio>

// Console output of the tool. Everything goes through stdio in UTF-8, so our lines and the
// core's own perror() lines keep their order on standard error.
namespace CliOutput {

void write(FILE* stream, const QString& text);
inline void line(FILE* stream, const QString& text) {
    write(stream, text + QLatin1Char('\n'));
}
// `text` with every control character made visible, for any line that carries a file name, a
// tag value or another text from outside: ESC, BEL, CR, LF, tab, the other C0 and C1 controls
// and DEL become "\e", "\a", "\r", "\n", "\t" or "\xHH"/"\u00HH", and a backslash is
// doubled so that the escapes cannot be confused with a name that spells them out. A hostile
// name can then neither drive the terminal nor split a line that scripts read one by one.
QString escaped(const QString& text);
// A usage error: one line on standard error; the caller exits with status 2.
void usageError(const QString& reason);
bool stdoutIsTerminal();

} // namespace CliOutput
