#include "Shared/GlobalFun.h"
#include "Shared/SXBundle.h"
#include "Shared/SXSettings.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QUuid>

class GlobalFunIdentityTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void guidIsCreatedOnceAndStored();
    void versionIsBroughtToThreeComponents_data();
    void versionIsBroughtToThreeComponents();
    void appVersionStringsCombine();
    void kernelReleaseIsRead_data();
    void kernelReleaseIsRead();
    void systemVersionMatchesRunningKernel();
    void computerModelFallsBackToPC();
};

void GlobalFunIdentityTest::guidIsCreatedOnceAndStored() {
    SXSettings::removeKey(SXSettingsKey::Guid);
    const QString first = GlobalFun::getGUID();
    QCOMPARE(first.size(), 36);
    QVERIFY(!QUuid::fromString(first).isNull());
    QCOMPARE(GlobalFun::getGUID(), first);

    // Written to disk at once: a fresh reader of the settings file sees it.
    QSettings onDisk(SXSettings::fileName(), QSettings::IniFormat);
    QCOMPARE(onDisk.value(SXSettingsKey::Guid).toString(), first);

    // A stored value is handed out as it is, never replaced.
    SXSettings::setValue(SXSettingsKey::Guid, QStringLiteral("kept-from-an-earlier-run"));
    QCOMPARE(GlobalFun::getGUID(), QStringLiteral("kept-from-an-earlier-run"));

    SXSettings::removeKey(SXSettingsKey::Guid);
    QVERIFY(GlobalFun::getGUID() != first);
}

void GlobalFunIdentityTest::versionIsBroughtToThreeComponents_data() {
    QTest::addColumn<QString>("shortVersion");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one component") << "3"
                                   << "3.0.0";
    QTest::newRow("two components") << "2.1"
                                    << "2.1.0";
    QTest::newRow("three components") << "4.5.6"
                                      << "4.5.6";
    QTest::newRow("four components") << "1.2.3.4"
                                     << "1.2.3";
}

void GlobalFunIdentityTest::versionIsBroughtToThreeComponents() {
    QFETCH(QString, shortVersion);
    QFETCH(QString, expected);
    QCOMPARE(GlobalFun::normalizedVersion(shortVersion), expected);
}

void GlobalFunIdentityTest::appVersionStringsCombine() {
    const QString version = GlobalFun::getAppVersion();
    QCOMPARE(version.split(QLatin1Char('.')).size(), 3);
    QVERIFY(!GlobalFun::getAppBuildNumber().isEmpty());
    QCOMPARE(GlobalFun::getAppBuildVersion(), version + "." + GlobalFun::getAppBuildNumber());
    QCOMPARE(GlobalFun::bundleID(), SXBundle::bundleIdentifier());
    QVERIFY(!GlobalFun::bundleID().isEmpty());
}

void GlobalFunIdentityTest::kernelReleaseIsRead_data() {
    QTest::addColumn<QString>("release");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<qint64>("major");
    QTest::addColumn<qint64>("minor");
    QTest::addColumn<qint64>("bugFix");
    // -1 marks a number that must be left as the caller had it.
    QTest::newRow("distribution kernel") << "6.1.0-18-amd64" << true << 6LL << 1LL << 0LL;
    QTest::newRow("suffix on patch")
        << "5.15.153.1-microsoft-standard-WSL2" << true << 5LL << 15LL << 153LL;
    QTest::newRow("rc suffix") << "6.8-rc3" << true << 6LL << 8LL << 0LL;
    QTest::newRow("no minor") << "6" << false << 6LL << -1LL << -1LL;
    QTest::newRow("unreadable minor") << "6.x.2" << false << 6LL << -1LL << -1LL;
    QTest::newRow("unreadable major") << "v6.1.0" << false << -1LL << -1LL << -1LL;
    QTest::newRow("empty") << "" << false << -1LL << -1LL << -1LL;
}

void GlobalFunIdentityTest::kernelReleaseIsRead() {
    QFETCH(QString, release);
    QFETCH(bool, ok);
    QFETCH(qint64, major);
    QFETCH(qint64, minor);
    QFETCH(qint64, bugFix);
    qint64 gotMajor = -1;
    qint64 gotMinor = -1;
    qint64 gotBugFix = -1;
    QCOMPARE(GlobalFun::versionNumbersFromRelease(release, &gotMajor, &gotMinor, &gotBugFix), ok);
    QCOMPARE(gotMajor, major);
    QCOMPARE(gotMinor, minor);
    QCOMPARE(gotBugFix, bugFix);
}

void GlobalFunIdentityTest::systemVersionMatchesRunningKernel() {
    // The kernel publishes the same release text under /proc; both readings must agree.
    QFile osRelease(QStringLiteral("/proc/sys/kernel/osrelease"));
    QVERIFY(osRelease.open(QIODevice::ReadOnly));
    const QString release = QString::fromLatin1(osRelease.readAll()).trimmed();
    qint64 major = 0, minor = 0, bugFix = 0;
    QVERIFY(GlobalFun::getMajorMinorBugFix(&major, &minor, &bugFix));
    QVERIFY2(release.startsWith(QStringLiteral("%1.%2").arg(major).arg(minor)),
             qPrintable(release));
    QCOMPARE(GlobalFun::getSystemVersionString(),
             QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(bugFix));
}

void GlobalFunIdentityTest::computerModelFallsBackToPC() {
    QTemporaryDir dir;
    const QString named = dir.filePath("named");
    const QString blank = dir.filePath("blank");
    QFile file(named);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("ThinkStation P360\n");
    file.close();
    QFile empty(blank);
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
    QCOMPARE(GlobalFun::computerModelFromFile(named), QStringLiteral("ThinkStation P360"));
    QCOMPARE(GlobalFun::computerModelFromFile(blank), QStringLiteral("PC"));
    QCOMPARE(GlobalFun::computerModelFromFile(dir.filePath("missing")), QStringLiteral("PC"));
    QVERIFY(!GlobalFun::computerModel().isEmpty());
}

SONORIA_TEST_MAIN(GlobalFunIdentityTest)
#include "tst_globalfun_identity.moc"
