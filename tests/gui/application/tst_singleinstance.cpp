#include "base/SXSettings.h"
#include "desktop/SXSingleInstance.h"
#include "gui/application/SXDesktopApp.h"
#include "model/SXMusicInfo.h"
#include "support/PrivateSessionBus.h"
#include "support/gui/GuiTestSupport.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// Paths of the items in the window's selected container, in order.
QStringList listedPaths(SXWorkspace& workspace) {
    QStringList paths;
    for (const SXMusicInfoPtr& item : workspace.store().getCurTableDatasource())
        paths.append(item->strFilePath());
    return paths;
}

} // namespace

// One Sonoria per session: this process plays the running program (the application with its
// window, holding the bus name of a private session bus) and the real `sonoria` executable is
// started beside it as a user or a file manager would start it.
class TestSingleInstance : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_bus.start());
        // The program started beside this test shares its settings store: no start-up requests.
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, QString());
        m_app = std::make_unique<SXDesktopApp>();
        m_app->start({}, false);
        becomeTheRunningInstance();
    }
    void cleanupTestCase() {
        m_instance.reset();
        m_app.reset();
    }
    void secondStartRevivesTheClosedWindowAndHandsItsFilesToTheFirst() {
        SXMainAppController* window = m_app->coreWindow();
        window->close(); // empty: closes without asking
        QTRY_VERIFY(!window->isVisible());

        QCOMPARE(runProgram({}, m_media.path()), 0);
        QTRY_VERIFY(window->isVisible());
        QCOMPARE(m_app->coreWindow(), window); // revived, not replaced
        QVERIFY(workspace().isRegistered());

        // A relative name with a space and a non-ASCII letter: made absolute by the second start,
        // carried as a file:// URI and back.
        const QString name = u"Café au lait.wav"_s;
        QVERIFY(SonoriaTest::makeTone(m_media.filePath(name), 1.0));

        QCOMPARE(runProgram({name}, m_media.path()), 0);
        waitUntilListed({m_media.filePath(name)});
    }
    void filesHandedOverDuringALoadFollowIt() {
        const QString first = m_media.filePath(u"first.wav"_s);
        const QString second = m_media.filePath(u"second.wav"_s);
        QVERIFY(SonoriaTest::makeTone(first, 1.0) && SonoriaTest::makeTone(second, 1.0));
        const QStringList before = listedPaths(workspace());

        m_app->openFiles({first});
        QCOMPARE(workspace().store().enumAppState(), int(AppStateLoading));
        m_app->openFiles({second}); // arrives while the first batch is being probed
        waitUntilListed(before + QStringList{first, second});
    }
    void openFromTheDesktopTakesLocalFilesOnly() {
        // As a desktop shell calls it: URIs, percent-encoded, and not all of them local.
        const QString local = m_media.filePath(u"from shell #1.wav"_s);
        QVERIFY(SonoriaTest::makeTone(local, 1.0));
        const QStringList before = listedPaths(workspace());
        QDBusConnection shell = QDBusConnection::connectToBus(m_bus.address(), u"shell"_s);
        QDBusMessage open = QDBusMessage::createMethodCall(
            SXSingleInstance::serviceName, SXSingleInstance::objectPath,
            u"org.freedesktop.Application"_s, u"Open"_s);
        open << QStringList{u"sftp://host/remote.wav"_s,
                            QUrl::fromLocalFile(local).toString(QUrl::FullyEncoded)}
             << QVariantMap{{u"desktop-startup-id"_s, u"test"_s}};
        const QDBusPendingCall reply = shell.asyncCall(open);
        QTRY_VERIFY(reply.isFinished());
        QVERIFY2(!reply.isError(), qPrintable(reply.error().message()));
        QDBusConnection::disconnectFromBus(u"shell"_s);

        waitUntilListed(before + QStringList{local});
    }
    void secondStartRunsAloneWhenNobodyAnswers_data() {
        QTest::addColumn<bool>("busAvailable");
        QTest::newRow("no session bus") << false;
        QTest::newRow("name held by a program that does not answer") << true;
    }
    void secondStartRunsAloneWhenNobodyAnswers() {
        QFETCH(bool, busAvailable);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        m_instance.reset();
        QDBusConnection stranger = QDBusConnection::connectToBus(m_bus.address(), u"stranger"_s);
        if (busAvailable)
            QVERIFY(stranger.registerService(SXSingleInstance::serviceName));
        else
            environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                               u"unix:path="_s + m_media.filePath(u"no-bus"_s));
        const QString tone = m_media.filePath(u"alone.wav"_s);
        QVERIFY(QFile::exists(tone) || SonoriaTest::makeTone(tone, 1.0));
        // The program's picture of its own window, taken once the file is listed, proves it started
        // a window of its own; then it ends by itself.
        const QString picture = m_media.filePath(u"alone-%1.png"_s.arg(busAvailable));
        environment.insert(u"SONORIA_SCREENSHOT"_s, picture);

        const int exitCode = runProgram({tone}, m_media.path(), environment);
        stranger.unregisterService(SXSingleInstance::serviceName);
        QDBusConnection::disconnectFromBus(u"stranger"_s);
        becomeTheRunningInstance();

        QCOMPARE(exitCode, 0);
        const QImage window(picture);
        QVERIFY2(window.width() > 300 && window.height() > 200, qPrintable(picture));
    }
    void withoutDisplayItPointsToTheTerminalTool_data() {
        QTest::addColumn<QString>("platformVariable");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("errorText");
        const QString refusal = u"sonoria: cannot open a window (no display). Use sonoria-cli to "
                                u"convert from a terminal.\n"_s;
        QTest::newRow("nothing to draw on") << QString() << QStringList() << 1 << refusal;
        QTest::newRow("files named") << QString() << QStringList{u"a.wav"_s} << 1 << refusal;
        QTest::newRow("help needs no display")
            << QString() << QStringList{u"--help"_s} << 0 << QString();
        // A chosen platform is Qt's business: the start goes on and hands over to this process.
        QTest::newRow("platform in the environment")
            << u"offscreen"_s << QStringList() << 0 << QString();
        QTest::newRow("platform argument")
            << QString() << QStringList{u"-platform"_s, u"offscreen"_s} << 0 << QString();
    }
    void withoutDisplayItPointsToTheTerminalTool() {
        QFETCH(QString, platformVariable);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, errorText);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        if (!platformVariable.isEmpty())
            environment.insert(u"QT_QPA_PLATFORM"_s, platformVariable);

        QString error;
        QCOMPARE(runProgram(arguments, m_media.path(), environment, &error), exitCode);
        if (!errorText.isEmpty())
            QCOMPARE(error, errorText);
        else
            QVERIFY2(!error.contains(u"no display"_s), qPrintable(error));
    }

private:
    // Starts the real program and waits, with this process's event loop running (it answers the
    // program's call), until it ends. Returns its exit code, -1 when it did not end; its
    // standard error goes to *error when given, to this test's output otherwise.
    int
    runProgram(const QStringList& arguments, const QString& workingDir,
               const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
               QString* error = nullptr) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(workingDir);
        program.setProcessChannelMode(error ? QProcess::ForwardedOutputChannel
                                            : QProcess::ForwardedChannels);
        QElapsedTimer clock;
        clock.start();
        program.start(QStringLiteral(SONORIA_APP_PATH), arguments);
        const bool ended =
            QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, 60000);
        qInfo("sonoria %s ended after %lld ms", qPrintable(arguments.join(u' ')), clock.elapsed());
        if (!ended) {
            program.kill();
            program.waitForFinished();
            return -1;
        }
        if (error)
            *error = QString::fromUtf8(program.readAllStandardError());
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    // Waits until the window lists `expected` and its add run is over.
    void waitUntilListed(const QStringList& expected) {
        QTRY_COMPARE_WITH_TIMEOUT(listedPaths(workspace()), expected, 20000);
        QTRY_COMPARE(workspace().store().enumAppState(), int(AppStateIdle));
    }
    void becomeTheRunningInstance() {
        m_instance = std::make_unique<SXSingleInstance>();
        QVERIFY(m_instance->claim());
        connect(m_instance.get(), &SXSingleInstance::openRequested, m_app.get(),
                &SXDesktopApp::openFiles);
    }
    SXWorkspace& workspace() const { return m_app->coreWindow()->workspace(); }

    SonoriaTest::PrivateSessionBus m_bus;
    QTemporaryDir m_media;
    std::unique_ptr<SXDesktopApp> m_app;
    std::unique_ptr<SXSingleInstance> m_instance;
};

SONORIA_GUI_TEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
