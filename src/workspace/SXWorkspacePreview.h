#pragma once

#include "workspace/SXContainerStore.h"
#include "workspace/SXPreviewPlayer.h"

#include <QPointer>

// The preview of a workspace: playing an item of a container, running on to the next row when
// a preview ends by itself, and keeping the state (AppStatePlaying) and the rows in step with the
// one player that every window shares. The rows, the state strip and the keyboard reach the
// player only through the gestures here. A part of SXWorkspace: it reads and sets the state and
// the rows of the workspace's store.
class SXWorkspacePreview final : public QObject {
    Q_OBJECT
public:
    explicit SXWorkspacePreview(SXContainerStore& store, QObject* parent = nullptr);
    ~SXWorkspacePreview() override;

    const SXContainerStore& store() const { return m_store; }

    // Not owned; the same player serves every workspace. Null: previews are refused.
    void setPreviewPlayer(SXPreviewPlayer* player);
    SXPreviewPlayer* previewPlayer() const { return m_player; }

    void playMusic(const SXMusicInfoPtr& item);
    void stopPlayerWithRefreshUI();
    // The end notification: the next row of the same container plays, or the state goes idle.
    void autoPlayNext(const QVariantMap& userInfo);
    // An item moved to another container keeps being recognised as the playing one.
    void checkAndChangePlayingMusicTypeInfo(const SXMusicInfoPtr& item);
    void myListViewCelClickStartPlay(const SXMusicInfoPtr& item);
    void myListViewCelClickStopPlay(const SXMusicInfoPtr& item);

    // --- Gestures ---
    // A row's play button: stops the item's preview when it plays, otherwise plays it. Nothing
    // during a run.
    void togglePlay(const SXMusicInfoPtr& item);
    // Space: the play button of the first selected row.
    void playSelected();
    // A double-click on a row of the shown list: plays it unless it already plays.
    void playRow(int row);
    void pauseOrResumePreview();
    // The strip's slider at `percent` of the shown item, `nowSeconds` on any steady clock.
    // Seeks only when more than 0.2 s passed since the previous slider event.
    void sliderDown(double percent, double nowSeconds);

    // What a row draws: its play button in the playing look exactly for the player's item.
    bool isPlayingMusic(const SXMusicInfoPtr& item) const;
    bool isPreviewPaused() const { return m_player && m_player->isPaused(); }

    // Removing `items` by the user: a removed item that plays stops first.
    void stopPreviewAmong(const SXMusicInfoList& items);
    // Closing the container `name` or the window: its playing item stops.
    void stopPreviewInContainers(const QStringList& names);

Q_SIGNALS:
    // The player's item or its pause changed: rows redraw their play buttons.
    void previewChanged();
    // Seconds played of `item`, once a second while it plays.
    void previewProgress(const SXMusicInfoPtr& item, double seconds);
    // The preview ran on to `row` of the shown list: keep it visible.
    void scrollToRowRequested(int row);

private:
    void notificationPosted(const QString& name, const QVariantMap& userInfo);
    void playStopped(const SXMusicInfoPtr& item);
    void playFailed(const SXMusicInfoPtr& item, const QString& message);
    bool showsAsPlaying(const SXMusicInfoPtr& item) const;

    SXContainerStore& m_store;
    QPointer<SXPreviewPlayer> m_player;
    double m_lastSliderEvent = -1e9;
    bool m_stopping = false;
};
