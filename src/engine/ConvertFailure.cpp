#include "engine/ConvertFailure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The last line of `output` that matches `pattern`, trimmed; empty when none does.
QString lastLineMatching(const QString& output, const QRegularExpression& pattern) {
    const QStringList lines =
        output.split(QRegularExpression(QStringLiteral("[\r\n]")), Qt::SkipEmptyParts);
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        if (pattern.match(*line).hasMatch())
            return line->trimmed();
    }
    return {};
}

// The first existing folder at or above `path`: where a missing folder would be made.
QString nearestExisting(QString path) {
    while (!path.isEmpty() && !QFileInfo::exists(path)) {
        const QString parent = QFileInfo(path).absolutePath();
        if (parent == path)
            break;
        path = parent;
    }
    return path;
}

} // namespace

QString ConvertFailure::fromErrno(int error) {
    switch (error) {
    case ENOSPC:
        return tr("No space left on device");
    case EDQUOT:
        return tr("The disk quota is used up");
    case EROFS:
        return tr("The output folder is read-only");
    case EACCES:
    case EPERM:
        return tr("You have no permission to write into the output folder");
    case ENOTDIR:
    case EEXIST:
        return tr("The output folder's name is taken by a file");
    case ENOENT:
        return tr("The output folder does not exist");
    case EFBIG:
        return tr("The file is larger than the output folder's file system allows");
    case EIO:
        return tr("The output folder's device reported an input/output error");
    default:
        return tr("The output folder cannot be written: %1")
            .arg(QString::fromLocal8Bit(std::strerror(error)));
    }
}

QString ConvertFailure::checkOutputFolder(const QString& folder) {
    const QByteArray encoded = QFile::encodeName(folder);
    struct stat status {};
    if (::stat(encoded.constData(), &status) == 0) {
        if (!S_ISDIR(status.st_mode))
            return fromErrno(ENOTDIR);
    } else if (!QDir().mkpath(folder)) {
        // mkpath says nothing of why: ask the nearest folder that exists.
        const QString parent = nearestExisting(folder);
        struct stat parentStatus {};
        if (::stat(QFile::encodeName(parent).constData(), &parentStatus) == 0 &&
            !S_ISDIR(parentStatus.st_mode))
            return fromErrno(ENOTDIR);
        const int error =
            ::access(QFile::encodeName(parent).constData(), W_OK) != 0 ? errno : EACCES;
        return fromErrno(error);
    }
    // Writing is the only test that also catches a read-only mount and a full disk's inodes.
    const QByteArray probe = QFile::encodeName(
        folder + QStringLiteral("/.sonoria-check-%1").arg(QCoreApplication::applicationPid()));
    // A file of that name can only be our own leftover: the process id is ours alone.
    ::unlink(probe.constData());
    const int fd = ::open(probe.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd < 0)
        return fromErrno(errno);
    ::close(fd);
    ::unlink(probe.constData());
    return {};
}

QString ConvertFailure::fromFfmpegOutput(const QString& output) {
    // ffmpeg prints the system's own words (strerror) for what went wrong with the output.
    static const struct {
        int error;
        QRegularExpression words;
    } systemErrors[] = {
        {ENOSPC, QRegularExpression(QStringLiteral("No space left on device"))},
        {EDQUOT, QRegularExpression(QStringLiteral("Disk quota exceeded"))},
        {EFBIG, QRegularExpression(QStringLiteral("File too large"))},
        {EROFS, QRegularExpression(QStringLiteral("Read-only file system"))},
    };
    static const QRegularExpression denied(QStringLiteral("Permission denied"));
    static const QRegularExpression empty(
        QStringLiteral("Output file is empty, nothing was encoded"));
    static const QRegularExpression writing(QStringLiteral(
        "Error writing trailer|Error submitting a packet to the muxer|Error muxing a packet|"
        "av_interleaved_write_frame\\(\\)|Input/output error|Error closing file"));

    for (const auto& known : systemErrors) {
        if (known.words.match(output).hasMatch())
            return fromErrno(known.error);
    }
    if (denied.match(output).hasMatch())
        return tr("Permission denied: %1").arg(lastLineMatching(output, denied));
    if (empty.match(output).hasMatch())
        return tr("The source gave no audio to convert");
    const QString writeLine = lastLineMatching(output, writing);
    if (!writeLine.isEmpty())
        return tr("The output could not be written: %1").arg(writeLine);
    return {};
}

QString ConvertFailure::decodingIn(const QString& output) {
    // A damaged frame or two is reported and skipped by ffmpeg, and the output is still whole:
    // these lines explain a failure, they are not one by themselves.
    static const QRegularExpression decoding(QStringLiteral(
        "Invalid data found when processing input|Error while decoding|Decoding error|"
        "[Cc]ould not find codec parameters|does not contain any stream|"
        "Error opening input|Failed to read frame"));
    const QString line = lastLineMatching(output, decoding);
    return line.isEmpty() ? QString() : tr("ffmpeg could not decode the source: %1").arg(line);
}

QString ConvertFailure::fromExitStatus(int status, const QString& output) {
    QString known = fromFfmpegOutput(output);
    if (known.isEmpty())
        known = decodingIn(output);
    if (!known.isEmpty())
        return known;
    if (status == 127)
        return ffmpegMissing();
    // 128 + N: ended by signal N (TaskWrapper), e.g. killed by the system for want of memory.
    if (status > 128 && status < 128 + 65)
        return tr("ffmpeg was ended by signal %1 (%2)")
            .arg(status - 128)
            .arg(QString::fromLocal8Bit(::strsignal(status - 128)));
    // The last thing ffmpeg said is usually the reason; show it rather than a bare number.
    static const QRegularExpression anyLine(QStringLiteral("\\S"));
    static const QRegularExpression progress(QStringLiteral("^\\s*(size|frame)=|time="));
    const QStringList lines =
        output.split(QRegularExpression(QStringLiteral("[\r\n]")), Qt::SkipEmptyParts);
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        if (anyLine.match(*line).hasMatch() && !progress.match(*line).hasMatch() &&
            !line->startsWith(QLatin1String("Exiting normally")))
            return tr("ffmpeg failed (exit status %1): %2").arg(status).arg(line->trimmed());
    }
    return tr("ffmpeg failed (exit status %1)").arg(status);
}

QString ConvertFailure::outputMissing() {
    return tr("ffmpeg wrote no output file");
}

QString ConvertFailure::outputEmpty() {
    return tr("The output is empty");
}

QString ConvertFailure::outputUnreadable() {
    return tr("The output cannot be read back as audio");
}

QString ConvertFailure::outputWrongFormat(const QString& found, const QString& expected) {
    return tr("The output holds %1 audio instead of %2").arg(found, expected);
}

QString ConvertFailure::outputShorter(double outputSeconds, double sourceSeconds) {
    return tr("The output is shorter than the source (%L1 s instead of %L2 s)")
        .arg(outputSeconds, 0, 'f', 2)
        .arg(sourceSeconds, 0, 'f', 2);
}

QString ConvertFailure::outputLonger(double outputSeconds, double sourceSeconds) {
    return tr("The output is longer than the source (%L1 s instead of %L2 s)")
        .arg(outputSeconds, 0, 'f', 2)
        .arg(sourceSeconds, 0, 'f', 2);
}

QString ConvertFailure::tagsNotSaved(const QString& detail) {
    return tr("The tags could not be written into the output: %1").arg(detail);
}

QString ConvertFailure::notMoved(const QString& detail) {
    return tr("The output could not be given its name: %1").arg(detail);
}

QString ConvertFailure::ffmpegMissing() {
    return tr("ffmpeg was not found");
}
