#include "base/FileHelper.h"
#include "base/SXFileLocalManager.h"
#include "support/TemporaryHome.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

using SonoriaTest::EnvironmentGuard;
using SonoriaTest::readFile;
using SonoriaTest::TemporaryHome;
using SonoriaTest::writeFile;

// The file helpers and the user's standard folders, on real temporary folders.
class FileUtilTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fileOperationsNeverReplaceAnything() {
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

    void fullThresholdAndLanguageFile() {
        QVERIFY(!FileHelper::isDiskFullForFreeBytes(587202560ULL));
        QVERIFY(FileHelper::isDiskFullForFreeBytes(587202559ULL));

        const QString data = SonoriaTest::temporaryHome().dataHome();
        QCOMPARE(FileHelper::getLangConfigPath(), data + "/Caches/lang/lang.dat");
        QVERIFY(QFileInfo(data + "/Caches/lang").isDir());
    }

    void findFileGivesNameOrFirstLevelFolder() {
        QTemporaryDir dir;
        QVERIFY(writeFile(dir.filePath("top.txt"), {}) &&
                writeFile(dir.filePath("a/b/c/deep.txt"), {}));
        QVERIFY(QFile::link(dir.filePath("a"), dir.filePath("a/b/up")));
        QVERIFY(QFile::link(dir.filePath("a/b"), dir.filePath("a/b/self")));

        QCOMPARE(FileHelper::findFile(dir.path(), "top.txt"), QStringLiteral("top.txt"));
        QCOMPARE(FileHelper::findFile(dir.path(), "deep.txt"), dir.filePath("a") + "/deep.txt");
        QCOMPARE(FileHelper::findFile(dir.filePath("a/b"), "deep.txt"),
                 dir.filePath("a/b/c/deep.txt"));
        QVERIFY(FileHelper::findFile(dir.path(), "nowhere.txt").isNull());
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
        TemporaryHome fresh;
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

SONORIA_TEST_MAIN(FileUtilTest)
#include "tst_fileutil.moc"
