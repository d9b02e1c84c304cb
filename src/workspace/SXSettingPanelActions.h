#pragma once

#include <QString>

class SXWorkspaceData;

// What the settings panel under the list writes. Each acts on the setting of the selected
// container; the items get it at the next Start. The three choices are also stored for the next
// start of the program (SXContainerMemory).
class SXSettingPanelActions {
public:
    static void setBitRate(SXWorkspaceData& workspace, const QString& title);
    static void setSampleRate(SXWorkspaceData& workspace, const QString& title);
    static void setChannels(SXWorkspaceData& workspace, const QString& title);
    // Refills the panel afterwards, as the setting now reads.
    static void setAddToLibrary(SXWorkspaceData& workspace, bool on);
    // The folder the selected container's runs write into from now on, whatever Start chooses.
    static void setOutputFolder(SXWorkspaceData& workspace, const QString& folder);
    // The folder the selected container's next run writes into: its own folder when one was
    // chosen, else the stored output folder (else the default one), with the format's folder when
    // output is organised by format.
    static QString containerOutputFolder(const SXWorkspaceData& workspace);
    // What "Show in Files" opens: that folder, or the nearest folder above it that exists, since
    // showing creates nothing.
    static QString revealFolder(const SXWorkspaceData& workspace);
    // Asks the presenter to open revealFolder().
    static void revealOutputFolder(SXWorkspaceData& workspace);
};
