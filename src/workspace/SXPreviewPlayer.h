#pragma once

#include "model/SXMusicInfo.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariantMap>

Q_DECLARE_METATYPE(SXMusicInfoPtr)

// The names of the preview's three notifications and the keys of their user information. Rows,
// the state strip and workspaces observe them; the spellings are the program's own.
namespace SXPlayerNotify {
inline const QString PlayStart = QStringLiteral("com.sxp.SXAudioPlayerPlayStartNotify");
inline const QString PlayProgress = QStringLiteral("com.sxp.SXAudioPlayerPlayProgressNotify");
inline const QString PlayEnd = QStringLiteral("com.sxp.SXAudioPlayerPlayEndNotify");
inline const QString kMusicInfo = QStringLiteral("kMusicInfo");
inline const QString kProgressInfo = QStringLiteral("kProgressInfo");
inline const QString kActionByUsert = QStringLiteral("kActionByUsert");

// The item under kMusicInfo, or null.
inline SXMusicInfoPtr musicInfoOf(const QVariantMap& userInfo) {
    return userInfo.value(kMusicInfo).value<SXMusicInfoPtr>();
}
} // namespace SXPlayerNotify

// The one preview player of the program, as the workspace core sees it. The real one decodes
// and plays through the desktop's sound server (SXAudioPlayer, above the core); the core's tests
// hand in a silent one. Everything is called on the main thread and every signal comes there.
class SXPreviewPlayer : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~SXPreviewPlayer() override = default;

    // Replaces the item (null clears it) with a fresh idle output; posts nothing.
    virtual void setPlayingMusic(const SXMusicInfoPtr& item) = 0;
    virtual SXMusicInfoPtr playingMusic() const = 0;
    // Loads the item and starts it; posts the start notification. Never blocks on the output:
    // a failure to reach a sound device arrives later as playFailed().
    virtual void play() = 0;
    // Pauses a playing preview; resume() continues a paused one from where it stood.
    virtual void pause() = 0;
    virtual void resume() = 0;
    virtual bool isPaused() const = 0;
    // Stops and clears the item; harmless when nothing plays.
    virtual void stop() = 0;
    virtual bool isPlaying() const = 0;
    virtual void seek(double seconds) = 0;

    // The end notification as a row posts it when the user stops its preview: no user
    // information, so no workspace takes it for a preview that ran out.
    void postEndByRow() { Q_EMIT notificationPosted(SXPlayerNotify::PlayEnd, QVariantMap()); }

Q_SIGNALS:
    // One of the three notification names with its user information.
    void notificationPosted(const QString& name, const QVariantMap& userInfo);
    // stop() was called from outside (the end of a preview that ran out is the end notification
    // instead): every window that showed this item as playing returns to idle.
    void playStopped(const SXMusicInfoPtr& item);
    // The item could not be played (no sound server, no output device); the player is idle
    // again. `message` is for the user.
    void playFailed(const SXMusicInfoPtr& item, const QString& message);
};
