#include "ProbeReference.h"

#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

ProbeReference ProbeReference::read(const QString& path) {
    ProbeReference info;
    QString output;
    if (SonoriaTest::run("ffprobe",
                         {"-v", "error", "-show_streams", "-show_format", "-of", "json", path},
                         &output) != 0)
        return info;
    const QJsonObject root = QJsonDocument::fromJson(output.toUtf8()).object();
    const QJsonObject format = root.value("format").toObject();
    // The stream's value, else the container's.
    const auto number = [&format](const QJsonObject& stream, QLatin1String key) {
        const double value = stream.value(key).toString().toDouble();
        return value > 0 ? value : format.value(key).toString().toDouble();
    };
    for (const QJsonValue& value : root.value("streams").toArray()) {
        const QJsonObject stream = value.toObject();
        if (stream.value("codec_type").toString() != QLatin1String("audio"))
            continue;
        info.bitRate = number(stream, QLatin1String("bit_rate"));
        info.duration = number(stream, QLatin1String("duration"));
        info.sampleRate = stream.value("sample_rate").toString().toDouble();
        info.channels = stream.value("channels").toInt();
        info.codecName = stream.value("codec_name").toString();
        info.ok = true;
        break;
    }
    return info;
}
