#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QCoreApplication;
class QObject;
class QTranslator;

// Chooses and installs the program's catalogue and Qt's own for the user's language, for the
// window and the command-line tool alike.
class SXTranslations {
public:
    // Installs the catalogue of the first of the user's languages (LANGUAGE, LC_ALL,
    // LC_MESSAGES, LANG, as QLocale::system() reads them) that has one, and Qt's own catalogue
    // of that language beside it. Without a match, and for English or the C locale, the English
    // catalogue is installed: it corrects the wording of the source texts. Returns the language
    // installed ("de", "pt_BR", "en"), or an empty string when no catalogue was found.
    static QString install(QCoreApplication& app);
    // The catalogues of `language` ("de", "en"), loaded but not installed and owned by `parent`:
    // Qt's own first (none for English), then the program's. Empty when the program's is missing.
    static QList<QTranslator*> load(const QString& language, QObject* parent);

    // The catalogue name ("pt_BR", "de") for the first of `uiLanguages` ("de-DE", "pt-BR", "C")
    // among `available`, trying the full name before the bare language; "en" when none matches.
    static QString languageFor(const QStringList& uiLanguages, const QStringList& available);

    // The languages that have a catalogue ("en", "de", …) in catalogueFolder().
    static QStringList availableLanguages();
    // The first of SXInstallation's resource folders that holds a "translations" folder with the
    // English catalogue; empty when none does.
    static QString catalogueFolder();
};
