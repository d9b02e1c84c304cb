#include "support/PulseServer.h"
#include "support/TestSupport.h"

#include "framework/HVMediaInfo.h"
#include "player/HVAudioDecoder.h"
#include "player/SXAudioPlayer.h"
#include "workspace/SXWorkspace.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
// The notifications the player posted, by name, in order.
struct Notes {
    explicit Notes(SXPreviewPlayer* player)
        : spy(player, &SXPreviewPlayer::notificationPosted) {}
    QList<QVariantMap> named(const QString& name) const {
        QList<QVariantMap> found;
        for (const QList<QVariant>& note : spy) {
            if (note.value(0).toString() == name)
                found.append(note.value(1).toMap());
        }
        return found;
    }

    bool waitFor(const QString& name, qsizetype count, int timeoutMs = 15000) {
        QDeadlineTimer deadline(timeoutMs);
        while (named(name).size() < count && !deadline.hasExpired())
            spy.wait(200);
        return named(name).size() >= count;
    }
    QSignalSpy spy;
};

SXMusicInfoPtr probedItem(const QString& path, const QString& type) {
    const SXMusicInfoPtr item = SXMusicInfo::newForSource(path, type);
    HVMediaInfo::dumpMediaInfo(*item->mediaInfo());
    return item;
}

double secondsOf(const QVariantMap& note) {
    return note.value(SXPlayerNotify::kProgressInfo).toDouble();
}
} // namespace

class TestAudioPlayer : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(SonoriaTest::makeTone(path(u"short.wav"_s), 3.5));
        QVERIFY(SonoriaTest::makeTone(path(u"two.mp3"_s), 2.0));
        QVERIFY(SonoriaTest::makeTone(path(u"long.flac"_s), 30.0));
        // Quiet for three seconds, then loud: which part plays shows in the samples.
        QVERIFY(SonoriaTest::makeMedia(
            path(u"steps.wav"_s),
            u"aevalsrc=if(lt(t\\,3)\\,0.2\\,0.6)*sin(2*PI*440*t):s=48000:d=5"_s));
        QVERIFY(SonoriaTest::makeMedia(
            path(u"clip.mp4"_s), u"testsrc=size=160x120:rate=10:duration=3"_s,
            {u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=duration=3"_s, u"-c:v"_s, u"mpeg4"_s, u"-c:a"_s,
             u"aac"_s, u"-ac"_s, u"6"_s}));
        QString why;
        if (!SonoriaTest::PulseServer::forThisProcess().start(&why))
            QSKIP(qPrintable(u"no PulseAudio to play into: "_s + why));
        m_player = SXAudioPlayer::shareAudioPlayer();
        QCOMPARE(SXAudioPlayer::shareAudioPlayer(), m_player);
    }

    void init() {
        m_workspace = std::make_unique<SXWorkspace>();
        m_workspace->preview().setPreviewPlayer(m_player);
        m_workspace->tabs().addDefaultTabs();
    }

    void cleanup() {
        m_player->stop();
        m_workspace.reset();
    }

    // Every sample of the part comes out once, at the output rate and layout, and a seek lands
    // where asked. A track of a cue sheet is previewed as its own part of the file: it starts at
    // its start, ends at its end, and a seek counts from its start.
    void decoderReadsItsPartOfEveryKindOfSource_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("end"); // -1: to the end of the file
        QTest::addColumn<double>("seconds");
        QTest::addColumn<double>("tolerance");
        QTest::addColumn<double>("peak"); // 0: not measured
        QTest::newRow("wav") << u"short.wav"_s << 0.0 << -1.0 << 3.5 << 0.1 << 0.0;
        QTest::newRow("mp3") << u"two.mp3"_s << 0.0 << -1.0 << 2.0 << 0.1 << 0.0;
        QTest::newRow("sound of a 5.1 video") << u"clip.mp4"_s << 0.0 << -1.0 << 3.0 << 0.1 << 0.0;
        QTest::newRow("the quiet first track")
            << u"steps.wav"_s << 0.5 << 2.5 << 2.0 << 0.05 << 0.2;
        QTest::newRow("the loud last track, to the end")
            << u"steps.wav"_s << 3.0 << -1.0 << 2.0 << 0.05 << 0.6;
    }

    void decoderReadsItsPartOfEveryKindOfSource() {
        QFETCH(QString, name);
        QFETCH(double, start);
        QFETCH(double, end);
        QFETCH(double, seconds);
        QFETCH(double, tolerance);
        QFETCH(double, peak);
        HVAudioDecoder decoder(48000, 2);
        QVERIFY(decoder.open(path(name)));
        decoder.limitTo(start, end);
        QVERIFY(qAbs(decoder.duration() - seconds) < tolerance);
        int loudest = 0;
        const auto decodedSeconds = [&decoder, &loudest] {
            qint64 bytes = 0;
            for (QByteArray block = decoder.decodeSome(); !block.isEmpty();
                 block = decoder.decodeSome()) {
                bytes += block.size();
                const auto* samples = reinterpret_cast<const qint16*>(block.constData());
                for (qsizetype i = 0; i < block.size() / 2; ++i)
                    loudest = qMax(loudest, qAbs(int(samples[i])));
            }
            return double(bytes) / decoder.bytesPerSecond();
        };
        QVERIFY(qAbs(decodedSeconds() - seconds) < tolerance);
        // The mono source is spread over two channels at -3 dB each.
        QVERIFY2(peak == 0 || qAbs(loudest / 32768.0 - peak * M_SQRT1_2) < 0.02,
                 qPrintable(QString::number(loudest / 32768.0)));
        decoder.seek(1.0);
        QVERIFY(qAbs(decodedSeconds() - (seconds - 1.0)) < tolerance);
        QVERIFY(!HVAudioDecoder(48000, 2).open(path(u"missing.wav"_s)));
    }

    void previewEndsAtTheThirdTickAndRunsOn() {
        m_workspace->store().setData(
            {probedItem(path(u"short.wav"_s), u"MP3"_s), probedItem(path(u"clip.mp4"_s), u"MP3"_s)},
            u"MP3"_s);
        const SXMusicInfoList rows = m_workspace->store().getDataForFormat(u"MP3"_s);
        Notes notes(m_player);
        m_workspace->preview().playMusic(rows.at(0));
        QCOMPARE(SXPlayerNotify::musicInfoOf(notes.named(SXPlayerNotify::PlayStart).value(0)),
                 rows.at(0));
        QVERIFY(m_player->isPlaying());

        QVERIFY(notes.waitFor(SXPlayerNotify::PlayEnd, 1));
        const QList<QVariantMap> ticks = notes.named(SXPlayerNotify::PlayProgress);
        QStringList seen;
        for (const QVariantMap& tick : ticks)
            seen.append(QString::number(secondsOf(tick)));
        QVERIFY2(ticks.size() == 2,
                 qPrintable(u"progress ticks before the end: "_s + seen.join(u' ')));
        QVERIFY(secondsOf(ticks.at(0)) > 0.5 && secondsOf(ticks.at(1)) > secondsOf(ticks.at(0)));
        const QVariantMap end = notes.named(SXPlayerNotify::PlayEnd).first();
        QCOMPARE(SXPlayerNotify::musicInfoOf(end), rows.at(0));
        QCOMPARE(end.value(SXPlayerNotify::kActionByUsert), QVariant(false));

        // The next row, a video file, plays its sound; being the last, it ends in idle.
        QCOMPARE(m_player->playingMusic(), rows.at(1));
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStatePlaying));
        QVERIFY(notes.waitFor(SXPlayerNotify::PlayEnd, 2));
        QVERIFY(secondsOf(notes.named(SXPlayerNotify::PlayProgress).last()) > 1.0);
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStateIdle));
        QVERIFY(!m_player->playingMusic() && !m_player->isPlaying());
        m_player->stop();
        m_player->stop();
        QVERIFY(!m_player->playingMusic());
    }

    // A seek, a pause and a resume move the position as asked; the playing item, moved to another
    // container, plays on there, and stops when it is removed.
    void seekPauseResumeAndMoveThePlayingItem() {
        m_workspace->store().setData({probedItem(path(u"long.flac"_s), u"MP3"_s)}, u"MP3"_s);
        const SXMusicInfoPtr item = m_workspace->store().getDataForFormat(u"MP3"_s).first();
        Notes notes(m_player);
        m_workspace->preview().playMusic(item);
        QVERIFY(notes.waitFor(SXPlayerNotify::PlayProgress, 1));
        m_workspace->preview().sliderDown(50, 100.0); // 15 s of 30
        QVERIFY(notes.waitFor(SXPlayerNotify::PlayProgress, 2));
        const double afterSeek = secondsOf(notes.named(SXPlayerNotify::PlayProgress).last());
        QVERIFY2(afterSeek >= 15.0 && afterSeek < 17.0, qPrintable(QString::number(afterSeek)));

        m_workspace->preview().pauseOrResumePreview();
        QVERIFY(m_workspace->preview().isPreviewPaused() && !m_player->isPlaying());
        QVERIFY(notes.waitFor(SXPlayerNotify::PlayProgress, 4));
        const QList<QVariantMap> paused = notes.named(SXPlayerNotify::PlayProgress).mid(2);
        QCOMPARE(secondsOf(paused.at(0)), secondsOf(paused.at(1)));
        m_workspace->preview().pauseOrResumePreview();
        QVERIFY(notes.waitFor(SXPlayerNotify::PlayProgress, 6));
        QVERIFY(secondsOf(notes.named(SXPlayerNotify::PlayProgress).last()) >
                secondsOf(paused.at(1)));

        m_workspace->moves().acceptDropOnTab(
            SXMusicInfo::unarchiveItems(SXMusicInfo::archiveItems({item})), u"AAC"_s);
        QVERIFY(m_player->isPlaying());
        QVERIFY(m_workspace->preview().isPlayingMusic(
            m_workspace->store().getDataForFormat(u"AAC"_s).first()));
        m_workspace->tabs().selectContainer(u"AAC"_s);
        m_workspace->store().setSelectedRows({0});
        m_workspace->addRun().removeSelected();
        QVERIFY(!m_player->isPlaying() && !m_player->playingMusic());
        QCOMPARE(m_workspace->store().enumAppState(), int(AppStateIdle));
    }

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
    std::unique_ptr<SXWorkspace> m_workspace;
    SXAudioPlayer* m_player = nullptr;
};

SONORIA_TEST_MAIN(TestAudioPlayer)
#include "tst_audioplayer.moc"
