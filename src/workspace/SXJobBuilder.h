#pragma once

#include "engine/ConvertJob.h"
#include "model/SXFormatSetting.h"
#include "model/SXMusicInfo.h"

#include <QString>

// Makes the job of one item when a run starts: the item's source and what its probe found, its
// container's choices, folder and library delivery, fixed for the whole run.
class SXJobBuilder {
public:
    // What a run adds to every job: the folder chosen at Start, whether output is organised by
    // format, and the library settings of the moment.
    struct Run {
        QString startFolder;
        bool organizeByFormat = true;
        bool runLibraryScript = false;
        QString playlist;

        // The library settings as stored now.
        static Run fromSettings(const QString& startFolder, bool organizeByFormat);
    };

    // The folder a container's run writes into: the folder chosen for that container with
    // "Output Folder…" when there is one, else the folder chosen at Start, with the format's own
    // folder below it when organising by format.
    static QString outputFolder(const SXFormatSetting& setting, const QString& startFolder,
                                bool organizeByFormat);

    // The job of `item`, which has a media record, in the container set up as `setting`.
    static ConvertJob build(const SXMusicInfo& item, const SXFormatSetting& setting,
                            const Run& run);
};
