#include "ItemListTestSupport.h"

#include "gui/dialogs/SXMetadataEditDialog.h"
#include "gui/list/SXItemRowDelegate.h"
#include "gui/list/SXRowContextMenu.h"
#include "gui/window/SXWindowPresenter.h"
#include "workspace/SXItemRowLook.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QToolTip>

using namespace Qt::StringLiterals;
using namespace ItemListTest;

// One row per item, painted by the delegate: the state button per progress value, the buttons
// under the mouse, and the gestures on rows (right-click, keys, double-click, play button).
class TestItemRows : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        const QString first = m_media.filePath(u"Morning Song.mp3"_s);
        QVERIFY(SonoriaTest::makeTone(first, 20, {u"-metadata"_s, u"artist=Ann Artist"_s}));
        m_files.append(first);
        for (int i = 2; i <= 8; ++i) {
            m_files.append(m_media.filePath(u"Track %1.mp3"_s.arg(i)));
            QVERIFY(QFile::link(first, m_files.last()));
        }
        m_window = openWindow();
        QVERIFY(m_window);
        m_view = listOf(m_window.get());
    }
    void init() {
        m_window->workspace().store().setAppState(AppStateIdle);
        m_window->workspace().addRun().clearContainer();
        QVERIFY(dropFilesOnList(m_window.get(), m_files));
        QCOMPARE(m_view->model()->rowCount(), 8);
        // The keys of the tests are the window's shortcuts too.
        QVERIFY(SonoriaGuiTest::activate(m_window.get()));
    }
    void cleanupTestCase() { m_window.reset(); }
    void rowsPaintEachProgress_data() {
        QTest::addColumn<double>("progress");
        QTest::addColumn<bool>("running");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("rightImage"); // under the mouse
        QTest::addColumn<double>("pieShare");    // of the button's disc; -1: no pie at all
        QTest::newRow("waiting") << -1.0 << false << u"pending"_s << u"right_edit"_s << -1.0;
        QTest::newRow("sending") << -2.0 << true << u"sending"_s << u"cancel"_s << -1.0;
        QTest::newRow("cancelled") << -3.0 << false << u"canceled"_s << u"right_edit"_s << -1.0;
        QTest::newRow("failed") << -4.0 << false << u"error"_s << u"right_edit"_s << -1.0;
        QTest::newRow("finished") << 100.0 << false << u"finish"_s << u"right_edit"_s << -1.0;
        QTest::newRow("starting") << 0.0 << true << u"converting"_s << u"cancel"_s << 0.0;
        QTest::newRow("37.9 %") << 37.9 << true << u"converting"_s << u"cancel"_s << 0.37;
        QTest::newRow("99.6 %") << 99.6 << true << u"converting"_s << u"cancel"_s << 0.99;
    }
    void rowsPaintEachProgress() {
        QFETCH(double, progress);
        QFETCH(bool, running);
        QFETCH(QString, toolTip);
        QFETCH(QString, rightImage);
        QFETCH(double, pieShare);
        SXWorkspace& workspace = m_window->workspace();
        item(1)->setDConvertProgress(progress);
        workspace.store().setAppState(running ? AppStateConverting : AppStateIdle);
        Q_EMIT workspace.scheduler().rowsRedrawRequested();

        // The pixels of the state button in the pie's colour.
        const QRect button = rowGeometry(1).state;
        const QImage image = m_view->viewport()->grab(button).toImage();
        const QColor colour = SXItemRowDelegate::pieColor();
        int pie = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor c = image.pixelColor(x, y);
                pie += std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green()) +
                           std::abs(c.blue() - colour.blue()) <
                       30;
            }
        }
        if (pieShare < 0) {
            QCOMPARE(pie, 0);
        } else {
            // The disc has a radius of 10 px: about 280 px in the full colour inside its
            // anti-aliased rim.
            QVERIFY2(std::abs(pie - pieShare * 280) <= 15, qPrintable(QString::number(pie)));
        }
        QHelpEvent help(QEvent::ToolTip, button.center(),
                        m_view->viewport()->mapToGlobal(button.center()));
        QApplication::sendEvent(m_view->viewport(), &help);
        QCOMPARE(QToolTip::text(), toolTip);
        QToolTip::hideText();

        // Under the mouse the right button shows; elsewhere it is hidden.
        // Waited for: a real X server delivers the pointer's moves when it gets to them.
        hover(3);
        QTRY_VERIFY(SonoriaGuiTest::isBlank(m_view->viewport(), rowGeometry(1).right));
        hover(1);
        QTRY_VERIFY(!SonoriaGuiTest::isBlank(m_view->viewport(), rowGeometry(1).right));
        QCOMPARE(
            SXItemRowLookRules::rowLook(workspace.store(), item(1), true, false, true).rightImage,
            rightImage);
        SonoriaGuiTest::grab(m_window.get(),
                             u"rows-%1"_s.arg(QString::fromLatin1(QTest::currentDataTag())));

        if (QByteArray(QTest::currentDataTag()) == "37.9 %") {
            // Every state at once, for a look at the whole list.
            const QList<double> values{-1, -2, -3, -4, 100, 0, 37.9, 71};
            for (int i = 0; i < values.size(); ++i)
                item(i)->setDConvertProgress(values.at(i));
            workspace.store().setAppState(AppStatePlaying, item(0));
            Q_EMIT workspace.scheduler().rowsRedrawRequested();
            SonoriaGuiTest::grab(m_window.get(), u"rows-all-states"_s);
        }
    }
    void rowMenuFollowsTheState_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("chosen");
        const QStringList idle{u"Play"_s, u"Edit Tags…"_s, u"File Information"_s,
                               u"Show in Files"_s, u"Remove"_s};
        QTest::newRow("idle") << int(AppStateIdle) << idle << u"Edit Tags…"_s;
        QTest::newRow("playing") << int(AppStatePlaying) << idle << u"Edit Tags…"_s;
        QTest::newRow("loading") << int(AppStateLoading)
                                 << QStringList{u"-Play"_s, u"-Edit Tags…"_s,
                                                u"-File Information"_s, u"Show in Files"_s,
                                                u"-Remove"_s}
                                 << QString();
        QTest::newRow("converting") << int(AppStateConverting)
                                    << QStringList{u"Cancel This Conversion"_s, u"Show in Files"_s}
                                    << u"Cancel This Conversion"_s;
    }
    void rowMenuFollowsTheState() {
        QFETCH(int, state);
        QFETCH(QStringList, entries);
        QFETCH(QString, chosen);
        SXWorkspace& workspace = m_window->workspace();
        workspace.store().setSelectedRows({0, 1});
        QSignalSpy finished(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished);
        if (state == AppStateConverting)
            workspace.scheduler().doRealConverterTask(m_output.path());
        else
            workspace.store().setAppState(state);
        QSignalSpy editor(&workspace.scheduler(), &SXWorkspaceScheduler::metadataEditorRequested);
        // A right-click through the window system, which follows the press with a context menu
        // event: the row outside the selection becomes the selection, and its menu opens.
        QTest::mouseClick(m_window->windowHandle(), Qt::RightButton, {},
                          m_view->viewport()->mapTo(m_window.get(), centreOf(4)));
        QCOMPARE(menuEntries(), entries);
        QCOMPARE(SonoriaGuiTest::mnemonicClashes(m_view->rowMenu().menu()), QStringList());
        QCOMPARE(editor.count(), 0);
        QCOMPARE(workspace.store().selectedRows(), QList<int>{4});
        SonoriaGuiTest::grab(m_view->rowMenu().menu(),
                             u"row-menu-"_s + QString::fromLatin1(QTest::currentDataTag()));
        QTest::keyClick(m_view->rowMenu().menu(), Qt::Key_Escape);
        QTRY_VERIFY(!m_view->rowMenu().menu()->isVisible());

        // The keyboard opens it for the current row: the Menu key, and Shift+F10 without one.
        m_view->setFocus();
        QTest::keyClick(m_view, Qt::Key_Menu);
        QCOMPARE(menuEntries(), entries);
        QTest::keyClick(m_view->rowMenu().menu(), Qt::Key_Escape);
        QTRY_VERIFY(!m_view->rowMenu().menu()->isVisible());
        QTest::keyClick(m_view, Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(menuEntries(), entries);
        if (chosen.isEmpty()) {
            QTest::keyClick(m_view->rowMenu().menu(), Qt::Key_Escape);
            return;
        }
        choose(chosen);
        QCOMPARE(editor.count(), state == AppStateConverting ? 0 : 1);
        if (editor.count())
            closeTagEditor();
        // The right button of the row under the mouse does the same.

        hover(5);
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, rowGeometry(5).right.center());
        QCOMPARE(editor.count(), state == AppStateConverting ? 0 : 2);
        if (editor.count())
            closeTagEditor();
        if (state != AppStateConverting) {
            // Remove takes the rows the menu acts on, and only those.
            QTest::mouseClick(m_window->windowHandle(), Qt::RightButton, {},
                              m_view->viewport()->mapTo(m_window.get(), centreOf(2)));
            choose(u"Remove"_s);
            QCOMPARE(m_view->model()->rowCount(), 7);
            return;
        }
        // During a run both cancelled their own item's conversion and nothing else.
        QVERIFY(finished.wait(120000));
        QList<int> states;
        for (int row = 0; row < 8; ++row)
            states.append(item(row)->mediaInfo()->eumCvtState());
        const int done = CvtStateFinished;
        const int cancelled = CvtStateCanceled;
        QCOMPARE(states, (QList<int>{done, done, done, done, cancelled, cancelled, done, done}));
        auto* summary = SonoriaGuiTest::openDialog<QMessageBox>(m_window.get());
        QVERIFY(summary);
        QVERIFY(SonoriaGuiTest::clickMessageButton(summary, summary->buttons().first()->text()));
        QTRY_COMPARE(workspace.store().enumAppState(), int(AppStateIdle));
    }
    void keysSelectDeleteAndMoveWithBeeps() {
        SXWorkspace& workspace = m_window->workspace();
        QSignalSpy beeps(&m_window->presenter(), &SXWindowPresenter::beeped);
        m_view->setFocus();
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, centreOf(0));
        QTest::keyClick(m_view, Qt::Key_Down);
        QCOMPARE(workspace.store().selectedRows(), QList<int>{1});
        QTest::keyClick(m_view, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(workspace.store().selectedRows(), (QList<int>{1, 2}));
        QTest::keyClick(m_view, Qt::Key_Delete);
        QCOMPARE(m_view->model()->rowCount(), 6);
        QCOMPARE(workspace.store().selectedRows(), QList<int>{1});
        // A click below the last row or a Ctrl-click on the only selected row keeps a selection.
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
                          QPoint(10, m_view->viewport()->height() - 2));
        QCOMPARE(workspace.store().selectedRows(), QList<int>{1});
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::ControlModifier, centreOf(1));
        QCOMPARE(workspace.store().selectedRows(), QList<int>{1});
        QCOMPARE(m_view->selectionModel()->selectedRows().size(), 1);

        // The window's row commands reach the list (where they stop is tst_workspacelists').
        m_window->perform(SXCommand::PreviousRow);
        QCOMPARE(workspace.store().selectedRows(), QList<int>{0});
        QTest::keyClick(m_view, Qt::Key_End);
        m_window->perform(SXCommand::NextRow);
        QCOMPARE(workspace.store().selectedRows(), QList<int>{5});

        // Deleting the last row selects the new last one; deleting everything, then Delete beeps.
        QTest::keyClick(m_view, Qt::Key_Delete);
        QCOMPARE(workspace.store().selectedRows(), QList<int>{4});
        QTest::keyClick(m_view, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(workspace.store().selectedRows().size(), 5);
        QTest::keyClick(m_view, Qt::Key_Delete);
        QCOMPARE(m_view->model()->rowCount(), 0);
        QCOMPARE(beeps.count(), 1);
        QTest::keyClick(m_view, Qt::Key_Delete);
        m_window->perform(SXCommand::Clear);
        QCOMPARE(beeps.count(), 3);
    }

private:
    SXMusicInfoPtr item(int row) const { return m_view->itemModel().itemAt(row); }
    QRect rowRect(int row) const { return m_view->visualRect(m_view->model()->index(row, 0)); }
    QPoint centreOf(int row) const { return rowRect(row).center(); }
    SXItemRowGeometry rowGeometry(int row) const { return SXItemRowGeometry::of(rowRect(row)); }
    // Closes the tag editor a right-click opened and gives the window back its activation.
    void closeTagEditor() const {
        auto* editor = SonoriaGuiTest::openDialog<SXMetadataEditDialog>(m_window.get());
        QVERIFY(editor);
        editor->reject();
        QVERIFY(SonoriaGuiTest::activate(m_window.get()));
    }
    // The entries of the open row menu, "-" before a disabled one; empty when it is closed.
    QStringList menuEntries() const {
        QMenu* menu = m_view->rowMenu().menu();
        if (!QTest::qWaitFor([menu] { return menu->isVisible(); }, 2000))
            return {};
        QStringList entries;
        for (QAction* action : menu->actions()) {
            if (!action->isSeparator())
                entries.append((action->isEnabled() ? u""_s : u"-"_s) +
                               QString(action->text()).remove(u'&'));
        }
        return entries;
    }
    // Chooses the entry of the open row menu that reads `text` with the mouse.
    void choose(const QString& text) const {
        QMenu* menu = m_view->rowMenu().menu();
        for (QAction* action : menu->actions()) {
            if (QString(action->text()).remove(u'&') == text) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                QTRY_VERIFY(!menu->isVisible());
                return;
            }
        }
        QFAIL(qPrintable(u"no entry "_s + text));
    }
    // Moves the mouse onto `row` from outside it (a move to where it already is sends nothing).
    void hover(int row) const {
        QTest::mouseMove(m_view->viewport(), centreOf(row == 0 ? 1 : 0));
        QTest::mouseMove(m_view->viewport(), centreOf(row));
    }

    QTemporaryDir m_media;
    QTemporaryDir m_output;
    QStringList m_files;
    std::unique_ptr<SXMainAppController> m_window;
    SXItemListView* m_view = nullptr;
};

SONORIA_GUI_TEST_MAIN(TestItemRows)
#include "tst_itemrows.moc"
