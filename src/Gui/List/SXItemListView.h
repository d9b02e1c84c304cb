#pragma once

#include <QListView>

class SXItemListModel;
class SXItemRowDelegate;
class SXWorkspaceScheduler;

// The item list of the selected container: one view for every container of the window, rows
// painted by SXItemRowDelegate over SXItemListModel. The workspace holds the selection; the view
// shows it and reports every change the user makes, so a list with rows never has an empty one.
// Gestures: Delete removes the selection (refused by the workspace during a run), Enter asks
// for a run (startRequested), a double-click or the play button asks the preview to play, a
// right-click or the right button go to the workspace's row-button rule, and rows drag within
// the list, onto tabs, into other windows and out to file managers.
class SXItemListView final : public QListView {
    Q_OBJECT
public:
    explicit SXItemListView(SXWorkspaceScheduler& workspace, QWidget* parent = nullptr);

    SXItemListModel& itemModel() const { return *m_model; }
    SXItemRowDelegate& rowDelegate() const { return *m_delegate; }

Q_SIGNALS:
    // Enter or Return on the list: the window starts a run as its Start item would.
    void startRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void showSelection(const QList<int>& rows);
    void reportSelection();
    void setHoveredRow(int row);
    bool refuseDrag(QDropEvent* event);

    SXWorkspaceScheduler& m_workspace;
    SXItemListModel* m_model = nullptr;
    SXItemRowDelegate* m_delegate = nullptr;
    bool m_showingSelection = false;
};
