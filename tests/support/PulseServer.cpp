#include "PulseServer.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <csignal>
#include <sys/prctl.h>

namespace SonoriaTest {

PulseServer::~PulseServer() {
    m_keeper.kill();
    m_keeper.waitForFinished();
    if (m_server.state() == QProcess::NotRunning)
        return;
    m_server.terminate();
    if (!m_server.waitForFinished(5000)) {
        m_server.kill();
        m_server.waitForFinished();
    }
}

PulseServer& PulseServer::forThisProcess() {
    static PulseServer server;
    return server;
}

bool PulseServer::start(QString* why) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("pulseaudio"));
    if (program.isEmpty()) {
        *why = QStringLiteral("pulseaudio is not installed (scripts/setup.sh installs it)");
        return false;
    }
    const QString socket = m_runtime.filePath(QStringLiteral("native"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_runtime.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_runtime.path());
    m_server.setProcessEnvironment(environment);
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    // A crashed test runs no destructor; the server and its keeper end with it all the same.
    const auto endWithTheTest = [] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); };
    m_server.setChildProcessModifier(endWithTheTest);
    m_server.start(
        program, {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                  QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--disable-shm=yes"),
                  QStringLiteral("--log-level=1"), QStringLiteral("-L"),
                  QStringLiteral("module-null-sink sink_name=sonoria_test"), QStringLiteral("-L"),
                  QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + socket});
    const QDeadlineTimer deadline(10000);
    while (!QFileInfo::exists(socket) && m_server.state() != QProcess::NotRunning &&
           !deadline.hasExpired())
        QThread::msleep(20);
    if (!QFileInfo::exists(socket)) {
        *why = QStringLiteral("pulseaudio did not start: %1")
                   .arg(QString::fromLocal8Bit(m_server.readAll()));
        return false;
    }
    qputenv("PULSE_SERVER", ("unix:" + socket).toLocal8Bit());
    // An idle null sink renders in blocks of two seconds (the first one from its start), so a
    // new stream would wait up to that long before it moves; a real device starts at once. A
    // silent stream of our own keeps the sink rendering in short blocks, as a device would,
    // once the first block is over.
    const QString pacat = QStandardPaths::findExecutable(QStringLiteral("pacat"));
    if (!pacat.isEmpty()) {
        m_keeper.setProcessEnvironment(environment);
        m_keeper.setStandardInputFile(QStringLiteral("/dev/zero"));
        m_keeper.setChildProcessModifier(endWithTheTest);
        m_keeper.start(pacat, {QStringLiteral("--server=unix:") + socket,
                               QStringLiteral("--latency-msec=20"), QStringLiteral("--raw")});
        m_keeper.waitForStarted();
    }
    QThread::msleep(2100);
    return true;
}

void useNoSoundServer() {
    qputenv("PULSE_SERVER", "unix:/nonexistent/sonoria/no-sound-server");
}

} // namespace SonoriaTest
