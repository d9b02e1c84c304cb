#include "framework/MTEAudioFileMgr.h"

std::shared_ptr<MTEAudioFile> MTEAudioFileMgr::createAudioFileWithPath(const QString& path,
                                                                       bool dumpImmediately) {
    return MTEAudioFile::openWithPath(path, dumpImmediately);
}
