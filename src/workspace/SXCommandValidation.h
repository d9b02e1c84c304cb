#pragma once

#include "model/SXMusicInfo.h"

#include <QList>
#include <QString>

class SXWorkspace;
class SXWorkspacePreview;

// The commands of the main menu and the toolbar. Menus, toolbar buttons and their shortcuts
// share one answer, so a shortcut can never do what its greyed-out item would not.
enum class SXCommand {
    NewContainer,
    Open,
    NewFormat,
    CloseTab,
    Preferences,
    Delete,
    Clear,
    NextRow,
    PreviousRow,
    NextContainer,
    PreviousContainer,
    TagEditor,
    FileInfo,
    Start,
    Stop,
    Quit,
    Help,
    Feedback,
    Website,
    About,
};

// What validation reads of the application: the primary workspace gives the state and the count
// of its selected container, the key workspace the selection and the selected container (the
// two are the same window in normal use; the asymmetry is kept on purpose).
struct SXCommandContext {
    int state = 0; // enumAppState of the primary workspace
    int count = 0; // items in the primary workspace's selected container
    bool hasKeyWorkspace = false;
    bool keyHasSelection = false; // isSelectedMusic of the key workspace
    QString keySelectedFormat;    // getSelectedMusicFormat of the key workspace
    bool primaryOpen = true;      // the last configerMenuForState: flag
    bool primaryIsKey = false;    // the primary workspace's window is the key window

    static SXCommandContext of(const SXWorkspace* primary, const SXWorkspace* key,
                               bool primaryOpen);
};

struct SXCommandAnswer {
    bool enabled = true;
    bool beep = false; // choosing the refused item sounds the beep (never its menu opening)
};

// A menu item: the main menu's validation, then the File menu's open/closed rule ("New
// Container" only while the primary window is closed; "Open…" and "New Format" only while it is
// open) and, for "New Format", the primary window being key.
SXCommandAnswer sxValidateMenuCommand(SXCommand command, const SXCommandContext& context);

// The commands the application answers itself, whichever window they come from: reviving the
// primary window, the preferences, quitting and the help items. Every other command acts on one
// workspace window.
bool sxIsApplicationCommand(SXCommand command);

// A command chosen from a menu, a shortcut or a toolbar that the application refuses, with a
// beep, before any window sees it: New Format outside the primary window (only the primary
// window adds containers). Every other refusal is the workspace's own, made where the command
// lands (a fixed container's Close Tab, Delete during a run, …), so it holds for every caller.
bool sxCommandRefused(SXCommand command, const SXCommandContext& context);

// The image, label and tool tip of a toolbar item in a state; only Start changes with it.
struct SXToolbarLook {
    QString image;
    QString label;
    QString toolTip;
};

// A toolbar item of a workspace window: during a run only Start (reading "Stop") is enabled;
// Start needs at least one item in the workspace, the tag editor and file information a
// selected row. `totalItems` counts every container of the window.
bool sxValidateToolbarCommand(SXCommand command, int state, int totalItems, bool hasSelection);
SXToolbarLook sxStartToolbarLook(int state);

// The settings panel and Add Files follow the run; Clear and Delete need items in the shown
// container and are off during a run, as their menu items are: nothing leaves a container
// whose items are converting.
bool sxSettingPanelEnabled(int state);
// The tab bar's buttons: during a run no container is added or closed, and a fixed container
// (`closable` false) never offers its close button.
bool sxAddContainerButtonShown(int state, bool addButtonWanted);
bool sxTabCloseButtonShown(int state, bool closable);
bool sxRemoveButtonsEnabled(int state, int itemsInSelectedContainer);

// The entries of a row's context menu. Play, Pause and Resume are one entry whose meaning
// follows the preview; Cancel This Conversion is the row's share of Stop.
enum class SXRowCommand {
    Play,
    Pause,
    Resume,
    EditTags,
    FileInfo,
    ShowInFiles,
    Remove,
    CancelConversion,
};

// What a row's context menu depends on: the window's state, the row's conversion progress
// (an SXProgress value or a percentage) and whether the preview is on this row.
struct SXRowFacts {
    int state = 0;
    double progress = 0;
    bool previewing = false;
    bool previewPaused = false;

    static SXRowFacts of(const SXWorkspacePreview& workspace, const SXMusicInfoPtr& item);
};

struct SXRowMenuEntry {
    SXRowCommand command;
    bool enabled = true;
};

// The context menu of a row, in order. During a run it offers only what leaves the list whole:
// cancelling the row's own conversion while it is waiting or converting, and showing the file.
// Outside a run, every entry but Show in Files waits while files are being added.
QList<SXRowMenuEntry> sxRowMenu(const SXRowFacts& row);
