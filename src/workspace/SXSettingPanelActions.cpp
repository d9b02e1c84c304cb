#include "workspace/SXSettingPanelActions.h"

#include "base/SXFileLocalManager.h"
#include "base/SXSettings.h"
#include "workspace/SXContainerMemory.h"
#include "workspace/SXJobBuilder.h"
#include "workspace/SXWorkspaceData.h"

#include <QDir>
#include <QFileInfo>

void SXSettingPanelActions::setBitRate(SXWorkspaceData& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setBiteRate(title);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setSampleRate(SXWorkspaceData& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setSampleRate(title);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setChannels(SXWorkspaceData& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setChannels(title);
        SXContainerMemory::storeChoices(*setting);
    }
}

void SXSettingPanelActions::setAddToLibrary(SXWorkspaceData& workspace, bool on) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setEnumAddToLibrary(on ? 1 : 0);
        workspace.setFmtSetting(setting);
    }
}

void SXSettingPanelActions::setOutputFolder(SXWorkspaceData& workspace, const QString& folder) {
    const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting();
    if (setting && !folder.isEmpty())
        setting->setOutputPath(folder);
}

QString SXSettingPanelActions::containerOutputFolder(const SXWorkspaceData& workspace) {
    QString folder = SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath);
    if (folder.isEmpty())
        folder = SXFileLocalManager::getDefaultUpperOutputDir();
    const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting();
    if (setting)
        folder = SXJobBuilder::outputFolder(
            *setting, folder, SXSettings::boolForKey(SXSettingsKey::DefaultSetOrganized, true));
    return QDir::cleanPath(folder);
}

QString SXSettingPanelActions::revealFolder(const SXWorkspaceData& workspace) {
    QString folder = containerOutputFolder(workspace);
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

void SXSettingPanelActions::revealOutputFolder(SXWorkspaceData& workspace) {
    if (workspace.presenter())
        workspace.presenter()->openFolder(revealFolder(workspace));
}
