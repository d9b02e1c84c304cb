#pragma once

#include "workspace/SXWindowRegistry.h"
#include "workspace/SXWorkspaceScheduler.h"

#include <functional>

// One workspace: what a workspace window shows and decides, without the window. It owns its
// containers, their items, the loader of an add run, the conversion queue and the refresh timer,
// and registers itself in the catalogue's window registry while it lives. The desktop window is
// a view over it; the command-line tool drives it directly.
//
// A headless run: set a presenter, addDefaultTabs(), selectContainer(name),
// loadAndParseFiles(paths) and wait for loadFinished(); then doRealConverterTask(folder) (or
// toggleRun(), which asks the presenter for the folder) and wait for runFinished() or for
// appStateChanged(AppStateIdle). Everything is called on the thread that runs the event loop.
class SXWorkspace : public SXWorkspaceScheduler, public SXWindowController {
    Q_OBJECT
public:
    explicit SXWorkspace(QObject* parent = nullptr);
    ~SXWorkspace() override;

    // Removes every container and opens the fixed ones again, empty.
    void reNewDefaultWindow();
    // Asked before the window closes: the last workspace with items asks the user first and
    // then empties its containers. `decided` hears true when the workspace may go (it has
    // unregistered then); it may be called before this returns.
    void windowShouldClose(std::function<void(bool mayClose)> decided);
    // The window that shows this workspace registers again after it was closed and revived.
    void registerAgain();
    bool isRegistered() const { return m_registered; }

    // SXWindowController: answered by the window that shows this workspace; a workspace
    // without a window is never key.
    bool isKeyWindow() const override { return m_isKeyWindow && m_isKeyWindow(); }
    void setKeyWindowTest(std::function<bool()> test) { m_isKeyWindow = std::move(test); }

Q_SIGNALS:
    // The last open workspace is closing: the application adjusts its menus.
    void lastWorkspaceClosing();

private:
    void closeAfterAnswer(bool last);

    bool m_registered = false;
    std::function<bool()> m_isKeyWindow;
};
