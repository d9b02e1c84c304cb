#pragma once

#include <QObject>

class QTabBar;
class QWidget;
class SXAddRun;
class SXItemMoves;

// Drops on a workspace window outside its list: files and folders from a file manager anywhere
// in the window start an add run; rows dragged onto a container's tab move there. It watches
// the window and its tab bar; the list view takes its own drops.
class SXWindowDrops final : public QObject {
    Q_OBJECT
public:
    SXWindowDrops(QWidget& window, QTabBar& tabBar, SXAddRun& addRun, SXItemMoves& moves);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool windowEvent(QEvent* event);
    bool tabBarEvent(QEvent* event);

    QWidget& m_window;
    QTabBar& m_tabBar;
    SXAddRun& m_addRun;
    SXItemMoves& m_moves;
};
