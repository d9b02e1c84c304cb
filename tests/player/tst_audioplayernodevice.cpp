#include "support/PulseServer.h"
#include "support/TestSupport.h"

#include "framework/HVMediaInfo.h"
#include "player/SXAudioPlayer.h"
#include "workspace/SXWorkspace.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

// Without a sound server the preview fails cleanly: one message, the window back to idle, the
// player idle and ready to try again.
class TestAudioPlayerNoDevice : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void playingWithoutASoundServerFailsCleanly() {
        SonoriaTest::useNoSoundServer();
        QTemporaryDir dir;
        const QString file = dir.filePath(u"tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(file, 2.0));
        WorkspaceTestPresenter presenter;
        SXWorkspace workspace;
        prepareWorkspace(workspace, &presenter);
        SXAudioPlayer* player = SXAudioPlayer::shareAudioPlayer();
        workspace.preview().setPreviewPlayer(player);
        const SXMusicInfoPtr item = SXMusicInfo::newForSource(file, u"MP3"_s);
        QVERIFY(HVMediaInfo::dumpMediaInfo(*item->mediaInfo()));
        workspace.store().setData({item}, u"MP3"_s);

        for (int attempt = 1; attempt <= 2; ++attempt) {
            QSignalSpy failed(player, &SXPreviewPlayer::playFailed);
            workspace.preview().togglePlay(item);
            QVERIFY(failed.wait(10000));
            QCOMPARE(workspace.store().enumAppState(), int(AppStateIdle));
            QVERIFY(!player->isPlaying() && !player->playingMusic());
            QVERIFY(!workspace.preview().isPlayingMusic(item));
            QCOMPARE(presenter.alerts.size(), attempt);
            QVERIFY(presenter.alerts.last().informativeText.contains(u"No sound output device"_s));
        }
    }
};

SONORIA_TEST_MAIN(TestAudioPlayerNoDevice)
#include "tst_audioplayernodevice.moc"
