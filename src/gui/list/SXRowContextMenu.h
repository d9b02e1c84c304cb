#pragma once

#include "model/SXMusicInfo.h"

#include <QObject>

class QMenu;
class QPoint;
class QWidget;
class SXAddRun;
class SXWorkspacePreview;
class SXWorkspaceScheduler;

// The context menu of a list row. Its entries and which of them are enabled come from
// sxRowMenu; each entry is one call of the workspace, except File Information, which the
// window's information panel answers.
class SXRowContextMenu final : public QObject {
    Q_OBJECT
public:
    SXRowContextMenu(SXWorkspacePreview& preview, SXAddRun& addRun, SXWorkspaceScheduler& scheduler,
                     QWidget& owner);

    // Shows the entries for `item` at `globalPos`; the menu stays open until the user chooses.
    void popup(const SXMusicInfoPtr& item, const QPoint& globalPos);
    QMenu* menu() const { return m_menu; }

Q_SIGNALS:
    void fileInfoRequested();

private:
    SXWorkspacePreview& m_preview;
    SXAddRun& m_addRun;
    SXWorkspaceScheduler& m_scheduler;
    QMenu* m_menu = nullptr;
};
