#include "support/TestSupport.h"

#include "base/SXTranslations.h"

#include <QDir>
#include <QHash>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString kCatalogues = QStringLiteral(SONORIA_SOURCE_DIR "/translations");

struct Entry {
    QString context;
    QString source;
    QStringList translations; // one, or one per plural form
    bool finished = true;
};

// The text of a <translation>: its plural forms, or its plain text; empty texts are left out.
QStringList translationTexts(QXmlStreamReader& xml) {
    QStringList texts;
    QString plain;
    while (xml.readNext() != QXmlStreamReader::EndElement || xml.name() != "translation"_L1) {
        if (xml.atEnd())
            break;
        if (xml.isStartElement() && xml.name() == "numerusform"_L1) {
            const QString form = xml.readElementText();
            if (!form.isEmpty())
                texts.append(form);
        } else if (xml.isCharacters()) {
            plain += xml.text();
        }
    }
    if (texts.isEmpty() && !plain.trimmed().isEmpty())
        texts.append(plain);
    return texts;
}

QList<Entry> readCatalogue(const QByteArray& text, QString* error) {
    QList<Entry> entries;
    QString context;
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.name() == "message"_L1) {
            entries.append({context, {}, {}, true});
        } else if (xml.name() == "source"_L1 && !entries.isEmpty()) {
            entries.last().source = xml.readElementText();
        } else if (xml.name() == "translation"_L1 && !entries.isEmpty()) {
            const QString type = xml.attributes().value("type"_L1).toString();
            entries.last().finished = type.isEmpty();
            entries.last().translations = translationTexts(xml);
            // Texts no longer in the sources are dropped by the refresh; they count for nothing.
            if (type == "vanished"_L1 || type == "obsolete"_L1)
                entries.removeLast();
        }
    }
    if (xml.hasError())
        *error = xml.errorString();
    return entries;
}

// %1 and %L1 are the same argument; %n is the count.
QStringList placeholders(const QString& text) {
    static const QRegularExpression pattern(u"%L?(\\d+|n)"_s);
    QStringList found;
    for (auto it = pattern.globalMatch(text); it.hasNext();)
        found.append(it.next().captured(1));
    found.sort();
    return found;
}

// The accelerator letter of a text ("&Open" gives 'o'); "&&" is a plain ampersand.
QChar accelerator(const QString& text) {
    QString plain = text;
    plain.replace(u"&&"_s, QString());
    const qsizetype at = plain.indexOf(u'&');
    return at >= 0 && at + 1 < plain.size() ? plain.at(at + 1).toLower() : QChar();
}

QStringList problemsOf(const QList<Entry>& entries) {
    QStringList problems;
    QHash<QString, QHash<QChar, QString>> accelerators; // context -> letter -> source
    for (const Entry& entry : entries) {
        const QString where = entry.context + u": \""_s + entry.source + u'"';
        if (!entry.finished || entry.translations.isEmpty()) {
            problems.append(where + u" is unfinished"_s);
            continue;
        }
        for (const QString& text : entry.translations) {
            if (placeholders(text) != placeholders(entry.source))
                problems.append(where + u" has other placeholders in \""_s + text + u'"');
        }
        const QChar letter = accelerator(entry.translations.first());
        if (letter.isNull())
            continue;
        QString& holder = accelerators[entry.context][letter];
        if (!holder.isEmpty() && holder != entry.source)
            problems.append(where + u" takes &"_s + letter + u" from \""_s + holder + u'"');
        else
            holder = entry.source;
    }
    return problems;
}

} // namespace

class TestCatalogues : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Every text the sources hand to tr(), under the class it is in now: a renamed class
    // otherwise takes its texts out of the catalogues' reach, and people read them in English
    // although each has its translation under the old name.
    void initTestCase() {
        QTemporaryDir scratch;
        const QString scanned = scratch.filePath(u"sources.ts"_s);
        const QString lupdate = QLibraryInfo::path(QLibraryInfo::BinariesPath) + u"/lupdate"_s;
        const SonoriaTest::RunResult scan = SonoriaTest::runProgram(
            lupdate,
            {u"-silent"_s, u"-locations"_s, u"none"_s, u"-extensions"_s, u"cpp,h"_s, u"src"_s,
             u"cli"_s, u"app"_s, u"-source-language"_s, u"en"_s, u"-ts"_s, scanned},
            {}, QStringLiteral(SONORIA_SOURCE_DIR));
        SONORIA_COMPARE_EXIT(scan, 0);
        QString error;
        m_wanted = readCatalogue(SonoriaTest::readFile(scanned), &error);
        QVERIFY2(m_wanted.size() > 100, qPrintable(error));
    }
    void catalogueIsCompleteAndFollowsTheSources_data() {
        QTest::addColumn<QString>("path");
        const QStringList files = QDir(kCatalogues).entryList({u"sonoria_*.ts"_s}, QDir::Files);
        QVERIFY(files.contains(u"sonoria_en.ts"_s));
        for (const QString& file : files)
            QTest::newRow(qPrintable(file)) << kCatalogues + u'/' + file;
    }
    void catalogueIsCompleteAndFollowsTheSources() {
        QFETCH(QString, path);
        QString error;
        const QList<Entry> entries = readCatalogue(SonoriaTest::readFile(path), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        SONORIA_VERIFY_NONE(problemsOf(entries));
        QSet<QString> present;
        for (const Entry& entry : entries)
            present.insert(entry.context + u'|' + entry.source);
        QStringList missing;
        for (const Entry& entry : std::as_const(m_wanted)) {
            if (!present.contains(entry.context + u'|' + entry.source))
                missing.append(entry.context + u" | "_s + entry.source);
        }
        SONORIA_VERIFY_NONE(missing);
    }
    // The check itself, on small catalogues with one fault each.
    void checkFindsFaults_data() {
        QTest::addColumn<QString>("messages");
        QTest::addColumn<bool>("faulty");
        const auto message = [](const char* source, const char* translation,
                                const char* type = "") {
            return u"<message><source>%1</source><translation%3>%2</translation></message>"_s.arg(
                QString::fromLatin1(source).toHtmlEscaped(),
                QString::fromLatin1(translation).toHtmlEscaped(), QString::fromLatin1(type));
        };
        QTest::newRow("fine") << message("&Open", "&Open") + message("&Save", "&Save") << false;
        QTest::newRow("unfinished") << message("Open", "Open", " type=\"unfinished\"") << true;
        QTest::newRow("empty") << message("Open", "") << true;
        QTest::newRow("placeholder missing") << message("%1 of %2", "%1 of") << true;
        QTest::newRow("placeholder extra") << message("of %2", "%1 of %2") << true;
        QTest::newRow("localised argument") << message("%L1 s", "%1 s") << false;
        QTest::newRow("accelerator clash")
            << message("&Open", "&Open") + message("Qu&it", "&Order") << true;
        QTest::newRow("ampersand is no accelerator")
            << message("&Open", "&Open") + message("R&&B", "&&Other") << false;
        QTest::newRow("plural form missing %n")
            << u"<message numerus=\"yes\"><source>%n files</source><translation>"
               "<numerusform>one file</numerusform><numerusform>%n files</numerusform>"
               "</translation></message>"_s
            << true;
    }
    void checkFindsFaults() {
        QFETCH(QString, messages);
        QFETCH(bool, faulty);
        const QString catalogue = u"<?xml version=\"1.0\" encoding=\"utf-8\"?><TS version=\"2.1\">"
                                  "<context><name>Menu</name>"_s +
                                  messages + u"</context></TS>"_s;
        QString error;
        const QList<Entry> entries = readCatalogue(catalogue.toUtf8(), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(!problemsOf(entries).isEmpty(), faulty);
    }
    void languageIsChosen_data() {
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<QStringList>("available");
        QTest::addColumn<QString>("chosen");
        const QStringList all{u"de"_s, u"en"_s, u"es"_s, u"fr"_s, u"it"_s, u"pt_BR"_s};
        QTest::newRow("country falls back to language")
            << QStringList{u"de-AT"_s} << all << u"de"_s;
        QTest::newRow("country first") << QStringList{u"pt-BR"_s} << all << u"pt_BR"_s;
        QTest::newRow("no catalogue for the country")
            << QStringList{u"pt-PT"_s, u"pt"_s} << all << u"en"_s;
        QTest::newRow("next language of the list")
            << QStringList{u"nl-NL"_s, u"fr-FR"_s} << all << u"fr"_s;
        QTest::newRow("C locale") << QStringList{u"C"_s} << all << u"en"_s;
        QTest::newRow("nothing but English")
            << QStringList{u"de-DE"_s} << QStringList{u"en"_s} << u"en"_s;
    }
    void languageIsChosen() {
        QFETCH(QStringList, uiLanguages);
        QFETCH(QStringList, available);
        QFETCH(QString, chosen);
        QCOMPARE(SXTranslations::languageFor(uiLanguages, available), chosen);
    }
    void toolSpeaksTheLocale_data() {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<int>("files");
        QTest::addColumn<QString>("summary"); // the catalogues' plural forms
        QTest::newRow("C") << u"C"_s << 1 << u"1 file would be converted to MP3 in "_s;
        QTest::newRow("American English")
            << u"en_US.UTF-8"_s << 2 << u"2 files would be converted to MP3 in "_s;
        QTest::newRow("German") << u"de_DE.UTF-8"_s << 2 << u"2 Dateien würden nach MP3 in "_s;
        // Without a catalogue of the locale's language, the English one speaks.
        QTest::newRow("Dutch") << u"nl_NL.UTF-8"_s << 1
                               << u"1 file would be converted to MP3 in "_s;
    }
    void toolSpeaksTheLocale() {
        QFETCH(QString, lang);
        QFETCH(int, files);
        QFETCH(QString, summary);
        QTemporaryDir dir;
        QStringList arguments{u"--dry-run"_s, u"-o"_s, dir.filePath(u"out"_s)};
        for (int i = 0; i < files; ++i) {
            arguments.append(dir.filePath(u"tone %1.wav"_s.arg(i)));
            QVERIFY(SonoriaTest::makeTone(arguments.last(), 0.2));
        }
        const SonoriaTest::RunResult cli =
            SonoriaTest::runCli(arguments, SonoriaTest::cliEnvironment(lang));
        SONORIA_COMPARE_EXIT(cli, 0);
        QVERIFY2(cli.out.contains(summary), qPrintable(cli.out));
    }

private:
    QList<Entry> m_wanted;
};

SONORIA_TEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
