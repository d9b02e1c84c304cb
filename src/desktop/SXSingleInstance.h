#pragma once

#include <QObject>
#include <QStringList>

// One Sonoria per desktop session. The first program owns the session-bus name
// app.sonoria.Sonoria and answers org.freedesktop.Application at /app/sonoria/Sonoria, the
// interface desktop shells and file managers use to hand files to a running application; a later
// start hands its files over and ends. Without a session bus every start is a first one.
class SXSingleInstance final : public QObject {
    Q_OBJECT
public:
    static const QString serviceName; // "app.sonoria.Sonoria"
    static const QString objectPath;  // "/app/sonoria/Sonoria"

    explicit SXSingleInstance(QObject* parent = nullptr);
    ~SXSingleInstance() override;

    // Exports the interface and claims the name. False when another process holds the name or
    // there is no session bus; this process then answers nobody.
    bool claim();

    // Asks the running instance to open `paths` (Open with file:// URIs) or, without paths, to
    // come forward (Activate). True when it answered within `timeoutMs`.
    static bool handOver(const QStringList& paths, int timeoutMs = 5000);

    // Local file paths of the file:// URIs among `uris`, in order; other schemes are skipped.
    static QStringList localPaths(const QStringList& uris);

Q_SIGNALS:
    // Another start asked for `paths` (local files and folders, absolute) to be opened; empty:
    // it only asked for the window.
    void openRequested(const QStringList& paths);

private:
    bool m_claimed = false;
};
