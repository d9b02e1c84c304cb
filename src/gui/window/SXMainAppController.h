#pragma once

#include "workspace/SXCommandValidation.h"

#include <QMainWindow>

class QPushButton;
class SXContainerTabBar;
class SXFileInfoViewController;
class SXHelpView;
class SXItemListView;
class SXSettingsPanel;
class SXWindowPresenter;
class SXWindowToolbar;
class SXWorkspace;

// One workspace window: the container tabs, the item list of the selected container, the help
// bar, the settings panel with the file buttons, and the toolbar. It owns its workspace and the
// presenter that answers the workspace's questions with window-modal dialogs; everything it
// shows comes from the workspace's signals and every gesture is one call into it.
class SXMainAppController final : public QMainWindow {
    Q_OBJECT
public:
    explicit SXMainAppController(QWidget* parent = nullptr);
    ~SXMainAppController() override;

    SXWorkspace& workspace() const { return *m_workspace; }
    SXWindowPresenter& presenter() const { return *m_presenter; }
    SXWindowToolbar& toolbar() const { return *m_toolbar; }
    SXContainerTabBar& tabBar() const { return *_tabBar; }

    // A command meant for this window (sxIsApplicationCommand is false for it): from the
    // application's dispatcher for the menus, or from this window's toolbar. One call into the
    // workspace part concerned.
    void perform(SXCommand command);
    void clickAddFiles();
    // Enter on the list: Start when it is allowed, otherwise the beep.
    void startFromList();

Q_SIGNALS:
    // A toolbar button for one of the application's own commands (preferences, help).
    void applicationCommandChosen(SXCommand command);
    // Something validation reads has changed in this window.
    void validationInputsChanged();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* buildCentral();
    QWidget* buildFileButtons();
    void refreshListView();
    void setSettingPanelEnable(bool enabled);
    void connectWorkspace();
    void toolbarCommand(SXCommand command);

    SXWorkspace* m_workspace = nullptr;
    SXWindowPresenter* m_presenter = nullptr;
    SXWindowToolbar* m_toolbar = nullptr;
    SXContainerTabBar* _tabBar = nullptr;
    SXItemListView* _listView = nullptr;
    SXHelpView* _viewHelpBar = nullptr;
    SXSettingsPanel* m_settingsPanel = nullptr;
    SXFileInfoViewController* m_fileInfo = nullptr;
    QPushButton* _btnAddFile = nullptr;
    QPushButton* _btnDelete = nullptr;
    QPushButton* _btnClear = nullptr;
    bool m_closeApproved = false;
    bool m_closeAsked = false;
};
