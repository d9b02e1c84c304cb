#include "workspace/SXStateStripModel.h"

#include "base/SXTimeText.h"
#include "framework/MTEAudioFile.h"
#include "workspace/SXContainerStore.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

void SXStateStripModel::updateForAppState(int state, const SXMusicInfoPtr& item) {
    m_appType = state;
    if (item)
        m_playingMusic = item;
    m_look.sliderShown = false;
    switch (state) {
    case AppStateConverting:
        m_look.name = QCoreApplication::translate("SXStateStripModel", "Converting...");
        m_look.nameShown = true;
        m_look.timesShown = false;
        m_look.progressShown = true;
        break;
    case AppStateIdle:
        m_look.nameShown = m_look.timesShown = m_look.progressShown = false;
        m_look.progress = 0;
        break;
    case AppStatePlaying: {
        m_look.nameShown = m_look.timesShown = m_look.sliderShown = true;
        m_look.progressShown = false;
        m_look.name = m_playingMusic ? playingName(*m_playingMusic) : QString();
        const LSMediaPtr media = m_playingMusic ? m_playingMusic->mediaInfo() : nullptr;
        m_look.musicTime =
            QStringLiteral("-%1").arg(SXTimeText::clockString(media ? media->duration() : 0));
        m_look.playTime = QStringLiteral("00:00");
        m_look.progress = 0;
        m_look.slider = 0;
        break;
    }
    default:
        break;
    }
}

bool SXStateStripModel::updateConverterProgress(double percent) {
    // The strip shows whole per cents: a value that is no number never reaches it.
    if (!std::isfinite(percent) || !m_look.progressShown)
        return false;
    percent = std::clamp(percent, 0.0, 100.0);
    if (m_look.progress > percent)
        return false;
    m_look.progress = percent;
    return true;
}

bool SXStateStripModel::musicPlayingProgress(const SXMusicInfoPtr& item, double seconds) {
    if (!item || !m_playingMusic || !item->isEqualToMusic(*m_playingMusic) || !m_look.sliderShown)
        return false;
    const LSMediaPtr media = m_playingMusic->mediaInfo();
    const double duration = media ? media->duration() : 0;
    const double slider = duration > 0 ? seconds / duration * 100.0 : 0;
    m_look.slider = std::isfinite(slider) ? std::clamp(slider, 0.0, 100.0) : 0;
    m_look.playTime = SXTimeText::clockString(seconds);
    const QString left = SXTimeText::clockString(duration - seconds);
    m_look.musicTime = left.isEmpty() ? QString() : QStringLiteral("-%1").arg(left);
    return true;
}

QString SXStateStripModel::playingName(const SXMusicInfo& item) {
    const auto tags = item.metHandler();
    QString name = tags ? tags->title() : QString();
    if (name.isEmpty())
        name = QFileInfo(item.strFilePath()).completeBaseName();
    const QString artist = tags ? tags->artist() : QString();
    if (!name.isEmpty() && !artist.isEmpty())
        name += QStringLiteral(" - %1").arg(artist);
    return name;
}
