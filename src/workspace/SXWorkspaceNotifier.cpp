#include "workspace/SXWorkspaceNotifier.h"

SXWorkspaceNotifier* SXWorkspaceNotifier::defaultCenter() {
    // Lives until the process ends, like the workspaces' registry.
    static SXWorkspaceNotifier center;
    return &center;
}

void SXWorkspaceNotifier::postTableViewAcceptDragIn(QObject* receiver,
                                                    const SXMusicInfoList& dragInFiles,
                                                    const QString& format) {
    Q_EMIT tableViewAcceptDragIn(receiver, dragInFiles, format);
}
