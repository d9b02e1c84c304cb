#include "framework/MTEAudioFileMgr.h"
#include "framework/MTETagCopy.h"
#include "framework/MTETagReport.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QTemporaryDir>

#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

using namespace Qt::StringLiterals;
using Edits = QMap<QString, QString>;

// Each source family (Xiph comments, ID3v2, MP4 atoms) converted to each output kind the way a
// run does it (ffmpeg writes the audio, the tag copy the tags), then the report read back: what
// it calls lost, changed and kept must be what the file on disk shows, with the reason a user
// can act on, and every reason only where it applies.
class TestTagReport : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QByteArray m_cover;

    static bool tagSource(const QString& path, const QByteArray& cover) {
        {
            TagLib::FileRef ref(QFile::encodeName(path).constData());
            if (ref.isNull())
                return false;
            TagLib::PropertyMap properties;
            const char* const fields[][2] = {{"TITLE", "Título — 東京"}, {"ARTIST", "The Artist"},
                                             {"ALBUM", "The Album"},     {"DATE", "2019-05-04"},
                                             {"TRACKNUMBER", "3"},       {"GENRE", "Jazz"},
                                             {"LYRICS", "la la la"},     {"BPM", "120"}};
            for (const auto& [key, value] : fields)
                properties.insert(key, TagLib::String(value, TagLib::String::UTF8));
            ref.file()->setProperties(properties);
            if (!ref.save())
                return false;
        }
        const auto handle = MTEAudioFileMgr::createAudioFileWithPath(path, true);
        if (!handle)
            return false;
        handle->setAlbumImg({{cover, u"image/png"_s}});
        return handle->saveNew(path);
    }

    // The output as a run leaves it: audio without tags from ffmpeg, then the source's tags.
    static QString convert(const QString& source, const QString& folder, const QString& kind) {
        const QStringList parts = kind.split(u':');
        const QString output = folder + u"/out."_s + parts.first();
        const QStringList args{
            u"-nostdin"_s, u"-loglevel"_s, u"error"_s,         u"-y"_s, u"-i"_s,   source,
            u"-map"_s,     u"0:a"_s,       u"-map_metadata"_s, u"-1"_s, u"-c:a"_s, parts.last(),
            output};
        if (SonoriaTest::run(u"ffmpeg"_s, args) != 0)
            return {};
        const auto from = MTEAudioFileMgr::createAudioFileWithPath(source, true);
        if (const auto to = MTEAudioFileMgr::createAudioFileWithPath(output, true))
            MTETagCopy::copy(from.get(), *to, output);
        return output;
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        const QString cover = m_dir.filePath(u"cover.png"_s);
        QVERIFY(SonoriaTest::makeMedia(cover, u"color=c=blue:s=16x16"_s, {u"-frames:v"_s, u"1"_s}));
        m_cover = SonoriaTest::readFile(cover);
    }

    void reportMatchesTheOutput_data() {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QStringList>("lost"); // reasons of the dropped fields
        QTest::addColumn<Edits>("edits");      // what the tag editor asked for
        QTest::addColumn<QStringList>("changed");
        // Each kind as "extension:encoder".
        const QStringList sources{u"flac:flac"_s, u"mp3:libmp3lame"_s, u"m4a:aac"_s};
        const QStringList outputs{u"mp3:libmp3lame"_s, u"m4a:aac"_s,      u"flac:flac"_s,
                                  u"ogg:libvorbis"_s,  u"opus:libopus"_s, u"wav:pcm_s16le"_s,
                                  u"wma:wmav2"_s,      u"ac3:ac3"_s};
        for (const QString& source : sources) {
            for (const QString& output : outputs) {
                // AC3 loses every field and the cover: title, artist, album, date, track, genre,
                // lyrics, BPM.
                const QStringList lost = output.startsWith(u"ac3:"_s)
                                             ? QStringList(9, u"AC3 files hold no tags"_s)
                                             : QStringList();
                QTest::addRow("%s-to-%s", qPrintable(source.section(u':', 0, 0)),
                              qPrintable(output.section(u':', 0, 0)))
                    << source << output << lost << Edits() << QStringList();
            }
        }
        // What the tag editor asked for is what counts: a removed field is not "lost", an edited
        // one must arrive as edited.
        QTest::newRow("flac-to-ogg, edited")
            << u"flac:flac"_s << u"ogg:libvorbis"_s << QStringList()
            << Edits{{u"LYRICS"_s, QString()}, {u"TITLE"_s, u"New"_s}}
            << QStringList{u"Title: written as “Título — 東京”"_s};
    }

    void reportMatchesTheOutput() {
        QFETCH(QString, source);
        QFETCH(QString, output);
        QFETCH(QStringList, lost);
        QFETCH(Edits, edits);
        const QString tag = QString::fromUtf8(QTest::currentDataTag());
        const QString folder = m_dir.filePath(tag);
        QVERIFY(QDir().mkpath(folder));
        const QStringList from = source.split(u':');
        const QString sourcePath = folder + u"/song."_s + from.first();
        QVERIFY(SonoriaTest::makeTone(sourcePath, 1.0, {u"-c:a"_s, from.last()}));
        QVERIFY(tagSource(sourcePath, m_cover));
        const QString outputPath = convert(sourcePath, folder, output);
        QVERIFY(QFileInfo(outputPath).isFile());

        const MTETagReport report = MTETagReport::compare(sourcePath, outputPath, edits);
        QStringList lostReasons;
        for (const MTETagReport::Entry& entry : report.dropped)
            lostReasons.append(entry.reason);
        QCOMPARE(lostReasons, lost);
        // Every kind that holds tags keeps each field as it was, the full date included.
        QTEST(report.lines().mid(0, report.changed.size()), "changed");
        QCOMPARE(report.lostAnything(), !lost.isEmpty());
        // What the report calls kept is on disk with the source's value.
        const auto written = MTEAudioFileMgr::createAudioFileWithPath(outputPath, true);
        for (const MTETagReport::Entry& entry : report.kept) {
            if (entry.field == u"TITLE"_s)
                QCOMPARE(written->title(), entry.before);
        }
        QCOMPARE(report.kept.size() + report.changed.size() + report.dropped.size(),
                 9 - edits.keys(QString()).size());
    }
};

SONORIA_TEST_MAIN(TestTagReport)
#include "tst_tagreport.moc"
