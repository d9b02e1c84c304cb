#include "workspace/SXContainerStore.h"

#include <QMutexLocker>
#include <algorithm>

SXContainerStore::SXContainerStore(QObject* parent)
    : QObject(parent) {}

SXContainerStore::~SXContainerStore() = default;

void SXContainerStore::setAppState(int state, const SXMusicInfoPtr& item) {
    {
        QMutexLocker locker(&m_dataLock);
        m_stateItem = item;
    }
    m_progressType.store(state);
    Q_EMIT appStateChanged(state, item);
}

SXMusicInfoPtr SXContainerStore::appStateItem() const {
    QMutexLocker locker(&m_dataLock);
    return m_stateItem;
}

QStringList SXContainerStore::tabLabels() const {
    QMutexLocker locker(&m_dataLock);
    return m_tabLabels;
}

int SXContainerStore::selectedTabIndex() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedTab;
}

// --- Per-container data ---

void SXContainerStore::setData(const SXMusicInfoList& list, const QString& forType) {
    if (forType.isEmpty())
        return;
    QMutexLocker locker(&m_dataLock);
    _dicfmtFiles.insert(forType, list);
}

void SXContainerStore::setFmtSetting(const SXFormatSettingPtr& setting) {
    if (!setting)
        return;
    {
        QMutexLocker locker(&m_dataLock);
        _fmtSettingInfos.insert(setting->fmtName(), setting);
    }
    Q_EMIT formatSettingShown(setting);
}

SXMusicInfoList SXContainerStore::getDataForFormat(const QString& name) const {
    QMutexLocker locker(&m_dataLock);
    return _dicfmtFiles.value(name);
}

bool SXContainerStore::hasDataForFormat(const QString& name) const {
    QMutexLocker locker(&m_dataLock);
    return _dicfmtFiles.contains(name);
}

SXFormatSettingPtr SXContainerStore::getFormatSettingForFormatName(const QString& name) const {
    if (name.isEmpty())
        return nullptr;
    QMutexLocker locker(&m_dataLock);
    return _fmtSettingInfos.value(name);
}

QString SXContainerStore::getSelectedMusicFormat() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedTab >= 0 && m_selectedTab < m_tabLabels.size() ? m_tabLabels.at(m_selectedTab)
                                                                    : QString();
}

SXMusicInfoList SXContainerStore::getCurTableDatasource() const {
    QMutexLocker locker(&m_dataLock);
    return getDataForFormat(getSelectedMusicFormat());
}

SXFormatSettingPtr SXContainerStore::getSelectedTabFormatSetting() const {
    return getFormatSettingForFormatName(getSelectedMusicFormat());
}

int SXContainerStore::currentTabItemCount() const {
    return int(getCurTableDatasource().size());
}

void SXContainerStore::createListForFormat(const QString& name) {
    if (name.isEmpty())
        return;
    QMutexLocker locker(&m_dataLock);
    _dicfmtFiles.insert(name, SXMusicInfoList());
}

void SXContainerStore::refreshTabCount() {
    QStringList labels;
    QList<int> counts;
    {
        QMutexLocker locker(&m_dataLock);
        labels = m_tabLabels;
        for (const QString& label : std::as_const(labels))
            counts.append(int(_dicfmtFiles.value(label).size()));
    }
    Q_EMIT tabCountsChanged(labels, counts);
}

QStringList SXContainerStore::containerNames() const {
    QMutexLocker locker(&m_dataLock);
    QStringList names;
    for (const QString& label : m_tabLabels) {
        if (_dicfmtFiles.contains(label) && !names.contains(label))
            names.append(label);
    }
    QStringList others;
    for (auto it = _dicfmtFiles.cbegin(); it != _dicfmtFiles.cend(); ++it) {
        if (!names.contains(it.key()))
            others.append(it.key());
    }
    others.sort();
    return names + others;
}

// --- Rows ---

QList<int> SXContainerStore::selectedRows() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedRows;
}

void SXContainerStore::setSelectedRows(const QList<int>& rows) {
    {
        QMutexLocker locker(&m_dataLock);
        const QList<int> previous = m_selectedRows;
        m_selectedRows = rows;
        clampSelection(previous);
    }
    Q_EMIT selectionChanged(selectedRows());
}

SXMusicInfoList SXContainerStore::selectedItems() const {
    QMutexLocker locker(&m_dataLock);
    const SXMusicInfoList list = getCurTableDatasource();
    SXMusicInfoList items;
    for (int row : m_selectedRows)
        items.append(list.at(row));
    return items;
}

void SXContainerStore::refreshListView() {
    bool selectionShrank = false;
    {
        QMutexLocker locker(&m_dataLock);
        const QList<int> before = m_selectedRows;
        clampSelection(before);
        // std::equal: Qt 6.4's list comparison hands memcmp a null pointer for empty lists.
        selectionShrank = !std::equal(m_selectedRows.cbegin(), m_selectedRows.cend(),
                                      before.cbegin(), before.cend());
    }
    Q_EMIT listChanged();
    if (selectionShrank)
        Q_EMIT selectionChanged(selectedRows());
}

void SXContainerStore::selectNextRow() {
    moveSelectedRow(1);
}

void SXContainerStore::selectPreviousRow() {
    moveSelectedRow(-1);
}

void SXContainerStore::moveSelectedRow(int step) {
    const QList<int> rows = selectedRows();
    const int count = currentTabItemCount();
    const int row = rows.isEmpty() ? -1 : rows.first();
    if (count == 0 || (row == 0 && step < 0) || (row == count - 1 && step > 0)) {
        beep();
        return;
    }
    setSelectedRows({row + step});
}

int SXContainerStore::getTotalNeedConvertMusic() const {
    int total = 0;
    for (const QString& name : containerNames())
        total += int(getDataForFormat(name).size());
    return total;
}

// --- Changes made by the other parts ---

void SXContainerStore::appendContainers(const QStringList& labels,
                                        const QList<SXFormatSettingPtr>& settings) {
    QMutexLocker locker(&m_dataLock);
    for (int i = 0; i < labels.size(); ++i) {
        m_tabLabels.append(labels.at(i));
        if (settings.at(i))
            _fmtSettingInfos.insert(labels.at(i), settings.at(i));
    }
    for (const QString& label : std::as_const(m_tabLabels))
        _dicfmtFiles.insert(label, SXMusicInfoList());
}

void SXContainerStore::removeAllContainers() {
    {
        QMutexLocker locker(&m_dataLock);
        while (!m_tabLabels.isEmpty())
            dropContainer(m_tabLabels.takeFirst());
        m_selectedTab = -1;
        m_selectedRows.clear();
    }
    emitTabs();
}

int SXContainerStore::appendTab(const QString& label) {
    QMutexLocker locker(&m_dataLock);
    m_tabLabels.append(label);
    return int(m_tabLabels.size()) - 1;
}

void SXContainerStore::setTabLabel(int index, const QString& label) {
    QMutexLocker locker(&m_dataLock);
    if (index >= 0 && index < m_tabLabels.size())
        m_tabLabels[index] = label;
}

void SXContainerStore::storeFormatSetting(const SXFormatSettingPtr& setting) {
    if (!setting)
        return;
    QMutexLocker locker(&m_dataLock);
    _fmtSettingInfos.insert(setting->fmtName(), setting);
}

bool SXContainerStore::setSelectedTab(int index) {
    QMutexLocker locker(&m_dataLock);
    if (index < 0 || index >= m_tabLabels.size())
        return false;
    m_selectedTab = index;
    m_selectedRows.clear();
    return true;
}

int SXContainerStore::removeSelectedTab() {
    QMutexLocker locker(&m_dataLock);
    if (m_selectedTab < 0 || m_selectedTab >= m_tabLabels.size())
        return -1;
    dropContainer(m_tabLabels.takeAt(m_selectedTab));
    const int next = std::min(m_selectedTab, int(m_tabLabels.size()) - 1);
    m_selectedTab = -1;
    return next;
}

void SXContainerStore::appendToSelectedContainer(const SXMusicInfoList& items) {
    QMutexLocker locker(&m_dataLock);
    const QString container = getSelectedMusicFormat();
    if (!container.isEmpty())
        _dicfmtFiles[container].append(items);
}

void SXContainerStore::editContainer(const QString& name,
                                     const std::function<void(SXMusicInfoList&)>& edit) {
    QMutexLocker locker(&m_dataLock);
    edit(_dicfmtFiles[name]);
}

void SXContainerStore::removeFile(const SXMusicInfoList& items, const QString& fromFiles) {
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

// --- Helpers ---

bool SXContainerStore::refusedDuringRun() const {
    if (enumAppState() != AppStateConverting)
        return false;
    beep();
    return true;
}

int SXContainerStore::indexMusicItem(const SXMusicInfoPtr& item, const SXMusicInfoList& inArray) {
    if (!item || inArray.isEmpty())
        return -1;
    const QString path = item->strFilePath();
    for (int i = 0; i < inArray.size(); ++i) {
        if (inArray.at(i)->strFilePath() == path)
            return i;
    }
    return -1;
}

SXMusicInfoList SXContainerStore::getDuplicateFiles(const SXMusicInfoList& items,
                                                    const SXMusicInfoList& inSelectedTableView) {
    SXMusicInfoList duplicates;
    for (const SXMusicInfoPtr& item : items) {
        if (indexMusicItem(item, inSelectedTableView) >= 0)
            duplicates.append(item);
    }
    return duplicates;
}

void SXContainerStore::beep() const {
    if (m_presenter)
        m_presenter->beep();
}

void SXContainerStore::runAlert(const SXAlert& alert, std::function<void(int)> answered) const {
    if (!answered)
        answered = [](int) {};
    if (m_presenter)
        m_presenter->runModalAlert(alert, std::move(answered));
    else
        answered(0);
}

void SXContainerStore::removeEqualItems(const SXMusicInfoList& items, SXMusicInfoList& list) {
    for (const SXMusicInfoPtr& item : items) {
        const auto found = std::find_if(list.begin(), list.end(), [&](const SXMusicInfoPtr& e) {
            return e->isEqualToMusic(*item);
        });
        if (found != list.end())
            list.erase(found);
    }
}

void SXContainerStore::emitTabs() {
    QStringList labels;
    int selected = -1;
    {
        QMutexLocker locker(&m_dataLock);
        labels = m_tabLabels;
        selected = m_selectedTab;
    }
    Q_EMIT tabsChanged(labels, selected);
}

void SXContainerStore::dropContainer(const QString& label) {
    _dicfmtFiles.remove(label);
    _fmtSettingInfos.remove(label);
}

// Rows are kept sorted, unique and inside the shown list. A list with rows always has one
// selected: a selection that would become empty keeps what is left of the previous one, else
// the row nearest its first row. The caller holds the lock.
void SXContainerStore::clampSelection(const QList<int>& previous) {
    const int count = int(getCurTableDatasource().size());
    const auto clamped = [count](QList<int> rows) {
        rows.removeIf([count](int row) { return row < 0 || row >= count; });
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        return rows;
    };
    m_selectedRows = clamped(m_selectedRows);
    if (!m_selectedRows.isEmpty() || count == 0)
        return;
    m_selectedRows = clamped(previous);
    if (m_selectedRows.isEmpty())
        m_selectedRows = {previous.isEmpty() ? 0 : std::clamp(previous.first(), 0, count - 1)};
}
