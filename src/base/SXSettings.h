#pragma once

#include <QString>
#include <QVariant>

// Keys of the per-user settings store. The spellings are the stored ones and must not be
// "corrected": existing users' files carry them.
namespace SXSettingsKey {
inline const QString MaxTask = QStringLiteral("com.sx.MaxTastKey");
inline const QString libraryFormat = QStringLiteral("com.sx.iTunesFmtKey");
inline const QString libraryPlaylistName = QStringLiteral("com.sx.iTunesPlaylistNameKey");
inline const QString DefaultOutputPath = QStringLiteral("DEFAULT_OUTPUT_PATH_KEY");
inline const QString DefaultSetOrganized = QStringLiteral("DEFAUTL_SET_ORIGANIZED_KEY");
inline const QString DefaultSetOpen = QStringLiteral("DEFAULT_SET_OPEN_KEY");
inline const QString AppBSyncToLibrary = QStringLiteral("AppBSyncToiTunesKey");
inline const QString AppSupportVob = QStringLiteral("bAppSupportVob");
inline const QString SupportVOB = QStringLiteral("SupportVOBKey");
inline const QString Experimental = QStringLiteral("ExperimentalKey");
inline const QString Guid = QStringLiteral("guid");
inline const QString MetadataWndPosition = QStringLiteral("com.snr.metadataWndPosition");
// Linux additions: where the start-up requests go, and which music library receives files.
inline const QString ServiceBaseURL = QStringLiteral("ServiceBaseURLKey");
inline const QString LibraryBackend = QStringLiteral("LibraryBackendKey");
inline const QString MpdHost = QStringLiteral("MpdHostKey");
inline const QString MpdPort = QStringLiteral("MpdPortKey");
// MPD reveals its music folder only over its local socket; over TCP the user names it here.
// What a run does with an output that is already there: "skip", "both" or "replace".
inline const QString ExistingOutputs = QStringLiteral("ExistingOutputsKey");
inline const QString MpdMusicDirectory = QStringLiteral("MpdMusicDirectoryKey");
} // namespace SXSettingsKey

// Typed access to the settings store (QSettings, organisation and application "Sonoria").
// INI files bring every scalar back as a string after a restart, so nothing here hands out a raw
// QVariant to be converted by guesswork. Each call opens its own QSettings, which makes the class
// safe to use from worker threads; Qt shares the parsed file between instances.
class SXSettings {
public:
    static bool contains(const QString& key);
    static int integerForKey(const QString& key, int fallback = 0);
    static QString stringForKey(const QString& key, const QString& fallback = {});
    static bool boolForKey(const QString& key, bool fallback = false);
    static QVariant valueForKey(const QString& key);

    static void setValue(const QString& key, const QVariant& value);
    static void removeKey(const QString& key);
    static void synchronize();

    // Registers the defaults that the rest of the program relies on: a maximum of 5 tasks,
    // "AAC" as the library format and "Sonoria" as the playlist, each only where the stored
    // value is missing, zero or empty. Then writes the store to disk.
    static void setPreferenceValue();

    // Path of the settings file, for messages and tests.
    static QString fileName();
};
