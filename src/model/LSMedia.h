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

    // The folder the user added when this file was found below it (empty: added on its own), so
    // that a container that mirrors folders can keep the file's place below it.
    QString addedFromFolder() const;
    void setAddedFromFolder(const QString& value);
    // The disc number the source's tags give, read with the probe (the tag handle has no field
    // for it); output names may use it.
    QString discNumber() const;
    void setDiscNumber(const QString& value);
    // The last run found this file's output already there, whole and newer than the source, and
    // left it as it was. Cleared when a new run prepares the item.
    bool alreadyConverted() const;
    void setAlreadyConverted(bool value);

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
    QString m_addedFromFolder;
    QString m_discNumber;
    bool m_alreadyConverted = false;
};

using LSMediaPtr = std::shared_ptr<LSMedia>;
