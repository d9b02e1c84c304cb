#pragma once

#include "model/SXFormatSetting.h"

#include <QStringList>

// What the settings store keeps of the containers between starts: each format's choices (bit
// rate, sample rate, channels, ReplayGain tags, normalising, name pattern, mirrored folders),
// whichever window made them, and the containers of the primary window in their order. Stored
// values that the catalogue no longer offers are ignored.
namespace SXContainerMemory {

void storeChoices(const SXFormatSetting& setting);
// Puts the stored choices of the setting's format into `setting`, each only where the format
// still offers it.
void restoreChoices(SXFormatSetting& setting);

void storeContainers(const QStringList& labels);
// The stored container names in order; empty when none were stored.
QStringList storedContainers();

} // namespace SXContainerMemory
