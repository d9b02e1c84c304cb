#pragma once

#include <QListView>

class SXAddRun;
class SXContainerStore;
class SXItemListModel;
class SXItemMoves;
class SXItemRowDelegate;
class SXRowContextMenu;
class SXWorkspacePreview;
class SXWorkspaceScheduler;

// The item list of the selected container: one view for every container of the window, rows
// painted by SXItemRowDelegate over SXItemListModel. The workspace holds the selection; the view
// shows it and reports every change the user makes, so a list with rows never has an empty one.
// Gestures: Delete removes the selection (refused by the workspace during a run), Enter asks
// for a run (startRequested), a double-click or the play button asks the preview to play, a
// right-click, the Menu key or Shift+F10 open the row's context menu, the right button goes to
// the workspace's row-button rule, and rows drag within the list, onto tabs, into other windows
// and out to file managers. An empty list says how to fill it.
class SXItemListView final : public QListView {
    Q_OBJECT
public:
    // The rows and the selection come from the store, drags and drops go to the moves and the
    // add run, the play buttons to the preview, the right buttons to the scheduler.
    SXItemListView(SXContainerStore& store, SXWorkspacePreview& preview, SXAddRun& addRun,
                   SXItemMoves& moves, SXWorkspaceScheduler& scheduler, QWidget* parent = nullptr);

    SXItemListModel& itemModel() const { return *m_model; }
    SXItemRowDelegate& rowDelegate() const { return *m_delegate; }
    SXRowContextMenu& rowMenu() const { return *m_rowMenu; }

Q_SIGNALS:
    // Enter or Return on the list: the window starts a run as its Start item would.
    void startRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void showSelection(const QList<int>& rows);
    void reportSelection();
    void setHoveredRow(int row);
    bool refuseDrag(QDropEvent* event);
    void popupRowMenu(const QModelIndex& index, const QPoint& globalPos);
    void popupRowMenuFromKeyboard();

    SXContainerStore& m_store;
    SXWorkspacePreview& m_preview;
    SXAddRun& m_addRun;
    SXWorkspaceScheduler& m_scheduler;
    SXItemListModel* m_model = nullptr;
    SXItemRowDelegate* m_delegate = nullptr;
    SXRowContextMenu* m_rowMenu = nullptr;
    bool m_showingSelection = false;
};
