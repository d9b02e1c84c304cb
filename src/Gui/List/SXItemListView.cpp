#include "Gui/List/SXItemListView.h"

#include "Workspace/SXWorkspaceItemMoves.h"

SXItemListView::SXItemListView(SXWorkspaceItemMoves& workspace, QWidget* parent)
    : QListView(parent)
    , m_workspace(workspace) {
    setObjectName(QStringLiteral("itemList"));
    setAccessibleName(tr("Files"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformItemSizes(true);
}
