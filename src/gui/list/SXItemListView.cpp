#include "gui/list/SXItemListView.h"

#include "gui/list/SXItemListModel.h"
#include "gui/list/SXItemRowDelegate.h"
#include "gui/list/SXRowContextMenu.h"
#include "workspace/SXAddRun.h"
#include "workspace/SXWorkspacePreview.h"
#include "workspace/SXWorkspaceScheduler.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>

SXItemListView::SXItemListView(SXContainerStore& store, SXWorkspacePreview& preview,
                               SXAddRun& addRun, SXItemMoves& moves,
                               SXWorkspaceScheduler& scheduler, QWidget* parent)
    : QListView(parent)
    , m_store(store)
    , m_preview(preview)
    , m_addRun(addRun)
    , m_scheduler(scheduler) {
    setObjectName(QStringLiteral("itemList"));
    setAccessibleName(tr("Files"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformItemSizes(true);
    // Rows follow the list's width when the window or the information panel changes it.
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setDropIndicatorShown(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);

    m_model = new SXItemListModel(m_store, moves, m_addRun, this);
    m_delegate = new SXItemRowDelegate(m_store, this);
    setModel(m_model);
    setItemDelegate(m_delegate);
    m_rowMenu = new SXRowContextMenu(m_preview, m_addRun, m_scheduler, *this);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SXItemListView::reportSelection);
    connect(m_model, &QAbstractItemModel::modelReset, this,
            [this] { showSelection(m_store.selectedRows()); });
    connect(&m_store, &SXContainerStore::selectionChanged, this, &SXItemListView::showSelection);
    connect(&m_scheduler, &SXWorkspaceScheduler::rowsRedrawRequested, m_model,
            &SXItemListModel::redrawRows);
    connect(&m_store, &SXContainerStore::appStateChanged, viewport(),
            qOverload<>(&QWidget::update));
    connect(&m_preview, &SXWorkspacePreview::previewChanged, viewport(),
            qOverload<>(&QWidget::update));
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { m_preview.playRow(index.row()); });
    connect(
        m_delegate, &SXItemRowDelegate::playButtonClicked, this,
        [this](const QModelIndex& index) { m_preview.togglePlay(m_model->itemAt(index.row())); });
    connect(m_delegate, &SXItemRowDelegate::rightButtonClicked, this,
            [this](const QModelIndex& index) {
                m_scheduler.cancelOrEditTags(m_model->itemAt(index.row()));
            });
    showSelection(m_store.selectedRows());
}

void SXItemListView::showSelection(const QList<int>& rows) {
    QList<int> shown;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        shown.append(index.row());
    std::sort(shown.begin(), shown.end());
    // std::equal: Qt 6.4's list comparison hands memcmp a null pointer for empty lists.
    if (std::equal(shown.cbegin(), shown.cend(), rows.cbegin(), rows.cend()))
        return;
    const QScopedValueRollback guard(m_showingSelection, true);
    // Runs of neighbouring rows become one range: selecting all of a long list stays cheap.
    QItemSelection selection;
    for (int i = 0; i < rows.size();) {
        int last = i;
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        selection.select(m_model->index(rows.at(i)), m_model->index(rows.at(last)));
        i = last + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty() && !rows.contains(currentIndex().row())) {
        selectionModel()->setCurrentIndex(m_model->index(rows.first()),
                                          QItemSelectionModel::NoUpdate);
        scrollTo(currentIndex());
    }
}

void SXItemListView::reportSelection() {
    if (m_showingSelection)
        return;
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.append(index.row());
    m_store.setSelectedRows(rows);
}

void SXItemListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        m_addRun.removeSelected();
        event->accept();
        return;
    }
    // Shift+F10 is the Menu key of keyboards without one.
    if (event->key() == Qt::Key_Menu ||
        (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        popupRowMenuFromKeyboard();
        event->accept();
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
        event->modifiers() == Qt::NoModifier) {
        Q_EMIT startRequested();
        event->accept();
        return;
    }
    QListView::keyPressEvent(event);
}

void SXItemListView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        // A right-click on a row outside the selection selects that row alone: the context
        // menu that follows acts on the selection.
        const QModelIndex index = indexAt(event->position().toPoint());
        if (index.isValid() && !selectionModel()->isSelected(index))
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        event->accept();
        return;
    }
    QListView::mousePressEvent(event);
}

void SXItemListView::mouseMoveEvent(QMouseEvent* event) {
    setHoveredRow(indexAt(event->position().toPoint()).row());
    QListView::mouseMoveEvent(event);
}

void SXItemListView::mouseDoubleClickEvent(QMouseEvent* event) {
    // Two quick clicks on a row's button are two clicks of that button, not a double-click.
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid()) {
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        option.rect = visualRect(index);
        if (m_delegate->isOnButton(option, index, event->position().toPoint())) {
            QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->globalPosition(),
                              event->button(), event->buttons(), event->modifiers());
            mousePressEvent(&press);
            return;
        }
    }
    QListView::mouseDoubleClickEvent(event);
}

void SXItemListView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse) {
        popupRowMenu(indexAt(event->pos()), event->globalPos());
    } else {
        popupRowMenuFromKeyboard();
    }
    event->accept();
}

void SXItemListView::popupRowMenuFromKeyboard() {
    // The platform may send the Menu key both as a key and as a context menu event.
    if (m_rowMenu->menu()->isVisible())
        return;
    const QRect row = visualRect(currentIndex());
    popupRowMenu(currentIndex(), viewport()->mapToGlobal(row.bottomLeft()));
}

void SXItemListView::popupRowMenu(const QModelIndex& index, const QPoint& globalPos) {
    if (!index.isValid())
        return;
    if (!selectionModel()->isSelected(index))
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    m_rowMenu->popup(m_model->itemAt(index.row()), globalPos);
}

void SXItemListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (m_model->rowCount() > 0)
        return;
    // A quiet hint in the empty list: what to do first.
    QPainter painter(viewport());
    QColor hint = palette().color(QPalette::Text);
    hint.setAlphaF(0.45);
    painter.setPen(hint);
    painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24),
                     Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Drop audio files here, or press Add Files"));
}

bool SXItemListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave)
        setHoveredRow(-1);
    return QListView::viewportEvent(event);
}

void SXItemListView::setHoveredRow(int row) {
    const int before = m_delegate->hoveredRow();
    if (row == before)
        return;
    m_delegate->setHoveredRow(row);
    for (int changed : {before, row}) {
        if (changed >= 0)
            update(m_model->index(changed));
    }
}

bool SXItemListView::refuseDrag(QDropEvent* event) {
    if (SXListDrop::acceptsDrops(m_store))
        return false;
    event->ignore();
    return true;
}

void SXItemListView::dragEnterEvent(QDragEnterEvent* event) {
    if (refuseDrag(event))
        return;
    QListView::dragEnterEvent(event);
}

void SXItemListView::dragMoveEvent(QDragMoveEvent* event) {
    if (refuseDrag(event))
        return;
    QListView::dragMoveEvent(event);
    // Files from outside are copied, never moved away from where they are.
    if (event->isAccepted())
        event->setDropAction(Qt::CopyAction);
}

void SXItemListView::startDrag(Qt::DropActions supportedActions) {
    m_delegate->setDraggingRows(true);
    QListView::startDrag(supportedActions & Qt::CopyAction);
    m_delegate->setDraggingRows(false);
}
