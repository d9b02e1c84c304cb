#include "SXSettings.h"

#include <QSettings>

namespace {
QSettings openStore() {
    return QSettings(QStringLiteral("Sonoria"), QStringLiteral("Sonoria"));
}
} // namespace

bool SXSettings::contains(const QString& key) {
    return openStore().contains(key);
}

int SXSettings::integerForKey(const QString& key, int fallback) {
    bool ok = false;
    const int value = openStore().value(key).toInt(&ok);
    return ok ? value : fallback;
}

QString SXSettings::stringForKey(const QString& key, const QString& fallback) {
    const QVariant value = openStore().value(key);
    if (!value.isValid())
        return fallback;
    // A one-element string list comes back from INI as a plain string, and a list of several
    // as a list: neither is a string setting, so only the first form is accepted.
    if (value.typeId() == QMetaType::QStringList)
        return fallback;
    return value.toString();
}

bool SXSettings::boolForKey(const QString& key, bool fallback) {
    const QVariant value = openStore().value(key);
    if (!value.isValid())
        return fallback;
    const QString text = value.toString().trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("yes"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("no") || text.isEmpty())
        return false;
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok ? number != 0.0 : fallback;
}

QVariant SXSettings::valueForKey(const QString& key) {
    return openStore().value(key);
}

void SXSettings::setValue(const QString& key, const QVariant& value) {
    QSettings store = openStore();
    store.setValue(key, value);
    store.sync();
}

void SXSettings::removeKey(const QString& key) {
    QSettings store = openStore();
    store.remove(key);
    store.sync();
}

void SXSettings::synchronize() {
    openStore().sync();
}

void SXSettings::setPreferenceValue() {
    if (integerForKey(SXSettingsKey::MaxTask) == 0)
        setValue(SXSettingsKey::MaxTask, 5);
    if (stringForKey(SXSettingsKey::libraryFormat).isEmpty())
        setValue(SXSettingsKey::libraryFormat, QStringLiteral("AAC"));
    if (stringForKey(SXSettingsKey::libraryPlaylistName).isEmpty())
        setValue(SXSettingsKey::libraryPlaylistName, QStringLiteral("Sonoria"));
    synchronize();
}

QString SXSettings::fileName() {
    return openStore().fileName();
}
