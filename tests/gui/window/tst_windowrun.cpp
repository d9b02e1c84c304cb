#include "base/SXSettings.h"
#include "gui/dialogs/SXOutputFolderDialog.h"
#include "gui/list/SXItemListView.h"
#include "gui/window/SXContainerTabBar.h"
#include "gui/window/SXWindowPresenter.h"
#include "gui/window/SXWindowToolbar.h"
#include "support/PrivateSessionBus.h"
#include "support/gui/GuiTestSupport.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QAction>
#include <QCheckBox>
#include <QDBusConnection>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace SonoriaGuiTest;

namespace {

// The other end of the session bus: what a task manager hears of the launcher entry, and a
// notification server that keeps what it is asked to show.
class DesktopListener : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QList<QVariantMap> launcherUpdates;
    QStringList launcherUris;
    QStringList notificationBodies;
    QVariantMap lastHints;

public Q_SLOTS:
    void launcherUpdate(const QString& uri, const QVariantMap& properties) {
        launcherUris.append(uri);
        launcherUpdates.append(properties);
    }
    uint Notify(const QString&, uint, const QString&, const QString&, const QString& body,
                const QStringList&, const QVariantMap& hints, int) {
        notificationBodies.append(body);
        lastHints = hints;
        return uint(notificationBodies.size());
    }
};

} // namespace

// A run as a user makes it: Start, the folder dialog, rows converting, the summary; Stop and
// closing the window in the middle; the progress outside the window on a private session bus.
class TestWindowRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_bus.start());
        QDBusConnection listener = QDBusConnection::connectToBus(m_bus.address(), "listener");
        QVERIFY(listener.isConnected());
        QVERIFY(listener.connect(QString(), QString(), u"com.canonical.Unity.LauncherEntry"_s,
                                 u"Update"_s, &m_listener,
                                 SLOT(launcherUpdate(QString, QVariantMap))));
        QVERIFY(listener.registerService(u"org.freedesktop.Notifications"_s));
        QVERIFY(listener.registerObject(u"/org/freedesktop/Notifications"_s, &m_listener,
                                        QDBusConnection::ExportAllSlots));
        QGuiApplication::setDesktopFileName(u"app.sonoria.Sonoria"_s);
    }
    void init() {
        m_media = std::make_unique<QTemporaryDir>();
        m_output = std::make_unique<QTemporaryDir>();
        SXSettings::setValue(SXSettingsKey::MaxTask, 2);
        m_window = openWindow();
        QVERIFY(m_window);
    }
    void cleanup() {
        m_window.reset();
        QVERIFY(SXWindowRegistry::instance().registeredWindows().isEmpty());
    }
    void runFromStartToTheSummary() {
        addSources({u"one.wav"_s, u"two.wav"_s, u"gone.wav"_s}, 2.0);
        // A source that vanished after loading fails; the others still convert.
        QVERIFY(QFile::remove(m_media->filePath(u"gone.wav"_s)));
        // The user looks at another window, so the end is also told on the desktop.
        QWidget elsewhere;
        elsewhere.show();
        QVERIFY(activate(&elsewhere));
        m_listener.launcherUpdates.clear();
        m_listener.notificationBodies.clear();

        startInto(m_output->path());
        QCOMPARE(startAction()->text(), u"Stop"_s);
        QCOMPARE(startAction()->toolTip(), u"Stop convert all files"_s);
        QVERIFY(!m_window->tabBar().addButton()->isVisible());
        QTRY_VERIFY(m_window->windowTitle().contains(u'%'));
        grab(m_window.get(), u"run-converting"_s);

        QMessageBox* summary = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((summary = openDialog<QMessageBox>(m_window.get())), 60000);
        // The vanished file is named with its reason, and behind the alert with its folder.
        const QString gone = m_media->filePath(u"gone.wav"_s);
        const QString expected = u"2 files has been successfully converted.except 1 "
                                 "files failed,including: \ngone: "_s;
        QVERIFY2(summary->text().startsWith(expected), qPrintable(summary->text()));
        const QString reason = summary->text().mid(expected.size());
        QVERIFY(!reason.isEmpty());
        QCOMPARE(summary->detailedText(), gone + u": "_s + reason);
        grab(m_window.get(), u"run-summary-window"_s);
        grab(summary, u"run-summary"_s);
        QVERIFY(clickMessageButton(summary, u"OK"_s));
        QTRY_COMPARE(m_window->workspace().store().enumAppState(), int(AppStateIdle));
        QCOMPARE(startAction()->text(), u"Start"_s);
        QCOMPARE(m_window->windowTitle(), QApplication::applicationDisplayName());

        QCOMPARE(SonoriaTest::filesBelow(m_output->path()),
                 (QStringList{u"MP3/one.mp3"_s, u"MP3/two.mp3"_s}));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath), m_output->path());

        // The launcher showed a bar for our desktop entry and hid it at the end.
        QTRY_VERIFY(!m_listener.launcherUpdates.isEmpty() &&
                    !m_listener.launcherUpdates.last().value("progress-visible").toBool());
        QCOMPARE(m_listener.launcherUris.first(), u"application://app.sonoria.Sonoria.desktop"_s);
        double last = -1;
        for (const QVariantMap& update : std::as_const(m_listener.launcherUpdates)) {
            if (update.value("progress-visible").toBool()) {
                QVERIFY(update.value("progress").toDouble() >= last); // never backwards
                last = update.value("progress").toDouble();
            }
        }
        QVERIFY(last >= 0); // shown at all
        QTRY_COMPARE(m_listener.notificationBodies, QStringList{u"Converted: 2. Failed: 1."_s});
        // The failed row's tool tip says why, under its path.
        const QAbstractItemModel* rows = m_window->findChild<SXItemListView*>()->model();
        QStringList tips;
        for (int row = 0; row < rows->rowCount(); ++row)
            tips.append(rows->index(row, 0).data(Qt::ToolTipRole).toString());
        QVERIFY2(tips.contains(gone + u"\nFailed: "_s + reason), qPrintable(tips.join(u'|')));
        QCOMPARE(m_listener.lastHints.value("desktop-entry").toString(), u"app.sonoria.Sonoria"_s);
    }
    // Stop during a run: the rows stay, nothing leaves the list while the children run, and no
    // file is left behind.
    void stopCancelsEveryItemAndLeavesNoFile() {
        // Long enough that Stop comes while the first conversions run and the last still wait.
        addSources({u"a.wav"_s, u"b.wav"_s, u"c.wav"_s, u"d.wav"_s}, 240.0, {u"-ar"_s, u"22050"_s});
        SXWorkspace& ws = m_window->workspace();
        auto* list = m_window->findChild<SXItemListView*>();
        auto* remove = m_window->findChild<QPushButton*>(u"btnDelete"_s);
        auto* clear = m_window->findChild<QPushButton*>(u"btnClear"_s);
        ws.store().setSelectedRows({0, 1});
        startInto(m_output->path(), true);
        QTRY_VERIFY_WITH_TIMEOUT(!SonoriaTest::filesBelow(m_output->path()).isEmpty(), 20000);
        QVERIFY(!remove->isEnabled() && !clear->isEnabled());

        // Enter is Start only, and the removing keys reach the workspace: during a run each beeps
        // and the run goes on; the greyed buttons take no click.
        QSignalSpy beeps(&m_window->presenter(), &SXWindowPresenter::beeped);
        list->setFocus();
        for (Qt::Key key : {Qt::Key_Enter, Qt::Key_Delete, Qt::Key_Backspace})
            QTest::keyClick(list, key);
        QCOMPARE(beeps.count(), 3);
        QTest::mouseClick(remove, Qt::LeftButton);
        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(list->model()->rowCount(), 4);
        QCOMPARE(ws.store().enumAppState(), int(AppStateConverting));
        startAction()->trigger(); // it reads Stop now

        // The summary comes with every row in place; every child was reached. (What Stop marks and
        // the summary's words: tst_workspacerun.)
        QMessageBox* summary = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((summary = openDialog<QMessageBox>(m_window.get())), 30000);
        QCOMPARE(list->model()->rowCount(), 4);
        for (const SXMusicInfoPtr& item : ws.store().getCurTableDatasource())
            QCOMPARE(item->mediaInfo()->eumCvtState(), int(CvtStateCanceled));
        QVERIFY(clickMessageButton(summary, u"OK"_s));
        QTRY_COMPARE(ws.store().enumAppState(), int(AppStateIdle));
        QCOMPARE(SonoriaTest::filesBelow(m_output->path()), QStringList());
        QVERIFY(m_window->tabBar().addButton()->isVisible());
        QVERIFY(remove->isEnabled() && clear->isEnabled());
        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(list->model()->rowCount(), 0);
    }
    void closingDuringARunCancelsItAndLeavesNoFile() {
        addSources({u"long.wav"_s, u"longer.wav"_s}, 240.0, {u"-ar"_s, u"22050"_s});
        startInto(m_output->path());
        QTRY_VERIFY_WITH_TIMEOUT(!SonoriaTest::filesBelow(m_output->path()).isEmpty(), 20000);

        m_window->close();
        QMessageBox* question = openDialog<QMessageBox>(m_window.get());
        QVERIFY(question);
        QCOMPARE(question->text(), u"Warnning"_s);
        QVERIFY(clickMessageButton(question, u"OK"_s));
        QTRY_VERIFY(!m_window->isVisible());
        // The children were waited for: nothing half-written is left, and no summary follows.
        QCOMPARE(m_window->workspace().store().enumAppState(), int(AppStateIdle));
        QCOMPARE(SonoriaTest::filesBelow(m_output->path()), QStringList());
        QTest::qWait(600);
        QVERIFY(!m_window->findChild<QMessageBox*>());
        for (const QString& name : {u"long.wav"_s, u"longer.wav"_s})
            QVERIFY(QFile::exists(m_media->filePath(name)));
    }

private:
    // Adds generated sources to the selected container and waits until they are listed.
    void addSources(const QStringList& names, double seconds, const QStringList& extra = {}) {
        QStringList paths;
        for (const QString& name : names) {
            paths.append(m_media->filePath(name));
            QVERIFY(SonoriaTest::makeTone(paths.last(), seconds, extra));
        }
        QVERIFY(addFiles(m_window->workspace(), paths));
        QCOMPARE(m_window->workspace().store().currentTabItemCount(), names.size());
    }
    // Presses Start and answers the folder dialog with `folder`, organised by format.
    void startInto(const QString& folder, bool byEnterOnTheList = false) {
        QAction* start = startAction();
        QVERIFY(start && start->isEnabled());
        if (byEnterOnTheList) {
            auto* list = m_window->findChild<SXItemListView*>();
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Return);
        } else {
            start->trigger();
        }
        auto* dialog = openDialog<SXOutputFolderDialog>(m_window.get());
        QVERIFY(dialog);
        grab(dialog, u"output-folder"_s);
        SONORIA_VERIFY_NONE(accessibilityProblems(dialog));
        dialog->findChild<QLineEdit*>(u"folder"_s)->setText(folder);
        auto* organise = dialog->findChild<QCheckBox*>(u"btnOrgized"_s);
        QVERIFY(organise->isChecked()); // on unless the user turned it off
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QTRY_COMPARE(m_window->workspace().store().enumAppState(), int(AppStateConverting));
    }
    QAction* startAction() const { return m_window->toolbar().action(SXCommand::Start); }

    SonoriaTest::PrivateSessionBus m_bus;
    DesktopListener m_listener;
    std::unique_ptr<QTemporaryDir> m_media;
    std::unique_ptr<QTemporaryDir> m_output;
    std::unique_ptr<SXMainAppController> m_window;
};

SONORIA_GUI_TEST_MAIN(TestWindowRun)
#include "tst_windowrun.moc"
