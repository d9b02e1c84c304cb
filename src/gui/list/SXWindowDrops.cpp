#include "gui/list/SXWindowDrops.h"

#include "gui/list/SXItemListModel.h"
#include "workspace/SXAddRun.h"
#include "workspace/SXItemMoves.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTabBar>

SXWindowDrops::SXWindowDrops(QWidget& window, QTabBar& tabBar, SXAddRun& addRun, SXItemMoves& moves)
    : QObject(&window)
    , m_window(window)
    , m_tabBar(tabBar)
    , m_addRun(addRun)
    , m_moves(moves) {
    m_window.setAcceptDrops(true);
    m_tabBar.setAcceptDrops(true);
    m_window.installEventFilter(this);
    m_tabBar.installEventFilter(this);
}

bool SXWindowDrops::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return watched == &m_tabBar ? tabBarEvent(event) : windowEvent(event);
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool SXWindowDrops::windowEvent(QEvent* event) {
    auto* drop = static_cast<QDropEvent*>(event);
    const SXDropContent content = SXItemListModel::dropContent(drop->mimeData());
    // Rows are taken by the list and the tabs only; elsewhere only files and folders.
    if (!SXListDrop::acceptsDrops(m_addRun.store()) || content.urls.isEmpty() ||
        !content.itemArchive.isEmpty()) {
        drop->ignore();
        return true;
    }
    drop->setDropAction(Qt::CopyAction);
    if (event->type() != QEvent::Drop || SXListDrop::dropOnWindow(m_addRun, content))
        drop->accept();
    else
        drop->ignore();
    return true;
}

bool SXWindowDrops::tabBarEvent(QEvent* event) {
    auto* drop = static_cast<QDropEvent*>(event);
    const SXDropContent content = SXItemListModel::dropContent(drop->mimeData());
    if (content.itemArchive.isEmpty())
        return windowEvent(event); // files dropped on the tabs go to the shown container
    if (!SXListDrop::acceptsDropOnTab(m_moves.store(), content)) {
        drop->ignore();
        return true;
    }
    drop->setDropAction(Qt::CopyAction);
    // Entering anywhere on the bar is taken, so that the moves over each tab are reported.
    const int tab = m_tabBar.tabAt(drop->position().toPoint());
    const bool taken =
        event->type() == QEvent::DragEnter ||
        (tab >= 0 && (event->type() == QEvent::DragMove ||
                      SXListDrop::dropOnTab(m_moves, content, m_tabBar.tabData(tab).toString())));
    drop->setAccepted(taken);
    return true;
}
