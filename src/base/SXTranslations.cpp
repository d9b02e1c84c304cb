#include "base/SXTranslations.h"

#include "base/SXBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

const QString kPrefix = QStringLiteral("sonoria_");
const QString kEnglish = QStringLiteral("en");

bool installCatalogue(QCoreApplication& app, const QString& path) {
    auto* translator = new QTranslator(&app);
    if (!translator->load(path)) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

} // namespace

QString SXTranslations::catalogueFolder() {
    for (const QString& dir : SXBundle::resourceDirectories()) {
        const QString folder = dir + QStringLiteral("/translations");
        if (QFileInfo(folder + QLatin1Char('/') + kPrefix + kEnglish + QStringLiteral(".qm"))
                .isFile())
            return folder;
    }
    return {};
}

QStringList SXTranslations::availableLanguages() {
    const QString folder = catalogueFolder();
    if (folder.isEmpty())
        return {};
    QStringList languages;
    const QStringList files =
        QDir(folder).entryList({kPrefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(QFileInfo(file).completeBaseName().mid(kPrefix.size()));
    return languages;
}

QString SXTranslations::languageFor(const QStringList& uiLanguages, const QStringList& available) {
    for (const QString& uiLanguage : uiLanguages) {
        // "pt-BR" names the catalogue "pt_BR"; a script ("zh-Hans-CN") is not part of our names.
        const QStringList parts = uiLanguage.split(QLatin1Char('-'));
        const QString language = parts.first().toLower();
        if (language == QLatin1String("c") || language == QLatin1String("posix"))
            return kEnglish;
        if (parts.size() > 1) {
            const QString withCountry = language + QLatin1Char('_') + parts.last().toUpper();
            if (available.contains(withCountry))
                return withCountry;
        }
        if (available.contains(language))
            return language;
    }
    return kEnglish;
}

QString SXTranslations::install(QCoreApplication& app) {
    const QString folder = catalogueFolder();
    if (folder.isEmpty())
        return {};
    const QString language = languageFor(QLocale::system().uiLanguages(), availableLanguages());
    // Qt's own texts (the standard buttons, the file dialog, the command-line parser's errors)
    // in the same language; English needs none.
    if (language != kEnglish) {
        const QString qtFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        installCatalogue(app,
                         qtFolder + QStringLiteral("/qtbase_") + language + QStringLiteral(".qm"));
    }
    if (!installCatalogue(app,
                          folder + QLatin1Char('/') + kPrefix + language + QStringLiteral(".qm")))
        return {};
    return language;
}
