#pragma once

#include "model/SXMusicInfo.h"

#include <QObject>
#include <QString>

// The process-wide notice "TableViewAcceptDragInNotify": a workspace that received items moved
// out of another container posts it, and every workspace (the receiver included) removes equal
// items from its container of the source name. Main thread only.
class SXWorkspaceNotifier : public QObject {
    Q_OBJECT
public:
    static SXWorkspaceNotifier* defaultCenter();

    void postTableViewAcceptDragIn(QObject* receiver, const SXMusicInfoList& dragInFiles,
                                   const QString& format);

Q_SIGNALS:
    // `receiver` is the workspace that accepted the items; `format` names the container they
    // came from; `dragInFiles` are the items as they were dragged (not the receiver's copies).
    void tableViewAcceptDragIn(QObject* receiver, const SXMusicInfoList& dragInFiles,
                               const QString& format);

private:
    SXWorkspaceNotifier() = default;
};
