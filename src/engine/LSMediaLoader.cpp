#include "engine/LSMediaLoader.h"

#include "base/SXLog.h"
#include "engine/ConvertNaming.h"
#include "framework/HVMediaInfo.h"
#include "framework/MTEAudioFileMgr.h"
#include "framework/MTETagCopy.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace {

// Size and modification date as the information panel shows them. A file whose attributes
// cannot be read keeps both empty; that is not a load failure.
void readFileAttributes(LSMedia& media) {
    const QFileInfo info(media.filePath());
    if (!info.exists())
        return;
    // The user's own short date and time: the order of day and month and the clock (12 or 24
    // hours) differ between locales.
    media.setStrLastModified(QLocale().toString(info.lastModified(), QLocale::ShortFormat));
    media.setDFileSize(double(info.size()));
}

// Everything after a good probe. Unreadable tags leave the handle empty; the item still loads.
// A cue sheet's track reads the tags of its audio file, with the sheet's words over them.
void fillProbedItem(SXMusicInfo& item, LSMedia& media) {
    readFileAttributes(media);
    const QString path = media.filePath();
    std::shared_ptr<MTEAudioFile> handle = MTEAudioFileMgr::createAudioFileWithPath(path, true);
    if (!handle)
        SXLog::line(QStringLiteral("load %1 failed!").arg(path));
    else
        media.setDiscNumber(ConvertNaming::discOf(path));
    if (const std::optional<SXCueTrack> track = media.cueTrack(); track && handle)
        MTETagCopy::overrideWithCueTrack(*track, *handle);
    item.setMetHandler(handle);
}

// A track lasts from its start to its end in the file, not as long as the whole file. False
// with the reason on the record when the sheet places it beyond the file's end.
bool narrowToTrack(LSMedia& media) {
    const std::optional<SXCueTrack> track = media.cueTrack();
    if (!track)
        return true;
    const double fileSeconds = media.duration();
    const double start = double(track->startFrame) / SXCueTrack::kFramesPerSecond;
    if (fileSeconds > 0 && start >= fileSeconds) {
        media.setFailReason(
            QCoreApplication::translate("LSMediaLoader",
                                        "Track %1 of the cue sheet starts after the end of %2")
                .arg(track->number)
                .arg(QFileInfo(media.filePath()).fileName()));
        return false;
    }
    media.setDuration(track->seconds(fileSeconds));
    return true;
}

// Why a probe failed, in the user's words: the system's reason when the file cannot even be
// opened, else it holds nothing we can read as audio.
QString unloadableReason(const QString& path) {
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        const QString error = QString::fromStdString(std::generic_category().message(errno));
        return QCoreApplication::translate("LSMediaLoader", "The file cannot be opened: %1")
            .arg(error);
    }
    struct stat status {};
    const bool folder = ::fstat(fd, &status) == 0 && S_ISDIR(status.st_mode);
    ::close(fd);
    return folder ? QCoreApplication::translate("LSMediaLoader", "This is a folder, not a file")
                  : QCoreApplication::translate("LSMediaLoader",
                                                "The file holds no audio that can be read");
}

} // namespace

std::shared_ptr<LSMediaLoader> LSMediaLoader::create() {
    return std::shared_ptr<LSMediaLoader>(new LSMediaLoader());
}

void LSMediaLoader::setListener(LSMediaLoaderListener* listener) {
    m_listener.store(listener);
}

LSMediaLoaderListener* LSMediaLoader::listener() const {
    return m_listener.load();
}

void LSMediaLoader::cancel() {
    m_bCanceled.store(true);
}

bool LSMediaLoader::bCanceled() const {
    return m_bCanceled.load();
}

void LSMediaLoader::loadMediasWithMediaArray(const SXMusicInfoList& medias) {
    if (medias.isEmpty()) {
        completeLoad(std::nullopt, std::nullopt);
        return;
    }
    loadBatchMadeBy([medias] { return medias; });
}

void LSMediaLoader::loadBatchMadeBy(std::function<SXMusicInfoList()> makeBatch) {
    {
        QMutexLocker locker(&m_lock);
        ++m_runningWorkers;
    }
    // The worker owns a reference, so the loader outlives a caller that lets go of it.
    std::shared_ptr<LSMediaLoader> self = shared_from_this();
    try {
        std::thread worker([self, makeBatch = std::move(makeBatch)] {
            const SXMusicInfoList medias = self->bCanceled() ? SXMusicInfoList() : makeBatch();
            if (medias.isEmpty())
                self->completeLoad(std::nullopt, std::nullopt);
            else
                self->loadMediasThread(medias);
            self->workerFinished();
        });
        QMutexLocker locker(&m_lock);
        m_threads.push_back(std::move(worker));
    } catch (const std::system_error& failure) {
        // No thread could be made: nothing of the batch is delivered, as after a cancel.
        SXLog::line(QStringLiteral("cannot start the loading thread: %1")
                        .arg(QString::fromLocal8Bit(failure.what())));
        completeLoad(std::nullopt, std::nullopt);
        workerFinished();
    }
}

void LSMediaLoader::loadMediasThread(const SXMusicInfoList& medias) {
    QSet<int> failedIndex;
    const int count = int(medias.size());
    for (int i = 0; i < count; ++i) {
        if (bCanceled()) {
            completeLoad(std::nullopt, std::nullopt);
            return;
        }
        const SXMusicInfoPtr& item = medias.at(i);
        if (LSMediaLoaderListener* target = listener())
            target->mediaLoaderStartLoadMusic(this, item);

        const LSMediaPtr media = item ? item->mediaInfo() : nullptr;
        // An item that comes with a reason was refused before the load (a folder that cannot
        // be read, a name that is not valid UTF-8); there is nothing to probe.
        if (!media || !media->failReason().isEmpty() || !HVMediaInfo::dumpMediaInfo(*media) ||
            !narrowToTrack(*media)) {
            if (media && media->failReason().isEmpty())
                media->setFailReason(unloadableReason(media->filePath()));
            failedIndex.insert(i);
            SXLog::line(QStringLiteral("Failed:index:%1").arg(i));
        } else {
            // A cancel during the probe drops the batch before its tags are read.
            if (bCanceled()) {
                completeLoad(std::nullopt, std::nullopt);
                return;
            }
            fillProbedItem(*item, *media);
        }
        if (LSMediaLoaderListener* target = listener())
            target->mediaLoaderDidReceiveProgress(this, double(i + 1) / count);
    }
    completeLoad(medias, failedIndex);
}

void LSMediaLoader::completeLoad(const std::optional<SXMusicInfoList>& medias,
                                 const std::optional<QSet<int>>& failedIndex) {
    if (LSMediaLoaderListener* target = listener())
        target->mediaLoaderDidCompleteLoadMedias(this, medias, failedIndex);
}

void LSMediaLoader::workerFinished() {
    QMutexLocker locker(&m_lock);
    --m_runningWorkers;
    if (m_runningWorkers == 0)
        m_idle.wakeAll();
}

bool LSMediaLoader::waitUntilDone(int timeoutMs) {
    QDeadlineTimer deadline =
        timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeoutMs);
    {
        QMutexLocker locker(&m_lock);
        while (m_runningWorkers > 0) {
            if (!m_idle.wait(&m_lock, deadline) && m_runningWorkers > 0)
                return false;
        }
    }
    joinEndedWorkers();
    return true;
}

// A worker that has reported still runs for a moment: it lets go of the batch and of Qt's
// per-thread data (the collator the folder scan sorted with). Joined, none of that can run
// while the program ends.
void LSMediaLoader::joinEndedWorkers() {
    std::vector<std::thread> ended;
    {
        QMutexLocker locker(&m_lock);
        ended.swap(m_threads);
    }
    for (std::thread& thread : ended) {
        if (thread.get_id() == std::this_thread::get_id())
            thread.detach();
        else if (thread.joinable())
            thread.join();
    }
}

LSMediaLoader::~LSMediaLoader() {
    // With the last reference gone no worker still reports; one that dropped that reference
    // itself is this very thread and cannot be joined.
    joinEndedWorkers();
}
