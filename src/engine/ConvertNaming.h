#pragma once

#include <QCoreApplication>
#include <QString>

class MTEAudioFile;

// The values a name pattern can use, as read from one source: plain texts, empty when the source
// does not say. A value, so the window's preview, a run and the command-line tool see the same.
struct ConvertNameTags {
    QString artist;
    QString albumArtist;
    QString album;
    QString title;
    QString track; // as tagged: "3", "03", "3/12"
    QString disc;  // likewise
    QString date;  // as tagged: "2019", "2019-05-01"
    QString genre;
    QString fileName; // the source's name without folder and extension

    // The values of a source's tag handle (null: none), with its name and its disc number (which
    // the handle does not hold; see ConvertNaming::discOf).
    static ConvertNameTags of(const MTEAudioFile* handle, const QString& fileName,
                              const QString& disc);
};

// Output names from a pattern: {artist}, {albumartist} (else the artist), {album}, {title} (else
// the file's name), {track} and {track:02} (zero-padded to that width), {disc} (likewise),
// {year}, {genre} and {filename}; "/" makes folders. A missing value reads "Unknown Artist",
// "Unknown Album", …, so that files without tags still land in one predictable place. Every
// folder and the name itself are made safe, whatever the tags hold.
class ConvertNaming {
    Q_DECLARE_TR_FUNCTIONS(ConvertNaming)

public:
    // The pattern of a container that asks for nothing else: the source's own name (which the
    // job builder then takes as it is, as outputs were always named).
    static QString defaultPattern() { return QStringLiteral("{filename}"); }

    // The path below the output folder, without extension, that `pattern` gives for `tags`:
    // folders separated by "/", never absolute, never empty, no part "." or "..". The last part
    // keeps `reservedBytes` of its 255 free for the extension and a counter.
    static QString expand(const QString& pattern, const ConvertNameTags& tags,
                          int reservedBytes = 0);

    // The folder of `sourcePath` below `addedFrom` (the folder the user added), each part made
    // safe; empty when the source was not added with a folder or lies outside it.
    static QString mirroredFolder(const QString& sourcePath, const QString& addedFrom);

    // The disc number a source's tags give, or empty. Reads the file: call it off the main thread.
    static QString discOf(const QString& path);
};
