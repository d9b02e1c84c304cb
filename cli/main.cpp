#include "CliCatalogue.h"
#include "CliInfo.h"
#include "CliOptions.h"
#include "CliOutput.h"
#include "CliRun.h"
#include "CliTagCheck.h"
#include "base/SXLog.h"
#include "base/SXSignalWatcher.h"
#include "base/SXTranslations.h"

#include <QCoreApplication>

namespace {

constexpr int kUsageErrorStatus = 2;

int runConversion(const CliOptions& options) {
    QString error;
    const SXFormatSettingPtr setting = CliCatalogue::settingForOptions(options, &error);
    if (!setting) {
        CliOutput::usageError(error);
        return kUsageErrorStatus;
    }
    CliRun run(options, setting);
    // Ctrl-C, kill and a closed terminal all stop the run the same way: the conversions are
    // cancelled, their children waited for and their partial files removed.
    SXSignalWatcher watcher;
    QObject::connect(&watcher, &SXSignalWatcher::received, &run, &CliRun::interrupt);
    if (!watcher.install(SXSignalWatcher::terminationSignals()))
        CliOutput::line(stderr, QCoreApplication::translate(
                                    "main", "sonoria-cli: cannot watch for interrupts"));
    run.start();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    // A reader that goes away (`sonoria-cli … | head -1`) makes our writes fail, quietly; the run
    // carries on and its files are whole.
    SXSignalWatcher::ignoreBrokenPipe();
    QCoreApplication app(argc, argv);
    SXTranslations::install(app);
    QString error;
    const std::optional<CliOptions> options =
        CliOptionsParser::parse(QCoreApplication::arguments(), &error);
    SXLog::install((options && options->verbose) || SXLog::verboseFromEnvironment());
    if (!options) {
        CliOutput::usageError(error);
        return kUsageErrorStatus;
    }
    switch (options->mode) {
    case CliOptions::Mode::Help:
        CliOutput::write(stdout, CliOptionsParser::helpText());
        return 0;
    case CliOptions::Mode::ListFormats:
        CliOutput::write(stdout, CliCatalogue::formatListing());
        return 0;
    case CliOptions::Mode::Info:
        return CliInfo::printInfo(options->infoFile);
    case CliOptions::Mode::CheckTags:
        return CliTagCheck::print(options->inputs.at(0), options->inputs.at(1));
    case CliOptions::Mode::Convert:
        break;
    }
    return runConversion(*options);
}
