#include "base/SXTranslations.h"

#include "base/SXInstallation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

const QString kPrefix = QStringLiteral("sonoria_");
const QString kEnglish = QStringLiteral("en");

QTranslator* loadCatalogue(const QString& path, QObject* parent) {
    auto* translator = new QTranslator(parent);
    if (translator->load(path))
        return translator;
    delete translator;
    return nullptr;
}

} // namespace

QString SXTranslations::catalogueFolder() {
    for (const QString& dir : SXInstallation::resourceDirectories()) {
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

QList<QTranslator*> SXTranslations::load(const QString& language, QObject* parent) {
    const QString folder = catalogueFolder();
    QTranslator* own =
        folder.isEmpty()
            ? nullptr
            : loadCatalogue(folder + QLatin1Char('/') + kPrefix + language + QStringLiteral(".qm"),
                            parent);
    if (!own)
        return {};
    QList<QTranslator*> loaded;
    // Qt's own texts (the standard buttons, the file dialog, the command-line parser's errors)
    // in the same language; English needs none.
    if (language != kEnglish) {
        const QString qtFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        if (QTranslator* qt = loadCatalogue(
                qtFolder + QStringLiteral("/qtbase_") + language + QStringLiteral(".qm"), parent))
            loaded.append(qt);
    }
    loaded.append(own);
    return loaded;
}

QString SXTranslations::install(QCoreApplication& app) {
    const QString language = languageFor(QLocale::system().uiLanguages(), availableLanguages());
    const QList<QTranslator*> translators = load(language, &app);
    if (translators.isEmpty())
        return {};
    for (QTranslator* translator : translators)
        QCoreApplication::installTranslator(translator);
    return language;
}
