#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "framework/MTEAudioFileMgr.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXItemRowLook.h"
#include "workspace/SXLoudnessSurvey.h"
#include "workspace/SXSettingPanelActions.h"
#include "workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

using SonoriaTest::filesBelow;

namespace {
// Every file and folder below `dir` as filesBelow lists them, each file with what identifies it
// (inode and modification time): a file renamed or written again reads differently.
QStringList treeWithIdentity(const QString& dir) {
    QStringList entries = filesBelow(dir, true);
    for (QString& entry : entries) {
        struct stat status {};
        if (::stat(QFile::encodeName(dir + u'/' + entry).constData(), &status) == 0 &&
            S_ISREG(status.st_mode))
            entry += u" %1 %2.%3"_s.arg(status.st_ino)
                         .arg(status.st_mtim.tv_sec)
                         .arg(status.st_mtim.tv_nsec);
    }
    return entries;
}
} // namespace

// What a run makes of a container's choices: its outputs' names and folders, what becomes of
// outputs that exist, and loudness (which items form an album, and a Stop that comes while the
// sources are still being measured).
class TestRunOutputs : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_sources.isValid() && m_outputs.isValid());
        for (const QString& folder :
             {u"Incoming/A"_s, u"Incoming/B/C"_s, u"loose"_s, u"one"_s, u"two"_s})
            QVERIFY(QDir().mkpath(in(folder)));
        QVERIFY(SonoriaTest::makeTone(in(u"Incoming/A/x.flac"_s), 1.0,
                                      {"-metadata", "artist=Nina", "-metadata", "album=Live",
                                       "-metadata", "track=1", "-metadata", "title=One"}));
        QVERIFY(SonoriaTest::makeTone(in(u"Incoming/B/x.flac"_s), 1.0));
        QVERIFY(SonoriaTest::makeTone(in(u"Incoming/B/C/y.flac"_s), 1.0,
                                      {"-metadata", "artist=.hidden/dir"}));
        QVERIFY(SonoriaTest::makeTone(in(u"loose/p.flac"_s), 1.0));
        QVERIFY(SonoriaTest::makeTone(in(u"loose/q.flac"_s), 1.0));
    }

    void init() {
        SXSettings::removeKey(SXSettingsKey::ExistingOutputs);
        SXSettings::setValue(SXSettingsKey::MaxTask, 2);
        m_presenter = WorkspaceTestPresenter();
    }

    // Incoming/A/x.flac and Incoming/B/x.flac land in A/… and B/… below the output folder, named
    // from their tags; a run over the same outputs converts, renames and writes nothing.
    void patternAndMirrorMakeTheTreeAndASecondRunSkipsIt() {
        SXWorkspace workspace;
        QCOMPARE(setUp(workspace, {in(u"Incoming"_s)}, u"{artist}/{track:02} {title}"_s, true), 3);
        QCOMPARE(SXSettingPanelActions::namePreview(workspace.store()), u"A/Nina/01 One.mp3"_s);
        const QString folder = out(u"mirrored"_s);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        const QStringList tree = u"A|A/Nina|A/Nina/01 One.mp3|B|B/C|B/C/_hidden_dir|"
                                 "B/C/_hidden_dir/Unknown Track y.mp3|B/Unknown Artist|"
                                 "B/Unknown Artist/Unknown Track x.mp3"_s.split(u'|');
        QCOMPARE(filesBelow(folder, true), tree);
        const QStringList before = treeWithIdentity(folder);

        QSignalSpy done(&workspace.scheduler(), &SXWorkspaceScheduler::itemFinished);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        QCOMPARE(treeWithIdentity(folder), before);
        QTRY_COMPARE(done.size(), 3);
        for (const QList<QVariant>& finished : std::as_const(done)) {
            const auto item = finished.at(0).value<SXMusicInfoPtr>();
            QCOMPARE(item->mediaInfo()->eumCvtState(), int(CvtStateFinished));
            QVERIFY(item->mediaInfo()->alreadyConverted());
            // The row says so: its state and its tool tip.
            QCOMPARE(SXItemRowLookRules::rowLook(workspace.store(), item, false, false, true)
                         .state.toolTip,
                     u"already converted"_s);
            QVERIFY(SXFailureTexts::rowToolTip(*item).contains(u"Already converted"_s));
            QVERIFY(before.join(u'\n').contains(
                QDir(folder).relativeFilePath(finished.at(1).toString())));
        }
    }

    // Two items planning the same name: the second is numbered, and on the next run the first
    // one's output is not taken for the second one's result. Then, named by their files beside
    // the user's own q.mp3: "Keep both" numbers every output, "Replace" replaces only our own.
    void sharedNamesKeepBothAndReplace() {
        SXWorkspace workspace;
        QCOMPARE(
            setUp(workspace, {in(u"loose/p.flac"_s), in(u"loose/q.flac"_s)}, u"{album}"_s, false),
            2);
        QString folder = out(u"shared"_s);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        QCOMPARE(filesBelow(folder, true), u"Unknown Album(1).mp3|Unknown Album.mp3"_s.split(u'|'));
        QVERIFY(!runInto(workspace, folder).isEmpty());
        QCOMPARE(filesBelow(folder, true),
                 u"Unknown Album(1).mp3|Unknown Album(2).mp3|Unknown Album.mp3"_s.split(u'|'));
        const SXMusicInfoList items = workspace.store().getDataForFormat(u"MP3"_s);
        QVERIFY(items.first()->mediaInfo()->alreadyConverted());
        QVERIFY(!items.last()->mediaInfo()->alreadyConverted());

        SXSettingPanelActions::setNamePattern(workspace.store(), u"{filename}"_s);
        folder = out(u"both"_s);
        // q.mp3 is the user's own file (whole audio, newer than the source): never ours to replace.
        QVERIFY(QDir().mkpath(folder) && SonoriaTest::makeTone(folder + u"/q.mp3"_s, 1.0));
        const QByteArray users = SonoriaTest::readFile(folder + u"/q.mp3"_s);
        SXSettings::setValue(SXSettingsKey::ExistingOutputs, u"both"_s);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        QVERIFY(!runInto(workspace, folder).isEmpty());
        QCOMPARE(filesBelow(folder, true), u"p(1).mp3 p.mp3 q(1).mp3 q(2).mp3 q.mp3"_s.split(u' '));

        SXSettings::setValue(SXSettingsKey::ExistingOutputs, u"replace"_s);
        const QStringList before = treeWithIdentity(folder);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        const QStringList after = treeWithIdentity(folder);
        // p.mp3 got a new file under its name; the user's q.mp3 stayed, and q's output went to the
        // next free name.
        QCOMPARE(filesBelow(folder, true),
                 u"p(1).mp3 p.mp3 q(1).mp3 q(2).mp3 q(3).mp3 q.mp3"_s.split(u' '));
        QVERIFY(!after.contains(before.filter(u"p.mp3 "_s).first()));
        QVERIFY(after.contains(before.filter(u"p(1).mp3 "_s).first()));
        QCOMPARE(SonoriaTest::readFile(folder + u"/q.mp3"_s), users);
        QCOMPARE(workspace.store().getDataForFormat(u"MP3"_s).first()->mediaInfo()->eumCvtState(),
                 int(CvtStateFinished));
    }

    // The new output is whole before it takes the old one's name: when the conversion fails the old
    // output is still there byte for byte, and a folder made for a failed output is gone again.
    void replaceKeepsTheOldOutputWhenTheConversionFails() {
        QTemporaryDir sources;
        const QString good = sources.filePath(u"r.flac"_s);
        const QString deep = sources.filePath(u"tree/Deep/z.flac"_s);
        QVERIFY(QDir().mkpath(QFileInfo(deep).path()));
        QVERIFY(SonoriaTest::makeTone(good, 1.0) && SonoriaTest::makeTone(deep, 1.0));
        SXWorkspace workspace;
        QCOMPARE(setUp(workspace, {good}, u"{filename}"_s, true), 1);
        const QString folder = out(u"replace"_s);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        const QByteArray old = SonoriaTest::readFile(folder + u"/r.mp3"_s);
        QVERIFY(!old.isEmpty());

        QVERIFY(addFiles(workspace, {sources.filePath(u"tree"_s)}));
        // Both sources now promise audio and hold none.
        QVERIFY(SonoriaTest::cutFlacAfterMetadata(good) && SonoriaTest::cutFlacAfterMetadata(deep));
        SXSettings::setValue(SXSettingsKey::ExistingOutputs, u"replace"_s);
        QVERIFY(!runInto(workspace, folder).isEmpty());
        for (const SXMusicInfoPtr& item : workspace.store().getDataForFormat(u"MP3"_s))
            QCOMPARE(item->mediaInfo()->eumCvtState(), int(CvtStateFailed));
        QCOMPARE(filesBelow(folder, true), QStringList{u"r.mp3"_s});
        QCOMPARE(SonoriaTest::readFile(folder + u"/r.mp3"_s), old);
    }

    void albumKeys_data() {
        QTest::addColumn<QStringList>("first");  // folder, album, album artist, container
        QTest::addColumn<QStringList>("second"); // the same for the other item
        QTest::addColumn<bool>("sameAlbum");
        // Each item as "folder album artist container", "-" for a tag it does not have.
        const auto row = [](const char* name, const char* first, const char* second, bool same) {
            const auto fields = [](const char* text) {
                return QString::fromLatin1(text).split(u' ').replaceInStrings(u"-"_s, QString());
            };
            QTest::newRow(name) << fields(first) << fields(second) << same;
        };
        row("same tags, other folders", "one A X MP3", "two A X MP3", true);
        row("same album, other album artist", "one A X MP3", "one A Y MP3", false);
        row("no album, one folder", "one - - MP3", "one - - MP3", true);
        row("no album, two folders", "one - - MP3", "two - - MP3", false);
        row("same album, other containers", "one A X MP3", "one A X FLAC", false);
    }

    void albumKeys() {
        QFETCH(QStringList, first);
        QFETCH(QStringList, second);
        QFETCH(bool, sameAlbum);
        QStringList keys;
        for (const QStringList& fields : {first, second}) {
            const QString path = in(
                u"%1/%2-%3.flac"_s.arg(fields.at(0)).arg(keys.size()).arg(QTest::currentDataTag()));
            QStringList tags;
            if (!fields.at(1).isEmpty())
                tags << u"-metadata"_s << u"album=%1"_s.arg(fields.at(1)) << u"-metadata"_s
                     << u"album_artist=%1"_s.arg(fields.at(2));
            QVERIFY(SonoriaTest::makeTone(path, 0.2, tags));
            const SXMusicInfoPtr music = SXMusicInfo::newForSource(path, fields.at(3));
            music->setMetHandler(MTEAudioFileMgr::createAudioFileWithPath(path, true));
            keys.append(SXLoudnessSurvey::albumKey(*music, fields.at(3)));
        }
        QCOMPARE(keys.first() == keys.last(), sameAlbum);
    }

    // Stop before the meters are done: every item ends cancelled, no child starts, no file is
    // written, and the run still ends with its summary.
    void stopWhileMeasuring() {
        QStringList sources;
        for (int i = 0; i < 3; ++i) {
            sources.append(in(u"long%1.flac"_s.arg(i)));
            QVERIFY(SonoriaTest::makeMedia(sources.last(),
                                           u"sine=frequency=300:duration=600:sample_rate=48000"_s,
                                           {u"-ac"_s, u"2"_s}));
        }
        SXWorkspace workspace;
        prepareWorkspace(workspace, &m_presenter);
        QVERIFY(workspace.tabs().selectContainer(u"MP3"_s));
        SXSettingPanelActions::setReplayGain(workspace.store(), SXReplayGainMode::Album);
        QVERIFY(addFiles(workspace, sources));

        const QString folder = out(u"measured"_s);
        LogCapture log;
        QSignalSpy finished(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished);
        QVERIFY(workspace.scheduler().doRealConverterTask(folder));
        QCOMPARE(workspace.store().enumAppState(), int(AppStateConverting));
        workspace.scheduler().toggleRun();
        QVERIFY(finished.wait(60000));
        QCOMPARE(finished.first().at(1).toInt(), 0);
        for (const SXMusicInfoPtr& item : workspace.store().getDataForFormat(u"MP3"_s)) {
            QCOMPARE(item->mediaInfo()->eumCvtState(), int(CvtStateCanceled));
            QCOMPARE(item->dConvertProgress(), double(SXProgress::Canceled));
        }
        QCOMPARE(QDir(folder + u"/MP3"_s).entryList(QDir::Files | QDir::Hidden), QStringList());
        QCOMPARE(log.lines().filter(u"measuring the loudness of 3 sources"_s).size(), 1);
        QCOMPARE(log.lines().filter(u"args:"_s), QStringList());
        SXSettings::removeKey(u"SXContainerChoices/MP3"_s);
    }

private:
    // A workspace whose MP3 container holds what `paths` add, named by `pattern`; the number of
    // items, or -1.
    int setUp(SXWorkspace& workspace, const QStringList& paths, const QString& pattern,
              bool mirror) {
        prepareWorkspace(workspace, &m_presenter);
        if (!workspace.tabs().selectContainer(u"MP3"_s))
            return -1;
        SXSettingPanelActions::setNamePattern(workspace.store(), pattern);
        SXSettingPanelActions::setMirrorFolders(workspace.store(), mirror);
        if (!addFiles(workspace, paths))
            return -1;
        workspace.scheduler().setOrganizeByFormat(false);
        return int(workspace.store().getDataForFormat(u"MP3"_s).size());
    }

    QString in(const QString& name) const { return m_sources.filePath(name); }
    QString out(const QString& name) const { return m_outputs.filePath(name); }

    QTemporaryDir m_sources;
    QTemporaryDir m_outputs;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_TEST_MAIN(TestRunOutputs)
#include "tst_runoutputs.moc"
