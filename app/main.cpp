#include "Gui/App/SXAppDelegate.h"
#include "Shared/SXBundle.h"
#include "Shared/SXLog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sonoria"));
    QApplication::setApplicationDisplayName(SXBundle::productName());
    QApplication::setApplicationVersion(SXBundle::shortVersionString());
    QApplication::setDesktopFileName(QStringLiteral("app.sonoria.Sonoria"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Converts audio and video files."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption verbose(QStringLiteral("verbose"),
                                     QStringLiteral("Mirror log lines to standard error."));
    parser.addOption(verbose);
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Audio or video files and folders to add."),
                                 QStringLiteral("[FILE…]"));
    parser.process(app);
    SXLog::install(parser.isSet(verbose) || SXLog::verboseFromEnvironment());

    QStringList files;
    for (const QString& path : parser.positionalArguments())
        files.append(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    SXAppDelegate delegate;
    delegate.start(files);
    return QApplication::exec();
}
