#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace SonoriaTest {

// A private PulseAudio server with one null sink, for tests that play sound: it consumes audio
// in real time and plays nothing aloud. Its socket lives in a temporary runtime folder and
// PULSE_SERVER points there, so the test never reaches the desktop's own server. Start it
// before anything asks Qt Multimedia for a device.
class PulseServer {
public:
    PulseServer() = default;
    ~PulseServer();
    PulseServer(const PulseServer&) = delete;
    PulseServer& operator=(const PulseServer&) = delete;

    // False with *why set when PulseAudio is missing or does not come up.
    bool start(QString* why);

    // The server of this test process. It is destroyed after main() returns, so after the
    // application and Qt's audio engine have let go of it: a server stopped under a connected
    // client makes the PulseAudio client library abort at exit.
    static PulseServer& forThisProcess();

private:
    QTemporaryDir m_runtime;
    QProcess m_server;
    QProcess m_keeper;
};

// Points the process at a sound server that cannot exist, so that no output device is found.
void useNoSoundServer();

} // namespace SonoriaTest
