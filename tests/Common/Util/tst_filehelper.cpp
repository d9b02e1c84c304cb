#include "Common/Util/FileHelper.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

class FileHelperTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fileOperationsNeverReplaceAnything();
    void freeSpaceAndFullThreshold();
    void findFileGivesNameOrFirstLevelFolder();
};

using SonoriaTest::readFile;
using SonoriaTest::writeFile;

void FileHelperTest::fileOperationsNeverReplaceAnything() {
    QTemporaryDir dir;
    const auto at = [&dir](const char* name) { return dir.filePath(name); };
    QVERIFY(writeFile(at("a.txt"), "a"));
    QVERIFY(!FileHelper::createFileWithPath(at("a.txt")));
    QVERIFY(FileHelper::createFileWithPath(at("b.txt")));
    QCOMPARE(FileHelper::getFileSizeWithPath(at("a.txt")), 1ULL);
    QCOMPARE(FileHelper::getFileSizeWithPath(at("missing")), 0ULL);
    QVERIFY(!FileHelper::copyFile(at("a.txt"), at("b.txt")));
    QVERIFY(!FileHelper::moveFile(at("a.txt"), at("b.txt")));
    FileHelper::checkAndCreateFileAtPath(at("a.txt"), false);
    QCOMPARE(readFile(at("a.txt")), QByteArray("a"));
    QVERIFY(QFileInfo(at("b.txt")).isFile());
    QCOMPARE(readFile(at("b.txt")), QByteArray());

    FileHelper::checkAndCreateFileAtPath(at("made/here"), true);
    QVERIFY(QFileInfo(at("made/here")).isDir());
    QVERIFY(!FileHelper::createDirectoryWithPath(at("a.txt/sub")));

    // Folders are copied and moved whole; links inside stay links.
    QVERIFY(writeFile(at("made/here/f.txt"), "f"));
    QVERIFY(QFile::link("here/f.txt", at("made/rel")));
    QVERIFY(FileHelper::copyFile(at("made"), at("copy")));
    QVERIFY(!FileHelper::copyFile(at("made"), at("copy")));
    QVERIFY(FileHelper::moveFile(at("copy"), at("moved")));
    QVERIFY(QFileInfo(at("moved/rel")).isSymLink());
    QCOMPARE(readFile(at("moved/rel")), QByteArray("f"));

    // Deleting a link removes only the link; deleting a folder takes its contents along.
    QVERIFY(QFile::link(at("made"), at("moved/outside")));
    QVERIFY(FileHelper::deleteDirectoryWithPath(at("moved")));
    QVERIFY(!FileHelper::fileExistsWithPath(at("moved")));
    QCOMPARE(readFile(at("made/here/f.txt")), QByteArray("f"));
    QVERIFY(FileHelper::deleteFileWithPath(at("a.txt")));
    QVERIFY(!FileHelper::deleteFileWithPath(at("a.txt")));
}

void FileHelperTest::freeSpaceAndFullThreshold() {
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
    QCOMPARE(FileHelper::getAppPath(), QCoreApplication::applicationDirPath());
}

void FileHelperTest::findFileGivesNameOrFirstLevelFolder() {
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

SONORIA_TEST_MAIN(FileHelperTest)
#include "tst_filehelper.moc"
