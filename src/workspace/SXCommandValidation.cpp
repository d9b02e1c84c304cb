#include "workspace/SXCommandValidation.h"

#include "model/SXDataEngine.h"
#include "workspace/SXWorkspace.h"

#include <QCoreApplication>

SXCommandContext SXCommandContext::of(const SXWorkspace* primary, const SXWorkspace* key,
                                      bool primaryOpen) {
    SXCommandContext context;
    if (primary) {
        context.state = primary->store().enumAppState();
        context.count = primary->store().currentTabItemCount();
        context.primaryIsKey = primary->isKeyWindow();
    }
    if (key) {
        context.hasKeyWorkspace = true;
        context.keyHasSelection = key->store().isSelectedMusic();
        context.keySelectedFormat = key->store().getSelectedMusicFormat();
    }
    context.primaryOpen = primaryOpen;
    return context;
}

namespace {

// The main menu target's own rule, before the File menu's open/closed rule.
SXCommandAnswer validateUserInterfaceItem(SXCommand command, const SXCommandContext& context) {
    switch (command) {
    case SXCommand::Quit:
    case SXCommand::Help:
    case SXCommand::Feedback:
    case SXCommand::Website:
    case SXCommand::About:
        return {true, false}; // not items of the menu target: never validated by it
    default:
        break;
    }
    if (context.state == AppStateConverting)
        return {command == SXCommand::Stop, false};
    switch (command) {
    case SXCommand::Delete:
    case SXCommand::Clear:
    case SXCommand::NextRow:
    case SXCommand::PreviousRow:
    case SXCommand::Start:
        return {context.count >= 1, false};
    case SXCommand::TagEditor:
    case SXCommand::FileInfo:
        return {context.count >= 1 && context.hasKeyWorkspace && context.keyHasSelection, false};
    case SXCommand::CloseTab: {
        const bool fixed =
            SXDataEngine::getCanNotRemoveFormatContainer().contains(context.keySelectedFormat);
        return {!fixed, fixed};
    }
    default:
        return {true, false};
    }
}

} // namespace

SXCommandAnswer sxValidateMenuCommand(SXCommand command, const SXCommandContext& context) {
    SXCommandAnswer answer = validateUserInterfaceItem(command, context);
    if (command == SXCommand::NewContainer)
        answer.enabled = answer.enabled && !context.primaryOpen;
    else if (command == SXCommand::Open)
        answer.enabled = answer.enabled && context.primaryOpen;
    else if (command == SXCommand::NewFormat)
        answer.enabled =
            answer.enabled && context.primaryOpen && !sxCommandRefused(command, context);
    return answer;
}

bool sxIsApplicationCommand(SXCommand command) {
    switch (command) {
    case SXCommand::NewContainer:
    case SXCommand::Preferences:
    case SXCommand::Quit:
    case SXCommand::Help:
    case SXCommand::Feedback:
    case SXCommand::Website:
    case SXCommand::About:
        return true;
    default:
        return false;
    }
}

bool sxCommandRefused(SXCommand command, const SXCommandContext& context) {
    return command == SXCommand::NewFormat && !context.primaryIsKey;
}

bool sxValidateToolbarCommand(SXCommand command, int state, int totalItems, bool hasSelection) {
    if (command == SXCommand::Start || command == SXCommand::Stop)
        return totalItems > 0;
    if (state == AppStateConverting)
        return false;
    if (command == SXCommand::TagEditor || command == SXCommand::FileInfo)
        return hasSelection;
    return true;
}

SXToolbarLook sxStartToolbarLook(int state) {
    if (state == AppStateConverting)
        return {QStringLiteral("stopConvert"),
                QCoreApplication::translate("SXCommandValidation", "Stop"),
                QCoreApplication::translate("SXCommandValidation", "Stop convert all files")};
    return {QStringLiteral("startConverter"),
            QCoreApplication::translate("SXCommandValidation", "Start"),
            QCoreApplication::translate("SXCommandValidation", "Start convert all files")};
}

bool sxSettingPanelEnabled(int state) {
    return state != AppStateConverting;
}

bool sxAddContainerButtonShown(int state, bool addButtonWanted) {
    return addButtonWanted && state != AppStateConverting;
}

bool sxTabCloseButtonShown(int state, bool closable) {
    return closable && state != AppStateConverting;
}

bool sxRemoveButtonsEnabled(int state, int itemsInSelectedContainer) {
    return state != AppStateConverting && itemsInSelectedContainer > 0;
}

SXRowFacts SXRowFacts::of(const SXWorkspacePreview& workspace, const SXMusicInfoPtr& item) {
    SXRowFacts facts;
    facts.state = workspace.store().enumAppState();
    facts.progress = item ? item->dConvertProgress() : SXProgress::Waiting;
    facts.previewing = item && workspace.isPlayingMusic(item);
    facts.previewPaused = workspace.isPreviewPaused();
    return facts;
}

QList<SXRowMenuEntry> sxRowMenu(const SXRowFacts& row) {
    if (row.state == AppStateConverting) {
        const bool ended = row.progress == SXProgress::Done || row.progress == SXProgress::Failed ||
                           row.progress == SXProgress::Canceled;
        return {{SXRowCommand::CancelConversion, !ended}, {SXRowCommand::ShowInFiles, true}};
    }
    const bool free = row.state == AppStateIdle || row.state == AppStatePlaying;
    SXRowCommand play = SXRowCommand::Play;
    if (row.previewing && row.state == AppStatePlaying)
        play = row.previewPaused ? SXRowCommand::Resume : SXRowCommand::Pause;
    return {{play, free},
            {SXRowCommand::EditTags, free},
            {SXRowCommand::FileInfo, free},
            {SXRowCommand::ShowInFiles, true},
            {SXRowCommand::Remove, free}};
}
