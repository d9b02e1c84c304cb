#pragma once

#include "model/SXFormatSetting.h"
#include "model/SXMusicInfo.h"
#include "workspace/SXWorkspacePresenter.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QRecursiveMutex>
#include <QStringList>
#include <atomic>
#include <functional>

// Application states of a workspace.
enum AppState : int {
    AppStateIdle = 0,
    AppStateLoading = 1,
    AppStatePlaying = 2,
    AppStateConverting = 3,
};

// What one workspace holds: the tab labels in order (each a format name), the selected tab, the
// list of items and the format setting of every container, the selected rows of the shown list
// and the application state. The tab operations build on it (SXWorkspaceContainers).
//
// Threads: everything runs on the main thread, except that a loader's completion appends items
// from its worker thread. The tabs, the selection and both maps are therefore guarded by one
// lock, which is never held while a signal is emitted or the presenter is asked. Every signal of
// a workspace is emitted on the main thread (debug builds assert it), so a window may connect to
// them directly.
class SXWorkspaceData : public QObject {
    Q_OBJECT
public:
    explicit SXWorkspaceData(QObject* parent = nullptr);
    ~SXWorkspaceData() override;

    // Not owned; may be null (nothing is then asked and refusals are silent).
    void setPresenter(SXWorkspacePresenter* presenter) { m_presenter = presenter; }
    SXWorkspacePresenter* presenter() const { return m_presenter; }

    int enumAppState() const { return m_progressType.load(); }
    // Every set is announced, also one that keeps the value: the item that plays may change
    // while the state stays AppStatePlaying.
    void setAppState(int state, const SXMusicInfoPtr& item = nullptr);
    SXMusicInfoPtr appStateItem() const;

    QStringList tabLabels() const;
    int selectedTabIndex() const;

    // --- Per-container data ---
    void setData(const SXMusicInfoList& list, const QString& forType);
    void setFmtSetting(const SXFormatSettingPtr& setting);
    SXMusicInfoList getDataForFormat(const QString& name) const;
    bool hasDataForFormat(const QString& name) const;
    SXFormatSettingPtr getFormatSettingForFormatName(const QString& name) const;
    QString getSelectedMusicFormat() const;
    SXMusicInfoList getCurTableDatasource() const;
    SXFormatSettingPtr getSelectedTabFormatSetting() const;
    int currentTabItemCount() const;
    void createListForFormat(const QString& name);
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
    // `item` is the item the state is about (the one that plays), or null.
    void appStateChanged(int state, const SXMusicInfoPtr& item);
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
    // Asks the presenter; without one the first button counts as chosen.
    void runAlert(const SXAlert& alert, std::function<void(int)> answered = {}) const;
    // Removes every element of `list` that equals one of `items`; the caller holds the lock.
    static void removeEqualItems(const SXMusicInfoList& items, SXMusicInfoList& list);
    void emitTabs();
    void dropContainer(const QString& label); // the caller holds the lock

    mutable QRecursiveMutex m_dataLock;
    QStringList m_tabLabels;
    int m_selectedTab = -1;
    QHash<QString, SXMusicInfoList> _dicfmtFiles;
    QHash<QString, SXFormatSettingPtr> _fmtSettingInfos;
    QList<int> m_selectedRows;

private:
    void clampSelection(const QList<int>& previous);

    SXWorkspacePresenter* m_presenter = nullptr;
    std::atomic<int> m_progressType{AppStateIdle};
    SXMusicInfoPtr m_stateItem; // guarded by m_dataLock
};
