#pragma once

#include <QProcess>
#include <QString>

namespace SonoriaTest {

// A session bus of the test's own (dbus-daemon with the session configuration), made the
// process's session bus. Start it before anything connects to the session bus: Qt reads the
// address once.
class PrivateSessionBus {
public:
    PrivateSessionBus() = default;
    ~PrivateSessionBus();
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;

    // Starts the daemon and sets DBUS_SESSION_BUS_ADDRESS; false when it could not start.
    bool start();
    QString address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace SonoriaTest
