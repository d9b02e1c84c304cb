#pragma once

#include "model/SXConversionChoices.h"

#include <QString>

class SXContainerStore;

// What the settings panel under the list writes. Each acts on the setting of the selected
// container; the items get it at the next Start. The three choices are also stored for the next
// start of the program (SXContainerMemory).
class SXSettingPanelActions {
public:
    static void setBitRate(SXContainerStore& workspace, const QString& title);
    static void setSampleRate(SXContainerStore& workspace, const QString& title);
    static void setChannels(SXContainerStore& workspace, const QString& title);
    // Stored like the three choices above.
    static void setReplayGain(SXContainerStore& workspace, SXReplayGainMode mode);
    static void setNormalise(SXContainerStore& workspace, bool on);
    // Refills the panel afterwards, as the setting now reads.
    static void setAddToLibrary(SXContainerStore& workspace, bool on);
    // How the selected container names its outputs (ConvertNaming) and whether it keeps the
    // files' places below the folders they were added with; stored for the next start too.
    static void setNamePattern(SXContainerStore& workspace, const QString& pattern);
    static void setMirrorFolders(SXContainerStore& workspace, bool on);
    // The path below the output folder that the selected container's first item gets, with its
    // extension, as the panel's example; empty when the container holds no item.
    static QString namePreview(const SXContainerStore& workspace);
    // The folder the selected container's runs write into from now on, whatever Start chooses.
    static void setOutputFolder(SXContainerStore& workspace, const QString& folder);
    // The folder the selected container's next run writes into: its own folder when one was
    // chosen, else the stored output folder (else the default one), with the format's folder when
    // output is organised by format.
    static QString containerOutputFolder(const SXContainerStore& workspace);
    // What "Show in Files" opens: that folder, or the nearest folder above it that exists, since
    // showing creates nothing.
    static QString revealFolder(const SXContainerStore& workspace);
    // Asks the presenter to open revealFolder().
    static void revealOutputFolder(SXContainerStore& workspace);
};
