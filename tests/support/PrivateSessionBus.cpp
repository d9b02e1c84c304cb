#include "support/PrivateSessionBus.h"

#include <csignal>
#include <sys/prctl.h>

namespace SonoriaTest {

PrivateSessionBus::~PrivateSessionBus() {
    if (m_daemon.state() != QProcess::NotRunning) {
        m_daemon.terminate();
        m_daemon.waitForFinished(3000);
    }
}

bool PrivateSessionBus::start() {
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A test that crashes runs no destructor: the daemon, holding the test's output pipe, would
    // keep CTest waiting for the end of a test that is long dead.
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    if (!m_daemon.waitForStarted(5000))
        return false;
    while (!m_daemon.canReadLine()) {
        if (!m_daemon.waitForReadyRead(5000))
            return false;
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    if (m_address.isEmpty())
        return false;
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toUtf8());
    return true;
}

} // namespace SonoriaTest
