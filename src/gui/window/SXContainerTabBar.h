#pragma once

#include <QTabBar>

class QToolButton;
class SXContainerTabs;

// The row of container tabs over one workspace: a tab per container labelled with its format
// name, a count badge, a close button only where the workspace allows closing, the format's
// description as tool tip, and the add button at the end. Tabs cannot be dragged or torn off.
// Every gesture becomes one call of the workspace; what the tabs show comes from its signals.
class SXContainerTabBar final : public QTabBar {
    Q_OBJECT
public:
    explicit SXContainerTabBar(SXContainerTabs& tabs, QWidget* parent = nullptr);

    // The add button, to be placed after the tabs by the window.
    QToolButton* addButton() const { return m_addButton; }
    // Close buttons come and go with the workspace's state (none during a run).
    void refreshCloseButtons();

private:
    void showTabs(const QStringList& labels, int selectedIndex);
    void showCounts(const QStringList& labels, const QList<int>& counts);
    void closeRequested(int index);
    // The container a tab stands for (its text may be a translation of it).
    QString labelAt(int index) const;

    SXContainerTabs& m_tabs;
    QToolButton* m_addButton = nullptr;
    QList<int> m_counts;
};
