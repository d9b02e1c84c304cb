#pragma once

#include "model/SXMusicInfo.h"
#include "workspace/SXWorkspacePresenter.h"

#include <QFileInfo>
#include <functional>

// Answers the workspace the way a user would, and remembers what it was asked.
class WorkspaceTestPresenter : public SXWorkspacePresenter {
public:
    void runModalAlert(const SXAlert& alert, Answer<int> chosenButton) override {
        alerts.append(alert);
        chosenButton(alertAnswer);
    }
    void showSheetAlert(const SXAlert& alert) override { sheets.append(alert); }
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

    QList<SXAlert> alerts, sheets;
    int alertAnswer = 0;
    QList<SXOutputFolderRequest> folderRequests;
    std::optional<SXOutputFolderChoice> folderAnswer;
    QList<SXFormatSettingPtr> offeredFormats;
    QString formatAnswer;
    int beeps = 0;
    QStringList openedFolders;
};

// An item of container `type` for `path`, with a media record unless told otherwise.
inline SXMusicInfoPtr makeWorkspaceItem(const QString& path, const QString& type,
                                        bool withMedia = true) {
    const SXMusicInfoPtr item = SXMusicInfo::newForSource(path, type);
    if (!withMedia)
        item->setMediaInfo(nullptr);
    return item;
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

// Whether the workspace agreed to close; the test presenter answers at once.
template <class Workspace> bool closes(Workspace& workspace) {
    bool mayClose = false;
    workspace.windowShouldClose([&mayClose](bool answer) { mayClose = answer; });
    return mayClose;
}
