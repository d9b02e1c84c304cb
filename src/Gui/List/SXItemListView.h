#pragma once

#include <QListView>

class SXWorkspaceItemMoves;

// The item list of the selected container. One view for every container of the window: the
// rows come from a model over the workspace's shown list.
class SXItemListView final : public QListView {
    Q_OBJECT
public:
    explicit SXItemListView(SXWorkspaceItemMoves& workspace, QWidget* parent = nullptr);

private:
    SXWorkspaceItemMoves& m_workspace;
};
