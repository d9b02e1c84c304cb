#include "workspace/SXItemRowLook.h"

#include "base/SXTimeText.h"
#include "framework/MTEAudioFile.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXReadableNames.h"

#include <QFileInfo>
#include <cmath>

SXItemRowTexts SXItemRowLookRules::textsForItem(const SXMusicInfoPtr& item) {
    SXItemRowTexts texts;
    if (!item)
        return texts;
    texts.name = QFileInfo(item->strFilePath()).completeBaseName();
    if (const std::shared_ptr<MTEAudioFile> tags = item->metHandler())
        texts.artist = tags->artist();
    texts.tagsLost = item->tagReport().lostAnything();
    if (const LSMediaPtr media = item->mediaInfo()) {
        texts.duration = SXTimeText::clockString(media->duration());
        texts.codec = SXReadableNames::codecName(media->strAudioCodecName());
        // A cue sheet's track is named as the sheet names it, not after the sheet's file.
        if (const std::optional<SXCueTrack> track = media->cueTrack())
            texts.name = QStringLiteral("%1 %2")
                             .arg(track->number, 2, 10, QLatin1Char('0'))
                             .arg(track->title);
    }
    return texts;
}

SXStateButtonLook SXItemRowLookRules::stateButtonLook(double progress) {
    const int value = int(progress);
    switch (value) {
    case int(SXProgress::Waiting):
        return {QStringLiteral("pending"), tr("pending")};
    case int(SXProgress::Sending):
        return {QStringLiteral("sending"), tr("sending")};
    case int(SXProgress::Done):
        return {QStringLiteral("finish"), tr("finish")};
    case int(SXProgress::Failed):
        return {QStringLiteral("error"), tr("error")};
    case int(SXProgress::Canceled):
        return {QStringLiteral("canceled"), tr("canceled")};
    default:
        return {QStringLiteral("progress-background"), tr("converting"), value / 100.0};
    }
}

QString SXItemRowLookRules::rightButtonImageForProgress(double progress) {
    const int value = int(progress);
    const bool settled = value == int(SXProgress::Done) || value == int(SXProgress::Failed) ||
                         value == int(SXProgress::Canceled) || value == int(SXProgress::Waiting);
    return settled ? QStringLiteral("right_edit") : QStringLiteral("cancel");
}

SXMusicInfoPtr SXItemRowLookRules::playingItem(const SXContainerStore& workspace) {
    return workspace.enumAppState() == AppStatePlaying ? workspace.appStateItem() : nullptr;
}

SXItemRowLook SXItemRowLookRules::rowLook(const SXContainerStore& workspace,
                                          const SXMusicInfoPtr& item, bool hovered,
                                          bool draggingRows, bool windowIsKey) {
    SXItemRowLook look;
    if (!item)
        return look;
    look.state = stateButtonLook(item->dConvertProgress());
    // The same mark as a converted file, named for what happened: nothing had to be done.
    if (const LSMediaPtr media = item->mediaInfo();
        media && media->alreadyConverted() &&
        int(item->dConvertProgress()) == int(SXProgress::Done))
        look.state.toolTip = tr("already converted");
    const SXMusicInfoPtr playing = playingItem(workspace);
    const bool plays = playing && playing->isEqualToMusic(*item);
    const bool converting = workspace.enumAppState() == AppStateConverting;
    if (plays)
        look.playImage = QStringLiteral("stop");
    else if (hovered && !draggingRows && !converting && windowIsKey)
        look.playImage = QStringLiteral("play");
    // Entering a row shows the cancel button during a run and the edit button otherwise, the
    // latter only in the key window; leaving hides it.
    if (hovered && converting)
        look.rightImage = QStringLiteral("cancel");
    else if (hovered && windowIsKey)
        look.rightImage = rightButtonImageForProgress(item->dConvertProgress());
    return look;
}
