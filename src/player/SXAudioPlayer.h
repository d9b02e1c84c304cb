#pragma once

#include "workspace/SXPreviewPlayer.h"

#include <QRecursiveMutex>

class HVPlayer;
class QTimer;

// The preview player of the program: one per process, shared by every window. It wraps one
// HVPlayer (a new one whenever the item is set, so there is always one, idle or busy), ticks
// once a second while an item is loaded and posts the start, progress and end notifications.
// A preview ends at the first tick with less than one second left, so it is cut a little short
// of the file's true end; an item whose length stays unknown never ends by itself.
class SXAudioPlayer final : public SXPreviewPlayer {
    Q_OBJECT
public:
    // Made on first use; lives until the process ends.
    static SXAudioPlayer* shareAudioPlayer();

    void setPlayingMusic(const SXMusicInfoPtr& item) override;
    SXMusicInfoPtr playingMusic() const override { return m_playingMusic; }
    void play() override;
    void pause() override;
    void resume() override;
    bool isPaused() const override { return m_paused; }
    void stop() override;
    bool isPlaying() const override { return m_isPlaying; }
    void seek(double seconds) override;

    void resumePrgTimer();
    void stopPrgTimer();
    // The HVPlayer in use, for tests that read the position.
    HVPlayer* player() const { return m_player; }

private:
    explicit SXAudioPlayer(QObject* parent = nullptr);
    ~SXAudioPlayer() override;

    void prgTimerFired();
    void stopPlayback();
    void outputFailed(const QString& message);
    void replacePlayer();

    QRecursiveMutex m_lock; // play, pause and stop never interleave
    HVPlayer* m_player = nullptr;
    SXMusicInfoPtr m_playingMusic;
    QTimer* m_prgTimer = nullptr;
    bool m_isPlaying = false;
    bool m_paused = false;
};
