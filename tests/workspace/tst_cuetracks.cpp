#include "support/TestSupport.h"

#include "framework/MTEAudioFileMgr.h"
#include "model/SXDataEngine.h"
#include "workspace/SXItemRowLook.h"
#include "workspace/SXJobBuilder.h"
#include "workspace/SXWorkspace.h"

#include "WorkspaceTestPresenter.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
constexpr int kRate = 44100;
// The album: 2 s at 440 Hz, 3 s at 880 Hz, 2.5 s at 1760 Hz, one FLAC.
constexpr qint64 kSamples[] = {2 * kRate, 3 * kRate, kRate * 5 / 2};
constexpr double kFrequencies[] = {440, 880, 1760};

// Track 2's pregap (INDEX 00) lies in the first tone and stays with track 1.
QString sheetText(const QString& audio) {
    return uR"(REM DATE 2003
REM GENRE Ambient
PERFORMER "Les Sinus"
TITLE "Trois Tons"
FILE "%1" WAVE
  TRACK 01 AUDIO
    TITLE "Café Noël"
    INDEX 01 00:00:00
  TRACK 02 AUDIO
    TITLE "Élan/Vital"
    INDEX 00 00:01:50
    INDEX 01 00:02:00
  TRACK 03 AUDIO
    TITLE "Fin"
    PERFORMER "Invité"
    INDEX 01 00:05:00
)"_s.arg(audio);
}
const QStringList kTitles{u"Café Noël"_s, u"Élan/Vital"_s, u"Fin"_s};
const QStringList kOutputNames{u"01 Café Noël"_s, u"02 Élan_Vital"_s, u"03 Fin"_s};

} // namespace

class TestCueTracks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        QVERIFY(QDir().mkpath(path(u"album"_s)));
        QVERIFY(SonoriaTest::makeMedia(path(u"album/Trois Tons.flac"_s),
                                       u"aevalsrc=0.5*sin(2*PI*t*if(lt(t\\,2)\\,440\\,"
                                       "if(lt(t\\,5)\\,880\\,1760))):s=44100:d=7.5"_s));
        m_sourceHash = SonoriaTest::fileHash(path(u"album/Trois Tons.flac"_s));
        QVERIFY(SonoriaTest::writeFile(path(u"album/Trois Tons.cue"_s),
                                       "\xEF\xBB\xBF" + sheetText(u"Trois Tons.flac"_s).toUtf8()));
        QVERIFY(SonoriaTest::writeFile(path(u"lost.cue"_s), sheetText(u"gone.flac"_s).toUtf8()));
        QVERIFY(SonoriaTest::run(u"ffmpeg"_s,
                                 {"-v", "error", "-i", path(u"album/Trois Tons.flac"_s), "-c",
                                  "copy", "-metadata", "CUESHEET=" + sheetText(u"whatever.wav"_s),
                                  "-y", path(u"embedded.flac"_s)}) == 0);
    }

    void sheetsAreOfferedTrackByTrack_data() {
        QTest::addColumn<QString>("added");
        QTest::addColumn<QString>("named"); // the rows are "named#01" to "named#03"
        QTest::addColumn<QString>("failure");
        // The folder holds the sheet and its FLAC: only the tracks are listed.
        QTest::newRow("folder, UTF-8 with BOM")
            << u"album"_s << u"album/Trois Tons.cue"_s << QString();
        // How a sheet's encoding is found is the cue sheet's own test (tst_cuesheet).
        QTest::newRow("embedded CUESHEET") << u"embedded.flac"_s << u"embedded.flac"_s << QString();
        QTest::newRow("missing audio")
            << u"lost.cue"_s << u"lost.cue"_s
            << u"The audio file of the cue sheet is missing: gone.flac"_s;
    }

    void sheetsAreOfferedTrackByTrack() {
        QFETCH(QString, added);
        QFETCH(QString, named);
        QFETCH(QString, failure);
        SXWorkspace workspace;
        prepare(workspace);
        SXMusicInfoList failed;
        QVERIFY(addFiles(workspace, u"FLAC"_s, {path(added)}, &failed));
        const SXMusicInfoList rows = workspace.store().getDataForFormat(u"FLAC"_s);
        if (!failure.isEmpty()) {
            QVERIFY(rows.isEmpty());
            QCOMPARE(failed.size(), 1);
            QCOMPARE(failed.first()->strFilePath(), path(named));
            QCOMPARE(failed.first()->mediaInfo()->failReason(), failure);
            return;
        }
        QVERIFY(failed.isEmpty());
        QCOMPARE(rows.size(), 3);
        for (int i = 0; i < 3; ++i) {
            const SXMusicInfoPtr& row = rows.at(i);
            QCOMPARE(row->strFilePath(), path(named) + u"#0%1"_s.arg(i + 1));
            QCOMPARE(row->mediaInfo()->duration(), double(kSamples[i]) / kRate);
            QCOMPARE(row->mediaInfo()->strOutFileName(), kOutputNames.at(i));
            QCOMPARE(SXItemRowLookRules::textsForItem(row).name,
                     u"0%1 %2"_s.arg(i + 1).arg(kTitles.at(i)));
            const std::shared_ptr<MTEAudioFile> tags = row->metHandler();
            QVERIFY(tags);
            QCOMPARE(tags->title(), kTitles.at(i));
            QCOMPARE(tags->artist(), i == 2 ? u"Invité"_s : u"Les Sinus"_s);
            QCOMPARE(tags->album(), u"Trois Tons"_s);
        }
        // Dragged to another window, a row stays the same track.
        bool ok = false;
        const SXMusicInfoList moved =
            SXMusicInfo::unarchiveItems(SXMusicInfo::archiveItems(rows), &ok);
        QVERIFY(ok);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(moved.at(i)->mediaInfo()->cueTrack(), rows.at(i)->mediaInfo()->cueTrack());
        // Added again, nothing new is listed.
        QVERIFY(addFiles(workspace, u"FLAC"_s, {path(added)}, &failed));
        QCOMPARE(workspace.store().getDataForFormat(u"FLAC"_s).size(), 3);
    }

    void eachTrackIsConvertedToExactlyItsRange_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("extension");
        QTest::newRow("FLAC") << u"FLAC"_s << u"flac"_s;
        QTest::newRow("WAV") << u"WAV"_s << u"wav"_s;
    }

    void eachTrackIsConvertedToExactlyItsRange() {
        QFETCH(QString, format);
        QFETCH(QString, extension);
        SXWorkspace workspace;
        prepare(workspace);
        SXMusicInfoList failed;
        QVERIFY(addFiles(workspace, format, {path(u"album/Trois Tons.cue"_s)}, &failed));
        QVERIFY(failed.isEmpty());
        const QString folder = path(u"out-"_s + format);
        QVERIFY(!runInto(workspace, folder).isEmpty());

        QDir written(folder + u'/' + format);
        QStringList expected;
        for (const QString& name : kOutputNames)
            expected.append(name + u'.' + extension);
        QCOMPARE(written.entryList(QDir::Files, QDir::Name), expected);
        for (int i = 0; i < 3; ++i) {
            const QString output = written.filePath(expected.at(i));
            // The output decoded to mono 16-bit samples at its own rate.
            const QString raw = path(u"decoded.raw"_s);
            QCOMPARE(SonoriaTest::run(u"ffmpeg"_s, {"-v", "error", "-i", output, "-ac", "1", "-f",
                                                    "s16le", "-y", raw}),
                     0);
            const QByteArray bytes = SonoriaTest::readFile(raw);
            QList<qint16> samples(bytes.size() / 2);
            qFromLittleEndian<qint16>(bytes.constData(), samples.size(), samples.data());
            QCOMPARE(samples.size(), kSamples[i]);
            // The tone's frequency from its sign changes.
            int changes = 0;
            for (qsizetype s = 1; s < samples.size(); ++s)
                changes += (samples[s - 1] < 0) != (samples[s] < 0);
            const double frequency = changes / 2.0 / (double(samples.size()) / kRate);
            QVERIFY2(std::abs(frequency - kFrequencies[i]) < kFrequencies[i] * 0.01,
                     qPrintable(u"%1: %2 Hz"_s.arg(expected.at(i)).arg(frequency)));
            const auto tags = MTEAudioFileMgr::createAudioFileWithPath(output, true);
            QVERIFY(tags);
            QCOMPARE(
                (QStringList{tags->title(), tags->artist(), tags->album(), tags->albumArtist(),
                             tags->track(), tags->date(), tags->genre()}),
                (QStringList{kTitles.at(i), i == 2 ? u"Invité"_s : u"Les Sinus"_s, u"Trois Tons"_s,
                             u"Les Sinus"_s, u"%1/3"_s.arg(i + 1), u"2003"_s, u"Ambient"_s}));
        }
        QCOMPARE(SonoriaTest::fileHash(path(u"album/Trois Tons.flac"_s)), m_sourceHash);
    }

    // A sheet's title is nobody's file name yet: a long one is cut to what a file system takes,
    // with room left for the extension and a counter, at a whole character.
    void aLongTitleStillMakesAFileName() {
        SXCueTrack track;
        track.number = 4;
        track.title = QString(200, u'é');
        track.file = path(u"three tones.flac"_s);
        track.sheet = path(u"album.cue"_s);
        const SXFormatSettingPtr mp3 = SXDataEngine::shareInstance()->getFormatWithName(u"MP3"_s);
        const QString name =
            SXJobBuilder::relativeOutput(*SXMusicInfo::newForCueTrack(track, u"MP3"_s), *mp3);
        QVERIFY(name.startsWith(u"04 éé"_s));
        QVERIFY2(name.toUtf8().size() + 4 + 7 <= 255, qPrintable(name));
        QVERIFY(!name.contains(QChar::ReplacementCharacter));
    }

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }
    // A workspace with a FLAC and a WAV container besides the fixed ones.
    void prepare(SXWorkspace& workspace) {
        prepareWorkspace(workspace, &m_presenter);
        for (const QString& format : {u"FLAC"_s, u"WAV"_s}) {
            m_presenter.formatAnswer = format;
            workspace.tabs().addContainer();
        }
    }

    QTemporaryDir m_dir;
    QByteArray m_sourceHash;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_TEST_MAIN(TestCueTracks)
#include "tst_cuetracks.moc"
