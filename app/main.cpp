#include "DisplayCheck.h"
#include "RunFromEnvironment.h"
#include "WindowScreenshot.h"
#include "base/SXInstallation.h"
#include "base/SXLog.h"
#include "base/SXSignalWatcher.h"
#include "base/SXTranslations.h"
#include "desktop/SXSingleInstance.h"
#include "gui/application/SXDesktopApp.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace {

QCommandLineOption declareOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Converts audio and video files."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption verbose(
        QStringLiteral("verbose"),
        QCoreApplication::translate("main", "Mirror log lines to standard error."));
    parser.addOption(verbose);
    parser.addPositionalArgument(
        QStringLiteral("files"),
        QCoreApplication::translate("main", "Audio or video files and folders to add."),
        QStringLiteral("[FILE…]"));
    return verbose;
}

// --help and --version are answered before the application object exists, so they need no
// display. Anything else (Qt's own options, mistakes) waits for the full parse.
bool answeredWithoutDisplay(QCommandLineParser& parser, int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    (void)parser.parse(arguments);
    if (parser.isSet(QStringLiteral("help"))) {
        // A core application is enough for the catalogues: the help reads in the user's language
        // without opening a display. Without it Qt cannot know the program's name either.
        QCoreApplication core(argc, argv);
        SXTranslations::install(core);
        QCommandLineParser translated;
        declareOptions(translated);
        QString help = translated.helpText();
        // The usage line names the program as it was called; people type its bare name.
        const QString called = arguments.first();
        if (const qsizetype at = help.indexOf(called); at >= 0 && called.contains(QLatin1Char('/')))
            help.replace(at, called.size(), QFileInfo(called).fileName());
        std::fputs(qPrintable(help), stdout);
        return true;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        std::printf("%s %s (build %s)\n", qPrintable(SXInstallation::productName()),
                    qPrintable(SXInstallation::version()),
                    qPrintable(SXInstallation::buildNumber()));
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv) {
    // With --verbose piped into a reader that goes away, a log line must not end the program.
    SXSignalWatcher::ignoreBrokenPipe();
    QApplication::setApplicationName(QStringLiteral("Sonoria"));
    QApplication::setApplicationVersion(SXInstallation::version());
    QCommandLineParser parser;
    const QCommandLineOption verbose = declareOptions(parser);
    if (answeredWithoutDisplay(parser, argc, argv))
        return 0;
    if (refusedWithoutDisplay(argc, argv))
        return 1;

    QApplication app(argc, argv);
    SXTranslations::install(app);
    QApplication::setApplicationDisplayName(SXInstallation::productName());
    QApplication::setDesktopFileName(QStringLiteral("app.sonoria.Sonoria"));
    parser.process(app);
    SXLog::install(parser.isSet(verbose) || SXLog::verboseFromEnvironment());

    QStringList files;
    for (const QString& path : parser.positionalArguments())
        files.append(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    // A second start hands its files to the running Sonoria and ends; without a bus, or when
    // that one does not answer, it carries on as a program of its own.
    SXSingleInstance instance;
    if (!instance.claim() && SXSingleInstance::handOver(files))
        return 0;

    // Outlives the desktop app: a signal while the program is already ending waits in the pipe.
    SXSignalWatcher signalWatcher;
    SXDesktopApp desktop;
    QObject::connect(&instance, &SXSingleInstance::openRequested, &desktop,
                     &SXDesktopApp::openFiles);
    // kill, logout, shutdown, a closed terminal and Ctrl-C do what Stop does in every window,
    // then end the program: no child is left running and no partial file is left behind.
    QObject::connect(&signalWatcher, &SXSignalWatcher::received, &desktop,
                     &SXDesktopApp::quitForSignal);
    if (!signalWatcher.install(SXSignalWatcher::terminationSignals()))
        SXLog::line(QStringLiteral("cannot watch for termination signals"));
    desktop.start(files);
    saveWindowScreenshotFromEnvironment(desktop);
    startRunFromEnvironment(desktop);
    return QApplication::exec();
}
