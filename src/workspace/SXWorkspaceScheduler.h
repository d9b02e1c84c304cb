#pragma once

#include "base/SXPathFailure.h"
#include "engine/ConvertOperation.h"
#include "engine/SXOperationQueue.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXRedrawThrottle.h"

#include <QMutex>
#include <QObject>
#include <QTimer>
#include <atomic>
#include <memory>
#include <optional>

class SXLoudnessSurvey;
class SXWorkspacePreview;

// The conversion run of a workspace: Start asks for the output folder, every item of every
// container becomes one ConvertOperation with a job of its own (SXJobBuilder), all go on one queue
// with a bounded number of parallel conversions, and a 0.4 s timer on the main thread pulls the
// items' progress into a total until the queue has drained.
//
// Threads: the operation callbacks come on queue workers; they only store the item's progress
// value and hand the signals to the main thread. Everything else runs on the main thread.
//
// A part of SXWorkspace: the items and their containers' choices come from its store, which
// also carries the state of the run; a run stops the preview first.
class SXWorkspaceScheduler final : public QObject, public ConvertOperationListener {
    Q_OBJECT
public:
    SXWorkspaceScheduler(SXContainerStore& store, SXWorkspacePreview& preview,
                         QObject* parent = nullptr);
    ~SXWorkspaceScheduler() override;

    SXContainerStore& store() const { return m_store; }

    // Start, or Stop during a run.
    void toggleRun();
    // Starts the run into `folder` (per container below it when organising by format; a
    // container with a folder of its own writes there, SXJobBuilder::outputFolder). When an
    // output folder cannot be made or written, no child starts: the user is told which folder
    // and why (an alert, and runRefused) and this returns false.
    bool doRealConverterTask(const QString& folder);
    void startConvertOperation();
    void setConvertOperationFinished();
    // Fraction 0..1 over every item (0 without items).
    double getTotalConvertProgress() const;
    void cancelAll();
    // Ends a run for good, without its summary: every conversion is cancelled, the children are
    // waited for (their partial files are gone when this returns) and the state is idle. For a
    // window that closes or a program that quits during a run.
    void abandonRun();
    // The waiting or running operation of `item` (that very item, else an equal one); null
    // when none matches.
    ConvertOperationPtr findOperationForMusicInfo(const SXMusicInfoPtr& item);
    // A row's right button: the tag editor when idle or playing; during a run it cancels that
    // row's own conversion while it waits or converts, and does nothing once it has ended.
    void cancelOrEditTags(const SXMusicInfoPtr& item);

    // The run's parallelism instead of the stored maximum, without storing it (nullopt: the
    // stored maximum again). Kept until changed.
    void setMaxConcurrentOverride(std::optional<int> count) { m_maxConcurrentOverride = count; }
    // What to do with outputs already there, instead of the stored preference (the command
    // line's --existing).
    void setExistingOverride(std::optional<ConvertExisting> policy) { m_existingOverride = policy; }
    // The two check boxes of the folder chooser, as the last Start left them.
    bool organizeByFormat() const { return m_bOrganized; }
    void setOrganizeByFormat(bool on) { m_bOrganized = on; }
    bool openFolderWhenDone() const { return m_bOverOpen; }
    void setOpenFolderWhenDone(bool on) { m_bOverOpen = on; }
    int totalConvertOps() const { return m_totalConvertOps; }
    SXOperationQueue* queueConvertTask() const { return _queueConvertTask.get(); }

    // The summary of a run: successes, then up to three failed names with their reasons and
    // "..." for more (the alert's details list them all).
    static QString summaryMessage(int succeeded, const SXPathFailureList& failures);

    // ConvertOperationListener (worker threads)
    void didConvertOperationStart(ConvertOperation* operation) override;
    void convertOperationHandleProgress(ConvertOperation* operation, double percent) override;
    void convertStartSync(ConvertOperation* operation) override;
    void didConvertOperationFinish(ConvertOperation* operation) override;

Q_SIGNALS:
    // The visible rows should be redrawn (their items' progress changed).
    void rowsRedrawRequested();
    // Total progress in per cent, at every refresh of a run.
    void totalProgressChanged(double percent);
    // A run has drained. Emitted before the state returns to idle (that change is queued).
    void runFinished(const QString& summary, int succeeded, int failed);
    // A run did not start because an output folder cannot take its files; `message` names the
    // folder and the system's reason.
    void runRefused(const QString& message);
    // One conversion has ended (done, failed or cancelled: the item's record says which);
    // `outputFile` is the file it wrote, or the folder it was to write into when it never got
    // that far.
    void itemFinished(const SXMusicInfoPtr& item, const QString& outputFile);
    // A row asked for the tag editor of its item.
    void metadataEditorRequested(const SXMusicInfoPtr& item);

private:
    // The store's and the preview's answers under the names the run has always used.
    QStringList containerNames() const { return m_store.containerNames(); }
    SXMusicInfoList getDataForFormat(const QString& name) const {
        return m_store.getDataForFormat(name);
    }
    SXFormatSettingPtr getFormatSettingForFormatName(const QString& name) const {
        return m_store.getFormatSettingForFormatName(name);
    }
    int getTotalNeedConvertMusic() const { return m_store.getTotalNeedConvertMusic(); }
    int enumAppState() const { return m_store.enumAppState(); }
    void runAlert(const SXAlert& alert) const { m_store.runAlert(alert); }
    void stopPlayerWithRefreshUI();

    // An item of the run with the job it gets, before its operation exists.
    struct Pending {
        SXMusicInfoPtr item;
        ConvertJob job;
        QString album; // SXLoudnessSurvey::albumKey
    };
    void queueOperations(const QList<Pending>& pending);
    void surveyLoudness(QList<Pending> pending);
    void outputFolderChosen(const std::optional<SXOutputFolderChoice>& choice);
    void refreshTimeFired();
    bool runIsOver() const;
    void finishIfDone();
    void refreshUIOnMainThreadWhenConvert();
    void finishRun();
    void requestRedraw();

    SXContainerStore& m_store;
    SXWorkspacePreview& m_preview;
    std::unique_ptr<SXOperationQueue> _queueConvertTask;
    QTimer* _timerToRefresh = nullptr;
    QMutex m_queueLock; // held while the queue's operations are searched
    std::optional<int> m_maxConcurrentOverride;
    SXLoudnessSurvey* m_survey = nullptr; // owned (a child); only while loudness is measured
    std::optional<ConvertExisting> m_existingOverride;
    bool m_bOrganized = true;
    bool m_bOverOpen = false;
    int m_totalConvertOps = 0;
    SXRedrawThrottle m_redraw;                   // the rows, redrawn as conversions report
    std::atomic<int> m_finishReportsInFlight{0}; // posted to this thread, not yet delivered
};
