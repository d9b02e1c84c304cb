#pragma once

#include <QString>

class SXWorkspaceData;

// What the settings panel under the list writes. Each acts on the setting of the selected
// container and is kept in memory there; the items get it at the next Start.
class SXSettingPanelActions {
public:
    static void clickPopBitRiate(SXWorkspaceData& workspace, const QString& title);
    static void clickPopSampRiate(SXWorkspaceData& workspace, const QString& title);
    static void clickPopChannelRiate(SXWorkspaceData& workspace, const QString& title);
    // Both boxes refill the panel afterwards, as the setting now reads.
    static void clickAddToiTunes(SXWorkspaceData& workspace, bool on);
    static void clickSaveAsOriginal(SXWorkspaceData& workspace, bool on);
    static void clickSavePath(SXWorkspaceData& workspace, const QString& folder);
    // The folder the reveal button shows: the last output folder of a run, or empty (nothing
    // to show).
    static QString revealFolder();
};
