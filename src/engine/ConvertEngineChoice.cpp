#include "engine/ConvertEngineChoice.h"

#include "base/SXInstallation.h"
#include "engine/ConvertJob.h"

#include <QDir>
#include <QFileInfo>

namespace {
bool isExecutableFile(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}
} // namespace

bool ConvertEngineChoice::workerTakes(const ConvertJob& job) {
    if (ffmpegForced() || job.hasRange || job.loudness.appliedGain())
        return false;
    if (!workerEncoders().contains(job.encoder))
        return false;
    return !workerPath().isEmpty();
}

const QStringList& ConvertEngineChoice::workerEncoders() {
    // Each one checked against ffmpeg's own output by tst_workerequivalence.
    static const QStringList encoders{
        QStringLiteral("libmp3lame"), QStringLiteral("flac"),      QStringLiteral("pcm_s16le"),
        QStringLiteral("pcm_s16be"),  QStringLiteral("alac"),      QStringLiteral("wavpack"),
        QStringLiteral("aac"),        QStringLiteral("libvorbis"), QStringLiteral("libopus"),
        QStringLiteral("ac3"),        QStringLiteral("mp2"),       QStringLiteral("wmav2")};
    return encoders;
}

QString ConvertEngineChoice::workerPath() {
    const QString beside =
        QDir::cleanPath(SXInstallation::executableDirectory() + QStringLiteral("/sonoria-worker"));
    if (isExecutableFile(beside))
        return beside;
    const QString fromEnvironment = qEnvironmentVariable("SONORIA_WORKER");
    if (!fromEnvironment.isEmpty() && isExecutableFile(fromEnvironment))
        return fromEnvironment;
    return {};
}

bool ConvertEngineChoice::ffmpegForced() {
    return qEnvironmentVariable("SONORIA_ENGINE") == QLatin1String("ffmpeg");
}
