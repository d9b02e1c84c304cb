#include "workspace/SXListDrop.h"

#include "workspace/SXWorkspaceItemMoves.h"
#include "workspace/SXWorkspaceTexts.h"

bool SXListDrop::acceptsDrops(const SXWorkspaceData& workspace) {
    const int state = workspace.enumAppState();
    return state != AppStateConverting && state != AppStateLoading;
}

bool SXListDrop::acceptsDropOnTab(const SXWorkspaceData& workspace, const SXDropContent& content) {
    return acceptsDrops(workspace) && !content.itemArchive.isEmpty();
}

bool SXListDrop::dropOnList(SXWorkspaceItemMoves& workspace, const SXDropContent& content,
                            int insertRow) {
    if (!acceptsDrops(workspace))
        return false;
    if (content.itemArchive.isEmpty())
        return addDroppedFiles(workspace, content.urls);
    bool ok = false;
    const SXMusicInfoList items = SXMusicInfo::unarchiveItems(content.itemArchive, &ok);
    if (!ok)
        return false;
    return workspace.acceptDrop(items, insertRow, SXWorkspaceItemMoves::DropAboveRow);
}

bool SXListDrop::dropOnTab(SXWorkspaceItemMoves& workspace, const SXDropContent& content,
                           const QString& tabLabel) {
    if (!acceptsDropOnTab(workspace, content))
        return false;
    bool ok = false;
    const SXMusicInfoList items = SXMusicInfo::unarchiveItems(content.itemArchive, &ok);
    if (!ok)
        return false;
    workspace.acceptDropOnTab(items, tabLabel);
    return true;
}

bool SXListDrop::dropOnWindow(SXWorkspaceItemMoves& workspace, const SXDropContent& content) {
    if (!acceptsDrops(workspace) || !content.itemArchive.isEmpty())
        return false;
    return addDroppedFiles(workspace, content.urls);
}

bool SXListDrop::addDroppedFiles(SXWorkspaceItemMoves& workspace, const QList<QUrl>& urls) {
    const SXDroppedLocations locations = splitLocations(urls);
    if (!locations.refused.isEmpty()) {
        if (SXWorkspacePresenter* presenter = workspace.presenter())
            presenter->runModalAlert(refusedLocationsAlert(locations.refused), [](int) {});
    }
    if (locations.paths.isEmpty())
        return !locations.refused.isEmpty();
    workspace.loadAndParseFiles(locations.paths);
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
    return {QStringLiteral("Following location(s) are not files on this computer and were not "
                           "added!"),
            SXWorkspaceTexts::cappedNameLines(refused),
            {QStringLiteral("OK")}};
}
