#pragma once

#include "engine/ConvertOperation.h"
#include "engine/SXOperationQueue.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>
#include <QStringList>

// Shared by the conversion tests: a listener that records its calls, and items with jobs filled
// in directly rather than built from the catalogue.
namespace ConvertTest {

using namespace Qt::StringLiterals;

class Recorder : public ConvertOperationListener {
public:
    void didConvertOperationStart(ConvertOperation*) override { add(u"start"_s); }
    void convertOperationHandleProgress(ConvertOperation*, double) override { add(u"progress"_s); }
    void convertStartSync(ConvertOperation*) override { add(u"sync"_s); }
    void didConvertOperationFinish(ConvertOperation*) override { add(u"finish"_s); }

    QStringList events() const {
        QMutexLocker locker(&m_lock);
        return m_events;
    }
    int count(const QString& event) const { return int(events().count(event)); }
    // One start, any number of progress reports, at most one sync, exactly one finish.
    bool isWellFormed() const {
        static const QRegularExpression form(u"^start( progress)*( sync)? finish$"_s);
        return form.match(events().join(u' ')).hasMatch();
    }

private:
    void add(const QString& event) {
        QMutexLocker locker(&m_lock);
        m_events.append(event);
    }
    mutable QMutex m_lock;
    QStringList m_events;
};

// An item as the loader leaves it, and the job a run would make of it: 128 kbit/s, 44.1 kHz,
// stereo, into the folder the operation is made with.
struct Item {
    SXMusicInfoPtr music;
    ConvertJob job;
    SXMusicInfo* operator->() const { return music.get(); }
    operator SXMusicInfoPtr() const { return music; }
};

inline Item makeItem(const QString& source, double duration, const QString& format = u"MP3"_s,
                     const QString& codec = u"libmp3lame"_s, const QString& ext = u"mp3"_s) {
    Item item{SXMusicInfo::newForSource(source, format), {}};
    item->mediaInfo()->setDuration(duration);
    item.job.sourcePath = source;
    item.job.sourceDuration = duration;
    item.job.choices = {128, 44100, 2, false};
    item.job.encoder = codec;
    item.job.extension = ext;
    item.job.formatName = format;
    item.job.outputName = item->mediaInfo()->strOutFileName();
    return item;
}

inline ConvertOperationPtr makeOperation(const Item& item, const QString& folder,
                                         Recorder* recorder) {
    ConvertJob job = item.job;
    job.outputFolder = folder;
    auto operation = std::make_shared<ConvertOperation>(item.music, job);
    operation->setListener(recorder);
    return operation;
}

// Runs one conversion to its end on a queue of its own.
inline ConvertOperationPtr convert(const Item& item, const QString& folder, Recorder* recorder) {
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
