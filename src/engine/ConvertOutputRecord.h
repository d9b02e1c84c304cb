#pragma once

#include <QString>

// Which files on disk are outputs this program wrote, so that "Replace" only ever replaces its
// own results, never a file the user made or edited. Each output is remembered when it gets its
// final name, by what identifies that very file: device, inode, size and modification time (to
// the nanosecond). A file counts as ours only while all four still match, so an output the user
// has since edited, or another file put in its place, is no longer ours and is kept. The record
// is a small text file in the user's data folder (one line per output, with its path so that
// lines of files that are gone can be dropped); losing it only means an earlier output is kept
// instead of replaced, never the other way round.
class ConvertOutputRecord {
public:
    // Remembers the file at `path` as written by us. Any thread.
    static void remember(const QString& path);
    // Whether the file at `path` is one we wrote and nobody changed since. Any thread.
    static bool wroteThis(const QString& path);
    static QString recordFile();
};
