#include "workspace/SXContainerTabs.h"

#include "model/SXDataEngine.h"
#include "workspace/SXContainerMemory.h"
#include "workspace/SXWorkspacePreview.h"

#include <QPointer>

SXContainerTabs::SXContainerTabs(SXContainerStore& store, SXWorkspacePreview& preview,
                                 QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_preview(preview) {}

SXContainerTabs::~SXContainerTabs() = default;

void SXContainerTabs::addDefaultTabs() {
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
    m_store.appendContainers(labels, settings);
    selectTab(0);
}

void SXContainerTabs::removeallTabs() {
    m_store.removeAllContainers();
}

int SXContainerTabs::addNewTab() {
    const int index = m_store.appendTab(QString());
    selectTab(index);
    return index;
}

int SXContainerTabs::addNewTabWithName(const QString& name) {
    const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();
    const QStringList labels = m_store.tabLabels();
    int k = int(labels.size());
    for (int i = 0; i < labels.size(); ++i) {
        if (!fixed.contains(labels.at(i))) {
            k = i;
            break;
        }
    }
    const SXFormatSettingPtr setting = SXDataEngine::shareInstance()->getFormatWithName(name);
    recallChoices(setting);
    addNewTab();
    // The tab at k is named, not necessarily the appended one: a non-fixed container that
    // already stands at k is relabelled and the new tab stays unnamed.
    m_store.setTabLabel(k, name);
    if (setting)
        m_store.storeFormatSetting(setting);
    m_store.emitTabs();
    rememberContainers();
    return int(m_store.tabLabels().indexOf(name));
}

void SXContainerTabs::selectTab(int index) {
    if (!m_store.setSelectedTab(index))
        return;
    m_store.emitTabs();
    if (SXFormatSettingPtr setting = m_store.getSelectedTabFormatSetting())
        m_store.showFormatSetting(setting);
    m_store.refreshListView();
    m_store.setSelectedRows(m_store.currentTabItemCount() > 0 ? QList<int>{0} : QList<int>{});
}

bool SXContainerTabs::selectContainer(const QString& name) {
    const int index = int(m_store.tabLabels().indexOf(name));
    if (index < 0)
        return false;
    selectTab(index);
    return true;
}

void SXContainerTabs::selectNextContainer() {
    moveSelectedTab(1);
}

void SXContainerTabs::selectPreviousContainer() {
    moveSelectedTab(-1);
}

void SXContainerTabs::moveSelectedTab(int step) {
    const int index = m_store.selectedTabIndex();
    const int count = int(m_store.tabLabels().size());
    if (count == 0 || (index == 0 && step < 0) || (index == count - 1 && step > 0)) {
        m_store.beep();
        return;
    }
    selectTab(index + step);
}

bool SXContainerTabs::closeTab() {
    const QString label = m_store.getSelectedMusicFormat();
    if (m_store.selectedTabIndex() < 0)
        return false;
    if (disableTabClose(label)) {
        m_store.beep();
        return false;
    }
    if (!shouldCloseTab(label))
        return false;
    m_preview.stopPreviewInContainers({label});
    const int next = m_store.removeSelectedTab();
    if (next >= 0)
        selectTab(next);
    else
        m_store.emitTabs();
    m_store.refreshTabCount();
    rememberContainers();
    return true;
}

bool SXContainerTabs::closeContainer(const QString& label) {
    return selectContainer(label) && closeTab();
}

bool SXContainerTabs::disableTabClose(const QString& label) const {
    return SXDataEngine::getCanNotRemoveFormatContainer().contains(label);
}

bool SXContainerTabs::shouldCloseTab(const QString& label) {
    if (m_store.enumAppState() == AppStateConverting)
        return false;
    if (label == QLatin1String("Drake")) {
        if (SXWorkspacePresenter* presenter = m_store.presenter())
            presenter->showNotice(
                {tr("No Way!"), tr("I refuse to close a tab named \"Drake\""), {tr("OK")}});
        return false;
    }
    return true;
}

QList<SXFormatSettingPtr> SXContainerTabs::formatsWithoutContainer() const {
    SXDataEngine* engine = SXDataEngine::shareInstance();
    QStringList names = engine->getAllOutputFormats();
    for (const QString& label : m_store.tabLabels())
        names.removeAll(label);
    QList<SXFormatSettingPtr> formats;
    for (const QString& name : std::as_const(names)) {
        if (SXFormatSettingPtr setting = engine->getFormatWithName(name))
            formats.append(setting);
    }
    return formats;
}

void SXContainerTabs::addContainer() {
    const QList<SXFormatSettingPtr> formats = formatsWithoutContainer();
    if (formats.isEmpty()) {
        m_store.runAlert(
            {tr("All formats are opened, you can set the paramas in the setting window."),
             QString(),
             {tr("Yes")}});
        return;
    }
    SXWorkspacePresenter* presenter = m_store.presenter();
    if (!presenter)
        return;
    presenter->chooseNewFormat(formats, [guard = QPointer(this)](const SXFormatSettingPtr& chosen) {
        if (guard && chosen)
            guard->addContainerWithFormat(chosen);
    });
}

void SXContainerTabs::addContainerWithFormat(const SXFormatSettingPtr& setting) {
    if (!setting || setting->fmtName().isEmpty())
        return;
    const QString name = setting->fmtName();
    recallChoices(setting);
    m_store.storeFormatSetting(setting);
    const int index = addNewTab();
    m_store.setTabLabel(index, name);
    m_store.createListForFormat(name);
    m_store.emitTabs();
    m_store.showFormatSetting(setting);
    m_store.refreshListView();
    m_store.refreshTabCount();
    rememberContainers();
}

void SXContainerTabs::recallChoices(const SXFormatSettingPtr& setting) const {
    if (m_remembersContainers && setting)
        SXContainerMemory::restoreChoices(*setting);
}

void SXContainerTabs::rememberContainers() const {
    if (m_remembersContainers)
        SXContainerMemory::storeContainers(m_store.tabLabels());
}
