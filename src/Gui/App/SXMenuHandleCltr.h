#pragma once

#include "Workspace/SXCommandValidation.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;

// The main menu: one action per command, shared by the menu bars of every workspace window so
// that a shortcut is the same action as its item. Which items are enabled is asked of
// sxValidateMenuCommand, both when a menu opens and whenever the application's state changes;
// the beep of a fixed container's close item sounds only when a menu opens.
class SXMenuHandleCltr final : public QObject {
    Q_OBJECT
public:
    explicit SXMenuHandleCltr(QObject* parent = nullptr);

    // Gives `window` a menu bar with every menu.
    void installInto(QMainWindow& window);
    QAction* action(SXCommand command) const { return m_actions.value(command); }
    // Sets every action's enabled state; `menuOpening` lets validation beep.
    void validate(const SXCommandContext& context, bool menuOpening);

Q_SIGNALS:
    void commandTriggered(SXCommand command);
    // A menu is about to open: validate now, beeps allowed.
    void menuAboutToShow();
    // Validation refused an item with a beep (the key window's presenter sounds it).
    void beepRequested();

private:
    QAction* make(SXCommand command, const QString& text, const QKeySequence& shortcut);
    void addMenu(QMenuBar* bar, const QString& title, const QList<SXCommand>& commands);

    QHash<SXCommand, QAction*> m_actions;
};
