#include "workspace/SXSettingPanelActions.h"

#include "base/SXFileLocalManager.h"
#include "base/SXSettings.h"
#include "workspace/SXContainerMemory.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXJobBuilder.h"

#include <QDir>
#include <QFileInfo>

void SXSettingPanelActions::setBitRate(SXContainerStore& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setBiteRate(title);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setSampleRate(SXContainerStore& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setSampleRate(title);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setChannels(SXContainerStore& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setChannels(title);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setReplayGain(SXContainerStore& workspace, SXReplayGainMode mode) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setReplayGain(mode);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setNormalise(SXContainerStore& workspace, bool on) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setNormalise(on);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setAddToLibrary(SXContainerStore& workspace, bool on) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setEnumAddToLibrary(on ? 1 : 0);
        workspace.setFmtSetting(setting);
    }
}

void SXSettingPanelActions::setNamePattern(SXContainerStore& workspace, const QString& pattern) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setNamePattern(pattern);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setMirrorFolders(SXContainerStore& workspace, bool on) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setMirrorFolders(on);
        SXContainerMemory::storeChoices(*setting);
    }
}

QString SXSettingPanelActions::namePreview(const SXContainerStore& workspace) {
    const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting();
    const SXMusicInfoList items = workspace.getCurTableDatasource();
    if (!setting || items.isEmpty())
        return {};
    return SXJobBuilder::relativeOutput(*items.first(), *setting) + QLatin1Char('.') +
           setting->outputExtName();
}

void SXSettingPanelActions::setOutputFolder(SXContainerStore& workspace, const QString& folder) {
    const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting();
    if (setting && !folder.isEmpty())
        setting->setOutputPath(folder);
}

QString SXSettingPanelActions::containerOutputFolder(const SXContainerStore& workspace) {
    QString folder = SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath);
    if (folder.isEmpty())
        folder = SXFileLocalManager::getDefaultUpperOutputDir();
    const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting();
    if (setting)
        folder = SXJobBuilder::outputFolder(
            *setting, folder, SXSettings::boolForKey(SXSettingsKey::DefaultSetOrganized, true));
    return QDir::cleanPath(folder);
}

QString SXSettingPanelActions::revealFolder(const SXContainerStore& workspace) {
    QString folder = containerOutputFolder(workspace);
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

void SXSettingPanelActions::revealOutputFolder(SXContainerStore& workspace) {
    if (workspace.presenter())
        workspace.presenter()->openFolder(revealFolder(workspace));
}
