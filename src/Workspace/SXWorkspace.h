#pragma once

#include "Model/SXWindowController.h"
#include "Workspace/SXWorkspaceScheduler.h"

// One workspace: what a workspace window shows and decides, without the window. It owns its
// containers, their items, the loader of an add run, the conversion queue and the refresh timer,
// and registers itself in the catalogue's window registry while it lives. The desktop window is
// a view over it; the command-line tool drives it directly.
//
// A headless run: set a presenter, addDefaultTabs(), selectContainer(name),
// loadAndParseFiles(paths) and wait for loadFinished(); then doRealConverterTask(folder) (or
// clickStart(), which asks the presenter for the folder) and wait for runFinished() or for
// appStateChanged(AppStateIdle). Everything is called on the thread that runs the event loop.
class SXWorkspace : public SXWorkspaceScheduler, public SXWindowController {
    Q_OBJECT
public:
    explicit SXWorkspace(QObject* parent = nullptr);
    ~SXWorkspace() override;

    // Removes every container and opens the fixed ones again, empty.
    void reNewDefaultWindow();
    // Asked before the window closes: the last workspace with items asks the user first and
    // then empties its containers. True when the workspace may go (it has unregistered then).
    bool windowShouldClose();

    // SXWindowController: the window that shows this workspace knows better.
    bool isKeyWindow() const override { return false; }

Q_SIGNALS:
    // The last open workspace is closing: the application adjusts its menus.
    void lastWorkspaceClosing();

private:
    bool m_registered = false;
};
