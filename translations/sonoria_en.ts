<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CliCatalogue</name>
    <message>
        <source>not offered</source>
        <translation>not offered</translation>
    </message>
    <message>
        <source>offered, on</source>
        <translation>offered, on</translation>
    </message>
    <message>
        <source>offered, off</source>
        <translation>offered, off</translation>
    </message>
    <message>
        <source>%1 does not offer %2 &quot;%3&quot; (offered: %4)</source>
        <translation>%1 does not offer %2 &quot;%3&quot; (offered: %4)</translation>
    </message>
    <message>
        <source>Output formats (* marks the default choice):
</source>
        <translation>Output formats (* marks the default choice):
</translation>
    </message>
    <message>
        <source>bit rates:</source>
        <translation>bit rates:</translation>
    </message>
    <message>
        <source>sample rates:</source>
        <translation>sample rates:</translation>
    </message>
    <message>
        <source>channels:</source>
        <translation>channels:</translation>
    </message>
    <message>
        <source>music library:</source>
        <translation>music library:</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot; (formats: %2)</source>
        <translation>unknown format &quot;%1&quot; (formats: %2)</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>bit rate</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>sample rate</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>channels</translation>
    </message>
    <message>
        <source>%1 does not offer delivery to the music library</source>
        <translation>%1 does not offer delivery to the music library</translation>
    </message>
</context>
<context>
    <name>CliInfo</name>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>image</source>
        <translation>image</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n bytes</source>
        <translation>
            <numerusform>%1, %n byte</numerusform>
            <numerusform>%1, %n bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>sonoria-cli: cannot read &quot;%1&quot; as media</source>
        <translation>sonoria-cli: cannot read &quot;%1&quot; as media</translation>
    </message>
    <message>
        <source>Artwork:</source>
        <translation>Artwork:</translation>
    </message>
</context>
<context>
    <name>CliOptionsParser</name>
    <message>
        <source>option --%1 given more than once</source>
        <translation>option --%1 given more than once</translation>
    </message>
    <message>
        <source>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</source>
        <translation>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--output needs a folder</source>
        <translation>--output needs a folder</translation>
    </message>
    <message>
        <source>--list-formats and --info take no FILE|FOLDER arguments</source>
        <translation>--list-formats and --info take no FILE|FOLDER arguments</translation>
    </message>
    <message>
        <source>no input: give at least one FILE or FOLDER (see --help)</source>
        <translation>no input: give at least one FILE or FOLDER (see --help)</translation>
    </message>
    <message>
        <source>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</source>
        <translation>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--check-tags takes two files: SOURCE and OUTPUT</source>
        <translation>--check-tags takes two files: SOURCE and OUTPUT</translation>
    </message>
    <message>
        <source>Usage: sonoria-cli [options] FILE|FOLDER...
Convert audio and video files to audio formats.

  -f, --format NAME       output format, a catalogue name (default &quot;MP3&quot;)
  -o, --output DIR        output folder (default: the stored last folder, else Music/Sonoria)
      --no-organize       write into DIR itself instead of DIR/&lt;format name&gt;
  -j, --jobs N            simultaneous conversions (default: the stored maximum, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   one of the format&apos;s offered choices
      --pattern PATTERN   name outputs from their tags: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; &quot;/&quot; makes
                          folders (default &quot;{filename}&quot;: the source&apos;s own name)
      --mirror            keep the place of each file below the FOLDER it was found in
      --existing WHAT     an output with the planned name is already there: &quot;skip&quot; it when it is
                          whole and newer than its source (default: the stored preference,
                          else skip), keep &quot;both&quot; (number the new file), or &quot;replace&quot; an
                          output this program wrote (never any other file)
      --library           deliver finished files to the music library and playlist
      --replaygain MODE   measure the loudness and tag the outputs with ReplayGain: &quot;track&quot;,
                          or &quot;album&quot; for track and album values (off by default)
      --normalise         convert at the measured loudness (the album&apos;s with --replaygain
                          album), true peak at most -1 dBTP; no ReplayGain tags are written
      --list-formats      print the catalogue: names, extensions, choices and defaults
      --info FILE         print what the file information panel shows for a file
      --check-tags SOURCE OUTPUT   compare the tags of two files: what arrived, what changed,
                          what was lost and why (exit status 1 when anything was lost)
  -n, --dry-run           load and probe, print what would be converted and where, convert nothing
  -v, --verbose           mirror the log lines to standard error (as does SONORIA_VERBOSE=1)
  -h, --help              show this text

A name that starts with &quot;-&quot; needs &quot;--&quot; before it, or &quot;./&quot; in front.
Stored settings are read, never changed.

Exit status: 0 every file converted; 1 a file failed, could not be loaded or was cancelled
(also after SIGTERM, which cancels the run); 2 usage error; 130 interrupted by SIGINT (Ctrl-C
cancels the run; partial outputs are removed).
</source>
        <translation>Usage: sonoria-cli [options] FILE|FOLDER...
Convert audio and video files to audio formats.

  -f, --format NAME       output format, a catalogue name (default &quot;MP3&quot;)
  -o, --output DIR        output folder (default: the stored last folder, else Music/Sonoria)
      --no-organize       write into DIR itself instead of DIR/&lt;format name&gt;
  -j, --jobs N            simultaneous conversions (default: the stored maximum, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   one of the format&apos;s offered choices
      --pattern PATTERN   name outputs from their tags: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; &quot;/&quot; makes
                          folders (default &quot;{filename}&quot;: the source&apos;s own name)
      --mirror            keep the place of each file below the FOLDER it was found in
      --existing WHAT     an output with the planned name is already there: &quot;skip&quot; it when it is
                          whole and newer than its source (default: the stored preference,
                          else skip), keep &quot;both&quot; (number the new file), or &quot;replace&quot; an
                          output this program wrote (never any other file)
      --library           deliver finished files to the music library and playlist
      --replaygain MODE   measure the loudness and tag the outputs with ReplayGain: &quot;track&quot;,
                          or &quot;album&quot; for track and album values (off by default)
      --normalise         convert at the measured loudness (the album&apos;s with --replaygain
                          album), true peak at most -1 dBTP; no ReplayGain tags are written
      --list-formats      print the catalogue: names, extensions, choices and defaults
      --info FILE         print what the file information panel shows for a file
      --check-tags SOURCE OUTPUT   compare the tags of two files: what arrived, what changed,
                          what was lost and why (exit status 1 when anything was lost)
  -n, --dry-run           load and probe, print what would be converted and where, convert nothing
  -v, --verbose           mirror the log lines to standard error (as does SONORIA_VERBOSE=1)
  -h, --help              show this text

A name that starts with &quot;-&quot; needs &quot;--&quot; before it, or &quot;./&quot; in front.
Stored settings are read, never changed.

Exit status: 0 every file converted; 1 a file failed, could not be loaded or was cancelled
(also after SIGTERM, which cancels the run); 2 usage error; 130 interrupted by SIGINT (Ctrl-C
cancels the run; partial outputs are removed).
</translation>
    </message>
    <message>
        <source>--existing takes skip, both or replace, not &quot;%1&quot;</source>
        <translation>--existing takes skip, both or replace, not &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>CliProgressBar</name>
    <message>
        <source>%1%  %2/%3 done</source>
        <translation>%1%  %2/%3 done</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>, %1 failed</translation>
    </message>
    <message>
        <source>estimating time remaining</source>
        <translation>estimating time remaining</translation>
    </message>
</context>
<context>
    <name>CliRun</name>
    <message>
        <source>failed to load: %1: %2</source>
        <translation>failed to load: %1: %2</translation>
    </message>
    <message>
        <source>would convert: %1 -&gt; %2
</source>
        <translation>would convert: %1 -&gt; %2
</translation>
    </message>
    <message numerus="yes">
        <source>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</source>
        <translation>
            <numerusform>%n file would be converted to %1 in %2 (with the name it would get now; nothing was converted or created)
</numerusform>
            <numerusform>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</numerusform>
        </translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>done: %1</translation>
    </message>
    <message>
        <source>done: %1 -&gt; %2</source>
        <translation>done: %1 -&gt; %2</translation>
    </message>
    <message>
        <source>cancelled: %1</source>
        <translation>cancelled: %1</translation>
    </message>
    <message>
        <source>failed: %1: %2</source>
        <translation>failed: %1: %2</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, stopping the load</source>
        <translation>sonoria-cli: interrupted, stopping the load</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, cancelling the conversions</source>
        <translation>sonoria-cli: interrupted, cancelling the conversions</translation>
    </message>
    <message>
        <source>tags: %1: %2</source>
        <translation>tags: %1: %2</translation>
    </message>
    <message>
        <source>already converted: %1 -&gt; %2</source>
        <translation>already converted: %1 -&gt; %2</translation>
    </message>
</context>
<context>
    <name>CliTagCheck</name>
    <message>
        <source>sonoria-cli: %1: no such file</source>
        <translation>sonoria-cli: %1: no such file</translation>
    </message>
    <message>
        <source>kept     %1</source>
        <translation>kept     %1</translation>
    </message>
    <message>
        <source>changed  %1: %2</source>
        <translation>changed  %1: %2</translation>
    </message>
    <message>
        <source>lost     %1: %2</source>
        <translation>lost     %1: %2</translation>
    </message>
    <message>
        <source>The source carries no tags.</source>
        <translation>The source carries no tags.</translation>
    </message>
</context>
<context>
    <name>ConvertFailure</name>
    <message>
        <source>No space left on device</source>
        <translation>No space left on device</translation>
    </message>
    <message>
        <source>The disk quota is used up</source>
        <translation>The disk quota is used up</translation>
    </message>
    <message>
        <source>The output folder is read-only</source>
        <translation>The output folder is read-only</translation>
    </message>
    <message>
        <source>You have no permission to write into the output folder</source>
        <translation>You have no permission to write into the output folder</translation>
    </message>
    <message>
        <source>The output folder&apos;s name is taken by a file</source>
        <translation>The output folder&apos;s name is taken by a file</translation>
    </message>
    <message>
        <source>The output folder does not exist</source>
        <translation>The output folder does not exist</translation>
    </message>
    <message>
        <source>The file is larger than the output folder&apos;s file system allows</source>
        <translation>The file is larger than the output folder&apos;s file system allows</translation>
    </message>
    <message>
        <source>The output folder&apos;s device reported an input/output error</source>
        <translation>The output folder&apos;s device reported an input/output error</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1</source>
        <translation>The output folder cannot be written: %1</translation>
    </message>
    <message>
        <source>Permission denied: %1</source>
        <translation>Permission denied: %1</translation>
    </message>
    <message>
        <source>The source gave no audio to convert</source>
        <translation>The source gave no audio to convert</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>The output could not be written: %1</translation>
    </message>
    <message>
        <source>ffmpeg could not decode the source: %1</source>
        <translation>ffmpeg could not decode the source: %1</translation>
    </message>
    <message>
        <source>ffmpeg was ended by signal %1 (%2)</source>
        <translation>ffmpeg was ended by signal %1 (%2)</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1): %2</source>
        <translation>ffmpeg failed (exit status %1): %2</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1)</source>
        <translation>ffmpeg failed (exit status %1)</translation>
    </message>
    <message>
        <source>ffmpeg wrote no output file</source>
        <translation>ffmpeg wrote no output file</translation>
    </message>
    <message>
        <source>The output is empty</source>
        <translation>The output is empty</translation>
    </message>
    <message>
        <source>The output cannot be read back as audio</source>
        <translation>The output cannot be read back as audio</translation>
    </message>
    <message>
        <source>The output holds %1 audio instead of %2</source>
        <translation>The output holds %1 audio instead of %2</translation>
    </message>
    <message>
        <source>The output is shorter than the source (%L1 s instead of %L2 s)</source>
        <translation>The output is shorter than the source (%L1 s instead of %L2 s)</translation>
    </message>
    <message>
        <source>The output is longer than the source (%L1 s instead of %L2 s)</source>
        <translation>The output is longer than the source (%L1 s instead of %L2 s)</translation>
    </message>
    <message>
        <source>The tags could not be written into the output: %1</source>
        <translation>The tags could not be written into the output: %1</translation>
    </message>
    <message>
        <source>The output could not be given its name: %1</source>
        <translation>The output could not be given its name: %1</translation>
    </message>
    <message>
        <source>ffmpeg was not found</source>
        <translation>ffmpeg was not found</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>the file cannot be opened</translation>
    </message>
    <message>
        <source>The converter failed: %1</source>
        <translation>The converter failed: %1</translation>
    </message>
    <message numerus="yes">
        <source>The converter stopped responding for %n seconds</source>
        <translation>
            <numerusform>The converter stopped responding for %n second</numerusform>
            <numerusform>The converter stopped responding for %n seconds</numerusform>
        </translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (signal %1)</source>
        <translation>The converter stopped unexpectedly (signal %1)</translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (exit status %1)</source>
        <translation>The converter stopped unexpectedly (exit status %1)</translation>
    </message>
</context>
<context>
    <name>ConvertLoudness</name>
    <message>
        <source>The loudness of the source could not be measured: %1</source>
        <translation>The loudness of the source could not be measured: %1</translation>
    </message>
</context>
<context>
    <name>ConvertNaming</name>
    <message>
        <source>Unknown Artist</source>
        <translation>Unknown Artist</translation>
    </message>
    <message>
        <source>Unknown Album</source>
        <translation>Unknown Album</translation>
    </message>
    <message>
        <source>Unknown Title</source>
        <translation>Unknown Title</translation>
    </message>
    <message>
        <source>Unknown Track</source>
        <translation>Unknown Track</translation>
    </message>
    <message>
        <source>Unknown Disc</source>
        <translation>Unknown Disc</translation>
    </message>
    <message>
        <source>Unknown Year</source>
        <translation>Unknown Year</translation>
    </message>
    <message>
        <source>Unknown Genre</source>
        <translation>Unknown Genre</translation>
    </message>
</context>
<context>
    <name>HVLoudness</name>
    <message>
        <source>its loudness cannot be measured</source>
        <translation>its loudness cannot be measured</translation>
    </message>
</context>
<context>
    <name>HVSampleReader</name>
    <message>
        <source>the file cannot be opened</source>
        <translation>the file cannot be opened</translation>
    </message>
    <message>
        <source>the file holds no audio</source>
        <translation>the file holds no audio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>its audio cannot be decoded</translation>
    </message>
    <message>
        <source>the measurement was cancelled</source>
        <translation>the measurement was cancelled</translation>
    </message>
</context>
<context>
    <name>LSMediaLoader</name>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>The file cannot be opened: %1</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>This is a folder, not a file</translation>
    </message>
    <message>
        <source>The file holds no audio that can be read</source>
        <translation>The file holds no audio that can be read</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet starts after the end of %2</source>
        <translation>Track %1 of the cue sheet starts after the end of %2</translation>
    </message>
</context>
<context>
    <name>MTETagReport</name>
    <message>
        <source>%1 files cannot hold “%2”</source>
        <translation>%1 files cannot hold “%2”</translation>
    </message>
    <message>
        <source>%1 files hold no tags</source>
        <translation>%1 files hold no tags</translation>
    </message>
    <message>
        <source>%1 files keep it shortened to “%2”</source>
        <translation>%1 files keep it shortened to “%2”</translation>
    </message>
    <message>
        <source>written as “%1”</source>
        <translation>written as “%1”</translation>
    </message>
    <message>
        <source>the cover was too large and was scaled</source>
        <translation>the cover was too large and was scaled</translation>
    </message>
    <message>
        <source>the cover was stored in another picture format</source>
        <translation>the cover was stored in another picture format</translation>
    </message>
    <message>
        <source>%1 files keep only the first picture</source>
        <translation>%1 files keep only the first picture</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artist</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Album artist</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Composer</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Grouping</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Track number</translation>
    </message>
    <message>
        <source>Disc number</source>
        <translation>Disc number</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Publisher</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Lyrics</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Cover art</translation>
    </message>
</context>
<context>
    <name>SXAboutText</name>
    <message>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, version 3 or later</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>About %1</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (build %2)</translation>
    </message>
    <message>
        <source>Converts audio and video files to audio formats.</source>
        <translation>Converts audio and video files to audio formats.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licence: %1</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Libraries in use:</translation>
    </message>
</context>
<context>
    <name>SXAddFilesDialog</name>
    <message>
        <source>Add Files</source>
        <translation>Add Files</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Audio and video files (%1)</source>
        <translation>Audio and video files (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
</context>
<context>
    <name>SXAddRun</name>
    <message>
        <source>The file name is not valid UTF-8</source>
        <translation>The file name is not valid UTF-8</translation>
    </message>
    <message>
        <source>Loading Media Files...</source>
        <translation>Loading media files…</translation>
    </message>
    <message>
        <source>Importing %1...</source>
        <translation>Importing %1…</translation>
    </message>
    <message numerus="yes">
        <source>Following file(s) load failed!</source>
        <translation>
            <numerusform>The following file could not be added:</numerusform>
            <numerusform>The following files could not be added:</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXArtworkDropView</name>
    <message>
        <source>Drop a picture here</source>
        <translation>Drop a picture here</translation>
    </message>
</context>
<context>
    <name>SXCatalogueTexts</name>
    <message>
        <source>MPEG Layer III audio, playable everywhere</source>
        <translation>MPEG Layer III audio, playable everywhere</translation>
    </message>
    <message>
        <source>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</source>
        <translation>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</translation>
    </message>
    <message>
        <source>AAC ringtone for phones</source>
        <translation>AAC ringtone for phones</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</source>
        <translation>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</translation>
    </message>
    <message>
        <source>Apple Lossless in an MPEG-4 file: exact copy of the sound</source>
        <translation>Apple Lossless in an MPEG-4 file: exact copy of the sound</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in a WAVE file</source>
        <translation>Uncompressed 16-bit PCM in a WAVE file</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in an AIFF file</source>
        <translation>Uncompressed 16-bit PCM in an AIFF file</translation>
    </message>
    <message>
        <source>Vorbis in an Ogg file: free and open lossy audio</source>
        <translation>Vorbis in an Ogg file: free and open lossy audio</translation>
    </message>
    <message>
        <source>Opus in an Ogg file: the best quality at low bit rates</source>
        <translation>Opus in an Ogg file: the best quality at low bit rates</translation>
    </message>
    <message>
        <source>Windows Media Audio 2</source>
        <translation>Windows Media Audio 2</translation>
    </message>
    <message>
        <source>Dolby Digital (AC-3) stream for video and home cinema</source>
        <translation>Dolby Digital (AC-3) stream for video and home cinema</translation>
    </message>
    <message>
        <source>MPEG Layer II audio stream for broadcast and DVD</source>
        <translation>MPEG Layer II audio stream for broadcast and DVD</translation>
    </message>
    <message>
        <source>WavPack lossless audio: exact copy of the sound, compact and fast</source>
        <translation>WavPack lossless audio: exact copy of the sound, compact and fast</translation>
    </message>
    <message>
        <source>Use Source</source>
        <translation>As Source</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Lossless</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation>Ringtone</translation>
    </message>
</context>
<context>
    <name>SXCommandValidation</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop convert all files</source>
        <translation>Stop converting all files</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start convert all files</source>
        <translation>Convert all files</translation>
    </message>
</context>
<context>
    <name>SXContainerTabBar</name>
    <message>
        <source>Containers</source>
        <translation>Containers</translation>
    </message>
    <message>
        <source>Add new format</source>
        <translation>Add a new format</translation>
    </message>
</context>
<context>
    <name>SXContainerTabs</name>
    <message>
        <source>No Way!</source>
        <translation>Not this one</translation>
    </message>
    <message>
        <source>I refuse to close a tab named &quot;Drake&quot;</source>
        <translation>A tab named “Drake” cannot be closed.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>All formats are opened, you can set the paramas in the setting window.</source>
        <translation>Every format already has a tab. You can change its settings in the panel below the list.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXCueSheet</name>
    <message>
        <source>The cue sheet cannot be read as one</source>
        <translation>This is not a cue sheet that can be read</translation>
    </message>
    <message>
        <source>The cue sheet lists no tracks</source>
        <translation>The cue sheet lists no tracks</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet ends before it starts</source>
        <translation>Track %1 of the cue sheet ends before it starts</translation>
    </message>
    <message>
        <source>The cue sheet cannot be opened: %1</source>
        <translation>The cue sheet cannot be opened: %1</translation>
    </message>
    <message>
        <source>The audio file of the cue sheet is missing: %1</source>
        <translation>The audio file of the cue sheet is missing: %1</translation>
    </message>
</context>
<context>
    <name>SXFailureTexts</name>
    <message>
        <source>ffmpeg failed without giving a reason</source>
        <translation>ffmpeg failed without giving a reason</translation>
    </message>
    <message>
        <source>The file cannot be read as audio</source>
        <translation>The file cannot be read as audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Converted: %n.</source>
        <translation>
            <numerusform>Converted: %n.</numerusform>
            <numerusform>Converted: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Failed: %n.</source>
        <translation>
            <numerusform>Failed: %n.</numerusform>
            <numerusform>Failed: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not loaded: %n.</source>
        <translation>
            <numerusform>Not loaded: %n.</numerusform>
            <numerusform>Not loaded: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Failed: %1</translation>
    </message>
    <message>
        <source>Tags not kept:</source>
        <translation>Tags not kept:</translation>
    </message>
    <message>
        <source>Already converted: the output was there, whole and newer than this file</source>
        <translation>Already converted: the output was there, whole and newer than this file</translation>
    </message>
</context>
<context>
    <name>SXFileInfoText</name>
    <message>
        <source>Failed because</source>
        <translation>Failed because</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constant</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>mod</source>
        <translation>Not known</translation>
    </message>
    <message>
        <source>%1kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>%1kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 audio file</source>
        <translation>%1 audio file</translation>
    </message>
    <message>
        <source>%1 video file</source>
        <translation>%1 video file</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artist</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Encoded with</source>
        <translation>Encoded with</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bit rate</translation>
    </message>
    <message>
        <source>Bit rate mode</source>
        <translation>Bit rate mode</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Sample rate</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Channel count</source>
        <translation>Channel count</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Tag format</source>
        <translation>Tag format</translation>
    </message>
    <message>
        <source>Tag version</source>
        <translation>Tag version</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Date modified</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Where</translation>
    </message>
    <message>
        <source>Tags not kept</source>
        <translation>Tags not kept</translation>
    </message>
</context>
<context>
    <name>SXFileInfoViewController</name>
    <message>
        <source>File Information</source>
        <translation>File Information</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Artwork</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Show in File &amp;Manager</translation>
    </message>
</context>
<context>
    <name>SXFormatChooserDialog</name>
    <message>
        <source>New Format</source>
        <translation>New Format</translation>
    </message>
    <message>
        <source>Add a container that converts to:</source>
        <translation>Add a container that converts to:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Bit rate:</translation>
    </message>
    <message>
        <source>&amp;Sample rate:</source>
        <translation>&amp;Sample rate:</translation>
    </message>
    <message>
        <source>C&amp;hannels:</source>
        <translation>C&amp;hannels:</translation>
    </message>
    <message>
        <source>Add to the music &amp;library</source>
        <translation>Add to the music &amp;library</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Replay&amp;Gain tags:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>&amp;Normalise loudness</source>
        <translation>&amp;Normalise loudness</translation>
    </message>
</context>
<context>
    <name>SXHelpView</name>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
</context>
<context>
    <name>SXItemListView</name>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Drop audio files here, or press Add Files</source>
        <translation>Drop audio files here, or press Add Files</translation>
    </message>
</context>
<context>
    <name>SXItemRowLookRules</name>
    <message>
        <source>pending</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>sending</source>
        <translation>Sending to the music library</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>Converted</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>Converting</translation>
    </message>
    <message>
        <source>already converted</source>
        <translation>already converted</translation>
    </message>
</context>
<context>
    <name>SXItemStateView</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Total progress</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Play position</translation>
    </message>
    <message>
        <source>Resume (Shift+Space)</source>
        <translation>Resume (Shift+Space)</translation>
    </message>
    <message>
        <source>Pause (Shift+Space)</source>
        <translation>Pause (Shift+Space)</translation>
    </message>
</context>
<context>
    <name>SXListDrop</name>
    <message numerus="yes">
        <source>Following location(s) are not files on this computer and were not added!</source>
        <translation>
            <numerusform>This location is not a file on this computer and was not added:</numerusform>
            <numerusform>These locations are not files on this computer and were not added:</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXLoadingDialog</name>
    <message>
        <source>Loading progress</source>
        <translation>Loading progress</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SXMainAppController</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Add Files…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>Cl&amp;ear</translation>
    </message>
</context>
<context>
    <name>SXMenuHandler</name>
    <message>
        <source>&amp;New Container</source>
        <translation>&amp;New Container</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>New &amp;Format</source>
        <translation>New Fo&amp;rmat</translation>
    </message>
    <message>
        <source>&amp;Close Container</source>
        <translation>Clos&amp;e Container</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferences…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Cle&amp;ar</translation>
    </message>
    <message>
        <source>&amp;Next File</source>
        <translation>Ne&amp;xt File</translation>
    </message>
    <message>
        <source>&amp;Previous File</source>
        <translation>Pre&amp;vious File</translation>
    </message>
    <message>
        <source>Next &amp;Container</source>
        <translation>Next Conta&amp;iner</translation>
    </message>
    <message>
        <source>Previous Conta&amp;iner</source>
        <translation>Previo&amp;us Container</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Edit Ta&amp;gs…</translation>
    </message>
    <message>
        <source>File Inf&amp;ormation</source>
        <translation>File Infor&amp;mation</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;top</translation>
    </message>
    <message>
        <source>Sonoria &amp;Help</source>
        <translation>Sonoria Help</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Send Feedbac&amp;k…</translation>
    </message>
    <message>
        <source>Sonoria &amp;Website</source>
        <translation>Sonoria &amp;Website</translation>
    </message>
    <message>
        <source>&amp;About Sonoria</source>
        <translation>A&amp;bout Sonoria</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;List</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convert</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditDialog</name>
    <message>
        <source>&amp;Tags</source>
        <translation>&amp;Tags</translation>
    </message>
    <message>
        <source>A&amp;rtwork</source>
        <translation>A&amp;rtwork</translation>
    </message>
    <message>
        <source>&amp;Lyrics</source>
        <translation>&amp;Lyrics</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Previous</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Artwork</translation>
    </message>
    <message>
        <source>Artwork size</source>
        <translation>Artwork size</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Add…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Choose Artwork</source>
        <translation>Choose Artwork</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Pictures (%1)</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditing</name>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artist</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Album artist</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Composer</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Grouping</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Publisher</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Sorry, this kind format CAN NOT support for editing for metadata</source>
        <translation>This format cannot carry tags, so they cannot be edited.</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Lyrics</translation>
    </message>
</context>
<context>
    <name>SXOutputFolderDialog</name>
    <message>
        <source>Output Folder</source>
        <translation>Output Folder</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Output folder</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Browse…</translation>
    </message>
    <message>
        <source>Put the files of each format in a folder of its own</source>
        <translation>Put the files of each format in a folder of its own</translation>
    </message>
    <message>
        <source>Open the folder when the conversion is over</source>
        <translation>Open the folder when the conversion is over</translation>
    </message>
    <message>
        <source>Choose Output Folder</source>
        <translation>Choose Output Folder</translation>
    </message>
</context>
<context>
    <name>SXPreferences</name>
    <message>
        <source>Skip files already converted</source>
        <translation>Skip files already converted</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Keep both</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
</context>
<context>
    <name>SXPreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Con&amp;versions at once:</source>
        <translation>Con&amp;versions at once:</translation>
    </message>
    <message>
        <source>Music &amp;library format:</source>
        <translation>Music &amp;library format:</translation>
    </message>
    <message>
        <source>&amp;Playlist name:</source>
        <translation>&amp;Playlist name:</translation>
    </message>
    <message>
        <source>&amp;Send a start-up report and fetch feature switches</source>
        <translation>&amp;Send a start-up report and fetch feature switches</translation>
    </message>
    <message>
        <source>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</source>
        <translation>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</translation>
    </message>
    <message>
        <source>&amp;Existing outputs:</source>
        <translation>&amp;Existing outputs:</translation>
    </message>
    <message>
        <source>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</source>
        <translation>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</translation>
    </message>
</context>
<context>
    <name>SXReadableNames</name>
    <message>
        <source>PCM %1-bit float</source>
        <translation>PCM %1-bit float</translation>
    </message>
    <message>
        <source>PCM %1-bit</source>
        <translation>PCM %1-bit</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n channel</numerusform>
            <numerusform>%n channels</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorbis comments</source>
        <translation>Vorbis comments</translation>
    </message>
</context>
<context>
    <name>SXRowContextMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Play</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>P&amp;ause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Resume</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Edit &amp;Tags…</translation>
    </message>
    <message>
        <source>File &amp;Information</source>
        <translation>File &amp;Information</translation>
    </message>
    <message>
        <source>Show in &amp;Files</source>
        <translation>Show in &amp;Files</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>&amp;Cancel This Conversion</source>
        <translation>&amp;Cancel This Conversion</translation>
    </message>
    <message>
        <source>File actions</source>
        <translation>File actions</translation>
    </message>
</context>
<context>
    <name>SXRunFeedback</name>
    <message>
        <source>Conversion finished</source>
        <translation>Conversion finished</translation>
    </message>
</context>
<context>
    <name>SXRunSummary</name>
    <message numerus="yes">
        <source>%n files were already converted and were left as they were.</source>
        <translation>
            <numerusform>%n file was already converted and was left as it was.</numerusform>
            <numerusform>%n files were already converted and were left as they were.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not keep all their tags.</source>
        <translation>
            <numerusform>%n file could not keep all its tags.</numerusform>
            <numerusform>%n files could not keep all their tags.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXSettingsPanel</name>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Bit rate:</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation>Sample &amp;rate:</translation>
    </message>
    <message>
        <source>Cha&amp;nnels:</source>
        <translation>Cha&amp;nnels:</translation>
    </message>
    <message>
        <source>Add to m&amp;usic library</source>
        <translation>Add to m&amp;usic library</translation>
    </message>
    <message>
        <source>&amp;Output Folder…</source>
        <translation>&amp;Output Folder…</translation>
    </message>
    <message>
        <source>Show in F&amp;iles</source>
        <translation>Show in F&amp;iles</translation>
    </message>
    <message>
        <source>Output Folder of This Format</source>
        <translation>Output Folder of This Format</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Replay&amp;Gain tags:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Normali&amp;se loudness</source>
        <translation>Normali&amp;se loudness</translation>
    </message>
    <message>
        <source>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below -1 dBTP; the output then gets no ReplayGain tags</source>
        <translation>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below −1 dBTP; the output then gets no ReplayGain tags</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Name pattern</translation>
    </message>
    <message>
        <source>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</source>
        <translation>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</translation>
    </message>
    <message>
        <source>Name pa&amp;ttern:</source>
        <translation>Name pa&amp;ttern:</translation>
    </message>
    <message>
        <source>&amp;Keep the layout of added folders</source>
        <translation>&amp;Keep the layout of added folders</translation>
    </message>
    <message>
        <source>The first file becomes: %1</source>
        <translation>The first file becomes: %1</translation>
    </message>
</context>
<context>
    <name>SXStateStripModel</name>
    <message>
        <source>Converting...</source>
        <translation>Converting…</translation>
    </message>
</context>
<context>
    <name>SXTimeText</name>
    <message numerus="yes">
        <source>%n seconds remaining</source>
        <translation>
            <numerusform>%n second remaining</numerusform>
            <numerusform>%n seconds remaining</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second remaining</source>
        <translation>
            <numerusform>%n second remaining</numerusform>
            <numerusform>%n seconds remaining</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2 remaining</source>
        <translation>%1 %2 remaining</translation>
    </message>
    <message numerus="yes">
        <source>%n minites</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minite</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n second</numerusform>
            <numerusform>%n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second</source>
        <translation>
            <numerusform>%n second</numerusform>
            <numerusform>%n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n hour</numerusform>
            <numerusform>%n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour</source>
        <translation>
            <numerusform>%n hour</numerusform>
            <numerusform>%n hours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXWindowPresenter</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXWindowToolbar</name>
    <message>
        <source>Toolbar</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>SXWorkspace</name>
    <message>
        <source>Warnning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Do you want to close all window without save information?</source>
        <translation>Close all windows? Files in the lists will be forgotten.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXWorkspacePreview</name>
    <message>
        <source>Can not play the file</source>
        <translation>The file cannot be played</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXWorkspaceScheduler</name>
    <message>
        <source>Cannot write into the output folder &quot;%1&quot;: %2</source>
        <translation>Cannot write into the output folder &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The conversion did not start</source>
        <translation>The conversion did not start</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files has been successfully converted.</source>
        <translation>
            <numerusform>%n file has been converted.</numerusform>
            <numerusform>%n files have been converted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>except %n files failed,including:</source>
        <translation>
            <numerusform> %n file failed:</numerusform>
            <numerusform> %n files failed, including:</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose output folder:</source>
        <translation>Choose the output folder:</translation>
    </message>
</context>
<context>
    <name>SXWorkspaceTexts</name>
    <message numerus="yes">
        <source>%n files, %1 hours, %2 in %3</source>
        <translation>
            <numerusform>%n file, %1 hours, %2 in %3</numerusform>
            <numerusform>%n files, %1 hours, %2 in %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n containers</source>
        <translation>
            <numerusform>%n container</numerusform>
            <numerusform>%n containers</numerusform>
        </translation>
    </message>
    <message>
        <source>Converter to %1</source>
        <translation>Convert to %1</translation>
    </message>
    <message>
        <source>item</source>
        <translation>item</translation>
    </message>
    <message>
        <source>items</source>
        <translation>items</translation>
    </message>
    <message numerus="yes">
        <source>%n item</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1% — %2</source>
        <translation>%1% — %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</source>
        <translation>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</translation>
    </message>
    <message>
        <source>sonoria-cli: cannot watch for interrupts</source>
        <translation>sonoria-cli: cannot watch for interrupts</translation>
    </message>
    <message>
        <source>Converts audio and video files.</source>
        <translation>Converts audio and video files.</translation>
    </message>
    <message>
        <source>Mirror log lines to standard error.</source>
        <translation>Mirror log lines to standard error.</translation>
    </message>
    <message>
        <source>Audio or video files and folders to add.</source>
        <translation>Audio or video files and folders to add.</translation>
    </message>
</context>
</TS>
