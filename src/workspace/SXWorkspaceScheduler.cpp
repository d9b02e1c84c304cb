#include "workspace/SXWorkspaceScheduler.h"

#include "base/SXFileLocalManager.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "engine/ConvertFailure.h"
#include "engine/ConvertOutputFile.h"
#include "workspace/SXJobBuilder.h"
#include "workspace/SXLoudnessSurvey.h"
#include "workspace/SXWorkspacePreview.h"

#include <QMutexLocker>
#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

namespace {
// Rows follow their conversions 25 times a second: smooth to the eye, cheap for the window.
constexpr int kRowRedrawMs = 40;
} // namespace

SXWorkspaceScheduler::SXWorkspaceScheduler(SXContainerStore& store, SXWorkspacePreview& preview,
                                           QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_preview(preview)
    , m_bOrganized(SXSettings::boolForKey(SXSettingsKey::DefaultSetOrganized, true))
    , m_bOverOpen(SXSettings::boolForKey(SXSettingsKey::DefaultSetOpen, false))
    , m_redraw(*this, kRowRedrawMs, [this] { Q_EMIT rowsRedrawRequested(); }) {}

SXWorkspaceScheduler::~SXWorkspaceScheduler() {
    if (_timerToRefresh)
        _timerToRefresh->stop();
    // The queue waits for the running conversions; they still report to us meanwhile, so it
    // goes while this object is whole.
    if (_queueConvertTask) {
        _queueConvertTask->cancelAllOperations();
        _queueConvertTask.reset();
    }
}

void SXWorkspaceScheduler::stopPlayerWithRefreshUI() {
    m_preview.stopPlayerWithRefreshUI();
}

// --- Start ---

void SXWorkspaceScheduler::toggleRun() {
    if (enumAppState() == AppStateConverting) {
        cancelAll();
        return;
    }
    QString path = SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath);
    if (path.isEmpty())
        path = SXFileLocalManager::getDefaultUpperOutputDir();
    m_bOrganized = SXSettings::boolForKey(SXSettingsKey::DefaultSetOrganized, true);
    m_bOverOpen = SXSettings::boolForKey(SXSettingsKey::DefaultSetOpen, false);
    SXLog::line(QStringLiteral("thepath = %1").arg(path));
    if (!m_store.presenter())
        return;
    m_store.presenter()->chooseOutputFolder(
        {path, tr("Please choose output folder:"), tr("OK"), m_bOrganized, m_bOverOpen},
        [guard = QPointer(this)](const std::optional<SXOutputFolderChoice>& choice) {
            if (guard)
                guard->outputFolderChosen(choice);
        });
}

void SXWorkspaceScheduler::outputFolderChosen(const std::optional<SXOutputFolderChoice>& choice) {
    // The dialog is window-modal, but another window may have started a run meanwhile.
    if (!choice || choice->folder.isEmpty() || enumAppState() == AppStateConverting)
        return;
    SXSettings::setValue(SXSettingsKey::DefaultOutputPath, choice->folder);
    SXSettings::setValue(SXSettingsKey::DefaultSetOrganized, choice->organizeByFormat);
    SXSettings::setValue(SXSettingsKey::DefaultSetOpen, choice->openWhenDone);
    SXSettings::synchronize();
    m_bOrganized = choice->organizeByFormat;
    m_bOverOpen = choice->openWhenDone;
    doRealConverterTask(choice->folder);
}

bool SXWorkspaceScheduler::doRealConverterTask(const QString& folder) {
    // Every output folder is checked before a single child starts: a read-only or missing
    // destination would otherwise fail every item one by one, each for the same reason.
    QStringList folders;
    for (const QString& name : containerNames()) {
        const SXFormatSettingPtr setting = getFormatSettingForFormatName(name);
        const QString output =
            setting ? SXJobBuilder::outputFolder(*setting, folder, m_bOrganized) : folder;
        if (setting && !getDataForFormat(name).isEmpty() && !folders.contains(output))
            folders.append(output);
    }
    for (const QString& output : std::as_const(folders)) {
        const QString problem = ConvertFailure::checkOutputFolder(output);
        if (problem.isEmpty())
            continue;
        const QString message =
            tr("Cannot write into the output folder \"%1\": %2").arg(output, problem);
        SXLog::line(message);
        runAlert({tr("The conversion did not start"), message, {tr("OK")}});
        Q_EMIT runRefused(message);
        return false;
    }
    for (const QString& output : std::as_const(folders))
        ConvertOutputFile::removeLeftovers(output);

    stopPlayerWithRefreshUI();
    if (!_queueConvertTask) {
        _queueConvertTask = std::make_unique<SXOperationQueue>();
        // The run ends as its last conversion does, not at the next tick of the progress timer:
        // for a batch of short files that tick was a tenth of the run.
        connect(_queueConvertTask.get(), &SXOperationQueue::operationFinished, this,
                &SXWorkspaceScheduler::finishIfDone, Qt::QueuedConnection);
    }
    _queueConvertTask->setMaxConcurrentOperationCount(
        m_maxConcurrentOverride.value_or(SXSettings::integerForKey(SXSettingsKey::MaxTask)));
    m_totalConvertOps = getTotalNeedConvertMusic();
    startConvertOperation();
    const SXJobBuilder::Run run =
        SXJobBuilder::Run::fromSettings(folder, m_bOrganized, m_existingOverride);

    // Every item is queued again at each Start, whatever an earlier run made of it.
    QList<Pending> pending;
    for (const QString& name : containerNames()) {
        const SXFormatSettingPtr setting = getFormatSettingForFormatName(name);
        for (const SXMusicInfoPtr& item : getDataForFormat(name)) {
            item->setDConvertProgress(SXProgress::Waiting);
            // Without a media record or a format there is nothing to convert: it stays waiting.
            if (!item->mediaInfo() || !setting)
                continue;
            pending.append({item, SXJobBuilder::build(*item, *setting, run),
                            SXLoudnessSurvey::albumKey(*item, name)});
        }
    }
    const bool measure = std::any_of(pending.cbegin(), pending.cend(),
                                     [](const Pending& one) { return one.job.loudness.wanted(); });
    if (measure)
        surveyLoudness(std::move(pending));
    else
        queueOperations(pending);

    if (_timerToRefresh) {
        _timerToRefresh->stop();
        _timerToRefresh->deleteLater();
    }
    _timerToRefresh = new QTimer(this);
    _timerToRefresh->setInterval(400);
    connect(_timerToRefresh, &QTimer::timeout, this, &SXWorkspaceScheduler::refreshTimeFired);
    _timerToRefresh->start();
    return true;
}

void SXWorkspaceScheduler::queueOperations(const QList<Pending>& pending) {
    // All are prepared before the first is queued: the first conversions' start-up would
    // otherwise compete with this thread for the cores while it prepares the rest.
    std::vector<ConvertOperationPtr> operations;
    for (const Pending& one : pending) {
        auto operation = std::make_shared<ConvertOperation>(one.item, one.job);
        operation->setListener(this);
        operations.push_back(std::move(operation));
    }
    for (ConvertOperationPtr& operation : operations)
        _queueConvertTask->addOperation(std::move(operation));
}

void SXWorkspaceScheduler::surveyLoudness(QList<Pending> pending) {
    // The loudness is measured before any conversion is queued: an album's gain needs every one
    // of its tracks, and a normalised conversion needs its gain before its child starts.
    QList<SXLoudnessSurvey::Entry> entries;
    QList<Pending> measured;
    QList<Pending> plain;
    for (Pending& one : pending) {
        if (one.job.loudness.wanted()) {
            entries.append({one.job, one.album});
            measured.append(std::move(one));
        } else {
            plain.append(std::move(one));
        }
    }
    queueOperations(plain);
    m_survey = new SXLoudnessSurvey(std::move(entries),
                                    _queueConvertTask->maxConcurrentOperationCount(), this);
    connect(m_survey, &SXLoudnessSurvey::finished, this, [this, measured] {
        SXLoudnessSurvey* survey = std::exchange(m_survey, nullptr);
        survey->deleteLater();
        if (survey->isCancelled())
            return; // Stop came first: the rows already say so, and nothing is queued
        QList<Pending> surveyed;
        const QList<ConvertJob> jobs = survey->jobs();
        for (qsizetype i = 0; i < measured.size() && i < jobs.size(); ++i) {
            // A row cancelled while it was being measured stays cancelled.
            if (measured.at(i).item->dConvertProgress() != SXProgress::Canceled)
                surveyed.append({measured.at(i).item, jobs.at(i), measured.at(i).album});
        }
        queueOperations(surveyed);
    });
    SXLog::line(QStringLiteral("measuring the loudness of %1 sources").arg(measured.size()));
    m_survey->start();
}

void SXWorkspaceScheduler::startConvertOperation() {
    m_store.setAppState(AppStateConverting);
    Q_EMIT totalProgressChanged(0.0);
}

void SXWorkspaceScheduler::setConvertOperationFinished() {
    m_store.setAppState(AppStateIdle);
}

void SXWorkspaceScheduler::abandonRun() {
    if (enumAppState() != AppStateConverting)
        return;
    if (_timerToRefresh) {
        _timerToRefresh->stop();
        _timerToRefresh->deleteLater();
        _timerToRefresh = nullptr;
    }
    if (m_survey) {
        cancelAll();                             // the rows being measured end cancelled
        delete std::exchange(m_survey, nullptr); // waits for the meters
    }
    if (_queueConvertTask) {
        cancelAll();
        _queueConvertTask->waitUntilAllOperationsAreFinished();
    }
    setConvertOperationFinished();
}

// --- Cancel ---

void SXWorkspaceScheduler::cancelAll() {
    if (m_survey) {
        // Items still being measured have no operation yet: they end cancelled here.
        m_survey->cancel();
        for (const QString& name : containerNames()) {
            for (const SXMusicInfoPtr& item : getDataForFormat(name)) {
                const LSMediaPtr media = item->mediaInfo();
                if (!media || item->dConvertProgress() != SXProgress::Waiting ||
                    findOperationForMusicInfo(item))
                    continue;
                media->setEumCvtState(CvtStateCanceled);
                item->setDConvertProgress(SXProgress::Canceled);
            }
        }
    }
    if (!_queueConvertTask)
        return;
    for (const SXOperationPtr& operation : _queueConvertTask->operations()) {
        auto convert = std::dynamic_pointer_cast<ConvertOperation>(operation);
        if (!convert)
            continue;
        if (const SXMusicInfoPtr item = convert->musicToConvert())
            item->setDConvertProgress(SXProgress::Canceled);
        convert->cancel();
    }
}

ConvertOperationPtr SXWorkspaceScheduler::findOperationForMusicInfo(const SXMusicInfoPtr& item) {
    if (!_queueConvertTask || !item)
        return nullptr;
    QMutexLocker locker(&m_queueLock);
    QList<ConvertOperationPtr> operations;
    for (const SXOperationPtr& operation : _queueConvertTask->operations()) {
        if (auto convert = std::dynamic_pointer_cast<ConvertOperation>(operation))
            operations.append(std::move(convert));
    }
    // The row's own item first: a container may hold one file twice, and a right-click must
    // cancel the row it was made on.
    for (const ConvertOperationPtr& operation : std::as_const(operations)) {
        if (operation->musicToConvert() == item)
            return operation;
    }
    // An equal item (a copy, as a drag carries) still names its operation; anything else names
    // none, so that no other file is ever cancelled in its place.
    for (const ConvertOperationPtr& operation : std::as_const(operations)) {
        const SXMusicInfoPtr music = operation->musicToConvert();
        if (music && music->isEqualToMusic(*item))
            return operation;
    }
    return nullptr;
}

void SXWorkspaceScheduler::cancelOrEditTags(const SXMusicInfoPtr& item) {
    const int state = enumAppState();
    if (state == AppStateIdle || state == AppStatePlaying) {
        const int row = SXContainerStore::indexMusicItem(item, m_store.getCurTableDatasource());
        m_store.setSelectedRows(row >= 0 ? QList<int>{row} : QList<int>{});
        Q_EMIT rowsRedrawRequested();
        Q_EMIT metadataEditorRequested(item);
        return;
    }
    if (state != AppStateConverting || !item)
        return;
    // A row whose conversion has ended has nothing left to cancel.
    const double progress = item->dConvertProgress();
    if (progress == SXProgress::Done || progress == SXProgress::Failed ||
        progress == SXProgress::Canceled)
        return;
    const ConvertOperationPtr operation = findOperationForMusicInfo(item);
    if (!operation) {
        // Still being measured: it gets no operation when the measuring ends.
        if (m_survey && item->mediaInfo() && progress == SXProgress::Waiting) {
            item->mediaInfo()->setEumCvtState(CvtStateCanceled);
            item->setDConvertProgress(SXProgress::Canceled);
            Q_EMIT rowsRedrawRequested();
        }
        return;
    }
    operation->cancel();
    // As Stop does for every row: a waiting operation leaves the queue without a word, so the
    // row says at once that it will not convert. One that had already ended keeps its outcome.
    const SXMusicInfoPtr cancelled = operation->musicToConvert();
    const LSMediaPtr media = cancelled ? cancelled->mediaInfo() : nullptr;
    if (media && media->eumCvtState() == CvtStateCanceled) {
        cancelled->setDConvertProgress(SXProgress::Canceled);
        Q_EMIT rowsRedrawRequested();
    }
}
