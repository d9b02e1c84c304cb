#pragma once

#include <QString>
#include <QStringList>

struct ConvertJob;

// The file one conversion writes. The encoder writes under a hidden temporary name in the
// destination folder (with the extension the encoder needs, so it picks the same container);
// only a verified, tagged output is moved to its final name, and the move never replaces a file,
// except an earlier output of ours when the job asks to replace it: then the whole new file takes
// its place in one atomic rename, so the old one stays untouched until that moment. Anything that
// fails or is cancelled removes the temporary file and the folders made for it, so no
// half-written file ever carries a name a user would take for a result.
class ConvertOutputFile {
public:
    ConvertOutputFile() = default;
    ~ConvertOutputFile();
    ConvertOutputFile(const ConvertOutputFile&) = delete;
    ConvertOutputFile& operator=(const ConvertOutputFile&) = delete;

    // The folder the job's output goes to: its own (empty: the source's folder) with the job's
    // subfolders, always absolute, so ffmpeg can never take the output for an option.
    static QString folderFor(const ConvertJob& job);
    // The name the job's output has when nothing is in its way.
    static QString plannedPath(const ConvertJob& job);
    // The planned output when it is an earlier result the job skips: the job skips existing
    // outputs, no other item of its run plans that name, and the file there is a regular file
    // no running conversion holds, newer than the source and as whole as a fresh output must be.
    // Empty otherwise.
    static QString earlierResult(const ConvertJob& job);

    // Claims the job's final name in `folder` (the planned one itself when the job replaces an
    // earlier output of ours there), makes the folders missing on the way and creates the
    // temporary file (named with `encodeExt` when given, e.g. a ringtone is encoded as .m4a).
    // Empty on success, else why not (the folder is read-only, full, ...); nothing is left on
    // disk then.
    QString prepare(const ConvertJob& job, const QString& folder, const QString& encodeExt);
    // Whether prepare() took the planned name to replace the output there.
    bool replacing() const { return m_replacing; }
    QString temporaryPath() const { return m_temporary; }
    // The final name claimed by prepare(); after commit() the name the file really got.
    QString finalPath() const { return m_final; }

    // Moves the temporary file to its final name, or to the next free one when another program
    // took that name meanwhile. Empty on success, else why not (the temporary file is removed).
    QString commit();
    // Removes the temporary file and gives up the claimed name. Harmless when nothing is held.
    void discard();

    // Removes the temporary files of runs that were killed before they could clean up: ours are
    // recognised by name, and only those whose process is gone are touched.
    static void removeLeftovers(const QString& folder);
    static bool isTemporaryName(const QString& fileName);

private:
    QString makeFolders(const QString& folder);
    void removeMadeFolders();
    QString commitReplacing();

    QString m_temporary;
    QString m_final;
    bool m_claimed = false;
    bool m_replacing = false;
    QStringList m_madeFolders; // deepest last; removed again when nothing lands in them
};
