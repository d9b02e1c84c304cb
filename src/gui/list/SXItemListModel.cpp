#include "gui/list/SXItemListModel.h"

#include "workspace/SXAddRun.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXItemMoves.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

SXItemListModel::SXItemListModel(SXContainerStore& store, SXItemMoves& moves, SXAddRun& addRun,
                                 QObject* parent)
    : QAbstractListModel(parent)
    , m_store(store)
    , m_moves(moves)
    , m_addRun(addRun) {
    connect(&m_store, &SXContainerStore::listChanged, this, &SXItemListModel::reload);
    connect(&m_store, &SXContainerStore::tabsChanged, this, &SXItemListModel::reload);
    m_rows = m_store.getCurTableDatasource();
}

void SXItemListModel::reload() {
    beginResetModel();
    m_rows = m_store.getCurTableDatasource();
    endResetModel();
}

void SXItemListModel::redrawRows() {
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(m_rows.size()) - 1), {ProgressRole});
}

int SXItemListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

SXMusicInfoPtr SXItemListModel::itemAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row) : nullptr;
}

QVariant SXItemListModel::data(const QModelIndex& index, int role) const {
    const SXMusicInfoPtr item = itemAt(index.row());
    if (!item || index.column() != 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return QFileInfo(item->strFilePath()).fileName();
    case Qt::ToolTipRole:
        return SXFailureTexts::rowToolTip(*item);
    case ItemRole:
        return QVariant::fromValue(item);
    case ProgressRole:
        return item->dConvertProgress();
    default:
        return {};
    }
}

Qt::ItemFlags SXItemListModel::flags(const QModelIndex& index) const {
    // Rows take drops between them only; the list as a whole takes them at its end.
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

QStringList SXItemListModel::mimeTypes() const {
    return {QString::fromLatin1(kSXItemsMimeType), QStringLiteral("text/uri-list")};
}

QMimeData* SXItemListModel::mimeData(const QModelIndexList& indexes) const {
    QList<int> rows;
    for (const QModelIndex& index : indexes)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    const QByteArray archive = m_moves.dragDataForRows(rows);
    if (archive.isEmpty())
        return nullptr; // refused: a run is going on
    auto* data = new QMimeData;
    data->setData(QString::fromLatin1(kSXItemsMimeType), archive);
    QList<QUrl> urls;
    for (int row : std::as_const(rows))
        urls.append(QUrl::fromLocalFile(m_rows.at(row)->strFilePath()));
    data->setUrls(urls);
    return data;
}

bool SXItemListModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                                      const QModelIndex&) const {
    return data && SXListDrop::acceptsDrops(m_store) &&
           (data->hasFormat(QString::fromLatin1(kSXItemsMimeType)) || data->hasUrls());
}

bool SXItemListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                   const QModelIndex& parent) {
    if (!data || action == Qt::IgnoreAction)
        return false;
    // Between rows the view names the row below; at the end of the list it names none.
    const int insertRow = row >= 0 && !parent.isValid() ? row : int(m_rows.size());
    return SXListDrop::dropOnList(m_moves, m_addRun, dropContent(data), insertRow);
}

SXDropContent SXItemListModel::dropContent(const QMimeData* data) {
    SXDropContent content;
    if (!data)
        return content;
    content.itemArchive = data->data(QString::fromLatin1(kSXItemsMimeType));
    if (data->hasUrls())
        content.urls = data->urls();
    return content;
}
