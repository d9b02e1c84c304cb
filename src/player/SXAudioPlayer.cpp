#include "player/SXAudioPlayer.h"

#include "player/HVPlayer.h"

#include <QCoreApplication>
#include <QMutexLocker>
#include <QTimer>

namespace {
SXAudioPlayer* g_player = nullptr;
QMutex g_creation;
} // namespace

SXAudioPlayer* SXAudioPlayer::shareAudioPlayer() {
    QMutexLocker locker(&g_creation);
    // A child of the application, so that its output and decoder are let go before the
    // process ends rather than abandoned in mid-stream.
    if (!g_player)
        g_player = new SXAudioPlayer(QCoreApplication::instance());
    return g_player;
}

SXAudioPlayer::SXAudioPlayer(QObject* parent)
    : SXPreviewPlayer(parent) {
    qRegisterMetaType<SXMusicInfoPtr>("SXMusicInfoPtr");
    replacePlayer();
}

SXAudioPlayer::~SXAudioPlayer() {
    stopPrgTimer();
    delete m_player;
    QMutexLocker locker(&g_creation);
    if (g_player == this)
        g_player = nullptr;
}

void SXAudioPlayer::replacePlayer() {
    if (m_player) {
        // Silenced at once, so two items never sound together; released once idle.
        m_player->stop();
        m_player->disconnect(this);
        m_player->deleteLater();
    }
    m_player = new HVPlayer(this);
    connect(m_player, &HVPlayer::outputFailed, this, &SXAudioPlayer::outputFailed);
}

void SXAudioPlayer::setPlayingMusic(const SXMusicInfoPtr& item) {
    replacePlayer();
    m_playingMusic = item;
    m_paused = false;
}

void SXAudioPlayer::play() {
    QMutexLocker locker(&m_lock);
    const SXMusicInfoPtr item = m_playingMusic;
    if (const LSMediaPtr media = item ? item->mediaInfo() : nullptr) {
        // A cue sheet's track is heard as the row shows it, not as the whole file it lies in.
        const std::optional<SXCueTrack> track = media->cueTrack();
        constexpr double kFrames = SXCueTrack::kFramesPerSecond;
        if (track)
            m_player->flushWithItem(*media, double(track->startFrame) / kFrames,
                                    track->endFrame < 0 ? -1.0 : double(track->endFrame) / kFrames);
        else
            m_player->flushWithItem(*media);
    }
    m_player->showAudio();
    m_player->setVolume(128.0);
    m_isPlaying = true;
    m_paused = false;
    Q_EMIT notificationPosted(SXPlayerNotify::PlayStart,
                              {{SXPlayerNotify::kMusicInfo, QVariant::fromValue(item)},
                               {SXPlayerNotify::kProgressInfo, 0.0}});
    resumePrgTimer();
}

void SXAudioPlayer::pause() {
    QMutexLocker locker(&m_lock);
    if (!m_isPlaying)
        return;
    m_player->togglePlayPause();
    m_isPlaying = false;
    m_paused = true; // the tick goes on and keeps reporting the standing position
}

void SXAudioPlayer::resume() {
    QMutexLocker locker(&m_lock);
    if (!m_paused)
        return;
    m_player->togglePlayPause();
    m_isPlaying = true;
    m_paused = false;
}

void SXAudioPlayer::stop() {
    const SXMusicInfoPtr item = m_playingMusic;
    stopPlayback();
    if (item)
        Q_EMIT playStopped(item);
}

void SXAudioPlayer::stopPlayback() {
    QMutexLocker locker(&m_lock);
    stopPrgTimer();
    m_player->stop();
    m_isPlaying = false;
    m_paused = false;
    setPlayingMusic(nullptr);
}

void SXAudioPlayer::seek(double seconds) {
    m_player->seekto(seconds);
}

void SXAudioPlayer::resumePrgTimer() {
    stopPrgTimer();
    m_prgTimer = new QTimer(this);
    m_prgTimer->setInterval(1000);
    connect(m_prgTimer, &QTimer::timeout, this, &SXAudioPlayer::prgTimerFired);
    m_prgTimer->start();
}

void SXAudioPlayer::stopPrgTimer() {
    if (!m_prgTimer)
        return;
    m_prgTimer->stop();
    m_prgTimer->deleteLater();
    m_prgTimer = nullptr;
}

void SXAudioPlayer::prgTimerFired() {
    const double current = m_player->currentPlaybackTime();
    const double duration = m_player->duration();
    const QVariant item = QVariant::fromValue(m_playingMusic);
    if (duration > 0 && duration - current < 1.0) {
        const QVariantMap info{{SXPlayerNotify::kMusicInfo, item},
                               {SXPlayerNotify::kActionByUsert, false}};
        stopPlayback();
        Q_EMIT notificationPosted(SXPlayerNotify::PlayEnd, info);
        return;
    }
    Q_EMIT notificationPosted(
        SXPlayerNotify::PlayProgress,
        {{SXPlayerNotify::kMusicInfo, item}, {SXPlayerNotify::kProgressInfo, current}});
}

void SXAudioPlayer::outputFailed(const QString& message) {
    const SXMusicInfoPtr item = m_playingMusic;
    stopPlayback();
    Q_EMIT playFailed(item, message);
}
