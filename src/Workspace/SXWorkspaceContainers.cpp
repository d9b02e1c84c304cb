#include "Workspace/SXWorkspaceContainers.h"

#include "Common/Util/SXFileLocalManager.h"
#include "Model/SXDataEngine.h"

#include <QMutexLocker>
#include <algorithm>

SXWorkspaceContainers::SXWorkspaceContainers(QObject* parent)
    : QObject(parent) {}

SXWorkspaceContainers::~SXWorkspaceContainers() = default;

void SXWorkspaceContainers::setAppState(int state) {
    if (m_progressType.exchange(state) != state)
        Q_EMIT appStateChanged(state);
}

// --- Tabs ---

void SXWorkspaceContainers::addDefaultTabs() {
    SXDataEngine* engine = SXDataEngine::shareInstance();
    const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();
    {
        QMutexLocker locker(&m_dataLock);
        for (int i = 0; i < fixed.size(); ++i) {
            m_tabLabels.append(QString());
            m_tabLabels[i] = fixed.at(i);
            if (SXFormatSettingPtr setting = engine->getFormatWithName(fixed.at(i)))
                _fmtSettingInfos.insert(fixed.at(i), setting);
        }
        // Every tab starts with an empty list, replacing whatever its name held before.
        for (const QString& label : std::as_const(m_tabLabels))
            _dicfmtFiles.insert(label, SXMusicInfoList());
    }
    selectTab(0);
}

void SXWorkspaceContainers::removeallTabs() {
    {
        QMutexLocker locker(&m_dataLock);
        while (!m_tabLabels.isEmpty())
            dropContainer(m_tabLabels.takeFirst());
        m_selectedTab = -1;
        m_selectedRows.clear();
    }
    emitTabs();
}

int SXWorkspaceContainers::addNewTab() {
    int index = 0;
    {
        QMutexLocker locker(&m_dataLock);
        m_tabLabels.append(QString());
        index = int(m_tabLabels.size()) - 1;
    }
    selectTab(index);
    return index;
}

int SXWorkspaceContainers::addNewTabWithName(const QString& name) {
    const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();
    int k = 0;
    {
        QMutexLocker locker(&m_dataLock);
        k = int(m_tabLabels.size());
        for (int i = 0; i < m_tabLabels.size(); ++i) {
            if (!fixed.contains(m_tabLabels.at(i))) {
                k = i;
                break;
            }
        }
    }
    addNewTab();
    {
        // The tab at k is named, not necessarily the appended one: a non-fixed container that
        // already stands at k is relabelled and the new tab stays unnamed.
        QMutexLocker locker(&m_dataLock);
        m_tabLabels[k] = name;
        if (SXFormatSettingPtr setting = SXDataEngine::shareInstance()->getFormatWithName(name))
            _fmtSettingInfos.insert(name, setting);
    }
    emitTabs();
    return int(tabLabels().indexOf(name));
}

QStringList SXWorkspaceContainers::tabLabels() const {
    QMutexLocker locker(&m_dataLock);
    return m_tabLabels;
}

int SXWorkspaceContainers::selectedTabIndex() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedTab;
}

void SXWorkspaceContainers::selectTab(int index) {
    {
        QMutexLocker locker(&m_dataLock);
        if (index < 0 || index >= m_tabLabels.size())
            return;
        m_selectedTab = index;
        m_selectedRows.clear();
    }
    emitTabs();
    if (SXFormatSettingPtr setting = getSelectedTabFormatSetting())
        Q_EMIT formatSettingShown(setting);
    refreshListView();
    setSelectedRows(getCurentTabMusicCount() > 0 ? QList<int>{0} : QList<int>{});
}

bool SXWorkspaceContainers::selectContainer(const QString& name) {
    const int index = int(tabLabels().indexOf(name));
    if (index < 0)
        return false;
    selectTab(index);
    return true;
}

void SXWorkspaceContainers::moveTabSelectedTo(int direction) {
    const int index = selectedTabIndex();
    const int count = int(tabLabels().size());
    if (count == 0 || (index == 0 && direction >= 1) || (index == count - 1 && direction < 0)) {
        beep();
        return;
    }
    selectTab(direction < 1 ? index + 1 : index - 1);
}

bool SXWorkspaceContainers::closeTab() {
    const QString label = getSelectedMusicFormat();
    if (selectedTabIndex() < 0)
        return false;
    if (disableTabClose(label)) {
        beep();
        return false;
    }
    if (!shouldCloseTab(label))
        return false;
    int next = 0;
    {
        QMutexLocker locker(&m_dataLock);
        m_tabLabels.removeAt(m_selectedTab);
        dropContainer(label);
        next = std::min(m_selectedTab, int(m_tabLabels.size()) - 1);
        m_selectedTab = -1;
    }
    if (next >= 0)
        selectTab(next);
    else
        emitTabs();
    refreshTabCount();
    return true;
}

bool SXWorkspaceContainers::disableTabClose(const QString& label) const {
    return SXDataEngine::getCanNotRemoveFormatContainer().contains(label);
}

bool SXWorkspaceContainers::shouldCloseTab(const QString& label) {
    if (enumAppState() == AppStateConverting)
        return false;
    if (label == QLatin1String("Drake")) {
        if (m_presenter)
            m_presenter->showSheetAlert({QStringLiteral("No Way!"),
                                         QStringLiteral("I refuse to close a tab named \"Drake\""),
                                         {QStringLiteral("OK")}});
        return false;
    }
    return true;
}

void SXWorkspaceContainers::clickAddNewFormat() {
    SXDataEngine* engine = SXDataEngine::shareInstance();
    QStringList names = engine->getAllOutputFormats();
    for (const QString& label : tabLabels())
        names.removeAll(label);
    QList<SXFormatSettingPtr> formats;
    for (const QString& name : std::as_const(names)) {
        if (SXFormatSettingPtr setting = engine->getFormatWithName(name))
            formats.append(setting);
    }
    if (formats.isEmpty()) {
        runAlert({QStringLiteral(
                      "All formats are opened, you can set the paramas in the setting window."),
                  QString(),
                  {QStringLiteral("Yes")}});
        return;
    }
    if (!m_presenter)
        return;
    if (SXFormatSettingPtr chosen = m_presenter->chooseNewFormat(formats))
        addContainerWithFormat(chosen);
}

void SXWorkspaceContainers::addContainerWithFormat(const SXFormatSettingPtr& setting) {
    if (!setting || setting->fmtName().isEmpty())
        return;
    const QString name = setting->fmtName();
    {
        QMutexLocker locker(&m_dataLock);
        _fmtSettingInfos.insert(name, setting);
    }
    addNewTab();
    {
        QMutexLocker locker(&m_dataLock);
        m_tabLabels.last() = name;
    }
    createArrayForFormate(name);
    SXFileLocalManager::getDefaultOutputDir(name);
    emitTabs();
    Q_EMIT formatSettingShown(setting);
    refreshListView();
    refreshTabCount();
}

// --- Per-container data ---

void SXWorkspaceContainers::setData(const SXMusicInfoList& list, const QString& forType) {
    if (forType.isEmpty())
        return;
    QMutexLocker locker(&m_dataLock);
    _dicfmtFiles.insert(forType, list);
}

void SXWorkspaceContainers::setFmtSetting(const SXFormatSettingPtr& setting) {
    if (!setting)
        return;
    {
        QMutexLocker locker(&m_dataLock);
        _fmtSettingInfos.insert(setting->fmtName(), setting);
    }
    Q_EMIT formatSettingShown(setting);
}

SXMusicInfoList SXWorkspaceContainers::getDataForFormat(const QString& name) const {
    QMutexLocker locker(&m_dataLock);
    return _dicfmtFiles.value(name);
}

bool SXWorkspaceContainers::hasDataForFormat(const QString& name) const {
    QMutexLocker locker(&m_dataLock);
    return _dicfmtFiles.contains(name);
}

SXFormatSettingPtr SXWorkspaceContainers::getFormatSettingForFormatName(const QString& name) const {
    if (name.isEmpty())
        return nullptr;
    QMutexLocker locker(&m_dataLock);
    return _fmtSettingInfos.value(name);
}

QString SXWorkspaceContainers::getSelectedMusicFormat() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedTab >= 0 && m_selectedTab < m_tabLabels.size() ? m_tabLabels.at(m_selectedTab)
                                                                    : QString();
}

SXMusicInfoList SXWorkspaceContainers::getCurTableDatasource() const {
    QMutexLocker locker(&m_dataLock);
    return getDataForFormat(getSelectedMusicFormat());
}

SXFormatSettingPtr SXWorkspaceContainers::getSelectedTabFormatSetting() const {
    return getFormatSettingForFormatName(getSelectedMusicFormat());
}

int SXWorkspaceContainers::getCurentTabMusicCount() const {
    return int(getCurTableDatasource().size());
}

void SXWorkspaceContainers::createArrayForFormate(const QString& name) {
    if (name.isEmpty())
        return;
    QMutexLocker locker(&m_dataLock);
    _dicfmtFiles.insert(name, SXMusicInfoList());
}

void SXWorkspaceContainers::refreshTabCount() {
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

QStringList SXWorkspaceContainers::containerNames() const {
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

QList<int> SXWorkspaceContainers::selectedRows() const {
    QMutexLocker locker(&m_dataLock);
    return m_selectedRows;
}

void SXWorkspaceContainers::setSelectedRows(const QList<int>& rows) {
    {
        QMutexLocker locker(&m_dataLock);
        m_selectedRows = rows;
        clampSelection();
    }
    Q_EMIT selectionChanged(selectedRows());
}

SXMusicInfoList SXWorkspaceContainers::selectedItems() const {
    QMutexLocker locker(&m_dataLock);
    const SXMusicInfoList list = getCurTableDatasource();
    SXMusicInfoList items;
    for (int row : m_selectedRows)
        items.append(list.at(row));
    return items;
}

void SXWorkspaceContainers::refreshListView() {
    bool selectionShrank = false;
    {
        QMutexLocker locker(&m_dataLock);
        const qsizetype before = m_selectedRows.size();
        clampSelection();
        selectionShrank = m_selectedRows.size() != before;
    }
    Q_EMIT listChanged();
    if (selectionShrank)
        Q_EMIT selectionChanged(selectedRows());
}

// --- Helpers ---

void SXWorkspaceContainers::beep() const {
    if (m_presenter)
        m_presenter->beep();
}

int SXWorkspaceContainers::runAlert(const SXAlert& alert) const {
    return m_presenter ? m_presenter->runModalAlert(alert) : 0;
}

void SXWorkspaceContainers::removeEqualItems(const SXMusicInfoList& items, SXMusicInfoList& list) {
    for (const SXMusicInfoPtr& item : items) {
        const auto found = std::find_if(list.begin(), list.end(), [&](const SXMusicInfoPtr& e) {
            return e->isEqualToMusic(*item);
        });
        if (found != list.end())
            list.erase(found);
    }
}

void SXWorkspaceContainers::emitTabs() {
    QStringList labels;
    int selected = -1;
    {
        QMutexLocker locker(&m_dataLock);
        labels = m_tabLabels;
        selected = m_selectedTab;
    }
    Q_EMIT tabsChanged(labels, selected);
}

void SXWorkspaceContainers::dropContainer(const QString& label) {
    _dicfmtFiles.remove(label);
    _fmtSettingInfos.remove(label);
}

// Rows are kept sorted, unique and inside the shown list; the caller holds the lock.
void SXWorkspaceContainers::clampSelection() {
    const int count = int(getCurTableDatasource().size());
    QList<int> rows;
    for (int row : std::as_const(m_selectedRows)) {
        if (row >= 0 && row < count && !rows.contains(row))
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    m_selectedRows = rows;
}
