// Converts files with the workspace window, offscreen, as the Start button would, and reports
// the wall time from adding the files to the end of the run and the longest block of the main
// thread meanwhile. bench/window.sh compares it with sonoria-cli on the same files.
//
//   sonoria-bench-window [-f FORMAT] [-j JOBS] -o DIR FILE|FOLDER...
#include "MainThreadWatch.h"
#include "base/SXLog.h"
#include "gui/window/SXMainAppController.h"
#include "model/SXDataEngine.h"
#include "workspace/SXWorkspace.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTimer>

#include <sys/resource.h>

#include <cstdio>

namespace {

struct Options {
    QString format = QStringLiteral("MP3");
    int jobs = 2;
    QString output;
    QStringList files;
};

Options parse(const QApplication& app) {
    QCommandLineParser parser;
    const QCommandLineOption format({QStringLiteral("f"), QStringLiteral("format")},
                                    QStringLiteral("output format"), QStringLiteral("NAME"),
                                    QStringLiteral("MP3"));
    const QCommandLineOption jobs({QStringLiteral("j"), QStringLiteral("jobs")},
                                  QStringLiteral("simultaneous conversions"), QStringLiteral("N"),
                                  QStringLiteral("2"));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("output folder"), QStringLiteral("DIR"));
    parser.addOptions({format, jobs, output});
    parser.addHelpOption();
    parser.process(app);
    return {parser.value(format), parser.value(jobs).toInt(), parser.value(output),
            parser.positionalArguments()};
}

int selectContainer(SXWorkspace& workspace, const QString& format) {
    if (!workspace.store().tabLabels().contains(format))
        workspace.tabs().addContainerWithFormat(
            SXDataEngine::shareInstance()->getFormatWithName(format));
    const int index = int(workspace.store().tabLabels().indexOf(format));
    if (index >= 0)
        workspace.tabs().selectTab(index);
    return index;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SONORIA_NO_DESKTOP_OPEN", "1");
    QApplication app(argc, argv);
    SXLog::install(false); // the journal, as the program logs, not standard error
    const Options options = parse(app);
    if (options.output.isEmpty() || options.files.isEmpty()) {
        std::fprintf(stderr, "usage: sonoria-bench-window [-f FORMAT] [-j JOBS] -o DIR FILE...\n");
        return 2;
    }

    SXMainAppController window;
    window.show();
    SXWorkspace& workspace = window.workspace();
    workspace.tabs().addDefaultTabs();
    if (selectContainer(workspace, options.format) < 0) {
        std::fprintf(stderr, "no format %s\n", qPrintable(options.format));
        return 2;
    }
    // The first paint loads fonts and icons: a start-up cost, not a block during the run.
    window.grab();
    workspace.scheduler().setMaxConcurrentOverride(options.jobs);
    workspace.scheduler().setOrganizeByFormat(false);

    MainThreadWatch watch;
    QElapsedTimer clock;
    int succeeded = 0;
    int failed = 0;
    QObject::connect(&workspace.addRun(), &SXAddRun::loadFinished, &app, [&] {
        // The same run as Start with the folder already chosen.
        QTimer::singleShot(0, &app,
                           [&] { workspace.scheduler().doRealConverterTask(options.output); });
    });
    QObject::connect(&workspace.scheduler(), &SXWorkspaceScheduler::runFinished, &app,
                     [&](const QString&, int ok, int bad) {
                         succeeded = ok;
                         failed = bad;
                         watch.stop();
                         // Not quit(): that asks the window to close, and it would ask the user.
                         QTimer::singleShot(0, &app, [] { QCoreApplication::exit(0); });
                     });
    if (!qEnvironmentVariableIsEmpty("BENCHDEBUG")) {
        watch.reportBlocksOver(30.0);
        QObject::connect(&workspace.scheduler(), &SXWorkspaceScheduler::totalProgressChanged, &app,
                         [&](double p) {
                             std::fprintf(stderr, "%.3f s progress %.1f\n", clock.elapsed() / 1e3,
                                          p);
                         });
        QObject::connect(&workspace.store(), &SXContainerStore::appStateChanged, &app, [&](int s) {
            std::fprintf(stderr, "%.3f s state %d\n", clock.elapsed() / 1e3, s);
        });
    }
    QTimer::singleShot(0, &app, [&] {
        watch.start();
        clock.start();
        workspace.addRun().loadAndParseFiles(options.files);
    });
    app.exec();
    const qint64 wall = clock.elapsed();
    rusage self{};
    getrusage(RUSAGE_SELF, &self);
    const long long cpuMs = (self.ru_utime.tv_sec + self.ru_stime.tv_sec) * 1000LL +
                            (self.ru_utime.tv_usec + self.ru_stime.tv_usec) / 1000;
    std::printf("wall_ms=%lld longest_block_ms=%.1f blocks_over_50ms=%d succeeded=%d failed=%d "
                "own_cpu_ms=%lld\n",
                static_cast<long long>(wall), watch.longestBlockMs(), watch.blocksOver(50.0),
                succeeded, failed, cpuMs);
    return failed == 0 ? 0 : 1;
}
