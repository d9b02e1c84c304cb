#pragma once

#include <QObject>

class QSocketNotifier;

// Turns SIGINT and SIGTERM into a Qt signal on the main thread. The handler only writes the
// signal number into a pipe (async-signal-safe); a socket notifier reads it in the event loop.
class CliSignalWatcher : public QObject {
    Q_OBJECT
public:
    explicit CliSignalWatcher(QObject* parent = nullptr);
    ~CliSignalWatcher() override;

    // Installs the handlers; false when the pipe or a handler could not be set up.
    bool install();

Q_SIGNALS:
    void received(int signalNumber);

private:
    void readPipe();
    QSocketNotifier* m_notifier = nullptr;
};
