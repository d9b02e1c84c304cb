#pragma once

#include "framework/HVMediaInfoItem.h"

#include <memory>

// Conversion states of one item.
enum CvtState : int {
    CvtStateReady = 0,
    CvtStateConverting = 1,
    CvtStateSending = 2,
    CvtStatePaused = 3,
    CvtStateCanceled = 4,
    CvtStateFinished = 5,
    CvtStateFailed = 6,
};

// The media record of a source file: what probing found (the base), the output settings chosen
// for it, and the state of its conversion. Written by the loader, the scheduler and a conversion
// worker while the list reads it on the main thread; each field is read and written whole.
class LSMedia : public HVMediaInfoItem {
public:
    LSMedia() = default;

    bool bSampleQuality() const;
    void setBSampleQuality(bool value);
    int iAOChannels() const;
    void setIAOChannels(int value);
    int eumCvtState() const;
    void setEumCvtState(int value);
    QString strLastModified() const;
    void setStrLastModified(const QString& value);
    double dFileSize() const;
    void setDFileSize(double value);
    double dAOBitrate() const; // kbit/s
    void setDAOBitrate(double value);
    double dAOSamplerate() const; // Hz
    void setDAOSamplerate(double value);
    QString vOACodecName() const;
    void setVOACodecName(const QString& value);
    double dProgress() const;
    void setDProgress(double value);
    double dLeftTime() const;
    void setDLeftTime(double value);
    QString strDescription() const;
    void setStrDescription(const QString& value);
    QString strOutFileName() const;
    void setStrOutFileName(const QString& value);
    QString strOutFileExt() const;
    void setStrOutFileExt(const QString& value);
    // Why the last conversion failed, in plain words for the user ("No space left on device");
    // empty unless the state is CvtStateFailed. Cleared when a new run prepares the item.
    QString failReason() const;
    void setFailReason(const QString& value);

    std::shared_ptr<LSMedia> copy() const;
    QString description() const;

    void encodeWithCoder(SXCoder& coder) const override;
    void initWithCoder(const SXCoder& coder) override;
    static std::shared_ptr<LSMedia> decodeWithCoder(const SXCoder& coder);

private:
    bool m_bSampleQuality = true;
    int m_iAOChannels = 0;
    int m_eumCvtState = CvtStateReady;
    QString m_strLastModified;
    double m_dFileSize = 0;
    double m_dAOBitrate = 0;
    double m_dAOSamplerate = 0;
    QString m_vOACodecName;
    double m_dProgress = 0;
    double m_dLeftTime = 0;
    QString m_strDescription;
    QString m_strOutFileName;
    QString m_strOutFileExt;
    QString m_failReason;
};

using LSMediaPtr = std::shared_ptr<LSMedia>;
