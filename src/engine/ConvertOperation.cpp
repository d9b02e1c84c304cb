#include "engine/ConvertOperation.h"

#include "base/SXInstallation.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "engine/ConvertCommandLine.h"
#include "engine/ConvertEngineChoice.h"
#include "engine/ConvertFailure.h"
#include "engine/ConvertOutputFile.h"
#include "engine/ConvertOutputPath.h"
#include "engine/ConvertVerification.h"
#include "engine/SXLibraryScript.h"
#include "engine/ScriptBridgeHelper.h"
#include "engine/TaskWrapper.h"
#include "framework/MTEAudioFileMgr.h"
#include "framework/MTETagCopy.h"
#include "framework/MTETagReport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QTimer>

#include <csignal>
#include <sys/stat.h>
#include <sys/types.h>
#include <utility>

namespace {
const QString kRingtone = QStringLiteral("ringtone");
const QString kRingtoneEncodeExt = QStringLiteral("m4a");
constexpr int kSliceMs = 1000;
// After a cancel the child was asked to stop; ffmpeg closes its file first. A child that is
// still there after this long is killed so the run can end.
constexpr int kStopGraceMs = 10000;
constexpr qsizetype kConsoleKeep = 16 * 1024;

// The output kinds that carry tags, so that a tag copy into them must succeed.
const QStringList& kindsWithTags() {
    static const QStringList kinds{"mp3", "m4a", "m4r", "mp4", "flac", "ogg",  "oga", "opus",
                                   "wma", "asf", "wv",  "wav", "aif",  "aiff", "ape"};
    return kinds;
}
} // namespace

ConvertOperation::ConvertOperation(const SXMusicInfoPtr& item, ConvertJob job)
    : _musicToConvert(item)
    , m_job(std::move(job))
    , m_strOutFilePath(m_job.outputFolder) {
    if (const LSMediaPtr media = item ? item->mediaInfo() : nullptr) {
        media->setEumCvtState(CvtStateReady);
        media->setFailReason(QString());
        media->setAlreadyConverted(false);
    }
}

ConvertOperation::~ConvertOperation() {
    SXLog::line(QStringLiteral("operation dealloced"));
    if (wraperTask) {
        wraperTask->stopProcess();
        delete wraperTask;
        wraperTask = nullptr;
    }
}

SXMusicInfoPtr ConvertOperation::musicToConvert() const {
    QMutexLocker locker(&m_lock);
    return _musicToConvert;
}

QString ConvertOperation::strOutFilePath() const {
    QMutexLocker locker(&m_lock);
    return m_strOutFilePath;
}

void ConvertOperation::setStrOutFilePath(const QString& path) {
    QMutexLocker locker(&m_lock);
    m_strOutFilePath = path;
}

bool ConvertOperation::isRingtone() const {
    return m_job.formatName.toLower() == kRingtone;
}

void ConvertOperation::setState(int state) {
    const SXMusicInfoPtr item = musicToConvert();
    if (item && item->mediaInfo())
        item->mediaInfo()->setEumCvtState(state);
}

void ConvertOperation::setStateLocked(int state) {
    if (_musicToConvert && _musicToConvert->mediaInfo())
        _musicToConvert->mediaInfo()->setEumCvtState(state);
}

void ConvertOperation::tellFinish() {
    if (m_listener)
        m_listener->didConvertOperationFinish(this);
}

void ConvertOperation::main() {
    const SXMusicInfoPtr item = musicToConvert();
    const LSMediaPtr media = item ? item->mediaInfo() : nullptr;
    if (!media) {
        SXLog::line(QStringLiteral("convert item has no media record"));
        tellFinish();
        return;
    }
    const QString ffmpeg = ConvertCommandLine::ffmpegPath();
    if (ffmpeg.isEmpty()) {
        fail(ConvertFailure::ffmpegMissing());
        tellFinish();
        return;
    }
    if (const QString earlier = earlierResult(); !earlier.isEmpty()) {
        SXLog::line(QStringLiteral("already converted: %1").arg(earlier));
        setStrOutFilePath(earlier);
        media->setAlreadyConverted(true);
        setState(CvtStateFinished);
        tellFinish();
        return;
    }
    if (m_job.loudness.wanted() && !m_job.loudness.failure.isEmpty()) {
        // A source that libav cannot decode for the meter would not convert either (ffmpeg reads
        // it with the same libraries), and an output without the gain the user asked for would
        // be a quiet lie: the item fails here, with the decoder's reason.
        fail(ConvertLoudness::notMeasured(m_job.loudness.failure));
        tellFinish();
        return;
    }
    const QString folder = ConvertOutputFile::folderFor(m_job);
    const QString problem =
        m_output.prepare(m_job, folder, isRingtone() ? kRingtoneEncodeExt : QString());
    if (!problem.isEmpty()) {
        // No child is started for a folder that cannot take the file.
        if (isCancelled())
            return;
        fail(problem);
        tellFinish();
        return;
    }
    setStrOutFilePath(m_output.finalPath());
    const QStringList arguments =
        ConvertCommandLine::arguments(ffmpeg, m_job, m_output.temporaryPath());
    SXLog::line(QStringLiteral("tOutFile:") + m_output.finalPath());
    SXLog::line(QStringLiteral("args:") + ConvertCommandLine::readable(arguments));
    const WorkerPath path =
        ConvertEngineChoice::workerTakes(m_job) ? convertWithWorker() : WorkerPath::Unavailable;
    if (path == WorkerPath::Unavailable)
        SXLog::line(QStringLiteral("engine: ffmpeg"));
    // Cancelled after the queue let it run but before the child started: like a waiting
    // operation, it reports nothing; only the name it claimed is given back.
    if (path == WorkerPath::CancelledEarly ||
        (path == WorkerPath::Unavailable && !startChild(arguments))) {
        m_output.discard();
        return;
    }
    if (path == WorkerPath::Unavailable) {
        waitForChild();
        decideOutcome();
    }
    deliverToLibrary(strOutFilePath());
    tellFinish();
}

QString ConvertOperation::earlierResult() const {
    return isCancelled() ? QString() : ConvertOutputFile::earlierResult(m_job);
}

void ConvertOperation::fail(const QString& reason) {
    SXLog::line(QStringLiteral("conversion failed: %1").arg(reason));
    if (const SXMusicInfoPtr item = musicToConvert(); item && item->mediaInfo())
        item->mediaInfo()->setFailReason(reason);
    setState(CvtStateFailed);
    m_output.discard();
}

bool ConvertOperation::startChild(const QStringList& arguments) {
    auto* wrapper = new TaskWrapper(this, arguments);
    TaskWrapper* earlier = nullptr;
    {
        QMutexLocker locker(&m_lock);
        if (isCancelled()) {
            locker.unlock();
            delete wrapper;
            return false;
        }
        earlier = wraperTask;
        wraperTask = wrapper;
        iExitCode = 0;
        m_terminated = false;
    }
    if (earlier) {
        earlier->stopProcess();
        delete earlier;
    }
    wrapper->startProcess();

    QMutexLocker locker(&m_lock);
    if (isUserCancel) {
        // The cancel came while the child was being launched, so its stop request may have
        // found no process yet: ask again now that it exists.
        wrapper->stopProcess();
        bIsConverting = false;
    } else {
        setStateLocked(CvtStateConverting);
        bIsConverting = true;
    }
    return true;
}

void ConvertOperation::waitForChild() {
    QEventLoop loop;
    QTimer slice;
    slice.setInterval(kSliceMs);
    QObject::connect(&slice, &QTimer::timeout, &loop, [&loop] { loop.quit(); });
    {
        QMutexLocker locker(&m_lock);
        m_waitLoop = &loop;
    }
    slice.start();
    while (bIsConverting)
        loop.exec();

    // A cancel ends the wait at once, but the child may still be writing its output: wait
    // until it is gone, so the output can be removed for good and no process outlives the run.
    QElapsedTimer sinceCancel;
    sinceCancel.start();
    bool killed = false;
    while (!m_terminated) {
        if (!killed && sinceCancel.elapsed() > kStopGraceMs) {
            QMutexLocker locker(&m_lock);
            if (wraperTask && wraperTask->processId() > 0)
                ::kill(static_cast<pid_t>(wraperTask->processId()), SIGKILL);
            killed = true;
        }
        loop.exec();
    }
    QMutexLocker locker(&m_lock);
    m_waitLoop.clear();
}

void ConvertOperation::decideOutcome() {
    bool cancelled = false;
    TaskWrapper* finishedWrapper = nullptr;
    {
        QMutexLocker locker(&m_lock);
        m_childEnded = true;
        cancelled = isUserCancel;
        finishedWrapper = wraperTask;
        wraperTask = nullptr;
    }
    // The child is gone; the wrapper is destroyed here, on the thread its process lives on.
    delete finishedWrapper;

    if (cancelled) {
        // A cancelled run never counts as finished, even when the child managed to exit 0
        // before the cancel reached it: the user asked for no file.
        setState(CvtStateCanceled);
        m_output.discard();
        return;
    }
    concludeOutput();
}

void ConvertOperation::concludeOutput() {
    const QString reason = finishOutput();
    if (!reason.isEmpty()) {
        fail(reason);
        return;
    }
    if (m_job.runLibraryScript) {
        setState(CvtStateSending);
        SXLibraryScript::run(strOutFilePath());
    }
    setState(CvtStateFinished);
}

QString ConvertOperation::finishOutput() {
    // ffmpeg exits 0 after some failures (a full disk while the trailer is written, nothing
    // encoded), so its words count as much as its status; then the file itself is checked.
    if (iExitCode != 0)
        return ConvertFailure::fromExitStatus(iExitCode, m_console);
    QString reason = ConvertFailure::fromFfmpegOutput(m_console);
    if (!reason.isEmpty())
        return reason;
    // The tags go in first and the file is checked after them: a tag write that ran out of
    // room can leave a file that no longer reads as audio.
    reason = saveTags(m_output.temporaryPath());
    if (!reason.isEmpty())
        return reason;
    reason = ConvertVerification::check(m_output.temporaryPath(), m_job.encoder,
                                        m_job.sourceDurationExact ? m_job.sourceDuration : 0.0);
    if (!reason.isEmpty()) {
        // A source that would not decode is the better explanation of a short output.
        const QString decoding = ConvertFailure::decodingIn(m_console);
        return decoding.isEmpty() ? reason : decoding + QStringLiteral(" (") + reason + u')';
    }
    reason = m_output.commit();
    if (!reason.isEmpty())
        return reason;
    setStrOutFilePath(m_output.finalPath());
    reportTags(m_output.finalPath());
    return {};
}

void ConvertOperation::reportTags(const QString& outputPath) {
    const SXMusicInfoPtr item = musicToConvert();
    if (!item)
        return;
    // The record as the tag editor left it is what the output should carry, not the file.
    const std::shared_ptr<MTEAudioFile> handle = item->metHandler();
    std::optional<MTEArtworkList> pictures;
    if (handle && handle->isArtworkLoaded())
        pictures = handle->albumImg();
    item->setTagReport(MTETagReport::compare(
        m_job.sourcePath, outputPath,
        handle ? MTETagReport::recordOf(*handle) : QMap<QString, QString>(), pictures));
}

void ConvertOperation::deliverToLibrary(const QString& outputFile) {
    const SXMusicInfoPtr item = musicToConvert();
    if (item->mediaInfo()->eumCvtState() != CvtStateFinished || !m_job.addToLibrary)
        return;
    setState(CvtStateSending);
    if (m_listener)
        m_listener->convertStartSync(this);
    setState(CvtStateSending);
    ScriptBridgeHelper::syncMusicLibrary(m_job.playlist, outputFile);
    setState(CvtStateFinished);
}

QString ConvertOperation::saveTags(const QString& path) {
    const std::shared_ptr<MTEAudioFile> destination =
        MTEAudioFileMgr::createAudioFileWithPath(path, false);
    // A kind without tags (AC3, MP2) has nothing to write, which is no failure. One that has
    // them and cannot be opened is a file the encoder wrote broken (a WMA header that overflowed).
    if (!destination || destination->eumFileType() == MTEAudioFile::FileTypeUnwritable) {
        if (kindsWithTags().contains(QFileInfo(path).suffix().toLower()))
            return ConvertFailure::tagsNotSaved(
                QCoreApplication::translate("ConvertFailure", "the file cannot be opened"));
        SXLog::line(QStringLiteral("no tags written for the file type of %1").arg(path));
        return {};
    }
    destination->setStatus(1);
    // The output gets the record and the source's other fields as its only tags.
    const SXMusicInfoPtr item = musicToConvert();
    const std::shared_ptr<MTEAudioFile> source = item ? item->metHandler() : nullptr;
    // A cue sheet's track whose audio file had no readable tags still gets the sheet's words
    // (with a handle, the loader already put them into its record).
    const LSMediaPtr media = item ? item->mediaInfo() : nullptr;
    if (const std::optional<SXCueTrack> track = media ? media->cueTrack() : std::nullopt;
        track && !source)
        MTETagCopy::overrideWithCueTrack(*track, *destination);
    QString error;
    if (!MTETagCopy::copy(source.get(), *destination, path, &error,
                          m_job.loudness.tagFields(QFileInfo(path).suffix())))
        return ConvertFailure::tagsNotSaved(error);
    return {};
}

void ConvertOperation::cancel() {
    QMutexLocker locker(&m_lock);
    if (isFinished() || m_childEnded)
        return; // the outcome is decided; nothing is left to stop
    if (m_onWorker) {
        // The worker stops between two frames and main discards the partial output.
        m_workerRun.cancel();
        SXOperation::cancel();
        setStateLocked(CvtStateCanceled);
        isUserCancel = true;
        return;
    }
    if (wraperTask) {
        const SXMusicInfoPtr item = _musicToConvert;
        if (item && item->mediaInfo() && item->mediaInfo()->eumCvtState() == CvtStatePaused)
            wraperTask->resume(); // a stopped child cannot act on the terminate request
        wraperTask->stopProcess();
        SXOperation::cancel();
        setStateLocked(CvtStateCanceled);
        bIsConverting = false;
        isUserCancel = true;
        // The partial output is removed by main once the child is gone (it may still write).
        if (m_waitLoop)
            QMetaObject::invokeMethod(m_waitLoop.data(), &QEventLoop::quit, Qt::QueuedConnection);
        return;
    }
    SXOperation::cancel();
    setStateLocked(CvtStateCanceled);
    bIsConverting = false;
}

void ConvertOperation::pause() {
    QMutexLocker locker(&m_lock);
    if ((!wraperTask && !m_onWorker) || m_childEnded)
        return;
    setStateLocked(CvtStatePaused);
    if (m_onWorker)
        m_workerRun.pause();
    else
        wraperTask->suspend();
}

void ConvertOperation::resume() {
    QMutexLocker locker(&m_lock);
    if ((!wraperTask && !m_onWorker) || m_childEnded)
        return;
    setStateLocked(CvtStateConverting);
    if (m_onWorker)
        m_workerRun.resume();
    else
        wraperTask->resume();
}

void ConvertOperation::appendOutput(const QString& output) {
    SXLog::line(QStringLiteral("Append output:") +
                (output.isNull() ? QStringLiteral("(null)") : output));
    if (output.isEmpty())
        return;
    // The end of what ffmpeg said tells why it failed; progress lines alone would fill this.
    m_console += output;
    if (m_console.size() > kConsoleKeep)
        m_console.remove(0, m_console.size() - kConsoleKeep);
    const ConvertProgressTracker::Update update = m_progress.feed(output, m_job.sourceDuration);
    if (update.hasTime && update.renewed && m_listener)
        m_listener->convertOperationHandleProgress(this, update.progress);
}

void ConvertOperation::processStarted() {
    bIsConverting = true;
    if (m_listener)
        m_listener->didConvertOperationStart(this);
}

void ConvertOperation::processFinished() {
    SXLog::line(QStringLiteral("process finised..."));
}

void ConvertOperation::launcherDidTerminatedWithCode(int code) {
    SXLog::line(QStringLiteral("exit code:%1").arg(code));
    iExitCode = code;
    m_terminated = true;
    bIsConverting = false;
    if (m_waitLoop)
        m_waitLoop->quit();
}
