#include "base/SXFileLocalManager.h"
#include "base/SXInstallation.h"
#include "base/SXSettings.h"
#include "gui/application/SXDesktopApp.h"
#include "gui/application/SXMenuHandler.h"
#include "gui/dialogs/SXFormatChooserDialog.h"
#include "gui/dialogs/SXMetadataEditDialog.h"
#include "gui/dialogs/SXOutputFolderDialog.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "gui/window/SXContainerTabBar.h"
#include "gui/window/SXWindowPresenter.h"
#include "online/SXPreferences.h"
#include "support/LogCapture.h"
#include "support/TemporaryHome.h"
#include "support/gui/GuiTestSupport.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

using namespace SonoriaGuiTest;

// The application shell driven as a user would: start-up in an empty settings store, the
// question before the last window closes, reviving the window, and the menus following the
// state of the window they act on.
class TestDesktopApp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        SXSettings::removeKey(SXSettingsKey::libraryPlaylistName); // for the start to fill in
        m_app = std::make_unique<SXDesktopApp>();
        m_app->start({}, false);
        QVERIFY(activate(&window()));
    }
    void cleanup() {
        m_app.reset();
        QVERIFY(SXWindowRegistry::instance().registeredWindows().isEmpty());
    }
    // Which defaults fill an empty store and that stored choices stay is tst_settings'; here the
    // start fills them, and creates no folder of the user's: output folders appear when a run
    // writes.
    void startUpFillsTheDefaultsAndCreatesNoFolder() {
        QVERIFY(window().isVisible());
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName), u"Sonoria"_s);
        const QString home = SonoriaTest::temporaryHome().processHome();
        QVERIFY(!QFileInfo::exists(home + "/Videos") && !QFileInfo::exists(home + "/Music"));
        QVERIFY(!QFileInfo::exists(SXFileLocalManager::getDefaultUpperOutputDir()));
        QVERIFY(window().workspace().isRegistered());
        QVERIFY(window().workspace().store().tabLabels().size() >= 1);
    }
    // Whether to ask and what each answer does is the workspace's (tst_workspacelists); here the
    // question is a real message box over the window, and its buttons keep or close the window.
    void lastWindowAsksWhenItemsRemainAndNewContainerRevivesIt() {
        addTone(u"kept.wav"_s);
        window().close();
        QMessageBox* question = openDialog<QMessageBox>(&window());
        QVERIFY(question);
        QCOMPARE(messageTexts(question),
                 (QStringList{u"Warnning"_s,
                              u"Do you want to close all window without save information?"_s,
                              u"Cancel"_s, u"OK"_s}));
        grab(question, u"alert-last-window"_s);
        QVERIFY(clickMessageButton(question, u"Cancel"_s));
        QTRY_VERIFY(!question->isVisible());
        QVERIFY(window().isVisible());

        window().close();
        question = openDialog<QMessageBox>(&window());
        QVERIFY(question && clickMessageButton(question, u"OK"_s));
        QTRY_VERIFY(!window().isVisible());

        // New Container revives the primary window, empty.
        QVERIFY(action(SXCommand::NewContainer)->isEnabled());
        QVERIFY(!action(SXCommand::Open)->isEnabled());
        QVERIFY(!action(SXCommand::NewFormat)->isEnabled());

        SXMainAppController* before = &window();
        action(SXCommand::NewContainer)->trigger();
        QCOMPARE(&window(), before); // the same window, never a second primary one
        QVERIFY(window().isVisible());
        QVERIFY(!action(SXCommand::NewContainer)->isEnabled());
        QVERIFY(action(SXCommand::Open)->isEnabled());
        QCOMPARE(window().workspace().store().currentTabItemCount(), 0);
        // It takes files again.
        addTone(u"after.wav"_s);
    }
    void menusFollowTheStateAndNeverBeepWhenOpening() {
        SXWorkspace& ws = window().workspace();
        QSignalSpy beeps(&window().presenter(), &SXWindowPresenter::beeped);
        // Which command a state enables is the command table's (tst_windowdecisions); here the
        // application reads the state off its window and every action, and so its shortcut, obeys.
        const auto menusFollow = [this](int state, int count) {
            const SXCommandContext context = m_app->commandContext();
            QCOMPARE(context.state, state);
            QCOMPARE(context.count, count);
            QVERIFY(context.primaryOpen && context.primaryIsKey && context.hasKeyWorkspace);
            for (int i = 0; i <= int(SXCommand::About); ++i) {
                const auto command = SXCommand(i);
                if (QAction* item = action(command))
                    QVERIFY2(item->isEnabled() == sxValidateMenuCommand(command, context).enabled,
                             qPrintable(item->text()));
            }
        };
        menusFollow(AppStateIdle, 0);
        addTone(u"menu.wav"_s);
        menusFollow(AppStateIdle, 1);
        ws.store().setAppState(AppStateConverting);
        menusFollow(AppStateConverting, 1);
        ws.store().setAppState(AppStateIdle);
        menusFollow(AppStateIdle, 1);
        QCOMPARE(beeps.count(), 0);
        ws.tabs().selectTab(0); // a fixed container, whose close item is off

        // Opening a menu validates again, silently, though the fixed container's close item is off.
        QMenu* fileMenu = window().menuBar()->actions().first()->menu();
        QVERIFY(fileMenu);
        fileMenu->popup(window().mapToGlobal(QPoint(10, 10)));
        QTRY_VERIFY(fileMenu->isVisible());
        grab(fileMenu, u"menu-file"_s);
        QVERIFY(!action(SXCommand::CloseTab)->isEnabled());
        fileMenu->close();
        QCOMPARE(beeps.count(), 0);
    }
    // (The container commands reach it by their keys: containerKeysCycleTheTabs.)
    void menuCommandsReachTheKeyWindow() {
        // Help opens the page staged with the resources (installed alike), made from the README.
        {
            LogCapture log;
            action(SXCommand::Help)->trigger();
            const QStringList opened = log.lines().filter(
                QRegularExpression(u"^open file:///.*/share/sonoria/help\\.html$"_s));
            QCOMPARE(opened.size(), 1);
            const QByteArray html =
                SonoriaTest::readFile(QUrl(opened.first().mid(5)).toLocalFile());
            QVERIFY(html.contains("<h1>Using Sonoria</h1>") &&
                    html.contains("<li><strong>Containers.</strong>"));
            QVERIFY(window().isVisible());
        }

        // About names the libraries this process loaded: ffprobe loads the same FFmpeg libraries.
        QString probe;
        QCOMPARE(SonoriaTest::run(u"ffprobe"_s, {u"-version"_s}, &probe), 0);
        QStringList expected{SXInstallation::version(), u"Qt "_s + QString::fromLatin1(qVersion()),
                             u"GNU General Public License"_s, u"TagLib 1."_s,
                             u"FFmpeg "_s + probe.section(u' ', 2, 2)};
        for (const QString& library : {u"libavformat"_s, u"libavcodec"_s}) {
            const QRegularExpressionMatch version =
                QRegularExpression(library + u"\\s+(\\d+)\\.\\s*(\\d+)\\.(\\d+)"_s).match(probe);
            QVERIFY2(version.hasMatch(), qPrintable(library));
            expected << library + u" %1.%2.%3"_s.arg(version.captured(1), version.captured(2),
                                                     version.captured(3));
        }
        QString aboutText;
        QTimer closer; // the box runs its own loop: look for it from inside that loop
        closer.setInterval(20);
        connect(&closer, &QTimer::timeout, this, [&aboutText, &closer] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                aboutText = box->windowTitle() + u'\n' + box->text();
                closer.stop();
                box->accept();
            }
        });
        closer.start();
        action(SXCommand::About)->trigger(); // returns when the box is closed
        QVERIFY(aboutText.startsWith(u"About Sonoria\n"_s));
        for (const QString& part : std::as_const(expected))
            QVERIFY2(aboutText.contains(part), qPrintable(part + u" in "_s + aboutText));

        action(SXCommand::Preferences)->trigger();
        QTRY_VERIFY(m_app->preferencesDialog() && m_app->preferencesDialog()->isVisible());
    }
    void containerKeysCycleTheTabs_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("step");
        const int ctrl = int(Qt::ControlModifier);
        const int ctrlShift = int(Qt::ControlModifier | Qt::ShiftModifier);
        QTest::newRow("Ctrl+Tab") << int(Qt::Key_Tab) << ctrl << 1;
        QTest::newRow("Ctrl+Shift+Tab") << int(Qt::Key_Tab) << ctrlShift << -1;
        QTest::newRow("Ctrl+Shift+Backtab") << int(Qt::Key_Backtab) << ctrlShift << -1;
        QTest::newRow("Ctrl+Page Down") << int(Qt::Key_PageDown) << ctrl << 1;
        QTest::newRow("Ctrl+Page Up") << int(Qt::Key_PageUp) << ctrl << -1;
    }
    void containerKeysCycleTheTabs() {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(int, step);
        SXWorkspace& ws = window().workspace();
        const int tabs = ws.store().tabLabels().size();
        QVERIFY(tabs > 2);
        // From the list, which has the focus in normal use and takes Tab and Page keys itself.
        auto* list = window().findChild<QListView*>(u"itemList"_s);
        list->setFocus();
        int expected = step > 0 ? 0 : tabs - 1;
        ws.tabs().selectTab(expected);
        QSignalSpy beeps(&window().presenter(), &SXWindowPresenter::beeped);
        for (int i = 1; i < tabs; ++i) { // from one end to the other
            QTest::keyClick(list, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
            expected += step;
            QCOMPARE(ws.store().selectedTabIndex(), expected);
            QCOMPARE(window().tabBar().currentIndex(), expected);
        }
        QCOMPARE(beeps.count(), 0);
        // Past the end the command is refused, aloud.
        QTest::keyClick(list, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(ws.store().selectedTabIndex(), expected);
        QCOMPARE(beeps.count(), 1);
    }
    void everyWindowHasUniqueMnemonicsAndPreferencesCloseByKey() {
        addTone(u"keys.wav"_s);
        SXWorkspace& ws = window().workspace();
        ws.store().setSelectedRows({0});
        // The window with its information panel open, then each dialog it opens by key.
        pressInWindow(Qt::Key_I);
        SONORIA_VERIFY_NONE(mnemonicClashes(&window()));
        grab(&window(), u"window-keys"_s);
        const QList<std::pair<Qt::Key, const QMetaObject*>> dialogs{
            {Qt::Key_E, &SXMetadataEditDialog::staticMetaObject},
            {Qt::Key_T, &SXFormatChooserDialog::staticMetaObject},
            {Qt::Key_Return, &SXOutputFolderDialog::staticMetaObject}};
        for (const auto& [key, type] : dialogs) {
            pressInWindow(key);
            auto* dialog = openDialog<QDialog>(&window());
            QVERIFY(dialog && dialog->metaObject() == type);
            SONORIA_VERIFY_NONE(mnemonicClashes(dialog));
            dialog->reject();
        }
        QTRY_COMPARE(ws.store().enumAppState(), int(AppStateIdle));

        // Preferences: its own mnemonics, and closed by Escape, Ctrl+W and its Close button.
        const auto openPreferences = [this] {
            if (!SonoriaGuiTest::activate(&window()))
                return static_cast<SXPreferencesDialog*>(nullptr);
            QTest::keyClick(&window(), Qt::Key_Comma, Qt::ControlModifier);
            SXPreferencesDialog* preferences = m_app->preferencesDialog();
            return preferences && QTest::qWaitForWindowActive(preferences) ? preferences : nullptr;
        };
        SXPreferencesDialog* preferences = openPreferences();
        QVERIFY(preferences);
        SONORIA_VERIFY_NONE(mnemonicClashes(preferences));
        grab(preferences, u"preferences-close"_s);
        QTest::keyClick(preferences, Qt::Key_Escape);
        QTRY_VERIFY(!preferences->isVisible());
        QVERIFY(openPreferences());
        QTest::keyClick(preferences, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!preferences->isVisible());
        QVERIFY(window().isVisible()); // Ctrl+W there closes the preferences, not a container
        QVERIFY(openPreferences());
        auto* buttons = preferences->findChild<QDialogButtonBox*>();
        QVERIFY(buttons);
        QTest::mouseClick(buttons->button(QDialogButtonBox::Close), Qt::LeftButton);
        QTRY_VERIFY(!preferences->isVisible());
    }

private:
    // Adds a real two-second tone to the primary window and waits until it is listed.
    void addTone(const QString& name) {
        const QString path = m_media.filePath(name);
        QVERIFY(QFile::exists(path) || SonoriaTest::makeTone(path));
        const int before = window().workspace().store().currentTabItemCount();
        QVERIFY(addFiles(window().workspace(), {path}));
        QCOMPARE(window().workspace().store().currentTabItemCount(), before + 1);
        // A load slow enough to show the loading dialog (a sanitizer build, a busy machine) leaves
        // no window active on this platform once the dialog has closed; a desktop gives it back.
        QVERIFY(SonoriaGuiTest::activate(&window()));
    }
    void pressInWindow(Qt::Key key) {
        QVERIFY(SonoriaGuiTest::activate(&window()));
        QTest::keyClick(&window(), key, Qt::ControlModifier);
    }
    QAction* action(SXCommand command) const { return m_app->menus().action(command); }
    SXMainAppController& window() const { return *m_app->coreWindow(); }

    QTemporaryDir m_media;
    std::unique_ptr<SXDesktopApp> m_app;
};

SONORIA_GUI_TEST_MAIN(TestDesktopApp)
#include "tst_desktopapp.moc"
