#pragma once

#include "workspace/SXAddRun.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXContainerTabs.h"
#include "workspace/SXItemMoves.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/SXWorkspacePreview.h"
#include "workspace/SXWorkspaceScheduler.h"

#include <functional>

// One workspace: what a workspace window shows and decides, without the window. It is made of
// parts, each a QObject that owns one concern and reaches the others only through the
// references it was built with:
//
//   store()     SXContainerStore      the tabs, the items and choices of every container, the
//                                     selection, the state, the lock and the change signals
//   tabs()      SXContainerTabs       opening, selecting and closing containers
//   addRun()    SXAddRun              adding files (the loader), removing items, the tag
//                                     editor's steps
//   moves()     SXItemMoves           drops and moves between containers and workspaces
//   preview()   SXWorkspacePreview    playing an item with the shared player
//   scheduler() SXWorkspaceScheduler  the conversion run
//
// The workspace builds them in that order of dependence, gives every view the parts it needs,
// and itself keeps only what concerns the whole: its place in the catalogue's window registry
// and the decision to close. The desktop window is a view over it; the command-line tool drives
// it directly.
//
// A headless run: set a presenter on the store, tabs().addDefaultTabs(),
// tabs().selectContainer(name), addRun().loadAndParseFiles(paths) and wait for loadFinished();
// then scheduler().doRealConverterTask(folder) (or toggleRun(), which asks the presenter for the
// folder) and wait for runFinished() or for the store's appStateChanged(AppStateIdle).
// Everything is called on the thread that runs the event loop.
class SXWorkspace final : public QObject, public SXWindowController {
    Q_OBJECT
public:
    explicit SXWorkspace(QObject* parent = nullptr);
    ~SXWorkspace() override;

    SXContainerStore& store() { return m_store; }
    const SXContainerStore& store() const { return m_store; }
    SXContainerTabs& tabs() { return m_tabs; }
    SXAddRun& addRun() { return m_addRun; }
    SXItemMoves& moves() { return m_moves; }
    SXWorkspacePreview& preview() { return m_preview; }
    SXWorkspaceScheduler& scheduler() { return m_scheduler; }

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

    // Built in this order and destroyed in the reverse: the run's queue and the loader stop
    // reporting before the store they report into goes.
    SXContainerStore m_store;
    SXWorkspacePreview m_preview{m_store};
    SXContainerTabs m_tabs{m_store, m_preview};
    SXAddRun m_addRun{m_store, m_preview};
    SXItemMoves m_moves{m_store, m_preview};
    SXWorkspaceScheduler m_scheduler{m_store, m_preview};
    bool m_registered = false;
    std::function<bool()> m_isKeyWindow;
};
