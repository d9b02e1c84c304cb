#include "online/SXPreferences.h"

#include "base/SXInstallation.h"
#include "base/SXSettings.h"
#include "online/SXServiceRequest.h"

#include <QCoreApplication>

namespace {
const QString kMainWindowGeometry = QStringLiteral("SXMainWindowGeometry");
const QString kWebsite = QStringLiteral("https://sonoria.app");
const QString kSupportAddress = QStringLiteral("support@sonoria.app");
} // namespace

QStringList SXPreferences::maxTasksTitles() {
    return {QStringLiteral("2"), QStringLiteral("5"), QStringLiteral("10")};
}

int SXPreferences::maxTasksIndex() {
    return int(maxTasksTitles().indexOf(
        QString::number(SXSettings::integerForKey(SXSettingsKey::MaxTask))));
}

void SXPreferences::setMaxTasks(const QString& chosenTitle) {
    SXSettings::setValue(SXSettingsKey::MaxTask, chosenTitle.toInt());
    SXSettings::synchronize();
}

QStringList SXPreferences::libraryFormatTitles() {
    return {QStringLiteral("AAC"), QStringLiteral("MP3")};
}

int SXPreferences::libraryFormatIndex() {
    return SXSettings::stringForKey(SXSettingsKey::libraryFormat) == QLatin1String("AAC") ? 0 : 1;
}

void SXPreferences::setLibraryFormat(int chosenIndex) {
    SXSettings::setValue(SXSettingsKey::libraryFormat,
                         chosenIndex == 0 ? QStringLiteral("AAC") : QStringLiteral("MP3"));
    SXSettings::synchronize();
}

QList<ConvertExisting> SXPreferences::existingOutputsChoices() {
    return {ConvertExisting::Skip, ConvertExisting::KeepBoth, ConvertExisting::Replace};
}

QStringList SXPreferences::existingOutputsTitles() {
    return {QCoreApplication::translate("SXPreferences", "Skip files already converted"),
            QCoreApplication::translate("SXPreferences", "Keep both"),
            QCoreApplication::translate("SXPreferences", "Replace")};
}

ConvertExisting SXPreferences::existingOutputs() {
    return ConvertExistingNames::parse(SXSettings::stringForKey(SXSettingsKey::ExistingOutputs))
        .value_or(ConvertExisting::Skip);
}

int SXPreferences::existingOutputsIndex() {
    return int(existingOutputsChoices().indexOf(existingOutputs()));
}

void SXPreferences::setExistingOutputs(int chosenIndex) {
    const QList<ConvertExisting> choices = existingOutputsChoices();
    if (chosenIndex < 0 || chosenIndex >= choices.size())
        return;
    SXSettings::setValue(SXSettingsKey::ExistingOutputs,
                         ConvertExistingNames::name(choices.at(chosenIndex)));
    SXSettings::synchronize();
}

QString SXPreferences::playlistName() {
    return SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName);
}

void SXPreferences::controlTextDidChange(const QString& text) {
    SXSettings::setValue(SXSettingsKey::libraryPlaylistName, text);
    SXSettings::synchronize();
}

bool SXPreferences::serviceConsent() {
    return SXServiceRequest::hasConsent();
}

void SXPreferences::setServiceConsent(bool agreed) {
    SXServiceRequest::setConsent(agreed);
}

QString SXPreferences::serviceAddress() {
    const QString base = SXServiceRequest::baseURL();
    return base.isEmpty() ? SXServiceRequest::defaultBaseURL() : base;
}

QByteArray SXPreferences::mainWindowGeometry() {
    return QByteArray::fromBase64(SXSettings::stringForKey(kMainWindowGeometry).toLatin1());
}

void SXPreferences::setMainWindowGeometry(const QByteArray& geometry) {
    SXSettings::setValue(kMainWindowGeometry, QString::fromLatin1(geometry.toBase64()));
    SXSettings::synchronize();
}

QUrl SXPreferences::helpPageUrl() {
    // The page made from the README at build time and installed with the resources; no
    // network needed. Empty when the installation lacks it.
    const QString page =
        SXInstallation::pathForResource(QStringLiteral("help"), QStringLiteral("html"));
    return page.isEmpty() ? QUrl() : QUrl::fromLocalFile(page);
}

QUrl SXPreferences::websiteUrl() {
    return QUrl(kWebsite);
}

QUrl SXPreferences::feedbackMailUrl() {
    QUrl url(QStringLiteral("mailto:") + kSupportAddress);
    url.setQuery(QStringLiteral("subject=") +
                 QString::fromLatin1(QUrl::toPercentEncoding(
                     QStringLiteral("About %1").arg(SXInstallation::productName()))));
    return url;
}
