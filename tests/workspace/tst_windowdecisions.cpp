#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "model/SXDataEngine.h"
#include "support/TemporaryHome.h"
#include "workspace/SXCommandValidation.h"
#include "workspace/SXFormatChooser.h"
#include "workspace/SXSettingPanelActions.h"
#include "workspace/SXStateStripModel.h"
#include "workspace/SXWindowRegistry.h"
#include "workspace/SXWorkspace.h"
#include "workspace/SXWorkspaceTexts.h"

#include "WorkspaceTestPresenter.h"

#include <QLocale>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

// Every command of the menus, in SXCommand's order, by the name the tables use.
const QStringList kCommands =
    u"NewContainer Open NewFormat CloseTab Preferences Delete Clear NextRow PreviousRow "
    "NextContainer PreviousContainer TagEditor FileInfo Start Stop Quit Help"_s.split(u' ');

// Stands in for a workspace window: only its key state matters to the registry.
class FakeWindow : public SXWindowController {
public:
    bool key = false;
    bool isKeyWindow() const override { return key; }
};

} // namespace

// The decisions a workspace window only shows: which commands are enabled in which state, the
// chooser's result, the help bar, the state strip and which window is the key one.
class TestWindowDecisions : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void menuCommandsFollowTheState_data() {
        // State, items, key workspace, its selection and container, primary open, primary key.
        QTest::addColumn<SXCommandContext>("context");
        QTest::addColumn<QStringList>("enabled");
        QTest::addColumn<QStringList>("beeping");
        QTest::addColumn<QStringList>("refused"); // by the dispatcher, with a beep

        const QStringList always{u"Quit"_s, u"Help"_s};
        const QStringList neutral{u"Preferences"_s, u"NextContainer"_s, u"PreviousContainer"_s,
                                  u"Stop"_s};
        QTest::newRow("idle, empty fixed container")
            << SXCommandContext{AppStateIdle, 0, true, false, u"MP3"_s, true, true}
            << QStringList{u"Open"_s, u"NewFormat"_s} + neutral + always
            << QStringList{u"CloseTab"_s} << QStringList();
        const QStringList withItems{u"Open"_s,  u"NewFormat"_s, u"CloseTab"_s,    u"Delete"_s,
                                    u"Clear"_s, u"NextRow"_s,   u"PreviousRow"_s, u"Start"_s};
        QTest::newRow("idle, items, nothing selected, closable container")
            << SXCommandContext{AppStateIdle, 2, true, false, u"FLAC"_s, true, true}
            << withItems + neutral + always << QStringList() << QStringList();
        QTest::newRow("adding files, items")
            << SXCommandContext{AppStateLoading, 1, true, false, u"FLAC"_s, true, true}
            << withItems + neutral + always << QStringList() << QStringList();
        QTest::newRow("playing, a row selected, primary not key")
            << SXCommandContext{AppStatePlaying, 1, true, true, u"AAC"_s, true, false}
            << QStringList{u"Open"_s,        u"Delete"_s, u"Clear"_s,     u"NextRow"_s,
                           u"PreviousRow"_s, u"Start"_s,  u"TagEditor"_s, u"FileInfo"_s} +
                   neutral + always
            << QStringList{u"CloseTab"_s} << QStringList{u"NewFormat"_s};
        QTest::newRow("converting: only Stop")
            << SXCommandContext{AppStateConverting, 3, true, true, u"FLAC"_s, true, true}
            << QStringList{u"Stop"_s} + always << QStringList() << QStringList();
        QTest::newRow("primary window closed: New Container only")
            << SXCommandContext{AppStateIdle, 0, true, false, u"MP3"_s, false, false}
            << QStringList{u"NewContainer"_s} + neutral + always << QStringList{u"CloseTab"_s}
            << QStringList{u"NewFormat"_s};
    }

    void menuCommandsFollowTheState() {
        QFETCH(SXCommandContext, context);
        QFETCH(QStringList, enabled);
        QFETCH(QStringList, beeping);
        QFETCH(QStringList, refused);
        // The commands that are enabled, that beep when chosen though greyed out, and that the
        // application's dispatcher refuses before a window sees them.
        QStringList gotEnabled, gotBeeping, gotRefused;
        for (qsizetype i = 0; i < kCommands.size(); ++i) {
            const SXCommandAnswer answer = sxValidateMenuCommand(SXCommand(i), context);
            if (answer.enabled)
                gotEnabled.append(kCommands.at(i));
            if (answer.beep)
                gotBeeping.append(kCommands.at(i));
            if (sxCommandRefused(SXCommand(i), context))
                gotRefused.append(kCommands.at(i));
        }
        gotEnabled.sort();
        enabled.sort();
        QCOMPARE(gotEnabled, enabled);
        QCOMPARE(gotBeeping, beeping);
        QCOMPARE(gotRefused, refused);
        // The Delete and Clear buttons answer as their menu items do.
        QCOMPARE(sxRemoveButtonsEnabled(context.state, context.count),
                 gotEnabled.contains(u"Delete"_s));
    }

    void toolbarFollowsTheRun() {
        // Start needs an item anywhere in the window; the editors need a selected row; a run
        // leaves Start (reading Stop) alone enabled.
        QVERIFY(!sxValidateToolbarCommand(SXCommand::Start, AppStateIdle, 0, false));
        QVERIFY(sxValidateToolbarCommand(SXCommand::Start, AppStateIdle, 1, false));
        QVERIFY(!sxValidateToolbarCommand(SXCommand::TagEditor, AppStateIdle, 1, false));
        QVERIFY(sxValidateToolbarCommand(SXCommand::FileInfo, AppStatePlaying, 1, true));
        QVERIFY(sxValidateToolbarCommand(SXCommand::Help, AppStateIdle, 0, false));
        QVERIFY(sxValidateToolbarCommand(SXCommand::Start, AppStateConverting, 4, true));
        for (SXCommand other :
             {SXCommand::TagEditor, SXCommand::FileInfo, SXCommand::Preferences, SXCommand::Help})
            QVERIFY(!sxValidateToolbarCommand(other, AppStateConverting, 4, true));
        QCOMPARE(sxStartToolbarLook(AppStateConverting).label, u"Stop"_s);
        QCOMPARE(sxStartToolbarLook(AppStatePlaying).label, u"Start"_s);
        QVERIFY(!sxSettingPanelEnabled(AppStateConverting) &&
                sxSettingPanelEnabled(AppStateLoading));
        // The tab bar adds and closes no container during a run, and never closes a fixed one.
        QVERIFY(sxTabCloseButtonShown(AppStatePlaying, true) &&
                !sxTabCloseButtonShown(AppStateIdle, false));
        QVERIFY(!sxTabCloseButtonShown(AppStateConverting, true));
        QVERIFY(sxAddContainerButtonShown(AppStateLoading, true) &&
                !sxAddContainerButtonShown(AppStateConverting, true));
    }

    void rowMenuFollowsTheRowAndTheRun_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<double>("progress");
        QTest::addColumn<bool>("previewing");
        QTest::addColumn<bool>("paused");
        QTest::addColumn<QString>("menu"); // entries in order, "-" before a disabled one
        const QString rest = u" EditTags FileInfo ShowInFiles Remove"_s;
        QTest::newRow("idle") << int(AppStateIdle) << SXProgress::Waiting << false << false
                              << u"Play"_s + rest;
        QTest::newRow("this row plays")
            << int(AppStatePlaying) << 0.0 << true << false << u"Pause"_s + rest;
        QTest::newRow("this row paused")
            << int(AppStatePlaying) << 0.0 << true << true << u"Resume"_s + rest;
        QTest::newRow("another row plays")
            << int(AppStatePlaying) << 0.0 << false << false << u"Play"_s + rest;
        QTest::newRow("adding files") << int(AppStateLoading) << 0.0 << false << false
                                      << u"-Play -EditTags -FileInfo ShowInFiles -Remove"_s;
        QTest::newRow("run, waiting") << int(AppStateConverting) << SXProgress::Waiting << false
                                      << false << u"CancelConversion ShowInFiles"_s;
        QTest::newRow("run, converting") << int(AppStateConverting) << 42.0 << false << false
                                         << u"CancelConversion ShowInFiles"_s;
        for (double ended : {SXProgress::Done, SXProgress::Failed, SXProgress::Canceled})
            QTest::addRow("run, ended %g", ended) << int(AppStateConverting) << ended << false
                                                  << false << u"-CancelConversion ShowInFiles"_s;
    }

    void rowMenuFollowsTheRowAndTheRun() {
        QFETCH(int, state);
        QFETCH(double, progress);
        QFETCH(bool, previewing);
        QFETCH(bool, paused);
        QFETCH(QString, menu);
        // In SXRowCommand's order.
        static const QStringList names =
            u"Play Pause Resume EditTags FileInfo ShowInFiles Remove CancelConversion"_s.split(
                u' ');
        QStringList got;
        for (const SXRowMenuEntry& entry : sxRowMenu({state, progress, previewing, paused}))
            got.append((entry.enabled ? u""_s : u"-"_s) + names.value(int(entry.command)));
        QCOMPARE(got.join(u' '), menu);
    }

    void chooserResultTakesTheSelectionAndKeepsNoLibrary() {
        SXDataEngine* engine = SXDataEngine::shareInstance();
        const SXFormatSettingPtr flac = engine->getFormatWithName(u"FLAC"_s);
        const SXFormatSettingPtr wav = engine->getFormatWithName(u"WAV"_s);
        QVERIFY(flac && wav);
        const SXFormatChooser chooser({flac, wav});
        QCOMPARE(chooser.formatNames(), (QStringList{u"FLAC"_s, u"WAV"_s}));

        QCOMPARE(chooser.changeFormatSelect(u"FLAC"_s).libraryVisible,
                 flac->enumAddToLibrary() != -1);

        const QString rate = flac->arySampleRate().last();
        const SXFormatSettingPtr result = chooser.getFormatSettingResult(
            {u"FLAC"_s, rate, flac->aryBiteRate().first(), flac->aryChannels().first(), true});
        QVERIFY(result && result != flac); // a copy; how copies share is the catalogue's test
        QCOMPARE(result->sampleRate(), rate);
        QCOMPARE(result->enumAddToLibrary(), flac->enumAddToLibrary() == -1 ? -1 : 1);

        // A format without the library option keeps -1 whatever the hidden box says.
        flac->setEnumAddToLibrary(-1);
        const SXFormatSettingPtr none = chooser.getFormatSettingResult(
            {u"FLAC"_s, flac->sampleRate(), flac->bitRate(), flac->channels(), true});
        QCOMPARE(none->enumAddToLibrary(), -1);
        QVERIFY(!chooser.changeFormatSelect(u"FLAC"_s).libraryVisible);
        QVERIFY(!chooser.getFormatSettingResult({u"MP3"_s, {}, {}, {}, false}));
    }

    void helpBarSumsEveryContainerAndStripBarNeverGoesBack() {
        // The hours and the size are written as the locale writes numbers.
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        SXWorkspace workspace;
        workspace.store().setData({}, u"AAC"_s);
        workspace.store().setData({}, u"MP3"_s);
        QCOMPARE(SXWorkspaceTexts::helpBarText(workspace.store()), QString());
        const SXMusicInfoList items =
            madeUpItems(u"MP3"_s, {u"1.wav"_s, u"2.wav"_s, u"3.wav"_s}, 360);
        for (const SXMusicInfoPtr& item : items)
            item->mediaInfo()->setDFileSize(1048576);
        workspace.store().setData(items, u"MP3"_s);
        QCOMPARE(SXWorkspaceTexts::helpBarText(workspace.store()),
                 u"3 files, 0.3 hours, 3.0 MB in 2 containers"_s);
        QCOMPARE(SXWorkspaceTexts::countNoun(1), u"item"_s);
        QCOMPARE(SXWorkspaceTexts::countNoun(0), u"items"_s);

        // The state strip's bar never goes back, and the strip names the preview.
        SXStateStripModel strip;
        QVERIFY(!strip.updateConverterProgress(10)); // hidden while idle: dropped
        strip.updateForAppState(AppStateConverting, nullptr);
        QCOMPARE(strip.look().name, u"Converting..."_s);
        QVERIFY(strip.updateConverterProgress(40));
        QVERIFY(!strip.updateConverterProgress(35));
        // No number (a run over no items once gave 0/0) never reaches the bar's integer.
        QVERIFY(!strip.updateConverterProgress(qQNaN()));
        QVERIFY(!strip.updateConverterProgress(qInf()));
        QCOMPARE(strip.look().progress, 40.0);
        QVERIFY(strip.updateConverterProgress(250));
        QCOMPARE(strip.look().progress, 100.0);
        strip.updateForAppState(AppStateIdle, nullptr);
        QVERIFY(!strip.look().progressShown && strip.look().progress == 0);

        // An untagged item is named by its file; progress of another item is ignored.
        const SXMusicInfoList songs =
            madeUpItems(u"MP3"_s, {u"My Song.flac"_s, u"other.flac"_s}, 125);
        strip.updateForAppState(AppStatePlaying, songs.first());
        QCOMPARE(strip.look().name, u"My Song"_s);
        QCOMPARE(strip.look().musicTime, u"-00:02:05"_s);
        QVERIFY(!strip.musicPlayingProgress(songs.last(), 3));
        QVERIFY(strip.musicPlayingProgress(songs.first(), 25));
        QCOMPARE(strip.look().slider, 20.0);
        // Loading while previewing hides only the slider.
        strip.updateForAppState(AppStateLoading, nullptr);
        QVERIFY(!strip.look().sliderShown && strip.look().nameShown);
        QCOMPARE(strip.playingMusic(), songs.first());
    }

    // The primary window's containers and every container's choices come back in a new workspace
    // that reads them from the settings file; a workspace that does not remember starts from the
    // catalogue, and a stored choice the format no longer offers is ignored.
    void containersAndChoicesSurviveARestart() {
        const QStringList fixed = SXDataEngine::getCanNotRemoveFormatContainer();
        SXDataEngine* engine = SXDataEngine::shareInstance();
        const SXFormatSettingPtr catalogueMp3 = engine->getFormatWithName(u"MP3"_s);
        const QStringList vorbisRates = engine->getFormatWithName(u"Ogg Vorbis"_s)->aryBiteRate();
        QVERIFY(vorbisRates.size() > 1);
        const QStringList expected = fixed + QStringList{u"Ogg Vorbis"_s, u"FLAC"_s};
        {
            SXWorkspace first;
            first.tabs().setRemembersContainers(true);
            first.tabs().addDefaultTabs();
            QCOMPARE(first.store().tabLabels(), fixed);
            for (const QString& name : {u"Ogg Vorbis"_s, u"FLAC"_s, u"WAV"_s})
                first.tabs().addContainerWithFormat(engine->getFormatWithName(name));
            QVERIFY(first.tabs().selectContainer(u"WAV"_s) && first.tabs().closeTab());
            QCOMPARE(first.store().tabLabels(), expected);

            QVERIFY(first.tabs().selectContainer(u"MP3"_s));
            SXSettingPanelActions::setBitRate(first.store(), catalogueMp3->aryBiteRate().first());
            SXSettingPanelActions::setSampleRate(first.store(),
                                                 catalogueMp3->arySampleRate().last());
            SXSettingPanelActions::setChannels(first.store(), catalogueMp3->aryChannels().last());
            SXSettingPanelActions::setReplayGain(first.store(), SXReplayGainMode::Album);
            SXSettingPanelActions::setNormalise(first.store(), true);
            QVERIFY(first.tabs().selectContainer(u"FLAC"_s));
            SXSettingPanelActions::setChannels(first.store(), u"Mono"_s);
            // A name with a blank, which must not become a group of the settings file.
            QVERIFY(first.tabs().selectContainer(u"Ogg Vorbis"_s));
            SXSettingPanelActions::setBitRate(first.store(), vorbisRates.first());
        }
        // On disk, where the next process reads it (this one shares Qt's parsed copy).
        const QSettings onDisk(SXSettings::fileName(), QSettings::IniFormat);
        QVERIFY(onDisk.value(u"SXContainers"_s).toString().contains(u"FLAC"_s));

        SXWorkspace second;
        second.tabs().setRemembersContainers(true);
        second.tabs().addDefaultTabs();
        QCOMPARE(second.store().tabLabels(), expected);
        const SXFormatSettingPtr mp3 = second.store().getFormatSettingForFormatName(u"MP3"_s);
        QCOMPARE(mp3->bitRate(), catalogueMp3->aryBiteRate().first());
        QCOMPARE(mp3->sampleRate(), catalogueMp3->arySampleRate().last());
        QCOMPARE(mp3->channels(), catalogueMp3->aryChannels().last());
        QVERIFY(mp3->replayGain() == SXReplayGainMode::Album && mp3->normalise());
        QCOMPARE(mp3->choices().replayGain, SXReplayGainMode::Album);
        QCOMPARE(second.store().getFormatSettingForFormatName(u"FLAC"_s)->channels(), u"Mono"_s);
        QCOMPARE(second.store().getFormatSettingForFormatName(u"Ogg Vorbis"_s)->bitRate(),
                 vorbisRates.first());
        // The catalogue itself is untouched.
        QCOMPARE(engine->getFormatWithName(u"MP3"_s)->bitRate(), catalogueMp3->bitRate());

        SXWorkspace other;
        other.tabs().addDefaultTabs();
        QCOMPARE(other.store().tabLabels(), fixed);
        QCOMPARE(other.store().getFormatSettingForFormatName(u"MP3"_s)->bitRate(),
                 catalogueMp3->bitRate());

        // Hand-edited or outdated values: an unknown format and a rate nobody offers.
        SXSettings::setValue(u"SXContainers"_s, u"[\"Opus\",\"NoSuchFormat\"]"_s);
        SXSettings::setValue(u"SXContainerChoices/MP3"_s,
                             u"{\"bitRate\":\"7\",\"channels\":\"Mono\"}"_s);
        SXWorkspace third;
        third.tabs().setRemembersContainers(true);
        third.tabs().addDefaultTabs();
        QCOMPARE(third.store().tabLabels(), fixed + QStringList{u"Opus"_s});
        const SXFormatSettingPtr edited = third.store().getFormatSettingForFormatName(u"MP3"_s);
        QCOMPARE(edited->bitRate(), catalogueMp3->bitRate());
        QCOMPARE(edited->channels(), u"Mono"_s);
        // A file from before the loudness options leaves them off.
        QVERIFY(edited->replayGain() == SXReplayGainMode::Off && !edited->normalise());
    }

    void showInFilesAndACancelledStartCreateNothing_data() {
        QTest::addColumn<bool>("stored");    // an output folder was chosen before
        QTest::addColumn<bool>("organized"); // output goes to a folder per format
        QTest::addColumn<bool>("exists");    // that folder is already there
        QTest::newRow("fresh account") << false << true << false;
        QTest::newRow("chosen, organised, not yet made") << true << true << false;
        QTest::newRow("chosen, organised, made") << true << true << true;
        QTest::newRow("chosen, not organised") << true << false << true;
    }

    void showInFilesAndACancelledStartCreateNothing() {
        QFETCH(bool, stored);
        QFETCH(bool, organized);
        QFETCH(bool, exists);
        SonoriaTest::TemporaryHome home;
        QVERIFY(home.isValid());
        const QString chosen = home.processHome() + u"/Out"_s;
        const QString base = stored ? chosen : home.processHome() + u"/Music/Sonoria"_s;
        const QString folder = organized ? base + u"/FLAC"_s : base;
        SXSettings::removeKey(SXSettingsKey::DefaultOutputPath);
        SXSettings::setValue(SXSettingsKey::DefaultSetOrganized, organized);
        if (stored) {
            SXSettings::setValue(SXSettingsKey::DefaultOutputPath, chosen);
            QVERIFY(QDir().mkpath(chosen));
        }
        if (exists)
            QVERIFY(QDir().mkpath(folder));
        const QStringList before = SonoriaTest::filesBelow(home.processHome(), true);

        WorkspaceTestPresenter presenter;
        SXWorkspace workspace;
        prepareWorkspace(workspace, &presenter);
        workspace.tabs().addContainerWithFormat(
            SXDataEngine::shareInstance()->getFormatWithName(u"FLAC"_s));
        QCOMPARE(SXSettingPanelActions::containerOutputFolder(workspace.store()), folder);
        SXSettingPanelActions::revealOutputFolder(workspace.store());
        // A folder not made yet shows its nearest existing parent.
        const QString shown = exists ? folder : stored ? chosen : home.processHome();
        QCOMPARE(presenter.openedFolders, QStringList{shown});

        presenter.folderAnswer.reset(); // the Start dialog is cancelled
        workspace.scheduler().toggleRun();
        QCOMPARE(presenter.folderRequests.size(), 1);
        QCOMPARE(presenter.folderRequests.first().startFolder, base);
        QCOMPARE(workspace.store().enumAppState(), int(AppStateIdle));
        QCOMPARE(SonoriaTest::filesBelow(home.processHome(), true), before);
    }
    // Windows are kept in the order added, duplicates included; the first key window answers.
    void registryKeepsOrderAndDuplicates() {
        SXWindowRegistry registry;
        FakeWindow a, b, c;
        QCOMPARE(registry.keyWindowRecord(), nullptr);
        for (FakeWindow* window : {&a, static_cast<FakeWindow*>(nullptr), &b, &a, &c})
            registry.registerWindow(window);
        QCOMPARE(registry.registeredWindows(), (QList<SXWindowController*>{&a, &b, &a, &c}));
        QCOMPARE(registry.keyWindowRecord(), nullptr);
        c.key = b.key = true;
        QCOMPARE(registry.keyWindowRecord(), &b);
        // The registry is handed out itself, so callers see later changes.
        const QList<SXWindowController*>& live = registry.registeredWindows();
        registry.unregisterWindow(&a);
        registry.unregisterWindow(nullptr);
        QCOMPARE(live, (QList<SXWindowController*>{&b, &c}));
        registry.unregisterWindow(&b);
        QCOMPARE(registry.keyWindowRecord(), &c);
    }
};

SONORIA_TEST_MAIN(TestWindowDecisions)
#include "tst_windowdecisions.moc"
