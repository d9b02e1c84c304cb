#include "Workspace/SXSettingPanelActions.h"

#include "Shared/SXSettings.h"
#include "Workspace/SXWorkspaceData.h"

void SXSettingPanelActions::clickPopBitRiate(SXWorkspaceData& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting())
        setting->setBiteRate(title);
}

void SXSettingPanelActions::clickPopSampRiate(SXWorkspaceData& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting())
        setting->setSampleRate(title);
}

void SXSettingPanelActions::clickPopChannelRiate(SXWorkspaceData& workspace, const QString& title) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting())
        setting->setChannels(title);
}

void SXSettingPanelActions::clickAddToiTunes(SXWorkspaceData& workspace, bool on) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setEnumAddToiTunes(on ? 1 : 0);
        workspace.setFmtSetting(setting);
    }
}

void SXSettingPanelActions::clickSaveAsOriginal(SXWorkspaceData& workspace, bool on) {
    if (const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting()) {
        setting->setIsSaveAsOriginal(on);
        workspace.setFmtSetting(setting);
    }
}

void SXSettingPanelActions::clickSavePath(SXWorkspaceData& workspace, const QString& folder) {
    const SXFormatSettingPtr setting = workspace.getSelectedTabFormatSetting();
    if (setting && !folder.isEmpty())
        setting->setOutputPath(folder);
}

QString SXSettingPanelActions::revealFolder() {
    return SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath);
}
