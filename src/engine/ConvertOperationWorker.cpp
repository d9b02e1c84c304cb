// ConvertOperation's conversion through a sonoria-worker: the rest of the operation (the output's
// name, its check, tags, commit and delivery) is the same for both ways of converting.
#include "base/SXLog.h"
#include "engine/ConvertCommandLine.h"
#include "engine/ConvertEngineChoice.h"
#include "engine/ConvertOperation.h"

#include <QMutexLocker>

ConvertOperation::WorkerPath ConvertOperation::convertWithWorker() {
    {
        QMutexLocker locker(&m_lock);
        if (isCancelled())
            return WorkerPath::CancelledEarly;
        m_onWorker = true;
        iExitCode = 0;
        setStateLocked(CvtStateConverting);
    }
    SXLog::line(QStringLiteral("engine: worker"));
    if (m_listener)
        m_listener->didConvertOperationStart(this);
    const ConvertWorkerRun::Result result = m_workerRun.run(
        ConvertEngineChoice::workerPath(), m_job.sourcePath, m_output.temporaryPath(),
        ConvertCommandLine::settings(m_job), m_job.sourceDuration, [this](double percent) {
            if (m_listener)
                m_listener->convertOperationHandleProgress(this, percent);
        });
    bool cancelled = false;
    {
        QMutexLocker locker(&m_lock);
        if (result.kind == ConvertWorkerRun::Result::Kind::NotStarted && !isUserCancel) {
            // ffmpeg converts it instead: the result is the same, only slower to start.
            m_onWorker = false;
            SXLog::line(QStringLiteral("no worker could be started"));
            return WorkerPath::Unavailable;
        }
        m_childEnded = true;
        cancelled = isUserCancel;
    }
    if (cancelled || result.kind == ConvertWorkerRun::Result::Kind::Cancelled) {
        // As with the ffmpeg child: a cancelled run never counts as finished.
        setState(CvtStateCanceled);
        m_output.discard();
        return WorkerPath::Converted;
    }
    if (result.kind == ConvertWorkerRun::Result::Kind::Failed) {
        fail(result.reason);
        return WorkerPath::Converted;
    }
    m_console = result.decoding; // explains a short output, as ffmpeg's console text does
    concludeOutput();
    return WorkerPath::Converted;
}
