#pragma once

#include "model/SXMusicInfo.h"
#include "workspace/SXListDrop.h"

#include <QAbstractListModel>

class SXAddRun;
class SXContainerStore;
class SXItemMoves;

// The rows of the selected container of one workspace. The workspace's list is the truth: the
// model keeps a copy of it, taken again whenever the workspace says the list changed. Each row's
// display text is its file name, so a screen reader reads the rows; everything a row paints
// comes from the item's cached fields.
//
// Drags carry the items in the private type (archived by the workspace) and the source files as
// text/uri-list, so a file manager copies them; only copies are offered, never moves. Drops go
// to the workspace's drop rules.
class SXItemListModel final : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { ItemRole = Qt::UserRole + 1, ProgressRole };

    SXItemListModel(SXContainerStore& store, SXItemMoves& moves, SXAddRun& addRun,
                    QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }

    SXMusicInfoPtr itemAt(int row) const;
    // The items' progress changed: every row repaints its state.
    void redrawRows();

    // What a drag carries, in the workspace's terms.
    static SXDropContent dropContent(const QMimeData* data);

private:
    void reload();

    SXContainerStore& m_store;
    SXItemMoves& m_moves;
    SXAddRun& m_addRun;
    SXMusicInfoList m_rows;
};
