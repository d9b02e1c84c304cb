#pragma once

#include "workspace/SXContainerStore.h"

#include <QObject>

class SXWorkspacePreview;

// The containers of one workspace as tabs: the fixed ones, those added through the format
// chooser, selecting, neighbour moves and the rules for closing. A front end shows this; it
// decides nothing. A part of SXWorkspace: the tabs themselves live in its store; closing a
// container stops its preview.
class SXContainerTabs final : public QObject {
    Q_OBJECT
public:
    SXContainerTabs(SXContainerStore& store, SXWorkspacePreview& preview,
                    QObject* parent = nullptr);
    ~SXContainerTabs() override;

    SXContainerStore& store() const { return m_store; }

    // The fixed containers; for a workspace that remembers its containers, then the stored ones
    // in their order, each with its stored choices.
    void addDefaultTabs();
    // The primary window's workspace keeps its containers between starts (SXContainerMemory):
    // set before addDefaultTabs. Others, and the command-line tool, start from the catalogue.
    void setRemembersContainers(bool on) { m_remembersContainers = on; }
    bool remembersContainers() const { return m_remembersContainers; }
    void removeallTabs();
    int addNewTab();                            // an empty, unlabelled tab, selected; its index
    int addNewTabWithName(const QString& name); // index of the tab that now carries the name
    void selectTab(int index);
    bool selectContainer(const QString& name);
    // The tab after (before) the selected one; a beep at either end.
    void selectNextContainer();
    void selectPreviousContainer();
    // Closes the selected container unless a rule forbids it; true when it was closed.
    bool closeTab();
    // The close button of the tab `label`: selects it, then closes it as closeTab does.
    bool closeContainer(const QString& label);
    // The answers a tab bar needs before it offers or performs a close.
    bool disableTabClose(const QString& label) const;
    bool shouldCloseTab(const QString& label);
    // Adds a container through the format chooser of the presenter.
    void addContainer();
    // The formats that have no container yet, in catalogue order: what the chooser offers.
    QList<SXFormatSettingPtr> formatsWithoutContainer() const;
    // The end of the chooser with OK: a new last tab for `setting`, selected.
    void addContainerWithFormat(const SXFormatSettingPtr& setting);
    void disableAddButton() { m_showAddBtn = false; }
    bool showAddBtn() const { return m_showAddBtn; }

private:
    void moveSelectedTab(int step);
    // For a remembering workspace: `setting` gets its stored choices. The caller holds no lock.
    void recallChoices(const SXFormatSettingPtr& setting) const;
    void rememberContainers() const;

    SXContainerStore& m_store;
    SXWorkspacePreview& m_preview;
    bool m_showAddBtn = true;
    bool m_remembersContainers = false;
};
