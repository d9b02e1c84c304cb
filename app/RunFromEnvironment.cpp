#include "RunFromEnvironment.h"

#include "Gui/App/SXAppDelegate.h"
#include "Gui/Window/SXMainAppController.h"
#include "Workspace/SXWorkspace.h"

#include <QTimer>

namespace {

constexpr int kPollMs = 100;

} // namespace

void startRunFromEnvironment(SXAppDelegate& delegate) {
    const QString folder = qEnvironmentVariable("SONORIA_TEST_RUN_INTO");
    if (folder.isEmpty())
        return;
    auto* poll = new QTimer(&delegate);
    poll->setInterval(kPollMs);
    QObject::connect(poll, &QTimer::timeout, &delegate, [poll, folder, &delegate] {
        SXMainAppController* window = delegate.coreMainWndCtlr();
        if (!window || window->workspace().enumAppState() != AppStateIdle ||
            window->workspace().getTotalNeedConvertMusic() == 0)
            return;
        poll->stop();
        poll->deleteLater();
        window->workspace().doRealConverterTask(folder);
    });
    poll->start();
}
