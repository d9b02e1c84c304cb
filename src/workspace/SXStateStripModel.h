#pragma once

#include "model/SXMusicInfo.h"

#include <QString>

// What the state strip above the list shows, decided without its widget: nothing (the brand
// mark) when idle, "Converting..." and a total bar that never moves backwards during a run, or
// the previewed item with its times and a position slider. The strip widget mirrors `look()`.
class SXStateStripModel {
public:
    struct Look {
        bool nameShown = false, timesShown = false, progressShown = false, sliderShown = false;
        QString name, playTime, musicTime; // musicTime is the remaining "-m:ss"
        double progress = 0;               // the run's total, 0..100
        double slider = 0;                 // play position, 0..100
    };

    // The workspace's state; an item replaces the shown one, null keeps it. Loading changes
    // nothing but the slider.
    void updateForAppState(int state, const SXMusicInfoPtr& item);
    // A run's total: taken only while the bar shows and when it does not go back, kept within
    // 0..100; a value that is no number is dropped. True when it was taken.
    bool updateConverterProgress(double percent);
    // Seconds of the shown preview played; ignored for another item or a hidden slider.
    bool musicPlayingProgress(const SXMusicInfoPtr& item, double seconds);

    const Look& look() const { return m_look; }
    int appType() const { return m_appType; }
    SXMusicInfoPtr playingMusic() const { return m_playingMusic; }

    // "Title - Artist", the title alone, or the file name without extension when untagged.
    static QString playingName(const SXMusicInfo& item);

private:
    int m_appType = 0;
    SXMusicInfoPtr m_playingMusic;
    Look m_look;
};
