#include "TestSupport.h"

#include "TemporaryHome.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <cstdio>
#include <memory>

namespace SonoriaTest {

namespace {
// Removed when the process ends normally, with everything the tests left there.
std::unique_ptr<TemporaryHome> g_home;
} // namespace

void prepareEnvironment() {
    if (!g_home) {
        g_home = std::make_unique<TemporaryHome>();
        if (!g_home->isValid())
            qFatal("no temporary home could be made");
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

QStringList filesBelow(const QString& folder, bool withFolders) {
    QStringList entries;
    const QDir::Filters filters = QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot |
                                  (withFolders ? QDir::Dirs : QDir::Filters());
    QDirIterator it(folder, filters, QDirIterator::Subdirectories);
    while (it.hasNext())
        entries.append(QDir(folder).relativeFilePath(it.next()));
    entries.sort();
    return entries;
}

const TemporaryHome& temporaryHome() {
    prepareEnvironment();
    return *g_home;
}

QString configHome() {
    return temporaryHome().configHome();
}

int run(const QString& program, const QStringList& arguments, QString* output, int timeoutMs) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(10000))
        return -1;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        return -1;
    }
    if (output)
        *output = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QProcessEnvironment cliEnvironment(const QString& language) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {QStringLiteral("LANG"), QStringLiteral("LC_ALL")})
        env.insert(name, language);
    for (const QString& name : {QStringLiteral("LANGUAGE"), QStringLiteral("LC_MESSAGES"),
                                QStringLiteral("SONORIA_VERBOSE")})
        env.remove(name);
    return env;
}

RunResult runProgram(const QString& program, const QStringList& arguments,
                     const QProcessEnvironment& environment, const QString& workingDirectory) {
    QProcess process;
    if (!environment.isEmpty())
        process.setProcessEnvironment(environment);
    process.setWorkingDirectory(workingDirectory);
    process.start(program, arguments);
    RunResult result;
    if (!process.waitForFinished(300000)) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return result;
}

RunResult runCli(const QStringList& arguments, const QProcessEnvironment& environment,
                 const QString& workingDirectory) {
    return runProgram(QStringLiteral(SONORIA_CLI_PATH), arguments,
                      environment.isEmpty() ? cliEnvironment() : environment, workingDirectory);
}

QStringList lines(const QString& text) {
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

LoudnessReference ffmpegLoudness(const QStringList& paths, bool dualMono) {
    QStringList arguments{QStringLiteral("-nostats"), QStringLiteral("-hide_banner")};
    QString graph;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        arguments << QStringLiteral("-i") << paths.at(i);
        graph += QStringLiteral("[%1:a]").arg(i);
    }
    graph += QStringLiteral("concat=n=%1:v=0:a=1,ebur128=peak=true%2")
                 .arg(paths.size())
                 .arg(dualMono ? QStringLiteral(":dualmono=true") : QString());
    arguments << QStringLiteral("-filter_complex") << graph << QStringLiteral("-f")
              << QStringLiteral("null") << QStringLiteral("-");
    QString output;
    if (run(QStringLiteral("ffmpeg"), arguments, &output) != 0)
        return {};
    const QString summary = output.mid(output.lastIndexOf(QStringLiteral("Summary:")));
    static const QRegularExpression integrated(QStringLiteral(R"(I:\s+(-?[\d.]+) LUFS)"));
    static const QRegularExpression peak(
        QStringLiteral(R"(True peak:\s+Peak:\s+(-?[\d.]+|-inf) dBFS)"));
    return {integrated.match(summary).captured(1).toDouble(),
            peak.match(summary).captured(1).toDouble()};
}

bool makeMedia(const QString& path, const QString& source, const QStringList& extra) {
    const QStringList args = QStringList{"-nostdin", "-hide_banner", "-loglevel", "error", "-y",
                                         "-f",       "lavfi",        "-i",        source} +
                             extra + QStringList{path};
    QString output;
    const int code = run(QStringLiteral("ffmpeg"), args, &output);
    if (code != 0)
        qWarning("ffmpeg failed to make %s: %s", qPrintable(path), qPrintable(output));
    return code == 0 && QFileInfo(path).size() > 0;
}

bool makeTone(const QString& path, double seconds, const QStringList& extra) {
    return makeMedia(
        path, QStringLiteral("sine=frequency=440:sample_rate=44100:duration=%1").arg(seconds),
        extra);
}

QString makeToneWithRawName(const QString& folder, const QByteArray& rawName) {
    const QString plain = folder + QStringLiteral("/raw-name-tone.wav");
    const QByteArray target = QFile::encodeName(folder) + '/' + rawName;
    if (!makeTone(plain, 0.5) || ::rename(QFile::encodeName(plain).constData(), target) != 0)
        return {};
    return QFile::decodeName(target);
}

QString writeScript(const QString& dir, const QString& name, const QString& body) {
    const QString path = dir + QLatin1Char('/') + name;
    const bool written =
        writeFile(path, "#!/bin/sh\n" + body.toUtf8()) &&
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                        QFile::ReadGroup | QFile::ExeGroup);
    return written ? path : QString();
}

bool writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

bool cutFlacAfterMetadata(const QString& path) {
    QByteArray bytes = readFile(path);
    qsizetype at = 4; // "fLaC"
    for (;;) {
        if (at + 4 > bytes.size())
            return false;
        const auto header = reinterpret_cast<const unsigned char*>(bytes.constData() + at);
        const qsizetype length = (header[1] << 16) | (header[2] << 8) | header[3];
        at += 4 + length;
        if (header[0] & 0x80)
            break;
    }
    bytes.truncate(at);
    return writeFile(path, bytes);
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray fileHash(const QString& path) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result().toHex()
                                                                 : QByteArray();
}

namespace {

// The fields of /proc/<pid>/stat after the command name: state, parent, ...; empty when the
// process is gone.
QList<QByteArray> statFields(qint64 pid) {
    const QByteArray line = readFile(QStringLiteral("/proc/%1/stat").arg(pid));
    const qsizetype close = line.lastIndexOf(')');
    return close < 0 ? QList<QByteArray>() : line.mid(close + 2).split(' ');
}

QList<qint64> allProcesses() {
    QList<qint64> pids;
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& name : names) {
        bool number = false;
        const qint64 pid = name.toLongLong(&number);
        if (number)
            pids.append(pid);
    }
    return pids;
}

} // namespace

bool processIsAlive(qint64 pid) {
    const QList<QByteArray> fields = statFields(pid);
    return pid > 0 && !fields.isEmpty() && fields.at(0) != "Z" && fields.at(0) != "X";
}

QList<qint64> childProcesses(qint64 parent) {
    QList<qint64> children;
    for (const qint64 pid : allProcesses()) {
        const QList<QByteArray> fields = statFields(pid);
        if (fields.size() > 1 && fields.at(1).toLongLong() == parent && processIsAlive(pid))
            children.append(pid);
    }
    return children;
}

QList<qint64> processesMentioning(const QString& text) {
    QList<qint64> found;
    const QByteArray wanted = text.toUtf8();
    for (const qint64 pid : allProcesses()) {
        const QByteArray arguments = readFile(QStringLiteral("/proc/%1/cmdline").arg(pid));
        if (arguments.contains(wanted) && processIsAlive(pid))
            found.append(pid);
    }
    return found;
}

} // namespace SonoriaTest
