#include "CliCatalogue.h"

#include "workspace/SXCatalogueTexts.h"

#include "model/SXDataEngine.h"

#include <QCoreApplication>

namespace {

QString choiceLine(const QString& caption, const QStringList& offered, const QString& chosen) {
    QStringList shown;
    for (const QString& choice : offered)
        shown.append(choice == chosen ? choice + QLatin1Char('*') : choice);
    return QStringLiteral("    %1 %2\n").arg(caption, -14).arg(shown.join(QStringLiteral(", ")));
}

QString libraryText(int enumAddToLibrary) {
    if (enumAddToLibrary < 0)
        return QCoreApplication::translate("CliCatalogue", "not offered");
    return enumAddToLibrary == 1 ? QCoreApplication::translate("CliCatalogue", "offered, on")
                                 : QCoreApplication::translate("CliCatalogue", "offered, off");
}

// Applies one choice; false with *error when the format does not offer it.
bool applyChoice(const QString& wanted, const QStringList& offered, const QString& what,
                 const SXFormatSetting& format, QString* chosen, QString* error) {
    if (wanted.isEmpty())
        return true;
    const QString match = CliCatalogue::matchChoice(offered, wanted);
    if (match.isEmpty()) {
        *error =
            QCoreApplication::translate("CliCatalogue", "%1 does not offer %2 \"%3\" (offered: %4)")
                .arg(format.fmtName(), what, wanted, offered.join(QStringLiteral(", ")));
        return false;
    }
    *chosen = match;
    return true;
}

} // namespace

QString CliCatalogue::formatListing() {
    const SXDataEngine* engine = SXDataEngine::shareInstance();
    QString text = QCoreApplication::translate("CliCatalogue",
                                               "Output formats (* marks the default choice):\n");
    for (const QString& name : engine->getAllOutputFormats()) {
        const SXFormatSettingPtr format = engine->getFormatWithName(name);
        if (!format)
            continue;
        text += QStringLiteral("%1 (.%2): %3\n")
                    .arg(name, format->outputExtName(),
                         SXCatalogueTexts::description(format->fmtDescribe()));
        text += choiceLine(QCoreApplication::translate("CliCatalogue", "bit rates:"),
                           format->aryBiteRate(), format->bitRate());
        text += choiceLine(QCoreApplication::translate("CliCatalogue", "sample rates:"),
                           format->arySampleRate(), format->sampleRate());
        text += choiceLine(QCoreApplication::translate("CliCatalogue", "channels:"),
                           format->aryChannels(), format->channels());
        text += QStringLiteral("    %1 %2\n")
                    .arg(QCoreApplication::translate("CliCatalogue", "music library:"), -14)
                    .arg(libraryText(format->enumAddToLibrary()));
    }
    return text;
}

QString CliCatalogue::matchChoice(const QStringList& offered, const QString& wanted) {
    const QString trimmed = wanted.trimmed();
    for (const QString& choice : offered) {
        if (choice.compare(trimmed, Qt::CaseInsensitive) == 0)
            return choice;
    }
    return QString();
}

SXFormatSettingPtr CliCatalogue::settingForOptions(const CliOptions& options, QString* error) {
    const SXDataEngine* engine = SXDataEngine::shareInstance();
    SXFormatSettingPtr format = engine->getFormatWithName(options.formatName);
    if (!format) {
        *error =
            QCoreApplication::translate("CliCatalogue", "unknown format \"%1\" (formats: %2)")
                .arg(options.formatName, engine->getAllOutputFormats().join(QStringLiteral(", ")));
        return nullptr;
    }
    QString bitrate = format->bitRate();
    QString samplerate = format->sampleRate();
    QString channels = format->channels();
    if (!applyChoice(options.bitrate, format->aryBiteRate(),
                     QCoreApplication::translate("CliCatalogue", "bit rate"), *format, &bitrate,
                     error) ||
        !applyChoice(options.samplerate, format->arySampleRate(),
                     QCoreApplication::translate("CliCatalogue", "sample rate"), *format,
                     &samplerate, error) ||
        !applyChoice(options.channels, format->aryChannels(),
                     QCoreApplication::translate("CliCatalogue", "channels"), *format, &channels,
                     error))
        return nullptr;
    format->setBiteRate(bitrate);
    format->setSampleRate(samplerate);
    format->setChannels(channels);

    if (options.library && format->enumAddToLibrary() < 0) {
        *error = QCoreApplication::translate("CliCatalogue",
                                             "%1 does not offer delivery to the music library")
                     .arg(format->fmtName());
        return nullptr;
    }
    // The tool delivers to the library only when asked, whatever the preset's default.
    if (format->enumAddToLibrary() >= 0)
        format->setEnumAddToLibrary(options.library ? 1 : 0);
    format->setReplayGain(options.replayGain);
    format->setNormalise(options.normalise);
    return format;
}
