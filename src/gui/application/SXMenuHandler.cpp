#include "gui/application/SXMenuHandler.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>

namespace {
// Commands after which a separator follows in their menu.
constexpr SXCommand kSeparatorAfter[] = {SXCommand::CloseTab, SXCommand::Preferences,
                                         SXCommand::Clear, SXCommand::PreviousContainer};

// The platform's binding for a standard key when its theme has one (some have none for Quit or
// Preferences), else the usual one of Linux desktops.
QKeySequence standardOr(QKeySequence::StandardKey key, QKeyCombination fallback) {
    return QKeySequence::keyBindings(key).value(0, QKeySequence(fallback));
}
} // namespace

SXMenuHandler::SXMenuHandler(QObject* parent)
    : QObject(parent) {
    make(SXCommand::NewContainer, tr("&New Container"),
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
    make(SXCommand::Open, tr("&Open…"), QKeySequence::Open);
    make(SXCommand::NewFormat, tr("New &Format"), QKeySequence(Qt::CTRL | Qt::Key_T));
    make(SXCommand::CloseTab, tr("&Close Container"), QKeySequence(Qt::CTRL | Qt::Key_W));
    make(SXCommand::Preferences, tr("&Preferences…"),
         standardOr(QKeySequence::Preferences, Qt::CTRL | Qt::Key_Comma));
    make(SXCommand::Quit, tr("&Quit"), standardOr(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q));
    make(SXCommand::Delete, tr("&Delete"), QKeySequence::Delete);
    make(SXCommand::Clear, tr("C&lear"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace));
    make(SXCommand::NextRow, tr("&Next File"), QKeySequence(Qt::ALT | Qt::Key_Down));
    make(SXCommand::PreviousRow, tr("&Previous File"), QKeySequence(Qt::ALT | Qt::Key_Up));
    // Containers cycle as tabs do everywhere: Ctrl+Tab and Ctrl+Page Down forward, back with
    // Shift or Page Up. With Shift held the window system delivers Tab as Backtab; both are
    // bound, so the keys work whichever arrives.
    make(SXCommand::NextContainer, tr("Next &Container"),
         {QKeySequence(Qt::CTRL | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageDown)});
    make(SXCommand::PreviousContainer, tr("Previous Conta&iner"),
         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab),
          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
          QKeySequence(Qt::CTRL | Qt::Key_PageUp)});
    make(SXCommand::TagEditor, tr("Edit &Tags…"), QKeySequence(Qt::CTRL | Qt::Key_E));
    make(SXCommand::FileInfo, tr("File Inf&ormation"), QKeySequence(Qt::CTRL | Qt::Key_I));
    make(SXCommand::Start, tr("&Start"), QKeySequence(Qt::CTRL | Qt::Key_Return));
    make(SXCommand::Stop, tr("S&top"), QKeySequence(Qt::CTRL | Qt::Key_Period));
    make(SXCommand::Help, tr("Sonoria &Help"), standardOr(QKeySequence::HelpContents, Qt::Key_F1));
    make(SXCommand::Feedback, tr("Send &Feedback…"), QKeySequence());
    make(SXCommand::Website, tr("Sonoria &Website"), QKeySequence());
    make(SXCommand::About, tr("&About Sonoria"), QKeySequence());
}

QAction* SXMenuHandler::make(SXCommand command, const QString& text, const QKeySequence& shortcut) {
    return make(command, text, QList<QKeySequence>{shortcut});
}

QAction* SXMenuHandler::make(SXCommand command, const QString& text,
                             const QList<QKeySequence>& shortcuts) {
    auto* action = new QAction(text, this);
    action->setShortcuts(shortcuts);
    action->setShortcutContext(Qt::WindowShortcut);
    connect(action, &QAction::triggered, this,
            [this, command] { Q_EMIT commandTriggered(command); });
    m_actions.insert(command, action);
    return action;
}

void SXMenuHandler::installInto(QMainWindow& window) {
    QMenuBar* bar = window.menuBar();
    addMenu(bar, tr("&File"),
            {SXCommand::NewContainer, SXCommand::Open, SXCommand::NewFormat, SXCommand::CloseTab,
             SXCommand::Preferences, SXCommand::Quit});
    addMenu(bar, tr("&List"),
            {SXCommand::Delete, SXCommand::Clear, SXCommand::NextRow, SXCommand::PreviousRow,
             SXCommand::NextContainer, SXCommand::PreviousContainer, SXCommand::TagEditor,
             SXCommand::FileInfo});
    addMenu(bar, tr("&Convert"), {SXCommand::Start, SXCommand::Stop});
    addMenu(bar, tr("&Help"),
            {SXCommand::Help, SXCommand::Feedback, SXCommand::Website, SXCommand::About});
    // Shortcuts of the shared actions work in every window that shows them.
    window.addActions(m_actions.values());
}

void SXMenuHandler::addMenu(QMenuBar* bar, const QString& title, const QList<SXCommand>& commands) {
    QMenu* menu = bar->addMenu(title);
    for (SXCommand command : commands) {
        menu->addAction(m_actions.value(command));
        if (std::find(std::begin(kSeparatorAfter), std::end(kSeparatorAfter), command) !=
                std::end(kSeparatorAfter) &&
            command != commands.last())
            menu->addSeparator();
    }
    connect(menu, &QMenu::aboutToShow, this, &SXMenuHandler::menuAboutToShow);
}

void SXMenuHandler::validate(const SXCommandContext& context) {
    // Validation only greys items out: a menu that opens never beeps, a refused command does.
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it)
        it.value()->setEnabled(sxValidateMenuCommand(it.key(), context).enabled);
}
