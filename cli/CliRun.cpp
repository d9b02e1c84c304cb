#include "CliRun.h"

#include "engine/ConvertOutputFile.h"

#include "CliOutput.h"
#include "base/FileHelper.h"
#include "base/SXFileLocalManager.h"
#include "base/SXInstallation.h"
#include "base/SXSettings.h"
#include "workspace/SXFailureTexts.h"
#include "workspace/SXJobBuilder.h"
#include "workspace/SXRunSummary.h"
#include "workspace/SXWorkspace.h"

#include <QCoreApplication>
#include <QDir>
#include <csignal>

namespace {

constexpr int kDefaultJobs = 5;
constexpr int kStatusInterruptedByUser = 128 + SIGINT;

QString absoluteClean(const QString& path) {
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

} // namespace

CliRun::CliRun(const CliOptions& options, const SXFormatSettingPtr& setting, QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_setting(setting) {}

CliRun::~CliRun() = default;

// --- Setting up ---

QString CliRun::outputFolderForRun() const {
    if (!m_options.outputFolder.isEmpty())
        return absoluteClean(m_options.outputFolder);
    const QString stored = SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath);
    if (!stored.isEmpty())
        return absoluteClean(stored);
    // Nothing is created here: the run's own folder check makes the folder when it starts.
    return SXFileLocalManager::getDefaultUpperOutputDir();
}

void CliRun::prepareWorkspace() {
    m_workspace = std::make_unique<SXWorkspace>();
    m_workspace->store().setPresenter(this);
    m_workspace->tabs().addDefaultTabs();
    if (!m_workspace->tabs().selectContainer(m_setting->fmtName()))
        m_workspace->tabs().addContainerWithFormat(m_setting);
    if (m_options.pattern)
        m_setting->setNamePattern(*m_options.pattern);
    if (m_options.mirror)
        m_setting->setMirrorFolders(true);
    m_workspace->store().setFmtSetting(m_setting);
    m_workspace->scheduler().setExistingOverride(m_options.existing);
    m_workspace->scheduler().setOrganizeByFormat(m_options.organize);
    m_workspace->scheduler().setOpenFolderWhenDone(false);
    int jobs = m_options.jobs.value_or(SXSettings::integerForKey(SXSettingsKey::MaxTask));
    if (jobs <= 0)
        jobs = kDefaultJobs;
    m_workspace->scheduler().setMaxConcurrentOverride(jobs);
}

void CliRun::start() {
    m_terminal = CliOutput::stdoutIsTerminal();
    m_outputFolder = outputFolderForRun();
    prepareWorkspace();
    connect(&m_workspace->addRun(), &SXAddRun::loadFinished, this,
            [this](const SXMusicInfoList& failed) { loadFinished(failed); });

    QStringList paths;
    for (const QString& input : std::as_const(m_options.inputs))
        paths.append(absoluteClean(input));
    m_workspace->addRun().loadAndParseFiles(paths);
}

SXMusicInfoList CliRun::items() const {
    return m_workspace->store().getDataForFormat(m_setting->fmtName());
}

// --- Loading ---

void CliRun::loadFinished(const SXMusicInfoList& failed) {
    // Named with their folders, so that thirty bad files in several folders can be found.
    for (const SXMusicInfoPtr& item : failed) {
        const LSMediaPtr media = item->mediaInfo();
        CliOutput::line(stderr,
                        QCoreApplication::translate("CliRun", "failed to load: %1: %2")
                            .arg(CliOutput::escaped(item->strFilePath()),
                                 CliOutput::escaped(SXFailureTexts::loadReason(media.get()))));
    }
    m_loadFailures += int(failed.size());
    if (m_interruptSignal) {
        finish(m_interruptSignal == SIGINT ? kStatusInterruptedByUser : 1);
        return;
    }
    if (m_options.dryRun) {
        printDryRun();
        finish(m_loadFailures > 0 ? 1 : 0);
        return;
    }
    startConversion();
}

void CliRun::printDryRun() {
    const QString folder =
        SXJobBuilder::outputFolder(*m_setting, m_outputFolder, m_options.organize);
    const QString ext = m_setting->outputExtName();
    const SXJobBuilder::Run run =
        SXJobBuilder::Run::fromSettings(m_outputFolder, m_options.organize, m_options.existing);
    QString text;
    int converting = 0;
    for (const SXMusicInfoPtr& item : items()) {
        // The same job a run would make, so an output a run would leave is named as such.
        const ConvertJob job = SXJobBuilder::build(*item, *m_setting, run);
        if (const QString earlier = ConvertOutputFile::earlierResult(job); !earlier.isEmpty()) {
            text += QCoreApplication::translate("CliRun", "already converted: %1 -> %2")
                        .arg(CliOutput::escaped(item->strFilePath()), CliOutput::escaped(earlier)) +
                    QLatin1Char('\n');
            continue;
        }
        ++converting;
        const QString target = FileHelper::unusedPath(ConvertOutputFile::plannedPath(job), ext);
        text += QCoreApplication::translate("CliRun", "would convert: %1 -> %2\n")
                    .arg(CliOutput::escaped(item->strFilePath()), CliOutput::escaped(target));
    }
    text +=
        QCoreApplication::translate("CliRun",
                                    "%n files would be converted to %1 in %2 (each with the "
                                    "name it would get now; nothing was converted or created)\n",
                                    nullptr, converting)
            .arg(m_setting->fmtName(), CliOutput::escaped(folder));
    CliOutput::write(stdout, text);
}

// --- Converting ---

void CliRun::startConversion() {
    m_phase = Phase::Converting;
    connect(&m_workspace->scheduler(), &SXWorkspaceScheduler::runRefused, this,
            [](const QString& message) {
                CliOutput::line(stderr, QStringLiteral("sonoria-cli: %1").arg(message));
            });
    m_total = int(items().size());
    connect(&m_workspace->scheduler(), &SXWorkspaceScheduler::runFinished, this,
            [this](const QString&, int succeeded, int) { runFinished(succeeded); });
    if (m_terminal) {
        connect(&m_workspace->scheduler(), &SXWorkspaceScheduler::totalProgressChanged, this,
                &CliRun::totalProgressChanged);
        m_bar.start();
    }
    connect(&m_workspace->scheduler(), &SXWorkspaceScheduler::itemFinished, this, &CliRun::report);
    if (!m_workspace->scheduler().doRealConverterTask(m_outputFolder)) {
        // Not a single file was touched: the folder is named with the system's reason.
        if (m_terminal)
            m_bar.clear();
        finish(1);
    }
}

void CliRun::report(const SXMusicInfoPtr& item, const QString& outputFile) {
    if (!item || m_reported.contains(item.get()))
        return;
    const LSMediaPtr media = item->mediaInfo();
    const int state = media ? media->eumCvtState() : CvtStateReady;
    const QString path = CliOutput::escaped(item->strFilePath());
    QString line;
    if (state == CvtStateFinished && media->alreadyConverted()) {
        ++m_done;
        line = QCoreApplication::translate("CliRun", "already converted: %1 -> %2")
                   .arg(path, CliOutput::escaped(outputFile));
    } else if (state == CvtStateFinished) {
        ++m_done;
        line = outputFile.isEmpty() ? QCoreApplication::translate("CliRun", "done: %1").arg(path)
                                    : QCoreApplication::translate("CliRun", "done: %1 -> %2")
                                          .arg(path, CliOutput::escaped(outputFile));
    } else if (const std::optional<SXPathFailure> failure =
                   SXFailureTexts::conversionFailure(*item)) {
        ++m_failed;
        m_reported.insert(item.get());
        // On a terminal the bar holds the line; the failures are listed after it at the end.
        if (!m_terminal)
            printFailed(*failure);
        return;
    } else if (state == CvtStateCanceled || item->dConvertProgress() == SXProgress::Canceled) {
        line = QCoreApplication::translate("CliRun", "cancelled: %1").arg(path);
    } else {
        return;
    }
    m_reported.insert(item.get());
    if (!m_terminal)
        CliOutput::line(stdout, line);
}

void CliRun::printFailed(const SXPathFailure& failure) {
    CliOutput::line(stdout,
                    QCoreApplication::translate("CliRun", "failed: %1: %2")
                        .arg(CliOutput::escaped(failure.path), CliOutput::escaped(failure.reason)));
}

void CliRun::totalProgressChanged(double percent) {
    m_bar.update(percent, m_done, m_failed, m_total);
}

void CliRun::runFinished(int succeeded) {
    bool allConverted = m_loadFailures == 0;
    SXPathFailureList failures;
    for (const SXMusicInfoPtr& item : items()) {
        // An item whose end was never announced (cancelled while it waited) is named here.
        report(item, QString());
        const LSMediaPtr media = item->mediaInfo();
        if (!media || media->eumCvtState() != CvtStateFinished)
            allConverted = false;
        if (const std::optional<SXPathFailure> failure = SXFailureTexts::conversionFailure(*item))
            failures.append(
                {CliOutput::escaped(failure->path), CliOutput::escaped(failure->reason)});
    }
    if (m_terminal) {
        m_bar.update(m_workspace->scheduler().getTotalConvertProgress() * 100.0, m_done, m_failed,
                     m_total);
        CliOutput::write(stdout, QStringLiteral("\n"));
        for (const SXPathFailure& failure : std::as_const(failures))
            CliOutput::line(stdout, QCoreApplication::translate("CliRun", "failed: %1: %2")
                                        .arg(failure.path, failure.reason));
    }
    // What each output could not keep of its source's tags.
    for (const SXMusicInfoPtr& item : items()) {
        for (const QString& line : item->tagReport().lostLines())
            CliOutput::line(stdout, QCoreApplication::translate("CliRun", "tags: %1: %2")
                                        .arg(CliOutput::escaped(item->strFilePath()),
                                             CliOutput::escaped(line)));
    }
    // The window's summary, built again from the escaped names so that none can break a line.
    CliOutput::line(stdout, SXWorkspaceScheduler::summaryMessage(succeeded, failures));
    if (const QString more = SXRunSummary::of(items()).informativeText(); !more.isEmpty())
        CliOutput::line(stdout, more);
    if (!failures.isEmpty() || m_loadFailures > 0)
        CliOutput::line(stdout,
                        SXFailureTexts::runCounts(succeeded, int(failures.size()), m_loadFailures));
    if (m_interruptSignal)
        finish(m_interruptSignal == SIGINT ? kStatusInterruptedByUser : 1);
    else
        finish(allConverted ? 0 : 1);
}

void CliRun::interrupt(int signalNumber) {
    if (m_interruptSignal || m_phase == Phase::Finished)
        return;
    m_interruptSignal = signalNumber;
    if (m_phase == Phase::Loading) {
        CliOutput::line(stderr, QCoreApplication::translate(
                                    "CliRun", "sonoria-cli: interrupted, stopping the load"));
        m_workspace->addRun().cancelLoading();
    } else {
        if (m_terminal)
            m_bar.clear();
        CliOutput::line(stderr,
                        QCoreApplication::translate(
                            "CliRun", "sonoria-cli: interrupted, cancelling the conversions"));
        m_workspace->scheduler().cancelAll();
    }
}

void CliRun::finish(int status) {
    m_phase = Phase::Finished;
    QCoreApplication::exit(status);
}

// --- Presenter ---

void CliRun::runModalAlert(const SXAlert& alert, Answer<int> chosenButton) {
    // The end of a run is reported through runFinished, which carries the same summary text;
    // every other alert (the load failures) goes to standard error.
    // The names a load failure lists follow one a line from loadFinished, with their reasons.
    if (m_phase != Phase::Converting) {
        CliOutput::line(stderr, CliOutput::escaped(alert.messageText));
        if (alert.details.isEmpty() && !alert.informativeText.isEmpty()) {
            for (const QString& line :
                 alert.informativeText.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
                CliOutput::line(stderr, CliOutput::escaped(line));
        }
    }
    chosenButton(0);
}

void CliRun::showNotice(const SXAlert& alert) {
    CliOutput::line(stderr, CliOutput::escaped(alert.messageText));
}

void CliRun::chooseOutputFolder(const SXOutputFolderRequest&,
                                Answer<std::optional<SXOutputFolderChoice>> chosen) {
    // The run is started with its folder from the command line; nothing here asks for one.
    chosen(std::nullopt);
}

void CliRun::chooseNewFormat(const QList<SXFormatSettingPtr>&, Answer<SXFormatSettingPtr> chosen) {
    chosen(nullptr);
}
