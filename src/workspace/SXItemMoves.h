#pragma once

#include "workspace/SXContainerStore.h"

#include <QByteArray>
#include <QObject>

class SXWorkspacePreview;

// Moving items: row moves in the shown list, reordering inside a container by a drop, and
// moving items into another container, also into a container of another workspace. The source
// side of such a move is told through SXWorkspaceNotifier, so every workspace with a container
// of the source name gives the items up. A part of SXWorkspace: the items live in its store; a
// moved item that plays stays the preview's item.
class SXItemMoves final : public QObject {
    Q_OBJECT
public:
    // Drop positions of a list widget, by value.
    enum DropHighlight { DropOnRow = 0, DropBelowRow = 1, DropAboveRow = 2, DropBelowLastRow = 3 };

    SXItemMoves(SXContainerStore& store, SXWorkspacePreview& preview, QObject* parent = nullptr);
    ~SXItemMoves() override;

    SXContainerStore& store() const { return m_store; }

    // Every move is refused during a run, with a beep, and no item leaves a converting window's
    // containers, not even for a move out of another window.
    // The drag source: an archive of the items of `rows` (SXMusicInfo::unarchiveItems reads it);
    // empty, meaning refused, during a conversion or when nothing can be archived.
    QByteArray dragDataForRows(const QList<int>& rows) const;
    // Dragged items dropped on the shown list at `row`; false when refused.
    bool acceptDrop(const SXMusicInfoList& items, int row, int dropHighlight);
    // Dragged items dropped on the tab labelled `tabLabel`: appended to that container.
    void acceptDropOnTab(const SXMusicInfoList& items, const QString& tabLabel);
    // Copies of `items` go into `toFileContainer` at `noRow` (-1: at the end), waiting, without
    // paths already there; then every workspace drops the items from `fromFormat`.
    void dragMusicInfos(const SXMusicInfoList& items, const QString& fromFormat,
                        const QString& toFileContainer, int noRow);
    void removeDragOutFiles(const SXMusicInfoList& dragInFiles, const QString& format);
    // Selects the rows of the shown list that hold the moved items.
    void refrushTabelAfterDragMusicInfos(const SXMusicInfoList& items, int toRow);

    // Listens to moves out of other workspaces (again after a closed window is revived), or no
    // longer (a closed window).
    void connectNotifier();
    void disconnectNotifier();

private:
    void reorderWithinContainer(const SXMusicInfoList& items, int insertAt);

    SXContainerStore& m_store;
    SXWorkspacePreview& m_preview;
};
