#include "support/TestSupport.h"

#include "framework/SXCueSheet.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {
// A sheet of three tracks in one file; track 2 has a pregap, track 3 a performer of its own.
const QString kSheet = uR"(REM GENRE "Jazz Rock"
REM DATE 1999
PERFORMER "The Band"
TITLE "Café Noël"
FILE "album.flac" WAVE
  TRACK 01 AUDIO
    TITLE "Opening"
    INDEX 01 00:00:00
  TRACK 02 AUDIO
    TITLE "Élan"
    INDEX 00 00:01:50
    INDEX 01 00:02:00
  TRACK 03 AUDIO
    TITLE "Coda"
    PERFORMER "A Guest"
    INDEX 01 01:00:10)"_s;

// `text` in an 8-bit encoding, as iconv writes it.
QByteArray eightBit(const QString& text, const char* encoding) {
    const QString file =
        QDir::tempPath() + u"/cue-encoding-%1"_s.arg(QCoreApplication::applicationPid());
    SonoriaTest::writeFile(file, text.toUtf8());
    SonoriaTest::run(u"iconv"_s, {"-f", "UTF-8", "-t", encoding, "-o", file + ".out", file});
    const QByteArray bytes = SonoriaTest::readFile(file + ".out");
    QFile::remove(file);
    QFile::remove(file + ".out");
    return bytes;
}
} // namespace

class TestCueSheet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tracksRunFromIndexOneToTheNext() {
        const SXCueSheetResult sheet = SXCueSheet::parse(kSheet, u"/music/album.cue"_s);
        QVERIFY2(sheet.error.isEmpty(), qPrintable(sheet.error));
        QCOMPARE(sheet.tracks.size(), 3);
        // "number/total title, performer, frames start to end": the pregap of track 2 (00:01:50
        // to 00:02:00) stays with track 1; the last runs to the end. Every track carries the
        // sheet's album fields and the audio's full path.
        QStringList tracks;
        for (const SXCueTrack& track : sheet.tracks) {
            tracks << u"%1/%2 %3, %4, frames %5 to %6"_s.arg(track.number)
                          .arg(track.total)
                          .arg(track.title, track.performer)
                          .arg(track.startFrame)
                          .arg(track.endFrame);
            QCOMPARE((QStringList{track.album, track.albumPerformer, track.date, track.genre,
                                  track.file}),
                     (QStringList{u"Café Noël"_s, u"The Band"_s, u"1999"_s, u"Jazz Rock"_s,
                                  u"/music/album.flac"_s}));
        }
        QCOMPARE(tracks, (QStringList{u"1/3 Opening, The Band, frames 0 to 150"_s,
                                      u"2/3 Élan, The Band, frames 150 to 4510"_s,
                                      u"3/3 Coda, A Guest, frames 4510 to -1"_s}));
        QCOMPARE(sheet.tracks.at(1).identity(), u"/music/album.cue#02"_s);
        QCOMPARE(sheet.tracks.at(1).seconds(100.0), 4360.0 / 75);
        QCOMPARE(sheet.tracks.at(2).seconds(100.0), 100.0 - 4510.0 / 75);
        // In samples, track 2 runs from frame 150 to 4510 at any rate; the last has no end.
        for (const auto& [rate, start, end] : {std::tuple{44100.0, 88200, 2651880},
                                               {48000.0, 96000, 2886400},
                                               {96000.0, 192000, 5772800}}) {
            QCOMPARE(sheet.tracks.at(1).startSample(rate), qint64(start));
            QCOMPARE(sheet.tracks.at(1).endSample(rate), qint64(end));
            QCOMPARE(sheet.tracks.at(2).endSample(rate), qint64(-1));
        }

        // Not a sheet at all, and tracks out of order, are refused with a reason.
        QVERIFY(!SXCueSheet::parse(u"hello world"_s, u"/x.cue"_s).error.isEmpty());
        QString backwards = kSheet;
        backwards.replace(u"INDEX 01 01:00:10"_s, u"INDEX 01 00:01:00"_s);
        const SXCueSheetResult refused = SXCueSheet::parse(backwards, u"/x.cue"_s);
        QVERIFY(refused.tracks.isEmpty());
        QVERIFY(refused.error.contains(u"Track 2"_s));
    }
    void decodesEveryEncoding_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("album");
        QTest::addColumn<QString>("title");
        const QString russian = QString(kSheet)
                                    .replace(u"Café Noël"_s, u"Кино"_s)
                                    .replace(u"Élan"_s, u"Группа крови"_s)
                                    .replace(u"Opening"_s, u"Звезда по имени Солнце"_s);
        QTest::newRow("UTF-8 with BOM")
            << QByteArray("\xEF\xBB\xBF") + kSheet.toUtf8() << u"Café Noël"_s << u"Élan"_s;
        QTest::newRow("UTF-8") << kSheet.toUtf8() << u"Café Noël"_s << u"Élan"_s;
        QTest::newRow("Windows-1252 with CRLF")
            << eightBit(kSheet, "WINDOWS-1252").replace("\n", "\r\n") + "\r\n"
            << u"Café Noël"_s << u"Élan"_s;
        QTest::newRow("Windows-1251")
            << eightBit(russian, "WINDOWS-1251") << u"Кино"_s << u"Группа крови"_s;
    }
    void decodesEveryEncoding() {
        QFETCH(QByteArray, bytes);
        const QString text = SXCueSheet::decode(bytes);
        QVERIFY(!text.startsWith(QChar(0xFEFF)));
        const SXCueSheetResult sheet = SXCueSheet::parse(text, u"/music/album.cue"_s);
        QCOMPARE(sheet.tracks.size(), 3);
        QTEST(sheet.tracks.at(0).album, "album");
        QTEST(sheet.tracks.at(1).title, "title");
    }
    void readFindsTheAudioOrSaysWhatIsMissing() {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString sheetPath = dir.filePath(u"album.cue"_s);
        QVERIFY(SonoriaTest::writeFile(sheetPath, kSheet.toUtf8()));
        const SXCueSheetResult missing = SXCueSheet::read(sheetPath);
        QVERIFY(missing.tracks.isEmpty());
        QCOMPARE(missing.error, u"The audio file of the cue sheet is missing: album.flac"_s);

        // The sheet names a FLAC; the audio was kept as WAV: it is found under its other name.
        QVERIFY(SonoriaTest::makeTone(dir.filePath(u"album.wav"_s), 1.0));
        const SXCueSheetResult found = SXCueSheet::read(sheetPath);
        QVERIFY2(found.error.isEmpty(), qPrintable(found.error));
        QCOMPARE(found.tracks.size(), 3);
        QCOMPARE(found.tracks.at(2).file, dir.filePath(u"album.wav"_s));
        QVERIFY(!SXCueSheet::read(dir.filePath(u"none.cue"_s)).error.isEmpty());

        // A sheet embedded in a file's tags names that file itself.
        const QString tagged = dir.filePath(u"tagged.flac"_s);
        QVERIFY(SonoriaTest::makeTone(tagged, 2.0, {"-metadata", "CUESHEET=" + kSheet}));
        const SXCueSheetResult sheet = SXCueSheet::embedded(tagged);
        QCOMPARE(sheet.tracks.size(), 3);
        for (const SXCueTrack& track : sheet.tracks) {
            QCOMPARE(track.file, tagged);
            QCOMPARE(track.sheet, tagged);
        }
        QCOMPARE(sheet.tracks.at(1).title, u"Élan"_s);

        const QString plain = dir.filePath(u"plain.flac"_s);
        QVERIFY(SonoriaTest::makeTone(plain, 1.0));
        QVERIFY(SXCueSheet::embedded(plain).tracks.isEmpty());
    }
};

SONORIA_TEST_MAIN(TestCueSheet)
#include "tst_cuesheet.moc"
