#include "Common/Util/FileHelper.h"
#include "Common/Util/SXFileLocalManager.h"
#include "Common/Util/SXHomeFolder.h"
#include "support/TemporaryHome.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

// The file helpers and the user's standard folders, on real temporary folders.
class FileUtilTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fileOperationsNeverReplaceAnything();
    void freeSpaceFollowsProcessHome_data();
    void freeSpaceFollowsProcessHome();
    void fullThresholdAndLanguageFile();
    void findFileGivesNameOrFirstLevelFolder();
    void userDirsAreParsed_data();
    void userDirsAreParsed();
    void realHomeComesFromUserDatabaseOrStandIn();
    void foldersAreBuiltOnRealHomeNotEnvironment();
    void upperOutputFolderIsCreatedOnce();
};

using SonoriaTest::EnvironmentGuard;
using SonoriaTest::readFile;
using SonoriaTest::TemporaryHome;
using SonoriaTest::writeFile;

void FileUtilTest::fileOperationsNeverReplaceAnything() {
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
    QVERIFY(!FileHelper::fileExistsWithPath(at("moved")) && readFile(at("made/here/f.txt")) == "f");
    QVERIFY(FileHelper::deleteFileWithPath(at("a.txt")) &&
            !FileHelper::deleteFileWithPath(at("a.txt")));
}

void FileUtilTest::freeSpaceFollowsProcessHome_data() {
    QTest::addColumn<QString>("home");     // $HOME, or a null string for none at all
    QTest::addColumn<QString>("measured"); // the folder whose file system must be reported
    const QString home = SonoriaTest::temporaryHome().processHome();
    QTest::newRow("home") << home << home;
    QTest::newRow("missing home: its nearest parent") << home + "/gone/deeper" << home;
    QTest::newRow("no home: the root") << QString() << QStringLiteral("/");
}

void FileUtilTest::freeSpaceFollowsProcessHome() {
    QFETCH(QString, home);
    QFETCH(QString, measured);
    EnvironmentGuard environment;
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

void FileUtilTest::fullThresholdAndLanguageFile() {
    QVERIFY(!FileHelper::isDiskFullForFreeBytes(587202560ULL));
    QVERIFY(FileHelper::isDiskFullForFreeBytes(587202559ULL));

    const QString data = SonoriaTest::temporaryHome().dataHome();
    QCOMPARE(FileHelper::getLangConfigPath(), data + "/Caches/lang/lang.dat");
    QVERIFY(QFileInfo(data + "/Caches/lang").isDir());
}

void FileUtilTest::findFileGivesNameOrFirstLevelFolder() {
    QTemporaryDir dir;
    QVERIFY(writeFile(dir.filePath("top.txt"), {}) &&
            writeFile(dir.filePath("a/b/c/deep.txt"), {}));
    QVERIFY(QFile::link(dir.filePath("a"), dir.filePath("a/b/up")));
    QVERIFY(QFile::link(dir.filePath("a/b"), dir.filePath("a/b/self")));

    QCOMPARE(FileHelper::findFile(dir.path(), "top.txt"), QStringLiteral("top.txt"));
    QCOMPARE(FileHelper::findFile(dir.path(), "deep.txt"), dir.filePath("a") + "/deep.txt");
    QCOMPARE(FileHelper::findFile(dir.filePath("a/b"), "deep.txt"), dir.filePath("a/b/c/deep.txt"));
    QVERIFY(FileHelper::findFile(dir.path(), "nowhere.txt").isNull());
}

void FileUtilTest::userDirsAreParsed_data() {
    QTest::addColumn<QString>("config");
    QTest::addColumn<QString>("expected");
    const QString header = QStringLiteral("# This file is written by xdg-user-dirs-update\n"
                                          "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
    const auto row = [](const char* name, const QString& config, const char* expected) {
        QTest::newRow(name) << config << QString::fromUtf8(expected);
    };
    row("relative to home", header + "XDG_MUSIC_DIR=\"$HOME/Musik\"\n", "/home/anna/Musik");
    row("absolute, cleaned", "XDG_MUSIC_DIR=\"/srv/media//music/\"", "/srv/media/music");
    row("unquoted with blanks", "  XDG_MUSIC_DIR = $HOME/Audio  ", "/home/anna/Audio");
    row("last assignment wins", "XDG_MUSIC_DIR=\"$HOME/Old\"\nXDG_MUSIC_DIR=\"$HOME/New\"",
        "/home/anna/New");
    row("home itself means not set", "XDG_MUSIC_DIR=\"$HOME/\"", "");
    row("commented out", header + "#XDG_MUSIC_DIR=\"$HOME/Musik\"", "");
    row("other key with same prefix", "XDG_MUSIC_DIRS=\"$HOME/Musik\"", "");
    row("relative path ignored", "XDG_MUSIC_DIR=\"Musik\"", "");
}

void FileUtilTest::userDirsAreParsed() {
    QFETCH(QString, config);
    QFETCH(QString, expected);
    QCOMPARE(SXFileLocalManager::userDirectoryFromConfig(config, "XDG_MUSIC_DIR", "/home/anna"),
             expected);
}

// The lookup itself is read only: the user database's record, whatever $HOME says, unless an
// absolute $SONORIA_HOME stands in for it.
void FileUtilTest::realHomeComesFromUserDatabaseOrStandIn() {
    QString passwd;
    QCOMPARE(SonoriaTest::run("getent", {"passwd", QString::number(::getuid())}, &passwd), 0);
    const QString home = QDir::cleanPath(passwd.trimmed().split(':').value(5));
    QVERIFY(!home.isEmpty());

    EnvironmentGuard environment;
    environment.set("HOME", "/nonexistent/elsewhere");
    QCOMPARE(SXHomeFolder::fromUserDatabase(), home);
    QCOMPARE(SXHomeFolder::realHome(), SonoriaTest::temporaryHome().realHome());
    environment.set(SXHomeFolder::kRealHomeVariable, "/stand/in//home/");
    QCOMPARE(SXHomeFolder::realHome(), QStringLiteral("/stand/in/home"));
    environment.set(SXHomeFolder::kRealHomeVariable, "relative/home");
    QCOMPARE(SXHomeFolder::realHome(), home);
    environment.unset(SXHomeFolder::kRealHomeVariable);
    QCOMPARE(SXHomeFolder::realHome(), home);
}

// Output folders follow the real home and its own user-dirs.dirs; neither $HOME nor
// $XDG_CONFIG_HOME moves them.
void FileUtilTest::foldersAreBuiltOnRealHomeNotEnvironment() {
    TemporaryHome fresh;
    QVERIFY(fresh.isValid());
    const QString real = fresh.realHome();
    QCOMPARE(SXFileLocalManager::getDefaultOutputDir("AAC"), real + "/Music/Sonoria/AAC");
    QCOMPARE(SXFileLocalManager::convertedAudioDirectory(),
             real + "/Videos/Sonoria/Audio Converted");

    QVERIFY(writeFile(real + "/.config/user-dirs.dirs",
                      "XDG_MUSIC_DIR=\"$HOME/Musik\"\nXDG_VIDEOS_DIR=\"/srv/films\"\n"));
    QVERIFY(writeFile(fresh.configHome() + "/user-dirs.dirs", "XDG_MUSIC_DIR=\"$HOME/Wrong\"\n"));
    EnvironmentGuard environment;
    environment.set("HOME", "/nonexistent/elsewhere");
    QCOMPARE(SXFileLocalManager::getDefaultOutputDir("AAC"), real + "/Musik/Sonoria/AAC");
    QCOMPARE(SXFileLocalManager::convertedAudioDirectory(),
             QStringLiteral("/srv/films/Sonoria/Audio Converted"));
}

// On a fresh account the common parent appears under the real home; asked again, nothing
// changes.
void FileUtilTest::upperOutputFolderIsCreatedOnce() {
    TemporaryHome fresh;
    QVERIFY(fresh.isValid());
    const QString expected = fresh.realHome() + "/Music/Sonoria";
    QVERIFY(!QFileInfo::exists(fresh.realHome() + "/Music"));

    QCOMPARE(SXFileLocalManager::getDefaultUpperOutputDir(), expected);
    QVERIFY(QFileInfo(expected).isDir());
    const QDateTime modified = QFileInfo(expected).lastModified();
    QCOMPARE(SXFileLocalManager::getDefaultUpperOutputDir(), expected);
    QCOMPARE(QFileInfo(expected).lastModified(), modified);
    QVERIFY(QDir(expected).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
}

SONORIA_TEST_MAIN(FileUtilTest)
#include "tst_fileutil.moc"
