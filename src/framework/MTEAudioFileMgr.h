#pragma once

#include "framework/MTEAudioFile.h"

#include <memory>

class MTEAudioFileMgr {
public:
    // Opens `path`, reads its tags when `dumpImmediately` is true, and closes the file. Returns
    // none when TagLib cannot open the file as audio.
    static std::shared_ptr<MTEAudioFile> createAudioFileWithPath(const QString& path,
                                                                 bool dumpImmediately);
};
