#pragma once

#include "engine/ConvertJob.h"
#include "engine/ConvertOperationListener.h"
#include "engine/ConvertOutputFile.h"
#include "engine/ConvertProgressTracker.h"
#include "engine/ConvertWorkerRun.h"
#include "engine/SXOperation.h"
#include "engine/TaskWrapperController.h"
#include "model/SXMusicInfo.h"

#include <QMutex>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <atomic>

class QEventLoop;
class TaskWrapper;

// Converts one item into one output file with an ffmpeg child process, or with a long-lived
// sonoria-worker when that makes the same file (ConvertEngineChoice; ConvertOperationWorker.cpp):
// builds the command line from its job, runs the child into a temporary file while its console
// text (or the worker's reports) drives the progress the listener hears of, and calls the item
// finished only when the child exited cleanly, said nothing of a failure and its output reads
// back whole (ConvertVerification); then
// copies the tags, moves the file to a final name that replaces nothing and hands it to the
// music library. The item's record gets the run's state and, for every failure, its reason; the
// job is never changed.
//
// Threads: main() and every listener callback run on the queue's worker thread. cancel(),
// pause() and resume() may come from any thread (normally the main one).
class ConvertOperation : public SXOperation, public TaskWrapperController {
public:
    // A new operation starts the item afresh: ready, without the reason of an earlier failure.
    ConvertOperation(const SXMusicInfoPtr& item, ConvertJob job);
    ~ConvertOperation() override;

    SXMusicInfoPtr musicToConvert() const;
    const ConvertJob& job() const { return m_job; }
    ConvertOperationListener* listener() const { return m_listener; }
    void setListener(ConvertOperationListener* listener) { m_listener = listener; }
    // Before main(): the job's output folder (empty = beside the source). From the moment
    // main() has claimed the output's name: that final name (the file appears there only when
    // whole).
    QString strOutFilePath() const;

    void main() override;
    // A running conversion: stops the child, deletes its partial output, ends CvtStateCanceled
    // and still reports didConvertOperationFinish from main(). A waiting one: never runs, no
    // callbacks. Once the child has ended, a cancel comes too late and changes nothing.
    void cancel() override;
    void pause();
    void resume();

    // Gives the file at `path` the source item's tags as its only tags (MTETagCopy). Empty, or
    // why they could not be written.
    QString saveTags(const QString& path);

    // TaskWrapperController
    void appendOutput(const QString& output) override;
    void processStarted() override;
    void processFinished() override;
    void launcherDidTerminatedWithCode(int code) override;

private:
    bool isRingtone() const;
    // The planned output when the job skips what was converted before and it is there: a
    // regular file newer than the source that reads back whole. Else empty.
    QString earlierResult() const;
    void setStrOutFilePath(const QString& path);
    bool startChild(const QStringList& arguments);
    void waitForChild();
    void decideOutcome();
    // What becomes of a conversion that was not cancelled: checked, tagged and named, or failed.
    void concludeOutput();
    enum class WorkerPath { Unavailable, Converted, CancelledEarly };
    WorkerPath convertWithWorker();
    // Verifies the child's output, writes its tags and gives it its final name: empty on
    // success, else the reason the conversion failed.
    // Keeps on the item what of its tags arrived in `outputPath`.
    void reportTags(const QString& outputPath);
    QString finishOutput();
    void fail(const QString& reason);
    void deliverToLibrary(const QString& outputFile);
    void setState(int state);
    void setStateLocked(int state); // with m_lock held
    void tellFinish();

    TaskWrapper* wraperTask = nullptr; // owned; created and destroyed on the worker thread
    std::atomic<bool> bIsConverting{false};
    ConvertProgressTracker m_progress; // dLastTime, dLastPrg, dLastLeftTime
    SXMusicInfoPtr _musicToConvert;
    const ConvertJob m_job;
    std::atomic<bool> isUserCancel{false};
    std::atomic<int> iExitCode{0};
    ConvertOperationListener* m_listener = nullptr;
    QString m_strOutFilePath;

    // Guards the wrapper's lifetime and the cancel decision against the worker, and the fields
    // above that are strings or shared pointers. Never held while a listener is called.
    mutable QMutex m_lock;
    QPointer<QEventLoop> m_waitLoop; // woken by cancel from another thread
    bool m_childEnded = false;       // outcome decided: cancel comes too late
    std::atomic<bool> m_terminated{false};
    ConvertOutputFile m_output; // worker thread only
    ConvertWorkerRun m_workerRun;
    bool m_onWorker = false; // the job went to a sonoria-worker; guarded by m_lock
    QString m_console;       // the end of the child's console text; worker thread only
};

using ConvertOperationPtr = std::shared_ptr<ConvertOperation>;
