#include "workspace/SXWorkspace.h"

#include "base/SXThreadAffinity.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/SXWorkspaceNotifier.h"

#include <QPointer>

SXWorkspace::SXWorkspace(QObject* parent)
    : SXWorkspaceScheduler(parent) {
    removeallTabs();
    SXWindowRegistry::instance().registerWindow(this);
    m_registered = true;
    sxAssertSignalsOnOwnerThread(this);
}

SXWorkspace::~SXWorkspace() {
    if (m_registered)
        SXWindowRegistry::instance().unregisterWindow(this);
}

void SXWorkspace::reNewDefaultWindow() {
    removeallTabs();
    addDefaultTabs();
    refreshListView();
    refreshTabCount();
}

void SXWorkspace::windowShouldClose(std::function<void(bool mayClose)> decided) {
    const bool last = SXWindowRegistry::instance().registeredWindows().size() < 2;
    if (!last || getTotalNeedConvertMusic() == 0) {
        closeAfterAnswer(last);
        decided(true);
        return;
    }
    runAlert({QStringLiteral("Warnning"),
              QStringLiteral("Do you want to close all window without save information?"),
              {QStringLiteral("Cancel"), QStringLiteral("OK")}},
             [guard = QPointer(this), decided](int chosen) {
                 if (!guard || chosen == 0) {
                     decided(false);
                     return;
                 }
                 guard->closeAfterAnswer(true);
                 decided(true);
             });
}

void SXWorkspace::closeAfterAnswer(bool last) {
    stopPreviewInContainers(containerNames());
    // A closed window leaves nothing half-written behind.
    abandonRun();
    if (last) {
        for (const QString& name : containerNames())
            createListForFormat(name);
        refreshListView();
        refreshTabCount();
        Q_EMIT lastWorkspaceClosing();
    }
    SXWindowRegistry::instance().unregisterWindow(this);
    m_registered = false;
    disconnect(SXWorkspaceNotifier::defaultCenter(), nullptr, this, nullptr);
}

void SXWorkspace::registerAgain() {
    if (m_registered)
        return;
    SXWindowRegistry::instance().registerWindow(this);
    m_registered = true;
    connectNotifier();
}
