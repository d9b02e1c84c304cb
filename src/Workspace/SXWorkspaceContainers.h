#pragma once

#include "Model/SXFormatSetting.h"
#include "Model/SXMusicInfo.h"
#include "Workspace/SXWorkspacePresenter.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QRecursiveMutex>
#include <QStringList>
#include <atomic>

// Application states of a workspace.
enum AppState : int {
    AppStateIdle = 0,
    AppStateLoading = 1,
    AppStatePlaying = 2,
    AppStateConverting = 3,
};

// The containers of one workspace: the tabs in order (each labelled with its format name), the
// selected one, the list of items and the format setting of every container, the selected rows
// of the shown list, and the application state. A front end shows this; it decides nothing.
//
// Threads: everything runs on the main thread, except that a loader's completion appends items
// from its worker thread. The tabs, the selection and both maps are therefore guarded by one
// lock, which is never held while a signal is emitted or the presenter is asked.
class SXWorkspaceContainers : public QObject {
    Q_OBJECT
public:
    explicit SXWorkspaceContainers(QObject* parent = nullptr);
    ~SXWorkspaceContainers() override;

    // Not owned; may be null (nothing is then asked and refusals are silent).
    void setPresenter(SXWorkspacePresenter* presenter) { m_presenter = presenter; }
    SXWorkspacePresenter* presenter() const { return m_presenter; }

    int enumAppState() const { return m_progressType.load(); }
    void setAppState(int state);

    // --- Tabs ---
    void addDefaultTabs();
    void removeallTabs();
    int addNewTab();                            // an empty, unlabelled tab, selected; its index
    int addNewTabWithName(const QString& name); // index of the tab that now carries the name
    QStringList tabLabels() const;
    int selectedTabIndex() const;
    void selectTab(int index);
    bool selectContainer(const QString& name);
    void moveTabSelectedTo(int direction); // -1: next tab, +1: previous tab
    // Closes the selected container unless a rule forbids it; true when it was closed.
    bool closeTab();
    // The answers a tab bar needs before it offers or performs a close.
    bool disableTabClose(const QString& label) const;
    bool shouldCloseTab(const QString& label);
    // Adds a container through the format chooser of the presenter.
    void clickAddNewFormat();
    // The end of the chooser with OK: a new last tab for `setting`, selected.
    void addContainerWithFormat(const SXFormatSettingPtr& setting);
    void disableAddButton() { m_showAddBtn = false; }
    bool showAddBtn() const { return m_showAddBtn; }

    // --- Per-container data ---
    void setData(const SXMusicInfoList& list, const QString& forType);
    void setFmtSetting(const SXFormatSettingPtr& setting);
    SXMusicInfoList getDataForFormat(const QString& name) const;
    bool hasDataForFormat(const QString& name) const;
    SXFormatSettingPtr getFormatSettingForFormatName(const QString& name) const;
    QString getSelectedMusicFormat() const;
    SXMusicInfoList getCurTableDatasource() const;
    SXFormatSettingPtr getSelectedTabFormatSetting() const;
    int getCurentTabMusicCount() const;
    void createArrayForFormate(const QString& name);
    void refreshTabCount();
    // Every container name that holds a list: tab order first, then any others by name.
    QStringList containerNames() const;

    // --- Rows of the shown list ---
    QList<int> selectedRows() const;
    void setSelectedRows(const QList<int>& rows);
    bool isSelectedMusic() const { return !selectedRows().isEmpty(); }
    SXMusicInfoList selectedItems() const;
    void refreshListView();

Q_SIGNALS:
    void appStateChanged(int state);
    void tabsChanged(const QStringList& labels, int selectedIndex);
    // Count badges, one per tab in tab order.
    void tabCountsChanged(const QStringList& labels, const QList<int>& counts);
    // The settings panel should show this container format.
    void formatSettingShown(const SXFormatSettingPtr& setting);
    // The shown list changed: reload its rows.
    void listChanged();
    void selectionChanged(const QList<int>& rows);

protected:
    void beep() const;
    int runAlert(const SXAlert& alert) const;
    // Removes every element of `list` that equals one of `items`; the caller holds the lock.
    static void removeEqualItems(const SXMusicInfoList& items, SXMusicInfoList& list);
    void emitTabs();

    mutable QRecursiveMutex m_dataLock;
    QStringList m_tabLabels;
    int m_selectedTab = -1;
    QHash<QString, SXMusicInfoList> _dicfmtFiles;
    QHash<QString, SXFormatSettingPtr> _fmtSettingInfos;
    QList<int> m_selectedRows;

private:
    void dropContainer(const QString& label);
    void clampSelection();

    SXWorkspacePresenter* m_presenter = nullptr;
    std::atomic<int> m_progressType{AppStateIdle};
    bool m_showAddBtn = true;
};
