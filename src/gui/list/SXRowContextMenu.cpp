#include "gui/list/SXRowContextMenu.h"

#include "desktop/SXFileManager.h"
#include "workspace/SXAddRun.h"
#include "workspace/SXCommandValidation.h"
#include "workspace/SXWorkspacePreview.h"
#include "workspace/SXWorkspaceScheduler.h"

#include <QMenu>

namespace {
QString entryText(SXRowCommand command) {
    switch (command) {
    case SXRowCommand::Play:
        return SXRowContextMenu::tr("&Play");
    case SXRowCommand::Pause:
        return SXRowContextMenu::tr("&Pause");
    case SXRowCommand::Resume:
        return SXRowContextMenu::tr("&Resume");
    case SXRowCommand::EditTags:
        return SXRowContextMenu::tr("Edit &Tags…");
    case SXRowCommand::FileInfo:
        return SXRowContextMenu::tr("File &Information");
    case SXRowCommand::ShowInFiles:
        return SXRowContextMenu::tr("Show in &Files");
    case SXRowCommand::Remove:
        return SXRowContextMenu::tr("Re&move");
    case SXRowCommand::CancelConversion:
        return SXRowContextMenu::tr("&Cancel This Conversion");
    }
    return {};
}
} // namespace

SXRowContextMenu::SXRowContextMenu(SXWorkspacePreview& preview, SXAddRun& addRun,
                                   SXWorkspaceScheduler& scheduler, QWidget& owner)
    : QObject(&owner)
    , m_preview(preview)
    , m_addRun(addRun)
    , m_scheduler(scheduler)
    , m_menu(new QMenu(&owner)) {
    m_menu->setObjectName(QStringLiteral("rowMenu"));
    m_menu->setAccessibleName(tr("File actions"));
}

void SXRowContextMenu::popup(const SXMusicInfoPtr& item, const QPoint& globalPos) {
    m_menu->clear();
    for (const SXRowMenuEntry& entry : sxRowMenu(SXRowFacts::of(m_preview, item))) {
        if (entry.command == SXRowCommand::Remove || entry.command == SXRowCommand::EditTags)
            m_menu->addSeparator();
        QAction* action = m_menu->addAction(entryText(entry.command));
        action->setEnabled(entry.enabled);
        const SXRowCommand command = entry.command;
        connect(action, &QAction::triggered, this, [this, command, item] {
            switch (command) {
            case SXRowCommand::Play:
                m_preview.togglePlay(item);
                break;
            case SXRowCommand::Pause:
            case SXRowCommand::Resume:
                m_preview.pauseOrResumePreview();
                break;
            case SXRowCommand::EditTags:
            case SXRowCommand::CancelConversion:
                // The same rule as the row's right button: tags when idle, cancel in a run.
                m_scheduler.cancelOrEditTags(item);
                break;
            case SXRowCommand::FileInfo:
                Q_EMIT fileInfoRequested();
                break;
            case SXRowCommand::ShowInFiles:
                SXFileManager::revealItem(item->strFilePath());
                break;
            case SXRowCommand::Remove:
                m_addRun.removeSelected();
                break;
            }
        });
    }
    m_menu->popup(globalPos);
}
