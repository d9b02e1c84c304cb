#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "Common/Util/SXFileLocalManager.h"
#include "Model/SXDataEngine.h"
#include "Shared/SXSettings.h"
#include "Workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <cmath>

namespace {
constexpr int kRunTimeoutMs = 180000;

bool addFiles(SXWorkspace& workspace, const QString& container, const QStringList& paths) {
    if (!workspace.selectContainer(container))
        return false;
    QSignalSpy finished(&workspace, &SXWorkspace::loadFinished);
    workspace.loadAndParseFiles(paths);
    return finished.count() > 0 || finished.wait(60000);
}

// "channels sample_rate" of the first audio stream, as ffprobe reads the file.
QString probe(const QString& path) {
    QString output;
    SonoriaTest::run(QStringLiteral("ffprobe"),
                     {QStringLiteral("-v"), QStringLiteral("error"),
                      QStringLiteral("-select_streams"), QStringLiteral("a:0"),
                      QStringLiteral("-show_entries"),
                      QStringLiteral("stream=channels,sample_rate"), QStringLiteral("-of"),
                      QStringLiteral("default=noprint_wrappers=1:nokey=1"), path},
                     &output);
    const QStringList values = output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return values.size() == 2 ? values.at(1) + QLatin1Char(' ') + values.at(0) : output;
}

QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}
} // namespace

class TestWorkspaceRun : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void startConvertsEveryContainerWithItsChoices();
    void overrideAndUnorganisedFolderAndRequeue();
    void summaryOfSuccessesAndFailures();
    void summaryTexts();
    void emptyRunEndsAtTheFirstRefresh();
    void totalProgressWeights();
    void cancelAllEndsTheRunThroughTheRefresh();
    void cancelOneFallsThroughToTheLastOperation();

private:
    QString source(const QString& name) const { return m_sources.filePath(name); }
    QString freshFolder(const QString& name) const { return m_outputs.filePath(name); }
    // Starts a run into `folder` directly and waits for its end; the summary's arguments.
    QList<QVariant> runInto(SXWorkspace& workspace, const QString& folder);

    QTemporaryDir m_sources;
    QTemporaryDir m_outputs;
    WorkspaceTestPresenter m_presenter;
};

void TestWorkspaceRun::initTestCase() {
    QVERIFY(m_sources.isValid() && m_outputs.isValid());
    QVERIFY(
        SonoriaTest::makeMedia(source(QStringLiteral("s48.wav")),
                               QStringLiteral("sine=frequency=440:duration=1:sample_rate=48000"),
                               {QStringLiteral("-ac"), QStringLiteral("2")}));
    QVERIFY(
        SonoriaTest::makeMedia(source(QStringLiteral("m44.flac")),
                               QStringLiteral("sine=frequency=330:duration=1:sample_rate=44100")));
    // Long enough that a run of several is still going when the test acts on it.
    QVERIFY(
        SonoriaTest::makeMedia(source(QStringLiteral("long.flac")),
                               QStringLiteral("sine=frequency=200:duration=900:sample_rate=8000")));
}

void TestWorkspaceRun::init() {
    for (const QString& key : {SXSettingsKey::DefaultOutputPath, SXSettingsKey::DefaultSetOrganized,
                               SXSettingsKey::DefaultSetOpen, SXSettingsKey::AppBSyncToiTunes})
        SXSettings::removeKey(key);
    SXSettings::setValue(SXSettingsKey::MaxTask, 3);
    m_presenter = WorkspaceTestPresenter();
}

QList<QVariant> TestWorkspaceRun::runInto(SXWorkspace& workspace, const QString& folder) {
    QSignalSpy finished(&workspace, &SXWorkspace::runFinished);
    workspace.doRealConverterTask(folder);
    if (!finished.wait(kRunTimeoutMs))
        return {};
    return finished.first();
}

void TestWorkspaceRun::startConvertsEveryContainerWithItsChoices() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    m_presenter.formatAnswer = QStringLiteral("FLAC");
    workspace.clickAddNewFormat();

    auto mp3 = workspace.getFormatSettingForFormatName(QStringLiteral("MP3"));
    mp3->setBiteRate(QStringLiteral("128"));
    mp3->setSampleRate(QStringLiteral("22050"));
    mp3->setChannels(QStringLiteral("Mono"));
    auto aac = workspace.getFormatSettingForFormatName(QStringLiteral("AAC"));
    aac->setBiteRate(QStringLiteral("Use Source"));
    aac->setSampleRate(QStringLiteral("Use Source"));
    aac->setChannels(QStringLiteral("Stereo"));
    aac->setEnumAddToiTunes(0);
    auto flac = workspace.getFormatSettingForFormatName(QStringLiteral("FLAC"));
    QCOMPARE(flac->channels(), QStringLiteral("Use Source"));
    QVERIFY(addFiles(workspace, QStringLiteral("MP3"), {source(QStringLiteral("s48.wav"))}));
    QVERIFY(addFiles(workspace, QStringLiteral("AAC"), {source(QStringLiteral("m44.flac"))}));
    QVERIFY(addFiles(workspace, QStringLiteral("FLAC"), {source(QStringLiteral("s48.wav"))}));

    const QString folder = freshFolder(QStringLiteral("start"));
    m_presenter.folderAnswer = SXOutputFolderChoice{folder, true, true};
    LogCapture log;
    QSignalSpy finished(&workspace, &SXWorkspace::runFinished);
    QSignalSpy totals(&workspace, &SXWorkspace::totalProgressChanged);
    QSignalSpy redraws(&workspace, &SXWorkspace::rowsRedrawRequested);
    workspace.clickStart();
    QCOMPARE(workspace.enumAppState(), int(AppStateConverting));
    QCOMPARE(workspace.queueConvertTask()->maxConcurrentOperationCount(), 3);
    QCOMPARE(workspace.totalConvertOps(), 3);
    QVERIFY(finished.wait(kRunTimeoutMs));

    // The chooser started from the default folder with the default check boxes; the answer
    // was stored.
    QCOMPARE(m_presenter.folderRequests.size(), 1);
    const SXOutputFolderRequest request = m_presenter.folderRequests.first();
    QCOMPARE(request.startFolder, SXFileLocalManager::getDefaultUpperOutputDir());
    QVERIFY(request.organizeByFormat);
    QVERIFY(!request.openWhenDone);
    QCOMPARE(request.message, QStringLiteral("Please choose output folder:"));
    QVERIFY(log.contains(QStringLiteral("thepath = ") + request.startFolder));
    QCOMPARE(SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath), folder);
    QVERIFY(SXSettings::boolForKey(SXSettingsKey::DefaultSetOpen, false));

    // Summary, folder opened, back to idle.
    QCOMPARE(finished.first().at(0).toString(),
             QStringLiteral("3 files has been successfully converted."));
    QCOMPARE(m_presenter.alerts.last().messageText, finished.first().at(0).toString());
    QVERIFY(m_presenter.alerts.last().informativeText.isEmpty());
    QCOMPARE(m_presenter.alerts.last().buttons, QStringList{QStringLiteral("OK")});
    QCOMPARE(m_presenter.openedFolders, QStringList{folder});
    QTRY_COMPARE_WITH_TIMEOUT(workspace.enumAppState(), int(AppStateIdle), 10000);
    QCOMPARE(totals.first().first().toDouble(), 0.0);
    QVERIFY(redraws.count() > 0);
    QCOMPARE(workspace.getTotalConvertProgress(), 1.0);

    // The choices reached the records.
    const LSMediaPtr m1 = workspace.getDataForFormat(QStringLiteral("MP3")).first()->mediaInfo();
    QCOMPARE(m1->dAOBitrate(), 128.0);
    QCOMPARE(m1->dAOSamplerate(), 22050.0);
    QCOMPARE(m1->iAOChanels(), 1);
    QCOMPARE(m1->vOACodecName(), mp3->decodecName());
    QCOMPARE(m1->strOutFileExt(), QStringLiteral("mp3"));
    const LSMediaPtr m2 = workspace.getDataForFormat(QStringLiteral("AAC")).first()->mediaInfo();
    QCOMPARE(m2->dAOBitrate(), m2->audioBitrate() / 1000);
    QCOMPARE(m2->dAOSamplerate(), 44100.0);
    QCOMPARE(m2->iAOChanels(), 2);
    const SXMusicInfoPtr flacItem = workspace.getDataForFormat(QStringLiteral("FLAC")).first();
    QCOMPARE(flacItem->mediaInfo()->iAOChanels(), 2);
    QCOMPARE(flacItem->mediaInfo()->dAOSamplerate(), 48000.0);
    QCOMPARE(flacItem->mediaInfo()->dAOBitrate(), 0.0); // "Lossless" carries no number
    QVERIFY(!flacItem->bIsSendingToiTunes());
    QCOMPARE(flacItem->striTunesPlaylistName(),
             SXSettings::stringForKey(SXSettingsKey::iTunesPlaylistName));
    QCOMPARE(flacItem->dConvertProgress(), SXProgress::Done);

    // Organised by format, each file as its container asked.
    QVERIFY(log.contains(QStringLiteral("the path = ") + folder + QStringLiteral("/MP3")));
    QCOMPARE(probe(folder + QStringLiteral("/MP3/s48.mp3")), QStringLiteral("1 22050"));
    QCOMPARE(probe(folder + QStringLiteral("/AAC/m44.m4a")), QStringLiteral("2 44100"));
    QCOMPARE(probe(folder + QStringLiteral("/FLAC/s48.flac")), QStringLiteral("2 48000"));

    // The open flag came from the chooser: off again, nothing is opened.
    m_presenter.folderAnswer = SXOutputFolderChoice{folder, true, false};
    finished.clear();
    workspace.clickStart();
    QCOMPARE(m_presenter.folderRequests.last().startFolder, folder);
    QVERIFY(m_presenter.folderRequests.last().openWhenDone);
    QVERIFY(finished.wait(kRunTimeoutMs));
    QCOMPARE(m_presenter.openedFolders.size(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(workspace.enumAppState(), int(AppStateIdle), 10000);

    // A cancelled chooser changes nothing.
    m_presenter.folderAnswer.reset();
    workspace.clickStart();
    QCOMPARE(workspace.enumAppState(), int(AppStateIdle));
}

void TestWorkspaceRun::overrideAndUnorganisedFolderAndRequeue() {
    SXWorkspace workspace;
    workspace.addDefaultTabs();
    QVERIFY(addFiles(workspace, QStringLiteral("MP3"), {source(QStringLiteral("m44.flac"))}));
    // An item without a media record waits for ever and holds the total at half.
    workspace.setData(
        {makeWorkspaceItem(QStringLiteral("/nowhere/x.wav"), QStringLiteral("AAC"), false)},
        QStringLiteral("AAC"));
    SXSettings::setValue(SXSettingsKey::MaxTask, 4);
    workspace.setMaxConcurrentOverride(1);
    workspace.setOrganizeByFormat(false);
    const QString folder = freshFolder(QStringLiteral("flat"));

    for (int run = 0; run < 2; ++run) {
        const QList<QVariant> summary = runInto(workspace, folder);
        QVERIFY(!summary.isEmpty());
        QCOMPARE(summary.at(1).toInt(), 1);
        QCOMPARE(workspace.queueConvertTask()->maxConcurrentOperationCount(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(workspace.enumAppState(), int(AppStateIdle), 10000);
    }
    QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 4);
    QCOMPARE(workspace.totalConvertOps(), 2);
    // Every Start queues every item again; the second output does not replace the first.
    QCOMPARE(filesIn(folder),
             (QStringList{QStringLiteral("m44(1).mp3"), QStringLiteral("m44.mp3")}));
    QCOMPARE(workspace.getDataForFormat(QStringLiteral("AAC")).first()->dConvertProgress(),
             SXProgress::Waiting);
    QCOMPARE(workspace.getTotalConvertProgress(), 0.5);

    workspace.setMaxConcurrentOverride(std::nullopt);
    runInto(workspace, folder);
    QCOMPARE(workspace.queueConvertTask()->maxConcurrentOperationCount(), 4);
}

void TestWorkspaceRun::summaryOfSuccessesAndFailures() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    QVERIFY(addFiles(workspace, QStringLiteral("MP3"),
                     {source(QStringLiteral("s48.wav")), source(QStringLiteral("m44.flac"))}));
    QVERIFY(addFiles(workspace, QStringLiteral("AAC"), {source(QStringLiteral("s48.wav"))}));
    auto broken = workspace.getFormatSettingForFormatName(QStringLiteral("AAC"))->copy();
    broken->setDecodecName(QStringLiteral("no_such_encoder"));
    workspace.setFmtSetting(broken);

    const QString folder = freshFolder(QStringLiteral("mixed"));
    const QList<QVariant> summary = runInto(workspace, folder);
    QVERIFY(!summary.isEmpty());
    const QString expected = QStringLiteral("2 files has been successfully converted."
                                            "except 1 files failed,including: \ns48");
    QCOMPARE(summary.at(0).toString(), expected);
    QCOMPARE(summary.at(1).toInt(), 2);
    QCOMPARE(summary.at(2).toInt(), 1);
    QCOMPARE(m_presenter.alerts.last().messageText, expected);
    QCOMPARE(workspace.getDataForFormat(QStringLiteral("AAC")).first()->dConvertProgress(),
             SXProgress::Failed);
    QCOMPARE(filesIn(folder + QStringLiteral("/MP3")).size(), 2);
    QVERIFY(filesIn(folder + QStringLiteral("/AAC")).isEmpty());
    // The failed item stays in its container.
    QCOMPARE(workspace.getTotalNeedConvertMusic(), 3);
}

void TestWorkspaceRun::summaryTexts() {
    QCOMPARE(SXWorkspace::summaryMessage(0, {}),
             QStringLiteral("0 files has been successfully converted."));
    QCOMPARE(SXWorkspace::summaryMessage(
                 4, {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}),
             QStringLiteral("4 files has been successfully converted."
                            "except 3 files failed,including: \na \nb \nc"));
    QCOMPARE(SXWorkspace::summaryMessage(0, {QStringLiteral("a"), QStringLiteral("b"),
                                             QStringLiteral("c"), QStringLiteral("d"),
                                             QStringLiteral("e")}),
             QStringLiteral("0 files has been successfully converted."
                            "except 5 files failed,including: \na \nb \nc..."));
    QCOMPARE(SXWorkspace::choiceValue(QStringLiteral("192")), 192.0);
    QCOMPARE(SXWorkspace::choiceValue(QStringLiteral("22.5k")), 22.5);
    QCOMPARE(SXWorkspace::choiceValue(QStringLiteral("Lossless")), 0.0);
}

void TestWorkspaceRun::emptyRunEndsAtTheFirstRefresh() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    SXSettings::setValue(SXSettingsKey::DefaultOutputPath, freshFolder(QStringLiteral("empty")));
    m_presenter.folderAnswer =
        SXOutputFolderChoice{freshFolder(QStringLiteral("empty")), false, false};
    QSignalSpy finished(&workspace, &SXWorkspace::runFinished);
    QSignalSpy states(&workspace, &SXWorkspace::appStateChanged);
    workspace.clickStart();
    QCOMPARE(m_presenter.folderRequests.first().startFolder, freshFolder(QStringLiteral("empty")));
    QVERIFY(finished.wait(10000));
    QCOMPARE(finished.first().at(0).toString(),
             QStringLiteral("0 files has been successfully converted."));
    QTRY_COMPARE_WITH_TIMEOUT(workspace.enumAppState(), int(AppStateIdle), 10000);
    QCOMPARE(states.size(), 2);
    QVERIFY(std::isnan(workspace.getTotalConvertProgress()));
}

void TestWorkspaceRun::totalProgressWeights() {
    SXWorkspace workspace;
    workspace.addDefaultTabs();
    SXMusicInfoList items;
    for (double value : {-4.0, -3.0, 100.0, -2.0, -1.0, 50.0}) {
        items.append(makeWorkspaceItem(QStringLiteral("/x/%1.wav").arg(items.size()),
                                       QStringLiteral("MP3")));
        items.last()->setDConvertProgress(value);
    }
    workspace.setData(items.mid(0, 3), QStringLiteral("MP3"));
    workspace.setData(items.mid(3), QStringLiteral("AAC"));
    QCOMPARE(workspace.getTotalNeedConvertMusic(), 6);
    QCOMPARE(workspace.getTotalConvertProgress(), (100.0 * 3 + 90 + 0 + 50) / 600);
}

void TestWorkspaceRun::cancelAllEndsTheRunThroughTheRefresh() {
    SXWorkspace workspace;
    workspace.setPresenter(&m_presenter);
    workspace.addDefaultTabs();
    const QString longSource = source(QStringLiteral("long.flac"));
    QVERIFY(addFiles(workspace, QStringLiteral("MP3"), {longSource, longSource, longSource}));
    workspace.setMaxConcurrentOverride(1);
    const QString folder = freshFolder(QStringLiteral("cancelled"));
    QSignalSpy finished(&workspace, &SXWorkspace::runFinished);
    workspace.doRealConverterTask(folder);

    // Stop is the Start button during a run.
    workspace.clickStart();
    QVERIFY(m_presenter.folderRequests.isEmpty());
    const SXMusicInfoList items = workspace.getDataForFormat(QStringLiteral("MP3"));
    for (const SXMusicInfoPtr& item : items)
        QCOMPARE(item->dConvertProgress(), SXProgress::Canceled);
    QCOMPARE(workspace.getTotalConvertProgress(), 1.0);
    QCOMPARE(workspace.enumAppState(), int(AppStateConverting));

    QVERIFY(finished.wait(kRunTimeoutMs));
    QTRY_COMPARE_WITH_TIMEOUT(workspace.enumAppState(), int(AppStateIdle), 10000);
    for (int i = 1; i < items.size(); ++i) {
        QCOMPARE(items.at(i)->mediaInfo()->eumCvtState(), int(CvtStateCanceled));
        QCOMPARE(items.at(i)->dConvertProgress(), SXProgress::Canceled);
    }
    // Only a conversion that finished before the cancel reached it leaves a file.
    const int finishedItems = items.first()->mediaInfo()->eumCvtState() == CvtStateFinished;
    QCOMPARE(int(filesIn(folder + QStringLiteral("/MP3")).size()), finishedItems);
    QCOMPARE(finished.first().at(1).toInt(), finishedItems);
}

void TestWorkspaceRun::cancelOneFallsThroughToTheLastOperation() {
    SXWorkspace workspace;
    workspace.addDefaultTabs();
    const QString longSource = source(QStringLiteral("long.flac"));
    QVERIFY(addFiles(workspace, QStringLiteral("MP3"), {longSource, longSource, longSource}));
    const SXMusicInfoList items = workspace.getDataForFormat(QStringLiteral("MP3"));
    const SXMusicInfoPtr outsider =
        makeWorkspaceItem(QStringLiteral("/nowhere/else.wav"), QStringLiteral("MP3"));
    QVERIFY(!workspace.findOperationForMusicInfo(outsider));

    workspace.setMaxConcurrentOverride(1);
    QSignalSpy finished(&workspace, &SXWorkspace::runFinished);
    workspace.doRealConverterTask(freshFolder(QStringLiteral("one")));
    const QList<SXOperationPtr> queued = workspace.queueConvertTask()->operations();
    QCOMPARE(queued.size(), 3);

    // The three items share a path, so the first operation answers for all of them; an item
    // of no operation gets the last one.
    QCOMPARE(workspace.findOperationForMusicInfo(items.at(2)), queued.first());
    QCOMPARE(workspace.findOperationForMusicInfo(outsider), queued.last());
    workspace.didMyListViewCellRightButtonClick(outsider);
    QCOMPARE(items.at(2)->mediaInfo()->eumCvtState(), int(CvtStateCanceled));
    QCOMPARE(items.at(1)->mediaInfo()->eumCvtState(), int(CvtStateReady));
    QCOMPARE(workspace.queueConvertTask()->operationCount(), 2);

    workspace.clickCancelAll();
    QVERIFY(finished.wait(kRunTimeoutMs));
    QTRY_COMPARE_WITH_TIMEOUT(workspace.enumAppState(), int(AppStateIdle), 10000);
}

SONORIA_TEST_MAIN(TestWorkspaceRun)
#include "tst_workspacerun.moc"
