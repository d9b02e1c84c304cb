#include "Workspace/SXWorkspace.h"

#include "Model/SXDataEngine.h"
#include "Workspace/SXWorkspaceNotifier.h"

SXWorkspace::SXWorkspace(QObject* parent)
    : SXWorkspaceScheduler(parent) {
    removeallTabs();
    SXDataEngine::shareInstance()->addNewMainWndCtlr(this);
    m_registered = true;
}

SXWorkspace::~SXWorkspace() {
    if (m_registered)
        SXDataEngine::shareInstance()->removeMainWndCtlr(this);
}

void SXWorkspace::reNewDefaultWindow() {
    removeallTabs();
    addDefaultTabs();
    refreshListView();
    refreshTabCount();
}

bool SXWorkspace::windowShouldClose() {
    if (SXDataEngine::shareInstance()->getAllMainWndCtlr().size() < 2) {
        if (getTotalNeedConvertMusic() > 0) {
            const int chosen = runAlert(
                {QStringLiteral("Warnning"),
                 QStringLiteral("Do you want to close all window without save information?"),
                 {QStringLiteral("Cancel"), QStringLiteral("OK")}});
            if (chosen == 0)
                return false;
        }
        for (const QString& name : containerNames())
            createArrayForFormate(name);
        refreshListView();
        refreshTabCount();
        Q_EMIT lastWorkspaceClosing();
    }
    SXDataEngine::shareInstance()->removeMainWndCtlr(this);
    m_registered = false;
    disconnect(SXWorkspaceNotifier::defaultCenter(), nullptr, this, nullptr);
    return true;
}
