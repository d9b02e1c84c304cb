#include "ItemListTestSupport.h"

#include "base/SXSettings.h"
#include "gui/dialogs/SXAddFilesDialog.h"
#include "gui/dialogs/SXLoadingDialog.h"
#include "gui/panels/SXHelpView.h"
#include "gui/window/SXContainerTabBar.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace ItemListTest;

// What the list widgets add to the core's list decisions (tested in tests/workspace): real drops
// of files and rows reaching the core from the list, the tabs and other windows, the add dialog,
// the loading dialog, alerts shown as message boxes, and rows read aloud.
class TestItemList : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(QDir(m_media.path()).mkpath(u"folder/sub"_s));
        QVERIFY(QDir(m_media.path()).mkpath(u"many"_s));
        QVERIFY(SonoriaTest::makeTone(path(u"a.mp3"_s), 1, {u"-metadata"_s, u"artist=Ann"_s}));
        for (const QString& name :
             {u"b.wav"_s, u"c.flac"_s, u"folder/d.ogg"_s, u"folder/sub/e.vob"_s})
            QVERIFY(SonoriaTest::makeTone(path(name), 1));
        // A batch long enough to be cancelled while it loads.
        for (int i = 0; i < 2000; ++i)
            QVERIFY(QFile::link(path(u"b.wav"_s),
                                path(u"many/%1.wav"_s.arg(i, 4, 10, QLatin1Char('0')))));
    }
    void init() {
        SXSettings::removeKey(SXSettingsKey::AppSupportVob);
        m_window = openWindow();
        QVERIFY(m_window);
    }
    void cleanup() { m_window.reset(); }
    void droppedFilesBecomeRowsReadAloud() {
        SXItemListView* view = listOf(m_window.get());
        QAbstractItemModelTester tester(view->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);

        // A file, a folder and a remote address: the core's refusal reaches the user as a
        // window-modal message box.
        QSignalSpy finished(&m_window->workspace().addRun(), &SXAddRun::loadFinished);
        const std::unique_ptr<QMimeData> data(
            uriList(localUrls({path(u"a.mp3"_s), path(u"folder"_s)}) +
                    QList<QUrl>{QUrl(u"https://example.org/x.mp3"_s)}));
        QVERIFY(dragAndDrop(view->viewport(), QPoint(10, 10), data.get()));
        auto* refusal = SonoriaGuiTest::openDialog<QMessageBox>(m_window.get());
        QVERIFY(refusal);
        QCOMPARE(refusal->windowModality(), Qt::WindowModal);
        QCOMPARE(refusal->informativeText(), u"https://example.org/x.mp3\n"_s);
        QVERIFY(SonoriaGuiTest::clickMessageButton(refusal, u"OK"_s));
        QVERIFY(finished.count() > 0 || finished.wait(60000));

        QCOMPARE(rowNames(view, true), (QStringList{u"a.mp3"_s, u"d.ogg"_s, u"e.vob"_s}));
        // A screen reader reads each row by its file name.
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(view);
        QVERIFY(list);
        QStringList spoken;
        for (int i = 0; i < list->childCount(); ++i)
            spoken.append(list->child(i)->text(QAccessible::Name));
        QCOMPARE(spoken, rowNames(view));
        QCOMPARE(tabCount(m_window.get(), u"MP3"_s), 3);
        auto* help = m_window->findChild<SXHelpView*>();
        QVERIFY(help->tipsStr().startsWith(u"3 files"_s));

        // A file dropped anywhere else in the window is added too.
        finished.clear();
        const std::unique_ptr<QMimeData> more(uriList(localUrls({path(u"b.wav"_s)})));
        const QPoint onHelpBar = help->mapTo(m_window.get(), help->rect().center());
        // The widget under the pointer, or its nearest parent that takes drops.
        QWidget* target = m_window->childAt(onHelpBar);
        while (target && !target->acceptDrops())
            target = target->parentWidget();
        QVERIFY(target);
        QVERIFY(dragAndDrop(target, target->mapFrom(m_window.get(), onHelpBar), more.get()));
        QVERIFY(finished.count() > 0 || finished.wait(60000));
        QCOMPARE(view->model()->rowCount(), 4);
        QCOMPARE(tabCount(m_window.get(), u"MP3"_s), 4);
        QVERIFY(help->tipsStr().startsWith(u"4 files"_s));
    }
    void addDialogTakesFilesAndFoldersTogether() {
        QSignalSpy finished(&m_window->workspace().addRun(), &SXAddRun::loadFinished);
        QTest::mouseClick(m_window->findChild<QPushButton*>(u"btnAddFile"_s), Qt::LeftButton);
        auto* dialog = SonoriaGuiTest::openDialog<SXAddFilesDialog>(m_window.get());
        QVERIFY(dialog);
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QVERIFY(dialog->nameFilters().first().contains(u"*.flac"_s));
        dialog->setDirectory(m_media.path());
        auto* name = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
        name->setText(u"\"c.flac\" \"folder\""_s);
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(finished.wait(60000));
        QCOMPARE(rowNames(listOf(m_window.get()), true),
                 (QStringList{u"c.flac"_s, u"d.ogg"_s, u"e.vob"_s}));
    }
    void loadingDialogShowsProgressAndCancels() {
        SXWorkspace& workspace = m_window->workspace();
        QSignalSpy finished(&workspace.addRun(), &SXAddRun::loadFinished);
        QStringList seen;
        SXLoadingDialog* dialog = m_window->findChild<SXLoadingDialog*>();
        int stateWhileShown = -1;
        QStringList dialogProblems;
        connect(&workspace.addRun(), &SXAddRun::loadStarted, this,
                [&] { seen.append(dialog->progressText()); });
        QMetaObject::Connection clickCancel;
        clickCancel = connect(&workspace.addRun(), &SXAddRun::loadProgressText, this, [&] {
            disconnect(clickCancel);
            seen.append(dialog->progressText());
            stateWhileShown = dialog->isVisible() ? workspace.store().enumAppState() : -1;
            dialogProblems = SonoriaGuiTest::accessibilityProblems(dialog);
            SonoriaGuiTest::grab(dialog, u"loading-dialog"_s);
            QTest::mouseClick(dialog->findChild<QPushButton*>(u"btnCancel"_s), Qt::LeftButton);
            seen.append(dialog->isVisible() ? u"still shown"_s : u"hidden"_s);
        });
        QVERIFY(dropFilesOnList(m_window.get(), {path(u"many"_s)}));
        QCOMPARE(seen.size(), 3);
        QCOMPARE(seen.at(0), u"Loading Media Files..."_s);
        QVERIFY2(seen.at(1).startsWith(u"Importing "_s) && seen.at(1).endsWith(u".wav..."_s),
                 qPrintable(seen.at(1)));
        QCOMPARE(seen.at(2), u"hidden"_s);
        QCOMPARE(stateWhileShown, int(AppStateLoading));
        QVERIFY2(dialogProblems.isEmpty(), qPrintable(dialogProblems.join(u'\n')));
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QCOMPARE(workspace.store().currentTabItemCount(), 0);
    }
    void rowsMoveWithinTheListOntoTabsAndIntoOtherWindows() {
        SXMainAppController* first = m_window.get();
        const auto second = openWindow();
        QVERIFY(second);
        QVERIFY(dropFilesOnList(first, {path(u"a.mp3"_s), path(u"b.wav"_s), path(u"c.flac"_s)}));
        QVERIFY(dropFilesOnList(second.get(), {path(u"a.mp3"_s), path(u"b.wav"_s)}));
        SXItemListView* view = listOf(first);
        SXItemListView* other = listOf(second.get());
        QAbstractItemModelTester tester(view->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);

        // Reordering: the first two rows dropped at the end. The drag also carries the files for
        // file managers, as copies.
        std::unique_ptr<QMimeData> rows = dragRows(view, {0, 1});
        QCOMPARE(rows->urls(), localUrls({path(u"a.mp3"_s), path(u"b.wav"_s)}));
        QCOMPARE(view->model()->supportedDragActions(), Qt::CopyAction);
        QVERIFY(dragAndDrop(view->viewport(), pointBeforeRow(view, 3), rows.get()));
        QCOMPARE(rowNames(view), (QStringList{u"c.flac"_s, u"a.mp3"_s, u"b.wav"_s}));
        QCOMPARE(first->workspace().store().selectedRows(), (QList<int>{1, 2}));

        // Onto the tab under the pointer; the other window's list redraws without the row.
        rows = dragRows(view, {1});
        const QRect aac = first->tabBar().tabRect(tabIndex(first, u"AAC"_s));
        QVERIFY(dragAndDrop(&first->tabBar(), aac.center(), rows.get()));
        QCOMPARE(rowNames(view), (QStringList{u"c.flac"_s, u"b.wav"_s}));
        QCOMPARE(first->workspace().store().getDataForFormat(u"AAC"_s).size(), 1);
        QCOMPARE(rowNames(other), QStringList{u"b.wav"_s});
        QCOMPARE(tabCount(first, u"MP3"_s), 2);
        QCOMPARE(tabCount(first, u"AAC"_s), 1);

        // Into the list of another window showing another container.
        QTest::mouseClick(&second->tabBar(), Qt::LeftButton, {},
                          second->tabBar().tabRect(tabIndex(second.get(), u"AAC"_s)).center());
        QCOMPARE(second->workspace().store().getSelectedMusicFormat(), u"AAC"_s);
        rows = dragRows(view, {1});
        QVERIFY(dragAndDrop(other->viewport(), pointBeforeRow(other, 0), rows.get()));
        QCOMPARE(rowNames(other), QStringList{u"b.wav"_s});
        QCOMPARE(rowNames(view), QStringList{u"c.flac"_s});
        QCOMPARE(tabCount(second.get(), u"AAC"_s), 1);
        QCOMPARE(tabCount(second.get(), u"MP3"_s), 0);
        QVERIFY(first->findChild<SXHelpView*>()->tipsStr().startsWith(u"2 files"_s));
    }
    void dropsAreRefusedDuringARun() {
        QVERIFY(dropFilesOnList(m_window.get(), {path(u"a.mp3"_s), path(u"b.wav"_s)}));
        SXItemListView* view = listOf(m_window.get());
        const std::unique_ptr<QMimeData> rows = dragRows(view, {0});
        const std::unique_ptr<QMimeData> files(uriList(localUrls({path(u"c.flac"_s)})));
        m_window->workspace().store().setAppState(AppStateConverting);

        QVERIFY(!dragRows(view, {1}));
        QVERIFY(!dragAndDrop(view->viewport(), pointBeforeRow(view, 2), rows.get()));
        QVERIFY(!dragAndDrop(view->viewport(), QPoint(10, 10), files.get()));
        QVERIFY(!dragAndDrop(m_window.get(), QPoint(5, 5), files.get()));
        const QRect aac = m_window->tabBar().tabRect(1);
        QVERIFY(!dragAndDrop(&m_window->tabBar(), aac.center(), rows.get()));
        QCOMPARE(rowNames(view), (QStringList{u"a.mp3"_s, u"b.wav"_s}));
        m_window->workspace().store().setAppState(AppStateIdle);
    }

private:
    QString path(const QString& name) const { return m_media.filePath(name); }
    static int tabIndex(SXMainAppController* window, const QString& label) {
        return int(window->workspace().store().tabLabels().indexOf(label));
    }
    int tabCount(SXMainAppController* window, const QString& label) {
        const QString name = window->tabBar().accessibleTabName(tabIndex(window, label));
        return name.section(u", "_s, 1).section(u' ', 0, 0).toInt();
    }

    QTemporaryDir m_media;
    std::unique_ptr<SXMainAppController> m_window;
};

SONORIA_GUI_TEST_MAIN(TestItemList)
#include "tst_itemlist.moc"
