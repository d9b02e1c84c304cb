#pragma once

#include "workspace/SXCommandValidation.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QToolBar;
class SXItemStateView;
class SXContainerStore;
class SXWorkspaceScheduler;

// The toolbar of a workspace window: Start/Stop, tag editor, file information, preferences,
// help and the state strip. It relabels Start and enables each item from the workspace's state
// (sxValidateToolbarCommand) whenever that state, the lists or the selection change.
class SXWindowToolbar final : public QObject {
    Q_OBJECT
public:
    SXWindowToolbar(QMainWindow& window, const SXContainerStore& store,
                    SXWorkspaceScheduler& scheduler);

    QToolBar* toolBar() const { return m_toolBar; }
    SXItemStateView* stateView() const { return m_stateView; }
    QAction* action(SXCommand command) const { return m_actions.value(command); }
    void validateToolbarItems();

Q_SIGNALS:
    void commandTriggered(SXCommand command);

private:
    QAction* add(SXCommand command, const QString& text, const QString& image,
                 const QString& themeIcon);

    const SXContainerStore& m_store;
    QToolBar* m_toolBar = nullptr;
    SXItemStateView* m_stateView = nullptr;
    QHash<SXCommand, QAction*> m_actions;
};
