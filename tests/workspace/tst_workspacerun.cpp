#include "support/LogCapture.h"
#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXSettingPanelActions.h"
#include "workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <sys/mount.h>
#include <utility>

using namespace Qt::StringLiterals;

using SonoriaTest::filesBelow;

constexpr int kRunTimeoutMs = 180000;

class TestWorkspaceRun : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_sources.isValid() && m_outputs.isValid());
        QVERIFY(SonoriaTest::makeMedia(source(u"s48.wav"_s),
                                       u"sine=frequency=440:duration=1:sample_rate=48000"_s,
                                       {"-ac", "2"}));
        QVERIFY(SonoriaTest::makeMedia(source(u"m44.flac"_s),
                                       u"sine=frequency=330:duration=1:sample_rate=44100"_s));
        // Long enough that a run of several is still going when the test acts on it.
        QVERIFY(SonoriaTest::makeMedia(source(u"long.flac"_s),
                                       u"sine=frequency=200:duration=900:sample_rate=8000"_s));
        // Converts in a few seconds: a run is still busy with it when the file before has ended.
        QVERIFY(SonoriaTest::makeMedia(source(u"mid.flac"_s),
                                       u"sine=frequency=250:duration=120:sample_rate=8000"_s));
    }

    void init() {
        for (const QString& key :
             {SXSettingsKey::DefaultOutputPath, SXSettingsKey::DefaultSetOrganized,
              SXSettingsKey::DefaultSetOpen, SXSettingsKey::AppBSyncToLibrary})
            SXSettings::removeKey(key);
        SXSettings::setValue(SXSettingsKey::MaxTask, 3);
        m_presenter = WorkspaceTestPresenter();
    }

    void startGivesEachContainersChoicesAndFolderToItsFiles() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        m_presenter.formatAnswer = u"FLAC"_s;
        workspace.tabs().addContainer();

        auto mp3 = workspace.store().getFormatSettingForFormatName(u"MP3"_s);
        mp3->setBiteRate(u"128"_s);
        mp3->setSampleRate(u"22050"_s);
        mp3->setChannels(u"Mono"_s);
        auto aac = workspace.store().getFormatSettingForFormatName(u"AAC"_s);
        aac->setBiteRate(u"Use Source"_s);
        aac->setSampleRate(u"Use Source"_s);
        aac->setChannels(u"Stereo"_s);
        QVERIFY(addFiles(workspace, u"MP3"_s, {source(u"s48.wav"_s)}));
        QVERIFY(addFiles(workspace, u"AAC"_s, {source(u"m44.flac"_s)}));
        QVERIFY(addFiles(workspace, u"FLAC"_s, {source(u"s48.wav"_s)}));
        // AAC has a folder of its own ("Output Folder…"): its run writes there, not below Start's.
        const QString own = freshFolder(u"own AAC"_s);
        QVERIFY(workspace.tabs().selectContainer(u"AAC"_s));
        SXSettingPanelActions::setOutputFolder(workspace.store(), own);

        const QString folder = freshFolder(u"start"_s);
        m_presenter.folderAnswer = SXOutputFolderChoice{folder, true, true};
        QSignalSpy finished(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished);
        QSignalSpy totals(&workspace.scheduler(), &SXWorkspaceScheduler::totalProgressChanged);
        QSignalSpy itemsDone(&workspace.scheduler(), &SXWorkspaceScheduler::itemFinished);
        workspace.scheduler().toggleRun();
        QCOMPARE(workspace.store().enumAppState(), int(AppStateConverting));
        QCOMPARE(workspace.scheduler().totalConvertOps(), 3);
        QVERIFY(finished.wait(kRunTimeoutMs));

        // The chooser offered the default check boxes (where it starts is tst_windowdecisions'
        // test); the answer was stored.
        QCOMPARE(m_presenter.folderRequests.size(), 1);
        const SXOutputFolderRequest request = m_presenter.folderRequests.first();
        QVERIFY(request.organizeByFormat && !request.openWhenDone);
        QCOMPARE(request.message, u"Please choose output folder:"_s);
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath), folder);
        QVERIFY(SXSettings::boolForKey(SXSettingsKey::DefaultSetOpen, false));

        QCOMPARE(finished.first().at(0).toString(), u"3 files has been successfully converted."_s);
        QCOMPARE(alertTexts(m_presenter.alerts.last()),
                 (QStringList{finished.first().at(0).toString(), QString(), u"OK"_s}));
        QCOMPARE(m_presenter.openedFolders, QStringList{folder});
        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStateIdle), 10000);
        QCOMPARE(totals.first().first().toDouble(), 0.0);
        QCOMPARE(workspace.scheduler().getTotalConvertProgress(), 1.0);

        // Organised by format, except the container with a folder of its own; each item
        // announced its end once, with the file it wrote.
        QCOMPARE(filesBelow(folder), (QStringList{u"FLAC/s48.flac"_s, u"MP3/s48.mp3"_s}));
        QCOMPARE(filesBelow(own), QStringList{u"m44.m4a"_s});
        QStringList outputs;
        for (const QList<QVariant>& done : std::as_const(itemsDone))
            outputs.append(QDir(folder).relativeFilePath(done.at(1).toString()));
        outputs.sort();
        QCOMPARE(outputs,
                 (QStringList{u"../own AAC/m44.m4a"_s, u"FLAC/s48.flac"_s, u"MP3/s48.mp3"_s}));

        // Numbers, "Use Source", "Stereo" and "Lossless", as the files on disk have them (the
        // mono 44.1 kHz source in AAC, the stereo 48 kHz one in MP3 and FLAC).
        const ProbeReference m1 = ProbeReference::read(folder + u"/MP3/s48.mp3"_s);
        QVERIFY(m1.ok && m1.sampleRate == 22050 && m1.channels == 1 && m1.bitRate == 128000 &&
                m1.codecName == "mp3"_L1);
        const ProbeReference m2 = ProbeReference::read(own + u"/m44.m4a"_s);
        QVERIFY(m2.ok && m2.sampleRate == 44100 && m2.channels == 2);
        const ProbeReference m3 = ProbeReference::read(folder + u"/FLAC/s48.flac"_s);
        QVERIFY(m3.ok && m3.sampleRate == 48000 && m3.channels == 2 && m3.codecName == "flac"_L1);
        QCOMPARE(workspace.store().getDataForFormat(u"FLAC"_s).first()->dConvertProgress(),
                 SXProgress::Done);

        // The open flag came from the chooser: off again, nothing is opened.
        m_presenter.folderAnswer = SXOutputFolderChoice{folder, true, false};
        finished.clear();
        workspace.scheduler().toggleRun();
        QVERIFY(m_presenter.folderRequests.last().openWhenDone);
        QVERIFY(finished.wait(kRunTimeoutMs));
        QCOMPARE(m_presenter.openedFolders.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStateIdle), 10000);
    }

    // A failure is named in the summary with its reason. Every Start queues every item again,
    // here straight into the folder and one at a time as the override says; the second finds
    // the whole, newer outputs of the first and leaves them (skipping is what a user gets unless
    // they chose).
    void summaryAndRequeueIntoAnUnorganisedFolder() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        QVERIFY(addFiles(workspace, u"MP3"_s, {source(u"s48.wav"_s), source(u"m44.flac"_s)}));
        QVERIFY(addFiles(workspace, u"AAC"_s, {source(u"s48.wav"_s)}));
        auto broken = workspace.store().getFormatSettingForFormatName(u"AAC"_s)->copy();
        broken->setDecodecName(u"no_such_encoder"_s);
        workspace.store().setFmtSetting(broken);
        // An item without a media record waits for ever and adds nothing to the total.
        const SXMusicInfoPtr unprobed =
            SXMusicInfo::newForSource(u"/nowhere/x.wav"_s, u"Ringtone"_s);
        unprobed->setMediaInfo(nullptr);
        workspace.store().setData({unprobed}, u"Ringtone"_s);
        SXSettings::setValue(SXSettingsKey::MaxTask, 4);
        workspace.scheduler().setMaxConcurrentOverride(1);
        workspace.scheduler().setOrganizeByFormat(false);
        const QString folder = freshFolder(u"flat"_s);

        const QList<QVariant> summary = runInto(workspace, folder);
        // The failed item's reason follows its name, and the alert's details give its folder.
        const SXMusicInfoPtr failed = workspace.store().getDataForFormat(u"AAC"_s).first();
        const QString reason = SXFailureTexts::conversionReason(failed->mediaInfo().get());
        QVERIFY(!reason.isEmpty());
        const QString expected = u"2 files has been successfully converted."
                                 "except 1 files failed,including: \ns48: "_s +
                                 reason;
        QCOMPARE(summary, (QList<QVariant>{expected, 2, 1}));
        QCOMPARE(m_presenter.alerts.last().messageText, expected);
        QCOMPARE(m_presenter.alerts.last().details, source(u"s48.wav"_s) + u": "_s + reason);
        QCOMPARE(failed->dConvertProgress(), SXProgress::Failed);
        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStateIdle), 10000);

        QCOMPARE(runInto(workspace, folder).value(1), QVariant(0));
        QCOMPARE(filesBelow(folder), (QStringList{u"m44.mp3"_s, u"s48.mp3"_s}));
        QCOMPARE(workspace.scheduler().queueConvertTask()->maxConcurrentOperationCount(), 1);
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 4);
        // Every item stays in its container; failed and done count whole, waiting nothing.
        QCOMPARE(workspace.store().getTotalNeedConvertMusic(), 4);
        QCOMPARE(workspace.scheduler().totalConvertOps(), 4);
        QCOMPARE(workspace.store().getDataForFormat(u"Ringtone"_s).first()->dConvertProgress(),
                 SXProgress::Waiting);
        QCOMPARE(workspace.scheduler().getTotalConvertProgress(), 0.75);

        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStateIdle), 10000);
        workspace.scheduler().setMaxConcurrentOverride(std::nullopt);
        runInto(workspace, folder);
        QCOMPARE(workspace.scheduler().queueConvertTask()->maxConcurrentOperationCount(), 4);

        SXPathFailureList failures;
        for (const QString& name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s})
            failures.append({u"/music/"_s + name + u".flac"_s, u"reason "_s + name});
        // The message stops after three; the alert's details hold them all.
        QCOMPARE(SXWorkspaceScheduler::summaryMessage(0, failures),
                 u"0 files has been successfully converted."
                 "except 5 files failed,including: \na: reason a \nb: reason b \nc: reason c..."_s);
    }

    // An empty run ends at the first refresh; the states a workspace announces; the weight each
    // item's progress has in the total.
    void emptyRunStatesAndProgressWeights() {
        SXWorkspace workspace;
        workspace.tabs().addDefaultTabs();
        QSignalSpy states(&workspace.store(), &SXContainerStore::appStateChanged);
        QSignalSpy totals(&workspace.scheduler(), &SXWorkspaceScheduler::totalProgressChanged);
        const QList<QVariant> summary = runInto(workspace, freshFolder(u"empty"_s));
        QCOMPARE(summary.value(0).toString(), u"0 files has been successfully converted."_s);
        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStateIdle), 10000);
        QCOMPARE(states.size(), 2);
        // No items: no progress, and never NaN (the strip and the launcher make integers of it).
        QCOMPARE(workspace.scheduler().getTotalConvertProgress(), 0.0);
        QCOMPARE(totals.size(), 2);
        for (const QList<QVariant>& total : std::as_const(totals))
            QCOMPARE(total.first().toDouble(), 0.0);

        SXMusicInfoList items;
        for (double value : {-4.0, -3.0, 100.0, -2.0, -1.0, 50.0}) {
            items.append(SXMusicInfo::newForSource(u"/x/%1.wav"_s.arg(items.size()), u"MP3"_s));
            items.last()->setDConvertProgress(value);
        }
        // A state set twice is announced twice, each time with its item: a preview moving on
        // from row to row stays AppStatePlaying.
        for (int i = 0; i < 2; ++i) {
            workspace.store().setAppState(AppStatePlaying, items.at(i));
            QCOMPARE(states.last().at(1).value<SXMusicInfoPtr>(), items.at(i));
        }
        QCOMPARE(states.size(), 4);
        QCOMPARE(workspace.store().appStateItem(), items.at(1));

        workspace.store().setData(items.mid(0, 3), u"MP3"_s);
        workspace.store().setData(items.mid(3), u"AAC"_s);
        QCOMPARE(workspace.store().getTotalNeedConvertMusic(), 6);
        // Failed, cancelled and done count whole, sending counts 90, waiting nothing.
        QCOMPARE(workspace.scheduler().getTotalConvertProgress(), (100.0 * 3 + 90 + 0 + 50) / 600);
    }

    // During a run nothing leaves the list, and a right-click cancels its own waiting row only.
    void duringARunRowsCancelOnlyThemselvesAndNothingLeavesTheList() {
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        // Three short sources, then three rows of one long source under three names (a path is
        // added once per container).
        QStringList sources{source(u"s48.wav"_s), source(u"mid.flac"_s), source(u"m44.flac"_s)};
        for (const QString& name : {u"long-a.flac"_s, u"long-b.flac"_s, u"long-c.flac"_s}) {
            sources.append(source(name));
            QVERIFY(QFile::exists(sources.last()) ||
                    QFile::link(source(u"long.flac"_s), sources.last()));
        }
        QVERIFY(addFiles(workspace, u"MP3"_s, sources));
        const SXMusicInfoList items = workspace.store().getDataForFormat(u"MP3"_s);
        const SXMusicInfoPtr outsider = SXMusicInfo::newForSource(u"/nowhere/else.wav"_s, u"MP3"_s);
        QVERIFY(!workspace.scheduler().findOperationForMusicInfo(outsider)); // no queue yet
        workspace.store().setSelectedRows({0, 1, 2});
        workspace.scheduler().setMaxConcurrentOverride(1);
        const QString folder = freshFolder(u"kept"_s);
        QSignalSpy itemsDone(&workspace.scheduler(), &SXWorkspaceScheduler::itemFinished);
        QSignalSpy finished(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished);
        workspace.scheduler().doRealConverterTask(folder);
        SXOperationQueue* queue = workspace.scheduler().queueConvertTask();
        const QList<SXOperationPtr> queued = queue->operations();
        QCOMPARE(queued.size(), 6);

        // Each row finds its own operation, a copy (as a drag carries) its equal one, and an item
        // of no operation none.
        QCOMPARE(workspace.scheduler().findOperationForMusicInfo(items.at(5)), queued.at(5));
        QCOMPARE(workspace.scheduler().findOperationForMusicInfo(items.at(4)->copy()),
                 queued.at(4));
        QVERIFY(!workspace.scheduler().findOperationForMusicInfo(outsider));
        workspace.scheduler().cancelOrEditTags(outsider);
        QCOMPARE(queue->operationCount(), 6);

        // The waiting last row is cancelled, and only it; a second click finds nothing to do.
        workspace.scheduler().cancelOrEditTags(items.at(5));
        QCOMPARE(items.at(5)->mediaInfo()->eumCvtState(), int(CvtStateCanceled));
        QCOMPARE(items.at(5)->dConvertProgress(), SXProgress::Canceled);
        QCOMPARE(items.at(4)->mediaInfo()->eumCvtState(), int(CvtStateReady));
        QCOMPARE(queue->operations(), queued.mid(0, 5));
        workspace.scheduler().cancelOrEditTags(items.at(5));
        QCOMPARE(queue->operations(), queued.mid(0, 5));

        // The first file has converted; the second converts, the third waits.
        QVERIFY(itemsDone.wait(60000));
        QCOMPARE(itemsDone.first().first().value<SXMusicInfoPtr>(), items.at(0));
        QCOMPARE(items.at(2)->dConvertProgress(), SXProgress::Waiting);
        // A right-click on the finished row cancels nothing (it once cancelled the last file).
        QTRY_COMPARE(queue->operationCount(), 4);
        workspace.scheduler().cancelOrEditTags(items.at(0));
        QCOMPARE(queue->operationCount(), 4);
        // Every way out of the list is refused aloud; a move out of another window is refused
        // quietly.
        const int beeps = m_presenter.beeps;
        workspace.addRun().removeSelected();
        workspace.addRun().clearContainer();
        QVERIFY(!workspace.moves().acceptDrop({items.at(2)->copy()}, 0, SXItemMoves::DropAboveRow));
        workspace.moves().acceptDropOnTab({items.at(0)->copy()}, u"AAC"_s);
        workspace.moves().dragMusicInfos({items.at(1)->copy()}, u"MP3"_s, u"AAC"_s, -1);
        QVERIFY(workspace.moves().dragDataForRows({0, 1}).isEmpty());
        QCOMPARE(m_presenter.beeps, beeps + 6);
        workspace.moves().removeDragOutFiles(items, u"MP3"_s);
        QCOMPARE(workspace.store().getDataForFormat(u"MP3"_s), items);
        QVERIFY(workspace.store().getDataForFormat(u"AAC"_s).isEmpty());
        QCOMPARE(workspace.store().selectedRows(), (QList<int>{0, 1, 2}));

        // Stop is the Start button during a run: once the short ones are through, the converting
        // and the waiting long rows are marked cancelled at once; the run ends later, through
        // the refresh.
        QTRY_COMPARE_WITH_TIMEOUT(itemsDone.size(), 3, kRunTimeoutMs);
        workspace.scheduler().toggleRun();
        QVERIFY(m_presenter.folderRequests.isEmpty());
        QCOMPARE(items.at(3)->dConvertProgress(), SXProgress::Canceled);
        QCOMPARE(items.at(4)->dConvertProgress(), SXProgress::Canceled);
        QCOMPARE(workspace.store().enumAppState(), int(AppStateConverting));
        QVERIFY(finished.wait(kRunTimeoutMs));
        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStateIdle), 10000);
        QCOMPARE(items.at(4)->mediaInfo()->eumCvtState(), int(CvtStateCanceled));

        // Every short child was reported and counted, and its output is whole on disk; nothing
        // of the cancelled ones is left.
        QCOMPARE(finished.first().at(1).toInt(), 3);
        QCOMPARE(filesBelow(folder + u"/MP3"_s),
                 (QStringList{u"m44.mp3"_s, u"mid.mp3"_s, u"s48.mp3"_s}));
        for (const auto& [name, seconds] :
             {std::pair{u"s48"_s, 1.0}, std::pair{u"mid"_s, 120.0}, std::pair{u"m44"_s, 1.0}}) {
            const ProbeReference output =
                ProbeReference::read(folder + u"/MP3/"_s + name + u".mp3"_s);
            QVERIFY2(output.ok && qAbs(output.duration - seconds) < 0.5, qPrintable(name));
        }

        // Once the run is over the list may be cleared; an empty list has no progress.
        workspace.addRun().clearContainer();
        QCOMPARE(workspace.store().getTotalNeedConvertMusic(), 0);
        QCOMPARE(workspace.scheduler().getTotalConvertProgress(), 0.0);
    }

    void unusableOutputFolderStartsNothing_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a file in the way") << u"file"_s << u"name is taken by a file"_s;
        QTest::newRow("read-only file system") << u"readonly"_s << u"read-only"_s;
    }

    // A destination that cannot take files stops the run before any child starts: the user reads
    // which folder and why, and nothing is written anywhere.
    void unusableOutputFolderStartsNothing() {
        QFETCH(QString, kind);
        QFETCH(QString, reason);
        QTemporaryDir dir;
        QString folder = dir.filePath(u"out"_s);
        if (kind == "file"_L1) {
            QVERIFY(SonoriaTest::writeFile(dir.filePath(u"blocker"_s), "mine"));
            folder = dir.filePath(u"blocker/out"_s);
        } else {
            QVERIFY(QDir().mkpath(folder));
            if (::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", MS_RDONLY,
                        "size=64k") != 0)
                QSKIP("mounting a tmpfs is not allowed here");
        }
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        QVERIFY(addFiles(workspace, u"MP3"_s, {source(u"s48.wav"_s)}));
        QSignalSpy refused(&workspace.scheduler(), &SXWorkspaceScheduler::runRefused);
        LogCapture log;
        const bool started = workspace.scheduler().doRealConverterTask(folder);
        if (kind == "readonly"_L1)
            ::umount2(QFile::encodeName(folder).constData(), MNT_DETACH);

        QVERIFY(!started);
        QCOMPARE(refused.count(), 1);
        const QString message = refused.first().first().toString();
        QVERIFY2(message.contains(folder + u"/MP3"_s) && message.contains(reason),
                 qPrintable(message));
        QCOMPARE(m_presenter.alerts.last().informativeText, message);
        QCOMPARE(workspace.store().enumAppState(), int(AppStateIdle));
        QVERIFY(log.lines().filter(u"args:"_s).isEmpty());
        QCOMPARE(workspace.store().getDataForFormat(u"MP3"_s).first()->mediaInfo()->eumCvtState(),
                 int(CvtStateReady));
        QCOMPARE(SonoriaTest::readFile(dir.filePath(u"blocker"_s)),
                 kind == "file"_L1 ? "mine" : "");
        QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 kind == "file"_L1 ? QStringList{u"blocker"_s} : QStringList{u"out"_s});
    }

private:
    QString source(const QString& name) const { return m_sources.filePath(name); }
    QString freshFolder(const QString& name) const { return m_outputs.filePath(name); }

    QTemporaryDir m_sources;
    QTemporaryDir m_outputs;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_TEST_MAIN(TestWorkspaceRun)
#include "tst_workspacerun.moc"
