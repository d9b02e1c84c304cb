#include "workspace/SXItemMoves.h"

#include "base/SXLog.h"
#include "workspace/SXWorkspaceNotifier.h"
#include "workspace/SXWorkspacePreview.h"

#include <algorithm>

SXItemMoves::SXItemMoves(SXContainerStore& store, SXWorkspacePreview& preview, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_preview(preview) {
    connectNotifier();
}

void SXItemMoves::connectNotifier() {
    connect(SXWorkspaceNotifier::defaultCenter(), &SXWorkspaceNotifier::tableViewAcceptDragIn, this,
            [this](QObject*, const SXMusicInfoList& items, const QString& format) {
                removeDragOutFiles(items, format);
            });
}

void SXItemMoves::disconnectNotifier() {
    disconnect(SXWorkspaceNotifier::defaultCenter(), nullptr, this, nullptr);
}

SXItemMoves::~SXItemMoves() = default;

QByteArray SXItemMoves::dragDataForRows(const QList<int>& rows) const {
    if (m_store.refusedDuringRun())
        return {};
    const SXMusicInfoList list = m_store.getCurTableDatasource();
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

bool SXItemMoves::acceptDrop(const SXMusicInfoList& items, int row, int dropHighlight) {
    if (m_store.refusedDuringRun())
        return false;
    if (items.isEmpty())
        return true;
    const QString source = items.first()->getStrMusicType();
    const QString selected = m_store.getSelectedMusicFormat();
    if (source == selected) {
        const bool after = dropHighlight == DropBelowRow || dropHighlight == DropBelowLastRow;
        reorderWithinContainer(items, after ? row + 1 : row);
    } else {
        dragMusicInfos(items, source, selected, dropHighlight == DropBelowRow ? row + 1 : row);
    }
    refrushTabelAfterDragMusicInfos(items, row);
    return true;
}

void SXItemMoves::reorderWithinContainer(const SXMusicInfoList& items, int insertAt) {
    m_store.editContainer(m_store.getSelectedMusicFormat(), [&](SXMusicInfoList& list) {
        SXMusicInfoList previous;
        for (auto it = items.crbegin(); it != items.crend(); ++it) {
            const int index = SXContainerStore::indexMusicItem(*it, list);
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
    });
    m_store.refreshListView();
}

void SXItemMoves::acceptDropOnTab(const SXMusicInfoList& items, const QString& tabLabel) {
    SXLog::line(QStringLiteral("acceptedDraggingInfo: %1 onTabViewItem: %2")
                    .arg(QString::number(items.size()), tabLabel));
    if (items.isEmpty() || m_store.refusedDuringRun())
        return;
    const QString source = items.first()->getStrMusicType();
    if (source == tabLabel)
        return;
    dragMusicInfos(items, source, tabLabel, -1);
    refrushTabelAfterDragMusicInfos(items, -1);
}

void SXItemMoves::dragMusicInfos(const SXMusicInfoList& items, const QString& fromFormat,
                                 const QString& toFileContainer, int noRow) {
    if (items.isEmpty() || m_store.refusedDuringRun())
        return;
    m_store.editContainer(toFileContainer, [&](SXMusicInfoList& target) {
        SXMusicInfoList copies;
        for (const SXMusicInfoPtr& item : items) {
            SXMusicInfoPtr copy = item->copy();
            copy->setStrMusicType(toFileContainer);
            copy->setDConvertProgress(SXProgress::Waiting);
            copies.append(copy);
        }
        SXContainerStore::removeEqualItems(SXContainerStore::getDuplicateFiles(copies, target),
                                           copies);
        const int at = noRow == -1 ? int(target.size()) : std::clamp(noRow, 0, int(target.size()));
        for (int i = 0; i < copies.size(); ++i)
            target.insert(at + i, copies.at(i));
    });
    m_store.refreshListView();
    // The source may be in another window, whose removal counts only its own containers.
    m_store.refreshTabCount();
    SXWorkspaceNotifier::defaultCenter()->postTableViewAcceptDragIn(this, items, fromFormat);
    // Only now: the source still compared the items by their old container when it let go.
    // A duplicate left no copy behind, but its source item is gone all the same.
    for (const SXMusicInfoPtr& item : items) {
        auto moved = std::make_shared<SXMusicInfo>();
        moved->setStrFilePath(item->strFilePath());
        moved->setStrMusicType(toFileContainer);
        m_preview.checkAndChangePlayingMusicTypeInfo(moved);
    }
}

void SXItemMoves::removeDragOutFiles(const SXMusicInfoList& dragInFiles, const QString& format) {
    // A window that converts keeps its items: the move took copies, so the source stays whole
    // here and its run goes on with every item it counted.
    if (dragInFiles.isEmpty() || m_store.enumAppState() == AppStateConverting ||
        m_store.getDataForFormat(format).isEmpty())
        return;
    m_store.removeFile(dragInFiles, format);
    m_store.refreshListView();
}

void SXItemMoves::refrushTabelAfterDragMusicInfos(const SXMusicInfoList& items, int toRow) {
    Q_UNUSED(toRow); // the drop highlight of that row belongs to the list widget
    m_store.refreshListView();
    const SXMusicInfoList list = m_store.getCurTableDatasource();
    QList<int> rows;
    for (auto it = items.crbegin(); it != items.crend(); ++it) {
        const int index = SXContainerStore::indexMusicItem(*it, list);
        if (index >= 0)
            rows.append(index);
    }
    m_store.setSelectedRows(rows);
}
