#include "WindowScreenshot.h"

#include "gui/application/SXDesktopApp.h"
#include "gui/window/SXMainAppController.h"
#include "workspace/SXWorkspace.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QTimer>

#include <cstdio>

namespace {

// Loading may be slow on a busy machine; after this long the picture is taken as it is.
constexpr int kLongestWaitMs = 60000;
constexpr int kPollMs = 100;
constexpr int kSettlePolls = 3;

void saveAndExit(SXMainAppController& window, const QString& file) {
    const bool saved = window.grab().save(file, "PNG");
    if (!saved)
        std::fprintf(stderr, "sonoria: cannot write %s\n", qPrintable(file));
    // exit(), not quit(): quitting asks the window, which may want to ask the user.
    QCoreApplication::exit(saved ? 0 : 1);
}

} // namespace

void saveWindowScreenshotFromEnvironment(SXDesktopApp& app) {
    const QString file = qEnvironmentVariable("SONORIA_SCREENSHOT");
    if (file.isEmpty())
        return;
    auto* poll = new QTimer(&app);
    poll->setInterval(kPollMs);
    QObject::connect(
        poll, &QTimer::timeout, &app, [poll, file, &app, waited = 0, idlePolls = 0]() mutable {
            SXMainAppController* window = app.coreWindow();
            waited += kPollMs;
            const bool idle = window && window->workspace().store().enumAppState() == AppStateIdle;
            idlePolls = idle ? idlePolls + 1 : 0;
            // Idle for a few polls: the rows queued to the main thread are drawn.
            if (!window || (idlePolls < kSettlePolls && waited < kLongestWaitMs))
                return;
            poll->stop();
            if (window->workspace().store().currentTabItemCount() > 0)
                window->workspace().store().setSelectedRows({0});
            saveAndExit(*window, file);
        });
    poll->start();
}
