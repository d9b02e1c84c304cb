#pragma once

#include "base/SXCoder.h"

#include <QMutex>
#include <QString>
#include <memory>

// Media kinds as the probe reports them. The information panel says "audio file" for
// HVMediaTypeAudio and "video file" for anything else.
enum HVMediaType : int {
    HVMediaTypeUnknown = 0,
    HVMediaTypeAudio = 1,
    HVMediaTypeVideo = 2,
};

// What probing tells about a source file. Every field may be read on one thread while another
// writes it (the list draws while a loader or a conversion fills in): each access is whole,
// nothing spans fields.
class HVMediaInfoItem {
public:
    HVMediaInfoItem() = default;
    virtual ~HVMediaInfoItem() = default;
    HVMediaInfoItem(const HVMediaInfoItem&) = delete;
    HVMediaInfoItem& operator=(const HVMediaInfoItem&) = delete;

    QString filePath() const;
    void setFilePath(const QString& path);
    double audioBitrate() const; // bits per second
    void setAudioBitrate(double value);
    double audioSamplerate() const; // Hz
    void setAudioSamplerate(double value);
    int audioChannels() const;
    void setAudioChannels(int value);
    double duration() const; // seconds
    void setDuration(double value);
    // False when the duration is only a guess from the bit rate (a variable-rate MP3 without a
    // frame count): nothing should be measured against it then.
    bool durationExact() const;
    void setDurationExact(bool value);
    int eumMediaType() const;
    void setEumMediaType(int value);
    QString strAudioCodecName() const; // decoder's short name, "mp3", "flac", ...
    void setStrAudioCodecName(const QString& name);

    virtual void encodeWithCoder(SXCoder& coder) const;
    virtual void initWithCoder(const SXCoder& coder);

protected:
    void copyBaseTo(HVMediaInfoItem& target) const;
    mutable QMutex m_lock;

private:
    QString m_filePath;
    double m_audioBitrate = 0;
    double m_audioSamplerate = 0;
    int m_audioChannels = 0;
    double m_duration = 0;
    bool m_durationExact = true;
    int m_eumMediaType = HVMediaTypeUnknown;
    QString m_strAudioCodecName;
};
