#include "gui/window/SXMainAppController.h"

#include "gui/dialogs/SXAddFilesDialog.h"
#include "gui/dialogs/SXLoadingDialog.h"
#include "gui/dialogs/SXMetadataEditDialog.h"
#include "gui/list/SXItemListView.h"
#include "gui/list/SXRowContextMenu.h"
#include "gui/list/SXWindowDrops.h"
#include "gui/panels/SXFileInfoViewController.h"
#include "gui/panels/SXHelpView.h"
#include "gui/panels/SXIcons.h"
#include "gui/panels/SXSettingsPanel.h"
#include "gui/window/SXContainerTabBar.h"
#include "gui/window/SXPreviewWiring.h"
#include "gui/window/SXRunFeedback.h"
#include "gui/window/SXWindowPresenter.h"
#include "gui/window/SXWindowToolbar.h"
#include "online/SXPreferences.h"
#include "player/SXAudioPlayer.h"
#include "workspace/SXWorkspace.h"
#include "workspace/SXWorkspaceTexts.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

SXMainAppController::SXMainAppController(QWidget* parent)
    : QMainWindow(parent) {
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QApplication::applicationDisplayName());
    setWindowIcon(SXIcons::icon(QStringLiteral("sonoria")));
    m_workspace = new SXWorkspace(this);
    m_presenter = new SXWindowPresenter(*this);
    m_workspace->store().setPresenter(m_presenter);
    m_workspace->setKeyWindowTest([this] { return isActiveWindow(); });
    m_toolbar = new SXWindowToolbar(*this, m_workspace->store(), m_workspace->scheduler());
    setCentralWidget(buildCentral());
    new SXRunFeedback(*this, m_workspace->store(), m_workspace->scheduler());
    m_workspace->preview().setPreviewPlayer(SXAudioPlayer::shareAudioPlayer());
    new SXPreviewWiring(*this, *_listView, *m_toolbar->stateView(), m_workspace->preview());
    connect(_listView, &SXItemListView::startRequested, this, &SXMainAppController::startFromList);
    m_fileInfo = new SXFileInfoViewController(*this, m_workspace->store());
    connect(&_listView->rowMenu(), &SXRowContextMenu::fileInfoRequested, this, [this] {
        if (!m_fileInfo->isVisible()) // the panel's command toggles; the row's entry only shows
            m_fileInfo->clickInfo();
    });
    connect(&m_workspace->scheduler(), &SXWorkspaceScheduler::metadataEditorRequested, this,
            [this](const SXMusicInfoPtr& item) {
                auto* editor = findChild<SXMetadataEditDialog*>(); // one per window, reused
                if (!editor) {
                    editor = new SXMetadataEditDialog(this);
                    editor->setListener(&m_workspace->addRun());
                }
                editor->setMusicInfo(item);
                editor->open();
            });
    new SXLoadingDialog(m_workspace->addRun(), *this);
    new SXWindowDrops(*this, *_tabBar, m_workspace->addRun(), m_workspace->moves());
    connectWorkspace();
    if (!restoreGeometry(SXPreferences::mainWindowGeometry()))
        resize(980, 640);
}

SXMainAppController::~SXMainAppController() {
    // The workspace goes first: its queue may still report to a window that must be whole.
    m_workspace->store().setPresenter(nullptr);
    delete m_workspace;
}

QWidget* SXMainAppController::buildCentral() {
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    auto* tabRow = new QHBoxLayout;
    _tabBar = new SXContainerTabBar(m_workspace->tabs(), central);
    tabRow->addWidget(_tabBar);
    tabRow->addWidget(_tabBar->addButton());
    tabRow->addStretch(1);
    layout->addLayout(tabRow);
    SXWorkspace& ws = *m_workspace;
    _listView = new SXItemListView(ws.store(), ws.preview(), ws.addRun(), ws.moves(),
                                   ws.scheduler(), central);
    layout->addWidget(_listView, 1);
    _viewHelpBar = new SXHelpView(central);
    layout->addWidget(_viewHelpBar);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(buildFileButtons());
    bottom->addSpacing(16);
    m_settingsPanel = new SXSettingsPanel(m_workspace->store(), central);
    bottom->addWidget(m_settingsPanel, 1);
    layout->addLayout(bottom);
    return central;
}

QWidget* SXMainAppController::buildFileButtons() {
    auto* box = new QWidget(this);
    box->setObjectName(QStringLiteral("vOperation"));
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto button = [box, layout](const QString& text, const QString& name, const QString& own,
                                      const QString& theme) {
        auto* b = new QPushButton(SXIcons::icon(own, theme), text, box);
        b->setObjectName(name);
        layout->addWidget(b);
        return b;
    };
    _btnAddFile = button(tr("&Add Files…"), QStringLiteral("btnAddFile"), QStringLiteral("addFile"),
                         QStringLiteral("list-add"));
    _btnDelete = button(tr("&Delete"), QStringLiteral("btnDelete"), QStringLiteral("deleteFile"),
                        QStringLiteral("list-remove"));
    _btnClear = button(tr("Cl&ear"), QStringLiteral("btnClear"), QStringLiteral("clearFiles"),
                       QStringLiteral("edit-clear-all"));
    connect(_btnAddFile, &QPushButton::clicked, this, &SXMainAppController::clickAddFiles);
    connect(_btnDelete, &QPushButton::clicked, &m_workspace->addRun(), &SXAddRun::removeSelected);
    connect(_btnClear, &QPushButton::clicked, &m_workspace->addRun(), &SXAddRun::clearContainer);
    return box;
}

void SXMainAppController::connectWorkspace() {
    SXContainerStore* store = &m_workspace->store();
    connect(store, &SXContainerStore::listChanged, this, &SXMainAppController::refreshListView);
    connect(store, &SXContainerStore::tabCountsChanged, this,
            &SXMainAppController::refreshListView);
    connect(store, &SXContainerStore::appStateChanged, this, [this](int state) {
        setSettingPanelEnable(sxSettingPanelEnabled(state));
        refreshListView();
    });
    connect(m_toolbar, &SXWindowToolbar::commandTriggered, this,
            &SXMainAppController::toolbarCommand);
    connect(store, &SXContainerStore::appStateChanged, this,
            &SXMainAppController::validationInputsChanged);
    connect(store, &SXContainerStore::listChanged, this,
            &SXMainAppController::validationInputsChanged);
    connect(store, &SXContainerStore::selectionChanged, this,
            &SXMainAppController::validationInputsChanged);
    connect(store, &SXContainerStore::tabsChanged, this,
            &SXMainAppController::validationInputsChanged);
    connect(store, &SXContainerStore::tabCountsChanged, this,
            &SXMainAppController::validationInputsChanged);
}

void SXMainAppController::refreshListView() {
    const SXContainerStore& store = m_workspace->store();
    const bool removable =
        sxRemoveButtonsEnabled(store.enumAppState(), store.currentTabItemCount());
    _btnDelete->setEnabled(removable);
    _btnClear->setEnabled(removable);
    _viewHelpBar->setTipsStr(SXWorkspaceTexts::helpBarText(store));
}

void SXMainAppController::setSettingPanelEnable(bool enabled) {
    _btnAddFile->setEnabled(enabled);
    m_settingsPanel->setSettingPanelEnable(enabled);
}

void SXMainAppController::perform(SXCommand command) {
    SXWorkspace& ws = *m_workspace;
    switch (command) {
    case SXCommand::Open:
        clickAddFiles();
        break;
    case SXCommand::NewFormat:
        ws.tabs().addContainer();
        break;
    case SXCommand::CloseTab:
        ws.tabs().closeTab(); // beeps for a fixed container
        break;
    case SXCommand::Delete:
        ws.addRun().removeSelected();
        break;
    case SXCommand::Clear:
        ws.addRun().clearContainer();
        break;
    case SXCommand::NextRow:
        ws.store().selectNextRow();
        break;
    case SXCommand::PreviousRow:
        ws.store().selectPreviousRow();
        break;
    case SXCommand::NextContainer:
        ws.tabs().selectNextContainer();
        break;
    case SXCommand::PreviousContainer:
        ws.tabs().selectPreviousContainer();
        break;
    case SXCommand::Start:
    case SXCommand::Stop:
        ws.scheduler().toggleRun(); // one toggle: Stop during a run
        break;
    case SXCommand::TagEditor:
        if (const SXMusicInfoList items = ws.store().selectedItems(); !items.isEmpty())
            ws.scheduler().cancelOrEditTags(items.first());
        break;
    case SXCommand::FileInfo:
        m_fileInfo->clickInfo();
        break;
    case SXCommand::NewContainer:
    case SXCommand::Preferences:
    case SXCommand::Quit:
    case SXCommand::Help:
    case SXCommand::Feedback:
    case SXCommand::Website:
    case SXCommand::About:
        break; // the application's own: SXDesktopApp::perform answers them
    }
}

void SXMainAppController::toolbarCommand(SXCommand command) {
    if (sxIsApplicationCommand(command))
        Q_EMIT applicationCommandChosen(command);
    else
        perform(command);
}

void SXMainAppController::startFromList() {
    // Enter is the Start item, never Stop: a key pressed by accident must not end a run.
    const SXCommandContext context = SXCommandContext::of(m_workspace, m_workspace, true);
    if (sxValidateMenuCommand(SXCommand::Start, context).enabled)
        perform(SXCommand::Start);
    else
        m_presenter->beep();
}

void SXMainAppController::clickAddFiles() {
    SXAddFilesDialog::openFor(m_workspace->addRun(), *this);
}

void SXMainAppController::closeEvent(QCloseEvent* event) {
    if (m_closeApproved) {
        m_closeApproved = false;
        SXPreferences::setMainWindowGeometry(saveGeometry());
        event->accept();
        return;
    }
    event->ignore();
    if (m_closeAsked)
        return;
    m_closeAsked = true;
    m_workspace->windowShouldClose([this](bool mayClose) {
        m_closeAsked = false;
        if (!mayClose)
            return;
        m_closeApproved = true;
        // Not from inside the close event that asked: close once it has returned.
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    });
}

void SXMainAppController::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange)
        Q_EMIT validationInputsChanged();
}
