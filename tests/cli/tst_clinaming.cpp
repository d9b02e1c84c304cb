#include "support/ProbeReference.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

// sonoria-cli's --pattern, --mirror and --existing, end to end over real folders.
using SonoriaTest::lines;

class TestCliNaming : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Names from tags below mirrored folders; a second run leaves the earlier results as they are,
    // "both" numbers new ones, "replace" swaps in new files under the same names.
    void namesFromTagsMirrorAndExistingOutputs() {
        const QString in = m_work.filePath(u"tagged"_s);
        const QString out = m_work.filePath(u"by artist"_s);
        QVERIFY(QDir().mkpath(in + u"/A"_s) && QDir().mkpath(in + u"/B"_s));
        QVERIFY(SonoriaTest::makeTone(in + u"/A/x.flac"_s, 1.0,
                                      {"-metadata", "artist=Nina", "-metadata", "title=One"}));
        QVERIFY(SonoriaTest::makeTone(in + u"/B/x.flac"_s, 1.0));
        const QStringList arguments{
            "--no-organize", "--pattern", "{artist}/{title}", "--mirror", "-o", out, in};
        const QStringList tree{u"A"_s, u"A/Nina"_s,           u"A/Nina/One.mp3"_s,
                               u"B"_s, u"B/Unknown Artist"_s, u"B/Unknown Artist/x.mp3"_s};
        SonoriaTest::RunResult result = SonoriaTest::runCli(arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        QCOMPARE(SonoriaTest::filesBelow(out, true), tree);
        QVERIFY2(result.out.contains(u"done: %1/A/x.flac -> %2/A/Nina/One.mp3"_s.arg(in, out)),
                 qPrintable(result.out));
        const QByteArray first = SonoriaTest::readFile(out + u"/A/Nina/One.mp3"_s);

        // A dry run says what a run would leave, and counts only what it would convert.
        result = SonoriaTest::runCli(QStringList{"-n"} + arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        QCOMPARE(lines(result.out).filter(u"already converted: "_s).size(), 2);
        QVERIFY2(result.out.contains(u"0 files would be converted"_s), qPrintable(result.out));
        QVERIFY2(
            SonoriaTest::runCli(QStringList{"-n", "--existing", "both"} + arguments)
                .out.contains(u"would convert: %1/A/x.flac -> %2/A/Nina/One(1).mp3"_s.arg(in, out)),
            "keep both plans a numbered name");

        result = SonoriaTest::runCli(arguments);
        SONORIA_COMPARE_EXIT(result, 0);
        QVERIFY2(result.out.contains(
                     u"already converted: %1/B/x.flac -> %2/B/Unknown Artist/x.mp3"_s.arg(in, out)),
                 qPrintable(result.out));
        QCOMPARE(lines(result.out).filter(u"already converted: "_s).size(), 2);
        // The summary does not count them as converted now.
        QVERIFY2(
            result.out.contains(u"0 files have been converted.\n2 files were already converted"_s),
            qPrintable(result.out));
        QCOMPARE(SonoriaTest::filesBelow(out, true), tree);

        result = SonoriaTest::runCli(arguments + QStringList{"--existing", "both"});
        SONORIA_COMPARE_EXIT(result, 0);
        QStringList numbered =
            tree + QStringList{u"A/Nina/One(1).mp3"_s, u"B/Unknown Artist/x(1).mp3"_s};
        numbered.sort();
        QCOMPARE(SonoriaTest::filesBelow(out, true), numbered);
        QCOMPARE(SonoriaTest::readFile(out + u"/A/Nina/One.mp3"_s), first);

        // Replace, at 64 kbit/s so that the new file differs: the same names, new contents; the
        // numbered files are not what was planned and stay as they were.
        const QByteArray second = SonoriaTest::readFile(out + u"/A/Nina/One(1).mp3"_s);
        result = SonoriaTest::runCli(arguments + QStringList{"--existing", "replace", "-b", "64"});
        SONORIA_COMPARE_EXIT(result, 0);
        QCOMPARE(SonoriaTest::filesBelow(out, true), numbered);
        QCOMPARE(ProbeReference::read(out + u"/A/Nina/One.mp3"_s).bitRate, 64000.0);
        QCOMPARE(SonoriaTest::readFile(out + u"/A/Nina/One(1).mp3"_s), second);
    }

private:
    QTemporaryDir m_work;
};

SONORIA_TEST_MAIN(TestCliNaming)
#include "tst_clinaming.moc"
