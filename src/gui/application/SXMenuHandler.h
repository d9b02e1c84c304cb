#pragma once

#include "workspace/SXCommandValidation.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;

// The main menu: one action per command, shared by the menu bars of every workspace window so
// that a shortcut is the same action as its item. Which items are enabled is asked of
// sxValidateMenuCommand, both when a menu opens and whenever the application's state changes.
// Menu titles carry the window's first mnemonics (&File, &List, &Convert, &Help); the window's
// other controls take letters these leave free.
class SXMenuHandler final : public QObject {
    Q_OBJECT
public:
    explicit SXMenuHandler(QObject* parent = nullptr);

    // Gives `window` a menu bar with every menu.
    void installInto(QMainWindow& window);
    QAction* action(SXCommand command) const { return m_actions.value(command); }
    // Sets every action's enabled state.
    void validate(const SXCommandContext& context);

Q_SIGNALS:
    void commandTriggered(SXCommand command);
    // A menu is about to open: validate now.
    void menuAboutToShow();

private:
    QAction* make(SXCommand command, const QString& text, const QKeySequence& shortcut);
    QAction* make(SXCommand command, const QString& text, const QList<QKeySequence>& shortcuts);
    void addMenu(QMenuBar* bar, const QString& title, const QList<SXCommand>& commands);

    QHash<SXCommand, QAction*> m_actions;
};
