#include "RunFromEnvironment.h"

#include "gui/application/SXDesktopApp.h"
#include "gui/window/SXMainAppController.h"
#include "workspace/SXWorkspace.h"

#include <QTimer>

namespace {

constexpr int kPollMs = 100;

} // namespace

void startRunFromEnvironment(SXDesktopApp& app) {
    const QString folder = qEnvironmentVariable("SONORIA_TEST_RUN_INTO");
    if (folder.isEmpty())
        return;
    auto* poll = new QTimer(&app);
    poll->setInterval(kPollMs);
    QObject::connect(poll, &QTimer::timeout, &app, [poll, folder, &app] {
        SXMainAppController* window = app.coreWindow();
        if (!window || window->workspace().store().enumAppState() != AppStateIdle ||
            window->workspace().store().getTotalNeedConvertMusic() == 0)
            return;
        poll->stop();
        poll->deleteLater();
        window->workspace().scheduler().doRealConverterTask(folder);
    });
    poll->start();
}
