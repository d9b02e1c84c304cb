#include "workspace/SXContainerMemory.h"

#include "base/SXSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <functional>

namespace {

const QString kContainers = QStringLiteral("SXContainers");
const QString kBitRate = QStringLiteral("bitRate");
const QString kSampleRate = QStringLiteral("sampleRate");
const QString kChannels = QStringLiteral("channels");
const QString kReplayGain = QStringLiteral("replayGain");
const QString kNormalise = QStringLiteral("normalise");
// The stored spellings of the ReplayGain modes, in the enumeration's order.
const QStringList kReplayGainModes{QStringLiteral("off"), QStringLiteral("track"),
                                   QStringLiteral("album")};
const QString kNamePattern = QStringLiteral("namePattern");
const QString kMirrorFolders = QStringLiteral("mirrorFolders");

// Format names may hold blanks and slashes, which QSettings would read as groups; one JSON text
// per format also avoids INI's habit of turning short lists into plain strings.
QString choicesKey(const QString& fmtName) {
    return QStringLiteral("SXContainerChoices/") +
           QString::fromLatin1(QUrl::toPercentEncoding(fmtName));
}

void restoreOne(const QJsonObject& stored, const QString& field, const QStringList& offered,
                const std::function<void(const QString&)>& apply) {
    const QString value = stored.value(field).toString();
    if (!value.isEmpty() && offered.contains(value))
        apply(value);
}

} // namespace

namespace SXContainerMemory {

void storeChoices(const SXFormatSetting& setting) {
    if (setting.fmtName().isEmpty())
        return;
    const QJsonObject choices{{kBitRate, setting.bitRate()},
                              {kSampleRate, setting.sampleRate()},
                              {kChannels, setting.channels()},
                              {kReplayGain, kReplayGainModes.at(int(setting.replayGain()))},
                              {kNormalise, setting.normalise()},
                              {kNamePattern, setting.namePattern()},
                              {kMirrorFolders, setting.mirrorFolders()}};
    SXSettings::setValue(choicesKey(setting.fmtName()),
                         QString::fromUtf8(QJsonDocument(choices).toJson(QJsonDocument::Compact)));
    SXSettings::synchronize();
}

void restoreChoices(SXFormatSetting& setting) {
    const QString text = SXSettings::stringForKey(choicesKey(setting.fmtName()));
    if (text.isEmpty())
        return;
    const QJsonObject stored = QJsonDocument::fromJson(text.toUtf8()).object();
    restoreOne(stored, kBitRate, setting.aryBiteRate(),
               [&setting](const QString& value) { setting.setBiteRate(value); });
    restoreOne(stored, kSampleRate, setting.arySampleRate(),
               [&setting](const QString& value) { setting.setSampleRate(value); });
    restoreOne(stored, kChannels, setting.aryChannels(),
               [&setting](const QString& value) { setting.setChannels(value); });
    // Absent in what earlier versions stored: the catalogue's "off" stays.
    const qsizetype mode = kReplayGainModes.indexOf(stored.value(kReplayGain).toString());
    if (mode >= 0)
        setting.setReplayGain(SXReplayGainMode(mode));
    if (stored.value(kNormalise).isBool())
        setting.setNormalise(stored.value(kNormalise).toBool());
    setting.setNamePattern(stored.value(kNamePattern).toString());
    setting.setMirrorFolders(stored.value(kMirrorFolders).toBool());
}

void storeContainers(const QStringList& labels) {
    SXSettings::setValue(
        kContainers,
        QString::fromUtf8(
            QJsonDocument(QJsonArray::fromStringList(labels)).toJson(QJsonDocument::Compact)));
    SXSettings::synchronize();
}

QStringList storedContainers() {
    const QString text = SXSettings::stringForKey(kContainers);
    QStringList names;
    for (const QJsonValue& name : QJsonDocument::fromJson(text.toUtf8()).array()) {
        if (name.isString() && !name.toString().isEmpty() && !names.contains(name.toString()))
            names.append(name.toString());
    }
    return names;
}

} // namespace SXContainerMemory
