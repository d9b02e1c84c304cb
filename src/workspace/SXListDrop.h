#pragma once

#include "workspace/SXWorkspacePresenter.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUrl>

class SXAddRun;
class SXContainerStore;
class SXItemMoves;

// The private drag type that carries items between containers and windows: an archive of the
// dragged items in row order (SXMusicInfo::archiveItems).
inline constexpr char kSXItemsMimeType[] = "application/x-sonoria-tableinsidetransfer";

// What a drag brings to a workspace window, as the front end read it off the drag.
struct SXDropContent {
    QByteArray itemArchive; // the private type, empty when absent
    QList<QUrl> urls;       // text/uri-list, as file managers send files and folders
};

// Local paths of dropped URLs and the URLs that name no local file.
struct SXDroppedLocations {
    QStringList paths;
    QStringList refused;
};

// The rules of dropping on a workspace window: on the list (reordering, moving items in from
// another container or window, adding files), on a container's tab and anywhere else in the
// window (adding files). One call per gesture; each answers whether the drop was taken.
class SXListDrop {
public:
    // Whether the window takes drops at all now: not during a run, nor while an add run loads.
    static bool acceptsDrops(const SXContainerStore& store);
    // Whether a drag of `content` may end on the tab labelled `tabLabel`.
    static bool acceptsDropOnTab(const SXContainerStore& store, const SXDropContent& content);

    // Dropped on the shown list before row `insertRow` (the row count: at the end). Items win
    // over URLs: the window's own drags carry both, the URLs only for file managers.
    static bool dropOnList(SXItemMoves& moves, SXAddRun& addRun, const SXDropContent& content,
                           int insertRow);
    static bool dropOnTab(SXItemMoves& moves, const SXDropContent& content,
                          const QString& tabLabel);
    // Anywhere else in the window: files and folders only.
    static bool dropOnWindow(SXAddRun& addRun, const SXDropContent& content);

    static SXDroppedLocations splitLocations(const QList<QUrl>& urls);
    // The alert for dropped URLs that are not local files.
    static SXAlert refusedLocationsAlert(const QStringList& refused);

private:
    static bool addDroppedFiles(SXAddRun& addRun, const QList<QUrl>& urls);
};
