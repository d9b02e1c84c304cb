#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "model/SXDataEngine.h"
#include "workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"
#include "workspace/SXListDrop.h"
#include "workspace/SXRedrawThrottle.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <atomic>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {
// The file names the workspace's list shows.
QStringList shown(SXWorkspace& workspace) {
    return fileNames(workspace.store().getCurTableDatasource());
}
} // namespace

class TestWorkspaceLists : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(QDir(m_dir.path()).mkpath(u"folder/sub"_s));
        for (const QString& name : {u"a.mp3"_s, u"b.wav"_s, u"c.flac"_s, u"d.VOB"_s,
                                    u"folder/e.ogg"_s, u"folder/sub/f.vob"_s})
            QVERIFY(SonoriaTest::makeTone(path(name), 1));
        for (int i = 1; i <= 12; ++i)
            QVERIFY(SonoriaTest::writeFile(path(u"bad%1.mp3"_s.arg(i, 2, 10, QLatin1Char('0'))),
                                           "no audio\n"));
        QVERIFY(SonoriaTest::writeFile(path(u"folder/notes.txt"_s), {}));
    }

    void init() {
        SXSettings::removeKey(SXSettingsKey::AppSupportVob);
        m_presenter = WorkspaceTestPresenter();
    }

    void containerRules() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();

        // Fixed containers never close; the refusal is audible.
        QVERIFY(!workspace.tabs().closeTab());
        QCOMPARE(m_presenter.beeps, 1);

        // The chooser offers only formats without a container, in catalogue order.
        m_presenter.formatAnswer = u"WAV"_s;
        workspace.tabs().addContainer();
        QStringList offered;
        for (const SXFormatSettingPtr& format : std::as_const(m_presenter.offeredFormats))
            offered.append(format->fmtName());
        // The fixed containers lead the catalogue (tst_sxdataengine).
        QCOMPARE(offered, SXDataEngine::shareInstance()->getAllOutputFormats().mid(fixed.size()));
        QCOMPARE(workspace.store().getSelectedMusicFormat(), u"WAV"_s);

        // No container closes during a run.
        workspace.store().setAppState(AppStateConverting);
        QVERIFY(!workspace.tabs().closeTab());
        QVERIFY(workspace.store().tabLabels().contains(u"WAV"_s));
        workspace.store().setAppState(AppStateIdle);

        // A tab named "Drake" is refused with its notice.
        workspace.tabs().addNewTabWithName(u"Drake"_s);
        QVERIFY(workspace.tabs().selectContainer(u"Drake"_s));
        QVERIFY(!workspace.tabs().closeTab());
        QCOMPARE(m_presenter.notices.size(), 1);
        QCOMPARE(
            alertTexts(m_presenter.notices.first()),
            (QStringList{u"No Way!"_s, u"I refuse to close a tab named \"Drake\""_s, u"OK"_s}));
        // "Drake" took the place of the first non-fixed tab (WAV) and the appended tab stayed
        // unnamed: the container WAV has no tab any more.
        QCOMPARE(workspace.store().tabLabels(), (fixed + QStringList{u"Drake"_s, QString()}));

        // An added container closes and takes its items with it.
        m_presenter.formatAnswer = u"Opus"_s;
        workspace.tabs().addContainer();
        QVERIFY(addFiles(workspace, {path(u"b.wav"_s)}));
        QCOMPARE(workspace.store().currentTabItemCount(), 1);
        QVERIFY(workspace.tabs().closeTab());
        QVERIFY(!workspace.store().tabLabels().contains(u"Opus"_s));
        QVERIFY(!workspace.store().hasDataForFormat(u"Opus"_s));

        // Neighbour moves: -1 means next, +1 previous; the ends beep.
        workspace.tabs().selectTab(0);
        workspace.tabs().selectPreviousContainer();
        QCOMPARE(m_presenter.beeps, 2);
        workspace.tabs().selectNextContainer();
        QCOMPARE(workspace.store().selectedTabIndex(), 1);
        workspace.tabs().selectTab(int(workspace.store().tabLabels().size()) - 1);
        workspace.tabs().selectNextContainer();
        QCOMPARE(m_presenter.beeps, 3);

        // With every format open the chooser is not offered.
        for (const QString& name : SXDataEngine::shareInstance()->getAllOutputFormats()) {
            if (!workspace.store().tabLabels().contains(name))
                workspace.tabs().addContainerWithFormat(
                    SXDataEngine::shareInstance()->getFormatWithName(name));
        }
        m_presenter.offeredFormats.clear();
        workspace.tabs().addContainer();
        QVERIFY(m_presenter.offeredFormats.isEmpty());
        QCOMPARE(m_presenter.alerts.last().messageText,
                 u"All formats are opened, you can set the paramas in the setting window."_s);
    }

    void addRunExpandsFoldersAndAppliesTheVobRule() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        QSignalSpy states(&workspace.store(), &SXContainerStore::appStateChanged);
        QSignalSpy texts(&workspace.addRun(), &SXAddRun::loadProgressText);
        QSignalSpy fractions(&workspace.addRun(), &SXAddRun::loadProgressValue);
        QSignalSpy started(&workspace.addRun(), &SXAddRun::loadStarted);

        // A loose "vob" file is refused without the preference; inside a folder only the folder's
        // filter applies (and it drops the text file). A path that cannot be examined is reported
        // on standard error and among the load failures.
        QTemporaryFile standardError;
        QVERIFY(standardError.open());
        std::fflush(stderr);
        const int saved = ::dup(2);
        ::dup2(standardError.handle(), 2);
        const bool done = addFiles(workspace, {path(u"a.mp3"_s), path(u"d.VOB"_s),
                                               path(u"missing.mp3"_s), path(u"folder"_s)});
        std::fflush(stderr);
        ::dup2(saved, 2);
        ::close(saved);
        QVERIFY(done);
        const QString errors =
            QString::fromLocal8Bit(SonoriaTest::readFile(standardError.fileName()));
        QVERIFY2(errors.contains(u"lstat error: No such file or directory"_s), qPrintable(errors));
        QCOMPARE(started.count(), 1);
        QCOMPARE(started.first().first().toString(), u"Loading Media Files..."_s);
        // The folder's files follow the loose file, in the order the folder scan gives them.
        QStringList names = shown(workspace);
        // Reports are thinned out on their way to the main thread, but the last one always arrives:
        // the path that could not be examined, which ends the batch.
        QCOMPARE(texts.last().first().toString(), u"Importing missing.mp3..."_s);
        QCOMPARE(names.takeFirst(), u"a.mp3"_s);
        names.sort();
        QCOMPARE(names, (QStringList{u"e.ogg"_s, u"f.vob"_s}));
        QCOMPARE(fractions.last().first().toDouble(), 1.0);
        QCOMPARE(states.count(), 2);
        QCOMPARE(states.at(0).first().toInt(), int(AppStateLoading));
        QCOMPARE(states.at(1).first().toInt(), int(AppStateIdle));
        QCOMPARE(workspace.store().selectedRows(), QList<int>{0});
        QCOMPARE(m_presenter.alerts.size(), 1);
        QCOMPARE(m_presenter.alerts.first().details,
                 path(u"missing.mp3"_s) + u": No such file or directory"_s);

        // Paths already listed stay out, whether named again, twice in one add, or given again
        // by a folder added again; the new one among them is appended.
        const QStringList listed = shown(workspace);
        QVERIFY(addFiles(workspace, {path(u"c.flac"_s), path(u"a.mp3"_s), path(u"folder"_s),
                                     path(u"c.flac"_s)}));
        QCOMPARE(shown(workspace), listed + QStringList{u"c.flac"_s});

        // Another container takes the same file, and with the preference a loose "vob" file.
        SXSettings::setValue(SXSettingsKey::AppSupportVob, true);
        QVERIFY(workspace.tabs().selectContainer(u"AAC"_s));
        QVERIFY(addFiles(workspace, {path(u"a.mp3"_s), path(u"d.VOB"_s)}));
        QCOMPARE(shown(workspace), (QStringList{u"a.mp3"_s, u"d.VOB"_s}));
        QCOMPARE(workspace.store().getCurTableDatasource().first()->getStrMusicType(), u"AAC"_s);
        QCOMPARE(m_presenter.alerts.size(), 1);
    }

    void addRunNamesFailedFilesInOneAlert_data() {
        QTest::addColumn<int>("failures");
        QTest::newRow("eleven") << 11;
        QTest::newRow("twelve") << 12;
    }

    void addRunNamesFailedFilesInOneAlert() {
        QFETCH(int, failures);
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        QStringList paths{path(u"a.mp3"_s)};
        QString expected;
        for (int i = 1; i <= failures; ++i) {
            const QString name = u"bad%1.mp3"_s.arg(i, 2, 10, QLatin1Char('0'));
            paths.append(path(name));
            if (i <= 11)
                expected += name + u'\n';
        }
        // The list always ends in "...", even when every name fits.
        expected += u"..."_s;
        SXMusicInfoList failed;
        QVERIFY(addFiles(workspace, {}, paths, &failed));
        QCOMPARE(shown(workspace), QStringList{u"a.mp3"_s});
        QCOMPARE(failed.size(), failures);
        QCOMPARE(m_presenter.alerts.size(), 1);
        QCOMPARE(alertTexts(m_presenter.alerts.first()),
                 (QStringList{u"Following file(s) load failed!"_s, expected, u"OK"_s}));
        // Behind the alert every one of them, with its folder and why it failed.
        const QStringList details = m_presenter.alerts.first().details.split(u'\n');
        QCOMPARE(details.size(), failures);
        QCOMPARE(details.last(), path(u"bad%1.mp3"_s.arg(failures)) +
                                     u": The file holds no audio that can be read"_s);
    }

    void cancelDuringLoadingKeepsNothing() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        QSignalSpy cancelled(&workspace.addRun(), &SXAddRun::loadCancelled);
        // Cancel as the first file starts, from the loader's own thread, so the cancel surely
        // lands before the batch is through.
        connect(
            &workspace.addRun(), &SXAddRun::loadProgressText, &workspace,
            [&workspace] { workspace.addRun().cancelLoading(); }, Qt::DirectConnection);
        QTemporaryDir copies;
        QStringList batch;
        for (int i = 0; i < 20; ++i) {
            batch.append(copies.filePath(u"b%1.wav"_s.arg(i)));
            QVERIFY(QFile::link(path(u"b.wav"_s), batch.last()));
        }
        QVERIFY(addFiles(workspace, batch));
        QVERIFY(cancelled.count() >= 1);
        QCOMPARE(workspace.store().currentTabItemCount(), 0);
        QCOMPARE(workspace.store().enumAppState(), int(AppStateIdle));
        QVERIFY(m_presenter.alerts.isEmpty());
    }

    void dropsRefuseRemoteAddressesAndWaitWhileBusy() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        // A remote address is refused aloud, by name; the local file beside it is added.
        QSignalSpy finished(&workspace.addRun(), &SXAddRun::loadFinished);
        const SXDropContent files{
            {}, {QUrl::fromLocalFile(path(u"a.mp3"_s)), QUrl(u"https://example.org/x.mp3"_s)}};
        QVERIFY(SXListDrop::dropOnWindow(workspace.addRun(), files));
        QVERIFY(finished.count() > 0 || finished.wait(60000));
        QCOMPARE(alertTexts(m_presenter.alerts.first()),
                 (QStringList{u"Following location(s) are not files on this computer and were not "
                              "added!"_s,
                              u"https://example.org/x.mp3\n"_s, u"OK"_s}));
        QCOMPARE(shown(workspace), QStringList{u"a.mp3"_s});
        // A window's own drag carries URLs for file managers too: the items win.
        const SXDropContent rows{workspace.moves().dragDataForRows({0}),
                                 {QUrl::fromLocalFile(path(u"b.wav"_s))}};
        QVERIFY(SXListDrop::dropOnTab(workspace.moves(), rows, u"AAC"_s));
        QCOMPARE(fileNames(workspace.store().getDataForFormat(u"AAC"_s)), QStringList{u"a.mp3"_s});
        // While files load or convert no drop is taken anywhere.
        for (int state : {AppStateLoading, AppStateConverting}) {
            workspace.store().setAppState(state);
            QVERIFY(!SXListDrop::dropOnList(workspace.moves(), workspace.addRun(), files, 0));
            QVERIFY(!SXListDrop::dropOnTab(workspace.moves(), rows, u"MP3"_s));
            QVERIFY(!SXListDrop::dropOnWindow(workspace.addRun(), files));
        }
        QCOMPARE(m_presenter.alerts.size(), 1);
    }

    void rowsSelectReorderAndDelete() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        // Nothing to act on: an audible refusal.
        workspace.addRun().clearContainer();
        workspace.addRun().removeSelected();
        workspace.store().selectNextRow();
        QCOMPARE(m_presenter.beeps, 3);

        workspace.store().setData(
            madeUpItems(u"MP3"_s, {u"1.wav"_s, u"2.wav"_s, u"3.wav"_s, u"4.wav"_s}), u"MP3"_s);
        workspace.store().refreshListView();
        // The selection moves: +1 to the previous row, -1 to the next; the ends beep.
        workspace.store().setSelectedRows({0});
        workspace.store().selectPreviousRow();
        QCOMPARE(m_presenter.beeps, 4);
        for (int i = 0; i < 3; ++i)
            workspace.store().selectNextRow();
        QCOMPARE(workspace.store().selectedRows(), QList<int>{3});
        workspace.store().selectNextRow();
        QCOMPARE(m_presenter.beeps, 5);

        const auto dragRows = [&workspace](const QList<int>& rows) {
            return SXMusicInfo::unarchiveItems(workspace.moves().dragDataForRows(rows));
        };
        QVERIFY(workspace.moves().acceptDrop(dragRows({0, 1}), 2, SXItemMoves::DropBelowRow));
        QCOMPARE(shown(workspace), (QStringList{u"3.wav"_s, u"1.wav"_s, u"2.wav"_s, u"4.wav"_s}));
        QCOMPARE(workspace.store().selectedRows(), (QList<int>{1, 2}));
        QVERIFY(workspace.moves().acceptDrop(dragRows({3}), 0, SXItemMoves::DropOnRow));
        QCOMPARE(shown(workspace), (QStringList{u"4.wav"_s, u"3.wav"_s, u"1.wav"_s, u"2.wav"_s}));

        workspace.store().setSelectedRows({0, 2});
        workspace.addRun().removeSelected();
        QCOMPARE(shown(workspace), (QStringList{u"3.wav"_s, u"2.wav"_s}));
        workspace.addRun().clearContainer();
        QCOMPARE(workspace.store().currentTabItemCount(), 0);
        QCOMPARE(m_presenter.beeps, 5);
    }

    void movesBetweenContainersAndWorkspaces() {
        SXWorkspace first;
        SXWorkspace second;
        first.tabs().addDefaultTabs();
        second.tabs().addDefaultTabs();
        const QString mp3 = u"MP3"_s, aac = u"AAC"_s;
        first.store().setData(madeUpItems(mp3, {u"1.wav"_s, u"2.wav"_s, u"3.wav"_s}), mp3);
        second.store().setData(madeUpItems(mp3, {u"2.wav"_s, u"9.wav"_s}), mp3);
        second.store().setData(madeUpItems(aac, {u"3.wav"_s}), aac);
        QSignalSpy counts(&first.store(), &SXContainerStore::tabCountsChanged);

        // Rows 1 and 2 of the first workspace are dragged onto the second's AAC tab.
        bool ok = false;
        const SXMusicInfoList dragged =
            SXMusicInfo::unarchiveItems(first.moves().dragDataForRows({1, 2}), &ok);
        QVERIFY(ok);
        for (const SXMusicInfoPtr& item : dragged)
            item->setDConvertProgress(100);
        second.moves().acceptDropOnTab(dragged, aac);

        // The target has each path once, marked waiting; the source name loses the items in
        // every workspace, the one where the drag began and the one that received them.
        const SXMusicInfoList target = second.store().getDataForFormat(aac);
        QCOMPARE(fileNames(target), (QStringList{u"3.wav"_s, u"2.wav"_s}));
        QCOMPARE(target.last()->getStrMusicType(), aac);
        QCOMPARE(target.last()->dConvertProgress(), SXProgress::Waiting);
        QCOMPARE(fileNames(first.store().getDataForFormat(mp3)), QStringList{u"1.wav"_s});
        QCOMPARE(counts.last().at(0).toStringList(), first.store().tabLabels());
        QCOMPARE(counts.last().at(1).value<QList<int>>(), (QList<int>{1, 0, 0}));
        QCOMPARE(fileNames(second.store().getDataForFormat(mp3)), QStringList{u"9.wav"_s});

        // Dropped on a row of another container: inserted there.
        QVERIFY(second.tabs().selectContainer(aac));
        const SXMusicInfoList fromFirst = {first.store().getDataForFormat(mp3).first()->copy()};
        QVERIFY(second.moves().acceptDrop(fromFirst, 0, SXItemMoves::DropOnRow));
        QCOMPARE(fileNames(second.store().getDataForFormat(aac)),
                 (QStringList{u"1.wav"_s, u"3.wav"_s, u"2.wav"_s}));
        QCOMPARE(second.store().selectedRows(), QList<int>{0});
        QVERIFY(first.store().getDataForFormat(mp3).isEmpty());
    }

    // Many threads asking the list for a redraw at once: a bounded number of draws, on the main
    // thread, and one after the last request, so the final state is never left undrawn.
    void manyRequestsFewCallsAndTheLastIsDrawn() {
        constexpr int kIntervalMs = 40;
        QObject context;
        int calls = 0;
        bool offMainThread = false;
        std::atomic<int> requested{0};
        int requestedAtLastCall = -1;
        SXRedrawThrottle throttle(context, kIntervalMs, [&] {
            ++calls;
            offMainThread |= QThread::currentThread() != context.thread();
            requestedAtLastCall = requested.load();
        });

        QElapsedTimer clock;
        clock.start();
        std::atomic<bool> stop{false};
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&] {
                while (!stop.load()) {
                    requested.fetch_add(1);
                    throttle.request();
                    std::this_thread::sleep_for(std::chrono::microseconds(200));
                }
            });
        QTest::qWait(400);
        stop.store(true);
        for (std::thread& thread : threads)
            thread.join();
        const int total = requested.load();
        QTRY_COMPARE_WITH_TIMEOUT(requestedAtLastCall, total, 5000);
        const qint64 elapsed = clock.elapsed();

        QVERIFY(!offMainThread);
        QVERIFY2(total > 100, qPrintable(QString::number(total)));
        QVERIFY(calls >= 2);
        // One call per interval at most, and one for the last requests.
        QVERIFY2(calls <= elapsed / kIntervalMs + 2,
                 qPrintable(QStringLiteral("%1 calls in %2 ms").arg(calls).arg(elapsed)));
    }

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_TEST_MAIN(TestWorkspaceLists)
#include "tst_workspacelists.moc"
