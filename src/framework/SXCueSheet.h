#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// One track of a cue sheet: what the sheet says of it and where it lies in its audio file.
// Positions are CD frames (75 a second) from the start of the file; a track runs from its
// INDEX 01 to the next track's INDEX 01 in the same file, so a pregap (INDEX 00) belongs to the
// track before it, and the last track of a file runs to the file's end.
struct SXCueTrack {
    static constexpr qint64 kFramesPerSecond = 75;

    int number = 0;
    int total = 0; // tracks in the sheet
    QString title;
    QString performer; // the track's own, else the sheet's
    QString album;
    QString albumPerformer;
    QString date;  // REM DATE
    QString genre; // REM GENRE
    QString file;  // absolute path of the audio file
    QString sheet; // the .cue file, or the audio file that carries the sheet in a tag
    qint64 startFrame = 0;
    qint64 endFrame = -1; // -1: the end of the file

    // Sample positions at `sampleRate` Hz; endSample is -1 for "the end of the file".
    qint64 startSample(double sampleRate) const;
    qint64 endSample(double sampleRate) const;
    // Seconds of audio; a track that runs to the end needs the file's duration.
    double seconds(double fileSeconds) const;
    // "sheet.cue#03": names the track wherever one path names an item.
    QString identity() const;
    // "03 Title", safe as a file name.
    QString outputName() const;

    bool operator==(const SXCueTrack&) const = default;
};

struct SXCueSheetResult {
    QList<SXCueTrack> tracks;
    QString error; // why the sheet cannot be offered, in the user's words; empty when it can
};

// Reads cue sheets with libcue: UTF-8 with or without a byte order mark, and the 8-bit encodings
// older rippers wrote, recognised with uchardet and converted to UTF-8 first. Values only;
// safe to call from any thread.
class SXCueSheet {
public:
    // The sheet at `path`; each FILE it names is found beside it (under another audio extension
    // when the named one is gone, as after the sheet's WAV was compressed). A FILE that cannot be
    // found, an unreadable or malformed sheet, gives the error.
    static SXCueSheetResult read(const QString& path);
    // The sheet a FLAC, WavPack or APE file carries in its CUESHEET tag, its tracks all in that
    // file; no tracks and no error when there is none.
    static SXCueSheetResult embedded(const QString& audioPath);
    // Parses `text`; every track's file is `audioPath` when given, else its FILE resolved
    // beside `sheetPath` (unchecked).
    static SXCueSheetResult parse(const QString& text, const QString& sheetPath,
                                  const QString& audioPath = QString());
    // The sheet's bytes as text: UTF-8 (a byte order mark dropped) when they are valid UTF-8,
    // else converted from the encoding uchardet recognises (Windows-1252 when it has no answer).
    static QString decode(const QByteArray& bytes);
};
