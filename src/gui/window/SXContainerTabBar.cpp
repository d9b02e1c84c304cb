#include "gui/window/SXContainerTabBar.h"

#include "gui/panels/SXIcons.h"
#include "gui/window/SXCountBadge.h"
#include "workspace/SXCatalogueTexts.h"
#include "workspace/SXCommandValidation.h"
#include "workspace/SXContainerTabs.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QSignalBlocker>
#include <QToolButton>

SXContainerTabBar::SXContainerTabBar(SXContainerTabs& tabs, QWidget* parent)
    : QTabBar(parent)
    , m_tabs(tabs) {
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
    m_addButton->setToolTip(tr("Add new format"));
    m_addButton->setAccessibleName(tr("Add new format"));
    m_addButton->setAutoRaise(true);

    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (index >= 0 && index != m_tabs.store().selectedTabIndex())
            m_tabs.selectTab(index);
    });
    connect(this, &QTabBar::tabCloseRequested, this, &SXContainerTabBar::closeRequested);
    connect(m_addButton, &QToolButton::clicked, &m_tabs, &SXContainerTabs::addContainer);
    connect(&m_tabs.store(), &SXContainerStore::tabsChanged, this, &SXContainerTabBar::showTabs);
    connect(&m_tabs.store(), &SXContainerStore::tabCountsChanged, this,
            &SXContainerTabBar::showCounts);
    connect(&m_tabs.store(), &SXContainerStore::appStateChanged, this,
            &SXContainerTabBar::refreshCloseButtons);
    showTabs(m_tabs.store().tabLabels(), m_tabs.store().selectedTabIndex());
}

void SXContainerTabBar::showTabs(const QStringList& labels, int selectedIndex) {
    const QSignalBlocker blocker(this);
    while (count() > labels.size())
        removeTab(count() - 1);
    for (int i = 0; i < labels.size(); ++i) {
        if (i >= count())
            addTab(QString());
        // What a tab shows may be translated; the container's own name travels as its data.
        setTabText(i, SXCatalogueTexts::formatName(labels.at(i)));
        setTabData(i, labels.at(i));
        setTabToolTip(i, SXWorkspaceTexts::tabToolTip(
                             m_tabs.store().getFormatSettingForFormatName(labels.at(i))));
        if (!qobject_cast<SXCountBadge*>(tabButton(i, QTabBar::LeftSide)))
            setTabButton(i, QTabBar::LeftSide, new SXCountBadge(this));
    }
    if (selectedIndex >= 0 && selectedIndex < count())
        setCurrentIndex(selectedIndex);
    m_addButton->setVisible(
        sxAddContainerButtonShown(m_tabs.store().enumAppState(), m_tabs.showAddBtn()));
    refreshCloseButtons();
    m_tabs.store().refreshTabCount();
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
    const int state = m_tabs.store().enumAppState();
    m_addButton->setVisible(sxAddContainerButtonShown(state, m_tabs.showAddBtn()));
    for (int i = 0; i < count(); ++i) {
        QWidget* close = tabButton(i, QTabBar::RightSide);
        if (close)
            close->setVisible(sxTabCloseButtonShown(state, !m_tabs.disableTabClose(labelAt(i))));
    }
}

void SXContainerTabBar::closeRequested(int index) {
    m_tabs.closeContainer(labelAt(index));
}

QString SXContainerTabBar::labelAt(int index) const {
    return tabData(index).toString();
}
