#pragma once

#include <QString>

// Hands a converted file to the user's music library, with a playlist when one
// is named. Which library is used is a setting (LibraryBackend): "playlist"
// (the default, also when the key is absent) writes playlist files in the music
// folder; "mpd" talks to a Music Player Daemon. Failures are logged only: a
// delivery never changes a conversion's outcome.
class ScriptBridgeHelper {
public:
    // A null or empty playlist name delivers to the library alone. The error slot
    // is kept for callers written against the original interface; it is never
    // written.
    static void syncMusicLibrary(const QString& playlistName, const QString& originFile,
                                 QString* error = nullptr);
};
