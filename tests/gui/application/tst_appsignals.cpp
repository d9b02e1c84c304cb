#include "base/SXSettings.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <csignal>

using namespace Qt::StringLiterals;

// The real `sonoria` program, converting, is sent a termination signal: it does what Stop does
// in its window and ends, leaving neither a child nor a partial file.
class TestAppSignals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        // The program shares this test's settings store: no start-up requests.
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, QString());
        SXSettings::synchronize();
        // Two conversions at once, each long enough to be under way when the signal comes.
        QVERIFY(QDir().mkpath(m_dir.filePath(u"sources"_s)));
        for (const QString& name : {u"long one.wav"_s, u"long two.wav"_s}) {
            m_sources.append(m_dir.filePath(u"sources/"_s + name));
            QVERIFY(SonoriaTest::makeTone(m_sources.last(), 120.0));
        }
    }
    void signalStopsTheRunAndEndsTheProgram_data() {
        QTest::addColumn<int>("signalNumber");
        QTest::addColumn<int>("status");
        // Asked to end by the system or the session (kill, logout, a closed terminal): it ends as
        // asked, like Quit. Ctrl-C on the terminal that started it: an interrupted command.
        QTest::newRow("SIGTERM") << int(SIGTERM) << 0;
        QTest::newRow("SIGHUP") << int(SIGHUP) << 0;
        QTest::newRow("SIGINT") << int(SIGINT) << 130;
    }
    void signalStopsTheRunAndEndsTheProgram() {
        QFETCH(int, signalNumber);
        QFETCH(int, status);
        const QString out = m_dir.filePath(u"out-%1"_s.arg(signalNumber));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // The run starts without asking for a folder (app/RunFromEnvironment.h).
        environment.insert(u"SONORIA_TEST_RUN_INTO"_s, out);
        // No session bus: the program runs alone instead of handing its files to another Sonoria.
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                           u"unix:path="_s + m_dir.filePath(u"no-bus"_s));
        environment.insert(u"SONORIA_NO_DESKTOP_OPEN"_s, u"1"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral(SONORIA_APP_PATH), m_sources);
        QVERIFY(program.waitForStarted());
        const auto killProgram = qScopeGuard([&program] {
            program.kill();
            program.waitForFinished();
        });

        // Converting: both ffmpeg children run and have their output files.
        QTRY_COMPARE_WITH_TIMEOUT(SonoriaTest::childProcesses(program.processId()).size(), 2,
                                  60000);
        QTRY_COMPARE_WITH_TIMEOUT(SonoriaTest::filesBelow(out).size(), 2, 10000);
        const QList<qint64> children = SonoriaTest::childProcesses(program.processId());

        ::kill(static_cast<pid_t>(program.processId()), signalNumber);
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), status);
        for (const qint64 child : children)
            QVERIFY(!SonoriaTest::processIsAlive(child));
        QCOMPARE(SonoriaTest::processesMentioning(out), QList<qint64>());
        QCOMPARE(SonoriaTest::filesBelow(out), QStringList());
    }

private:
    QTemporaryDir m_dir;
    QStringList m_sources;
};

SONORIA_TEST_MAIN(TestAppSignals)
#include "tst_appsignals.moc"
