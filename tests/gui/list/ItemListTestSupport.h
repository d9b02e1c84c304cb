#pragma once

#include "support/gui/GuiTestSupport.h"

#include "gui/list/SXItemListModel.h"
#include "gui/list/SXItemListView.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <memory>

// The pieces of a workspace window the list tests drive, and real drops onto its widgets.
namespace ItemListTest {

using SonoriaGuiTest::openWindow;

inline SXItemListView* listOf(SXMainAppController* window) {
    return window->findChild<SXItemListView*>(QStringLiteral("itemList"));
}

inline QStringList rowNames(const SXItemListView* view, bool sorted = false) {
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        names.append(view->model()->index(row, 0).data().toString());
    if (sorted)
        names.sort();
    return names;
}

inline QMimeData* uriList(const QList<QUrl>& urls) {
    auto* data = new QMimeData;
    data->setUrls(urls);
    return data;
}

inline QList<QUrl> localUrls(const QStringList& paths) {
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

// Enters, moves and drops `data` at `pos` of `target`, as the platform does; true when the
// drop was taken.
inline bool dragAndDrop(QWidget* target, const QPoint& pos, const QMimeData* data) {
    QDragEnterEvent enter(pos, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(pos, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    if (!move.isAccepted())
        return false;
    QDropEvent drop(pos, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}

// Drops files and folders on the list's free space and waits for the add run to end.
inline bool dropFilesOnList(SXMainAppController* window, const QStringList& paths) {
    SXItemListView* view = listOf(window);
    QSignalSpy finished(&window->workspace().addRun(), &SXAddRun::loadFinished);
    const std::unique_ptr<QMimeData> data(uriList(localUrls(paths)));
    const QPoint free(10, view->viewport()->height() - 2);
    if (!dragAndDrop(view->viewport(), free, data.get()) ||
        !(finished.count() > 0 || finished.wait(60000)))
        return false;
    // The closed dialog leaves no window active on this platform; a desktop gives it back.
    return SonoriaGuiTest::activate(window);
}

// The point between rows `row` - 1 and `row` of the list (the end for the row count).
inline QPoint pointBeforeRow(SXItemListView* view, int row) {
    const int rows = view->model()->rowCount();
    if (row >= rows)
        return QPoint(10, view->visualRect(view->model()->index(rows - 1, 0)).bottom() + 4);
    return view->visualRect(view->model()->index(row, 0)).topLeft() + QPoint(10, 1);
}

// What dragging the given rows out of the list carries (empty when the drag is refused).
inline std::unique_ptr<QMimeData> dragRows(SXItemListView* view, const QList<int>& rows) {
    QModelIndexList indexes;
    for (int row : rows)
        indexes.append(view->model()->index(row, 0));
    return std::unique_ptr<QMimeData>(view->model()->mimeData(indexes));
}

} // namespace ItemListTest
