#include "Convert/SXLibraryScript.h"
#include "Convert/SXPlaylistFileLibrary.h"
#include "Shared/SXBundle.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <thread>
#include <vector>

// Names that a shell would read as quotes, commands, separators or options.
namespace {
const QStringList kAwkwardNames{
    QStringLiteral("it's \"quoted\".mp3"),      QStringLiteral("$(touch pwned).mp3"),
    QStringLiteral("a; touch pwned; b.mp3"),    QStringLiteral("`touch pwned`.mp3"),
    QStringLiteral("-rf leading dash.mp3"),     QStringLiteral("Ünïcødé 日本 song.mp3"),
    QStringLiteral("tab\tand  spaces &|>.mp3"),
};

using SonoriaTest::readFile;
using SonoriaTest::writeFile;

QStringList entriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}
} // namespace

class TestLibraryDelivery : public QObject {
    Q_OBJECT

    QTemporaryDir m_root;
    QString m_tone; // a tagged two-second tone, copied wherever a test needs a file
    QString m_music;
    QString m_outside;

    QString place(const QString& folder, const QString& name) {
        const QString path = folder + QLatin1Char('/') + name;
        QDir().mkpath(QFileInfo(path).absolutePath());
        return QFile::copy(m_tone, path) ? path : QString();
    }

    // Nothing may have run a command hidden in a name: "touch pwned" would leave a file.
    void verifyNothingRan() {
        QDirIterator it(m_root.path(), QDir::AllEntries | QDir::Hidden | QDir::System,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            QVERIFY2(it.next().section(QLatin1Char('/'), -1) != QLatin1String("pwned"),
                     qPrintable(it.filePath()));
    }

    // The shipped script, as the conversion runs it, with the test's music folder.
    int runScript(const QString& file, const QString& music) {
        const QString script =
            SXBundle::pathForResource(QStringLiteral("SyncToiTunesLibrary"), QStringLiteral("sh"));
        return SXLibraryScript::runScript(script, file, music);
    }

    // Run without a music folder, the script reads the desktop's user-dirs.dirs.
    void pointUserDirsAt(const QByteArray& musicValue) {
        QVERIFY(writeFile(SonoriaTest::configHome() + QStringLiteral("/user-dirs.dirs"),
                          "# written by the test\nXDG_MUSIC_DIR=\"" + musicValue + "\"\n"));
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_root.isValid());
        // Any command that a name smuggled in would run here, where verifyNothingRan looks.
        QVERIFY(QDir::setCurrent(m_root.path()));
        m_tone = m_root.filePath(QStringLiteral("source/tone.mp3"));
        QDir().mkpath(QFileInfo(m_tone).absolutePath());
        QVERIFY(SonoriaTest::makeTone(
            m_tone, 2.0, {QStringLiteral("-metadata"), QStringLiteral("title=Morning Tone")}));
    }

    void init() {
        static int round = 0;
        ++round;
        m_music = m_root.filePath(QStringLiteral("music%1").arg(round));
        m_outside = m_root.filePath(QStringLiteral("elsewhere%1").arg(round));
        QVERIFY(QDir().mkpath(m_outside));
    }

    void newPlaylistGetsHeaderTitleAndRelativeEntryOnce() {
        const QString file = place(m_music, QStringLiteral("Sonoria/MP3/tone.mp3"));
        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(QStringLiteral("Sonoria"), file), SXDeliveryResult::Added);
        const QString playlist = m_music + QStringLiteral("/Sonoria.m3u8");
        const QByteArray expected = "#EXTM3U\n#EXTINF:2,Morning Tone\nSonoria/MP3/tone.mp3\n";
        QCOMPARE(readFile(playlist), expected);

        // Delivered again: listed already, the file is left byte for byte as it was.
        QCOMPARE(library.deliver(QStringLiteral("Sonoria"), file), SXDeliveryResult::AlreadyListed);
        QCOMPARE(readFile(playlist), expected);
        // A file below the music folder needs no link to be in the library.
        QVERIFY(!QFileInfo::exists(m_music + QStringLiteral("/Sonoria/Library")));

        // Names match case-sensitively: "sonoria" is another playlist.
        QCOMPARE(library.deliver(QStringLiteral("sonoria"), file), SXDeliveryResult::Added);
        QVERIFY(QFileInfo::exists(m_music + QStringLiteral("/sonoria.m3u8")));
        QCOMPARE(readFile(playlist), expected);
    }

    void existingPlaylistIsExtendedAndItsEntriesRecognised() {
        const QString playlist = m_music + QStringLiteral("/Road.m3u8");
        const QString listedAbsolute = place(m_music, QStringLiteral("old/absolute.mp3"));
        const QString listedAsUrl = place(m_outside, QStringLiteral("url song.mp3"));
        // Written by another program: CRLF line ends and no final line end.
        const QByteArray before = "#EXTM3U\r\n#EXTINF:10,Old\r\n" + listedAbsolute.toUtf8() +
                                  "\r\n" + QUrl::fromLocalFile(listedAsUrl).toEncoded();
        QVERIFY(writeFile(playlist, before));

        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(QStringLiteral("Road"), listedAbsolute),
                 SXDeliveryResult::AlreadyListed);
        QCOMPARE(library.deliver(QStringLiteral("Road"), listedAsUrl),
                 SXDeliveryResult::AlreadyListed);
        QCOMPARE(readFile(playlist), before);

        const QString fresh = place(m_music, QStringLiteral("new/fresh.mp3"));
        QCOMPARE(library.deliver(QStringLiteral("Road"), fresh), SXDeliveryResult::Added);
        QCOMPARE(readFile(playlist), before + "\n#EXTINF:2,Morning Tone\nnew/fresh.mp3\n");
    }

    void fileOutsideTheMusicFolderIsListedAbsoluteAndLinked() {
        const QString file = place(m_outside, QStringLiteral("tone.mp3"));
        const QString twin =
            place(m_outside + QStringLiteral("/other"), QStringLiteral("tone.mp3"));
        const QString library = m_music + QStringLiteral("/Sonoria/Library");
        QVERIFY(writeFile(library + QStringLiteral("/tone 2.mp3"), "not ours"));

        SXPlaylistFileLibrary backend(m_music);
        QCOMPARE(backend.deliver(QStringLiteral("Away"), file), SXDeliveryResult::Added);
        QCOMPARE(backend.deliver(QStringLiteral("Away"), twin), SXDeliveryResult::Added);
        QCOMPARE(backend.deliver(QStringLiteral("Away"), file), SXDeliveryResult::AlreadyListed);

        const QList<QByteArray> lines =
            readFile(m_music + QStringLiteral("/Away.m3u8")).split('\n');
        QCOMPARE(lines.count(file.toUtf8()), 1);
        QCOMPARE(lines.count(twin.toUtf8()), 1);
        // One link per file, a taken name skipped and the entry that held it untouched.
        QCOMPARE(QFileInfo(library + QStringLiteral("/tone.mp3")).symLinkTarget(), file);
        QCOMPARE(QFileInfo(library + QStringLiteral("/tone 3.mp3")).symLinkTarget(), twin);
        QCOMPARE(readFile(library + QStringLiteral("/tone 2.mp3")), QByteArray("not ours"));
        QCOMPARE(entriesOf(library).size(), 3);
    }

    void emptyOrNullNameDeliversToTheLibraryAlone() {
        const QString file = place(m_outside, QStringLiteral("alone.mp3"));
        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(QString(), file), SXDeliveryResult::LibraryOnly);
        QCOMPARE(library.deliver(QStringLiteral(""), file), SXDeliveryResult::LibraryOnly);
        QVERIFY(QDir(m_music).entryList({QStringLiteral("*.m3u8")}, QDir::Files).isEmpty());
        QCOMPARE(entriesOf(m_music + QStringLiteral("/Sonoria/Library")),
                 QStringList{QStringLiteral("alone.mp3")});
    }

    void awkwardNamesAreListedVerbatimAndRunNothing() {
        SXPlaylistFileLibrary library(m_music);
        const QString name = QStringLiteral("Mix 'n' $(touch pwned); -x Ü");
        QStringList expected;
        for (const QString& fileName : kAwkwardNames) {
            const QString inside = place(m_music + QStringLiteral("/In"), fileName);
            const QString outside = place(m_outside, fileName);
            QCOMPARE(library.deliver(name, inside), SXDeliveryResult::Added);
            QCOMPARE(library.deliver(name, outside), SXDeliveryResult::Added);
            expected << QStringLiteral("In/") + fileName << outside;
        }
        const QString playlist = m_music + QLatin1Char('/') + name + QStringLiteral(".m3u8");
        QCOMPARE(library.playlistPath(name), playlist);
        QStringList listed;
        const QStringList lines = QString::fromUtf8(readFile(playlist)).split(QLatin1Char('\n'));
        for (const QString& line : lines)
            if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
                listed << line;
        QCOMPARE(listed, expected);
        QCOMPARE(entriesOf(m_music + QStringLiteral("/Sonoria/Library")).size(),
                 kAwkwardNames.size());
        verifyNothingRan();
    }

    void playlistNamesStayInsideTheMusicFolder() {
        const QString file = place(m_music, QStringLiteral("a.mp3"));
        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(QStringLiteral("../escape/x"), file), SXDeliveryResult::Added);
        QCOMPARE(QFileInfo(library.playlistPath(QStringLiteral("../escape/x"))).absolutePath(),
                 m_music);
        QVERIFY(QFileInfo::exists(m_music + QStringLiteral("/.._escape_x.m3u8")));
        QVERIFY(!QFileInfo::exists(m_root.filePath(QStringLiteral("escape"))));
    }

    void concurrentDeliveriesLoseNoEntry() {
        constexpr int kThreads = 6;
        constexpr int kFilesEach = 8;
        QStringList files;
        for (int i = 0; i < kThreads * kFilesEach; ++i)
            files << place(m_music, QStringLiteral("batch/%1.mp3").arg(i));
        std::vector<std::thread> workers;
        for (int t = 0; t < kThreads; ++t) {
            workers.emplace_back([&, t] {
                SXPlaylistFileLibrary library(m_music); // one per conversion, as in the app
                for (int i = 0; i < kFilesEach; ++i)
                    library.deliver(QStringLiteral("Busy"), files.at(t * kFilesEach + i));
            });
        }
        for (std::thread& worker : workers)
            worker.join();
        const QList<QByteArray> lines =
            readFile(m_music + QStringLiteral("/Busy.m3u8")).split('\n');
        QCOMPARE(lines.count("#EXTM3U"), 1);
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(lines.count(QStringLiteral("batch/%1.mp3").arg(i).toUtf8()), 1);
        QCOMPARE(QDir(m_music).entryList(QDir::Files | QDir::Hidden).size(), 1); // no leftovers
    }

    // Another process (a second instance, the command-line tool) holding the folder's lock
    // makes a delivery wait instead of writing underneath it.
    void deliveryWaitsForAnotherProcessHoldingTheLock() {
        const QString file = place(m_music, QStringLiteral("late.mp3"));
        const QString held = m_outside + QStringLiteral("/held");
        const QString verdict = m_outside + QStringLiteral("/verdict");
        QProcess holder;
        holder.start(QStringLiteral("flock"),
                     {m_music, QStringLiteral("sh"), QStringLiteral("-c"),
                      QStringLiteral("touch \"$1\"; sleep 1; "
                                     "if [ -e \"$3\" ]; then echo early; else echo waited; fi > "
                                     "\"$2\""),
                      QStringLiteral("sh"), held, verdict, m_music + QStringLiteral("/Late.m3u8")});
        QVERIFY(holder.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(held), 10000);
        QCOMPARE(SXPlaylistFileLibrary(m_music).deliver(QStringLiteral("Late"), file),
                 SXDeliveryResult::Added);
        QVERIFY(holder.waitForFinished());
        QCOMPARE(readFile(verdict), QByteArray("waited\n"));
    }

    void unusableMusicFolderOrMissingFileIsLoggedOnly() {
        const QString file = place(m_outside, QStringLiteral("x.mp3"));
        QVERIFY(writeFile(m_outside + QStringLiteral("/plain"), "a file, not a folder"));
        LogCapture log;
        SXPlaylistFileLibrary blocked(m_outside + QStringLiteral("/plain/Music"));
        QCOMPARE(blocked.deliver(QStringLiteral("P"), file), SXDeliveryResult::LibraryUnreachable);
        QVERIFY(log.contains(QStringLiteral("could not find iTunes library")));

        SXPlaylistFileLibrary library(m_music);
        QCOMPARE(library.deliver(QStringLiteral("P"), m_outside + QStringLiteral("/gone.mp3")),
                 SXDeliveryResult::Failed);
        QVERIFY(!QFileInfo::exists(library.playlistPath(QStringLiteral("P"))));
    }

    void scriptLinksOutsideFilesOnceWithoutRunningNames() {
        for (const QString& fileName : kAwkwardNames) {
            const QString file = place(m_outside, fileName);
            QCOMPARE(runScript(file, m_music), 0);
            QCOMPARE(runScript(file, m_music), 0);
            const QFileInfo link(m_music + QStringLiteral("/Sonoria/Library/") + fileName);
            QVERIFY2(link.isSymLink() && link.symLinkTarget() == file, qPrintable(fileName));
        }
        QCOMPARE(entriesOf(m_music + QStringLiteral("/Sonoria/Library")).size(),
                 kAwkwardNames.size());
        verifyNothingRan();
    }

    void scriptKeepsExistingEntriesAndMusicFolderFiles() {
        const QString library = m_music + QStringLiteral("/Sonoria/Library");
        QVERIFY(writeFile(library + QStringLiteral("/song.mp3"), "keep me"));
        const QString file = place(m_outside, QStringLiteral("song.mp3"));
        QCOMPARE(runScript(file, m_music), 0);
        QCOMPARE(readFile(library + QStringLiteral("/song.mp3")), QByteArray("keep me"));
        QCOMPARE(QFileInfo(library + QStringLiteral("/song 2.mp3")).symLinkTarget(), file);

        const QString inside = place(m_music, QStringLiteral("Sonoria/MP3/inside.mp3"));
        QCOMPARE(runScript(inside, m_music), 0);
        QCOMPARE(entriesOf(library).size(), 2);

        QVERIFY(runScript(m_outside + QStringLiteral("/missing.mp3"), m_music) != 0);
        QCOMPARE(entriesOf(library).size(), 2);
    }

    void scriptFollowsUserDirsWhenNotTold() {
        const QByteArray savedHome = qgetenv("HOME");
        const QString home = m_root.filePath(QStringLiteral("home"));
        QVERIFY(QDir().mkpath(home));
        qputenv("HOME", home.toUtf8());
        const QString file = place(m_outside, QStringLiteral("dutch.mp3"));
        pointUserDirsAt("$HOME/Muziek");
        const int relative = runScript(file, QString());
        pointUserDirsAt("$HOME/"); // the desktop's way of saying "no music folder"
        const int unset = runScript(file, QString());
        qputenv("HOME", savedHome);
        QCOMPARE(relative, 0);
        QCOMPARE(unset, 0);
        QCOMPARE(
            QFileInfo(home + QStringLiteral("/Muziek/Sonoria/Library/dutch.mp3")).symLinkTarget(),
            file);
        QCOMPARE(
            QFileInfo(home + QStringLiteral("/Music/Sonoria/Library/dutch.mp3")).symLinkTarget(),
            file);
    }
};

SONORIA_TEST_MAIN(TestLibraryDelivery)
#include "tst_librarydelivery.moc"
