#pragma once

#include "engine/SXDeliveryResult.h"

#include <QString>

struct mpd_connection;

// Library delivery to a Music Player Daemon: MPD indexes the file (an update of just that path)
// and, when a playlist is named, the file is appended to the stored playlist of that name,
// which MPD creates on the first add. Stored playlists have no order among themselves, so
// "a new playlist comes first" does not apply. A file already in the playlist is not added
// again: MPD would accept the duplicate, but a user delivering the same file twice wants it
// listed once.
//
// MPD addresses files relative to its music folder, so a file outside that folder cannot be
// delivered. MPD tells its music folder only over its local socket; over TCP it must be set
// (MpdMusicDirectory in the settings).
class SXMpdLibrary {
public:
    struct Server {
        QString host;           // empty: libmpdclient's default, which reads MPD_HOST itself
        unsigned port = 0;      // 0: libmpdclient's default (MPD_PORT, else 6600)
        QString musicDirectory; // empty: ask the server
        unsigned timeoutMs = 5000;
    };

    // MPD_HOST / MPD_PORT from the environment first, then the settings MpdHost, MpdPort and
    // MpdMusicDirectory, then localhost:6600.
    static Server serverFromSettings();

    explicit SXMpdLibrary(const Server& server);

    // An empty or null name means the database update alone.
    SXDeliveryResult deliver(const QString& playlistName, const QString& file) const;

private:
    enum class Known { Yes, No, Error };

    QString musicDirectory(mpd_connection* connection) const;
    bool indexFile(mpd_connection* connection, const QByteArray& uri) const;
    QByteArray updateScope(mpd_connection* connection, const QByteArray& uri) const;
    Known lookUp(mpd_connection* connection, const QByteArray& uri, bool mustBeSong) const;
    bool waitForUpdate(mpd_connection* connection, unsigned job) const;
    bool playlistHolds(mpd_connection* connection, const QByteArray& playlist,
                       const QByteArray& uri) const;

    Server m_server;
};
