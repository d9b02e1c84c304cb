#include "gui/window/SXContainerTabBar.h"

#include "gui/panels/SXIcons.h"
#include "gui/window/SXCountBadge.h"
#include "workspace/SXWorkspaceContainers.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QSignalBlocker>
#include <QToolButton>

SXContainerTabBar::SXContainerTabBar(SXWorkspaceContainers& workspace, QWidget* parent)
    : QTabBar(parent)
    , m_workspace(workspace) {
    setObjectName(QStringLiteral("containerTabs"));
    setAccessibleName(tr("Containers"));
    setMovable(false);
    setTabsClosable(true);
    setExpanding(false);
    setDocumentMode(true);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);

    m_addButton = new QToolButton(parent);
    m_addButton->setObjectName(QStringLiteral("addFormat"));
    m_addButton->setIcon(SXIcons::icon(QStringLiteral("addFormat"), QStringLiteral("list-add")));
    m_addButton->setToolTip(QStringLiteral("Add new format"));
    m_addButton->setAccessibleName(QStringLiteral("Add new format"));
    m_addButton->setAutoRaise(true);

    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (index >= 0 && index != m_workspace.selectedTabIndex())
            m_workspace.selectTab(index);
    });
    connect(this, &QTabBar::tabCloseRequested, this, &SXContainerTabBar::closeRequested);
    connect(m_addButton, &QToolButton::clicked, &m_workspace, &SXWorkspaceContainers::addContainer);
    connect(&m_workspace, &SXWorkspaceData::tabsChanged, this, &SXContainerTabBar::showTabs);
    connect(&m_workspace, &SXWorkspaceData::tabCountsChanged, this, &SXContainerTabBar::showCounts);
    connect(&m_workspace, &SXWorkspaceData::appStateChanged, this,
            &SXContainerTabBar::refreshCloseButtons);
    showTabs(m_workspace.tabLabels(), m_workspace.selectedTabIndex());
}

void SXContainerTabBar::showTabs(const QStringList& labels, int selectedIndex) {
    const QSignalBlocker blocker(this);
    while (count() > labels.size())
        removeTab(count() - 1);
    for (int i = 0; i < labels.size(); ++i) {
        if (i >= count())
            addTab(labels.at(i));
        setTabText(i, labels.at(i));
        setTabToolTip(i, SXWorkspaceTexts::tabToolTip(
                             m_workspace.getFormatSettingForFormatName(labels.at(i))));
        if (!qobject_cast<SXCountBadge*>(tabButton(i, QTabBar::LeftSide)))
            setTabButton(i, QTabBar::LeftSide, new SXCountBadge(this));
    }
    if (selectedIndex >= 0 && selectedIndex < count())
        setCurrentIndex(selectedIndex);
    m_addButton->setVisible(m_workspace.showAddBtn() &&
                            m_workspace.enumAppState() != AppStateConverting);
    refreshCloseButtons();
    m_workspace.refreshTabCount();
}

void SXContainerTabBar::showCounts(const QStringList& labels, const QList<int>& counts) {
    for (int i = 0; i < labels.size() && i < count(); ++i) {
        auto* badge = qobject_cast<SXCountBadge*>(tabButton(i, QTabBar::LeftSide));
        if (badge)
            badge->setCount(labels.at(i), counts.value(i));
        setAccessibleTabName(i, SXWorkspaceTexts::tabAccessibleName(labels.at(i), counts.value(i)));
    }
    // A wider badge needs a wider tab: QTabBar sizes tabs from their buttons only when it lays
    // itself out, which a button's new size does not cause. Setting the same text again makes it.
    for (int i = 0; i < count(); ++i)
        setTabText(i, tabText(i));
}

void SXContainerTabBar::refreshCloseButtons() {
    const bool running = m_workspace.enumAppState() == AppStateConverting;
    m_addButton->setVisible(m_workspace.showAddBtn() && !running);
    for (int i = 0; i < count(); ++i) {
        QWidget* close = tabButton(i, QTabBar::RightSide);
        if (close)
            close->setVisible(!running && !m_workspace.disableTabClose(tabText(i)));
    }
}

void SXContainerTabBar::closeRequested(int index) {
    m_workspace.selectTab(index);
    m_workspace.closeTab();
}
