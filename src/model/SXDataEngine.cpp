#include "model/SXDataEngine.h"

#include "base/SXFileLocalManager.h"
#include "base/SXInstallation.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "model/SXPropertyListReader.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

// Position of the format that the music-library preference may replace.
constexpr int kMusicLibrarySlot = 2;

// A "values" string lists the choices separated by single commas, blanks kept as written.
QStringList choicesOf(const QVariantMap& setting) {
    const QVariant values = setting.value(QStringLiteral("values"));
    if (!values.isValid())
        return {};
    QStringList choices;
    choices.reserve(3);
    choices.append(values.toString().split(QLatin1Char(',')));
    return choices;
}

QString defaultOf(const QVariantMap& entry, const QString& key) {
    return entry.value(key).toMap().value(QStringLiteral("default")).toString();
}

} // namespace

SXDataEngine* SXDataEngine::shareInstance() {
    static QMutex creationLock;
    static SXDataEngine* instance = nullptr;
    QMutexLocker locker(&creationLock);
    if (!instance)
        instance = new SXDataEngine(
            SXInstallation::pathForResource(QStringLiteral("Formats"), QStringLiteral("plist")));
    return instance;
}

SXDataEngine::SXDataEngine(const QString& presetPath) {
    load(presetPath);
}

void SXDataEngine::load(const QString& presetPath) {
    if (presetPath.isEmpty()) {
        SXLog::line(QStringLiteral("load formats failed: no Formats.plist among the resources"));
        return;
    }
    QString error;
    const QVariant root = SXPropertyListReader::readFile(presetPath, &error);
    if (!root.isValid()) {
        SXLog::line(QStringLiteral("load formats failed: %1").arg(error));
        return;
    }
    if (root.typeId() != QMetaType::QVariantMap) {
        SXLog::line(
            QStringLiteral("load formats failed: %1 does not hold a dictionary").arg(presetPath));
        return;
    }
    const QVariantMap preset = root.toMap();
    m_aryDevices = preset.value(QStringLiteral("Devices"));
    m_aryFormats = preset.value(QStringLiteral("Formats"));
    m_aryCanEditTagFmts = preset.value(QStringLiteral("canEditTagFmtNames")).toStringList();
    // Formats name their encoder through the codec map, so it must be there first.
    loadFormatDecodeMap(preset);
    loadFormatSettingInfo(preset);
    placeMusicLibraryFormat();
}

void SXDataEngine::loadFormatDecodeMap(const QVariantMap& preset) {
    const QVariantMap map = preset.value(QStringLiteral("codecMap")).toMap();
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        m_dicDecodeMaps.insert(it.key(), it.value().toString());
}

void SXDataEngine::loadFormatSettingInfo(const QVariantMap& preset) {
    m_aryAFormats.clear();
    m_aryAFormats.reserve(10);
    const QVariantList audios = preset.value(QStringLiteral("Audios")).toList();
    for (const QVariant& entry : audios)
        m_aryAFormats.append(makeFormat(entry.toMap()));
}

SXFormatSettingPtr SXDataEngine::makeFormat(const QVariantMap& entry) const {
    auto format = std::make_shared<SXFormatSetting>();
    format->setFmtName(entry.value(QStringLiteral("title")).toString());
    format->setFmtDescribe(entry.value(QStringLiteral("description")).toString());
    format->setSampleRate(defaultOf(entry, QStringLiteral("samplerate")));
    format->setBiteRate(defaultOf(entry, QStringLiteral("abitrate")));
    format->setChannels(defaultOf(entry, QStringLiteral("channel")));
    format->setOutputExtName(entry.value(QStringLiteral("ext")).toString());
    format->setStrImgFileName(entry.value(QStringLiteral("image")).toString());
    format->setDecodecName(getDecodecWithCodecName(defaultOf(entry, QStringLiteral("acodec"))));
    format->setEnumAddToLibrary(entry.value(QStringLiteral("isAddToiTunes"), 0).toInt());
    format->setAryChannels(choicesOf(entry.value(QStringLiteral("channel")).toMap()));
    format->setArySampleRate(choicesOf(entry.value(QStringLiteral("samplerate")).toMap()));
    format->setAryBiteRate(choicesOf(entry.value(QStringLiteral("abitrate")).toMap()));
    return format;
}

// The preferences name the music-library format by its output extension. Unless the third format
// already has that extension, the first format that has it is copied into the third place, named
// by the bare extension. The copy's description is the displaced record's generic object text.
void SXDataEngine::placeMusicLibraryFormat() {
    const QString ext = SXSettings::stringForKey(SXSettingsKey::libraryFormat);
    if (ext.isEmpty() || m_aryAFormats.size() <= kMusicLibrarySlot)
        return;
    const SXFormatSettingPtr displaced = m_aryAFormats.at(kMusicLibrarySlot);
    if (displaced->outputExtName() == ext)
        return;
    for (const SXFormatSettingPtr& format : std::as_const(m_aryAFormats)) {
        if (format->outputExtName() != ext)
            continue;
        SXFormatSettingPtr slot = format->copy();
        slot->setFmtName(ext);
        slot->setFmtDescribe(displaced->description());
        m_aryAFormats[kMusicLibrarySlot] = slot;
        return;
    }
}

QStringList SXDataEngine::getAllOutputFormats() const {
    QStringList names;
    names.reserve(m_aryAFormats.size());
    for (const SXFormatSettingPtr& format : m_aryAFormats)
        names.append(format->fmtName());
    return names;
}

SXFormatSettingPtr SXDataEngine::getFormatWithName(const QString& name) const {
    for (const SXFormatSettingPtr& format : m_aryAFormats) {
        if (format->fmtName() == name)
            return format->copy();
    }
    return nullptr;
}

QString SXDataEngine::getDecodecWithCodecName(const QString& codecName) const {
    return m_dicDecodeMaps.value(codecName);
}

int SXDataEngine::getTagFileFormatByFileType(const QString& ext) {
    const QString lower = ext.toLower();
    // The tag library's own codes: mp3 and flac share 0 on purpose.
    if (lower == QLatin1String("mp3") || lower == QLatin1String("flac"))
        return 0;
    if (lower == QLatin1String("m4a") || lower == QLatin1String("mp4"))
        return 1;
    return 4;
}

QStringList SXDataEngine::getCanNotRemoveFormatContainer() {
    return {QStringLiteral("MP3"), QStringLiteral("AAC"), QStringLiteral("Ringtone")};
}

QStringList SXDataEngine::getCanUseImageType() {
    return {QStringLiteral("PNG"), QStringLiteral("JPEG"), QStringLiteral("JPG")};
}
