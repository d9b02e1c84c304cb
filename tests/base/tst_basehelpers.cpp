#include "base/FileHelper.h"
#include "base/SXAppIdentity.h"
#include "base/SXCoder.h"
#include "base/SXFileLocalManager.h"
#include "base/SXFolderScan.h"
#include "base/SXSettings.h"
#include "base/SXSystemInfo.h"
#include "base/SXTimeText.h"
#include "support/TemporaryHome.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

using SonoriaTest::readFile;
using SonoriaTest::writeFile;

// The base layer's helpers: versions, clocks, file names, folder scans, the settings store, and
// the file helpers and the user's standard folders, on real temporary folders.
class BaseHelpersTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void versions() {
        QCOMPARE(SXAppIdentity::normalizedVersion("3"), QStringLiteral("3.0.0"));
        QCOMPARE(SXAppIdentity::normalizedVersion("2.1"), QStringLiteral("2.1.0"));
        QCOMPARE(SXAppIdentity::normalizedVersion("1.2.3.4"), QStringLiteral("1.2.3"));
        // The running kernel publishes its release under /proc too; both readings must agree.
        QFile osRelease("/proc/sys/kernel/osrelease");
        QVERIFY(osRelease.open(QIODevice::ReadOnly));
        qint64 major = 0, minor = 0, bugFix = 0;
        QVERIFY(SXSystemInfo::kernelVersion(&major, &minor, &bugFix));
        QVERIFY(osRelease.readAll().startsWith(QString("%1.%2.").arg(major).arg(minor).toLatin1()));
        QCOMPARE(SXSystemInfo::systemVersionString(),
                 QString("%1.%2.%3").arg(major).arg(minor).arg(bugFix));
        QCOMPARE(SXSystemInfo::computerModelFromFile("/nonexistent/product_name"),
                 QStringLiteral("PC"));
    }

    void kernelRelease_data() {
        QTest::addColumn<QString>("release");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QList<qint64>>("numbers"); // -1: left as the caller had it
        QTest::newRow("distribution") << "6.1.0-18-amd64" << true << QList<qint64>{6, 1, 0};
        QTest::newRow("suffixed patch") << "5.15.153.1-wsl" << true << QList<qint64>{5, 15, 153};
        QTest::newRow("no patch") << "6.8-rc3" << true << QList<qint64>{6, 8, 0};
        QTest::newRow("bad minor") << "6.x.2" << false << QList<qint64>{6, -1, -1};
        QTest::newRow("bad major") << "v6.1.0" << false << QList<qint64>{-1, -1, -1};
    }
    void kernelRelease() {
        QFETCH(QString, release);
        QFETCH(bool, ok);
        QFETCH(QList<qint64>, numbers);
        QList<qint64> got{-1, -1, -1};
        QCOMPARE(SXSystemInfo::versionNumbersFromRelease(release, &got[0], &got[1], &got[2]), ok);
        QCOMPARE(got, numbers);
    }

    // A length as a clock and as what remains of a run (empty: not asked). Written clocks must
    // read back as the truncated seconds they came from.
    void timeTexts_data() {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("clock");
        QTest::addColumn<QString>("remaining");
        const auto row = [](const char* name, double seconds, const char* clock,
                            const char* remaining = nullptr) {
            QTest::newRow(name) << seconds << QString(clock) << QString(remaining);
        };
        row("zero", 0.0, "00:00:00");
        row("truncated", 59.99, "00:00:59");
        row("minutes", 205.9, "00:03:25");
        row("hours keep all digits", 360000.0, "100:00:00");
        row("saturates at 32 bits", 1e12, "596523:14:07");
        row("plural looks at raw", 1.4, "00:00:01", "1 seconds remaining");
        row("under one", 0.7, "00:00:00", "1 second remaining");
        row("rounds to sixty", 59.6, "00:00:59", "60 seconds remaining");
        row("one minute", 60.0, "00:01:00", "1 minite 0 second remaining");
        row("minite to 119", 119.9, "00:01:59", "1 minite 59 seconds remaining");
        row("minites from 120", 121.0, "00:02:01", "2 minites 1 second remaining");
        row("one hour", 3600.0, "01:00:00", "1 hour 0 minite remaining");
        row("hour to 7199", 7199.0, "01:59:59", "1 hour 59 minites remaining");
        row("hours", 7325.0, "02:02:05", "2 hours 2 minites remaining");
        row("not a number", std::numeric_limits<double>::quiet_NaN(), "00:00:00",
            "0 hour 0 minite remaining");
    }
    void timeTexts() {
        QFETCH(double, seconds);
        QFETCH(QString, clock);
        QFETCH(QString, remaining);
        QCOMPARE(SXTimeText::clockString(seconds), clock);
        const double back = SXTimeText::secondsOfClockString(clock);
        QCOMPARE(back, std::isnan(seconds) ? 0.0 : std::floor(qMin(seconds, 2147483647.0)));
        if (!remaining.isNull())
            QCOMPARE(SXTimeText::remainingText(seconds), remaining);
    }

    void clockStringsAreRead() {
        // Reading: each piece from its start, strtod-like, at most three pieces.
        for (const auto& [text, seconds] : {std::pair{"00:01:23.45", 83.45},
                                            {"abc", 0.0},
                                            {"", 0.0},
                                            {"2", 7200.0},
                                            {"00:00:05:99", 5.0},
                                            {"1h:2m:3.5s", 3723.5},
                                            {" +1: -1:.5", 3540.5},
                                            {"inf:nan:1", 1.0}})
            QVERIFY2(SXTimeText::secondsOfClockString(text) == seconds, text);
    }

    void uniquePathNeverNamesAnExistingEntryAndFoldersAreMadeSure() {
        QTemporaryDir dir;
        const QString song = dir.filePath("song.mp3");
        QCOMPARE(FileHelper::unusedPath(song, "mp3"), song);
        QCOMPARE(FileHelper::unusedPath(dir.filePath("song"), "mp3"), song);
        QCOMPARE(FileHelper::unusedPath(dir.filePath("song.MP3"), "mp3"),
                 dir.filePath("song.MP3.mp3"));
        QVERIFY(writeFile(song, {}));
        QVERIFY(writeFile(dir.filePath("song(1).mp3"), {}));
        QCOMPARE(FileHelper::unusedPath(song, "mp3"), dir.filePath("song(2).mp3"));
        // A folder and a dangling link are taken names too.
        QVERIFY(QDir(dir.path()).mkdir("song(2).mp3"));
        QVERIFY(QFile::link(dir.filePath("nowhere"), dir.filePath("song(3).mp3")));
        QCOMPARE(FileHelper::unusedPath(dir.filePath("song(1).mp3"), "mp3"),
                 dir.filePath("song(4).mp3"));
        // The counter belongs to the file name: a folder called "Album(1)" stays the folder.
        QVERIFY(writeFile(dir.filePath("Album(1)/take.wav"), {}));
        QCOMPARE(FileHelper::unusedPath(dir.filePath("Album(1)/take"), "wav"),
                 dir.filePath("Album(1)/take(1).wav"));
        // Names another writer of this program has claimed count as taken too.
        const auto claimed = [&](const QString& p) { return p == dir.filePath("song(4).mp3"); };
        QCOMPARE(FileHelper::unusedPath(song, "mp3", claimed), dir.filePath("song(5).mp3"));

        // A folder is made with its parents; a file in the way is not taken for one.
        QVERIFY(!FileHelper::makeSureFolderExists(QString()));
        QVERIFY(FileHelper::makeSureFolderExists(dir.filePath("a/b/c")));
        QVERIFY(QFileInfo(dir.filePath("a/b/c")).isDir());
        QVERIFY(FileHelper::makeSureFolderExists(dir.filePath("a/b/c")));
        QVERIFY(writeFile(dir.filePath("plain"), {}));
        QVERIFY(!FileHelper::makeSureFolderExists(dir.filePath("plain")));
        QVERIFY(!FileHelper::makeSureFolderExists(dir.filePath("plain/below")));
    }

    void scanIsDepthFirstAndSurvivesLinkLoops() {
        QTemporaryDir dir;
        for (const char* name : {"song.mp3", ".hidden.FLAC", "notes.txt", "mp3", "sub/clip.wav",
                                 "sub/deeper/track.Mp3", ".Trash-1000/files/old.mp3", "._song.mp3"})
            QVERIFY(writeFile(dir.filePath(name), {}));
        QVERIFY(QFile::link(dir.filePath("song.mp3"), dir.filePath("alias.mp3")));
        QVERIFY(QFile::link(dir.filePath("gone.mp3"), dir.filePath("dangling.mp3")));
        // A link to an ancestor, to the folder itself and a second way into the same folder.
        QVERIFY(QFile::link(dir.path(), dir.filePath("sub/deeper/up")));
        QVERIFY(QFile::link(dir.filePath("sub"), dir.filePath("sub/self")));
        QVERIFY(QFile::link(dir.filePath("sub"), dir.filePath("twin")));
        // Made in reverse, listed as a file manager shows them: numbers by value, case aside.
        const QStringList natural{"sub/Track 1.flac",   "sub/track 2.flac",   "sub/Track 10.flac",
                                  "sub/track 026.flac", "sub/Track 227.flac", "sub/track 356.flac"};
        for (auto name = natural.crbegin(); name != natural.crend(); ++name)
            QVERIFY(writeFile(dir.filePath(*name), {}));

        // Hidden entries (a trash folder, resource forks) stay out; files come before folders;
        // a file matching two filter entries comes once; depth first.
        const QStringList found =
            SXFolderScan::filesBelow(dir.path(), {"MP3", "flac", "mp3", "wav"});
        QStringList relative;
        for (const QString& path : found)
            relative.append(QDir(dir.path()).relativeFilePath(path));
        QCOMPARE(relative, (QStringList{"alias.mp3", "song.mp3", "sub/clip.wav"} + natural +
                            QStringList{"sub/deeper/track.Mp3"}));
        QVERIFY(SXFolderScan::filesBelow(dir.filePath("song.mp3"), {"mp3"}).isEmpty());
    }

    void supportedFormatsFollowExperimentalSwitch() {
        const QStringList all = SXFolderScan::acceptedExtensions();

        bool experimental = false;
        SXFolderScan::setExperimentalSwitch([&experimental] { return experimental; });
        QStringList reduced = all;
        for (const char* gated : {"vob", "m4v", "m4r"})
            reduced.removeAll(gated);
        QCOMPARE(reduced.size(), all.size() - 3);
        QCOMPARE(SXFolderScan::acceptedExtensions(), reduced);
        experimental = true;
        QCOMPARE(SXFolderScan::acceptedExtensions(), all);
        SXFolderScan::setExperimentalSwitch({});
        QCOMPARE(SXFolderScan::acceptedExtensions(), all);
    }

    // A settings file as earlier versions wrote it (the keys' old spellings, which the code's
    // names no longer show) is read by today's names, registration keeps its choices and a save
    // keeps those spellings. The store lives under the isolated config home; registration puts
    // the defaults on disk where a value is missing, empty or zero.
    void fileOfAnEarlierVersionStillLoadsAndRegistrationKeepsIt() {
        QVERIFY(SXSettings::fileName().startsWith(SonoriaTest::configHome() + "/"));
        QVERIFY(SXSettings::fileName().endsWith("Sonoria/Sonoria.conf"));
        QVERIFY(writeFile(SXSettings::fileName(), "[General]\n"
                                                  "com.sx.MaxTastKey=3\n"
                                                  "com.sx.iTunesFmtKey=MP3\n"
                                                  "com.sx.iTunesPlaylistNameKey=Road trip\n"
                                                  "AppBSyncToiTunesKey=true\n"
                                                  "DEFAULT_OUTPUT_PATH_KEY=/music/out\n"
                                                  "DEFAUTL_SET_ORIGANIZED_KEY=false\n"));
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3); // not offered, honoured
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryFormat), QStringLiteral("MP3"));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName),
                 QStringLiteral("Road trip"));
        QVERIFY(SXSettings::boolForKey(SXSettingsKey::AppBSyncToLibrary));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath),
                 QStringLiteral("/music/out"));
        QVERIFY(!SXSettings::boolForKey(SXSettingsKey::DefaultSetOrganized, true));
        SXSettings::setValue(SXSettingsKey::libraryFormat, QStringLiteral("AAC"));
        SXSettings::synchronize();
        const QByteArray saved = readFile(SXSettings::fileName());
        QVERIFY(saved.contains("com.sx.iTunesFmtKey=AAC") && saved.contains("AppBSyncToiTunesKey"));
        QVERIFY(saved.contains("com.sx.iTunesPlaylistNameKey=Road trip"));

        SXSettings::removeKey(SXSettingsKey::libraryFormat);
        SXSettings::setValue(SXSettingsKey::libraryPlaylistName, QString());
        SXSettings::setValue(SXSettingsKey::MaxTask, 0);
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 5);
        const QSettings onDisk(SXSettings::fileName(), QSettings::IniFormat);
        QCOMPARE(onDisk.value(SXSettingsKey::libraryFormat), QStringLiteral("AAC"));
        QCOMPARE(onDisk.value(SXSettingsKey::libraryPlaylistName), QStringLiteral("Sonoria"));

        // INI brings scalars back as text; the typed readers must not be fooled by that.
        QSettings raw(SXSettings::fileName(), QSettings::IniFormat);
        for (const auto& [key, text] : {std::pair{"flagTrue", "true"},
                                        {"flagOne", "1"},
                                        {"flagFalse", "false"},
                                        {"number", "12"},
                                        {"junk", "twelve"}})
            raw.setValue(key, QString(text));
        raw.setValue("list", QStringList{"a", "b"});
        raw.sync();
        QVERIFY(SXSettings::boolForKey("flagTrue") && SXSettings::boolForKey("flagOne"));
        QVERIFY(!SXSettings::boolForKey("flagFalse", true));
        QVERIFY(SXSettings::boolForKey("missing", true) && !SXSettings::boolForKey("missing"));
        QCOMPARE(SXSettings::integerForKey("number"), 12);
        QCOMPARE(SXSettings::integerForKey("junk", 7), 7);
        QCOMPARE(SXSettings::stringForKey("list", "x"), QStringLiteral("x"));
        QVERIFY(!SXSettings::contains("missing"));
    }

    // Keyed archives keep the order keys were first written in, nest, and tell missing keys.
    void coderRoundTripsNestedValues() {
        SXCoder child;
        child.encode("n", 3);
        SXCoder root;
        root.encode("b", QStringLiteral("two"));
        root.encode("a", 1.5);
        root.encodeObject("child", child);
        root.encode("b", QStringLiteral("again")); // rewrite keeps the slot
        bool ok = false;
        const SXCoder back = SXCoder::fromData(root.toData(), &ok);
        QVERIFY(ok);
        QCOMPARE(back.keys(), QStringList({"b", "a", "child"}));
        QCOMPARE(back.decodeString("b"), QStringLiteral("again"));
        QCOMPARE(back.decodeObject("child").decodeInt("n"), 3);
        QVERIFY(!back.decodeObject("a").allowsKeyedCoding());
        QVERIFY(!back.decode("missing").isValid());
    }

    void fileOperationsNeverReplaceAnythingAndFindFiles() {
        QTemporaryDir dir;
        const auto at = [&dir](const char* name) { return dir.filePath(name); };
        QVERIFY(writeFile(at("a.txt"), "a"));
        QVERIFY(!FileHelper::createFileWithPath(at("a.txt")) &&
                FileHelper::createFileWithPath(at("b.txt")));
        QVERIFY(FileHelper::getFileSizeWithPath(at("a.txt")) == 1 &&
                FileHelper::getFileSizeWithPath(at("missing")) == 0);
        QVERIFY(!FileHelper::copyFile(at("a.txt"), at("b.txt")) &&
                !FileHelper::moveFile(at("a.txt"), at("b.txt")));
        FileHelper::checkAndCreateFileAtPath(at("a.txt"), false);
        QVERIFY(readFile(at("a.txt")) == "a" && QFileInfo(at("b.txt")).isFile() &&
                readFile(at("b.txt")).isEmpty());
        FileHelper::checkAndCreateFileAtPath(at("made/here"), true);
        QVERIFY(QFileInfo(at("made/here")).isDir());
        QVERIFY(!FileHelper::createDirectoryWithPath(at("a.txt/sub")));

        // Folders are copied and moved whole; links inside stay links.
        QVERIFY(writeFile(at("made/here/f.txt"), "f") && QFile::link("here/f.txt", at("made/rel")));
        QVERIFY(FileHelper::copyFile(at("made"), at("copy")) &&
                !FileHelper::copyFile(at("made"), at("copy")));
        QVERIFY(FileHelper::moveFile(at("copy"), at("moved")));
        QVERIFY(QFileInfo(at("moved/rel")).isSymLink() && readFile(at("moved/rel")) == "f");

        // Deleting a link removes only the link; deleting a folder takes its contents along.
        QVERIFY(QFile::link(at("made"), at("moved/outside")));
        QVERIFY(FileHelper::deleteDirectoryWithPath(at("moved")));
        QVERIFY(!FileHelper::fileExistsWithPath(at("moved")) &&
                readFile(at("made/here/f.txt")) == "f");
        QVERIFY(FileHelper::deleteFileWithPath(at("a.txt")) &&
                !FileHelper::deleteFileWithPath(at("a.txt")));

        // A file is found by name at the top, or named below its first-level folder; links back
        // up do not make the search go round.
        QVERIFY(writeFile(at("a/b/c/deep.txt"), {}));
        QVERIFY(QFile::link(at("a"), at("a/b/up")) && QFile::link(at("a/b"), at("a/b/self")));
        QCOMPARE(FileHelper::findFile(dir.path(), "b.txt"), QStringLiteral("b.txt"));
        QCOMPARE(FileHelper::findFile(dir.path(), "deep.txt"), at("a") + "/deep.txt");
        QCOMPARE(FileHelper::findFile(at("a/b"), "deep.txt"), at("a/b/c/deep.txt"));
        QVERIFY(FileHelper::findFile(dir.path(), "nowhere.txt").isNull());

        // Under 560 MiB free the disk counts as full; the language file's folder is made on asking.
        QVERIFY(!FileHelper::isDiskFullForFreeBytes(587202560ULL));
        QVERIFY(FileHelper::isDiskFullForFreeBytes(587202559ULL));
        const QString data = SonoriaTest::temporaryHome().dataHome();
        QCOMPARE(FileHelper::getLangConfigPath(), data + "/Caches/lang/lang.dat");
        QVERIFY(QFileInfo(data + "/Caches/lang").isDir());
    }

    void freeSpaceFollowsProcessHome_data() {
        QTest::addColumn<QString>("home");     // $HOME, or a null string for none at all
        QTest::addColumn<QString>("measured"); // the folder whose file system must be reported
        const QString home = SonoriaTest::temporaryHome().processHome();
        QTest::newRow("home") << home << home;
        QTest::newRow("missing home: its nearest parent") << home + "/gone/deeper" << home;
        QTest::newRow("no home: the root") << QString() << QStringLiteral("/");
    }

    void freeSpaceFollowsProcessHome() {
        QFETCH(QString, home);
        QFETCH(QString, measured);
        SonoriaTest::EnvironmentGuard environment;
        if (home.isNull())
            environment.unset("HOME");
        else
            environment.set("HOME", home);
        // stat(1) must agree; others write meanwhile, so allow a margin.
        QString output;
        QCOMPARE(SonoriaTest::run("stat", {"-f", "-c", "%a %S", measured}, &output), 0);
        const QStringList fields = output.trimmed().split(' ');
        const double expected = fields.value(0).toDouble() * fields.value(1).toDouble();
        const double free = static_cast<double>(FileHelper::getFileSystemFreeSize());
        QVERIFY2(expected > 0 && qAbs(free - expected) < 256.0 * 1024 * 1024,
                 qPrintable(QStringLiteral("%1 vs %2").arg(free).arg(expected)));
    }

    void defaultFoldersFollowHomeAndCreateNothing_data() {
        QTest::addColumn<QByteArray>("userDirs");
        QTest::addColumn<QString>("music"); // below $HOME unless absolute
        QTest::newRow("no user-dirs.dirs") << QByteArray() << QStringLiteral("Music");
        QTest::newRow("relative to home")
            << QByteArray("# written by the desktop\nXDG_MUSIC_DIR=\"$HOME/Musik\"\n")
            << QStringLiteral("Musik");
        QTest::newRow("absolute") << QByteArray("XDG_MUSIC_DIR=\"/srv/tunes\"\n")
                                  << QStringLiteral("/srv/tunes");
    }

    // The folders come from $HOME and the desktop's user-dirs.dirs of this process, never from the
    // user database, and asking for them leaves the home as it was.
    void defaultFoldersFollowHomeAndCreateNothing() {
        QFETCH(QByteArray, userDirs);
        QFETCH(QString, music);
        SonoriaTest::TemporaryHome fresh;
        QVERIFY(fresh.isValid());
        if (!userDirs.isEmpty())
            QVERIFY(writeFile(fresh.configHome() + "/user-dirs.dirs", userDirs));
        const QString expected =
            QDir::isAbsolutePath(music) ? music : fresh.processHome() + QLatin1Char('/') + music;
        const QStringList before =
            QDir(fresh.processHome()).entryList(QDir::AllEntries | QDir::Hidden);

        QCOMPARE(SXFileLocalManager::processHome(), fresh.processHome());
        QCOMPARE(SXFileLocalManager::musicDirectory(), expected);
        QCOMPARE(SXFileLocalManager::getDefaultUpperOutputDir(), expected + "/Sonoria");
        QCOMPARE(QDir(fresh.processHome()).entryList(QDir::AllEntries | QDir::Hidden), before);
        QVERIFY(!QFileInfo::exists(expected + "/Sonoria"));
    }
};

SONORIA_TEST_MAIN(BaseHelpersTest)
#include "tst_basehelpers.moc"
