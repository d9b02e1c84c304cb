#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "framework/MTEAudioFileMgr.h"
#include "model/SXDataEngine.h"
#include "workspace/SXContainerMemory.h"
#include "workspace/SXLoudnessSurvey.h"
#include "workspace/SXSettingPanelActions.h"
#include "workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

// The workspace's side of loudness: which items form an album, what a container remembers, and a
// Stop that comes while the sources are still being measured.
using namespace Qt::StringLiterals;

class TestLoudnessRun : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        QVERIFY(QDir().mkpath(m_dir.filePath(u"one"_s)) && QDir().mkpath(m_dir.filePath(u"two"_s)));
        SXSettings::setValue(SXSettingsKey::MaxTask, 2);
    }

    void albumKeys_data() {
        QTest::addColumn<QStringList>("first");  // folder, album, album artist, container
        QTest::addColumn<QStringList>("second"); // the same for the other item
        QTest::addColumn<bool>("sameAlbum");
        QTest::newRow("same tags, other folders")
            << QStringList{u"one"_s, u"A"_s, u"X"_s, u"MP3"_s}
            << QStringList{u"two"_s, u"A"_s, u"X"_s, u"MP3"_s} << true;
        QTest::newRow("same album, other album artist")
            << QStringList{u"one"_s, u"A"_s, u"X"_s, u"MP3"_s}
            << QStringList{u"one"_s, u"A"_s, u"Y"_s, u"MP3"_s} << false;
        QTest::newRow("no album, one folder") << QStringList{u"one"_s, {}, {}, u"MP3"_s}
                                              << QStringList{u"one"_s, {}, {}, u"MP3"_s} << true;
        QTest::newRow("no album, two folders") << QStringList{u"one"_s, {}, {}, u"MP3"_s}
                                               << QStringList{u"two"_s, {}, {}, u"MP3"_s} << false;
        QTest::newRow("same album, other containers")
            << QStringList{u"one"_s, u"A"_s, u"X"_s, u"MP3"_s}
            << QStringList{u"one"_s, u"A"_s, u"X"_s, u"FLAC"_s} << false;
    }
    void albumKeys() {
        QFETCH(QStringList, first);
        QFETCH(QStringList, second);
        QFETCH(bool, sameAlbum);
        QCOMPARE(SXLoudnessSurvey::albumKey(*item(first, 1), first.at(3)) ==
                     SXLoudnessSurvey::albumKey(*item(second, 2), second.at(3)),
                 sameAlbum);
    }

    // Kept in the settings file with the container's other choices; a file from before these
    // options leaves them off.
    void choicesAreRemembered() {
        SXWorkspace workspace;
        workspace.tabs().addDefaultTabs();
        QVERIFY(workspace.tabs().selectContainer(u"MP3"_s));
        SXSettingPanelActions::setReplayGain(workspace.store(), SXReplayGainMode::Album);
        SXSettingPanelActions::setNormalise(workspace.store(), true);
        const SXFormatSettingPtr fresh = SXDataEngine::shareInstance()->getFormatWithName(u"MP3"_s);
        QVERIFY(fresh);
        QCOMPARE(fresh->replayGain(), SXReplayGainMode::Off);
        SXContainerMemory::restoreChoices(*fresh);
        QCOMPARE(fresh->replayGain(), SXReplayGainMode::Album);
        QVERIFY(fresh->normalise());
        QCOMPARE(fresh->choices().replayGain, SXReplayGainMode::Album);

        SXSettings::setValue(u"SXContainerChoices/MP3"_s, u"{\"bitRate\":\"128\"}"_s);
        const SXFormatSettingPtr older = SXDataEngine::shareInstance()->getFormatWithName(u"MP3"_s);
        SXContainerMemory::restoreChoices(*older);
        QCOMPARE(older->replayGain(), SXReplayGainMode::Off);
        QVERIFY(!older->normalise());
        QCOMPARE(older->bitRate(), u"128"_s);
    }

    // Stop before the meters are done: every item ends cancelled, no child starts, no file is
    // written, and the run still ends with its summary.
    void stopWhileMeasuring() {
        QStringList sources;
        for (int i = 0; i < 3; ++i) {
            sources.append(m_dir.filePath(u"long%1.flac"_s.arg(i)));
            QVERIFY(SonoriaTest::makeMedia(sources.last(),
                                           u"sine=frequency=300:duration=600:sample_rate=48000"_s,
                                           {u"-ac"_s, u"2"_s}));
        }
        WorkspaceTestPresenter presenter;
        SXWorkspace workspace;
        prepareWorkspace(workspace, &presenter);
        QVERIFY(workspace.tabs().selectContainer(u"MP3"_s));
        SXSettingPanelActions::setReplayGain(workspace.store(), SXReplayGainMode::Album);
        QVERIFY(addFiles(workspace, sources));

        const QString out = m_dir.filePath(u"out"_s);
        LogCapture log;
        QSignalSpy finished(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished);
        QVERIFY(workspace.scheduler().doRealConverterTask(out));
        QCOMPARE(workspace.store().enumAppState(), int(AppStateConverting));
        workspace.scheduler().toggleRun();
        QVERIFY(finished.wait(60000));
        QCOMPARE(finished.first().at(1).toInt(), 0);
        for (const SXMusicInfoPtr& item : workspace.store().getDataForFormat(u"MP3"_s)) {
            QCOMPARE(item->mediaInfo()->eumCvtState(), int(CvtStateCanceled));
            QCOMPARE(item->dConvertProgress(), double(SXProgress::Canceled));
        }
        QCOMPARE(QDir(out + u"/MP3"_s).entryList(QDir::Files | QDir::Hidden), QStringList());
        QCOMPARE(log.lines().filter(u"measuring the loudness of 3 sources"_s).size(), 1);
        QCOMPARE(log.lines().filter(u"args:"_s), QStringList());
        SXSettings::removeKey(u"SXContainerChoices/MP3"_s);
    }

private:
    // An item of `folder` whose tags name `album` by `artist` (none when empty).
    SXMusicInfoPtr item(const QStringList& description, int index) {
        const QString path = m_dir.filePath(
            u"%1/%2-%3.flac"_s.arg(description.at(0)).arg(index).arg(QTest::currentDataTag()));
        QStringList tags;
        if (!description.at(1).isEmpty())
            tags << u"-metadata"_s << u"album=%1"_s.arg(description.at(1)) << u"-metadata"_s
                 << u"album_artist=%1"_s.arg(description.at(2));
        if (!SonoriaTest::makeTone(path, 0.2, tags))
            return nullptr;
        SXMusicInfoPtr music = SXMusicInfo::newForSource(path, description.at(3));
        music->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(path, true));
        return music;
    }

    QTemporaryDir m_dir;
};

SONORIA_TEST_MAIN(TestLoudnessRun)
#include "tst_loudnessrun.moc"
