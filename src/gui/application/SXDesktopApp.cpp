#include "gui/application/SXDesktopApp.h"

#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "desktop/SXFileManager.h"
#include "gui/application/SXMenuHandler.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "gui/window/SXMainAppController.h"
#include "gui/window/SXWindowPresenter.h"
#include "model/SXDataEngine.h"
#include "online/HVConfigManager.h"
#include "online/SXPreferences.h"
#include "online/SXStartupReport.h"
#include "workspace/SXAboutText.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/SXWorkspace.h"

#include <QApplication>
#include <QMessageBox>
#include <QSessionManager>

#include <csignal>
#include <utility>

SXDesktopApp::SXDesktopApp(QObject* parent)
    : QObject(parent)
    , m_menus(new SXMenuHandler(this)) {
    connect(m_menus, &SXMenuHandler::commandTriggered, this, &SXDesktopApp::perform);
    connect(m_menus, &SXMenuHandler::menuAboutToShow, this, [this] { validateMenus(); });
    // The session's end: nothing may be left converting or half-written. At the commit request
    // the runs are stopped but the program stays (the session manager ends it, or the logout
    // is cancelled); at the end of the event loop (any way of quitting) they are stopped too.
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::commitDataRequest, this,
                [this](QSessionManager&) { stopEveryRun(); });
        connect(application, &QCoreApplication::aboutToQuit, this, &SXDesktopApp::stopEveryRun);
    }
}

SXDesktopApp::~SXDesktopApp() {
    delete m_preferencesDialog;
    delete m_coreWindow;
}

SXMainAppController* SXDesktopApp::coreWindow() const {
    return m_coreWindow;
}

SXPreferencesDialog* SXDesktopApp::preferencesDialog() const {
    return m_preferencesDialog;
}

void SXDesktopApp::start(const QStringList& files, bool contactService) {
    newWindow();
    SXSettings::setPreferenceValue();
    applicationDidFinishLaunching(contactService);
    if (!files.isEmpty())
        m_coreWindow->workspace().addRun().loadAndParseFiles(files);
}

void SXDesktopApp::newWindow() {
    m_coreWindow = new SXMainAppController;
    m_menus->installInto(*m_coreWindow);
    connect(m_coreWindow, &SXMainAppController::applicationCommandChosen, this,
            &SXDesktopApp::perform);
    connect(m_coreWindow, &SXMainAppController::validationInputsChanged, this,
            [this] { validateMenus(); });
    connect(&m_coreWindow->workspace(), &SXWorkspace::lastWorkspaceClosing, this,
            [this] { configerMenuForState(false); });
    // Queued: the workspace finishes its own reaction to the state before another run starts.
    connect(&m_coreWindow->workspace().store(), &SXContainerStore::appStateChanged, this,
            &SXDesktopApp::loadPendingFiles, Qt::QueuedConnection);
    m_coreWindow->show();
    // The primary window alone keeps its containers and their choices between starts.
    m_coreWindow->workspace().tabs().setRemembersContainers(true);
    m_coreWindow->workspace().tabs().addDefaultTabs();
    validateMenus();
}

void SXDesktopApp::applicationDidFinishLaunching(bool contactService) {
    if (!contactService)
        return;
    m_appHelper = new SXStartupReport(this);
    HVConfigManager::startupRequests(*m_appHelper);
}

SXMainAppController* SXDesktopApp::keyWindowController() const {
    auto* key = dynamic_cast<SXWorkspace*>(SXWindowRegistry::instance().keyWindowRecord());
    return key ? qobject_cast<SXMainAppController*>(key->parent()) : nullptr;
}

void SXDesktopApp::stopEveryRun() {
    // A copy: a workspace may leave the registry while its run is being stopped.
    const QList<SXWindowController*> windows = SXWindowRegistry::instance().registeredWindows();
    for (SXWindowController* window : windows) {
        if (auto* workspace = dynamic_cast<SXWorkspace*>(window))
            workspace->scheduler().abandonRun();
    }
}

void SXDesktopApp::quitForSignal(int signalNumber) {
    SXLog::line(QStringLiteral("signal %1: stopping every run and quitting").arg(signalNumber));
    stopEveryRun();
    // exit(), not quit(): quitting asks the windows, which may want to ask the user. It also
    // ends a dialog's own event loop.
    QCoreApplication::exit(exitStatusForSignal(signalNumber));
}

int SXDesktopApp::exitStatusForSignal(int signalNumber) {
    return signalNumber == SIGINT ? 128 + SIGINT : 0;
}

void SXDesktopApp::perform(SXCommand command) {
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
        QMessageBox::about(parent ? parent : m_coreWindow.data(), about.title, about.text);
        return;
    }
    default:
        break;
    }
    if (sxCommandRefused(command, commandContext())) {
        QApplication::beep();
        return;
    }
    if (SXMainAppController* key = keyWindowController())
        key->perform(command);
}

void SXDesktopApp::clickNewWindow() {
    SXLog::line(QStringLiteral("You click new window ...."));
    SXWorkspace& core = m_coreWindow->workspace();
    core.reNewDefaultWindow();
    m_coreWindow->show();
    m_coreWindow->activateWindow();
    core.registerAgain();
    configerMenuForState(true);
}

void SXDesktopApp::openFiles(const QStringList& paths) {
    if (!m_primaryOpen)
        clickNewWindow();
    m_coreWindow->setWindowState(m_coreWindow->windowState() & ~Qt::WindowMinimized);
    m_coreWindow->raise();
    m_coreWindow->activateWindow();
    // A new add run would orphan the batch being probed, and none may start during a run.
    m_pendingFiles.append(paths);
    loadPendingFiles();
}

void SXDesktopApp::loadPendingFiles() {
    SXWorkspace& core = m_coreWindow->workspace();
    const int state = core.store().enumAppState();
    if (m_pendingFiles.isEmpty() || state == AppStateLoading || state == AppStateConverting)
        return;
    core.addRun().loadAndParseFiles(std::exchange(m_pendingFiles, {}));
}

void SXDesktopApp::clickPreference() {
    if (!m_preferencesDialog)
        m_preferencesDialog = new SXPreferencesDialog;
    m_preferencesDialog->show();
    m_preferencesDialog->raise();
    m_preferencesDialog->activateWindow();
}

void SXDesktopApp::configerMenuForState(bool open) {
    m_primaryOpen = open;
    validateMenus();
}

SXCommandContext SXDesktopApp::commandContext() const {
    SXWorkspace* primary = m_coreWindow ? &m_coreWindow->workspace() : nullptr;
    SXMainAppController* keyWindow = keyWindowController();
    SXWorkspace* key = keyWindow ? &keyWindow->workspace() : nullptr;
    return SXCommandContext::of(primary, key, m_primaryOpen);
}

void SXDesktopApp::validateMenus() {
    m_menus->validate(commandContext());
}
