#include "workspace/SXListDrop.h"

#include "workspace/SXAddRun.h"
#include "workspace/SXItemMoves.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QCoreApplication>

bool SXListDrop::acceptsDrops(const SXContainerStore& store) {
    const int state = store.enumAppState();
    return state != AppStateConverting && state != AppStateLoading;
}

bool SXListDrop::acceptsDropOnTab(const SXContainerStore& store, const SXDropContent& content) {
    return acceptsDrops(store) && !content.itemArchive.isEmpty();
}

bool SXListDrop::dropOnList(SXItemMoves& moves, SXAddRun& addRun, const SXDropContent& content,
                            int insertRow) {
    if (!acceptsDrops(moves.store()))
        return false;
    if (content.itemArchive.isEmpty())
        return addDroppedFiles(addRun, content.urls);
    bool ok = false;
    const SXMusicInfoList items = SXMusicInfo::unarchiveItems(content.itemArchive, &ok);
    if (!ok)
        return false;
    return moves.acceptDrop(items, insertRow, SXItemMoves::DropAboveRow);
}

bool SXListDrop::dropOnTab(SXItemMoves& moves, const SXDropContent& content,
                           const QString& tabLabel) {
    if (!acceptsDropOnTab(moves.store(), content))
        return false;
    bool ok = false;
    const SXMusicInfoList items = SXMusicInfo::unarchiveItems(content.itemArchive, &ok);
    if (!ok)
        return false;
    moves.acceptDropOnTab(items, tabLabel);
    return true;
}

bool SXListDrop::dropOnWindow(SXAddRun& addRun, const SXDropContent& content) {
    if (!acceptsDrops(addRun.store()) || !content.itemArchive.isEmpty())
        return false;
    return addDroppedFiles(addRun, content.urls);
}

bool SXListDrop::addDroppedFiles(SXAddRun& addRun, const QList<QUrl>& urls) {
    const SXDroppedLocations locations = splitLocations(urls);
    if (!locations.refused.isEmpty()) {
        if (SXWorkspacePresenter* presenter = addRun.store().presenter())
            presenter->runModalAlert(refusedLocationsAlert(locations.refused), [](int) {});
    }
    if (locations.paths.isEmpty())
        return !locations.refused.isEmpty();
    addRun.loadAndParseFiles(locations.paths);
    return true;
}

SXDroppedLocations SXListDrop::splitLocations(const QList<QUrl>& urls) {
    SXDroppedLocations locations;
    for (const QUrl& url : urls) {
        if (url.isLocalFile() && !url.toLocalFile().isEmpty())
            locations.paths.append(url.toLocalFile());
        else
            locations.refused.append(url.toDisplayString());
    }
    return locations;
}

SXAlert SXListDrop::refusedLocationsAlert(const QStringList& refused) {
    return {QCoreApplication::translate("SXListDrop",
                                        "Following location(s) are not files on this computer "
                                        "and were not added!",
                                        nullptr, int(refused.size())),
            SXWorkspaceTexts::cappedNameLines(refused),
            {QCoreApplication::translate("SXListDrop", "OK")}};
}
