#include "Common/Util/SXFileLocalManager.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>

#include <unistd.h>

class FileLocalManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void userDirsAreParsed_data();
    void userDirsAreParsed();
    void foldersComeFromUserDatabaseNotEnvironment();
    void upperOutputFolderIsCreatedOnce();
};

void FileLocalManagerTest::userDirsAreParsed_data() {
    QTest::addColumn<QString>("config");
    QTest::addColumn<QString>("expected");
    const QString header = QStringLiteral("# This file is written by xdg-user-dirs-update\n"
                                          "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
    QTest::newRow("relative to home") << header + "XDG_MUSIC_DIR=\"$HOME/Musik\"\n"
                                      << "/home/anna/Musik";
    QTest::newRow("absolute, cleaned") << "XDG_MUSIC_DIR=\"/srv/media//music/\""
                                       << "/srv/media/music";
    QTest::newRow("unquoted with blanks") << "  XDG_MUSIC_DIR = $HOME/Audio  "
                                          << "/home/anna/Audio";
    QTest::newRow("last assignment wins")
        << "XDG_MUSIC_DIR=\"$HOME/Old\"\nXDG_MUSIC_DIR=\"$HOME/New\""
        << "/home/anna/New";
    QTest::newRow("home itself means not set") << "XDG_MUSIC_DIR=\"$HOME/\""
                                               << "";
    QTest::newRow("commented out") << header + "#XDG_MUSIC_DIR=\"$HOME/Musik\""
                                   << "";
    QTest::newRow("other key with same prefix") << "XDG_MUSIC_DIRS=\"$HOME/Musik\""
                                                << "";
    QTest::newRow("relative path ignored") << "XDG_MUSIC_DIR=\"Musik\""
                                           << "";
}

void FileLocalManagerTest::userDirsAreParsed() {
    QFETCH(QString, config);
    QFETCH(QString, expected);
    QCOMPARE(SXFileLocalManager::userDirectoryFromConfig(config, "XDG_MUSIC_DIR", "/home/anna"),
             expected);
}

void FileLocalManagerTest::foldersComeFromUserDatabaseNotEnvironment() {
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

void FileLocalManagerTest::upperOutputFolderIsCreatedOnce() {
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

SONORIA_TEST_MAIN(FileLocalManagerTest)
#include "tst_filelocalmanager.moc"
