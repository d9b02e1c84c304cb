#include "workspace/SXWorkspaceContainers.h"

#include "model/SXDataEngine.h"
#include "workspace/SXContainerMemory.h"

#include <QMutexLocker>
#include <QPointer>
#include <algorithm>

SXWorkspaceContainers::SXWorkspaceContainers(QObject* parent)
    : SXWorkspacePreview(parent) {}

SXWorkspaceContainers::~SXWorkspaceContainers() = default;

void SXWorkspaceContainers::addDefaultTabs() {
    SXDataEngine* engine = SXDataEngine::shareInstance();
    const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();
    QStringList labels = fixed;
    if (m_remembersContainers) {
        // The fixed ones cannot be closed and lead; a stored format the catalogue lost is skipped.
        for (const QString& name : SXContainerMemory::storedContainers()) {
            if (!labels.contains(name) && engine->getFormatWithName(name))
                labels.append(name);
        }
    }
    QList<SXFormatSettingPtr> settings;
    for (const QString& name : std::as_const(labels)) {
        settings.append(engine->getFormatWithName(name));
        recallChoices(settings.last());
    }
    {
        QMutexLocker locker(&m_dataLock);
        for (int i = 0; i < labels.size(); ++i) {
            m_tabLabels.append(labels.at(i));
            if (settings.at(i))
                _fmtSettingInfos.insert(labels.at(i), settings.at(i));
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
    const SXFormatSettingPtr setting = SXDataEngine::shareInstance()->getFormatWithName(name);
    recallChoices(setting);
    addNewTab();
    {
        // The tab at k is named, not necessarily the appended one: a non-fixed container that
        // already stands at k is relabelled and the new tab stays unnamed.
        QMutexLocker locker(&m_dataLock);
        m_tabLabels[k] = name;
        if (setting)
            _fmtSettingInfos.insert(name, setting);
    }
    emitTabs();
    rememberContainers();
    return int(tabLabels().indexOf(name));
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
    setSelectedRows(currentTabItemCount() > 0 ? QList<int>{0} : QList<int>{});
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
    stopPreviewInContainers({label});
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
    rememberContainers();
    return true;
}

bool SXWorkspaceContainers::disableTabClose(const QString& label) const {
    return SXDataEngine::getCanNotRemoveFormatContainer().contains(label);
}

bool SXWorkspaceContainers::shouldCloseTab(const QString& label) {
    if (enumAppState() == AppStateConverting)
        return false;
    if (label == QLatin1String("Drake")) {
        if (presenter())
            presenter()->showSheetAlert({QStringLiteral("No Way!"),
                                         QStringLiteral("I refuse to close a tab named \"Drake\""),
                                         {QStringLiteral("OK")}});
        return false;
    }
    return true;
}

QList<SXFormatSettingPtr> SXWorkspaceContainers::formatsWithoutContainer() const {
    SXDataEngine* engine = SXDataEngine::shareInstance();
    QStringList names = engine->getAllOutputFormats();
    for (const QString& label : tabLabels())
        names.removeAll(label);
    QList<SXFormatSettingPtr> formats;
    for (const QString& name : std::as_const(names)) {
        if (SXFormatSettingPtr setting = engine->getFormatWithName(name))
            formats.append(setting);
    }
    return formats;
}

void SXWorkspaceContainers::addContainer() {
    const QList<SXFormatSettingPtr> formats = formatsWithoutContainer();
    if (formats.isEmpty()) {
        runAlert({QStringLiteral(
                      "All formats are opened, you can set the paramas in the setting window."),
                  QString(),
                  {QStringLiteral("Yes")}});
        return;
    }
    if (!presenter())
        return;
    presenter()->chooseNewFormat(formats,
                                 [guard = QPointer(this)](const SXFormatSettingPtr& chosen) {
                                     if (guard && chosen)
                                         guard->addContainerWithFormat(chosen);
                                 });
}

void SXWorkspaceContainers::addContainerWithFormat(const SXFormatSettingPtr& setting) {
    if (!setting || setting->fmtName().isEmpty())
        return;
    const QString name = setting->fmtName();
    recallChoices(setting);
    {
        QMutexLocker locker(&m_dataLock);
        _fmtSettingInfos.insert(name, setting);
    }
    addNewTab();
    {
        QMutexLocker locker(&m_dataLock);
        m_tabLabels.last() = name;
    }
    createListForFormat(name);
    emitTabs();
    Q_EMIT formatSettingShown(setting);
    refreshListView();
    refreshTabCount();
    rememberContainers();
}

void SXWorkspaceContainers::recallChoices(const SXFormatSettingPtr& setting) const {
    if (m_remembersContainers && setting)
        SXContainerMemory::restoreChoices(*setting);
}

void SXWorkspaceContainers::rememberContainers() const {
    if (m_remembersContainers)
        SXContainerMemory::storeContainers(tabLabels());
}
