#include "support/TestSupport.h"

#include "model/SXDataEngine.h"
#include "workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QDir>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {
// A silent player that remembers what it was asked; the real one is tested against a sound
// server in tests/Player.
class SilentPlayer final : public SXPreviewPlayer {
public:
    void setPlayingMusic(const SXMusicInfoPtr& item) override {
        m_item = item;
        m_playing = m_paused = false;
    }

    SXMusicInfoPtr playingMusic() const override { return m_item; }
    void play() override {
        m_playing = true;
        played.append(m_item);
        Q_EMIT notificationPosted(SXPlayerNotify::PlayStart,
                                  {{SXPlayerNotify::kMusicInfo, QVariant::fromValue(m_item)}});
    }

    void pause() override { m_paused = !(m_playing = false); }
    void resume() override { m_playing = !(m_paused = false); }
    bool isPaused() const override { return m_paused; }
    void stop() override {
        const SXMusicInfoPtr item = m_item;
        setPlayingMusic(nullptr);
        if (item)
            Q_EMIT playStopped(item);
    }

    bool isPlaying() const override { return m_playing; }
    void seek(double seconds) override { seeks.append(seconds); }

    SXMusicInfoList played;
    QList<double> seeks;

private:
    SXMusicInfoPtr m_item;
    bool m_playing = false, m_paused = false;
};
} // namespace

class TestWorkspacePreview : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_presenter = WorkspaceTestPresenter();
        m_player = std::make_unique<SilentPlayer>();
        m_workspace = std::make_unique<SXWorkspace>();
        prepareWorkspace(*m_workspace, &m_presenter);
        m_workspace->preview().setPreviewPlayer(m_player.get());
        m_workspace->store().setData(
            madeUpItems(u"MP3"_s, {u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s}, 200), u"MP3"_s);
        m_workspace->store().setData(madeUpItems(u"AAC"_s, {u"d.mp3"_s}, 200), u"AAC"_s);
        m_workspace->tabs().selectContainer(u"MP3"_s);
    }

    void cleanup() {
        m_workspace.reset();
        m_player.reset();
    }

    void endOfPreviewRunsOnWithinItsContainer_data() {
        QTest::addColumn<int>("playingRow");
        QTest::addColumn<QVariant>("byUser");
        QTest::addColumn<int>("startState");
        QTest::addColumn<int>("nextRow"); // -1: nothing plays afterwards
        QTest::addColumn<int>("endState");
        QTest::newRow("first row runs on") << 0 << QVariant(false) << 2 << 1 << 2;
        QTest::newRow("missing flag counts as no") << 1 << QVariant() << 2 << 2 << 2;
        QTest::newRow("last row ends in idle") << 2 << QVariant(false) << 2 << -1 << 0;
        QTest::newRow("ended by the user") << 0 << QVariant(true) << 2 << -1 << 2;
        QTest::newRow("a run keeps its state") << 0 << QVariant(false) << 3 << -1 << 3;
    }

    void endOfPreviewRunsOnWithinItsContainer() {
        QFETCH(int, playingRow);
        QFETCH(QVariant, byUser);
        QFETCH(int, startState);
        QFETCH(int, nextRow);
        QFETCH(int, endState);
        m_workspace->preview().playMusic(row(playingRow));
        m_workspace->store().setAppState(startState, row(playingRow));
        QSignalSpy scrolled(&m_workspace->preview(), &SXWorkspacePreview::scrollToRowRequested);
        m_player->played.clear();
        QVariantMap info{{SXPlayerNotify::kMusicInfo, QVariant::fromValue(row(playingRow))}};
        if (byUser.isValid())
            info.insert(SXPlayerNotify::kActionByUsert, byUser);
        m_player->setPlayingMusic(nullptr);
        Q_EMIT m_player->notificationPosted(SXPlayerNotify::PlayEnd, info);

        QCOMPARE(m_workspace->store().enumAppState(), endState);
        if (nextRow < 0) {
            QVERIFY(m_player->played.isEmpty() && scrolled.isEmpty());
            return;
        }
        QCOMPARE(m_player->played, SXMusicInfoList{row(nextRow)});
        QCOMPARE(m_workspace->store().appStateItem(), row(nextRow));
        QCOMPARE(scrolled.value(0).value(0).toInt(), nextRow);
        // The end a row posts carries nothing and never runs on.
        m_player->postEndByRow();
        QCOMPARE(m_player->played.size(), 1);
    }

    // The play button toggles and a second stop is harmless; the slider seeks only when the drag
    // pauses. Another window's Start stops the shared player: this window goes idle, without an
    // alert (a failure to play, with its alert, is tested on the real player in
    // tst_audioplayernodevice).
    void playButtonSliderAndAForeignStop() {
        QSignalSpy notes(m_player.get(), &SXPreviewPlayer::notificationPosted);
        m_workspace->preview().sliderDown(50, 10.0); // not playing: ignored
        m_workspace->preview().togglePlay(row(1));
        QVERIFY(m_workspace->preview().isPlayingMusic(row(1)));
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStatePlaying));
        QCOMPARE(m_workspace->store().appStateItem(), row(1));

        m_workspace->preview().pauseOrResumePreview();
        QVERIFY(m_workspace->preview().isPreviewPaused());
        m_workspace->preview().pauseOrResumePreview();
        QVERIFY(!m_workspace->preview().isPreviewPaused() && m_player->isPlaying());

        m_workspace->preview().togglePlay(row(1)); // the same row again stops it
        QVERIFY(!m_player->playingMusic());
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStateIdle));
        QCOMPARE(notes.last().value(0).toString(), SXPlayerNotify::PlayEnd);
        QVERIFY(notes.last().value(1).toMap().isEmpty());

        m_workspace->preview().stopPlayerWithRefreshUI();
        m_workspace->preview().stopPlayerWithRefreshUI();
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStateIdle));

        // Space plays the selected row; nothing plays during a run; a double-click plays.
        m_workspace->store().setSelectedRows({2});
        m_workspace->preview().playSelected();
        QVERIFY(m_workspace->preview().isPlayingMusic(row(2)));
        m_workspace->preview().stopPlayerWithRefreshUI();
        m_workspace->store().setAppState(AppStateConverting);
        m_workspace->preview().togglePlay(row(0));
        m_workspace->preview().playRow(0);
        QVERIFY(!m_player->playingMusic());
        m_workspace->store().setAppState(AppStateIdle);
        m_workspace->preview().playRow(0);
        QVERIFY(m_workspace->preview().isPlayingMusic(row(0)));

        for (const double now : {20.0, 20.1, 20.25, 20.5, 20.65})
            m_workspace->preview().sliderDown(25, now);
        QCOMPARE(m_player->seeks, (QList<double>{50.0, 50.0}));
        SXWorkspace other;
        other.preview().setPreviewPlayer(m_player.get());
        other.scheduler().doRealConverterTask(QDir::tempPath());
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStateIdle));
        QVERIFY(m_presenter.alerts.isEmpty());
    }

    void workspaceStopsThePreview_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("stops");
        QTest::newRow("delete the playing row") << u"delete 1"_s << true;
        QTest::newRow("delete another row") << u"delete 0"_s << false;
        QTest::newRow("clear its container") << u"clear"_s << true;
        QTest::newRow("add files") << u"add"_s << true;
        QTest::newRow("start a run") << u"start"_s << true;
        QTest::newRow("close another container") << u"close FLAC"_s << false;
        QTest::newRow("close the window") << u"close window"_s << true;
    }

    void workspaceStopsThePreview() {
        QFETCH(QString, action);
        QFETCH(bool, stops);
        m_workspace->tabs().addContainerWithFormat(
            SXDataEngine::shareInstance()->getFormatWithName(u"FLAC"_s));
        m_workspace->tabs().selectContainer(u"MP3"_s);
        m_workspace->preview().togglePlay(row(1));
        if (action.startsWith(u"delete")) {
            m_workspace->store().setSelectedRows({action.back().digitValue()});
            m_workspace->addRun().removeSelected();
        } else if (action == u"clear") {
            m_workspace->addRun().clearContainer();
        } else if (action == u"add") {
            m_workspace->addRun().loadAndParseFiles({});
        } else if (action == u"start") {
            m_workspace->scheduler().doRealConverterTask(QDir::tempPath());
            m_workspace->scheduler().cancelAll();
        } else if (action == u"close FLAC") {
            m_workspace->tabs().selectContainer(u"FLAC"_s);
            QVERIFY(m_workspace->tabs().closeTab());
        } else {
            m_presenter.alertAnswer = 1; // "OK" to closing with items; answered at once
            bool mayClose = false;
            m_workspace->windowShouldClose([&mayClose](bool answer) { mayClose = answer; });
            QVERIFY(mayClose);
        }
        QCOMPARE(!m_player->playingMusic(), stops);
        if (stops)
            QVERIFY(m_workspace->store().enumAppState() != AppStatePlaying);
    }

private:
    SXMusicInfoPtr row(int index) const {
        return m_workspace->store().getDataForFormat(u"MP3"_s)[index];
    }

    std::unique_ptr<SXWorkspace> m_workspace;
    std::unique_ptr<SilentPlayer> m_player;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_TEST_MAIN(TestWorkspacePreview)
#include "tst_workspacepreview.moc"
