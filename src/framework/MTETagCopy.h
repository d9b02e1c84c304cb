#pragma once

#include "framework/MTEAudioFile.h"
#include "framework/SXCueSheet.h"

#include <QMap>
#include <QString>

// Loudness fields measured for this very output, which take the place of the source's.
struct MTELoudnessFields {
    // False: the source's ReplayGain fields are copied like its other fields. True: none of the
    // source's ReplayGain or R128 fields are copied; `fields` are written instead (none at all
    // for an output whose gain is already applied to its samples).
    bool replace = false;
    QMap<QString, QString> fields; // TagLib property name -> value
};

// Gives a freshly converted file the tags of its source, and nothing else: the source handle's
// record (as read and as edited) and the other well-known fields of the source file, each once,
// under the output kind's own field for it, and the pictures as pictures. Whatever the output
// carried before (the copies the converter made, its container's details) is removed; only its
// encoder field stays.
class MTETagCopy {
public:
    // Puts the record fields of `source` (none: an empty record) into `destination` under the
    // destination kind's own keys, then writes the destination's record and the source file's
    // other well-known fields into the file at `path` as its only tags. False with *error when
    // the file could not be written.
    // `loudness` decides whether the source's ReplayGain fields or measured ones go in.
    static bool copy(const MTEAudioFile* source, MTEAudioFile& destination, const QString& path,
                     QString* error = nullptr, const MTELoudnessFields& loudness = {});

    // Puts what a cue sheet says of `track` into the record of `handle` over what the audio file
    // carries: title, performer as artist, album, album performer as album artist, "3/12" as
    // track, and date and genre when the sheet has them. The rest of the file's tags stay.
    static void overrideWithCueTrack(const SXCueTrack& track, MTEAudioFile& handle);

    // Whether a field of the source under TagLib's unified name `name` ("BPM",
    // "PERFORMER:PIANO") is carried over besides the record's fields.
    static bool carriesProperty(const QString& name);
};
