#include "base/SXInstallation.h"
#include "engine/SXLibraryScript.h"
#include "engine/SXPlaylistFileLibrary.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using SonoriaTest::readFile;
using SonoriaTest::writeFile;
using Result = SXDeliveryResult;

namespace {
QStringList entriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

// The shipped script, as the conversion runs it, with the given music folder.
int runScript(const QString& file, const QString& music) {
    const QString script = SXInstallation::pathForResource(u"sync-music-library"_s, u"sh"_s);
    return SXLibraryScript::runScript(script, file, music);
}
} // namespace

class TestLibraryDelivery : public QObject {
    Q_OBJECT

    QTemporaryDir m_root;
    QString m_tone; // a tagged two-second tone, copied wherever a test needs a file
    QString m_music;
    QString m_outside;

    QString place(const QString& folder, const QString& name) {
        const QString path = folder + u'/' + name;
        QDir().mkpath(QFileInfo(path).absolutePath());
        return QFile::copy(m_tone, path) ? path : QString();
    }
    QString links() const { return m_music + u"/Sonoria/Library"_s; }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_root.isValid());
        // Any command that a name smuggled in would run here, where the awkward-name test looks.
        QVERIFY(QDir::setCurrent(m_root.path()));
        m_tone = m_root.filePath(u"source/tone.mp3"_s);
        QVERIFY(QDir().mkpath(QFileInfo(m_tone).absolutePath()));
        QVERIFY(SonoriaTest::makeTone(m_tone, 2.0, {u"-metadata"_s, u"title=Morning Tone"_s}));
    }

    void init() {
        static int round = 0;
        ++round;
        m_music = m_root.filePath(u"music%1"_s.arg(round));
        m_outside = m_root.filePath(u"elsewhere%1"_s.arg(round));
        QVERIFY(QDir().mkpath(m_outside));
    }

    void playlistsGetHeaderTitleAndRelativeEntryOnce() {
        const QString file = place(m_music, u"Sonoria/MP3/tone.mp3"_s);
        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(u"Sonoria"_s, file), Result::Added);
        const QString playlist = m_music + u"/Sonoria.m3u8"_s;
        const QByteArray expected = "#EXTM3U\n#EXTINF:2,Morning Tone\nSonoria/MP3/tone.mp3\n";
        QCOMPARE(readFile(playlist), expected);
        // Delivered again: listed already, the file is left byte for byte as it was.
        QCOMPARE(library.deliver(u"Sonoria"_s, file), Result::AlreadyListed);
        QCOMPARE(readFile(playlist), expected);
        // A file below the music folder needs no link to be in the library.
        QVERIFY(!QFileInfo::exists(links()));
        // Names match case-sensitively: "sonoria" is another playlist.
        QCOMPARE(library.deliver(u"sonoria"_s, file), Result::Added);
        QVERIFY(QFileInfo::exists(m_music + u"/sonoria.m3u8"_s));
        QCOMPARE(readFile(playlist), expected);

        // One written by another program (CRLF line ends, no final line end) is extended, and its
        // entries, absolute or as URLs, are recognised.
        const QString road = m_music + u"/Road.m3u8"_s;
        const QString listedAbsolute = place(m_music, u"old/absolute.mp3"_s);
        const QString listedAsUrl = place(m_outside, u"url song.mp3"_s);
        const QByteArray before = "#EXTM3U\r\n#EXTINF:10,Old\r\n" + listedAbsolute.toUtf8() +
                                  "\r\n" + QUrl::fromLocalFile(listedAsUrl).toEncoded();
        QVERIFY(writeFile(road, before));
        QCOMPARE(library.deliver(u"Road"_s, listedAbsolute), Result::AlreadyListed);
        QCOMPARE(library.deliver(u"Road"_s, listedAsUrl), Result::AlreadyListed);
        QCOMPARE(readFile(road), before);
        QCOMPARE(library.deliver(u"Road"_s, place(m_music, u"new/fresh.mp3"_s)), Result::Added);
        QCOMPARE(readFile(road), before + "\n#EXTINF:2,Morning Tone\nnew/fresh.mp3\n");
    }

    // A file outside the music folder gets one link there (a taken name is skipped, the entry
    // holding it untouched) and an absolute playlist entry. Without a playlist name (null or
    // empty) only the link is made. A missing file fails; a music folder that cannot be made is
    // only logged.
    void fileOutsideTheMusicFolderIsLinkedAndListedAbsolute() {
        const QString file = place(m_outside, u"tone.mp3"_s);
        const QString twin = place(m_outside, u"other/tone.mp3"_s);
        QVERIFY(writeFile(links() + u"/tone 2.mp3"_s, "not ours"));
        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(QString(), file), Result::LibraryOnly);
        QCOMPARE(library.deliver(u""_s, twin), Result::LibraryOnly);
        QCOMPARE(entriesOf(m_music), QStringList{u"Sonoria"_s}); // no playlist
        QCOMPARE(library.deliver(u"Away"_s, file), Result::Added);
        QCOMPARE(library.deliver(u"Away"_s, twin), Result::Added);
        QCOMPARE(library.deliver(u"Away"_s, file), Result::AlreadyListed);
        const QList<QByteArray> lines = readFile(m_music + u"/Away.m3u8"_s).split('\n');
        QCOMPARE(lines.count(file.toUtf8()), 1);
        QCOMPARE(lines.count(twin.toUtf8()), 1);
        QCOMPARE(QFileInfo(links() + u"/tone.mp3"_s).symLinkTarget(), file);
        QCOMPARE(QFileInfo(links() + u"/tone 3.mp3"_s).symLinkTarget(), twin);
        QCOMPARE(readFile(links() + u"/tone 2.mp3"_s), QByteArray("not ours"));
        QCOMPARE(entriesOf(links()).size(), 3);

        QCOMPARE(library.deliver(u"P"_s, m_outside + u"/gone.mp3"_s), Result::Failed);
        QVERIFY(!QFileInfo::exists(library.playlistPath(u"P"_s)));
        QVERIFY(writeFile(m_outside + u"/plain"_s, "a file, not a folder"));
        LogCapture log;
        SXPlaylistFileLibrary blocked(m_outside + u"/plain/Music"_s);
        QCOMPARE(blocked.deliver(u"P"_s, file), Result::LibraryUnreachable);
        QVERIFY(log.contains(u"could not find iTunes library"_s));
    }

    // File and playlist names that a shell would read as quotes, commands, separators or
    // options are listed and linked verbatim, by the library and by the shipped script, and the
    // playlist stays inside the music folder.
    void awkwardNamesAreTakenVerbatimAndRunNothing() {
        const QStringList names{
            u"it's \"quoted\".mp3"_s,      u"$(touch pwned).mp3"_s,   u"a; touch pwned; b.mp3"_s,
            u"`touch pwned`.mp3"_s,        u"-rf leading dash.mp3"_s, u"Ünïcødé 日本 song.mp3"_s,
            u"tab\tand  spaces &|>.mp3"_s,
        };
        const QString name = u"../Mix 'n' $(touch pwned); -x Ü"_s;
        const QString scriptMusic = m_outside + u"/script music"_s;
        SXPlaylistFileLibrary library(m_music);
        QStringList expected;
        for (const QString& fileName : names) {
            const QString inside = place(m_music + u"/In"_s, fileName);
            const QString outside = place(m_outside, fileName);
            QCOMPARE(library.deliver(name, inside), Result::Added);
            QCOMPARE(library.deliver(name, outside), Result::Added);
            expected << u"In/"_s + fileName << outside;
            for (int round = 0; round < 2; ++round)
                QCOMPARE(runScript(outside, scriptMusic), 0);
            const QFileInfo link(scriptMusic + u"/Sonoria/Library/"_s + fileName);
            QVERIFY2(link.isSymLink() && link.symLinkTarget() == outside, qPrintable(fileName));
        }
        const QString playlist = m_music + u"/.._Mix 'n' $(touch pwned); -x Ü.m3u8"_s;
        QCOMPARE(library.playlistPath(name), playlist);
        const QStringList lines = QString::fromUtf8(readFile(playlist)).split(u'\n');
        QCOMPARE(lines.filter(QRegularExpression(u"^[^#]"_s)), expected);
        // A name that starts like a comment is listed so that readers still see the file.
        const QString hashed = place(m_music, u"#hash.mp3"_s);
        QCOMPARE(library.deliver(name, hashed), Result::Added);
        QVERIFY(readFile(playlist).endsWith("\n./#hash.mp3\n"));
        QCOMPARE(library.deliver(name, hashed), Result::AlreadyListed);
        QCOMPARE(entriesOf(links()).size(), names.size());
        QCOMPARE(entriesOf(scriptMusic + u"/Sonoria/Library"_s).size(), names.size());
        // "touch pwned" would have left a file somewhere below the root.
        SONORIA_VERIFY_NONE(
            SonoriaTest::filesBelow(m_root.path()).filter(QRegularExpression(u"(^|/)pwned$"_s)));
    }

    // Threads of this process and another process holding the folder's lock (a second instance,
    // the command-line tool): deliveries wait for the lock and none loses another's entry.
    void concurrentWritersLoseNoEntry() {
        constexpr int kThreads = 6;
        constexpr int kFilesEach = 8;
        QStringList files;
        for (int i = 0; i < kThreads * kFilesEach; ++i)
            files << place(m_music, u"batch/%1.mp3"_s.arg(i));
        const QString held = m_outside + u"/held"_s;
        const QString verdict = m_outside + u"/verdict"_s;
        QProcess holder;
        holder.start(u"flock"_s, {m_music, u"sh"_s, u"-c"_s,
                                  u"touch \"$1\"; sleep 1; if [ -e \"$3\" ]; then echo early; "
                                  "else echo waited; fi > \"$2\""_s,
                                  u"sh"_s, held, verdict, m_music + u"/Busy.m3u8"_s});
        QVERIFY(holder.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(held), 10000);
        std::vector<std::thread> workers;
        for (int t = 0; t < kThreads; ++t) {
            workers.emplace_back([&, t] {
                SXPlaylistFileLibrary library(m_music); // one per conversion, as in the app
                for (int i = 0; i < kFilesEach; ++i)
                    library.deliver(u"Busy"_s, files.at(t * kFilesEach + i));
            });
        }
        for (std::thread& worker : workers)
            worker.join();
        QVERIFY(holder.waitForFinished());
        QCOMPARE(readFile(verdict), QByteArray("waited\n"));
        const QList<QByteArray> lines = readFile(m_music + u"/Busy.m3u8"_s).split('\n');
        QCOMPARE(lines.count("#EXTM3U"), 1);
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(lines.count(u"batch/%1.mp3"_s.arg(i).toUtf8()), 1);
        QCOMPARE(QDir(m_music).entryList(QDir::Files | QDir::Hidden).size(), 1); // no leftovers
    }

    // The script keeps an entry in its way and links nothing for a file below the music folder
    // or a missing one. Without a music folder it reads the desktop's user-dirs.dirs.
    void scriptKeepsEntriesAndFollowsUserDirs() {
        QVERIFY(writeFile(links() + u"/song.mp3"_s, "keep me"));
        const QString file = place(m_outside, u"song.mp3"_s);
        QCOMPARE(runScript(file, m_music), 0);
        QCOMPARE(readFile(links() + u"/song.mp3"_s), QByteArray("keep me"));
        QCOMPARE(QFileInfo(links() + u"/song 2.mp3"_s).symLinkTarget(), file);
        QCOMPARE(runScript(place(m_music, u"Sonoria/MP3/inside.mp3"_s), m_music), 0);
        QVERIFY(runScript(m_outside + u"/missing.mp3"_s, m_music) != 0);
        QCOMPARE(entriesOf(links()).size(), 2);

        const QByteArray savedHome = qgetenv("HOME");
        const QString home = m_root.filePath(u"home"_s);
        QVERIFY(QDir().mkpath(home));
        qputenv("HOME", home.toUtf8());
        const QString dirs = SonoriaTest::configHome() + u"/user-dirs.dirs"_s;
        QVERIFY(writeFile(dirs, "# by the test\nXDG_MUSIC_DIR=\"$HOME/Muziek\"\n"));
        const int relative = runScript(file, QString());
        QVERIFY(writeFile(dirs, "XDG_MUSIC_DIR=\"$HOME/\"\n")); // the desktop's "no music folder"
        const int unset = runScript(file, QString());
        qputenv("HOME", savedHome);
        QCOMPARE(relative, 0);
        QCOMPARE(unset, 0);
        for (const QString& music : {u"Muziek"_s, u"Music"_s})
            QCOMPARE(
                QFileInfo(home + u'/' + music + u"/Sonoria/Library/song.mp3"_s).symLinkTarget(),
                file);
    }
};

SONORIA_TEST_MAIN(TestLibraryDelivery)
#include "tst_librarydelivery.moc"
