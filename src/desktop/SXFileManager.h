#pragma once

#include <QString>
#include <QUrl>

// The desktop's file manager and browser, over the session bus where it answers. Nothing here
// waits for the other side: a call that cannot be made falls back at once.
class SXFileManager {
public:
    // Selects `path` in a file manager window (org.freedesktop.FileManager1.ShowItems); without
    // such a service, opens the folder that holds it. False when neither could be asked.
    static bool revealItem(const QString& path);
    // Opens a folder in the file manager.
    static bool openFolder(const QString& path);
    // Opens a web page or a mail address in the user's program for it.
    static bool openUrl(const QUrl& url);

    // Tests and headless runs set SONORIA_NO_DESKTOP_OPEN=1: nothing is opened, the calls are
    // only logged, so a test run never starts a file manager or browser.
    static bool openingSuppressed();
};
