#include "Convert/SXMpdLibrary.h"
#include "Convert/ScriptBridgeHelper.h"
#include "Shared/SXSettings.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <mpd/client.h>

#include <csignal>
#include <functional>
#include <memory>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
using Connection = std::unique_ptr<mpd_connection, decltype(&mpd_connection_free)>;

// A port nobody listens on at the moment of asking.
unsigned freePort() {
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof(address);
    ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof(address));
    ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
    ::close(fd);
    return ntohs(address.sin_port);
}
} // namespace

class TestMpdLibrary : public QObject {
    Q_OBJECT

    QTemporaryDir m_root;
    QString m_music;
    QString m_socket;
    unsigned m_port = 0;
    QProcess m_mpd;

    Connection connect() const {
        return Connection(mpd_connection_new("127.0.0.1", m_port, 3000), &mpd_connection_free);
    }

    SXMpdLibrary::Server server() const {
        SXMpdLibrary::Server server;
        server.host = QStringLiteral("127.0.0.1");
        server.port = m_port;
        server.musicDirectory = m_music;
        return server;
    }

    QString tone(const QString& relative) const {
        const QString path = m_music + QLatin1Char('/') + relative;
        QDir().mkpath(QFileInfo(path).absolutePath());
        return QFile::copy(m_root.filePath(QStringLiteral("tone.mp3")), path) ? path : QString();
    }

    // Values named `key` in MPD's answer to what `send` asks, over a connection of the test's
    // own; {"<missing>"} when MPD refuses the request.
    QStringList ask(const std::function<bool(mpd_connection*)>& send, const char* key) const {
        Connection c = connect();
        QStringList values;
        if (send(c.get())) {
            while (mpd_pair* pair = mpd_recv_pair_named(c.get(), key)) {
                values << QString::fromUtf8(pair->value);
                mpd_return_pair(c.get(), pair);
            }
        }
        return mpd_response_finish(c.get()) ? values : QStringList{QStringLiteral("<missing>")};
    }
    QStringList storedPlaylist(const QString& name) const {
        const QByteArray utf8 = name.toUtf8();
        return ask([&](mpd_connection* c) { return mpd_send_list_playlist(c, utf8.constData()); },
                   "file");
    }
    QStringList storedPlaylistNames() const { return ask(mpd_send_list_playlists, "playlist"); }
    bool inDatabase(const QString& uri) const {
        const QByteArray utf8 = uri.toUtf8();
        return ask([&](mpd_connection* c) { return mpd_send_list_meta(c, utf8.constData()); },
                   "file") == QStringList{uri};
    }

    bool writeConfig(const QString& path) {
        return SonoriaTest::writeFile(
            path, QStringLiteral("music_directory \"%1\"\nplaylist_directory \"%2\"\n"
                                 "db_file \"%3\"\nbind_to_address \"127.0.0.1\"\n"
                                 "bind_to_address \"%4\"\nport \"%5\"\nauto_update \"no\"\n"
                                 "zeroconf_enabled \"no\"\naudio_output {\n type \"null\"\n"
                                 " name \"null\"\n}\n")
                      .arg(m_music, m_root.filePath(QStringLiteral("playlists")),
                           m_root.filePath(QStringLiteral("database")), m_socket)
                      .arg(m_port)
                      .toUtf8());
    }

private Q_SLOTS:
    void initTestCase() {
        const QString mpd = QStandardPaths::findExecutable(QStringLiteral("mpd"));
        if (mpd.isEmpty())
            QSKIP("mpd is not installed");
        QVERIFY(m_root.isValid());
        qunsetenv("MPD_HOST");
        qunsetenv("MPD_PORT");
        m_music = m_root.filePath(QStringLiteral("music"));
        m_socket = m_root.filePath(QStringLiteral("socket"));
        QVERIFY(QDir().mkpath(m_music));
        QVERIFY(QDir().mkpath(m_root.filePath(QStringLiteral("playlists"))));
        QVERIFY(SonoriaTest::makeTone(m_root.filePath(QStringLiteral("tone.mp3")), 1.0));

        m_port = freePort();
        const QString config = m_root.filePath(QStringLiteral("mpd.conf"));
        QVERIFY(writeConfig(config));
        m_mpd.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_mpd.start(mpd, {QStringLiteral("--no-daemon"), QStringLiteral("--stderr"), config});
        QVERIFY(m_mpd.waitForStarted());
        const QDeadlineTimer deadline(15000);
        while (!deadline.hasExpired() && m_mpd.state() == QProcess::Running) {
            Connection c = connect();
            if (c && mpd_connection_get_error(c.get()) == MPD_ERROR_SUCCESS)
                return;
            QThread::msleep(50);
        }
        QFAIL("mpd did not accept connections");
    }

    void cleanupTestCase() {
        if (m_mpd.state() == QProcess::NotRunning)
            return;
        ::kill(pid_t(m_mpd.processId()), SIGTERM);
        if (!m_mpd.waitForFinished(10000)) {
            m_mpd.kill();
            m_mpd.waitForFinished();
        }
    }

    void namedPlaylistGetsTheFileOnce() {
        const QString first = tone(QStringLiteral("Sonoria/MP3/tone.mp3"));
        const QString awkward = tone(QStringLiteral("Sonoria/MP3/it's $(touch pwned); -x Ü.mp3"));
        const SXMpdLibrary library(server());
        QCOMPARE(library.deliver(QStringLiteral("Sonoria"), first), SXDeliveryResult::Added);
        QCOMPARE(library.deliver(QStringLiteral("Sonoria"), first),
                 SXDeliveryResult::AlreadyListed);
        QCOMPARE(library.deliver(QStringLiteral("Sonoria"), awkward), SXDeliveryResult::Added);
        QCOMPARE(storedPlaylist(QStringLiteral("Sonoria")),
                 (QStringList{QStringLiteral("Sonoria/MP3/tone.mp3"),
                              QStringLiteral("Sonoria/MP3/it's $(touch pwned); -x Ü.mp3")}));
        // Stored playlist names are case-sensitive: a second playlist, the first unchanged.
        QCOMPARE(library.deliver(QStringLiteral("sonoria"), first), SXDeliveryResult::Added);
        QCOMPARE(storedPlaylist(QStringLiteral("sonoria")),
                 QStringList{QStringLiteral("Sonoria/MP3/tone.mp3")});
        QCOMPARE(storedPlaylist(QStringLiteral("Sonoria")).size(), 2);
    }

    void emptyNameOnlyIndexes() {
        const QString file = tone(QStringLiteral("solo/alone.mp3"));
        const QStringList before = storedPlaylistNames();
        QVERIFY(!inDatabase(QStringLiteral("solo/alone.mp3")));
        const SXMpdLibrary library(server());
        QCOMPARE(library.deliver(QString(), file), SXDeliveryResult::LibraryOnly);
        QVERIFY(inDatabase(QStringLiteral("solo/alone.mp3")));
        QCOMPARE(library.deliver(QStringLiteral(""), file), SXDeliveryResult::LibraryOnly);
        QCOMPARE(storedPlaylistNames(), before);
    }

    void filesMpdCannotTakeAreRefusedWithAReason() {
        LogCapture log;
        const SXMpdLibrary library(server());
        const QString outside = m_root.filePath(QStringLiteral("tone.mp3"));
        QCOMPARE(library.deliver(QStringLiteral("Refused"), outside), SXDeliveryResult::Failed);
        QVERIFY(log.contains(QStringLiteral("MPD cannot add %1: it is outside its music folder %2")
                                 .arg(outside, m_music)));

        const QString notAudio = m_music + QStringLiteral("/notes.mp3");
        QVERIFY(SonoriaTest::writeFile(notAudio, "just text\n"));
        QCOMPARE(library.deliver(QStringLiteral("Refused"), notAudio), SXDeliveryResult::Failed);
        QVERIFY2(log.contains(QStringLiteral("MPD did not index notes.mp3")),
                 qPrintable(log.lines().join(QLatin1Char('\n'))));
        QCOMPARE(storedPlaylist(QStringLiteral("Refused")),
                 QStringList{QStringLiteral("<missing>")});

        // Over TCP MPD keeps its music folder to itself; without the setting nothing can work.
        SXMpdLibrary::Server unnamed = server();
        unnamed.musicDirectory.clear();
        QCOMPARE(SXMpdLibrary(unnamed).deliver(QStringLiteral("Refused"), tone("x/y.mp3")),
                 SXDeliveryResult::Failed);
    }

    void localSocketRevealsTheMusicFolder() {
        SXMpdLibrary::Server local;
        local.host = m_socket;
        const QString file = tone(QStringLiteral("local/socket.mp3"));
        QCOMPARE(SXMpdLibrary(local).deliver(QStringLiteral("Local"), file),
                 SXDeliveryResult::Added);
        QCOMPARE(storedPlaylist(QStringLiteral("Local")),
                 QStringList{QStringLiteral("local/socket.mp3")});
    }

    void settingsAndEnvironmentChooseTheServer() {
        SXSettings::setValue(SXSettingsKey::LibraryBackend, QStringLiteral("mpd"));
        SXSettings::setValue(SXSettingsKey::MpdHost, QStringLiteral("127.0.0.1"));
        SXSettings::setValue(SXSettingsKey::MpdPort, m_port);
        SXSettings::setValue(SXSettingsKey::MpdMusicDirectory, m_music);
        const QString file = tone(QStringLiteral("settings/chosen.mp3"));
        ScriptBridgeHelper::syncItunesLibrary(QStringLiteral("FromSettings"), file);
        QCOMPARE(storedPlaylist(QStringLiteral("FromSettings")),
                 QStringList{QStringLiteral("settings/chosen.mp3")});

        // The environment wins over the settings, as for every MPD client.
        SXSettings::setValue(SXSettingsKey::MpdPort, int(freePort()));
        qputenv("MPD_HOST", "127.0.0.1");
        qputenv("MPD_PORT", QByteArray::number(m_port));
        const SXMpdLibrary::Server fromEnvironment = SXMpdLibrary::serverFromSettings();
        ScriptBridgeHelper::syncItunesLibrary(QStringLiteral("FromEnvironment"), file);
        qunsetenv("MPD_HOST");
        qunsetenv("MPD_PORT");
        QCOMPARE(fromEnvironment.musicDirectory, m_music);
        QCOMPARE(storedPlaylist(QStringLiteral("FromEnvironment")),
                 QStringList{QStringLiteral("settings/chosen.mp3")});

        // Nothing set at all: the well-known default.
        for (const QString& key : {SXSettingsKey::MpdHost, SXSettingsKey::MpdPort})
            SXSettings::removeKey(key);
        const SXMpdLibrary::Server defaults = SXMpdLibrary::serverFromSettings();
        QCOMPARE(defaults.host, QStringLiteral("localhost"));
        QCOMPARE(defaults.port, 6600u);
    }

    void unreachableServerIsLoggedOnly() {
        LogCapture log;
        SXMpdLibrary::Server nobody = server();
        nobody.port = freePort();
        const QString file = tone(QStringLiteral("lost/never.mp3"));
        QCOMPARE(SXMpdLibrary(nobody).deliver(QStringLiteral("Lost"), file),
                 SXDeliveryResult::LibraryUnreachable);
        QCOMPARE(log.count(QStringLiteral("could not find iTunes library")), 1);

        SXSettings::setValue(SXSettingsKey::LibraryBackend, QStringLiteral("mpd"));
        SXSettings::setValue(SXSettingsKey::MpdHost, QStringLiteral("127.0.0.1"));
        SXSettings::setValue(SXSettingsKey::MpdPort, int(nobody.port));
        ScriptBridgeHelper::syncItunesLibrary(QStringLiteral("Lost"), file);
        QCOMPARE(log.count(QStringLiteral("could not find iTunes library")), 2);
        QVERIFY(!storedPlaylistNames().contains(QStringLiteral("Lost")));
    }
};

SONORIA_TEST_MAIN(TestMpdLibrary)
#include "tst_mpdlibrary.moc"
