#include "workspace/SXWorkspaceFileLists.h"

#include "base/SXFolderScan.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <system_error>
#include <thread>

namespace {
// The way the system log has always shown a list of items.
QString describeItems(const SXMusicInfoList& items) {
    QStringList lines;
    for (const SXMusicInfoPtr& item : items)
        lines.append(QStringLiteral("    ") + item->description());
    return lines.isEmpty()
               ? QStringLiteral("(\n)")
               : QStringLiteral("(\n") + lines.join(QStringLiteral(",\n")) + QStringLiteral("\n)");
}

// Why a named path cannot be examined. A name that was not valid UTF-8 reached us with its bad
// bytes replaced (U+FFFD), so it names no file: saying that is more use than "No such file".
QString missingPathReason(const QString& path, int error) {
    if (error == ENOENT && path.contains(QChar::ReplacementCharacter))
        return QCoreApplication::translate("SXWorkspaceFileLists",
                                           "The file name is not valid UTF-8");
    return QString::fromStdString(std::generic_category().message(error));
}
} // namespace

SXWorkspaceFileLists::SXWorkspaceFileLists(QObject* parent)
    : SXWorkspaceContainers(parent)
    , m_loadProgress(
          *this, [this](const std::optional<QString>& text, const std::optional<double>& value) {
              if (text)
                  Q_EMIT loadProgressText(*text);
              if (value)
                  Q_EMIT loadProgressValue(*value);
          }) {}

SXWorkspaceFileLists::~SXWorkspaceFileLists() {
    // A worker that still runs must not report to a workspace that is gone.
    if (m_mediaLoader) {
        m_mediaLoader->setListener(nullptr);
        m_mediaLoader->cancel();
        m_mediaLoader->waitUntilDone();
    }
}

// --- Adding ---

void SXWorkspaceFileLists::loadAndParseFiles(const QStringList& paths) {
    stopPlayerWithRefreshUI();
    m_loadProgress.clear();
    Q_EMIT loadStarted(QStringLiteral("Loading Media Files..."));
    Q_EMIT loadProgressValue(0.0);
    setAppState(AppStateLoading);

    if (m_mediaLoader)
        m_mediaLoader->setListener(nullptr);
    m_mediaLoader = LSMediaLoader::create();
    m_mediaLoader->setListener(this);

    // Scanning folders and making the items of a large drop takes a while: the batch is made
    // on a thread of its own from what the container holds now, then handed to the loader.
    // The thread keeps only the loader and the values it was given.
    const QString container = getSelectedMusicFormat();
    const SXMusicInfoList current = getCurTableDatasource();
    const LSMediaLoaderPtr loader = m_mediaLoader;
    try {
        std::thread([loader, paths, container, current] {
            loader->loadMediasWithMediaArray(makeBatch(paths, container, current));
        }).detach();
    } catch (const std::system_error&) {
        loader->loadMediasWithMediaArray(makeBatch(paths, container, current));
    }
}

SXMusicInfoList SXWorkspaceFileLists::makeBatch(const QStringList& paths, const QString& container,
                                                const SXMusicInfoList& current) {
    SXPathFailureList failures;
    const QStringList candidates = dropPathsAlreadyIn(expandPaths(paths, &failures), current);
    SXMusicInfoList batch;
    batch.reserve(candidates.size() + failures.size());
    for (const QString& path : candidates)
        batch.append(SXMusicInfo::newForSource(path, container));
    for (const SXPathFailure& failure : std::as_const(failures)) {
        const SXMusicInfoPtr item = SXMusicInfo::newForSource(failure.path, container);
        item->mediaInfo()->setFailReason(failure.reason);
        batch.append(item);
    }
    return batch;
}

QStringList SXWorkspaceFileLists::expandPaths(const QStringList& paths,
                                              SXPathFailureList* failures) {
    const bool acceptVob = SXSettings::boolForKey(SXSettingsKey::AppSupportVob, false);
    QStringList candidates;
    for (const QString& path : paths) {
        struct stat status {};
        if (::lstat(QFile::encodeName(path).constData(), &status) != 0) {
            const int error = errno;
            std::perror("lstat error");
            if (failures)
                failures->append({path, missingPathReason(path, error)});
            continue;
        }
        if (S_ISDIR(status.st_mode)) {
            candidates.append(
                SXFolderScan::filesBelow(path, SXFolderScan::acceptedExtensions(), failures));
        } else if (QFileInfo(path).suffix().compare(QLatin1String("vob"), Qt::CaseInsensitive) ==
                   0) {
            if (acceptVob)
                candidates.append(path);
        } else {
            candidates.append(path);
        }
    }
    return candidates;
}

QStringList SXWorkspaceFileLists::dropPathsAlreadyIn(QStringList candidates,
                                                     const SXMusicInfoList& current) {
    // A path already in the container, or named twice in one add (a folder and a file in it),
    // is added once: adding a folder again adds only what is new in it.
    QSet<QString> present;
    for (const SXMusicInfoPtr& item : current)
        present.insert(item->strFilePath());
    candidates.removeIf([&present](const QString& path) {
        if (present.contains(path))
            return true;
        present.insert(path);
        return false;
    });
    return candidates;
}

void SXWorkspaceFileLists::mediaLoaderStartLoadMusic(LSMediaLoader*, const SXMusicInfoPtr& item) {
    const QString name = item ? QFileInfo(item->strFilePath()).fileName() : QString();
    const QString text = name.isEmpty() ? QString() : QStringLiteral("Importing %1...").arg(name);
    m_loadProgress.reportText(text);
}

void SXWorkspaceFileLists::mediaLoaderDidReceiveProgress(LSMediaLoader*, double progress) {
    m_loadProgress.reportValue(progress);
}

void SXWorkspaceFileLists::mediaLoaderDidCompleteLoadMedias(
    LSMediaLoader*, const std::optional<SXMusicInfoList>& medias,
    const std::optional<QSet<int>>& failedIndex) {
    SXLog::line(QStringLiteral("finish complete load media....."));
    SXMusicInfoList loaded = medias.value_or(SXMusicInfoList());
    SXMusicInfoList failed;
    if (failedIndex) {
        for (int i = 0; i < loaded.size(); ++i) {
            if (failedIndex->contains(i))
                failed.append(loaded.at(i));
        }
        for (const SXMusicInfoPtr& item : std::as_const(failed))
            loaded.removeOne(item);
    }
    SXLog::line(QStringLiteral("failed array : %1").arg(describeItems(failed)));
    {
        // The container selected now, which need not be the one selected when the run began.
        QMutexLocker locker(&m_dataLock);
        const QString container = getSelectedMusicFormat();
        if (!container.isEmpty())
            _dicfmtFiles[container].append(loaded);
    }
    QMetaObject::invokeMethod(
        this, [this, failed] { mainSelCompleteLoad(failed); }, Qt::QueuedConnection);
}

void SXWorkspaceFileLists::mainSelCompleteLoad(const SXMusicInfoList& failed) {
    m_loadProgress.flush();
    refreshListView();
    if (selectedRows().isEmpty() && currentTabItemCount() > 0)
        setSelectedRows({0});
    refreshTabCount();
    // Nothing waits for the alert's answer: the run ends while it shows.
    if (!failed.isEmpty())
        runAlert({QStringLiteral("Following file(s) load failed!"),
                  loadFailureText(failed),
                  {QStringLiteral("OK")},
                  loadFailureDetails(failed)});
    Q_EMIT loadFinished(failed);
    setAppState(AppStateIdle);
}

QString SXWorkspaceFileLists::loadFailureText(const SXMusicInfoList& failed) {
    QStringList names;
    for (const SXMusicInfoPtr& item : failed) {
        const LSMediaPtr media = item->mediaInfo();
        names.append(QFileInfo(media ? media->filePath() : QString()).fileName());
    }
    return SXWorkspaceTexts::cappedNameLines(names);
}

QString SXWorkspaceFileLists::loadFailureDetails(const SXMusicInfoList& failed) {
    SXPathFailureList failures;
    for (const SXMusicInfoPtr& item : failed) {
        const LSMediaPtr media = item->mediaInfo();
        failures.append({item->strFilePath(), SXFailureTexts::loadReason(media.get())});
    }
    return SXFailureTexts::detailLines(failures);
}

void SXWorkspaceFileLists::cancelLoading() {
    if (enumAppState() == AppStateLoading && m_mediaLoader)
        m_mediaLoader->cancel();
    Q_EMIT loadCancelled();
}

// --- Removing and finding ---

bool SXWorkspaceFileLists::refusedDuringRun() const {
    if (enumAppState() != AppStateConverting)
        return false;
    beep();
    return true;
}

void SXWorkspaceFileLists::removeFile(const SXMusicInfoList& items, const QString& fromFiles) {
    // Silent: the gestures that end here beep themselves, and a move out of another window
    // is no gesture of this one.
    if (enumAppState() == AppStateConverting)
        return;
    {
        QMutexLocker locker(&m_dataLock);
        auto list = _dicfmtFiles.find(fromFiles);
        if (items.isEmpty() || list == _dicfmtFiles.end() || list->isEmpty())
            return;
        removeEqualItems(items, *list);
    }
    refreshTabCount();
}

void SXWorkspaceFileLists::removeSelected() {
    if (refusedDuringRun())
        return;
    const SXMusicInfoList items = selectedItems();
    if (items.isEmpty()) {
        beep();
        return;
    }
    stopPreviewAmong(items);
    // The row that moves into the place of the first removed one is selected next.
    const int first = selectedRows().first();
    removeFile(items, getSelectedMusicFormat());
    setSelectedRows({first});
    refreshListView();
}

void SXWorkspaceFileLists::clearContainer() {
    if (refusedDuringRun())
        return;
    const SXMusicInfoList items = getCurTableDatasource();
    if (items.isEmpty()) {
        beep();
        return;
    }
    stopPreviewAmong(items);
    removeFile(items, getSelectedMusicFormat());
    refreshListView();
}

int SXWorkspaceFileLists::indexMusicItem(const SXMusicInfoPtr& item,
                                         const SXMusicInfoList& inArray) {
    if (!item || inArray.isEmpty())
        return -1;
    const QString path = item->strFilePath();
    for (int i = 0; i < inArray.size(); ++i) {
        if (inArray.at(i)->strFilePath() == path)
            return i;
    }
    return -1;
}

SXMusicInfoList
SXWorkspaceFileLists::getDuplicateFiles(const SXMusicInfoList& items,
                                        const SXMusicInfoList& inSelectedTableView) {
    SXMusicInfoList duplicates;
    for (const SXMusicInfoPtr& item : items) {
        if (indexMusicItem(item, inSelectedTableView) >= 0)
            duplicates.append(item);
    }
    return duplicates;
}

// --- The tag editor's neighbours ---

bool SXWorkspaceFileLists::canMetadataEditorPerform(const SXMusicInfoPtr& editing,
                                                    int function) const {
    const SXMusicInfoList list = getCurTableDatasource();
    const int index = indexMusicItem(editing, list);
    return function == 0 ? index > 0 : index >= 0 && index < list.size() - 1;
}

SXMusicInfoPtr SXWorkspaceFileLists::metadataEditorAsksForItem(const SXMusicInfoPtr& editing,
                                                               int function) {
    const SXMusicInfoList list = getCurTableDatasource();
    const int index = indexMusicItem(editing, list) + (function == 0 ? -1 : 1);
    if (indexMusicItem(editing, list) < 0 || index < 0 || index >= list.size())
        return nullptr;
    setSelectedRows({index});
    return list.at(index);
}
