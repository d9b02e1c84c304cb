#include "base/SXSettings.h"
#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <csignal>

using namespace Qt::StringLiterals;

// Both programs interrupted from outside while they convert: signals from the user, the terminal
// or the system, and a reader that goes away. Every child goes with them, and what they leave on
// disk is whole or nothing.
class TestAppSignals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        // The window shares this test's settings store: no start-up requests.
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, QString());
        SXSettings::synchronize();
        // Two conversions at once, each long enough to be under way when the signal comes.
        for (const QString& name : {u"long one.wav"_s, u"long two.wav"_s}) {
            m_sources.append(m_dir.filePath(name));
            QVERIFY(SonoriaTest::makeTone(m_sources.last(), 120.0));
        }
    }
    void signalCancelsAndLeavesNothing_data() {
        QTest::addColumn<bool>("window");
        QTest::addColumn<int>("signalNumber");
        QTest::addColumn<int>("status");
        // The window, asked to end by the system or the session (kill, logout, a closed
        // terminal), ends as asked, like Quit; the tool takes it as a failed run. Ctrl-C on the
        // terminal that started either: an interrupted command.
        QTest::newRow("window SIGTERM") << true << int(SIGTERM) << 0;
        QTest::newRow("window SIGHUP") << true << int(SIGHUP) << 0;
        QTest::newRow("window SIGINT") << true << int(SIGINT) << 130;
        QTest::newRow("tool SIGTERM") << false << int(SIGTERM) << 1;
        QTest::newRow("tool SIGHUP") << false << int(SIGHUP) << 1;
        QTest::newRow("tool SIGINT") << false << int(SIGINT) << 130;
    }
    void signalCancelsAndLeavesNothing() {
        QFETCH(bool, window);
        QFETCH(int, signalNumber);
        QFETCH(int, status);
        const QString out = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
        QProcessEnvironment environment = SonoriaTest::cliEnvironment();
        // The window's run starts without asking for a folder (app/RunFromEnvironment.h); with no
        // session bus it runs alone instead of handing its files to another Sonoria.
        environment.insert(u"SONORIA_TEST_RUN_INTO"_s, out);
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                           u"unix:path="_s + m_dir.filePath(u"no-bus"_s));
        environment.insert(u"SONORIA_NO_DESKTOP_OPEN"_s, u"1"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        if (window)
            program.start(QStringLiteral(SONORIA_APP_PATH), m_sources);
        else
            program.start(QStringLiteral(SONORIA_CLI_PATH),
                          QStringList{"-j", "2", "--no-organize", "-o", out} + m_sources);
        QVERIFY(program.waitForStarted());
        const auto killProgram = qScopeGuard([&program] {
            program.kill();
            program.waitForFinished();
        });

        // Converting: both ffmpeg children run and have their hidden output files.
        QTRY_COMPARE_WITH_TIMEOUT(SonoriaTest::childProcesses(program.processId()).size(), 2,
                                  60000);
        QTRY_COMPARE_WITH_TIMEOUT(SonoriaTest::filesBelow(out).size(), 2, 10000);
        QVERIFY(!QFileInfo::exists(out + u"/long one.mp3"_s));
        const QList<qint64> children = SonoriaTest::childProcesses(program.processId());

        ::kill(static_cast<pid_t>(program.processId()), signalNumber);
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), status);
        if (!window)
            QVERIFY(QString::fromUtf8(program.readAllStandardOutput())
                        .contains(u"cancelled: "_s + m_sources.first()));
        for (const qint64 child : children)
            QVERIFY(!SonoriaTest::processIsAlive(child));
        QCOMPARE(SonoriaTest::processesMentioning(out), QList<qint64>());
        QCOMPARE(SonoriaTest::filesBelow(out), QStringList());
    }
    void closedOutputPipeDoesNotStopTheTool() {
        // Two at a time: the short files' lines come while the long file is being converted. The
        // reader takes one byte of the first line and goes, so the second line is written into a
        // pipe nobody reads any more, and so are the long file's line and the summary.
        const QString out = m_dir.filePath(u"closed pipe"_s);
        const QString first = m_dir.filePath(u"plain tone.wav"_s);
        const QString second = m_dir.filePath(u"second tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(first, 1.0) && SonoriaTest::makeTone(second, 2.0));
        // The tool and its arguments reach the shell as its own arguments, never quoted into it.
        const SonoriaTest::RunResult result = SonoriaTest::runProgram(
            u"bash"_s,
            {u"-c"_s, u"\"$@\" | head -c1; exit \"${PIPESTATUS[0]}\""_s, u"bash"_s,
             QStringLiteral(SONORIA_CLI_PATH), u"-j"_s, u"2"_s, u"--no-organize"_s, u"-o"_s, out,
             first, m_sources.first(), second},
            SonoriaTest::cliEnvironment());
        QCOMPARE(result.out, u"d"_s); // of "done: "
        SONORIA_COMPARE_EXIT(result, 0);
        // Every file whole: as long as its source.
        const QList<std::pair<QString, double>> durations{
            {u"long one.mp3"_s, 120.0}, {u"plain tone.mp3"_s, 1.0}, {u"second tone.mp3"_s, 2.0}};
        QCOMPARE(SonoriaTest::filesBelow(out).size(), durations.size());
        for (const auto& [name, seconds] : durations) {
            const double shown = ProbeReference::read(out + u'/' + name).duration;
            QVERIFY2(qAbs(shown - seconds) < 0.2, qPrintable(name + u' ' + QString::number(shown)));
        }
    }

private:
    QTemporaryDir m_dir;
    QStringList m_sources;
};

SONORIA_TEST_MAIN(TestAppSignals)
#include "tst_appsignals.moc"
