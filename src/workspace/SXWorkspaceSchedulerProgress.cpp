#include "workspace/SXWorkspaceScheduler.h"

#include "base/SXSettings.h"
#include "workspace/SXRunSummary.h"

#include <QCoreApplication>
#include <QFileInfo>

// How a run follows its conversions: their reports from the worker threads, the progress shown,
// and the end of the run with its summary.
// --- Progress ---

void SXWorkspaceScheduler::refreshTimeFired() {
    QMetaObject::invokeMethod(
        this, [this] { refreshUIOnMainThreadWhenConvert(); }, Qt::QueuedConnection);
    if (runIsOver())
        finishRun();
}

bool SXWorkspaceScheduler::runIsOver() const {
    // A conversion reports its end before it leaves the queue, so with the queue empty and no
    // report still on its way every row is final when the summary counts it.
    return !m_survey && (!_queueConvertTask || _queueConvertTask->operationCount() == 0) &&
           m_finishReportsInFlight.load() == 0;
}

void SXWorkspaceScheduler::finishIfDone() {
    if (_timerToRefresh && runIsOver())
        refreshTimeFired();
}

void SXWorkspaceScheduler::refreshUIOnMainThreadWhenConvert() {
    Q_EMIT rowsRedrawRequested();
    Q_EMIT totalProgressChanged(getTotalConvertProgress() * 100.0);
}

void SXWorkspaceScheduler::finishRun() {
    if (_timerToRefresh) {
        _timerToRefresh->stop();
        _timerToRefresh->deleteLater();
        _timerToRefresh = nullptr;
    }
    if (!_queueConvertTask || _queueConvertTask->operationCount() == 0)
        QMetaObject::invokeMethod(
            this, [this] { setConvertOperationFinished(); }, Qt::QueuedConnection);

    SXMusicInfoList items;
    for (const QString& name : containerNames())
        items += getDataForFormat(name);
    const SXRunSummary summary = SXRunSummary::of(items);
    const QString message = summaryMessage(summary.converted, summary.failures);
    runAlert({message, summary.informativeText(), {tr("OK")}, summary.details()});
    Q_EMIT rowsRedrawRequested();
    Q_EMIT runFinished(message, summary.converted, int(summary.failures.size()));
    if (m_bOverOpen && m_store.presenter())
        m_store.presenter()->openFolder(SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath));
}

QString SXWorkspaceScheduler::summaryMessage(int succeeded, const SXPathFailureList& failures) {
    // The counts stand in their sentences so that a catalogue can give each its plural form. The
    // context is named, so the catalogue's entries stay whichever class builds the summary.
    QString message = QCoreApplication::translate(
        "SXWorkspaceScheduler", "%n files has been successfully converted.", nullptr, succeeded);
    if (failures.isEmpty())
        return message;
    message += QCoreApplication::translate(
        "SXWorkspaceScheduler", "except %n files failed,including:", nullptr, int(failures.size()));
    for (int i = 0; i < failures.size(); ++i) {
        if (i == 3) {
            message += QStringLiteral("...");
            break;
        }
        const SXPathFailure& failure = failures.at(i);
        message += QStringLiteral(" \n%1").arg(
            QCoreApplication::translate("SXWorkspaceScheduler", "%1: %2")
                .arg(QFileInfo(failure.path).completeBaseName(), failure.reason));
    }
    return message;
}

double SXWorkspaceScheduler::getTotalConvertProgress() const {
    double sum = 0;
    qsizetype count = 0;
    for (const QString& name : containerNames()) {
        for (const SXMusicInfoPtr& item : getDataForFormat(name)) {
            const double value = item->dConvertProgress();
            ++count;
            if (value == SXProgress::Failed || value == SXProgress::Canceled ||
                value == SXProgress::Done)
                sum += 100;
            else if (value == SXProgress::Sending)
                sum += 90;
            else if (value != SXProgress::Waiting)
                sum += value;
        }
    }
    // Without items there is nothing to divide by: no progress, never NaN, which the state strip
    // and the launcher would turn into an integer.
    return count == 0 ? 0.0 : sum / (double(count) * 100.0);
}

// --- Operation callbacks (worker threads) ---

void SXWorkspaceScheduler::requestRedraw() {
    m_redraw.request();
}

void SXWorkspaceScheduler::didConvertOperationStart(ConvertOperation* operation) {
    if (const SXMusicInfoPtr item = operation->musicToConvert())
        item->setDConvertProgress(0);
    requestRedraw();
}

void SXWorkspaceScheduler::convertOperationHandleProgress(ConvertOperation* operation,
                                                          double percent) {
    if (const SXMusicInfoPtr item = operation->musicToConvert())
        item->setDConvertProgress(percent);
    requestRedraw();
}

void SXWorkspaceScheduler::convertStartSync(ConvertOperation* operation) {
    const SXMusicInfoPtr item = operation->musicToConvert();
    const LSMediaPtr media = item ? item->mediaInfo() : nullptr;
    if (media && media->eumCvtState() == CvtStateSending)
        item->setDConvertProgress(SXProgress::Sending);
    requestRedraw();
}

void SXWorkspaceScheduler::didConvertOperationFinish(ConvertOperation* operation) {
    const SXMusicInfoPtr item = operation->musicToConvert();
    const LSMediaPtr media = item ? item->mediaInfo() : nullptr;
    if (media) {
        const int state = media->eumCvtState();
        item->setDConvertProgress(state == CvtStateCanceled ? SXProgress::Canceled
                                  : state == CvtStateFailed ? SXProgress::Failed
                                                            : SXProgress::Done);
    }
    const QString outputFile = operation->strOutFilePath();
    m_finishReportsInFlight.fetch_add(1);
    QMetaObject::invokeMethod(
        this,
        [this, item, outputFile] {
            if (item)
                Q_EMIT itemFinished(item, outputFile);
            m_redraw.request();
            m_finishReportsInFlight.fetch_sub(1);
            finishIfDone();
        },
        Qt::QueuedConnection);
}
