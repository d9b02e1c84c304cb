#pragma once

#include "workspace/SXWorkspacePresenter.h"

#include <QObject>
#include <QPointer>

class QWidget;

// The workspace's questions as window-modal dialogs of one workspace window, each opened with
// open(): the window stays responsive and the answer reaches the core when the dialog ends.
// Alerts are message boxes with the core's exact texts and buttons.
class SXWindowPresenter final : public QObject, public SXWorkspacePresenter {
    Q_OBJECT
public:
    explicit SXWindowPresenter(QWidget& window);

    void runModalAlert(const SXAlert& alert, Answer<int> chosenButton) override;
    void showNotice(const SXAlert& alert) override;
    void chooseOutputFolder(const SXOutputFolderRequest& request,
                            Answer<std::optional<SXOutputFolderChoice>> chosen) override;
    void chooseNewFormat(const QList<SXFormatSettingPtr>& formats,
                         Answer<SXFormatSettingPtr> chosen) override;
    void beep() override;
    void openFolder(const QString& path) override;

Q_SIGNALS:
    // Every refusal sound, also where the platform has no bell (tests count them).
    void beeped();

private:
    QWidget& m_window;
};
