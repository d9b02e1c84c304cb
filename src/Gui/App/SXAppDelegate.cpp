#include "Gui/App/SXAppDelegate.h"

#include "App/HVConfigManager.h"
#include "App/MacAppHelper.h"
#include "App/SXPreferences.h"
#include "Desktop/SXFileManager.h"
#include "Gui/App/SXMenuHandleCltr.h"
#include "Gui/Dialogs/SXPreferenceCtlr.h"
#include "Gui/Window/SXMainAppController.h"
#include "Gui/Window/SXWindowPresenter.h"
#include "Model/SXDataEngine.h"
#include "Shared/SXLog.h"
#include "Shared/SXSettings.h"
#include "Workspace/SXAboutText.h"
#include "Workspace/SXWorkspace.h"

#include <QApplication>
#include <QMessageBox>
#include <QSessionManager>

#include <csignal>
#include <utility>

SXAppDelegate::SXAppDelegate(QObject* parent)
    : QObject(parent)
    , m_menus(new SXMenuHandleCltr(this)) {
    connect(m_menus, &SXMenuHandleCltr::commandTriggered, this, &SXAppDelegate::perform);
    connect(m_menus, &SXMenuHandleCltr::menuAboutToShow, this, [this] { validateMenus(); });
    // The session's end: nothing may be left converting or half-written. At the commit request
    // the runs are stopped but the program stays (the session manager ends it, or the logout
    // is cancelled); at the end of the event loop (any way of quitting) they are stopped too.
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::commitDataRequest, this,
                [this](QSessionManager&) { stopEveryRun(); });
        connect(application, &QCoreApplication::aboutToQuit, this, &SXAppDelegate::stopEveryRun);
    }
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
    // The primary window alone keeps its containers and their choices between starts.
    m_coreMainWndCtlr->workspace().setRemembersContainers(true);
    m_coreMainWndCtlr->workspace().addDefaultTabs();
    validateMenus();
}

void SXAppDelegate::applicationDidFinishLaunching(bool contactService) {
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

void SXAppDelegate::stopEveryRun() {
    // A copy: a workspace may leave the registry while its run is being stopped.
    const QList<SXWindowController*> windows = SXDataEngine::shareInstance()->getAllMainWndCtlr();
    for (SXWindowController* window : windows) {
        if (auto* workspace = dynamic_cast<SXWorkspace*>(window))
            workspace->abandonRun();
    }
}

void SXAppDelegate::quitForSignal(int signalNumber) {
    SXLog::line(QStringLiteral("signal %1: stopping every run and quitting").arg(signalNumber));
    stopEveryRun();
    // exit(), not quit(): quitting asks the windows, which may want to ask the user. It also
    // ends a dialog's own event loop.
    QCoreApplication::exit(exitStatusForSignal(signalNumber));
}

int SXAppDelegate::exitStatusForSignal(int signalNumber) {
    return signalNumber == SIGINT ? 128 + SIGINT : 0;
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
        // An installation without its help page has nothing to show.
        if (SXPreferences::helpPageUrl().isEmpty() ||
            !SXFileManager::openUrl(SXPreferences::helpPageUrl()))
            QApplication::beep();
        return;
    case SXCommand::Feedback:
        SXFileManager::openUrl(SXPreferences::feedbackMailUrl());
        return;
    case SXCommand::Website:
        SXFileManager::openUrl(SXPreferences::websiteUrl());
        return;
    case SXCommand::About: {
        const SXAboutText about = SXAboutText::current();
        QWidget* parent = keyWindowController();
        QMessageBox::about(parent ? parent : m_coreMainWndCtlr.data(), about.title, about.text);
        return;
    }
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
