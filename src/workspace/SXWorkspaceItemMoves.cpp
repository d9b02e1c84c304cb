#include "workspace/SXWorkspaceItemMoves.h"

#include "base/SXLog.h"
#include "workspace/SXWorkspaceNotifier.h"

#include <QMutexLocker>
#include <algorithm>

SXWorkspaceItemMoves::SXWorkspaceItemMoves(QObject* parent)
    : SXWorkspaceFileLists(parent) {
    connectNotifier();
}

void SXWorkspaceItemMoves::connectNotifier() {
    connect(SXWorkspaceNotifier::defaultCenter(), &SXWorkspaceNotifier::tableViewAcceptDragIn, this,
            [this](QObject*, const SXMusicInfoList& items, const QString& format) {
                removeDragOutFiles(items, format);
            });
}

SXWorkspaceItemMoves::~SXWorkspaceItemMoves() = default;

void SXWorkspaceItemMoves::moveSelectedTo(int direction) {
    const QList<int> rows = selectedRows();
    const int count = currentTabItemCount();
    const int row = rows.isEmpty() ? -1 : rows.first();
    if (count == 0 || (row == 0 && direction >= 1) || (row == count - 1 && direction < 0)) {
        beep();
        return;
    }
    setSelectedRows({direction < 1 ? row + 1 : row - 1});
}

QByteArray SXWorkspaceItemMoves::dragDataForRows(const QList<int>& rows) const {
    if (refusedDuringRun())
        return {};
    const SXMusicInfoList list = getCurTableDatasource();
    SXMusicInfoList items;
    for (int row : rows) {
        if (row >= 0 && row < list.size())
            items.append(list.at(row));
    }
    if (items.isEmpty())
        return {};
    const QByteArray archive = SXMusicInfo::archiveItems(items);
    QStringList names;
    for (const SXMusicInfoPtr& item : std::as_const(items))
        names.append(item->description());
    SXLog::line(QStringLiteral("the files = %1").arg(names.join(QStringLiteral(", "))));
    return archive;
}

bool SXWorkspaceItemMoves::acceptDrop(const SXMusicInfoList& items, int row, int dropHighlight) {
    if (refusedDuringRun())
        return false;
    if (items.isEmpty())
        return true;
    const QString source = items.first()->getStrMusicType();
    const QString selected = getSelectedMusicFormat();
    if (source == selected) {
        const bool after = dropHighlight == DropBelowRow || dropHighlight == DropBelowLastRow;
        reorderWithinContainer(items, after ? row + 1 : row);
    } else {
        dragMusicInfos(items, source, selected, dropHighlight == DropBelowRow ? row + 1 : row);
    }
    refrushTabelAfterDragMusicInfos(items, row);
    return true;
}

void SXWorkspaceItemMoves::reorderWithinContainer(const SXMusicInfoList& items, int insertAt) {
    {
        QMutexLocker locker(&m_dataLock);
        SXMusicInfoList& list = _dicfmtFiles[getSelectedMusicFormat()];
        SXMusicInfoList previous;
        for (auto it = items.crbegin(); it != items.crend(); ++it) {
            const int index = indexMusicItem(*it, list);
            if (index >= 0)
                previous.append(list.at(index));
        }
        // The dropped items arrive as their own objects (unarchived from a drag), so the block
        // goes in first and the elements they replace are taken out by identity afterwards.
        SXMusicInfoList block;
        for (const SXMusicInfoPtr& item : items)
            block.append(item->copy());
        insertAt = std::clamp(insertAt, 0, int(list.size()));
        for (int i = 0; i < block.size(); ++i)
            list.insert(insertAt + i, block.at(i));
        for (const SXMusicInfoPtr& old : std::as_const(previous))
            list.removeOne(old);
    }
    refreshListView();
}

void SXWorkspaceItemMoves::acceptDropOnTab(const SXMusicInfoList& items, const QString& tabLabel) {
    SXLog::line(QStringLiteral("acceptedDraggingInfo: %1 onTabViewItem: %2")
                    .arg(QString::number(items.size()), tabLabel));
    if (items.isEmpty() || refusedDuringRun())
        return;
    const QString source = items.first()->getStrMusicType();
    if (source == tabLabel)
        return;
    dragMusicInfos(items, source, tabLabel, -1);
    refrushTabelAfterDragMusicInfos(items, -1);
}

void SXWorkspaceItemMoves::dragMusicInfos(const SXMusicInfoList& items, const QString& fromFormat,
                                          const QString& toFileContainer, int noRow) {
    if (items.isEmpty() || refusedDuringRun())
        return;
    {
        QMutexLocker locker(&m_dataLock);
        SXMusicInfoList& target = _dicfmtFiles[toFileContainer];
        SXMusicInfoList copies;
        for (const SXMusicInfoPtr& item : items) {
            SXMusicInfoPtr copy = item->copy();
            copy->setStrMusicType(toFileContainer);
            copy->setDConvertProgress(SXProgress::Waiting);
            copies.append(copy);
        }
        removeEqualItems(getDuplicateFiles(copies, target), copies);
        const int at = noRow == -1 ? int(target.size()) : std::clamp(noRow, 0, int(target.size()));
        for (int i = 0; i < copies.size(); ++i)
            target.insert(at + i, copies.at(i));
    }
    refreshListView();
    // The source may be in another window, whose removal counts only its own containers.
    refreshTabCount();
    SXWorkspaceNotifier::defaultCenter()->postTableViewAcceptDragIn(this, items, fromFormat);
    // Only now: the source still compared the items by their old container when it let go.
    // A duplicate left no copy behind, but its source item is gone all the same.
    for (const SXMusicInfoPtr& item : items) {
        auto moved = std::make_shared<SXMusicInfo>();
        moved->setStrFilePath(item->strFilePath());
        moved->setStrMusicType(toFileContainer);
        checkAndChangePlayingMusicTypeInfo(moved);
    }
}

void SXWorkspaceItemMoves::removeDragOutFiles(const SXMusicInfoList& dragInFiles,
                                              const QString& format) {
    // A window that converts keeps its items: the move took copies, so the source stays whole
    // here and its run goes on with every item it counted.
    if (dragInFiles.isEmpty() || enumAppState() == AppStateConverting ||
        getDataForFormat(format).isEmpty())
        return;
    removeFile(dragInFiles, format);
    refreshListView();
}

void SXWorkspaceItemMoves::refrushTabelAfterDragMusicInfos(const SXMusicInfoList& items,
                                                           int toRow) {
    Q_UNUSED(toRow); // the drop highlight of that row belongs to the list widget
    refreshListView();
    const SXMusicInfoList list = getCurTableDatasource();
    QList<int> rows;
    for (auto it = items.crbegin(); it != items.crend(); ++it) {
        const int index = indexMusicItem(*it, list);
        if (index >= 0)
            rows.append(index);
    }
    setSelectedRows(rows);
}
