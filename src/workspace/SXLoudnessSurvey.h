#pragma once

#include "engine/ConvertJob.h"
#include "framework/HVLoudness.h"
#include "model/SXMusicInfo.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <atomic>
#include <optional>
#include <vector>

// Measures the loudness of a run's sources before their conversions are queued, on a thread pool
// of its own so that the window never waits for a decoder: each job that asks for ReplayGain or
// normalising gets its track's gain and peak, and, in album mode, those of its album (the items
// of one container with the same album and album artist, or from one folder when they have no
// album), gated over all the album's tracks at once.
//
// Threads: start(), cancel() and the finished() signal belong to the thread that made the
// survey; the measuring runs on its pool.
class SXLoudnessSurvey final : public QObject {
    Q_OBJECT
public:
    struct Entry {
        ConvertJob job;
        QString album; // the album it belongs to (albumKey); only used in album mode
    };

    SXLoudnessSurvey(QList<Entry> entries, int threads, QObject* parent = nullptr);
    // Cancels what is left and waits for the measurements under way.
    ~SXLoudnessSurvey() override;

    void start();
    // Stops the measuring; finished() still comes, with isCancelled() true.
    void cancel();
    bool isCancelled() const { return m_cancel; }
    // Blocks until every measurement has returned (for a run that is being abandoned).
    void wait();
    // After finished(): the entries' jobs with their loudness filled in, in the entries' order.
    // A source that could not be measured carries the reason in its job.
    QList<ConvertJob> jobs() const { return m_jobs; }

    // The album `item` of the container `container` belongs to: its album and album artist, or
    // its folder when it names no album.
    static QString albumKey(const SXMusicInfo& item, const QString& container);

Q_SIGNALS:
    void finished();

private:
    void measureOne(qsizetype index); // pool thread
    void complete();                  // owner's thread

    QList<Entry> m_entries;
    QList<ConvertJob> m_jobs;
    // One slot per entry, written only by the task that measures it.
    std::vector<std::optional<HVLoudnessMeasurement>> m_measurements;
    std::vector<QString> m_errors;
    std::atomic<bool> m_cancel{false};
    std::atomic<qsizetype> m_left{0};
    QThreadPool m_pool;
};
