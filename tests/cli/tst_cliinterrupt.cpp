#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

// The tool interrupted from outside: signals from the user, the terminal or the system, and a
// reader that goes away. Every child goes with it, and what it leaves on disk is whole or nothing.
class TestCliInterrupt : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_work.isValid());
        QVERIFY(SonoriaTest::makeTone(source(u"plain tone.wav"_s), 1.0, {"-ac", "2"}));
        m_long = fresh(u"long.wav"_s);
        QVERIFY(SonoriaTest::makeTone(m_long, 60.0));
    }
    void signalCancelsAndRemovesPartialOutput_data() {
        QTest::addColumn<int>("signalNumber");
        QTest::addColumn<int>("status");
        QTest::newRow("SIGTERM") << int(SIGTERM) << 1;
        QTest::newRow("SIGINT") << int(SIGINT) << 130;
        // The terminal was closed: as for SIGTERM.
        QTest::newRow("SIGHUP") << int(SIGHUP) << 1;
    }
    void signalCancelsAndRemovesPartialOutput() {
        QFETCH(int, signalNumber);
        QFETCH(int, status);
        const QString out = fresh(u"signal-%1"_s.arg(signalNumber));
        QProcess process;
        process.setProcessEnvironment(SonoriaTest::cliEnvironment());
        process.start(QStringLiteral(SONORIA_CLI_PATH), {"--no-organize", "-o", out, m_long});
        QVERIFY(process.waitForStarted());
        // The hidden temporary file is made just before ffmpeg starts: the conversion is under way.
        const auto everything = [&out] {
            return QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        };
        QTRY_VERIFY_WITH_TIMEOUT(!everything().isEmpty(), 60000);
        QTRY_VERIFY(!SonoriaTest::childProcesses(process.processId()).isEmpty());
        QVERIFY(!QFileInfo::exists(out + u"/long.mp3"_s));
        ::kill(pid_t(process.processId()), signalNumber);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), status);
        QVERIFY(
            QString::fromUtf8(process.readAllStandardOutput()).contains(u"cancelled: "_s + m_long));
        QCOMPARE(everything(), QStringList());
        // No ffmpeg writing into the folder is left.
        QCOMPARE(SonoriaTest::processesMentioning(out), QList<qint64>());
    }
    void closedOutputPipeDoesNotStopTheRun() {
        // Two at a time: the short files' lines come while the long file is being converted. The
        // reader takes one byte of the first line and goes, so the second line is written into a
        // pipe nobody reads any more, and so are the long file's line and the summary.
        const QString out = fresh(u"closed pipe"_s);
        const QString second = fresh(u"second tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(second, 2.0));
        QProcessEnvironment env = SonoriaTest::cliEnvironment();
        env.insert(u"CLI"_s, QStringLiteral(SONORIA_CLI_PATH));
        env.insert(u"OUT"_s, out);
        env.insert(u"FIRST"_s, source(u"plain tone.wav"_s));
        env.insert(u"LONG"_s, m_long);
        env.insert(u"SECOND"_s, second);
        const SonoriaTest::RunResult result =
            SonoriaTest::runProgram(u"bash"_s,
                                    {u"-c"_s, u"\"$CLI\" -j 2 --no-organize -o \"$OUT\" "
                                              u"\"$FIRST\" \"$LONG\" \"$SECOND\" | head -c1\n"
                                              u"exit \"${PIPESTATUS[0]}\""_s},
                                    env);
        QCOMPARE(result.out, u"d"_s); // of "done: "
        SONORIA_COMPARE_EXIT(result, 0);
        // Every file whole: as long as its source.
        QCOMPARE(SonoriaTest::filesBelow(out, true),
                 (QStringList{u"long.mp3"_s, u"plain tone.mp3"_s, u"second tone.mp3"_s}));
        const QList<std::pair<QString, double>> durations{
            {u"long.mp3"_s, 60.0}, {u"plain tone.mp3"_s, 1.0}, {u"second tone.mp3"_s, 2.0}};
        for (const auto& [name, seconds] : durations) {
            const double shown = ProbeReference::read(out + u'/' + name).duration;
            QVERIFY2(qAbs(shown - seconds) < 0.2, qPrintable(name + u' ' + QString::number(shown)));
        }
    }

private:
    QString fresh(const QString& name) const { return m_work.path() + u'/' + name; }
    QString source(const QString& name) const { return fresh(name); }

    QTemporaryDir m_work;
    QString m_long;
};

SONORIA_TEST_MAIN(TestCliInterrupt)
#include "tst_cliinterrupt.moc"
