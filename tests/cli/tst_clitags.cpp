#include "support/TestSupport.h"

#include <QTemporaryDir>

#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

using namespace Qt::StringLiterals;

// What the command line says of tags that did not arrive: --check-tags on any two files, and the
// lost fields named per file after a run.
class TestCliTags : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_source;

    static int runCli(const QStringList& arguments, QString* out) {
        const SonoriaTest::RunResult result = SonoriaTest::runCli(arguments);
        *out = result.out;
        return result.exitCode;
    }

    QString encode(const QString& extension, const QString& codec) const {
        const QString path = m_dir.filePath(u"by-ffmpeg."_s + extension);
        const int code = SonoriaTest::run(
            u"ffmpeg"_s, {u"-nostdin"_s, u"-loglevel"_s, u"error"_s, u"-y"_s, u"-i"_s, m_source,
                          u"-map_metadata"_s, u"0"_s, u"-c:a"_s, codec, path});
        return code == 0 ? path : QString();
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        m_source = m_dir.filePath(u"song.flac"_s);
        QVERIFY(SonoriaTest::makeTone(m_source, 1.0));
        TagLib::FileRef ref(QFile::encodeName(m_source).constData());
        QVERIFY(!ref.isNull());
        TagLib::PropertyMap properties;
        properties.insert("TITLE", TagLib::String("Morning", TagLib::String::UTF8));
        properties.insert("LYRICS", TagLib::String("la la", TagLib::String::UTF8));
        ref.file()->setProperties(properties);
        QVERIFY(ref.save());
    }

    void checkTagsExitsOneOnlyWhenSomethingWasLost() {
        QString out;
        // ffmpeg copies Vorbis comments into Ogg: nothing lost.
        QCOMPARE(runCli({u"--check-tags"_s, m_source, encode(u"ogg"_s, u"libvorbis"_s)}, &out), 0);
        QVERIFY2(out.contains(u"kept     Title"_s) && !out.contains(u"lost"_s), qPrintable(out));
        // AC3 holds no tags at all.
        QCOMPARE(runCli({u"--check-tags"_s, m_source, encode(u"ac3"_s, u"ac3"_s)}, &out), 1);
        QVERIFY2(out.contains(u"lost     Title: AC3 files hold no tags"_s) &&
                     out.contains(u"lost     Lyrics: AC3 files hold no tags"_s),
                 qPrintable(out));
        QCOMPARE(runCli({u"--check-tags"_s, m_source}, &out), 2);
    }

    void runNamesTheLostFieldsPerFile() {
        QString out;
        const QString folder = m_dir.filePath(u"out"_s);
        QCOMPARE(runCli({u"-f"_s, u"AC3"_s, u"-o"_s, folder, u"--no-organize"_s, m_source}, &out),
                 0);
        QVERIFY2(out.contains(u"tags: "_s + m_source + u": Title: AC3 files hold no tags"_s),
                 qPrintable(out));
        QVERIFY(QFileInfo::exists(folder + u"/song.ac3"_s));
    }
};

SONORIA_TEST_MAIN(TestCliTags)
#include "tst_clitags.moc"
