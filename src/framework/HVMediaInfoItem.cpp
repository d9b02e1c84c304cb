#include "HVMediaInfoItem.h"

#include "base/SXLocked.h"

QString HVMediaInfoItem::filePath() const {
    return sxLockedGet(m_lock, m_filePath);
}
void HVMediaInfoItem::setFilePath(const QString& path) {
    sxLockedSet(m_lock, m_filePath, path);
}
double HVMediaInfoItem::audioBitrate() const {
    return sxLockedGet(m_lock, m_audioBitrate);
}
void HVMediaInfoItem::setAudioBitrate(double v) {
    sxLockedSet(m_lock, m_audioBitrate, v);
}
double HVMediaInfoItem::audioSamplerate() const {
    return sxLockedGet(m_lock, m_audioSamplerate);
}
void HVMediaInfoItem::setAudioSamplerate(double v) {
    sxLockedSet(m_lock, m_audioSamplerate, v);
}
int HVMediaInfoItem::audioChannels() const {
    return sxLockedGet(m_lock, m_audioChannels);
}
void HVMediaInfoItem::setAudioChannels(int v) {
    sxLockedSet(m_lock, m_audioChannels, v);
}
double HVMediaInfoItem::duration() const {
    return sxLockedGet(m_lock, m_duration);
}
void HVMediaInfoItem::setDuration(double v) {
    sxLockedSet(m_lock, m_duration, v);
}
int HVMediaInfoItem::eumMediaType() const {
    return sxLockedGet(m_lock, m_eumMediaType);
}
void HVMediaInfoItem::setEumMediaType(int v) {
    sxLockedSet(m_lock, m_eumMediaType, v);
}
QString HVMediaInfoItem::strAudioCodecName() const {
    return sxLockedGet(m_lock, m_strAudioCodecName);
}
void HVMediaInfoItem::setStrAudioCodecName(const QString& name) {
    sxLockedSet(m_lock, m_strAudioCodecName, name);
}

void HVMediaInfoItem::encodeWithCoder(SXCoder& coder) const {
    if (!coder.allowsKeyedCoding())
        return;
    coder.encode(QStringLiteral("filePath"), filePath());
    coder.encode(QStringLiteral("audioBitrate"), audioBitrate());
    coder.encode(QStringLiteral("audioSamplerate"), audioSamplerate());
    coder.encode(QStringLiteral("audioChannels"), audioChannels());
    coder.encode(QStringLiteral("duration"), duration());
    coder.encode(QStringLiteral("strAudioCodecName"), strAudioCodecName());
}

void HVMediaInfoItem::initWithCoder(const SXCoder& coder) {
    if (!coder.allowsKeyedCoding())
        return;
    setFilePath(coder.decodeString(QStringLiteral("filePath")));
    setAudioBitrate(coder.decodeDouble(QStringLiteral("audioBitrate")));
    setAudioSamplerate(coder.decodeDouble(QStringLiteral("audioSamplerate")));
    setAudioChannels(coder.decodeInt(QStringLiteral("audioChannels")));
    setDuration(coder.decodeDouble(QStringLiteral("duration")));
    setStrAudioCodecName(coder.decodeString(QStringLiteral("strAudioCodecName")));
}

void HVMediaInfoItem::copyBaseTo(HVMediaInfoItem& target) const {
    target.setFilePath(filePath());
    target.setAudioBitrate(audioBitrate());
    target.setAudioSamplerate(audioSamplerate());
    target.setAudioChannels(audioChannels());
    target.setDuration(duration());
    target.setDurationExact(durationExact());
    target.setEumMediaType(eumMediaType());
    target.setStrAudioCodecName(strAudioCodecName());
}

bool HVMediaInfoItem::durationExact() const {
    QMutexLocker guard(&m_lock);
    return m_durationExact;
}

void HVMediaInfoItem::setDurationExact(bool value) {
    QMutexLocker guard(&m_lock);
    m_durationExact = value;
}
