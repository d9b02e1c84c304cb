#pragma once

#include "model/SXMusicInfo.h"

#include <QCoreApplication>
#include <QString>

class SXContainerStore;

// The four labels of an item's row.
struct SXItemRowTexts {
    QString name;          // file name without its extension
    QString artist;        // from the tag handle
    QString duration;      // SXTimeText::clockString of the media record's duration
    QString codec;         // the media record's audio codec by its common name ("PCM 16-bit")
    bool tagsLost = false; // the last output could not keep all the source's tags
};

// The round state button of a row: its image, its tool tip and, while converting, the share of
// the orange pie (0..1; negative when there is no pie).
struct SXStateButtonLook {
    QString image;
    QString toolTip;
    double pieFraction = -1.0;
};

// What a row shows besides its labels. An empty image means the button is not drawn.
struct SXItemRowLook {
    QString playImage;  // "play" (the hover hint), "stop" (its item plays) or empty
    QString rightImage; // "right_edit", "cancel" or empty (the button is hidden)
    SXStateButtonLook state;
};

// How the rows of the list look, decided once for the window and every other front end. A row
// reads only the cached fields of its item, never the disk.
class SXItemRowLookRules {
    Q_DECLARE_TR_FUNCTIONS(SXItemRowLookRules)

public:
    // Every label empty for a missing item.
    static SXItemRowTexts textsForItem(const SXMusicInfoPtr& item);
    // The state button for a progress value (its fraction dropped first).
    static SXStateButtonLook stateButtonLook(double progress);
    // The right button's image as a progress refresh sets it.
    static QString rightButtonImageForProgress(double progress);
    // The whole row. `hovered`: the mouse is over the row; `draggingRows`: the list is dragging
    // rows; `windowIsKey`: the workspace's window is the key window.
    static SXItemRowLook rowLook(const SXContainerStore& workspace, const SXMusicInfoPtr& item,
                                 bool hovered, bool draggingRows, bool windowIsKey);
    // The item the preview plays, when the workspace is playing.
    static SXMusicInfoPtr playingItem(const SXContainerStore& workspace);
};
