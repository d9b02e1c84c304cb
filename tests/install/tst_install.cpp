#include "base/SXFolderScan.h"
#include "base/SXInstallation.h"
#include "support/TestSupport.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QImage>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString kPrefix = u"/usr/local"_s;
const QString kAppId = u"app.sonoria.Sonoria"_s;

using SonoriaTest::RunResult;

// Runs from "/", so that nothing beside a working folder is found by chance.
RunResult runWith(const QString& program, const QStringList& arguments,
                  const QProcessEnvironment& environment) {
    return SonoriaTest::runProgram(program, arguments, environment, u"/"_s);
}

// The environment of a user of the installed programs: nothing points into the build or the
// sources, and there is no display.
QProcessEnvironment userEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"SONORIA_RESOURCES_DIR", "DISPLAY", "WAYLAND_DISPLAY",
                             "QT_QPA_PLATFORM", "DBUS_SESSION_BUS_ADDRESS"})
        environment.remove(QString::fromLatin1(name));
    return environment;
}

} // namespace

// `cmake --install` of this build into a temporary DESTDIR, then the installed files judged by
// the desktop's own validators and the installed programs run from the prefix alone.
class TestInstall : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_destDir.isValid());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DESTDIR"_s, m_destDir.path());
        const RunResult install =
            runWith(QStringLiteral(SONORIA_CMAKE_COMMAND),
                    {u"--install"_s, QStringLiteral(SONORIA_BINARY_DIR), u"--prefix"_s, kPrefix},
                    environment);
        QVERIFY2(install.exitCode == 0, qPrintable(install.out + install.err));
        m_prefix = m_destDir.path() + kPrefix;
        QStringList strays;
        QDirIterator it(m_destDir.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            // Benchmarks and tests stay in the build; everything lands under the prefix.
            if (!path.startsWith(m_prefix + u'/') || it.fileName().startsWith(u"sonoria-bench"_s) ||
                it.fileName().startsWith(u"tst_"_s))
                strays.append(path);
        }
        SONORIA_VERIFY_NONE(strays);
    }
    void installsEveryFileInPlace_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("executable");
        QTest::newRow("program") << u"bin/sonoria"_s << true;
        QTest::newRow("command-line tool") << u"bin/sonoria-cli"_s << true;
        QTest::newRow("catalogue") << u"share/sonoria/Formats.plist"_s << false;
        QTest::newRow("library script") << u"share/sonoria/sync-music-library.sh"_s << true;
        QTest::newRow("desktop entry")
            << u"share/applications/app.sonoria.Sonoria.desktop"_s << false;
        QTest::newRow("metainfo") << u"share/metainfo/app.sonoria.Sonoria.metainfo.xml"_s << false;
        QTest::newRow("scalable icon")
            << u"share/icons/hicolor/scalable/apps/app.sonoria.Sonoria.svg"_s << false;
        QTest::newRow("manual") << u"share/man/man1/sonoria.1.gz"_s << false;
        QTest::newRow("tool manual") << u"share/man/man1/sonoria-cli.1.gz"_s << false;
        QTest::newRow("help page") << u"share/sonoria/help.html"_s << false;
        QTest::newRow("English catalogue")
            << u"share/sonoria/translations/sonoria_en.qm"_s << false;
        for (int size : {16, 24, 32, 48, 64, 128, 256})
            QTest::addRow("icon %d", size)
                << u"share/icons/hicolor/%1x%1/apps/app.sonoria.Sonoria.png"_s.arg(size) << false;
    }
    void installsEveryFileInPlace() {
        QFETCH(QString, path);
        QFETCH(bool, executable);
        const QFileInfo file(installed(path));
        QVERIFY2(file.isFile() && file.size() > 0, qPrintable(path));
        QCOMPARE(file.isExecutable(), executable);
        if (path.endsWith(u".png"_s)) {
            // Drawn to its size, not an empty canvas: the middle is opaque, a corner of the rounded
            // square is not.
            const QImage icon(file.filePath());
            QVERIFY(path.contains(u"/%1x%2/"_s.arg(icon.width()).arg(icon.height())));
            QCOMPARE(qAlpha(icon.pixel(icon.width() / 2, icon.height() / 2)), 255);
            QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
        }
    }
    void validatorsAcceptTheDesktopFiles_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("desktop entry") << u"desktop-file-validate"_s << QStringList{desktopEntry()};
        QTest::newRow("metainfo") << u"appstreamcli"_s
                                  << QStringList{u"validate"_s, u"--no-net"_s, metainfo()};
        // What lintian runs: groff warnings about the page's markup go to standard error.
        for (const QString& page : {u"sonoria"_s, u"sonoria-cli"_s})
            QTest::newRow(qPrintable(u"manual "_s + page))
                << u"man"_s << QStringList{u"--warnings"_s, u"-E"_s, u"UTF-8"_s,  u"-l"_s,
                                           u"-Tutf8"_s,     u"-Z"_s, manual(page)};
    }
    void validatorsAcceptTheDesktopFiles() {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"MANROFFSEQ"_s, QString());
        const RunResult check = runWith(program, arguments, environment);
        QVERIFY2(check.exitCode == 0, qPrintable(check.out + check.err));
        if (program == u"man"_s)
            QVERIFY2(check.err.isEmpty(), qPrintable(check.err));
    }
    void desktopEntryOffersEveryAcceptedType() {
        const QString entry = QString::fromUtf8(SonoriaTest::readFile(desktopEntry()));
        const QRegularExpression line(u"^MimeType=(.*)$"_s, QRegularExpression::MultilineOption);
        const QStringList offered = line.match(entry).captured(1).split(u';', Qt::SkipEmptyParts);
        QMimeDatabase mimes;
        QStringList missing;
        for (const QString& extension : SXFolderScan::acceptedExtensions()) {
            QStringList types;
            for (const QMimeType& type : mimes.mimeTypesForFileName(u"file."_s + extension))
                types.append(type.name());
            // An extension no MIME type claims cannot be offered; one that is claimed must be.
            const bool covered = types.isEmpty() ||
                                 std::any_of(types.begin(), types.end(), [&](const QString& name) {
                                     return offered.contains(name);
                                 });
            if (!covered)
                missing.append(extension + u" ("_s + types.join(u", "_s) + u')');
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
        QVERIFY(entry.contains(u"\nExec=sonoria %F\n"_s));
    }
    void metainfoDescribesThisRelease() {
        QXmlStreamReader xml(SonoriaTest::readFile(metainfo()));
        QString launchable;
        QStringList releases;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == u"launchable")
                launchable = xml.readElementText();
            else if (xml.name() == u"release")
                releases.append(xml.attributes().value(u"version"_s).toString());
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QCOMPARE(launchable, kAppId + u".desktop"_s);
        QVERIFY2(releases.contains(SXInstallation::version()), qPrintable(releases.join(u' ')));
    }
    // Both programs answer without a display, and the tool's manual names every option that its
    // --help lists.
    void installedProgramsAnswerAndTheManualListsEveryOption() {
        const QList<std::pair<QStringList, QString>> answers{
            {{u"sonoria"_s, u"--help"_s}, u"Usage: sonoria [options]"_s},
            {{u"sonoria"_s, u"--version"_s}, u"Sonoria "_s + SXInstallation::version()},
            {{u"sonoria-cli"_s, u"--help"_s}, u"Usage: sonoria-cli"_s}};
        RunResult help;
        for (const auto& [call, expected] : answers) {
            help = runWith(installed(u"bin/"_s + call.first()), {call.last()}, userEnvironment());
            SONORIA_COMPARE_EXIT(help, 0);
            QVERIFY2(help.out.startsWith(expected), qPrintable(help.out));
        }
        const RunResult page =
            runWith(u"gzip"_s, {u"-dc"_s, manual(u"sonoria-cli"_s)}, userEnvironment());
        SONORIA_COMPARE_EXIT(page, 0);
        QStringList undocumented;
        for (const auto& match : QRegularExpression(u"--([a-z][a-z-]+)"_s).globalMatch(help.out)) {
            const QString troff = u"\\-\\-"_s + match.captured(1).replace(u'-', u"\\-"_s);
            if (!page.out.contains(troff))
                undocumented.append(match.captured(0));
        }
        QVERIFY2(undocumented.isEmpty(), qPrintable(undocumented.join(u' ')));
    }
    void installedCliConvertsWithThePrefixAlone() {
        QTemporaryDir work;
        const QString source = work.filePath(u"tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(source, 1.0));
        const QString cli = installed(u"bin/sonoria-cli"_s);
        const QStringList arguments{u"-f"_s, u"MP3"_s,    u"--no-organize"_s,
                                    u"-o"_s, work.path(), source};
        const RunResult converted = runWith(cli, arguments, userEnvironment());
        QVERIFY2(converted.exitCode == 0, qPrintable(converted.out + converted.err));
        QVERIFY(QFileInfo(work.filePath(u"tone.mp3"_s)).size() > 0);

        // Without the prefix's own catalogue there is none: no other place is looked in.
        const QString resources = installed(u"share/sonoria"_s);
        QVERIFY(QDir().rename(resources, resources + u".away"_s));
        const RunResult stranded = runWith(cli, arguments, userEnvironment());
        QVERIFY(QDir().rename(resources + u".away"_s, resources));
        SONORIA_COMPARE_EXIT(stranded, 2);
        QVERIFY2(stranded.err.contains(u"unknown format \"MP3\""_s), qPrintable(stranded.err));
    }

private:
    QString installed(const QString& relative) const { return m_prefix + u'/' + relative; }
    QString desktopEntry() const {
        return installed(u"share/applications/"_s + kAppId + u".desktop"_s);
    }
    QString metainfo() const {
        return installed(u"share/metainfo/"_s + kAppId + u".metainfo.xml"_s);
    }
    QString manual(const QString& page) const {
        return installed(u"share/man/man1/"_s + page + u".1.gz"_s);
    }

    QTemporaryDir m_destDir;
    QString m_prefix;
};

SONORIA_TEST_MAIN(TestInstall)
#include "tst_install.moc"
