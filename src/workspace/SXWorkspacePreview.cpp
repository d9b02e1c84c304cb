#include "workspace/SXWorkspacePreview.h"

#include "base/SXLog.h"

namespace {
bool sameItem(const SXMusicInfoPtr& a, const SXMusicInfoPtr& b) {
    return a && b && a->isEqualToMusic(*b);
}
} // namespace

SXWorkspacePreview::SXWorkspacePreview(SXContainerStore& store, QObject* parent)
    : QObject(parent)
    , m_store(store) {}

SXWorkspacePreview::~SXWorkspacePreview() = default;

void SXWorkspacePreview::setPreviewPlayer(SXPreviewPlayer* player) {
    if (m_player)
        disconnect(m_player, nullptr, this, nullptr);
    m_player = player;
    if (!player)
        return;
    connect(player, &SXPreviewPlayer::notificationPosted, this,
            &SXWorkspacePreview::notificationPosted);
    connect(player, &SXPreviewPlayer::playStopped, this, &SXWorkspacePreview::playStopped);
    connect(player, &SXPreviewPlayer::playFailed, this, &SXWorkspacePreview::playFailed);
}

void SXWorkspacePreview::playMusic(const SXMusicInfoPtr& item) {
    if (!m_player || !item)
        return;
    m_player->setPlayingMusic(item);
    m_player->play();
    m_store.setAppState(AppStatePlaying, item);
    Q_EMIT previewChanged();
}

void SXWorkspacePreview::stopPlayerWithRefreshUI() {
    if (!m_player || !m_player->playingMusic())
        return;
    m_stopping = true;
    m_player->stop();
    m_stopping = false;
    m_store.setAppState(AppStateIdle);
    Q_EMIT previewChanged();
}

void SXWorkspacePreview::autoPlayNext(const QVariantMap& userInfo) {
    if (userInfo.value(SXPlayerNotify::kActionByUsert).toBool())
        return;
    const SXMusicInfoPtr item = SXPlayerNotify::musicInfoOf(userInfo);
    const QString type = item ? item->getStrMusicType() : QString();
    // A run owns the state of its window; a preview that ends elsewhere must not end it.
    if (!item || !m_store.hasDataForFormat(type) || m_store.enumAppState() == AppStateConverting)
        return;
    const SXMusicInfoList list = m_store.getDataForFormat(type);
    qsizetype index = 0;
    while (index < list.size() && !list.at(index)->isEqualToMusic(*item))
        ++index;
    if (index >= list.size() - 1) {
        m_store.setAppState(AppStateIdle);
        Q_EMIT previewChanged();
        return;
    }
    playMusic(list.at(index + 1));
    if (type == m_store.getSelectedMusicFormat())
        Q_EMIT scrollToRowRequested(int(index + 1));
}

void SXWorkspacePreview::checkAndChangePlayingMusicTypeInfo(const SXMusicInfoPtr& item) {
    const SXMusicInfoPtr playing = m_player ? m_player->playingMusic() : nullptr;
    if (!item || !playing || item->getStrMusicType().isEmpty())
        return;
    if (item->strFilePath() == playing->strFilePath())
        playing->setStrMusicType(item->getStrMusicType());
}

void SXWorkspacePreview::myListViewCelClickStartPlay(const SXMusicInfoPtr& item) {
    m_store.setAppState(AppStatePlaying, item);
    Q_EMIT previewChanged();
}

void SXWorkspacePreview::myListViewCelClickStopPlay(const SXMusicInfoPtr& item) {
    m_store.setAppState(AppStateIdle, item);
    Q_EMIT previewChanged();
}

// --- Gestures ---

void SXWorkspacePreview::togglePlay(const SXMusicInfoPtr& item) {
    if (!m_player || !item || m_store.enumAppState() == AppStateConverting)
        return;
    if (sameItem(item, m_player->playingMusic()) && m_player->isPlaying()) {
        m_stopping = true;
        m_player->stop();
        m_stopping = false;
        m_player->postEndByRow();
        myListViewCelClickStopPlay(item);
        return;
    }
    m_player->setPlayingMusic(item);
    m_player->play();
    myListViewCelClickStartPlay(item);
}

void SXWorkspacePreview::playSelected() {
    const SXMusicInfoList items = m_store.selectedItems();
    if (items.isEmpty()) {
        m_store.beep();
        return;
    }
    togglePlay(items.first());
}

void SXWorkspacePreview::playRow(int row) {
    const SXMusicInfoList list = m_store.getCurTableDatasource();
    if (row < 0 || row >= list.size() || m_store.enumAppState() == AppStateConverting)
        return;
    if (!(isPlayingMusic(list.at(row)) && m_player->isPlaying()))
        playMusic(list.at(row));
}

void SXWorkspacePreview::pauseOrResumePreview() {
    if (!m_player || !m_player->playingMusic())
        return;
    if (m_player->isPaused())
        m_player->resume();
    else
        m_player->pause();
    Q_EMIT previewChanged();
}

void SXWorkspacePreview::sliderDown(double percent, double nowSeconds) {
    if (m_store.enumAppState() != AppStatePlaying || !m_player)
        return;
    SXLog::line(QStringLiteral("time : %1").arg(nowSeconds, 0, 'f', 6));
    const bool settled = nowSeconds - m_lastSliderEvent > 0.2;
    m_lastSliderEvent = nowSeconds;
    const SXMusicInfoPtr item = m_store.appStateItem();
    const LSMediaPtr media = item ? item->mediaInfo() : nullptr;
    if (settled && media)
        m_player->seek(media->duration() * percent / 100.0);
}

bool SXWorkspacePreview::isPlayingMusic(const SXMusicInfoPtr& item) const {
    return m_player && sameItem(item, m_player->playingMusic());
}

// --- Stops ---

void SXWorkspacePreview::stopPreviewAmong(const SXMusicInfoList& items) {
    for (const SXMusicInfoPtr& item : items) {
        if (!isPlayingMusic(item))
            continue;
        stopPlayerWithRefreshUI();
        m_player->setPlayingMusic(nullptr);
    }
}

void SXWorkspacePreview::stopPreviewInContainers(const QStringList& names) {
    const SXMusicInfoPtr playing = m_player ? m_player->playingMusic() : nullptr;
    if (playing && names.contains(playing->getStrMusicType()))
        stopPlayerWithRefreshUI();
}

// --- The player's reports ---

void SXWorkspacePreview::notificationPosted(const QString& name, const QVariantMap& userInfo) {
    if (name == SXPlayerNotify::PlayProgress) {
        Q_EMIT previewProgress(SXPlayerNotify::musicInfoOf(userInfo),
                               userInfo.value(SXPlayerNotify::kProgressInfo).toDouble());
    } else if (name == SXPlayerNotify::PlayEnd) {
        Q_EMIT previewChanged();
        autoPlayNext(userInfo);
    } else if (name == SXPlayerNotify::PlayStart) {
        Q_EMIT previewChanged();
    }
}

bool SXWorkspacePreview::showsAsPlaying(const SXMusicInfoPtr& item) const {
    return m_store.enumAppState() == AppStatePlaying && sameItem(item, m_store.appStateItem());
}

void SXWorkspacePreview::playStopped(const SXMusicInfoPtr& item) {
    // Another window stopped the preview this one shows (its run started, say).
    if (!m_stopping && showsAsPlaying(item))
        m_store.setAppState(AppStateIdle);
    Q_EMIT previewChanged();
}

void SXWorkspacePreview::playFailed(const SXMusicInfoPtr& item, const QString& message) {
    if (!showsAsPlaying(item))
        return;
    m_store.setAppState(AppStateIdle);
    Q_EMIT previewChanged();
    m_store.runAlert({tr("Can not play the file"), message, {tr("OK")}});
}
