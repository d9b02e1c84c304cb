#include "workspace/SXWorkspaceData.h"

#include <QMutexLocker>
#include <algorithm>

SXWorkspaceData::SXWorkspaceData(QObject* parent)
    : QObject(parent) {}

SXWorkspaceData::~SXWorkspaceData() = default;

void SXWorkspaceData::setAppState(int state, const SXMusicInfoPtr& item) {
    {
        QMutexLocker locker(&m_dataLock);
        m_stateItem = item;
    }
    m_progressType.store(state);
    Q_EMIT appStateChanged(state, item);
}

SXMusicInfoPtr SXWorkspaceData::appStateItem() const {
    QMutexLocker locker(&m_dataLock);
    return m_stateItem;
}

QStringList SXWorkspaceData::tabLabels() const {
    QMutexLocker locker(&m_dataLock);
    return m_tabLabels;
}

int SXWorkspaceData::selectedTabIndex() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedTab;
}

// --- Per-container data ---

void SXWorkspaceData::setData(const SXMusicInfoList& list, const QString& forType) {
    if (forType.isEmpty())
        return;
    QMutexLocker locker(&m_dataLock);
    _dicfmtFiles.insert(forType, list);
}

void SXWorkspaceData::setFmtSetting(const SXFormatSettingPtr& setting) {
    if (!setting)
        return;
    {
        QMutexLocker locker(&m_dataLock);
        _fmtSettingInfos.insert(setting->fmtName(), setting);
    }
    Q_EMIT formatSettingShown(setting);
}

SXMusicInfoList SXWorkspaceData::getDataForFormat(const QString& name) const {
    QMutexLocker locker(&m_dataLock);
    return _dicfmtFiles.value(name);
}

bool SXWorkspaceData::hasDataForFormat(const QString& name) const {
    QMutexLocker locker(&m_dataLock);
    return _dicfmtFiles.contains(name);
}

SXFormatSettingPtr SXWorkspaceData::getFormatSettingForFormatName(const QString& name) const {
    if (name.isEmpty())
        return nullptr;
    QMutexLocker locker(&m_dataLock);
    return _fmtSettingInfos.value(name);
}

QString SXWorkspaceData::getSelectedMusicFormat() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedTab >= 0 && m_selectedTab < m_tabLabels.size() ? m_tabLabels.at(m_selectedTab)
                                                                    : QString();
}

SXMusicInfoList SXWorkspaceData::getCurTableDatasource() const {
    QMutexLocker locker(&m_dataLock);
    return getDataForFormat(getSelectedMusicFormat());
}

SXFormatSettingPtr SXWorkspaceData::getSelectedTabFormatSetting() const {
    return getFormatSettingForFormatName(getSelectedMusicFormat());
}

int SXWorkspaceData::currentTabItemCount() const {
    return int(getCurTableDatasource().size());
}

void SXWorkspaceData::createListForFormat(const QString& name) {
    if (name.isEmpty())
        return;
    QMutexLocker locker(&m_dataLock);
    _dicfmtFiles.insert(name, SXMusicInfoList());
}

void SXWorkspaceData::refreshTabCount() {
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

QStringList SXWorkspaceData::containerNames() const {
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

QList<int> SXWorkspaceData::selectedRows() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedRows;
}

void SXWorkspaceData::setSelectedRows(const QList<int>& rows) {
    {
        QMutexLocker locker(&m_dataLock);
        const QList<int> previous = m_selectedRows;
        m_selectedRows = rows;
        clampSelection(previous);
    }
    Q_EMIT selectionChanged(selectedRows());
}

SXMusicInfoList SXWorkspaceData::selectedItems() const {
    QMutexLocker locker(&m_dataLock);
    const SXMusicInfoList list = getCurTableDatasource();
    SXMusicInfoList items;
    for (int row : m_selectedRows)
        items.append(list.at(row));
    return items;
}

void SXWorkspaceData::refreshListView() {
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

// --- Helpers ---

void SXWorkspaceData::beep() const {
    if (m_presenter)
        m_presenter->beep();
}

void SXWorkspaceData::runAlert(const SXAlert& alert, std::function<void(int)> answered) const {
    if (!answered)
        answered = [](int) {};
    if (m_presenter)
        m_presenter->runModalAlert(alert, std::move(answered));
    else
        answered(0);
}

void SXWorkspaceData::removeEqualItems(const SXMusicInfoList& items, SXMusicInfoList& list) {
    for (const SXMusicInfoPtr& item : items) {
        const auto found = std::find_if(list.begin(), list.end(), [&](const SXMusicInfoPtr& e) {
            return e->isEqualToMusic(*item);
        });
        if (found != list.end())
            list.erase(found);
    }
}

void SXWorkspaceData::emitTabs() {
    QStringList labels;
    int selected = -1;
    {
        QMutexLocker locker(&m_dataLock);
        labels = m_tabLabels;
        selected = m_selectedTab;
    }
    Q_EMIT tabsChanged(labels, selected);
}

void SXWorkspaceData::dropContainer(const QString& label) {
    _dicfmtFiles.remove(label);
    _fmtSettingInfos.remove(label);
}

// Rows are kept sorted, unique and inside the shown list. A list with rows always has one
// selected: a selection that would become empty keeps what is left of the previous one, else
// the row nearest its first row. The caller holds the lock.
void SXWorkspaceData::clampSelection(const QList<int>& previous) {
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
