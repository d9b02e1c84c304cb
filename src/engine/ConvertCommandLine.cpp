#include "engine/ConvertCommandLine.h"

#include "base/SXInstallation.h"
#include "engine/ConvertJob.h"
#include "model/LSMedia.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
// Above this bit rate the output is stereo whatever was chosen.
constexpr double kForceStereoAboveKbps = 192.0;

// What ffmpeg is asked for: the chosen values, the source's where none was chosen.
double bitRateKbps(const ConvertJob& job) {
    if (job.choices.lossless)
        return 0.0; // the lossless encoders have always been given 0
    if (job.choices.bitRate)
        return double(*job.choices.bitRate);
    return job.sourceBitRate / 1000.0;
}

double sampleRate(const ConvertJob& job) {
    return job.choices.sampleRate ? double(*job.choices.sampleRate) : job.sourceSampleRate;
}

// The texts ffmpeg is given; settings() reads its numbers from the same texts, so that both
// round alike ("192.00k" is 192000 bit/s).
QString sampleRateText(const ConvertJob& job) {
    return QString::number(sampleRate(job), 'f', 2);
}

QString kbpsText(const ConvertJob& job) {
    return QString::number(bitRateKbps(job), 'f', 2);
}

int channels(const ConvertJob& job) {
    if (bitRateKbps(job) > kForceStereoAboveKbps)
        return 2;
    return job.choices.channels.value_or(job.sourceChannels);
}
// A track of a cue sheet is cut by sample number, not by time: a lossless source then gives
// exactly the track's samples, and the next track starts where this one ended. The timestamps
// start again at 0, so the progress and the output's length are the track's own.
QString rangeFilter(const ConvertJob& job) {
    if (!job.hasRange)
        return {};
    QString filter = QStringLiteral("atrim=start_sample=%1").arg(job.rangeStartSample);
    if (job.rangeEndSample >= 0)
        filter += QStringLiteral(":end_sample=%1").arg(job.rangeEndSample);
    return filter + QStringLiteral(",asetpts=PTS-STARTPTS");
}
} // namespace

QString ConvertCommandLine::ffmpegPath() {
    const QString beside =
        QDir::cleanPath(SXInstallation::executableDirectory() + QStringLiteral("/ffmpeg"));
    const QFileInfo info(beside);
    if (info.isFile() && info.isExecutable())
        return beside;
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
}

QStringList ConvertCommandLine::arguments(const QString& executable, const ConvertJob& job,
                                          const QString& outputFile) {
    QStringList arguments{executable, QStringLiteral("-i"), job.sourcePath, QStringLiteral("-vn")};
    // One filter chain: a cue track's range is cut first, then normalising applies the measured
    // gain before the encoder. Without either the list is as it always was.
    QStringList filters;
    if (const QString range = rangeFilter(job); !range.isEmpty())
        filters << range;
    if (const std::optional<double> gain = job.loudness.appliedGain())
        filters << QStringLiteral("volume=%1dB").arg(QString::number(*gain, 'f', 2));
    if (!filters.isEmpty())
        arguments << QStringLiteral("-af") << filters.join(QLatin1Char(','));
    arguments << QStringLiteral("-acodec") << job.encoder << QStringLiteral("-ar")
              << sampleRateText(job) << QStringLiteral("-b:a") << kbpsText(job) + QLatin1Char('k')
              << QStringLiteral("-ac") << QString::number(channels(job)) << QStringLiteral("-y")
              << outputFile;
    return arguments;
}

ConvertEncoderSettings ConvertCommandLine::settings(const ConvertJob& job) {
    return {job.encoder, qRound(sampleRateText(job).toDouble()),
            qRound64(kbpsText(job).toDouble() * 1000.0), channels(job)};
}

QString ConvertCommandLine::readable(const QStringList& arguments) {
    QStringList quoted;
    for (const QString& argument : arguments)
        quoted.append(QLatin1Char('"') + argument + QLatin1Char('"'));
    return QLatin1Char('(') + quoted.join(QStringLiteral(", ")) + QLatin1Char(')');
}
