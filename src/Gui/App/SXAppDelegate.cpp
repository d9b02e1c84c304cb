#include "Gui/App/SXAppDelegate.h"

#include "App/HVConfigManager.h"
#include "App/MacAppHelper.h"
#include "App/SXPreferences.h"
#include "Common/Util/SXFileLocalManager.h"
#include "Desktop/SXFileManager.h"
#include "Gui/App/SXMenuHandleCltr.h"
#include "Gui/Dialogs/SXPreferenceCtlr.h"
#include "Gui/Window/SXMainAppController.h"
#include "Gui/Window/SXWindowPresenter.h"
#include "Model/SXDataEngine.h"
#include "Shared/GlobalFun.h"
#include "Shared/SXLog.h"
#include "Shared/SXSettings.h"
#include "Workspace/SXWorkspace.h"

#include <QApplication>

#include <utility>

SXAppDelegate::SXAppDelegate(QObject* parent)
    : QObject(parent)
    , m_menus(new SXMenuHandleCltr(this)) {
    connect(m_menus, &SXMenuHandleCltr::commandTriggered, this, &SXAppDelegate::perform);
    connect(m_menus, &SXMenuHandleCltr::menuAboutToShow, this, [this] { validateMenus(); });
}

SXAppDelegate::~SXAppDelegate() {
    delete m_preferenceCltr;
    delete m_coreMainWndCtlr;
}

SXMainAppController* SXAppDelegate::coreMainWndCtlr() const {
    return m_coreMainWndCtlr;
}

SXPreferenceCtlr* SXAppDelegate::preferenceCltr() const {
    return m_preferenceCltr;
}

void SXAppDelegate::start(const QStringList& files, bool contactService) {
    newWindow();
    SXSettings::setPreferenceValue();
    applicationDidFinishLaunching(contactService);
    if (!files.isEmpty())
        m_coreMainWndCtlr->workspace().loadAndParseFiles(files);
}

void SXAppDelegate::newWindow() {
    m_coreMainWndCtlr = new SXMainAppController;
    m_menus->installInto(*m_coreMainWndCtlr);
    connect(m_coreMainWndCtlr, &SXMainAppController::applicationCommand, this,
            &SXAppDelegate::perform);
    connect(m_coreMainWndCtlr, &SXMainAppController::validationInputsChanged, this,
            [this] { validateMenus(); });
    connect(&m_coreMainWndCtlr->workspace(), &SXWorkspace::lastWorkspaceClosing, this,
            [this] { configerMenuForState(false); });
    // Queued: the workspace finishes its own reaction to the state before another run starts.
    connect(&m_coreMainWndCtlr->workspace(), &SXWorkspace::appStateChanged, this,
            &SXAppDelegate::loadPendingFiles, Qt::QueuedConnection);
    m_coreMainWndCtlr->show();
    m_coreMainWndCtlr->workspace().addDefaultTabs();
    validateMenus();
}

void SXAppDelegate::applicationDidFinishLaunching(bool contactService) {
    // The converted-audio folder lives under the real home; creating it only logs a failure.
    GlobalFun::MakeSureFolderExsist(SXFileLocalManager::convertedAudioDirectory());
    if (!contactService)
        return;
    m_appHelper = new MacAppHelper(this);
    HVConfigManager::startupRequests(*m_appHelper);
}

SXMainAppController* SXAppDelegate::keyWindowController() const {
    auto* key = dynamic_cast<SXWorkspace*>(SXDataEngine::shareInstance()->getKeyWindowCtlr());
    return key ? qobject_cast<SXMainAppController*>(key->parent()) : nullptr;
}

bool SXAppDelegate::isCoreControllerIsKeyWindow() const {
    return m_coreMainWndCtlr && m_coreMainWndCtlr->isActiveWindow();
}

void SXAppDelegate::perform(SXCommand command) {
    SXMainAppController* key = keyWindowController();
    switch (command) {
    case SXCommand::NewContainer:
        clickNewWindow();
        return;
    case SXCommand::Preferences:
        clickPreference();
        return;
    case SXCommand::Quit:
        QApplication::closeAllWindows();
        return;
    case SXCommand::Help:
        SXFileManager::openUrl(SXPreferences::helpPageUrl());
        return;
    case SXCommand::Feedback:
        SXFileManager::openUrl(SXPreferences::feedbackMailUrl());
        return;
    case SXCommand::Website:
        SXFileManager::openUrl(SXPreferences::websiteUrl());
        return;
    case SXCommand::NewFormat:
        // Only the primary window adds containers.
        if (!isCoreControllerIsKeyWindow()) {
            QApplication::beep();
            return;
        }
        break;
    case SXCommand::CloseTab:
        clickCloseTab(key);
        return;
    default:
        break;
    }
    if (key)
        key->perform(command);
}

void SXAppDelegate::clickCloseTab(SXMainAppController* key) {
    if (!key)
        return;
    const QString selected = key->workspace().getSelectedMusicFormat();
    if (SXDataEngine::getCanNotRemoveFormatContainer().contains(selected)) {
        key->presenter().beep();
        return;
    }
    key->perform(SXCommand::CloseTab);
}

void SXAppDelegate::clickNewWindow() {
    SXLog::line(QStringLiteral("You click new window ...."));
    SXWorkspace& core = m_coreMainWndCtlr->workspace();
    core.reNewDefaultWindow();
    m_coreMainWndCtlr->show();
    m_coreMainWndCtlr->activateWindow();
    core.registerAgain();
    configerMenuForState(true);
}

void SXAppDelegate::openFiles(const QStringList& paths) {
    if (!m_primaryOpen)
        clickNewWindow();
    m_coreMainWndCtlr->setWindowState(m_coreMainWndCtlr->windowState() & ~Qt::WindowMinimized);
    m_coreMainWndCtlr->raise();
    m_coreMainWndCtlr->activateWindow();
    // A new add run would orphan the batch being probed, and none may start during a run.
    m_pendingFiles.append(paths);
    loadPendingFiles();
}

void SXAppDelegate::loadPendingFiles() {
    SXWorkspace& core = m_coreMainWndCtlr->workspace();
    if (m_pendingFiles.isEmpty() || core.enumAppState() == AppStateLoading ||
        core.enumAppState() == AppStateConverting)
        return;
    core.loadAndParseFiles(std::exchange(m_pendingFiles, {}));
}

void SXAppDelegate::clickPreference() {
    if (!m_preferenceCltr)
        m_preferenceCltr = new SXPreferenceCtlr;
    m_preferenceCltr->show();
    m_preferenceCltr->raise();
    m_preferenceCltr->activateWindow();
}

void SXAppDelegate::configerMenuForState(bool open) {
    m_primaryOpen = open;
    validateMenus();
}

void SXAppDelegate::validateMenus() {
    SXWorkspace* primary = m_coreMainWndCtlr ? &m_coreMainWndCtlr->workspace() : nullptr;
    SXMainAppController* keyWindow = keyWindowController();
    SXWorkspace* key = keyWindow ? &keyWindow->workspace() : nullptr;
    m_menus->validate(SXCommandContext::of(primary, key, m_primaryOpen));
}
