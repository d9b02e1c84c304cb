#pragma once

#include "framework/MTETagReport.h"
#include "model/LSMedia.h"

#include <QList>
#include <QMutex>
#include <QString>
#include <atomic>
#include <memory>

class MTEAudioFile;

// Progress values of an item as the list draws them.
namespace SXProgress {
inline constexpr double Waiting = -1.0;
inline constexpr double Sending = -2.0;
inline constexpr double Canceled = -3.0;
inline constexpr double Failed = -4.0;
inline constexpr double Done = 100.0;
} // namespace SXProgress

// One source file in one container. The same path in two containers is two items.
class SXMusicInfo {
public:
    SXMusicInfo() = default;
    SXMusicInfo(const SXMusicInfo&) = delete;
    SXMusicInfo& operator=(const SXMusicInfo&) = delete;

    QString strFilePath() const;
    void setStrFilePath(const QString& path);
    QString strMusicName() const;
    void setStrMusicName(const QString& name);
    LSMediaPtr mediaInfo() const;
    void setMediaInfo(const LSMediaPtr& media);
    QString getStrMusicType() const;
    void setStrMusicType(const QString& type);
    // The item's progress as the list draws it: per cent while converting, else an SXProgress
    // value. The only progress an item has.
    double dConvertProgress() const { return m_dConvertProgress.load(); }
    void setDConvertProgress(double value) { m_dConvertProgress.store(value); }
    std::shared_ptr<MTEAudioFile> metHandler() const;
    void setMetHandler(const std::shared_ptr<MTEAudioFile>& handle);
    // What of the tags arrived in the last output; empty until a conversion finished.
    MTETagReport tagReport() const;
    void setTagReport(const MTETagReport& report);

    // A new item for a source file added to container `musicType`: its media record knows the
    // path, and the output is named after the file without its extension.
    static std::shared_ptr<SXMusicInfo> newForSource(const QString& path, const QString& musicType);
    // A new item for one track of a cue sheet: named "sheet.cue#03" in the container, its
    // record probing the track's audio file, its output named "03 Title".
    static std::shared_ptr<SXMusicInfo> newForCueTrack(const SXCueTrack& track,
                                                       const QString& musicType);

    // Same path and same container.
    bool isEqualToMusic(const SXMusicInfo& other) const;

    // Deep copy: the copy gets its own media record and its own tag handle.
    std::shared_ptr<SXMusicInfo> copy() const;
    QString description() const;

    void encodeWithCoder(SXCoder& coder) const;
    static std::shared_ptr<SXMusicInfo> decodeWithCoder(const SXCoder& coder);

    // A self-contained archive of several items, as dragged between containers and windows.
    static QByteArray archiveItems(const QList<std::shared_ptr<SXMusicInfo>>& items);
    // Empty list and `ok` false when the bytes are not such an archive.
    static QList<std::shared_ptr<SXMusicInfo>> unarchiveItems(const QByteArray& data,
                                                              bool* ok = nullptr);

private:
    mutable QMutex m_lock;
    QString m_strFilePath;
    QString m_strMusicName;
    LSMediaPtr m_mediaInfo;
    QString m_strMusicType;
    std::atomic<double> m_dConvertProgress{SXProgress::Waiting};
    std::shared_ptr<MTEAudioFile> m_metHandler;
    MTETagReport m_tagReport;
};

using SXMusicInfoPtr = std::shared_ptr<SXMusicInfo>;
using SXMusicInfoList = QList<SXMusicInfoPtr>;
