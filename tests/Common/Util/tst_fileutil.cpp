#include "Common/Util/FileHelper.h"
#include "Common/Util/SXFileLocalManager.h"
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
    void freeSpaceAndFullThreshold();
    void findFileGivesNameOrFirstLevelFolder();
    void userDirsAreParsed_data();
    void userDirsAreParsed();
    void foldersComeFromUserDatabaseNotEnvironment();
    void upperOutputFolderIsCreatedOnce();
};

using SonoriaTest::readFile;
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

void FileUtilTest::freeSpaceAndFullThreshold() {
    QVERIFY(!FileHelper::isDiskFullForFreeBytes(587202560ULL));
    QVERIFY(FileHelper::isDiskFullForFreeBytes(587202559ULL));

    // stat(1) on $HOME's file system must agree; others write meanwhile, so allow a margin.
    QString output;
    QCOMPARE(SonoriaTest::run("stat", {"-f", "-c", "%a %S", QDir::homePath()}, &output), 0);
    const QStringList fields = output.trimmed().split(' ');
    const double expected = fields.value(0).toDouble() * fields.value(1).toDouble();
    const double measured = static_cast<double>(FileHelper::getFileSystemFreeSize());
    QVERIFY2(qAbs(measured - expected) < 256.0 * 1024 * 1024,
             qPrintable(QStringLiteral("%1 vs %2").arg(measured).arg(expected)));

    QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
    QCOMPARE(FileHelper::getLangConfigPath(), data.path() + "/Caches/lang/lang.dat");
    QVERIFY(QFileInfo(data.path() + "/Caches/lang").isDir());
    qunsetenv("XDG_DATA_HOME");
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

void FileUtilTest::foldersComeFromUserDatabaseNotEnvironment() {
    QString passwd;
    QCOMPARE(SonoriaTest::run("getent", {"passwd", QString::number(::getuid())}, &passwd), 0);
    const QString home = passwd.trimmed().split(':').value(5);
    QVERIFY(!home.isEmpty());

    const QString music = SXFileLocalManager::musicDirectory();
    const QString movies = SXFileLocalManager::moviesDirectory();
    const QByteArray savedHome = qgetenv("HOME");
    qputenv("HOME", "/nonexistent/elsewhere");
    const QString realHome = SXFileLocalManager::realHomeDirectory();
    const QString output = SXFileLocalManager::getDefaultOutputDir("AAC");
    const QString converted = SXFileLocalManager::convertedAudioDirectory();
    const QString musicWithOtherHome = SXFileLocalManager::musicDirectory();
    qputenv("HOME", savedHome);

    QCOMPARE(realHome, QDir::cleanPath(home));
    QCOMPARE(musicWithOtherHome, music);
    QCOMPARE(output, music + "/Sonoria/AAC");
    QCOMPARE(converted, movies + "/Sonoria/Audio Converted");
}

void FileUtilTest::upperOutputFolderIsCreatedOnce() {
    // This touches the real home on purpose: the folder must appear there. Whatever the test
    // creates it removes again.
    const QString music = SXFileLocalManager::musicDirectory();
    const QString expected = music + "/Sonoria";
    const bool musicExisted = QFileInfo::exists(music);
    const bool existed = QFileInfo::exists(expected);

    QCOMPARE(SXFileLocalManager::getDefaultUpperOutputDir(), expected);
    QVERIFY(QFileInfo(expected).isDir());
    const QDateTime modified = QFileInfo(expected).lastModified();
    QCOMPARE(SXFileLocalManager::getDefaultUpperOutputDir(), expected);
    QCOMPARE(QFileInfo(expected).lastModified(), modified);

    if (!existed)
        QVERIFY(QDir().rmdir(expected));
    if (!musicExisted)
        QVERIFY(QDir().rmdir(music));
}

SONORIA_TEST_MAIN(FileUtilTest)
#include "tst_fileutil.moc"
