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
// A usage error: one line on standard error; the caller exits with status 2.
void usageError(const QString& reason);
bool stdoutIsTerminal();

} // namespace CliOutput
