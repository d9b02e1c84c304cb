#pragma once

#include "workspace/SXCommandValidation.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class SXStartupReport;
class SXMainAppController;
class SXMenuHandler;
class SXPreferencesDialog;
class SXWorkspace;

// The application: starts the program in its fixed order, keeps the one primary workspace
// window (revived by "New Container", never replaced), routes every menu command to the
// workspace window that is key, and keeps the menus validated.
class SXDesktopApp final : public QObject {
    Q_OBJECT
public:
    explicit SXDesktopApp(QObject* parent = nullptr);
    ~SXDesktopApp() override;

    // The whole start-up: the window first, then the preference defaults, then the default
    // output folder and the start-up requests (only when `contactService`). `files` go into the
    // selected container.
    void start(const QStringList& files, bool contactService = true);

    SXMainAppController* coreWindow() const;
    SXMenuHandler& menus() const { return *m_menus; }
    SXPreferencesDialog* preferencesDialog() const;
    // The workspace window whose window is key, if any.
    SXMainAppController* keyWindowController() const;

    // Files handed over by another start ("Open With", `sonoria FILE`): the primary window,
    // revived when it was closed, comes forward and adds them to its selected container, once
    // a load or a run in progress is over. Empty: only the window comes forward.
    void openFiles(const QStringList& paths);

    // Every conversion of every workspace window is stopped as Stop stops it, and the children
    // are waited for (asked to stop, killed after a grace): when this returns no child is left
    // and their partial files are gone. Windows and their lists stay as they are. Blocks the
    // main thread for as long as the children take to go.
    void stopEveryRun();
    // SIGTERM, SIGHUP or SIGINT (SXSignalWatcher): every run is stopped (stopEveryRun), then the
    // program ends without asking anything, with exitStatusForSignal.
    void quitForSignal(int signalNumber);
    // 0 after SIGTERM and SIGHUP: the system or the session asked the program to end (kill,
    // logout, shutdown, a closed terminal) and it ended as asked, like Quit. 130 (128 + SIGINT)
    // after Ctrl-C on a terminal, as a shell and sonoria-cli report an interrupted command.
    static int exitStatusForSignal(int signalNumber);

    // The menus, their shortcuts and the toolbars' application buttons: the application's own
    // commands (sxIsApplicationCommand) are answered here; a command SXCommandValidation
    // refuses beeps; the rest go to the key window. Nothing comes back here from a window.
    void perform(SXCommand command);
    void clickNewWindow();
    void clickPreference();
    void configerMenuForState(bool open);
    // Validates every menu item now; it never beeps.
    void validateMenus();
    // What validation reads now: the primary window's workspace and the key window's.
    SXCommandContext commandContext() const;

private:
    void newWindow();
    void applicationDidFinishLaunching(bool contactService);
    void loadPendingFiles();

    SXMenuHandler* m_menus = nullptr;
    QPointer<SXMainAppController> m_coreWindow;
    QPointer<SXPreferencesDialog> m_preferencesDialog;
    SXStartupReport* m_appHelper = nullptr;
    bool m_primaryOpen = true;
    QStringList m_pendingFiles;
};
