#include "ProbeReference.h"

#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

ProbeReference ProbeReference::read(const QString& path) {
    ProbeReference info;
    QString output;
    if (SonoriaTest::run(QStringLiteral("ffprobe"),
                         {QStringLiteral("-v"), QStringLiteral("error"),
                          QStringLiteral("-show_streams"), QStringLiteral("-show_format"),
                          QStringLiteral("-of"), QStringLiteral("json"), path},
                         &output) != 0)
        return info;
    const QJsonObject root = QJsonDocument::fromJson(output.toUtf8()).object();
    const QJsonObject format = root.value(QStringLiteral("format")).toObject();
    const auto number = [](const QJsonObject& object, const char* key) {
        return object.value(QLatin1String(key)).toString().toDouble();
    };
    const QJsonArray streams = root.value(QStringLiteral("streams")).toArray();
    for (const QJsonValue& value : streams) {
        const QJsonObject stream = value.toObject();
        if (stream.value(QStringLiteral("codec_type")).toString() != QLatin1String("audio"))
            continue;
        info.bitRate = number(stream, "bit_rate");
        if (info.bitRate <= 0)
            info.bitRate = number(format, "bit_rate");
        info.duration = number(stream, "duration");
        if (info.duration <= 0)
            info.duration = number(format, "duration");
        info.sampleRate = number(stream, "sample_rate");
        info.channels = stream.value(QStringLiteral("channels")).toInt();
        info.codecName = stream.value(QStringLiteral("codec_name")).toString();
        info.ok = true;
        break;
    }
    return info;
}
