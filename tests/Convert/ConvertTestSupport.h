#pragma once

#include "Convert/ConvertOperation.h"
#include "Convert/SXOperationQueue.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>
#include <QStringList>

// Shared by the conversion tests: a delegate that records its calls, and items whose output
// settings are filled in directly (as the workspace does) rather than taken from the catalogue.
namespace ConvertTest {

class Recorder : public ConvertOperationDelegate {
public:
    void didConvertOperationStart(ConvertOperation*) override { add(QStringLiteral("start")); }
    void convertOperationHandleProgress(ConvertOperation*, double) override {
        add(QStringLiteral("progress"));
    }
    void convertStartSync(ConvertOperation*) override { add(QStringLiteral("sync")); }
    void didConvertOperationFinish(ConvertOperation*) override { add(QStringLiteral("finish")); }

    QStringList events() const {
        QMutexLocker locker(&m_lock);
        return m_events;
    }
    // One start, any number of progress reports, at most one sync, exactly one finish.
    bool isWellFormed() const {
        static const QRegularExpression form(QStringLiteral("^start( progress)*( sync)? finish$"));
        return form.match(events().join(QLatin1Char(' '))).hasMatch();
    }
    int count(const QString& event) const { return static_cast<int>(events().count(event)); }

private:
    void add(const QString& event) {
        QMutexLocker locker(&m_lock);
        m_events.append(event);
    }
    mutable QMutex m_lock;
    QStringList m_events;
};

struct Output {
    QString format = QStringLiteral("MP3");
    QString codec = QStringLiteral("libmp3lame");
    QString ext = QStringLiteral("mp3");
    double kbps = 128.0;
    double sampleRate = 44100.0;
    int channels = 2;
};

inline SXMusicInfoPtr makeItem(const QString& source, double duration, const Output& out = {}) {
    auto media = std::make_shared<LSMedia>();
    media->setFilePath(source);
    media->setDuration(duration);
    media->setDAOBitrate(out.kbps);
    media->setDAOSamplerate(out.sampleRate);
    media->setIAOChanels(out.channels);
    media->setVOACodecName(out.codec);
    media->setStrOutFileExt(out.ext);
    media->setStrOutFileName(QFileInfo(source).completeBaseName());
    auto item = std::make_shared<SXMusicInfo>();
    item->setStrFilePath(source);
    item->setStrMusicType(out.format);
    item->setMediaInfo(media);
    return item;
}

inline ConvertOperationPtr makeOperation(const SXMusicInfoPtr& item, const QString& folder,
                                         Recorder* recorder) {
    auto operation = std::make_shared<ConvertOperation>(item);
    operation->setStrOutFilePath(folder);
    operation->setDelegate(recorder);
    return operation;
}

// Runs one conversion to its end on a queue of its own.
inline ConvertOperationPtr convert(const SXMusicInfoPtr& item, const QString& folder,
                                   Recorder* recorder) {
    SXOperationQueue queue;
    auto operation = makeOperation(item, folder, recorder);
    queue.addOperation(operation);
    queue.waitUntilAllOperationsAreFinished();
    return operation;
}

inline int stateOf(const SXMusicInfoPtr& item) {
    return item->mediaInfo()->eumCvtState();
}

inline QStringList entries(const QString& folder) {
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

} // namespace ConvertTest
