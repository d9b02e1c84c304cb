#include "engine/SXMpdLibrary.h"

#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "engine/SXLibraryFolder.h"

#include <QDeadlineTimer>

#include <mpd/client.h>

#include <memory>
#include <poll.h>

namespace {
using Connection = std::unique_ptr<mpd_connection, decltype(&mpd_connection_free)>;

// Indexing one file is quick, but MPD may first finish an update that was already running.
constexpr int kUpdateWaitMs = 60000;
constexpr unsigned kDefaultPort = 6600;

// Logs MPD's complaint and makes the connection usable again; false when it cannot be.
bool reportAndClear(mpd_connection* connection, const QString& what) {
    SXLog::line(QStringLiteral("MPD: %1: %2")
                    .arg(what, QString::fromUtf8(mpd_connection_get_error_message(connection))));
    return mpd_connection_clear_error(connection);
}

bool isMissing(mpd_connection* connection) {
    return mpd_connection_get_error(connection) == MPD_ERROR_SERVER &&
           mpd_connection_get_server_error(connection) == MPD_SERVER_ERROR_NO_EXIST;
}
} // namespace

SXMpdLibrary::Server SXMpdLibrary::serverFromSettings() {
    Server server;
    server.musicDirectory = SXSettings::stringForKey(SXSettingsKey::MpdMusicDirectory);
    // With MPD_HOST set, libmpdclient reads it (and MPD_PORT) itself, including the
    // "password@host" and socket forms.
    if (!qEnvironmentVariableIsEmpty("MPD_HOST"))
        return server;
    server.host = SXSettings::stringForKey(SXSettingsKey::MpdHost, QStringLiteral("localhost"));
    if (server.host.isEmpty())
        server.host = QStringLiteral("localhost");
    bool ok = false;
    const unsigned envPort = qEnvironmentVariable("MPD_PORT").toUInt(&ok);
    if (ok && envPort > 0 && envPort < 65536) {
        server.port = envPort;
    } else {
        const int stored = SXSettings::integerForKey(SXSettingsKey::MpdPort, 0);
        server.port = stored > 0 && stored < 65536 ? unsigned(stored) : kDefaultPort;
    }
    return server;
}

SXMpdLibrary::SXMpdLibrary(const Server& server)
    : m_server(server) {}

SXDeliveryResult SXMpdLibrary::deliver(const QString& playlistName, const QString& file) const {
    const QByteArray host = m_server.host.toUtf8();
    Connection connection(mpd_connection_new(host.isEmpty() ? nullptr : host.constData(),
                                             m_server.port, m_server.timeoutMs),
                          &mpd_connection_free);
    if (!connection || mpd_connection_get_error(connection.get()) != MPD_ERROR_SUCCESS) {
        SXLog::line(QStringLiteral("could not find iTunes library"));
        if (connection)
            reportAndClear(connection.get(), QStringLiteral("connect"));
        return SXDeliveryResult::LibraryUnreachable;
    }
    mpd_connection* c = connection.get();

    const QString music = musicDirectory(c);
    if (music.isEmpty()) {
        SXLog::line(QStringLiteral("MPD does not name its music folder over this connection; "
                                   "set it as %1")
                        .arg(SXSettingsKey::MpdMusicDirectory));
        return SXDeliveryResult::Failed;
    }
    const QString relative = SXLibraryFolder(music).relativePath(file);
    if (relative.isNull()) {
        SXLog::line(QStringLiteral("MPD cannot add %1: it is outside its music folder %2")
                        .arg(file, music));
        return SXDeliveryResult::Failed;
    }
    const QByteArray uri = relative.toUtf8();
    if (!indexFile(c, uri))
        return SXDeliveryResult::Failed;
    if (playlistName.isEmpty())
        return SXDeliveryResult::LibraryOnly;

    const QByteArray playlist = playlistName.toUtf8();
    if (playlistHolds(c, playlist, uri))
        return SXDeliveryResult::AlreadyListed;
    if (!mpd_run_playlist_add(c, playlist.constData(), uri.constData())) {
        reportAndClear(c, QStringLiteral("playlistadd"));
        return SXDeliveryResult::Failed;
    }
    return SXDeliveryResult::Added;
}

QString SXMpdLibrary::musicDirectory(mpd_connection* connection) const {
    if (!m_server.musicDirectory.isEmpty())
        return m_server.musicDirectory;
    // "config" is answered on the local socket only; over TCP MPD refuses it.
    QString directory;
    if (mpd_send_command(connection, "config", nullptr)) {
        if (mpd_pair* pair = mpd_recv_pair_named(connection, "music_directory")) {
            directory = QString::fromUtf8(pair->value);
            mpd_return_pair(connection, pair);
        }
    }
    if (!mpd_response_finish(connection)) {
        mpd_connection_clear_error(connection);
        return {};
    }
    return directory;
}

bool SXMpdLibrary::indexFile(mpd_connection* connection, const QByteArray& uri) const {
    const QByteArray scope = updateScope(connection, uri);
    const unsigned job = mpd_run_update(connection, scope.constData());
    if (job == 0) {
        reportAndClear(connection, QStringLiteral("update %1").arg(QString::fromUtf8(scope)));
        return false;
    }
    if (!waitForUpdate(connection, job))
        return false;
    // MPD skips files it cannot decode; such a file is not in its library.
    switch (lookUp(connection, uri, true)) {
    case Known::Yes:
        return true;
    case Known::No:
        SXLog::line(QStringLiteral("MPD did not index %1").arg(QString::fromUtf8(uri)));
        return false;
    case Known::Error:
        return false;
    }
    return false;
}

// MPD (0.23) cannot update a file when more than one level of the folders above it is new to
// its database, so the update starts at the first folder it does not know yet.
QByteArray SXMpdLibrary::updateScope(mpd_connection* connection, const QByteArray& uri) const {
    const QList<QByteArray> parts = uri.split('/');
    QByteArray prefix;
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        prefix += (i == 0 ? QByteArray() : QByteArrayLiteral("/")) + parts.at(i);
        if (lookUp(connection, prefix, false) != Known::Yes)
            return prefix;
    }
    return uri;
}

SXMpdLibrary::Known SXMpdLibrary::lookUp(mpd_connection* connection, const QByteArray& uri,
                                         bool mustBeSong) const {
    bool song = false;
    if (mpd_send_list_meta(connection, uri.constData())) {
        while (mpd_entity* entity = mpd_recv_entity(connection)) {
            song = song || mpd_entity_get_type(entity) == MPD_ENTITY_TYPE_SONG;
            mpd_entity_free(entity);
        }
    }
    if (mpd_response_finish(connection))
        return !mustBeSong || song ? Known::Yes : Known::No;
    if (isMissing(connection)) {
        mpd_connection_clear_error(connection);
        return Known::No;
    }
    reportAndClear(connection, QStringLiteral("lsinfo %1").arg(QString::fromUtf8(uri)));
    return Known::Error;
}

// Waits with "idle update" for the job to end. MPD remembers events that happened while the
// client was not idling, so checking the status before each idle misses nothing. The wait is
// bounded by polling the socket instead of blocking in idle without a timeout.
bool SXMpdLibrary::waitForUpdate(mpd_connection* connection, unsigned job) const {
    const QDeadlineTimer deadline(kUpdateWaitMs);
    for (;;) {
        mpd_status* status = mpd_run_status(connection);
        if (!status) {
            reportAndClear(connection, QStringLiteral("status"));
            return false;
        }
        const unsigned running = mpd_status_get_update_id(status);
        mpd_status_free(status);
        if (running == 0 || running > job)
            return true;
        if (!mpd_send_idle_mask(connection, MPD_IDLE_UPDATE)) {
            reportAndClear(connection, QStringLiteral("idle"));
            return false;
        }
        pollfd socket{mpd_connection_get_fd(connection), POLLIN, 0};
        if (::poll(&socket, 1, int(deadline.remainingTime())) <= 0) {
            mpd_run_noidle(connection);
            SXLog::line(QStringLiteral("MPD did not finish updating in time"));
            return false;
        }
        if (mpd_recv_idle(connection, false) == 0 &&
            mpd_connection_get_error(connection) != MPD_ERROR_SUCCESS) {
            reportAndClear(connection, QStringLiteral("idle"));
            return false;
        }
    }
}

bool SXMpdLibrary::playlistHolds(mpd_connection* connection, const QByteArray& playlist,
                                 const QByteArray& uri) const {
    bool holds = false;
    if (mpd_send_list_playlist(connection, playlist.constData())) {
        while (mpd_pair* pair = mpd_recv_pair_named(connection, "file")) {
            holds = holds || uri == pair->value;
            mpd_return_pair(connection, pair);
        }
    }
    if (!mpd_response_finish(connection)) {
        // A playlist that does not exist yet holds nothing; MPD creates it on the first add.
        if (!isMissing(connection))
            reportAndClear(connection, QStringLiteral("listplaylist"));
        else
            mpd_connection_clear_error(connection);
        return false;
    }
    return holds;
}
