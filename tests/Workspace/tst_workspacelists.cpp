#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "Model/SXDataEngine.h"
#include "Shared/SXSettings.h"
#include "Workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <unistd.h>

namespace {
// Collects what the process writes to its standard error while it exists.
class StderrCapture {
public:
    StderrCapture() {
        m_file.open();
        std::fflush(stderr);
        m_saved = ::dup(2);
        ::dup2(m_file.handle(), 2);
    }
    QString finish() {
        std::fflush(stderr);
        ::dup2(m_saved, 2);
        ::close(m_saved);
        m_file.seek(0);
        return QString::fromLocal8Bit(m_file.readAll());
    }

private:
    QTemporaryFile m_file;
    int m_saved = -1;
};

bool addFiles(SXWorkspace& workspace, const QStringList& paths) {
    QSignalSpy finished(&workspace, &SXWorkspace::loadFinished);
    workspace.loadAndParseFiles(paths);
    return finished.count() > 0 || finished.wait(60000);
}

QStringList fileNames(const SXMusicInfoList& items) {
    QStringList names;
    for (const SXMusicInfoPtr& item : items)
        names.append(QFileInfo(item->strFilePath()).fileName());
    return names;
}
} // namespace

class TestWorkspaceLists : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void opensWithTheFixedContainersEmpty();
    void containerRules();
    void addRunExpandsFoldersAndAppliesTheVobRule();
    void addRunDropsPathsAlreadyInTheContainer();
    void addRunNamesFailedFilesInOneAlert_data();
    void addRunNamesFailedFilesInOneAlert();
    void cancelDuringLoadingKeepsNothing();
    void unreadablePathIsReportedAndSkipped();
    void nothingToActOnBeeps();
    void movesBetweenContainersAndWorkspaces();
    void dropInsideTheSameContainerReorders();
    void lastWorkspaceAsksBeforeClosing();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
    WorkspaceTestPresenter m_presenter;
};

void TestWorkspaceLists::initTestCase() {
    QVERIFY(m_dir.isValid());
    QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("folder/sub")));
    QVERIFY(SonoriaTest::makeTone(path(QStringLiteral("a.mp3")), 1));
    QVERIFY(SonoriaTest::makeTone(path(QStringLiteral("b.wav")), 1));
    QVERIFY(SonoriaTest::makeTone(path(QStringLiteral("c.flac")), 1));
    QVERIFY(SonoriaTest::makeTone(path(QStringLiteral("d.VOB")), 1));
    QVERIFY(SonoriaTest::makeTone(path(QStringLiteral("folder/e.ogg")), 1));
    QVERIFY(SonoriaTest::makeTone(path(QStringLiteral("folder/sub/f.vob")), 1));
    for (int i = 1; i <= 12; ++i) {
        QFile bad(path(QStringLiteral("bad%1.mp3").arg(i, 2, 10, QLatin1Char('0'))));
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("this is no audio\n");
    }
    QFile notes(path(QStringLiteral("folder/notes.txt")));
    QVERIFY(notes.open(QIODevice::WriteOnly));
}

void TestWorkspaceLists::init() {
    SXSettings::removeKey(SXSettingsKey::AppSupportVob);
    m_presenter = WorkspaceTestPresenter();
}

void TestWorkspaceLists::opensWithTheFixedContainersEmpty() {
    SXWorkspace workspace;
    QVERIFY(SXDataEngine::shareInstance()->getAllMainWndCtlr().contains(&workspace));
    QVERIFY(workspace.tabLabels().isEmpty());

    const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();
    for (int round = 0; round < 2; ++round) {
        if (round == 0) {
            workspace.addDefaultTabs();
        } else {
            // A revived window starts empty again, without the containers added meanwhile.
            workspace.setPresenter(&m_presenter);
            m_presenter.formatAnswer = QStringLiteral("FLAC");
            workspace.clickAddNewFormat();
            QVERIFY(addFiles(workspace, {path(QStringLiteral("a.mp3"))}));
            workspace.reNewDefaultWindow();
        }
        QCOMPARE(workspace.tabLabels(), fixed);
        QCOMPARE(workspace.selectedTabIndex(), 0);
        QCOMPARE(workspace.getSelectedMusicFormat(), fixed.first());
        for (const QString& name : fixed) {
            QVERIFY(workspace.hasDataForFormat(name));
            QVERIFY(workspace.getDataForFormat(name).isEmpty());
            QCOMPARE(workspace.getFormatSettingForFormatName(name)->fmtName(), name);
        }
        QCOMPARE(workspace.containerNames(), fixed);
        QCOMPARE(workspace.enumAppState(), int(AppStateIdle));
    }
    SXWorkspace* gone = new SXWorkspace;
    delete gone;
    QVERIFY(!SXDataEngine::shareInstance()->getAllMainWndCtlr().contains(gone));
}

void TestWorkspaceLists::containerRules() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();

    // Fixed containers never close; the refusal is audible.
    QVERIFY(!workspace.closeTab());
    QCOMPARE(m_presenter.beeps, 1);

    // The chooser offers only formats without a container, in catalogue order.
    m_presenter.formatAnswer = QStringLiteral("WAV");
    workspace.clickAddNewFormat();
    QStringList offered;
    for (const SXFormatSettingPtr& format : std::as_const(m_presenter.offeredFormats))
        offered.append(format->fmtName());
    QStringList expected = SXDataEngine::shareInstance()->getAllOutputFormats();
    for (const QString& name : SXDataEngine::getCanNotRemoveFormatContainer())
        expected.removeAll(name);
    QCOMPARE(offered, expected);
    QCOMPARE(workspace.getSelectedMusicFormat(), QStringLiteral("WAV"));
    QVERIFY(workspace.hasDataForFormat(QStringLiteral("WAV")));

    // No container closes during a run.
    workspace.setAppState(AppStateConverting);
    QVERIFY(!workspace.closeTab());
    QVERIFY(workspace.tabLabels().contains(QStringLiteral("WAV")));
    workspace.setAppState(AppStateIdle);

    // A tab named "Drake" is refused with its sheet.
    workspace.addNewTabWithName(QStringLiteral("Drake"));
    QVERIFY(workspace.selectContainer(QStringLiteral("Drake")));
    QVERIFY(!workspace.closeTab());
    QCOMPARE(m_presenter.sheets.size(), 1);
    QCOMPARE(m_presenter.sheets.first().messageText, QStringLiteral("No Way!"));
    QCOMPARE(m_presenter.sheets.first().informativeText,
             QStringLiteral("I refuse to close a tab named \"Drake\""));
    QCOMPARE(m_presenter.sheets.first().buttons, QStringList{QStringLiteral("OK")});

    // "Drake" took the place of the first non-fixed tab (WAV) and the appended tab stayed
    // unnamed: the container WAV has no tab any more.
    const QStringList expectedTabs = SXDataEngine::getCanNotRemoveFormatContainer() +
                                     QStringList{QStringLiteral("Drake"), QString()};
    QCOMPARE(workspace.tabLabels(), expectedTabs);

    // An added container closes and takes its items with it.
    m_presenter.formatAnswer = QStringLiteral("Opus");
    workspace.clickAddNewFormat();
    QVERIFY(addFiles(workspace, {path(QStringLiteral("b.wav"))}));
    QCOMPARE(workspace.getCurentTabMusicCount(), 1);
    QVERIFY(workspace.closeTab());
    QVERIFY(!workspace.tabLabels().contains(QStringLiteral("Opus")));
    QVERIFY(!workspace.hasDataForFormat(QStringLiteral("Opus")));
    QVERIFY(!workspace.getFormatSettingForFormatName(QStringLiteral("Opus")));

    // Neighbour moves: -1 means next, +1 previous; the ends beep.
    workspace.selectTab(0);
    const int beeps = m_presenter.beeps;
    workspace.moveTabSelectedTo(1);
    QCOMPARE(m_presenter.beeps, beeps + 1);
    workspace.moveTabSelectedTo(-1);
    QCOMPARE(workspace.selectedTabIndex(), 1);
    workspace.selectTab(int(workspace.tabLabels().size()) - 1);
    workspace.moveTabSelectedTo(-1);
    QCOMPARE(m_presenter.beeps, beeps + 2);

    // With every format open the chooser is not offered.
    for (const QString& name : SXDataEngine::shareInstance()->getAllOutputFormats()) {
        if (!workspace.tabLabels().contains(name))
            workspace.addContainerWithFormat(
                SXDataEngine::shareInstance()->getFormatWithName(name));
    }
    m_presenter.offeredFormats.clear();
    workspace.clickAddNewFormat();
    QVERIFY(m_presenter.offeredFormats.isEmpty());
    QCOMPARE(
        m_presenter.alerts.last().messageText,
        QStringLiteral("All formats are opened, you can set the paramas in the setting window."));
    QCOMPARE(m_presenter.alerts.last().buttons, QStringList{QStringLiteral("Yes")});
}

void TestWorkspaceLists::addRunExpandsFoldersAndAppliesTheVobRule() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    QSignalSpy states(&workspace, &SXWorkspace::appStateChanged);
    QSignalSpy texts(&workspace, &SXWorkspace::loadProgressText);
    QSignalSpy fractions(&workspace, &SXWorkspace::loadProgressValue);
    QSignalSpy started(&workspace, &SXWorkspace::loadStarted);

    // A loose "vob" file is refused without the preference; inside a folder only the folder's
    // filter applies (and it drops the text file).
    QVERIFY(addFiles(workspace, {path(QStringLiteral("a.mp3")), path(QStringLiteral("d.VOB")),
                                 path(QStringLiteral("folder"))}));
    QCOMPARE(started.count(), 1);
    QCOMPARE(started.first().first().toString(), QStringLiteral("Loading Media Files..."));
    // The folder's files follow the loose file, in the order the folder scan gives them.
    QStringList names = fileNames(workspace.getCurTableDatasource());
    QCOMPARE(names.takeFirst(), QStringLiteral("a.mp3"));
    names.sort();
    QCOMPARE(names, (QStringList{QStringLiteral("e.ogg"), QStringLiteral("f.vob")}));
    QCOMPARE(texts.first().first().toString(), QStringLiteral("Importing a.mp3..."));
    QCOMPARE(fractions.last().first().toDouble(), 1.0);
    QCOMPARE(states.count(), 2);
    QCOMPARE(states.at(0).first().toInt(), int(AppStateLoading));
    QCOMPARE(states.at(1).first().toInt(), int(AppStateIdle));
    QCOMPARE(workspace.selectedRows(), QList<int>{0});
    QVERIFY(m_presenter.alerts.isEmpty());

    const SXMusicInfoPtr first = workspace.getCurTableDatasource().first();
    QCOMPARE(first->getStrMusicType(), QStringLiteral("MP3"));
    QCOMPARE(first->mediaInfo()->strOutFileName(), QStringLiteral("a"));
    QCOMPARE(first->mediaInfo()->audioChannels(), 1);

    SXSettings::setValue(SXSettingsKey::AppSupportVob, true);
    QVERIFY(workspace.selectContainer(QStringLiteral("AAC")));
    QVERIFY(addFiles(workspace, {path(QStringLiteral("d.VOB"))}));
    QCOMPARE(fileNames(workspace.getCurTableDatasource()), QStringList{QStringLiteral("d.VOB")});
}

void TestWorkspaceLists::addRunDropsPathsAlreadyInTheContainer() {
    SXWorkspace workspace;
    workspace.addDefaultTabs();
    const QString a = path(QStringLiteral("a.mp3"));
    const QString b = path(QStringLiteral("b.wav"));
    const QString c = path(QStringLiteral("c.flac"));
    QVERIFY(addFiles(workspace, {a, b}));

    // Adding the same file again keeps one copy; repeats inside one batch are not merged.
    QVERIFY(addFiles(workspace, {a, c, a}));
    QCOMPARE(itemPaths(workspace.getCurTableDatasource()), (QStringList{a, b, c}));

    // Two present paths one after the other: dropping the first slides the second into its
    // place, and the walk moves on past it, so the second comes in again.
    QVERIFY(addFiles(workspace, {a, b}));
    QCOMPARE(itemPaths(workspace.getCurTableDatasource()), (QStringList{a, b, c, b}));

    // Another container takes the same file.
    QVERIFY(workspace.selectContainer(QStringLiteral("Ringtone")));
    QVERIFY(addFiles(workspace, {a}));
    QCOMPARE(itemPaths(workspace.getCurTableDatasource()), QStringList{a});
    QCOMPARE(workspace.getCurTableDatasource().first()->getStrMusicType(),
             QStringLiteral("Ringtone"));
}

void TestWorkspaceLists::addRunNamesFailedFilesInOneAlert_data() {
    QTest::addColumn<int>("failures");
    QTest::newRow("eleven") << 11;
    QTest::newRow("twelve") << 12;
}

void TestWorkspaceLists::addRunNamesFailedFilesInOneAlert() {
    QFETCH(int, failures);
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    LogCapture log;
    QStringList paths{path(QStringLiteral("a.mp3"))};
    QString expected;
    for (int i = 1; i <= failures; ++i) {
        const QString name = QStringLiteral("bad%1.mp3").arg(i, 2, 10, QLatin1Char('0'));
        paths.append(path(name));
        if (i <= 11)
            expected += name + QLatin1Char('\n');
    }
    expected += QStringLiteral("...");
    QSignalSpy finished(&workspace, &SXWorkspace::loadFinished);
    QVERIFY(addFiles(workspace, paths));

    QCOMPARE(itemPaths(workspace.getCurTableDatasource()), QStringList{paths.first()});
    QCOMPARE(finished.first().first().value<SXMusicInfoList>().size(), failures);
    QCOMPARE(m_presenter.alerts.size(), 1);
    QCOMPARE(m_presenter.alerts.first().messageText,
             QStringLiteral("Following file(s) load failed!"));
    QCOMPARE(m_presenter.alerts.first().informativeText, expected);
    QCOMPARE(m_presenter.alerts.first().buttons, QStringList{QStringLiteral("OK")});
    QVERIFY(log.contains(QStringLiteral("finish complete load media.....")));
    QVERIFY(log.lines().filter(QStringLiteral("failed array : (")).size() == 1);
}

void TestWorkspaceLists::cancelDuringLoadingKeepsNothing() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    QSignalSpy cancelled(&workspace, &SXWorkspace::loadCancelled);
    // Cancel as the first file starts, from the loader's own thread, so the cancel surely
    // lands before the batch is through.
    connect(
        &workspace, &SXWorkspace::loadProgressText, &workspace,
        [&workspace] { workspace.clickCancel(); }, Qt::DirectConnection);
    QStringList paths;
    for (int i = 0; i < 20; ++i)
        paths.append(path(QStringLiteral("b.wav")));
    QVERIFY(addFiles(workspace, paths));
    QVERIFY(cancelled.count() >= 1);
    QVERIFY(workspace.mediaLoader()->bCanceled());
    QCOMPARE(workspace.getCurentTabMusicCount(), 0);
    QCOMPARE(workspace.enumAppState(), int(AppStateIdle));
    QVERIFY(m_presenter.alerts.isEmpty());
}

void TestWorkspaceLists::unreadablePathIsReportedAndSkipped() {
    SXWorkspace workspace;
    workspace.addDefaultTabs();
    StderrCapture capture;
    const bool done =
        addFiles(workspace, {path(QStringLiteral("missing.mp3")), path(QStringLiteral("c.flac"))});
    const QString errors = capture.finish();
    QVERIFY(done);
    QVERIFY2(errors.contains(QStringLiteral("lstat error: No such file or directory")),
             qPrintable(errors));
    QCOMPARE(fileNames(workspace.getCurTableDatasource()), QStringList{QStringLiteral("c.flac")});
}

void TestWorkspaceLists::nothingToActOnBeeps() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    workspace.clickClear();
    workspace.clickDeleteFile();
    workspace.moveSelectedTo(-1);
    QCOMPARE(m_presenter.beeps, 3);

    const QString mp3 = QStringLiteral("MP3");
    workspace.setData({makeWorkspaceItem(QStringLiteral("/x/1.wav"), mp3),
                       makeWorkspaceItem(QStringLiteral("/x/2.wav"), mp3),
                       makeWorkspaceItem(QStringLiteral("/x/3.wav"), mp3)},
                      mp3);
    workspace.refreshListView();
    workspace.setSelectedRows({0});
    workspace.moveSelectedTo(1); // previous of the first row
    QCOMPARE(m_presenter.beeps, 4);
    workspace.moveSelectedTo(-1);
    workspace.moveSelectedTo(-1);
    QCOMPARE(workspace.selectedRows(), QList<int>{2});
    workspace.moveSelectedTo(-1); // next of the last row
    QCOMPARE(m_presenter.beeps, 5);

    workspace.setSelectedRows({0, 2});
    workspace.clickDeleteFile();
    QCOMPARE(itemPaths(workspace.getCurTableDatasource()), QStringList{QStringLiteral("/x/2.wav")});
    workspace.clickClear();
    QCOMPARE(workspace.getCurentTabMusicCount(), 0);
    QCOMPARE(m_presenter.beeps, 5);
}

void TestWorkspaceLists::movesBetweenContainersAndWorkspaces() {
    SXWorkspace first;
    SXWorkspace second;
    first.addDefaultTabs();
    second.addDefaultTabs();
    const QString mp3 = QStringLiteral("MP3");
    const QString aac = QStringLiteral("AAC");
    first.setData({makeWorkspaceItem(QStringLiteral("/x/1.wav"), mp3),
                   makeWorkspaceItem(QStringLiteral("/x/2.wav"), mp3),
                   makeWorkspaceItem(QStringLiteral("/x/3.wav"), mp3)},
                  mp3);
    second.setData({makeWorkspaceItem(QStringLiteral("/x/2.wav"), mp3),
                    makeWorkspaceItem(QStringLiteral("/x/9.wav"), mp3)},
                   mp3);
    second.setData({makeWorkspaceItem(QStringLiteral("/x/3.wav"), aac)}, aac);
    QSignalSpy counts(&first, &SXWorkspace::tabCountsChanged);

    // Rows 1 and 2 of the first workspace are dragged onto the second's AAC tab.
    const QByteArray archive = first.dragDataForRows({1, 2});
    bool ok = false;
    const SXMusicInfoList dragged = SXMusicInfo::unarchiveItems(archive, &ok);
    QVERIFY(ok);
    for (const SXMusicInfoPtr& item : dragged)
        item->setDConvertProgress(100);
    second.acceptDropOnTab(dragged, aac);

    // The target has each path once, marked waiting; the source name loses the items in
    // every workspace, the one where the drag began and the one that received them.
    const SXMusicInfoList target = second.getDataForFormat(aac);
    QCOMPARE(itemPaths(target),
             (QStringList{QStringLiteral("/x/3.wav"), QStringLiteral("/x/2.wav")}));
    QCOMPARE(target.last()->getStrMusicType(), aac);
    QCOMPARE(target.last()->dConvertProgress(), SXProgress::Waiting);
    QCOMPARE(itemPaths(first.getDataForFormat(mp3)), QStringList{QStringLiteral("/x/1.wav")});
    QCOMPARE(counts.last().at(0).toStringList(), first.tabLabels());
    QCOMPARE(counts.last().at(1).value<QList<int>>(), (QList<int>{1, 0, 0}));
    QCOMPARE(itemPaths(second.getDataForFormat(mp3)), QStringList{QStringLiteral("/x/9.wav")});
    QVERIFY(second.selectContainer(aac));

    // Dropped on a row of another container: inserted there.
    const SXMusicInfoList fromFirst = {first.getDataForFormat(mp3).first()->copy()};
    QVERIFY(second.acceptDrop(fromFirst, 0, SXWorkspace::DropOnRow));
    QCOMPARE(itemPaths(second.getDataForFormat(aac)),
             (QStringList{QStringLiteral("/x/1.wav"), QStringLiteral("/x/3.wav"),
                          QStringLiteral("/x/2.wav")}));
    QCOMPARE(second.selectedRows(), QList<int>{0});
    QVERIFY(first.getDataForFormat(mp3).isEmpty());

    // During a run nothing is dragged or dropped.
    second.setAppState(AppStateConverting);
    QVERIFY(second.dragDataForRows({0}).isEmpty());
    QVERIFY(!second.acceptDrop(fromFirst, 0, SXWorkspace::DropOnRow));
}

void TestWorkspaceLists::dropInsideTheSameContainerReorders() {
    SXWorkspace workspace;
    workspace.addDefaultTabs();
    const QString mp3 = QStringLiteral("MP3");
    workspace.setData({makeWorkspaceItem(QStringLiteral("/x/1.wav"), mp3),
                       makeWorkspaceItem(QStringLiteral("/x/2.wav"), mp3),
                       makeWorkspaceItem(QStringLiteral("/x/3.wav"), mp3),
                       makeWorkspaceItem(QStringLiteral("/x/4.wav"), mp3)},
                      mp3);
    workspace.refreshListView();
    bool ok = false;
    // Rows 0 and 1 dropped below row 2.
    const SXMusicInfoList dragged =
        SXMusicInfo::unarchiveItems(workspace.dragDataForRows({0, 1}), &ok);
    QVERIFY(ok);
    QVERIFY(workspace.acceptDrop(dragged, 2, SXWorkspace::DropBelowRow));
    QCOMPARE(itemPaths(workspace.getCurTableDatasource()),
             (QStringList{QStringLiteral("/x/3.wav"), QStringLiteral("/x/1.wav"),
                          QStringLiteral("/x/2.wav"), QStringLiteral("/x/4.wav")}));
    QCOMPARE(workspace.selectedRows(), (QList<int>{1, 2}));

    // Row 3 dropped on row 0.
    const SXMusicInfoList last = SXMusicInfo::unarchiveItems(workspace.dragDataForRows({3}), &ok);
    QVERIFY(workspace.acceptDrop(last, 0, SXWorkspace::DropOnRow));
    QCOMPARE(itemPaths(workspace.getCurTableDatasource()),
             (QStringList{QStringLiteral("/x/4.wav"), QStringLiteral("/x/3.wav"),
                          QStringLiteral("/x/1.wav"), QStringLiteral("/x/2.wav")}));
}

void TestWorkspaceLists::lastWorkspaceAsksBeforeClosing() {
    QVERIFY(SXDataEngine::shareInstance()->getAllMainWndCtlr().isEmpty());
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    workspace.setData({makeWorkspaceItem(QStringLiteral("/x/1.wav"), QStringLiteral("AAC"))},
                      QStringLiteral("AAC"));
    QSignalSpy closing(&workspace, &SXWorkspace::lastWorkspaceClosing);

    {
        // With another workspace open, a window closes without asking.
        SXWorkspace other;
        QVERIFY(other.windowShouldClose());
        QVERIFY(m_presenter.alerts.isEmpty());
    }
    m_presenter.alertAnswer = 0; // "Cancel"
    QVERIFY(!workspace.windowShouldClose());
    QCOMPARE(m_presenter.alerts.last().messageText, QStringLiteral("Warnning"));
    QCOMPARE(m_presenter.alerts.last().informativeText,
             QStringLiteral("Do you want to close all window without save information?"));
    QCOMPARE(m_presenter.alerts.last().buttons,
             (QStringList{QStringLiteral("Cancel"), QStringLiteral("OK")}));
    QCOMPARE(workspace.getTotalNeedConvertMusic(), 1);
    QCOMPARE(closing.count(), 0);

    m_presenter.alertAnswer = 1; // "OK"
    QVERIFY(workspace.windowShouldClose());
    QCOMPARE(workspace.getTotalNeedConvertMusic(), 0);
    QCOMPARE(workspace.tabLabels(), SXDataEngine::getCanNotRemoveFormatContainer());
    QCOMPARE(closing.count(), 1);
    QVERIFY(!SXDataEngine::shareInstance()->getAllMainWndCtlr().contains(&workspace));
}

SONORIA_TEST_MAIN(TestWorkspaceLists)
#include "tst_workspacelists.moc"
