#pragma once

#include "CliOptions.h"
#include "CliProgressBar.h"
#include "base/SXPathFailure.h"
#include "engine/ConvertOperation.h"
#include "model/SXFormatSetting.h"
#include "workspace/SXWorkspacePresenter.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <memory>

class SXWorkspace;

// One conversion run (or dry run) of the tool: a headless workspace with one container of the
// chosen format does the work, exactly as a window would; this class only answers the
// workspace's questions, reports on the console and picks the exit status.
class CliRun : public QObject, public SXWorkspacePresenter {
    Q_OBJECT
public:
    CliRun(const CliOptions& options, const SXFormatSettingPtr& setting, QObject* parent = nullptr);
    ~CliRun() override;

    // Starts the add run; the event loop ends with the exit status (QCoreApplication::exit).
    void start();
    // SIGINT, SIGTERM or SIGHUP: stop loading or cancel every conversion, then end as usual:
    // status 130 after SIGINT (Ctrl-C), 1 after the others (the run did not convert everything).
    void interrupt(int signalNumber);

    // SXWorkspacePresenter
    void runModalAlert(const SXAlert& alert, Answer<int> chosenButton) override;
    void showNotice(const SXAlert& alert) override;
    void chooseOutputFolder(const SXOutputFolderRequest& request,
                            Answer<std::optional<SXOutputFolderChoice>> chosen) override;
    void chooseNewFormat(const QList<SXFormatSettingPtr>& formats,
                         Answer<SXFormatSettingPtr> chosen) override;
    void beep() override {}
    void openFolder(const QString&) override {}

private:
    enum class Phase { Loading, Converting, Finished };

    void prepareWorkspace();
    void loadFinished(const SXMusicInfoList& failed);
    void printDryRun();
    void startConversion();
    void report(const SXMusicInfoPtr& item, const QString& outputFile);
    void totalProgressChanged(double percent);
    void runFinished(int succeeded);
    void printFailed(const SXPathFailure& failure);
    void finish(int status);
    QString outputFolderForRun() const;
    SXMusicInfoList items() const;

    CliOptions m_options;
    SXFormatSettingPtr m_setting;
    QString m_outputFolder; // absolute, before the per-format folder
    std::unique_ptr<SXWorkspace> m_workspace;
    Phase m_phase = Phase::Loading;
    int m_loadFailures = 0;
    int m_interruptSignal = 0;
    bool m_terminal = false;
    CliProgressBar m_bar;
    QSet<const SXMusicInfo*> m_reported;
    int m_done = 0;
    int m_failed = 0;
    int m_total = 0;
};
