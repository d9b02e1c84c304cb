#pragma once

#include "model/SXFormatSetting.h"
#include "model/SXMusicInfo.h"
#include "workspace/SXPreviewPlayer.h" // declares SXMusicInfoPtr to the meta-type system
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
// and the application state, with the signals that announce their changes. Every other part of
// a workspace (SXContainerTabs, SXAddRun, SXItemMoves, SXWorkspacePreview, SXWorkspaceScheduler)
// reads and changes them only through this interface; the lock never leaves this class.
//
// Threads: everything runs on the main thread, except that a loader's completion appends items
// from its worker thread. The tabs, the selection and both maps are therefore guarded by one
// lock, which is never held while a signal is emitted or the presenter is asked. Every signal of
// a workspace is emitted on the main thread (debug builds assert it), so a window may connect to
// them directly.
class SXContainerStore final : public QObject {
    Q_OBJECT
public:
    explicit SXContainerStore(QObject* parent = nullptr);
    ~SXContainerStore() override;

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
    // The row after (before) the first selected one of the shown list; a beep at either end.
    void selectNextRow();
    void selectPreviousRow();
    // Items in every container.
    int getTotalNeedConvertMusic() const;

    // --- Changes made by the other parts ---
    // The tabs `labels` are appended, each with its setting (a null one is skipped), and every
    // tab starts with an empty list, replacing whatever its name held before.
    void appendContainers(const QStringList& labels, const QList<SXFormatSettingPtr>& settings);
    // Every tab with its list and setting goes; nothing is selected. Announces the tabs.
    void removeAllContainers();
    int appendTab(const QString& label); // its index
    void setTabLabel(int index, const QString& label);
    // Keeps `setting` for its container without showing it (setFmtSetting shows it).
    void storeFormatSetting(const SXFormatSettingPtr& setting);
    // Selects tab `index` with no rows; false, changing nothing, when there is no such tab.
    bool setSelectedTab(int index);
    // Removes the selected tab with its list and setting; the tab to select next, or -1.
    int removeSelectedTab();
    // The items the loader probed join the container selected now.
    void appendToSelectedContainer(const SXMusicInfoList& items);
    // `edit` changes the list of `name` (made when missing) under the lock; it must not call
    // back into the store.
    void editContainer(const QString& name, const std::function<void(SXMusicInfoList&)>& edit);
    // Removes from the container named `fromFiles` the first item equal to each of `items`.
    // Nothing is removed during a run (silently: the gestures that end here beep themselves).
    void removeFile(const SXMusicInfoList& items, const QString& fromFiles);
    void emitTabs();
    void showFormatSetting(const SXFormatSettingPtr& setting) {
        Q_EMIT formatSettingShown(setting);
    }

    // --- Answers for every part ---
    void beep() const;
    // Asks the presenter; without one the first button counts as chosen.
    void runAlert(const SXAlert& alert, std::function<void(int)> answered = {}) const;
    // Nothing leaves a container while a run converts the window's items: the operation of a
    // removed item would go on converting it where nobody can stop it, and the summary would
    // not count it. True, after a beep, when the state refuses the gesture.
    bool refusedDuringRun() const;
    // Removes every element of `list` that equals one of `items`.
    static void removeEqualItems(const SXMusicInfoList& items, SXMusicInfoList& list);
    static int indexMusicItem(const SXMusicInfoPtr& item, const SXMusicInfoList& inArray);
    static SXMusicInfoList getDuplicateFiles(const SXMusicInfoList& items,
                                             const SXMusicInfoList& inSelectedTableView);

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

private:
    void clampSelection(const QList<int>& previous);
    void dropContainer(const QString& label); // the caller holds the lock
    void moveSelectedRow(int step);

    mutable QRecursiveMutex m_dataLock;
    QStringList m_tabLabels;
    int m_selectedTab = -1;
    QHash<QString, SXMusicInfoList> _dicfmtFiles;
    QHash<QString, SXFormatSettingPtr> _fmtSettingInfos;
    QList<int> m_selectedRows;

    SXWorkspacePresenter* m_presenter = nullptr;
    std::atomic<int> m_progressType{AppStateIdle};
    SXMusicInfoPtr m_stateItem; // guarded by m_dataLock
};
