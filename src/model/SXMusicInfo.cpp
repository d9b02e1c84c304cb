#include "SXMusicInfo.h"

#include "base/SXLocked.h"
#include "framework/MTEAudioFile.h"

#include <QFileInfo>

namespace {
const QString kArrayKey = QStringLiteral("items");
} // namespace

QString SXMusicInfo::strFilePath() const {
    return sxLockedGet(m_lock, m_strFilePath);
}
void SXMusicInfo::setStrFilePath(const QString& p) {
    sxLockedSet(m_lock, m_strFilePath, p);
}
QString SXMusicInfo::strMusicName() const {
    return sxLockedGet(m_lock, m_strMusicName);
}
void SXMusicInfo::setStrMusicName(const QString& n) {
    sxLockedSet(m_lock, m_strMusicName, n);
}
LSMediaPtr SXMusicInfo::mediaInfo() const {
    return sxLockedGet(m_lock, m_mediaInfo);
}
void SXMusicInfo::setMediaInfo(const LSMediaPtr& m) {
    sxLockedSet(m_lock, m_mediaInfo, m);
}
QString SXMusicInfo::getStrMusicType() const {
    return sxLockedGet(m_lock, m_strMusicType);
}
void SXMusicInfo::setStrMusicType(const QString& t) {
    sxLockedSet(m_lock, m_strMusicType, t);
}
std::shared_ptr<MTEAudioFile> SXMusicInfo::metHandler() const {
    return sxLockedGet(m_lock, m_metHandler);
}
void SXMusicInfo::setMetHandler(const std::shared_ptr<MTEAudioFile>& h) {
    sxLockedSet(m_lock, m_metHandler, h);
}
MTETagReport SXMusicInfo::tagReport() const {
    return sxLockedGet(m_lock, m_tagReport);
}
void SXMusicInfo::setTagReport(const MTETagReport& report) {
    sxLockedSet(m_lock, m_tagReport, report);
}

std::shared_ptr<SXMusicInfo> SXMusicInfo::newForSource(const QString& path,
                                                       const QString& musicType) {
    auto media = std::make_shared<LSMedia>();
    media->setFilePath(path);
    media->setStrOutFileName(QFileInfo(path).completeBaseName());
    auto item = std::make_shared<SXMusicInfo>();
    item->setStrMusicType(musicType);
    item->setMediaInfo(media);
    item->setStrFilePath(path);
    return item;
}

std::shared_ptr<SXMusicInfo> SXMusicInfo::newForCueTrack(const SXCueTrack& track,
                                                         const QString& musicType) {
    auto item = newForSource(track.file, musicType);
    item->setStrFilePath(track.identity());
    const LSMediaPtr media = item->mediaInfo();
    media->setStrOutFileName(track.outputName());
    media->setCueTrack(track);
    return item;
}

bool SXMusicInfo::isEqualToMusic(const SXMusicInfo& other) const {
    return strFilePath() == other.strFilePath() && getStrMusicType() == other.getStrMusicType();
}

std::shared_ptr<SXMusicInfo> SXMusicInfo::copy() const {
    auto result = std::make_shared<SXMusicInfo>();
    result->setStrFilePath(strFilePath());
    result->setStrMusicName(strMusicName());
    result->setStrMusicType(getStrMusicType());
    const LSMediaPtr media = mediaInfo();
    result->setMediaInfo(media ? media->copy() : nullptr);
    const auto handle = metHandler();
    result->setMetHandler(handle ? handle->copy() : nullptr);
    result->setDConvertProgress(dConvertProgress());
    return result;
}

QString SXMusicInfo::description() const {
    const LSMediaPtr media = mediaInfo();
    return QString::asprintf("P = %p, path = ", static_cast<const void*>(this)) +
           (media ? media->filePath() : QString()) + QStringLiteral(", name = ") + strMusicName() +
           QString::asprintf(", sample = %f, birat = %f,             channel = %d, inFormatType = ",
                             media ? media->audioSamplerate() : 0.0,
                             media ? media->audioBitrate() : 0.0,
                             media ? media->audioChannels() : 0) +
           getStrMusicType();
}

void SXMusicInfo::encodeWithCoder(SXCoder& coder) const {
    if (!coder.allowsKeyedCoding())
        return;
    coder.encode(QStringLiteral("strSourceFilePath"), strFilePath());
    if (const LSMediaPtr media = mediaInfo()) {
        SXCoder child;
        media->encodeWithCoder(child);
        coder.encodeObject(QStringLiteral("mediaInfo"), child);
    }
    coder.encode(QStringLiteral("MusicName"), strMusicName());
    if (const auto handle = metHandler()) {
        SXCoder child;
        handle->encodeWithCoder(child);
        coder.encodeObject(QStringLiteral("metInfo"), child);
    }
    coder.encode(QStringLiteral("strMusicType"), getStrMusicType());
    coder.encode(QStringLiteral("dConvertProgress"), dConvertProgress());
    // A run's library delivery travels in its job now; the keys stay, as an item that has not
    // run wrote them.
    coder.encode(QStringLiteral("bIsSendingToiTunes"), false);
    coder.encode(QStringLiteral("striTunesPlaylistName"), QString());
}

std::shared_ptr<SXMusicInfo> SXMusicInfo::decodeWithCoder(const SXCoder& coder) {
    auto item = std::make_shared<SXMusicInfo>();
    if (!coder.allowsKeyedCoding())
        return item;
    item->setStrFilePath(coder.decodeString(QStringLiteral("strSourceFilePath")));
    if (coder.containsValueForKey(QStringLiteral("mediaInfo")))
        item->setMediaInfo(
            LSMedia::decodeWithCoder(coder.decodeObject(QStringLiteral("mediaInfo"))));
    item->setStrMusicName(coder.decodeString(QStringLiteral("MusicName")));
    if (coder.containsValueForKey(QStringLiteral("metInfo")))
        item->setMetHandler(
            MTEAudioFile::decodeWithCoder(coder.decodeObject(QStringLiteral("metInfo"))));
    item->setStrMusicType(coder.decodeString(QStringLiteral("strMusicType")));
    item->setDConvertProgress(coder.decodeDouble(QStringLiteral("dConvertProgress")));
    return item;
}

QByteArray SXMusicInfo::archiveItems(const QList<std::shared_ptr<SXMusicInfo>>& items) {
    QVariantList encoded;
    for (const auto& item : items) {
        SXCoder child;
        item->encodeWithCoder(child);
        encoded << child.toData();
    }
    SXCoder root;
    root.encode(kArrayKey, encoded);
    return root.toData();
}

QList<std::shared_ptr<SXMusicInfo>> SXMusicInfo::unarchiveItems(const QByteArray& data, bool* ok) {
    bool parsed = false;
    const SXCoder root = SXCoder::fromData(data, &parsed);
    QList<std::shared_ptr<SXMusicInfo>> items;
    if (parsed && root.containsValueForKey(kArrayKey)) {
        for (const QVariant& entry : root.decode(kArrayKey).toList()) {
            bool childOk = false;
            const SXCoder child = SXCoder::fromData(entry.toByteArray(), &childOk);
            if (!childOk) {
                parsed = false;
                items.clear();
                break;
            }
            items << decodeWithCoder(child);
        }
    } else {
        parsed = false;
    }
    if (ok)
        *ok = parsed;
    return items;
}
