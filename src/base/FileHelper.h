#pragma once

#include <QString>

#include <functional>

// Small file operations and standard folders. Each operation answers with its result and never
// reports: callers that care check the returned value.
class FileHelper {
public:
    // The extension of the last path component without its dot; empty when it has none. A
    // leading dot (a hidden file) does not start an extension.
    static QString extensionOf(const QString& path);
    // A path with extension `ext` (appended when the path's own extension is not exactly `ext`)
    // where nothing exists yet and `taken` (when given) says no; taken names get a counter "(1)",
    // "(2)", ... in the file's own name, never in the folders above it.
    static QString unusedPath(const QString& path, const QString& ext,
                              const std::function<bool(const QString&)>& taken = {});
    // True when a folder exists at `path` afterwards (created with its parents when missing).
    static bool makeSureFolderExists(const QString& path);

    // True when anything exists at the path (links followed).
    static bool fileExistsWithPath(const QString& path);
    // The same test as fileExistsWithPath: it does not tell folders from files.
    static bool directoryExistsWithPath(const QString& path);
    // Creates an empty file. Something already at the path is left alone and gives false.
    static bool createFileWithPath(const QString& path);
    // Creates the folder with its missing parents; true also when the folder is already there.
    static bool createDirectoryWithPath(const QString& path);
    // Creates a folder (not a file) with its parents when nothing exists at the path. The
    // second argument has no meaning on this platform.
    static void checkAndCreateFileAtPath(const QString& path, bool iCloud);
    // Removes a file, a link (not its target) or a folder with its contents.
    static bool deleteFileWithPath(const QString& path);
    static bool deleteDirectoryWithPath(const QString& path);
    // Move and copy refuse to replace anything at the destination. Folders are copied whole.
    static bool moveFile(const QString& from, const QString& to);
    static bool copyFile(const QString& from, const QString& to);
    // Size in bytes; 0 when the path cannot be read.
    static quint64 getFileSizeWithPath(const QString& path);

    // Bytes available to this user on the file system of $HOME; 0 when it cannot be asked.
    static quint64 getFileSystemFreeSize();
    // The same for the file system that holds `path`, or would hold it once created.
    static quint64 getFreeSizeOfFileSystemHolding(const QString& path);
    static bool isDiskFull();
    // Below 560 MiB counts as full.
    static bool isDiskFullForFreeBytes(quint64 freeBytes);

    static QString getDocumentsPath(); // the desktop's documents folder
    static QString getLibraryPath();   // per-user application data (~/.local/share)
    static QString getAppPath();       // the folder of the running executable
    static QString getTemporaryPath();
    static QString dataDirectory(); // the documents folder
    static QString getDownloadListFile();
    static QString getDownloadMediaDirectory();
    static QString getDownloadTempDirectory();
    static QString getADImagesPath();
    // <library>/Caches/lang/lang.dat; the folder is created first.
    static QString getLangConfigPath();

    // Depth-first search of `folder` for an entry called `fileName`. A match directly in
    // `folder` gives the bare name; a match anywhere below a sub-folder gives that first-level
    // sub-folder's path joined with the name (the deeper part is dropped). A null string when
    // nothing matches. Every folder is searched at most once, whatever links point where.
    static QString findFile(const QString& folder, const QString& fileName);
};
