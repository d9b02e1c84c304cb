#include "workspace/SXWorkspace.h"

#include "base/SXThreadAffinity.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/SXWorkspaceNotifier.h"

#include <QPointer>

SXWorkspace::SXWorkspace(QObject* parent)
    : QObject(parent) {
    m_tabs.removeallTabs();
    SXWindowRegistry::instance().registerWindow(this);
    m_registered = true;
    for (QObject* part : std::initializer_list<QObject*>{this, &m_store, &m_preview, &m_tabs,
                                                         &m_addRun, &m_moves, &m_scheduler})
        sxAssertSignalsOnOwnerThread(part);
}

SXWorkspace::~SXWorkspace() {
    if (m_registered)
        SXWindowRegistry::instance().unregisterWindow(this);
}

void SXWorkspace::reNewDefaultWindow() {
    m_tabs.removeallTabs();
    m_tabs.addDefaultTabs();
    m_store.refreshListView();
    m_store.refreshTabCount();
}

void SXWorkspace::windowShouldClose(std::function<void(bool mayClose)> decided) {
    const bool last = SXWindowRegistry::instance().registeredWindows().size() < 2;
    if (!last || m_store.getTotalNeedConvertMusic() == 0) {
        closeAfterAnswer(last);
        decided(true);
        return;
    }
    m_store.runAlert({tr("Warnning"),
                      tr("Do you want to close all window without save information?"),
                      {tr("Cancel"), tr("OK")}},
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
    m_preview.stopPreviewInContainers(m_store.containerNames());
    // A closed window leaves nothing half-written behind.
    m_scheduler.abandonRun();
    if (last) {
        for (const QString& name : m_store.containerNames())
            m_store.createListForFormat(name);
        m_store.refreshListView();
        m_store.refreshTabCount();
        Q_EMIT lastWorkspaceClosing();
    }
    SXWindowRegistry::instance().unregisterWindow(this);
    m_registered = false;
    m_moves.disconnectNotifier();
}

void SXWorkspace::registerAgain() {
    if (m_registered)
        return;
    SXWindowRegistry::instance().registerWindow(this);
    m_registered = true;
    m_moves.connectNotifier();
}
