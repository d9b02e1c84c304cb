#include "base/SXSettings.h"
#include "engine/SXMpdLibrary.h"
#include "engine/ScriptBridgeHelper.h"
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

using namespace Qt::StringLiterals;
using Result = SXDeliveryResult;

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
    unsigned m_port = 0;
    QProcess m_mpd;

    Connection connect() const {
        return Connection(mpd_connection_new("127.0.0.1", m_port, 3000), &mpd_connection_free);
    }
    SXMpdLibrary::Server server() const { return {u"127.0.0.1"_s, m_port, m_music}; }
    QString tone(const QString& relative) const {
        const QString path = m_music + u'/' + relative;
        QDir().mkpath(QFileInfo(path).absolutePath());
        return QFile::copy(m_root.filePath(u"tone.mp3"_s), path) ? path : QString();
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
        return mpd_response_finish(c.get()) ? values : QStringList{u"<missing>"_s};
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

private Q_SLOTS:
    void initTestCase() {
        const QString mpd = QStandardPaths::findExecutable(u"mpd"_s);
        if (mpd.isEmpty())
            QSKIP("mpd is not installed");
        QVERIFY(m_root.isValid());
        qunsetenv("MPD_HOST");
        qunsetenv("MPD_PORT");
        m_music = m_root.filePath(u"music"_s);
        QVERIFY(QDir().mkpath(m_music));
        QVERIFY(QDir().mkpath(m_root.filePath(u"playlists"_s)));
        QVERIFY(SonoriaTest::makeTone(m_root.filePath(u"tone.mp3"_s), 1.0));
        m_port = freePort();
        const QString config = m_root.filePath(u"mpd.conf"_s);
        QVERIFY(SonoriaTest::writeFile(
            config, QStringLiteral("music_directory \"%1\"\nplaylist_directory \"%2\"\n"
                                   "db_file \"%3\"\nbind_to_address \"127.0.0.1\"\n"
                                   "bind_to_address \"%4\"\nport \"%5\"\nauto_update \"no\"\n"
                                   "zeroconf_enabled \"no\"\naudio_output {\n type \"null\"\n"
                                   " name \"null\"\n}\n")
                        .arg(m_music, m_root.filePath(u"playlists"_s),
                             m_root.filePath(u"database"_s), m_root.filePath(u"socket"_s))
                        .arg(m_port)
                        .toUtf8()));
        m_mpd.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_mpd.start(mpd, {u"--no-daemon"_s, u"--stderr"_s, config});
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

    // Over the local socket MPD tells its music folder itself; stored playlist names are
    // case-sensitive. Files MPD cannot take are refused with a reason.
    void deliversOnceToTheNamedPlaylistOrOnlyIndexes() {
        const QString first = tone(u"Sonoria/MP3/tone.mp3"_s);
        const QString awkward = tone(u"Sonoria/MP3/it's $(touch pwned); -x Ü.mp3"_s);
        const SXMpdLibrary library(server());
        QCOMPARE(library.deliver(u"Sonoria"_s, first), Result::Added);
        QCOMPARE(library.deliver(u"Sonoria"_s, first), Result::AlreadyListed);
        const SXMpdLibrary::Server local{.host = m_root.filePath(u"socket"_s)};
        QCOMPARE(SXMpdLibrary(local).deliver(u"Sonoria"_s, awkward), Result::Added);
        QCOMPARE(storedPlaylist(u"Sonoria"_s),
                 (QStringList{u"Sonoria/MP3/tone.mp3"_s,
                              u"Sonoria/MP3/it's $(touch pwned); -x Ü.mp3"_s}));
        QCOMPARE(library.deliver(u"sonoria"_s, first), Result::Added);
        QCOMPARE(storedPlaylist(u"sonoria"_s), QStringList{u"Sonoria/MP3/tone.mp3"_s});
        QCOMPARE(storedPlaylist(u"Sonoria"_s).size(), 2);

        // Without a name the file is only indexed.
        const QString single = tone(u"solo/alone.mp3"_s);
        const QStringList playlists = storedPlaylistNames();
        QVERIFY(!inDatabase(u"solo/alone.mp3"_s));
        QCOMPARE(library.deliver(QString(), single), Result::LibraryOnly);
        QVERIFY(inDatabase(u"solo/alone.mp3"_s));
        QCOMPARE(library.deliver(u""_s, single), Result::LibraryOnly);
        QCOMPARE(storedPlaylistNames(), playlists);

        LogCapture log;
        const QString outside = m_root.filePath(u"tone.mp3"_s);
        QCOMPARE(library.deliver(u"Refused"_s, outside), Result::Failed);
        QVERIFY(log.contains(
            u"MPD cannot add %1: it is outside its music folder %2"_s.arg(outside, m_music)));
        const QString notAudio = m_music + u"/notes.mp3"_s;
        QVERIFY(SonoriaTest::writeFile(notAudio, "just text\n"));
        QCOMPARE(library.deliver(u"Refused"_s, notAudio), Result::Failed);
        QVERIFY(log.contains(u"MPD did not index notes.mp3"_s));
        QCOMPARE(storedPlaylist(u"Refused"_s), QStringList{u"<missing>"_s});
        // Over TCP MPD keeps its music folder to itself; without the setting nothing can work.
        SXMpdLibrary::Server unnamed = server();
        unnamed.musicDirectory.clear();
        QCOMPARE(SXMpdLibrary(unnamed).deliver(u"Refused"_s, tone("x/y.mp3")), Result::Failed);
    }

    void settingsAndEnvironmentChooseTheServerOrOnlyLog() {
        SXSettings::setValue(SXSettingsKey::LibraryBackend, u"mpd"_s);
        SXSettings::setValue(SXSettingsKey::MpdHost, u"127.0.0.1"_s);
        SXSettings::setValue(SXSettingsKey::MpdPort, int(m_port));
        SXSettings::setValue(SXSettingsKey::MpdMusicDirectory, m_music);
        const QString file = tone(u"settings/chosen.mp3"_s);
        ScriptBridgeHelper::syncMusicLibrary(u"FromSettings"_s, file);
        QCOMPARE(storedPlaylist(u"FromSettings"_s), QStringList{u"settings/chosen.mp3"_s});

        // The environment wins over the settings, as for every MPD client.
        SXSettings::setValue(SXSettingsKey::MpdPort, int(freePort()));
        qputenv("MPD_HOST", "127.0.0.1");
        qputenv("MPD_PORT", QByteArray::number(m_port));
        ScriptBridgeHelper::syncMusicLibrary(u"FromEnvironment"_s, file);
        qunsetenv("MPD_HOST");
        qunsetenv("MPD_PORT");
        QCOMPARE(storedPlaylist(u"FromEnvironment"_s), QStringList{u"settings/chosen.mp3"_s});

        // A server nobody answers at is only logged, named directly or by the settings (whose
        // port nobody listens on now).
        LogCapture log;
        SXMpdLibrary::Server nobody = server();
        nobody.port = freePort();
        QCOMPARE(SXMpdLibrary(nobody).deliver(u"Lost"_s, file), Result::LibraryUnreachable);
        ScriptBridgeHelper::syncMusicLibrary(u"Lost"_s, file);
        QCOMPARE(log.count(u"could not find iTunes library"_s), 2);
        QVERIFY(!storedPlaylistNames().contains(u"Lost"_s));
    }
};

SONORIA_TEST_MAIN(TestMpdLibrary)
#include "tst_mpdlibrary.moc"
