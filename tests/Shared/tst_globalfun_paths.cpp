#include "Shared/GlobalFun.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <limits>

// Clock strings, the estimate wording, unique output names, folder creation and scanning.
class GlobalFunPathsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void secondsBecomeClockStrings_data();
    void secondsBecomeClockStrings();
    void clockStringsBecomeSeconds_data();
    void clockStringsBecomeSeconds();
    void estimateWording_data();
    void estimateWording();
    void uniquePathNeverNamesAnExistingEntry();
    void uniquePathRewritesCounterInFolders();
    void folderIsMadeSure();
    void scanFindsFilesDepthFirstWithHiddenOnes();
    void scanSurvivesSelfLinkingTreeAndUnreadableFolder();
    void supportedFormatsFollowExperimentalSwitch();

private:
    static void touch(const QString& path);
};

void GlobalFunPathsTest::touch(const QString& path) {
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
}

void GlobalFunPathsTest::secondsBecomeClockStrings_data() {
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("clock");
    QTest::addColumn<int>("hour");
    QTest::addColumn<int>("minite");
    QTest::addColumn<int>("second");
    QTest::newRow("zero") << 0.0 << "00:00:00" << 0 << 0 << 0;
    QTest::newRow("just under a minute") << 59.99 << "00:00:59" << 0 << 0 << 59;
    QTest::newRow("fraction truncated") << 205.9 << "00:03:25" << 0 << 3 << 25;
    QTest::newRow("one hour") << 3600.0 << "01:00:00" << 1 << 0 << 0;
    QTest::newRow("hours keep all digits") << 360000.0 << "100:00:00" << 100 << 0 << 0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << "00:00:00" << 0
                                  << 0 << 0;
    QTest::newRow("saturates") << 1e12 << "596523:14:07" << 596523 << 14 << 7;
}

void GlobalFunPathsTest::secondsBecomeClockStrings() {
    QFETCH(double, seconds);
    QFETCH(QString, clock);
    QFETCH(int, hour);
    QFETCH(int, minite);
    QFETCH(int, second);
    QCOMPARE(GlobalFun::getTimeStringBySecond(seconds), clock);
    int h = -9, m = -9, s = -9;
    GlobalFun::getHourMiniteSecondWithTime(&h, &m, &s, seconds);
    QCOMPARE(h, hour);
    QCOMPARE(m, minite);
    QCOMPARE(s, second);
}

void GlobalFunPathsTest::clockStringsBecomeSeconds_data() {
    QTest::addColumn<QString>("clock");
    QTest::addColumn<double>("seconds");
    QTest::newRow("status line time") << "00:01:23.45" << 83.45;
    QTest::newRow("one hour") << "01:00:00" << 3600.0;
    QTest::newRow("letters") << "abc" << 0.0;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("no colon is hours") << "2" << 7200.0;
    QTest::newRow("pieces after the third ignored") << "00:00:05:99" << 5.0;
    QTest::newRow("number read from the start of a piece") << "1h:2m:3.5s" << 3723.5;
    QTest::newRow("unreadable piece counts zero") << "N/A:01:xx" << 60.0;
    QTest::newRow("blank and sign like strtod") << " +1: -1:0" << 3540.0;
    QTest::newRow("no inf or nan") << "inf:nan:1" << 1.0;
    QTest::newRow("leading point") << "0:0:.5" << 0.5;
}

void GlobalFunPathsTest::clockStringsBecomeSeconds() {
    QFETCH(QString, clock);
    QFETCH(double, seconds);
    QCOMPARE(GlobalFun::getSecondsByTimeString(clock), seconds);
}

void GlobalFunPathsTest::estimateWording_data() {
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("wording");
    QTest::newRow("rounds but plural looks at raw") << 1.4 << "1 seconds remaining";
    QTest::newRow("under one second") << 0.7 << "1 second remaining";
    QTest::newRow("exactly one") << 1.0 << "1 second remaining";
    QTest::newRow("rounds up to sixty") << 59.6 << "60 seconds remaining";
    QTest::newRow("one minute") << 60.0 << "1 minite 0 second remaining";
    QTest::newRow("singulars") << 61.0 << "1 minite 1 second remaining";
    QTest::newRow("still minite at 119") << 119.9 << "1 minite 59 seconds remaining";
    QTest::newRow("minites from 120") << 120.0 << "2 minites 0 second remaining";
    QTest::newRow("minites and seconds") << 125.0 << "2 minites 5 seconds remaining";
    QTest::newRow("just under an hour") << 3599.9 << "59 minites 59 seconds remaining";
    QTest::newRow("one hour") << 3600.0 << "1 hour 0 minite remaining";
    QTest::newRow("minite until 119 s past") << 3719.0 << "1 hour 1 minite remaining";
    QTest::newRow("hour until 7199") << 7199.0 << "1 hour 59 minites remaining";
    QTest::newRow("hours") << 7325.0 << "2 hours 2 minites remaining";
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN()
                                  << "0 hour 0 minite remaining";
}

void GlobalFunPathsTest::estimateWording() {
    QFETCH(double, seconds);
    QFETCH(QString, wording);
    QCOMPARE(GlobalFun::getEstimateStrBySecond(seconds), wording);
}

void GlobalFunPathsTest::uniquePathNeverNamesAnExistingEntry() {
    QTemporaryDir dir;
    const QString song = dir.filePath("song.mp3");
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(song, "mp3"), song);
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(dir.filePath("song"), "mp3"), song);
    // The extension must match exactly, case included.
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(dir.filePath("song.MP3"), "mp3"),
             dir.filePath("song.MP3.mp3"));

    touch(song);
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(song, "mp3"), dir.filePath("song(1).mp3"));
    touch(dir.filePath("song(1).mp3"));
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(song, "mp3"), dir.filePath("song(2).mp3"));
    // A name that already carries a counter continues from it.
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(dir.filePath("song(1).mp3"), "mp3"),
             dir.filePath("song(2).mp3"));

    // Folders and dangling links are taken names too.
    QVERIFY(QDir(dir.path()).mkdir("song(2).mp3"));
    QVERIFY(QFile::link(dir.filePath("nowhere"), dir.filePath("song(3).mp3")));
    const QString free = GlobalFun::makeSureFullPathIdentical(song, "mp3");
    QCOMPARE(free, dir.filePath("song(4).mp3"));
    QVERIFY(!QFileInfo(free).exists() && !QFileInfo(free).isSymLink());

    // A taken name without an extension gets the extension before the counter.
    touch(dir.filePath("take.wav"));
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(dir.filePath("take"), "wav"),
             dir.filePath("take(1).wav"));
}

void GlobalFunPathsTest::uniquePathRewritesCounterInFolders() {
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath("Album(1)"));
    touch(dir.filePath("Album(1)/song.mp3"));
    touch(dir.filePath("Album(1)/song(2).mp3"));
    // The counter text is searched over the whole path: the folder's "(1)" turns into "(2)".
    QCOMPARE(GlobalFun::makeSureFullPathIdentical(dir.filePath("Album(1)/song.mp3"), "mp3"),
             dir.filePath("Album(2)/song.mp3"));

    QVERIFY(QDir(dir.path()).mkpath("Album(2)"));
    touch(dir.filePath("Album(2)/song.mp3"));
    const QString result =
        GlobalFun::makeSureFullPathIdentical(dir.filePath("Album(1)/song.mp3"), "mp3");
    QCOMPARE(result, dir.filePath("Album(3)/song.mp3"));
}

void GlobalFunPathsTest::folderIsMadeSure() {
    QTemporaryDir dir;
    QVERIFY(!GlobalFun::MakeSureFolderExsist(QString()));
    const QString deep = dir.filePath("a/b/c");
    QVERIFY(GlobalFun::MakeSureFolderExsist(deep));
    QVERIFY(QFileInfo(deep).isDir());
    QVERIFY(GlobalFun::MakeSureFolderExsist(deep));

    const QString file = dir.filePath("plain");
    touch(file);
    QVERIFY(!GlobalFun::MakeSureFolderExsist(file));
    QVERIFY(!GlobalFun::MakeSureFolderExsist(file + "/below"));
    QVERIFY(QFileInfo(file).isFile());
}

void GlobalFunPathsTest::scanFindsFilesDepthFirstWithHiddenOnes() {
    QTemporaryDir dir;
    QDir root(dir.path());
    QVERIFY(root.mkpath("sub/deeper"));
    touch(dir.filePath("song.mp3"));
    touch(dir.filePath(".hidden.FLAC"));
    touch(dir.filePath("notes.txt"));
    touch(dir.filePath("mp3"));
    touch(dir.filePath("sub/deeper/track.Mp3"));
    touch(dir.filePath("sub/clip.wav"));
    QVERIFY(QFile::link(dir.filePath("song.mp3"), dir.filePath("alias.mp3")));
    QVERIFY(QFile::link(dir.filePath("gone.mp3"), dir.filePath("dangling.mp3")));

    const QStringList found =
        GlobalFun::fileListAtDirenctory(dir.path(), {"MP3", "flac", "mp3", "wav"});
    const QSet<QString> expected = {dir.filePath("song.mp3"), dir.filePath(".hidden.FLAC"),
                                    dir.filePath("alias.mp3"), dir.filePath("sub/clip.wav"),
                                    dir.filePath("sub/deeper/track.Mp3")};
    QCOMPARE(QSet<QString>(found.begin(), found.end()), expected);
    QCOMPARE(found.size(), expected.size()); // a file matching two filter entries comes once

    // Depth first: a folder's files sit together, directly below the folder's place.
    const qsizetype clip = found.indexOf(dir.filePath("sub/clip.wav"));
    const qsizetype track = found.indexOf(dir.filePath("sub/deeper/track.Mp3"));
    QVERIFY(qAbs(clip - track) == 1);

    QVERIFY(GlobalFun::fileListAtDirenctory(dir.filePath("song.mp3"), {"mp3"}).isEmpty());
    QVERIFY(GlobalFun::fileListAtDirenctory(dir.filePath("missing"), {"mp3"}).isEmpty());
}

void GlobalFunPathsTest::scanSurvivesSelfLinkingTreeAndUnreadableFolder() {
    QTemporaryDir dir;
    QDir root(dir.path());
    QVERIFY(root.mkpath("music/inner"));
    touch(dir.filePath("music/a.mp3"));
    touch(dir.filePath("music/inner/b.mp3"));
    QVERIFY(QFile::link(dir.filePath("music"), dir.filePath("music/inner/up")));
    QVERIFY(QFile::link(dir.filePath("music/inner"), dir.filePath("music/inner/self")));
    QVERIFY(QFile::link(dir.filePath("music/inner"), dir.filePath("music/twin")));

    const QStringList found = GlobalFun::fileListAtDirenctory(dir.filePath("music"), {"mp3"});
    QCOMPARE(found.size(), 2);
    QVERIFY(found.contains(dir.filePath("music/a.mp3")));
    QVERIFY(found.filter("b.mp3").size() == 1);

    // A folder that cannot be read contributes nothing (root can read anything, so only check
    // when the permission actually bites).
    QVERIFY(root.mkpath("closed"));
    touch(dir.filePath("closed/c.mp3"));
    QFile::setPermissions(dir.filePath("closed"), QFileDevice::Permissions());
    const bool bites = !QDir(dir.filePath("closed")).isReadable();
    const QStringList all = GlobalFun::fileListAtDirenctory(dir.path(), {"mp3"});
    QFile::setPermissions(dir.filePath("closed"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QCOMPARE(all.size(), bites ? 2 : 3);
}

void GlobalFunPathsTest::supportedFormatsFollowExperimentalSwitch() {
    const QStringList all = GlobalFun::getSupportedFmts();
    QCOMPARE(all.size(), 31);
    QCOMPARE(all.first(), QStringLiteral("wmv"));
    QCOMPARE(all.last(), QStringLiteral("dsd"));
    QCOMPARE(all.indexOf("vob"), 10);
    QCOMPARE(all.indexOf("mp3"), 18);

    bool experimental = false;
    GlobalFun::setExperimentalSwitch([&experimental] { return experimental; });
    QStringList reduced = all;
    for (const char* gated : {"vob", "m4v", "m4r"})
        reduced.removeAll(QLatin1String(gated));
    QCOMPARE(GlobalFun::getSupportedFmts(), reduced);
    experimental = true;
    QCOMPARE(GlobalFun::getSupportedFmts(), all);
    GlobalFun::setExperimentalSwitch({});
    QCOMPARE(GlobalFun::getSupportedFmts(), all);
}

SONORIA_TEST_MAIN(GlobalFunPathsTest)
#include "tst_globalfun_paths.moc"
