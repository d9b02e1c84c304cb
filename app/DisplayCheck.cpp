#include "DisplayCheck.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>

namespace {

bool platformChosen(int argc, char** argv) {
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    // Qt reads "-platform NAME" (and "--platform") itself when the application object is made.
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "-platform") == 0 || std::strcmp(argv[i], "--platform") == 0)
            return true;
    }
    return false;
}

} // namespace

bool refusedWithoutDisplay(int argc, char** argv) {
    if (!qEnvironmentVariableIsEmpty("DISPLAY") ||
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || platformChosen(argc, argv))
        return false;
    const QString message = QCoreApplication::translate(
        "main", "sonoria: cannot open a window (no display). Use sonoria-cli to convert from a "
                "terminal.");
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return true;
}
