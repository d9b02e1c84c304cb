#include "workspace/SXAddRun.h"

#include "base/SXFolderScan.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "workspace/SXCueBatch.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXWorkspacePreview.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
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
        return QCoreApplication::translate("SXAddRun", "The file name is not valid UTF-8");
    return QString::fromStdString(std::generic_category().message(error));
}
} // namespace

SXAddRun::SXAddRun(SXContainerStore& store, SXWorkspacePreview& preview, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_preview(preview)
    , m_loadProgress(
          *this, [this](const std::optional<QString>& text, const std::optional<double>& value) {
              if (text)
                  Q_EMIT loadProgressText(*text);
              if (value)
                  Q_EMIT loadProgressValue(*value);
          }) {}

SXAddRun::~SXAddRun() {
    // A worker that still runs must not report to a workspace that is gone, nor outlive it.
    if (m_mediaLoader)
        m_earlierLoaders.push_back(m_mediaLoader);
    for (const LSMediaLoaderPtr& loader : m_earlierLoaders) {
        loader->setListener(nullptr);
        loader->cancel();
        loader->waitUntilDone();
    }
}

// --- Adding ---

void SXAddRun::loadAndParseFiles(const QStringList& paths) {
    m_preview.stopPlayerWithRefreshUI();
    m_loadProgress.clear();
    Q_EMIT loadStarted(tr("Loading Media Files..."));
    Q_EMIT loadProgressValue(0.0);
    m_store.setAppState(AppStateLoading);

    if (m_mediaLoader) {
        m_mediaLoader->setListener(nullptr);
        if (!m_mediaLoader->waitUntilDone(0))
            m_earlierLoaders.push_back(m_mediaLoader);
    }
    m_mediaLoader = LSMediaLoader::create();
    m_mediaLoader->setListener(this);

    // Scanning folders and making the items of a large drop takes a while: the batch is made
    // on a thread of its own from what the container holds now, then handed to the loader.
    // The thread keeps only the loader and the values it was given; the loader counts it as
    // running, so that the end of the run waits for it.
    const QString container = m_store.getSelectedMusicFormat();
    const SXMusicInfoList current = m_store.getCurTableDatasource();
    m_mediaLoader->loadBatchMadeBy(
        [paths, container, current] { return makeBatch(paths, container, current); });
}

SXMusicInfoList SXAddRun::makeBatch(const QStringList& paths, const QString& container,
                                    const SXMusicInfoList& current) {
    SXPathFailureList failures;
    QHash<QString, QString> addedFrom;
    const QStringList candidates =
        dropPathsAlreadyIn(expandPaths(paths, &failures, &addedFrom), current);
    SXMusicInfoList batch = SXCueBatch::items(candidates, container, current);
    for (const SXMusicInfoPtr& item : std::as_const(batch)) {
        // A cue track is named "sheet.cue#03"; the folder it came from is the sheet's.
        QString key = item->strFilePath();
        if (!addedFrom.contains(key))
            key = key.section(QLatin1Char('#'), 0, 0);
        item->mediaInfo()->setAddedFromFolder(addedFrom.value(key));
    }
    for (const SXPathFailure& failure : std::as_const(failures)) {
        const SXMusicInfoPtr item = SXMusicInfo::newForSource(failure.path, container);
        item->mediaInfo()->setFailReason(failure.reason);
        batch.append(item);
    }
    return batch;
}

QStringList SXAddRun::expandPaths(const QStringList& paths, SXPathFailureList* failures,
                                  QHash<QString, QString>* addedFrom) {
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
            const QStringList found =
                SXFolderScan::filesBelow(path, SXFolderScan::acceptedExtensions(), failures);
            // A file named twice keeps the folder it was first found below.
            for (const QString& file : found) {
                if (addedFrom && !addedFrom->contains(file))
                    addedFrom->insert(file, path);
            }
            candidates.append(found);
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

QStringList SXAddRun::dropPathsAlreadyIn(QStringList candidates, const SXMusicInfoList& current) {
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

void SXAddRun::mediaLoaderStartLoadMusic(LSMediaLoader*, const SXMusicInfoPtr& item) {
    const QString name = item ? QFileInfo(item->strFilePath()).fileName() : QString();
    const QString text = name.isEmpty() ? QString() : tr("Importing %1...").arg(name);
    m_loadProgress.reportText(text);
}

void SXAddRun::mediaLoaderDidReceiveProgress(LSMediaLoader*, double progress) {
    m_loadProgress.reportValue(progress);
}

void SXAddRun::mediaLoaderDidCompleteLoadMedias(LSMediaLoader*,
                                                const std::optional<SXMusicInfoList>& medias,
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
    // The container selected now, which need not be the one selected when the run began.
    m_store.appendToSelectedContainer(loaded);
    QMetaObject::invokeMethod(
        this, [this, failed] { mainSelCompleteLoad(failed); }, Qt::QueuedConnection);
}

void SXAddRun::mainSelCompleteLoad(const SXMusicInfoList& failed) {
    m_loadProgress.flush();
    m_store.refreshListView();
    if (m_store.selectedRows().isEmpty() && m_store.currentTabItemCount() > 0)
        m_store.setSelectedRows({0});
    m_store.refreshTabCount();
    // Nothing waits for the alert's answer: the run ends while it shows.
    if (!failed.isEmpty())
        m_store.runAlert({tr("Following file(s) load failed!", nullptr, int(failed.size())),
                          loadFailureText(failed),
                          {tr("OK")},
                          loadFailureDetails(failed)});
    Q_EMIT loadFinished(failed);
    m_store.setAppState(AppStateIdle);
}

QString SXAddRun::loadFailureText(const SXMusicInfoList& failed) {
    QStringList names;
    for (const SXMusicInfoPtr& item : failed) {
        const LSMediaPtr media = item->mediaInfo();
        names.append(QFileInfo(media ? media->filePath() : QString()).fileName());
    }
    return SXWorkspaceTexts::cappedNameLines(names);
}

QString SXAddRun::loadFailureDetails(const SXMusicInfoList& failed) {
    SXPathFailureList failures;
    for (const SXMusicInfoPtr& item : failed) {
        const LSMediaPtr media = item->mediaInfo();
        failures.append({item->strFilePath(), SXFailureTexts::loadReason(media.get())});
    }
    return SXFailureTexts::detailLines(failures);
}

void SXAddRun::cancelLoading() {
    if (m_store.enumAppState() == AppStateLoading && m_mediaLoader)
        m_mediaLoader->cancel();
    Q_EMIT loadCancelled();
}

// --- Removing ---

void SXAddRun::removeSelected() {
    if (m_store.refusedDuringRun())
        return;
    const SXMusicInfoList items = m_store.selectedItems();
    if (items.isEmpty()) {
        m_store.beep();
        return;
    }
    m_preview.stopPreviewAmong(items);
    // The row that moves into the place of the first removed one is selected next.
    const int first = m_store.selectedRows().first();
    m_store.removeFile(items, m_store.getSelectedMusicFormat());
    m_store.setSelectedRows({first});
    m_store.refreshListView();
}

void SXAddRun::clearContainer() {
    if (m_store.refusedDuringRun())
        return;
    const SXMusicInfoList items = m_store.getCurTableDatasource();
    if (items.isEmpty()) {
        m_store.beep();
        return;
    }
    m_preview.stopPreviewAmong(items);
    m_store.removeFile(items, m_store.getSelectedMusicFormat());
    m_store.refreshListView();
}

// --- The tag editor's neighbours ---

bool SXAddRun::canMetadataEditorPerform(const SXMusicInfoPtr& editing, int function) const {
    const SXMusicInfoList list = m_store.getCurTableDatasource();
    const int index = SXContainerStore::indexMusicItem(editing, list);
    return function == 0 ? index > 0 : index >= 0 && index < list.size() - 1;
}

SXMusicInfoPtr SXAddRun::metadataEditorAsksForItem(const SXMusicInfoPtr& editing, int function) {
    const SXMusicInfoList list = m_store.getCurTableDatasource();
    const int index = SXContainerStore::indexMusicItem(editing, list) + (function == 0 ? -1 : 1);
    if (SXContainerStore::indexMusicItem(editing, list) < 0 || index < 0 || index >= list.size())
        return nullptr;
    m_store.setSelectedRows({index});
    return list.at(index);
}
