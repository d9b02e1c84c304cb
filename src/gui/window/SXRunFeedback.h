#pragma once

#include "desktop/SXLauncherProgress.h"

#include <QObject>

class QWidget;
class SXContainerStore;
class SXWorkspaceScheduler;

// What a run shows outside the window's own controls: the total in the window title, the bar on
// the application's launcher, and a desktop notification of the summary when the user is
// looking at another window.
class SXRunFeedback final : public QObject {
    Q_OBJECT
public:
    SXRunFeedback(QWidget& window, const SXContainerStore& store, SXWorkspaceScheduler& scheduler);

private:
    void showProgress(double percent);
    void stateChanged(int state);
    void runFinished(int succeeded, int failed);

    QWidget& m_window;
    const SXContainerStore& m_store;
    SXLauncherProgress m_launcher;
};
