#pragma once

#include "engine/ConvertExisting.h"
#include "engine/ConvertLoudness.h"
#include "model/SXConversionChoices.h"

#include <QString>

// Everything one conversion needs, fixed when the run starts: the source and what its probe
// found, the container's choices, where the output goes and under which name, and what happens
// to it afterwards. A ConvertOperation holds its own copy; nothing it decides is read back from
// the item's records, so a choice changed during a run waits for the next one.
struct ConvertJob {
    QString sourcePath;
    // The probe's facts that a choice of "as the source has it" and the checks need.
    double sourceBitRate = 0;    // bit/s
    double sourceSampleRate = 0; // Hz
    int sourceChannels = 0;
    double sourceDuration = 0;       // seconds
    bool sourceDurationExact = true; // false: only guessed from the bit rate

    // A cue sheet's track: only this range of the source is converted, counted in samples at
    // the source's rate (end -1: to the end of the file); sourceDuration is then the track's.
    bool hasRange = false;
    qint64 rangeStartSample = 0;
    qint64 rangeEndSample = -1;

    SXConversionChoices choices;
    QString encoder;   // ffmpeg's encoder name ("libmp3lame")
    QString extension; // of the final file, without the dot
    // The container the item is in; a ringtone is encoded as .m4a and renamed afterwards.
    QString formatName;

    // Absolute; empty: beside the source.
    QString outputFolder;
    // The output's name without extension; a taken name gets the next counter.
    QString outputName;

    // Output naming: the folders between outputFolder and the file ("Artist/Album", from the
    // container's name pattern and mirrored folders; each part already safe, empty: none), made
    // only right before the output is written. `existing` says what a taken name means; a job
    // whose planned name an earlier item of the same run already plans keeps both whatever
    // `existing` says, so that the file the first one writes never counts as the second one's.
    QString outputSubfolder;
    ConvertExisting existing = ConvertExisting::KeepBoth;
    bool nameSharedInRun = false;

    // Library delivery once the file is whole: the music library script, and the player's
    // library with its playlist.
    bool runLibraryScript = false;
    bool addToLibrary = false;
    QString playlist;

    // Loudness: the container's ReplayGain and normalising wishes (also in `choices`) with what
    // was measured of this source (and its album) before the run.
    ConvertLoudness loudness;
};
