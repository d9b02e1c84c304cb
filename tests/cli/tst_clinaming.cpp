#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

// sonoria-cli's --pattern, --mirror and --existing, end to end over real folders.
namespace {

struct CliResult {
    int exitCode = -1;
    QString out;
};

// Files and folders below `dir`, relative and sorted.
QStringList filesBelow(const QString& dir) {
    QStringList files;
    QDirIterator it(dir, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(QDir(dir).relativeFilePath(it.next()));
    files.sort();
    return files;
}

// "codec,sample rate,channels,bit rate" of the first audio stream, as ffprobe reads it.
QString probe(const QString& path) {
    QString output;
    SonoriaTest::run(u"ffprobe"_s,
                     {"-v", "error", "-select_streams", "a:0", "-show_entries",
                      "stream=codec_name,sample_rate,channels,bit_rate", "-of", "csv=p=0", path},
                     &output);
    return output.trimmed();
}

QStringList lines(const QString& text) {
    return text.split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class TestCliNaming : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void namesFromTagsMirrorAndExistingOutputs();

private:
    CliResult runCli(const QStringList& arguments) const;

    QTemporaryDir m_work;
    QTemporaryDir m_config;
};

CliResult TestCliNaming::runCli(const QStringList& arguments) const {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(u"XDG_CONFIG_HOME"_s, m_config.path());
    // The C locale reads the English catalogue: the texts below are its corrected English.
    env.insert(u"LANG"_s, u"C"_s);
    for (const QString& name : {u"LANGUAGE"_s, u"LC_ALL"_s, u"LC_MESSAGES"_s})
        env.remove(name);
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(SONORIA_CLI_PATH), arguments);
    CliResult result;
    if (!process.waitForFinished(180000)) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return result;
}

// Names from tags below mirrored folders; a second run leaves the earlier results as they are,
// "both" numbers new ones, "replace" swaps in new files under the same names.
void TestCliNaming::namesFromTagsMirrorAndExistingOutputs() {
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
    CliResult result = runCli(arguments);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(filesBelow(out), tree);
    QVERIFY2(result.out.contains(u"done: %1/A/x.flac -> %2/A/Nina/One.mp3"_s.arg(in, out)),
             qPrintable(result.out));
    const QByteArray first = SonoriaTest::readFile(out + u"/A/Nina/One.mp3"_s);

    // A dry run says what a run would leave, and counts only what it would convert.
    result = runCli(QStringList{"-n"} + arguments);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(lines(result.out).filter(u"already converted: "_s).size(), 2);
    QVERIFY2(result.out.contains(u"0 files would be converted"_s), qPrintable(result.out));
    QVERIFY2(
        runCli(QStringList{"-n", "--existing", "both"} + arguments)
            .out.contains(u"would convert: %1/A/x.flac -> %2/A/Nina/One(1).mp3"_s.arg(in, out)),
        "keep both plans a numbered name");

    result = runCli(arguments);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.out.contains(
                 u"already converted: %1/B/x.flac -> %2/B/Unknown Artist/x.mp3"_s.arg(in, out)),
             qPrintable(result.out));
    QCOMPARE(lines(result.out).filter(u"already converted: "_s).size(), 2);
    // The summary does not count them as converted now.
    QVERIFY2(result.out.contains(u"0 files have been converted.\n2 files were already converted"_s),
             qPrintable(result.out));
    QCOMPARE(filesBelow(out), tree);

    result = runCli(arguments + QStringList{"--existing", "both"});
    QCOMPARE(result.exitCode, 0);
    QStringList numbered =
        tree + QStringList{u"A/Nina/One(1).mp3"_s, u"B/Unknown Artist/x(1).mp3"_s};
    numbered.sort();
    QCOMPARE(filesBelow(out), numbered);
    QCOMPARE(SonoriaTest::readFile(out + u"/A/Nina/One.mp3"_s), first);

    // Replace, at 64 kbit/s so that the new file differs: the same names, new contents; the
    // numbered files are not what was planned and stay as they were.
    const QByteArray second = SonoriaTest::readFile(out + u"/A/Nina/One(1).mp3"_s);
    result = runCli(arguments + QStringList{"--existing", "replace", "-b", "64"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(filesBelow(out), numbered);
    QCOMPARE(probe(out + u"/A/Nina/One.mp3"_s).section(u',', 3), u"64000"_s);
    QCOMPARE(SonoriaTest::readFile(out + u"/A/Nina/One(1).mp3"_s), second);
}

SONORIA_TEST_MAIN(TestCliNaming)
#include "tst_clinaming.moc"
