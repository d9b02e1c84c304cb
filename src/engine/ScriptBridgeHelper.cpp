#include "engine/ScriptBridgeHelper.h"

#include "base/SXFileLocalManager.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "engine/SXMpdLibrary.h"
#include "engine/SXPlaylistFileLibrary.h"

void ScriptBridgeHelper::syncMusicLibrary(const QString& playlistName, const QString& originFile,
                                          QString* error) {
    Q_UNUSED(error)
    const QString backend = SXSettings::stringForKey(SXSettingsKey::LibraryBackend).trimmed();
    if (backend == QLatin1String("mpd")) {
        SXMpdLibrary(SXMpdLibrary::serverFromSettings()).deliver(playlistName, originFile);
        return;
    }
    if (!backend.isEmpty() && backend != QLatin1String("playlist"))
        SXLog::line(
            QStringLiteral("unknown library backend \"%1\"; using playlist files").arg(backend));
    SXPlaylistFileLibrary(SXFileLocalManager::musicDirectory()).deliver(playlistName, originFile);
}
