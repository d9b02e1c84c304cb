#pragma once

#include "model/SXMusicInfo.h"
#include "workspace/SXWorkspace.h"
#include "workspace/SXWorkspacePresenter.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <functional>

// Answers the workspace the way a user would, and remembers what it was asked.
class WorkspaceTestPresenter : public SXWorkspacePresenter {
public:
    void runModalAlert(const SXAlert& alert, Answer<int> chosenButton) override {
        alerts.append(alert);
        chosenButton(alertAnswer);
    }
    void showNotice(const SXAlert& alert) override { notices.append(alert); }
    void chooseOutputFolder(const SXOutputFolderRequest& request,
                            Answer<std::optional<SXOutputFolderChoice>> chosen) override {
        folderRequests.append(request);
        chosen(folderAnswer);
    }
    void chooseNewFormat(const QList<SXFormatSettingPtr>& formats,
                         Answer<SXFormatSettingPtr> chosen) override {
        offeredFormats = formats;
        for (const SXFormatSettingPtr& format : formats) {
            if (format->fmtName() == formatAnswer) {
                chosen(format);
                return;
            }
        }
        chosen(nullptr);
    }
    void beep() override { ++beeps; }
    void openFolder(const QString& path) override { openedFolders.append(path); }

    QList<SXAlert> alerts, notices;
    int alertAnswer = 0;
    QList<SXOutputFolderRequest> folderRequests;
    std::optional<SXOutputFolderChoice> folderAnswer;
    QList<SXFormatSettingPtr> offeredFormats;
    QString formatAnswer;
    int beeps = 0;
    QStringList openedFolders;
};

// Items of container `type` for made-up paths /x/<name>, each `seconds` long.
inline SXMusicInfoList madeUpItems(const QString& type, const QStringList& names,
                                   double seconds = 0) {
    SXMusicInfoList items;
    for (const QString& name : names) {
        items.append(SXMusicInfo::newForSource(QStringLiteral("/x/") + name, type));
        items.last()->mediaInfo()->setDuration(seconds);
    }
    return items;
}

// An alert's texts and then its buttons, for one comparison.
inline QStringList alertTexts(const SXAlert& alert) {
    return QStringList{alert.messageText, alert.informativeText} + alert.buttons;
}

// The items' file names, in list order.
inline QStringList fileNames(const SXMusicInfoList& items) {
    QStringList names;
    for (const SXMusicInfoPtr& item : items)
        names.append(QFileInfo(item->strFilePath()).fileName());
    return names;
}

// Gives `workspace` the fixed containers, answered by `presenter`.
inline void prepareWorkspace(SXWorkspace& workspace, SXWorkspacePresenter* presenter) {
    workspace.store().setPresenter(presenter);
    workspace.tabs().addDefaultTabs();
}

// Adds `paths` to `container` (the selected one when empty) and waits for the add run to end;
// the items that failed to load go to *failed when given. False when it did not end.
inline bool addFiles(SXWorkspace& workspace, const QString& container, const QStringList& paths,
                     SXMusicInfoList* failed = nullptr) {
    if (!container.isEmpty() && !workspace.tabs().selectContainer(container))
        return false;
    QSignalSpy finished(&workspace.addRun(), &SXAddRun::loadFinished);
    workspace.addRun().loadAndParseFiles(paths);
    if (finished.count() == 0 && !finished.wait(60000))
        return false;
    if (failed)
        *failed = finished.first().first().value<SXMusicInfoList>();
    return true;
}
inline bool addFiles(SXWorkspace& workspace, const QStringList& paths) {
    return addFiles(workspace, QString(), paths);
}

// Starts a run into `folder` and waits for its end: the summary's arguments, none when it did not
// end.
inline QList<QVariant> runInto(SXWorkspace& workspace, const QString& folder) {
    QSignalSpy finished(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished);
    workspace.scheduler().doRealConverterTask(folder);
    if (finished.count() == 0 && !finished.wait(180000))
        return {};
    return finished.first();
}
