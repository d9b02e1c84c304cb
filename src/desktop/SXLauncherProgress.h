#pragma once

#include <QString>

// The run's progress on the application's launcher (task manager entry or dock icon), told with
// the com.canonical.Unity.LauncherEntry "Update" signal that KDE Plasma and the dock extensions
// listen to. A signal needs no listener: without one, or without a session bus, nothing happens.
class SXLauncherProgress {
public:
    // The launcher of `desktopFileName` ("app.sonoria.Sonoria"); empty: the application's own.
    explicit SXLauncherProgress(QString desktopFileName = {});

    // Shows the bar at `fraction` (0..1; a value that is not a number shows 0).
    void showProgress(double fraction);
    // Hides the bar again.
    void hide();

    // "application://<desktop file name>.desktop", the entry the listeners match.
    QString appUri() const;

private:
    void send(double fraction, bool visible);

    QString m_desktopFileName;
    double m_lastFraction = -1.0;
    bool m_visible = false;
};
