#pragma once

#include "CliOptions.h"
#include "model/SXFormatSetting.h"

// The tool's view of the format catalogue: listing it, and turning the format and choices of
// the command line into the container setting of a run.
class CliCatalogue {
public:
    // Every format in catalogue order with its extension, description, offered choices (the
    // default marked) and whether it offers the music library.
    static QString formatListing();

    // A copy of the named format with the command line's choices applied. Returns nullptr and
    // sets *error for an unknown format, a choice the format does not offer, or --library for a
    // format without the music library.
    static SXFormatSettingPtr settingForOptions(const CliOptions& options, QString* error);

    // The offered choice that `wanted` names (letter case ignored); empty when none does.
    static QString matchChoice(const QStringList& offered, const QString& wanted);
};
