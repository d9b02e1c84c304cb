#include "gui/window/SXRunFeedback.h"

#include "desktop/SXDesktopNotifier.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXWorkspaceScheduler.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QApplication>
#include <QWidget>

SXRunFeedback::SXRunFeedback(QWidget& window, const SXContainerStore& store,
                             SXWorkspaceScheduler& scheduler)
    : QObject(&window)
    , m_window(window)
    , m_store(store) {
    connect(&scheduler, &SXWorkspaceScheduler::totalProgressChanged, this,
            &SXRunFeedback::showProgress);
    connect(&store, &SXContainerStore::appStateChanged, this, &SXRunFeedback::stateChanged);
    connect(&scheduler, &SXWorkspaceScheduler::runFinished, this,
            [this](const QString&, int succeeded, int failed) { runFinished(succeeded, failed); });
}

void SXRunFeedback::showProgress(double percent) {
    const int state = m_store.enumAppState();
    m_window.setWindowTitle(
        SXWorkspaceTexts::windowTitle(QApplication::applicationDisplayName(), state, percent));
    if (state == AppStateConverting)
        m_launcher.showProgress(percent / 100.0);
}

void SXRunFeedback::stateChanged(int state) {
    if (state == AppStateConverting)
        return;
    m_window.setWindowTitle(QApplication::applicationDisplayName());
    m_launcher.hide();
}

void SXRunFeedback::runFinished(int succeeded, int failed) {
    // The summary alert is on the window already; the notification is for a user who is not,
    // and tells how many failed so that nobody takes a finished run for a clean one.
    if (!m_window.isActiveWindow())
        SXDesktopNotifier::notify(tr("Conversion finished"),
                                  SXFailureTexts::runCounts(succeeded, failed));
}
