#include "engine/ConvertCommandLine.h"

#include "base/SXBundle.h"
#include "model/LSMedia.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
constexpr double kForceStereoAboveKbps = 192.0;
} // namespace

QString ConvertCommandLine::ffmpegPath() {
    const QString beside =
        QDir::cleanPath(SXBundle::executableDirectory() + QStringLiteral("/ffmpeg"));
    const QFileInfo info(beside);
    if (info.isFile() && info.isExecutable())
        return beside;
    return QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
}

QStringList ConvertCommandLine::arguments(const QString& executable, const LSMedia& media,
                                          const QString& outputFile) {
    const double bitrate = media.dAOBitrate();
    const int channels = bitrate > kForceStereoAboveKbps ? 2 : media.iAOChannels();
    return {executable,
            QStringLiteral("-i"),
            media.filePath(),
            QStringLiteral("-vn"),
            QStringLiteral("-acodec"),
            media.vOACodecName(),
            QStringLiteral("-ar"),
            QString::number(media.dAOSamplerate(), 'f', 2),
            QStringLiteral("-b:a"),
            QString::number(bitrate, 'f', 2) + QLatin1Char('k'),
            QStringLiteral("-ac"),
            QString::number(channels),
            QStringLiteral("-y"),
            outputFile};
}

QString ConvertCommandLine::readable(const QStringList& arguments) {
    QStringList quoted;
    for (const QString& argument : arguments)
        quoted.append(QLatin1Char('"') + argument + QLatin1Char('"'));
    return QLatin1Char('(') + quoted.join(QStringLiteral(", ")) + QLatin1Char(')');
}
