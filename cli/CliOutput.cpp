#include "CliOutput.h"

#include <unistd.h>

namespace CliOutput {

void write(FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

void usageError(const QString& reason) {
    line(stderr, QStringLiteral("sonoria-cli: ") + reason);
}

bool stdoutIsTerminal() {
    return ::isatty(STDOUT_FILENO) == 1;
}

} // namespace CliOutput
