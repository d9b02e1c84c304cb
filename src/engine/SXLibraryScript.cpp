#include "engine/SXLibraryScript.h"

#include "base/SXFileLocalManager.h"
#include "base/SXInstallation.h"
#include "base/SXLog.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace {
// The script only links a file; anything taking this long is stuck and must not hold the
// conversion's thread forever.
constexpr int kScriptTimeoutMs = 60000;
const QString kMusicVariable = QStringLiteral("SONORIA_MUSIC_DIR");
} // namespace

int SXLibraryScript::run(const QString& outputFile) {
    const QString script =
        SXInstallation::pathForResource(QStringLiteral("sync-music-library"), QStringLiteral("sh"));
    if (script.isEmpty()) {
        SXLog::line(QStringLiteral("library script not found"));
        return -1;
    }
    return runScript(script, outputFile, SXFileLocalManager::musicDirectory());
}

int SXLibraryScript::runScript(const QString& scriptPath, const QString& outputFile,
                               const QString& musicDirectory) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (musicDirectory.isEmpty())
        environment.remove(kMusicVariable);
    else
        environment.insert(kMusicVariable, musicDirectory);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral("/bin/sh"),
                  {scriptPath, outputFile, QFileInfo(outputFile).fileName()});
    if (!process.waitForStarted()) {
        SXLog::line(QStringLiteral("library script did not start: %1").arg(process.errorString()));
        return -1;
    }
    if (!process.waitForFinished(kScriptTimeoutMs)) {
        SXLog::line(QStringLiteral("library script did not finish; stopped"));
        process.kill();
        process.waitForFinished();
        return -1;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}
