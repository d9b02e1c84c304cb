#pragma once

#include "framework/HVMediaInfoItem.h"
#include "framework/SXCueSheet.h"

#include <memory>
#include <optional>

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

// The media record of a source file: what probing found (the base), the file's size and date,
// the name its output gets, and the state of its last conversion. What a run asks of the encoder
// is not here: each run takes its container's choices into a job of its own (ConvertJob). Written
// by the loader and a conversion worker while the list reads it on the main thread; each field
// is read and written whole.
class LSMedia : public HVMediaInfoItem {
public:
    LSMedia() = default;

    int eumCvtState() const;
    void setEumCvtState(int value);
    QString strLastModified() const;
    void setStrLastModified(const QString& value);
    double dFileSize() const;
    void setDFileSize(double value);
    // The output's name without folder and extension (the source's name at first).
    QString strOutFileName() const;
    void setStrOutFileName(const QString& value);
    // Why the last conversion failed, in plain words for the user ("No space left on device");
    // empty unless the state is CvtStateFailed. Cleared when a new run prepares the item.
    QString failReason() const;
    void setFailReason(const QString& value);
    // The range of a cue sheet's track when the item is one (the file path is then the track's
    // audio file, and the duration the track's length); none for a whole file.
    std::optional<SXCueTrack> cueTrack() const;
    void setCueTrack(const std::optional<SXCueTrack>& track);

    std::shared_ptr<LSMedia> copy() const;
    QString description() const;

    void encodeWithCoder(SXCoder& coder) const override;
    void initWithCoder(const SXCoder& coder) override;
    static std::shared_ptr<LSMedia> decodeWithCoder(const SXCoder& coder);

private:
    int m_eumCvtState = CvtStateReady;
    QString m_strLastModified;
    double m_dFileSize = 0;
    QString m_strOutFileName;
    QString m_failReason;
    std::optional<SXCueTrack> m_cueTrack;
};

using LSMediaPtr = std::shared_ptr<LSMedia>;
