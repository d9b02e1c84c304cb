#pragma once

#include "engine/ConvertJob.h"
#include "model/SXFormatSetting.h"
#include "model/SXMusicInfo.h"

#include <QSet>
#include <QString>
#include <memory>

// Makes the job of one item when a run starts: the item's source and what its probe found, its
// container's choices, folder, output name and library delivery, fixed for the whole run.
class SXJobBuilder {
public:
    // What a run adds to every job: the folder chosen at Start, whether output is organised by
    // format, what to do with outputs that are already there, and the library settings of the
    // moment.
    struct Run {
        QString startFolder;
        bool organizeByFormat = true;
        bool runLibraryScript = false;
        QString playlist;
        ConvertExisting existing = ConvertExisting::Skip;
        // The outputs planned so far in this run (absolute, with extension): the same name
        // planned twice is numbered for the second item instead of counting as its result.
        std::shared_ptr<QSet<QString>> planned = std::make_shared<QSet<QString>>();

        // The library settings and the choice for existing outputs as stored now; `existing`
        // overrides the stored choice.
        static Run fromSettings(const QString& startFolder, bool organizeByFormat,
                                std::optional<ConvertExisting> existing = std::nullopt);
    };

    // The folder a container's run writes into: the folder chosen for that container with
    // "Output Folder…" when there is one, else the folder chosen at Start, with the format's own
    // folder below it when organising by format.
    static QString outputFolder(const SXFormatSetting& setting, const QString& startFolder,
                                bool organizeByFormat);

    // The output's path below that folder, without extension, as the container's name pattern
    // and mirrored folders make it for `item` ("Artist/Album/01 Title"). Without a pattern of
    // its own the name is the source's, unchanged.
    static QString relativeOutput(const SXMusicInfo& item, const SXFormatSetting& setting);

    // The job of `item`, which has a media record, in the container set up as `setting`.
    static ConvertJob build(const SXMusicInfo& item, const SXFormatSetting& setting,
                            const Run& run);
};
