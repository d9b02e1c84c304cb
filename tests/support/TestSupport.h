#pragma once

#include <QCoreApplication>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTest>

// Shared helpers of the test executables.
namespace SonoriaTest {

class TemporaryHome;

// Moves the process into a fresh TemporaryHome that lives as long as the process: the settings
// store, the default output folders and everything else that follows a home land there, never in
// the user's own folders. Call before the application object exists.
void prepareEnvironment();
const TemporaryHome& temporaryHome();
QString configHome(); // $XDG_CONFIG_HOME of that home, where the settings store lives

// Runs a program to completion; returns its exit code (-1 when it could not start). Merged
// output goes to *output when given.
int run(const QString& program, const QStringList& arguments, QString* output = nullptr,
        int timeoutMs = 120000);

// What a program printed, and its exit code (-1 when it did not end by itself).
struct RunResult {
    int exitCode = -1;
    QString out;
    QString err;
};
// Runs a program to its end in `environment` (this process's when empty) and `workingDirectory`
// (this process's when empty), keeping its two outputs apart.
RunResult runProgram(const QString& program, const QStringList& arguments,
                     const QProcessEnvironment& environment = {},
                     const QString& workingDirectory = {});
// The environment sonoria-cli runs in: this process's temporary home, `language` for every
// locale category (the C locale reads the English catalogue), no verbose switch.
QProcessEnvironment cliEnvironment(const QString& language = QStringLiteral("C"));
// Runs sonoria-cli to its end in `environment` (cliEnvironment() when empty).
RunResult runCli(const QStringList& arguments, const QProcessEnvironment& environment = {},
                 const QString& workingDirectory = {});
// The lines of a program's output, empty ones dropped.
QStringList lines(const QString& text);

// ffmpeg's own EBU R 128 summary of the files played one after the other as one programme:
// integrated loudness (LUFS) and true peak (dBTP), NaN when ffmpeg fails.
struct LoudnessReference {
    double integrated = qQNaN();
    double truePeakDb = qQNaN();
};
LoudnessReference ffmpegLoudness(const QStringList& paths, bool dualMono = false);

// Makes a media file with ffmpeg's lavfi sources. `source` is a lavfi graph such as
// "sine=frequency=440:duration=2"; `extra` goes between the input and the output path
// (codecs, channels, metadata). Fails the current test when ffmpeg fails.
bool makeMedia(const QString& path, const QString& source, const QStringList& extra = {});
// A sine tone of `seconds` with ffmpeg's default encoder for the path's extension.
bool makeTone(const QString& path, double seconds = 2.0, const QStringList& extra = {});

// A tone in `folder` under `rawName`, bytes that need not be valid UTF-8 (made under a plain
// name, then renamed). The path as the program sees it (bad bytes replaced) or "" on failure.
QString makeToneWithRawName(const QString& folder, const QByteArray& rawName);

// Writes an executable shell script and returns its path.
QString writeScript(const QString& dir, const QString& name, const QString& body);

// Writes `bytes` to a file (replacing it), creating its folder first; false on any failure.
bool writeFile(const QString& path, const QByteArray& bytes);
// Cuts a FLAC file right after its metadata blocks: a header that promises audio and has none.
bool cutFlacAfterMetadata(const QString& path);
// Every file below `folder` (with `withFolders` the folders too), hidden ones included, relative
// to it and sorted: what a run left on disk, or what must be as it was before.
QStringList filesBelow(const QString& folder, bool withFolders = false);
// A file's bytes, "" when it cannot be read.
QByteArray readFile(const QString& path);

// SHA-256 of a file's bytes ("" when unreadable): sources are compared before and after.
QByteArray fileHash(const QString& path);

// Processes as /proc shows them. A process that has ended but was not reaped yet (a zombie whose
// new parent does not wait, as in some containers) counts as gone.
bool processIsAlive(qint64 pid);
// The live processes whose parent is `parent`.
QList<qint64> childProcesses(qint64 parent);
// The live processes with `text` in one of their command-line arguments (ffmpeg children name
// their output folder).
QList<qint64> processesMentioning(const QString& text);

} // namespace SonoriaTest

// Passes when the list `expression` gives is empty; names its entries (what a walk found)
// when it is not.
#define SONORIA_VERIFY_NONE(expression)                                                            \
    do {                                                                                           \
        const QStringList found_ = (expression);                                                   \
        QVERIFY2(found_.isEmpty(), qPrintable(found_.join(QLatin1Char('\n'))));                    \
    } while (false)

// Passes when a finished program's exit status is `expected`; shows what it printed when not, so
// that a failure seen once on a build machine carries its reason.
#define SONORIA_COMPARE_EXIT(run, expected)                                                        \
    do {                                                                                           \
        const SonoriaTest::RunResult& run_ = (run);                                                \
        QVERIFY2(                                                                                  \
            run_.exitCode == (expected),                                                           \
            qPrintable(QStringLiteral("exit status %1, expected %2\nstdout:\n%3\nstderr:\n%4")     \
                           .arg(run_.exitCode)                                                     \
                           .arg(expected)                                                          \
                           .arg(run_.out, run_.err)));                                             \
    } while (false)

#define SONORIA_TEST_MAIN(TestObject)                                                              \
    int main(int argc, char** argv) {                                                              \
        SonoriaTest::prepareEnvironment();                                                         \
        QCoreApplication app(argc, argv);                                                          \
        TestObject tc;                                                                             \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }
