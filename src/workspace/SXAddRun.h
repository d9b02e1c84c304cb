#pragma once

#include <vector>

#include "base/SXPathFailure.h"
#include "engine/LSMediaLoader.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXLoadProgressRelay.h"
#include "workspace/SXMetadataEditing.h"

#include <QByteArray>
#include <QHash>

class SXWorkspacePreview;

// The file lists of a workspace: adding files (an add run probes them on a loader's worker
// thread), removing items, and the tag editor's steps through the shown list. A part of
// SXWorkspace: the items go into its store; an add run and a removal stop the preview where
// they must.
class SXAddRun final : public QObject, public LSMediaLoaderListener, public SXMetadataEditListener {
    Q_OBJECT
public:
    SXAddRun(SXContainerStore& store, SXWorkspacePreview& preview, QObject* parent = nullptr);
    ~SXAddRun() override;

    SXContainerStore& store() const { return m_store; }

    // --- Adding ---
    // The add run for the selected container: expands folders, filters, drops paths already in
    // the container and probes the rest, all off the main thread. Ends with loadFinished()
    // (state back to idle).
    void loadAndParseFiles(const QStringList& paths);
    // The loading dialog's cancel button.
    void cancelLoading();
    // The end of an add run on the main thread; `failed` are the items that could not be probed.
    void mainSelCompleteLoad(const SXMusicInfoList& failed);
    LSMediaLoaderPtr mediaLoader() const { return m_mediaLoader; }

    // The candidate paths of an add run before de-duplication (lstat, folders, the "vob" rule).
    // Paths that cannot be taken (missing, unreadable folders, names that are not valid UTF-8)
    // go to `failures` with their reason; a file found below a named folder gets that folder in
    // `addedFrom`.
    static QStringList expandPaths(const QStringList& paths, SXPathFailureList* failures = nullptr,
                                   QHash<QString, QString>* addedFrom = nullptr);
    // Drops from `candidates` the paths already in `current`, with the walk that skips the path
    // moving into a dropped one's place.
    static QStringList dropPathsAlreadyIn(QStringList candidates, const SXMusicInfoList& current);
    // The items of an add run for `container`: the paths expanded, without those in `current`,
    // cue sheets as their tracks (SXCueBatch); then an item for each path that cannot be taken, its
    // reason in its record, which the loader reports among the failures without probing it.
    static SXMusicInfoList makeBatch(const QStringList& paths, const QString& container,
                                     const SXMusicInfoList& current);
    // "%@\n" per name, "..." after the 11th.
    static QString loadFailureText(const SXMusicInfoList& failed);
    // Every failed item with its folder and the loader's reason, one a line.
    static QString loadFailureDetails(const SXMusicInfoList& failed);

    // LSMediaLoaderListener (worker thread)
    void mediaLoaderStartLoadMusic(LSMediaLoader* loader, const SXMusicInfoPtr& item) override;
    void mediaLoaderDidReceiveProgress(LSMediaLoader* loader, double progress) override;
    void mediaLoaderDidCompleteLoadMedias(LSMediaLoader* loader,
                                          const std::optional<SXMusicInfoList>& medias,
                                          const std::optional<QSet<int>>& failedIndex) override;

    // --- Removing ---
    // Delete and Clear, from the buttons, the menu and the list's keys: refused with a beep
    // during a run.
    void removeSelected();
    void clearContainer();

    // SXMetadataEditListener: the tag editor steps through the shown list.
    bool canMetadataEditorPerform(const SXMusicInfoPtr& editing, int function) const override;
    SXMusicInfoPtr metadataEditorAsksForItem(const SXMusicInfoPtr& editing, int function) override;

Q_SIGNALS:
    // The loading dialog: shown with `text`, then its text and bar (0..1) change. The loader
    // reports on its worker thread; the newest of its reports reach the main thread at most
    // every 25 ms.
    void loadStarted(const QString& text);
    void loadProgressText(const QString& text);
    void loadProgressValue(double fraction);
    // The dialog is to be hidden at once (the run still ends with loadFinished).
    void loadCancelled();
    void loadFinished(const SXMusicInfoList& failed);

private:
    SXContainerStore& m_store;
    SXWorkspacePreview& m_preview;
    LSMediaLoaderPtr m_mediaLoader;
    // Loaders replaced while their worker still ran; waited for when the run goes.
    std::vector<LSMediaLoaderPtr> m_earlierLoaders;
    SXLoadProgressRelay m_loadProgress;
};
