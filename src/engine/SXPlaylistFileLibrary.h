#pragma once

#include "engine/SXDeliveryResult.h"
#include "engine/SXLibraryFolder.h"

#include <QString>

// Library delivery that needs no server: the file goes into the music library (see
// SXLibraryFolder) and, when a playlist is named, into the UTF-8 playlist "<name>.m3u8" in the
// music folder, which desktop players and MPD read.
//
// Playlist rules: the name is matched exactly, case included, because it is the file name. A
// playlist that does not exist is created with the "#EXTM3U" header. Playlist files have no
// order among themselves, so "a new playlist comes first" has nothing to act on here. A file is
// listed once: an entry naming the same file (relative, absolute or as a file URL) counts.
// Entries are relative to the music folder when the file lies below it, so the folder can move;
// otherwise absolute.
//
// The playlist is replaced atomically, so a crash leaves the old or the new version, never a
// truncated one. Writers are serialised by a process-wide mutex and an flock on the music folder
// (the playlist file itself cannot carry the lock: the atomic replace gives it a new inode).
class SXPlaylistFileLibrary {
public:
    explicit SXPlaylistFileLibrary(const QString& musicDirectory);

    // Where the playlist of that name lives. "/" cannot be part of a file name and is replaced,
    // so no name leads out of the music folder.
    QString playlistPath(const QString& playlistName) const;

    // An empty or null name means the library alone.
    SXDeliveryResult deliver(const QString& playlistName, const QString& file) const;

private:
    SXDeliveryResult addToPlaylist(const QString& playlistPath, const QString& file) const;
    QString entryFor(const QString& file) const;

    SXLibraryFolder m_library;
};
