<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CliCatalogue</name>
    <message>
        <source>not offered</source>
        <translation>nicht angeboten</translation>
    </message>
    <message>
        <source>offered, on</source>
        <translation>angeboten, an</translation>
    </message>
    <message>
        <source>offered, off</source>
        <translation>angeboten, aus</translation>
    </message>
    <message>
        <source>%1 does not offer %2 &quot;%3&quot; (offered: %4)</source>
        <translation>%1 bietet für „%2“ den Wert „%3“ nicht an (angeboten: %4)</translation>
    </message>
    <message>
        <source>Output formats (* marks the default choice):
</source>
        <translation>Ausgabeformate (* kennzeichnet die Vorgabe):
</translation>
    </message>
    <message>
        <source>bit rates:</source>
        <translation>Bitraten:</translation>
    </message>
    <message>
        <source>sample rates:</source>
        <translation>Abtastraten:</translation>
    </message>
    <message>
        <source>channels:</source>
        <translation>Kanäle:</translation>
    </message>
    <message>
        <source>music library:</source>
        <translation>Musikbibliothek:</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot; (formats: %2)</source>
        <translation>unbekanntes Format „%1“ (Formate: %2)</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>%1 does not offer delivery to the music library</source>
        <translation>%1 bietet keine Übergabe an die Musikbibliothek an</translation>
    </message>
</context>
<context>
    <name>CliInfo</name>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>image</source>
        <translation>Bild</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n bytes</source>
        <translation>
            <numerusform>%1, %n Byte</numerusform>
            <numerusform>%1, %n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>sonoria-cli: cannot read &quot;%1&quot; as media</source>
        <translation>sonoria-cli: „%1“ kann nicht als Mediendatei gelesen werden</translation>
    </message>
    <message>
        <source>Artwork:</source>
        <translation>Cover:</translation>
    </message>
</context>
<context>
    <name>CliOptionsParser</name>
    <message>
        <source>option --%1 given more than once</source>
        <translation>Option --%1 wurde mehrmals angegeben</translation>
    </message>
    <message>
        <source>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</source>
        <translation>--jobs erwartet eine ganze Zahl ab 1, nicht „%1“</translation>
    </message>
    <message>
        <source>--output needs a folder</source>
        <translation>--output erwartet einen Ordner</translation>
    </message>
    <message>
        <source>--list-formats and --info take no FILE|FOLDER arguments</source>
        <translation>--list-formats und --info nehmen keine DATEI- oder ORDNER-Argumente an</translation>
    </message>
    <message>
        <source>no input: give at least one FILE or FOLDER (see --help)</source>
        <translation>keine Eingabe: Geben Sie mindestens eine DATEI oder einen ORDNER an (siehe --help)</translation>
    </message>
    <message>
        <source>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</source>
        <translation>--replaygain erwartet „track“ oder „album“, nicht „%1“</translation>
    </message>
    <message>
        <source>--check-tags takes two files: SOURCE and OUTPUT</source>
        <translation>--check-tags erwartet zwei Dateien: QUELLE und AUSGABE</translation>
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
        <translation>Aufruf: sonoria-cli [Optionen] DATEI|ORDNER …
Audio- und Videodateien in Audioformate konvertieren.

  -f, --format NAME       Ausgabeformat, ein Name aus dem Katalog (Vorgabe „MP3“)
  -o, --output ORDNER     Ausgabeordner (Vorgabe: der zuletzt gespeicherte Ordner, sonst Musik/Sonoria)
      --no-organize       direkt in ORDNER schreiben statt in ORDNER/&lt;Formatname&gt;
  -j, --jobs N            gleichzeitige Konvertierungen (Vorgabe: das gespeicherte Maximum, 5)
  -b, --bitrate W  -r, --samplerate W  -c, --channels W   eine der Möglichkeiten, die das Format anbietet
      --pattern MUSTER    Ausgaben nach ihren Tags benennen: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; „/“ legt Ordner
                          an (Vorgabe „{filename}“: der eigene Name der Quelle)
      --mirror            den Platz jeder Datei unterhalb des ORDNERS beibehalten, in dem sie lag
      --existing WAS      eine Ausgabe mit dem geplanten Namen ist schon da: „skip“ überspringt sie,
                          wenn sie vollständig und neuer als ihre Quelle ist (Vorgabe: die
                          gespeicherte Einstellung, sonst skip), „both“ behält beide (die neue
                          Datei wird nummeriert), „replace“ ersetzt eine von diesem Programm
                          geschriebene Ausgabe (nie eine andere Datei)
      --library           fertige Dateien an die Musikbibliothek und die Wiedergabeliste übergeben
      --replaygain MODUS  die Lautheit messen und die Ausgaben mit ReplayGain versehen: „track“,
                          oder „album“ für Titel- und Albumwerte (standardmäßig aus)
      --normalise         mit der gemessenen Lautheit konvertieren (der des Albums mit
                          --replaygain album), True Peak höchstens -1 dBTP; ohne ReplayGain-Tags
      --list-formats      den Katalog ausgeben: Namen, Endungen, Möglichkeiten und Vorgaben
      --info DATEI        ausgeben, was das Feld mit den Dateiinformationen zu einer Datei anzeigt
      --check-tags QUELLE AUSGABE   die Tags zweier Dateien vergleichen: was ankam, was sich
                          änderte, was verloren ging und warum (Status 1, wenn etwas verloren ging)
  -n, --dry-run           laden und prüfen, ausgeben, was wohin konvertiert würde, nichts konvertieren
  -v, --verbose           die Protokollzeilen auch auf die Standardfehlerausgabe schreiben (wie SONORIA_VERBOSE=1)
  -h, --help              diesen Text anzeigen

Ein Name, der mit „-“ beginnt, braucht „--“ davor oder „./“ am Anfang.
Gespeicherte Einstellungen werden gelesen, aber nie geändert.

Rückgabewert: 0 alle Dateien konvertiert; 1 eine Datei ist fehlgeschlagen, konnte nicht geladen
werden oder wurde abgebrochen (auch nach SIGTERM, das den Lauf abbricht); 2 Fehler im Aufruf;
130 durch SIGINT unterbrochen (Strg+C bricht den Lauf ab; unvollständige Ausgaben werden entfernt).
</translation>
    </message>
    <message>
        <source>--existing takes skip, both or replace, not &quot;%1&quot;</source>
        <translation>--existing erwartet skip, both oder replace, nicht „%1“</translation>
    </message>
</context>
<context>
    <name>CliProgressBar</name>
    <message>
        <source>%1%  %2/%3 done</source>
        <translation>%1&#xa0;%  %2/%3 fertig</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>, %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>estimating time remaining</source>
        <translation>verbleibende Zeit wird geschätzt</translation>
    </message>
</context>
<context>
    <name>CliRun</name>
    <message>
        <source>failed to load: %1: %2</source>
        <translation>Laden fehlgeschlagen: %1: %2</translation>
    </message>
    <message>
        <source>would convert: %1 -&gt; %2
</source>
        <translation>würde konvertieren: %1 -&gt; %2
</translation>
    </message>
    <message numerus="yes">
        <source>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</source>
        <translation>
            <numerusform>%n Datei würde nach %1 in %2 konvertiert (mit dem Namen, den sie jetzt erhielte; es wurde nichts konvertiert oder angelegt)
</numerusform>
            <numerusform>%n Dateien würden nach %1 in %2 konvertiert (jede mit dem Namen, den sie jetzt erhielte; es wurde nichts konvertiert oder angelegt)
</numerusform>
        </translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>fertig: %1</translation>
    </message>
    <message>
        <source>done: %1 -&gt; %2</source>
        <translation>fertig: %1 -&gt; %2</translation>
    </message>
    <message>
        <source>cancelled: %1</source>
        <translation>abgebrochen: %1</translation>
    </message>
    <message>
        <source>failed: %1: %2</source>
        <translation>fehlgeschlagen: %1: %2</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, stopping the load</source>
        <translation>sonoria-cli: unterbrochen, das Laden wird beendet</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, cancelling the conversions</source>
        <translation>sonoria-cli: unterbrochen, die Konvertierungen werden abgebrochen</translation>
    </message>
    <message>
        <source>tags: %1: %2</source>
        <translation>Tags: %1: %2</translation>
    </message>
    <message>
        <source>already converted: %1 -&gt; %2</source>
        <translation>bereits konvertiert: %1 -&gt; %2</translation>
    </message>
</context>
<context>
    <name>CliTagCheck</name>
    <message>
        <source>sonoria-cli: %1: no such file</source>
        <translation>sonoria-cli: %1: Datei nicht gefunden</translation>
    </message>
    <message>
        <source>kept     %1</source>
        <translation>erhalten %1</translation>
    </message>
    <message>
        <source>changed  %1: %2</source>
        <translation>geändert %1: %2</translation>
    </message>
    <message>
        <source>lost     %1: %2</source>
        <translation>verloren %1: %2</translation>
    </message>
    <message>
        <source>The source carries no tags.</source>
        <translation>Die Quelle enthält keine Tags.</translation>
    </message>
</context>
<context>
    <name>ConvertFailure</name>
    <message>
        <source>No space left on device</source>
        <translation>Kein freier Speicherplatz mehr auf dem Gerät</translation>
    </message>
    <message>
        <source>The disk quota is used up</source>
        <translation>Das Speicherkontingent ist ausgeschöpft</translation>
    </message>
    <message>
        <source>The output folder is read-only</source>
        <translation>Der Ausgabeordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>You have no permission to write into the output folder</source>
        <translation>Sie haben keine Berechtigung, in den Ausgabeordner zu schreiben</translation>
    </message>
    <message>
        <source>The output folder&apos;s name is taken by a file</source>
        <translation>Der Name des Ausgabeordners ist bereits durch eine Datei belegt</translation>
    </message>
    <message>
        <source>The output folder does not exist</source>
        <translation>Der Ausgabeordner existiert nicht</translation>
    </message>
    <message>
        <source>The file is larger than the output folder&apos;s file system allows</source>
        <translation>Die Datei ist größer, als es das Dateisystem des Ausgabeordners erlaubt</translation>
    </message>
    <message>
        <source>The output folder&apos;s device reported an input/output error</source>
        <translation>Das Gerät des Ausgabeordners hat einen Ein-/Ausgabefehler gemeldet</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1</source>
        <translation>In den Ausgabeordner kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Permission denied: %1</source>
        <translation>Zugriff verweigert: %1</translation>
    </message>
    <message>
        <source>The source gave no audio to convert</source>
        <translation>Die Quelle lieferte keine Audiodaten zum Konvertieren</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>Die Ausgabedatei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>ffmpeg could not decode the source: %1</source>
        <translation>ffmpeg konnte die Quelle nicht dekodieren: %1</translation>
    </message>
    <message>
        <source>ffmpeg was ended by signal %1 (%2)</source>
        <translation>ffmpeg wurde durch Signal %1 (%2) beendet</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1): %2</source>
        <translation>ffmpeg ist fehlgeschlagen (Rückgabewert %1): %2</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1)</source>
        <translation>ffmpeg ist fehlgeschlagen (Rückgabewert %1)</translation>
    </message>
    <message>
        <source>ffmpeg wrote no output file</source>
        <translation>ffmpeg hat keine Ausgabedatei geschrieben</translation>
    </message>
    <message>
        <source>The output is empty</source>
        <translation>Die Ausgabedatei ist leer</translation>
    </message>
    <message>
        <source>The output cannot be read back as audio</source>
        <translation>Die Ausgabedatei lässt sich nicht als Audio zurücklesen</translation>
    </message>
    <message>
        <source>The output holds %1 audio instead of %2</source>
        <translation>Die Ausgabedatei enthält %1-Audio statt %2</translation>
    </message>
    <message>
        <source>The output is shorter than the source (%L1 s instead of %L2 s)</source>
        <translation>Die Ausgabedatei ist kürzer als die Quelle (%L1 s statt %L2 s)</translation>
    </message>
    <message>
        <source>The output is longer than the source (%L1 s instead of %L2 s)</source>
        <translation>Die Ausgabedatei ist länger als die Quelle (%L1 s statt %L2 s)</translation>
    </message>
    <message>
        <source>The tags could not be written into the output: %1</source>
        <translation>Die Tags konnten nicht in die Ausgabedatei geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The output could not be given its name: %1</source>
        <translation>Die Ausgabedatei konnte ihren Namen nicht erhalten: %1</translation>
    </message>
    <message>
        <source>ffmpeg was not found</source>
        <translation>ffmpeg wurde nicht gefunden</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>die Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The converter failed: %1</source>
        <translation>Der Konverter ist gescheitert: %1</translation>
    </message>
    <message numerus="yes">
        <source>The converter stopped responding for %n seconds</source>
        <translation>
            <numerusform>Der Konverter hat %n Sekunde lang nicht geantwortet</numerusform>
            <numerusform>Der Konverter hat %n Sekunden lang nicht geantwortet</numerusform>
        </translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (signal %1)</source>
        <translation>Der Konverter wurde unerwartet beendet (Signal %1)</translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (exit status %1)</source>
        <translation>Der Konverter wurde unerwartet beendet (Exit-Status %1)</translation>
    </message>
</context>
<context>
    <name>ConvertLoudness</name>
    <message>
        <source>The loudness of the source could not be measured: %1</source>
        <translation>Die Lautheit der Quelle ließ sich nicht messen: %1</translation>
    </message>
</context>
<context>
    <name>ConvertNaming</name>
    <message>
        <source>Unknown Artist</source>
        <translation>Unbekannter Interpret</translation>
    </message>
    <message>
        <source>Unknown Album</source>
        <translation>Unbekanntes Album</translation>
    </message>
    <message>
        <source>Unknown Title</source>
        <translation>Unbekannter Titel</translation>
    </message>
    <message>
        <source>Unknown Track</source>
        <translation>Unbekannte Titelnummer</translation>
    </message>
    <message>
        <source>Unknown Disc</source>
        <translation>Unbekannte CD</translation>
    </message>
    <message>
        <source>Unknown Year</source>
        <translation>Unbekanntes Jahr</translation>
    </message>
    <message>
        <source>Unknown Genre</source>
        <translation>Unbekanntes Genre</translation>
    </message>
</context>
<context>
    <name>HVLoudness</name>
    <message>
        <source>its loudness cannot be measured</source>
        <translation>ihre Lautheit lässt sich nicht messen</translation>
    </message>
</context>
<context>
    <name>HVSampleReader</name>
    <message>
        <source>the file cannot be opened</source>
        <translation>die Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>the file holds no audio</source>
        <translation>die Datei enthält keinen Ton</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>ihr Ton lässt sich nicht dekodieren</translation>
    </message>
    <message>
        <source>the measurement was cancelled</source>
        <translation>die Messung wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>LSMediaLoader</name>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>Die Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>Das ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>The file holds no audio that can be read</source>
        <translation>Die Datei enthält keine lesbaren Audiodaten</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet starts after the end of %2</source>
        <translation>Titel %1 des Cue-Sheets beginnt nach dem Ende von %2</translation>
    </message>
</context>
<context>
    <name>MTETagReport</name>
    <message>
        <source>%1 files cannot hold “%2”</source>
        <translation>%1-Dateien können „%2“ nicht speichern</translation>
    </message>
    <message>
        <source>%1 files hold no tags</source>
        <translation>%1-Dateien enthalten keine Tags</translation>
    </message>
    <message>
        <source>%1 files keep it shortened to “%2”</source>
        <translation>%1-Dateien speichern es gekürzt als „%2“</translation>
    </message>
    <message>
        <source>written as “%1”</source>
        <translation>geschrieben als „%1“</translation>
    </message>
    <message>
        <source>the cover was too large and was scaled</source>
        <translation>das Cover war zu groß und wurde verkleinert</translation>
    </message>
    <message>
        <source>the cover was stored in another picture format</source>
        <translation>das Cover wurde in einem anderen Bildformat gespeichert</translation>
    </message>
    <message>
        <source>%1 files keep only the first picture</source>
        <translation>%1-Dateien behalten nur das erste Bild</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Album-Interpret</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Gruppierung</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Titelnummer</translation>
    </message>
    <message>
        <source>Disc number</source>
        <translation>CD-Nummer</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Verlag</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Liedtext</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Cover</translation>
    </message>
</context>
<context>
    <name>SXAboutText</name>
    <message>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, Version 3 oder neuer</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (Build %2)</translation>
    </message>
    <message>
        <source>Converts audio and video files to audio formats.</source>
        <translation>Konvertiert Audio- und Videodateien in Audioformate.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Lizenz: %1</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Verwendete Bibliotheken:</translation>
    </message>
</context>
<context>
    <name>SXAddFilesDialog</name>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Audio and video files (%1)</source>
        <translation>Audio- und Videodateien (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>SXAddRun</name>
    <message>
        <source>The file name is not valid UTF-8</source>
        <translation>Der Dateiname ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>Loading Media Files...</source>
        <translation>Mediendateien werden geladen …</translation>
    </message>
    <message>
        <source>Importing %1...</source>
        <translation>%1 wird importiert …</translation>
    </message>
    <message numerus="yes">
        <source>Following file(s) load failed!</source>
        <translation>
            <numerusform>Die folgende Datei konnte nicht hinzugefügt werden:</numerusform>
            <numerusform>Die folgenden Dateien konnten nicht hinzugefügt werden:</numerusform>
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
        <translation>Bild hierher ziehen</translation>
    </message>
</context>
<context>
    <name>SXCatalogueTexts</name>
    <message>
        <source>MPEG Layer III audio, playable everywhere</source>
        <translation>MPEG-Layer-III-Audio, überall abspielbar</translation>
    </message>
    <message>
        <source>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</source>
        <translation>Advanced Audio Coding in einer MPEG-4-Datei: kleiner als MP3 bei gleicher Qualität</translation>
    </message>
    <message>
        <source>AAC ringtone for phones</source>
        <translation>AAC-Klingelton für Telefone</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</source>
        <translation>Free Lossless Audio Codec: exakte Kopie des Klangs, etwa halb so groß wie WAV</translation>
    </message>
    <message>
        <source>Apple Lossless in an MPEG-4 file: exact copy of the sound</source>
        <translation>Apple Lossless in einer MPEG-4-Datei: exakte Kopie des Klangs</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in a WAVE file</source>
        <translation>Unkomprimiertes 16-Bit-PCM in einer WAVE-Datei</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in an AIFF file</source>
        <translation>Unkomprimiertes 16-Bit-PCM in einer AIFF-Datei</translation>
    </message>
    <message>
        <source>Vorbis in an Ogg file: free and open lossy audio</source>
        <translation>Vorbis in einer Ogg-Datei: freies und offenes verlustbehaftetes Audio</translation>
    </message>
    <message>
        <source>Opus in an Ogg file: the best quality at low bit rates</source>
        <translation>Opus in einer Ogg-Datei: die beste Qualität bei niedrigen Bitraten</translation>
    </message>
    <message>
        <source>Windows Media Audio 2</source>
        <translation>Windows Media Audio 2</translation>
    </message>
    <message>
        <source>Dolby Digital (AC-3) stream for video and home cinema</source>
        <translation>Dolby-Digital-Datenstrom (AC-3) für Video und Heimkino</translation>
    </message>
    <message>
        <source>MPEG Layer II audio stream for broadcast and DVD</source>
        <translation>MPEG-Layer-II-Audiodatenstrom für Rundfunk und DVD</translation>
    </message>
    <message>
        <source>WavPack lossless audio: exact copy of the sound, compact and fast</source>
        <translation>Verlustfreies WavPack-Audio: exakte Kopie des Klangs, kompakt und schnell</translation>
    </message>
    <message>
        <source>Use Source</source>
        <translation>Wie Quelle</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
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
        <translation>Klingelton</translation>
    </message>
</context>
<context>
    <name>SXCommandValidation</name>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Stop convert all files</source>
        <translation>Konvertierung aller Dateien stoppen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Start convert all files</source>
        <translation>Alle Dateien konvertieren</translation>
    </message>
</context>
<context>
    <name>SXContainerTabBar</name>
    <message>
        <source>Containers</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>Add new format</source>
        <translation>Neues Format hinzufügen</translation>
    </message>
</context>
<context>
    <name>SXContainerTabs</name>
    <message>
        <source>No Way!</source>
        <translation>Dieser nicht</translation>
    </message>
    <message>
        <source>I refuse to close a tab named &quot;Drake&quot;</source>
        <translation>Ein Reiter namens „Drake“ kann nicht geschlossen werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>All formats are opened, you can set the paramas in the setting window.</source>
        <translation>Jedes Format hat bereits einen Reiter. Seine Einstellungen können Sie im Bereich unter der Liste ändern.</translation>
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
        <translation>Das Cue-Sheet lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>The cue sheet lists no tracks</source>
        <translation>Das Cue-Sheet enthält keine Titel</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet ends before it starts</source>
        <translation>Titel %1 des Cue-Sheets endet, bevor er beginnt</translation>
    </message>
    <message>
        <source>The cue sheet cannot be opened: %1</source>
        <translation>Das Cue-Sheet lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>The audio file of the cue sheet is missing: %1</source>
        <translation>Die Audiodatei des Cue-Sheets fehlt: %1</translation>
    </message>
</context>
<context>
    <name>SXFailureTexts</name>
    <message>
        <source>ffmpeg failed without giving a reason</source>
        <translation>ffmpeg ist ohne Angabe eines Grundes fehlgeschlagen</translation>
    </message>
    <message>
        <source>The file cannot be read as audio</source>
        <translation>Die Datei kann nicht als Audio gelesen werden</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Converted: %n.</source>
        <translation>
            <numerusform>Konvertiert: %n.</numerusform>
            <numerusform>Konvertiert: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Failed: %n.</source>
        <translation>
            <numerusform>Fehlgeschlagen: %n.</numerusform>
            <numerusform>Fehlgeschlagen: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not loaded: %n.</source>
        <translation>
            <numerusform>Nicht geladen: %n.</numerusform>
            <numerusform>Nicht geladen: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Tags not kept:</source>
        <translation>Nicht erhaltene Tags:</translation>
    </message>
    <message>
        <source>Already converted: the output was there, whole and newer than this file</source>
        <translation>Bereits konvertiert: Die Ausgabe war schon da, vollständig und neuer als diese Datei</translation>
    </message>
</context>
<context>
    <name>SXFileInfoText</name>
    <message>
        <source>Unknow</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstant</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>mod</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Failed because</source>
        <translation>Fehlergrund</translation>
    </message>
    <message>
        <source>%1kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 audio file</source>
        <translation>%1-Audiodatei</translation>
    </message>
    <message>
        <source>%1 video file</source>
        <translation>%1-Videodatei</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Encoded with</source>
        <translation>Kodiert mit</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bit rate mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Channel count</source>
        <translation>Kanalanzahl</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Tag format</source>
        <translation>Tag-Format</translation>
    </message>
    <message>
        <source>Tag version</source>
        <translation>Tag-Version</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Tags not kept</source>
        <translation>Nicht erhaltene Tags</translation>
    </message>
</context>
<context>
    <name>SXFileInfoViewController</name>
    <message>
        <source>File Information</source>
        <translation>Dateiinformationen</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Im Datei&amp;manager anzeigen</translation>
    </message>
</context>
<context>
    <name>SXFormatChooserDialog</name>
    <message>
        <source>New Format</source>
        <translation>Neues Format</translation>
    </message>
    <message>
        <source>Add a container that converts to:</source>
        <translation>Einen Container hinzufügen, der in dieses Format konvertiert:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Bitrate:</translation>
    </message>
    <message>
        <source>&amp;Sample rate:</source>
        <translation>&amp;Abtastrate:</translation>
    </message>
    <message>
        <source>C&amp;hannels:</source>
        <translation>&amp;Kanäle:</translation>
    </message>
    <message>
        <source>Add to the music &amp;library</source>
        <translation>Zur &amp;Musikbibliothek hinzufügen</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Replay&amp;Gain-Tags:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>&amp;Normalise loudness</source>
        <translation>Lautheit &amp;normalisieren</translation>
    </message>
</context>
<context>
    <name>SXHelpView</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
</context>
<context>
    <name>SXItemListView</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Drop audio files here, or press Add Files</source>
        <translation>Audiodateien hierher ziehen oder „Dateien hinzufügen“ drücken</translation>
    </message>
</context>
<context>
    <name>SXItemRowLookRules</name>
    <message>
        <source>pending</source>
        <translation>Wartend</translation>
    </message>
    <message>
        <source>sending</source>
        <translation>Wird an die Musikbibliothek übergeben</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>Konvertiert</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>Wird konvertiert</translation>
    </message>
    <message>
        <source>already converted</source>
        <translation>bereits konvertiert</translation>
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
        <translation>Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Wiedergabeposition</translation>
    </message>
    <message>
        <source>Resume (Shift+Space)</source>
        <translation>Fortsetzen (Umschalt+Leertaste)</translation>
    </message>
    <message>
        <source>Pause (Shift+Space)</source>
        <translation>Pause (Umschalt+Leertaste)</translation>
    </message>
</context>
<context>
    <name>SXListDrop</name>
    <message numerus="yes">
        <source>Following location(s) are not files on this computer and were not added!</source>
        <translation>
            <numerusform>Dieser Ort ist keine Datei auf diesem Rechner und wurde nicht hinzugefügt:</numerusform>
            <numerusform>Diese Orte sind keine Dateien auf diesem Rechner und wurden nicht hinzugefügt:</numerusform>
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
        <translation>Ladefortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SXMainAppController</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Alle entfernen</translation>
    </message>
</context>
<context>
    <name>SXMenuHandler</name>
    <message>
        <source>&amp;New Container</source>
        <translation>Ne&amp;uer Container</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen …</translation>
    </message>
    <message>
        <source>New &amp;Format</source>
        <translation>Neues &amp;Format</translation>
    </message>
    <message>
        <source>&amp;Close Container</source>
        <translation>Container schl&amp;ießen</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Alle entfernen</translation>
    </message>
    <message>
        <source>&amp;Next File</source>
        <translation>&amp;Nächste Datei</translation>
    </message>
    <message>
        <source>&amp;Previous File</source>
        <translation>&amp;Vorherige Datei</translation>
    </message>
    <message>
        <source>Next &amp;Container</source>
        <translation>Nächster &amp;Container</translation>
    </message>
    <message>
        <source>Previous Conta&amp;iner</source>
        <translation>Vorheriger C&amp;ontainer</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>&amp;Tags bearbeiten …</translation>
    </message>
    <message>
        <source>File Inf&amp;ormation</source>
        <translation>Dateiinfor&amp;mationen</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Sto&amp;ppen</translation>
    </message>
    <message>
        <source>Sonoria &amp;Help</source>
        <translation>Sonoria-Hilfe</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Rückmeldun&amp;g senden …</translation>
    </message>
    <message>
        <source>Sonoria &amp;Website</source>
        <translation>Sonoria-&amp;Webseite</translation>
    </message>
    <message>
        <source>&amp;About Sonoria</source>
        <translation>&amp;Über Sonoria</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Konvertieren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
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
        <translation>&amp;Cover</translation>
    </message>
    <message>
        <source>&amp;Lyrics</source>
        <translation>&amp;Liedtext</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorherige</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Artwork size</source>
        <translation>Covergröße</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Choose Artwork</source>
        <translation>Cover auswählen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditing</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Album-Interpret</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Gruppierung</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Titelnummer</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Verlag</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Sorry, this kind format CAN NOT support for editing for metadata</source>
        <translation>Dieses Format kann keine Tags enthalten, daher können sie nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Liedtext</translation>
    </message>
</context>
<context>
    <name>SXOutputFolderDialog</name>
    <message>
        <source>Output Folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>Put the files of each format in a folder of its own</source>
        <translation>Die Dateien jedes Formats in einen eigenen Ordner legen</translation>
    </message>
    <message>
        <source>Open the folder when the conversion is over</source>
        <translation>Den Ordner nach der Konvertierung öffnen</translation>
    </message>
    <message>
        <source>Choose Output Folder</source>
        <translation>Ausgabeordner auswählen</translation>
    </message>
</context>
<context>
    <name>SXPreferences</name>
    <message>
        <source>Skip files already converted</source>
        <translation>Bereits konvertierte Dateien überspringen</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>SXPreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Con&amp;versions at once:</source>
        <translation>&amp;Gleichzeitige Konvertierungen:</translation>
    </message>
    <message>
        <source>Music &amp;library format:</source>
        <translation>Format der &amp;Musikbibliothek:</translation>
    </message>
    <message>
        <source>&amp;Playlist name:</source>
        <translation>Name der &amp;Wiedergabeliste:</translation>
    </message>
    <message>
        <source>&amp;Send a start-up report and fetch feature switches</source>
        <translation>Beim Start einen Bericht &amp;senden und Funktionsschalter abrufen</translation>
    </message>
    <message>
        <source>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</source>
        <translation>Sonoria teilt %1 dann bei jedem Start seine Version, die Version des Systems und eine zufällige Installationsnummer mit und fragt, welche Funktionen eingeschaltet werden sollen.</translation>
    </message>
    <message>
        <source>&amp;Existing outputs:</source>
        <translation>&amp;Vorhandene Ausgaben:</translation>
    </message>
    <message>
        <source>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</source>
        <translation>Was eine Konvertierung tut, wenn eine Datei mit dem Namen ihrer Ausgabe schon da ist: ein früheres Ergebnis stehen lassen, das vollständig und neuer als seine Quelle ist, die neue Datei nummerieren oder eine von Sonoria geschriebene Ausgabe ersetzen (nie eine Ihrer Dateien).</translation>
    </message>
</context>
<context>
    <name>SXReadableNames</name>
    <message>
        <source>PCM %1-bit float</source>
        <translation>PCM %1 Bit Gleitkomma</translation>
    </message>
    <message>
        <source>PCM %1-bit</source>
        <translation>PCM %1 Bit</translation>
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
            <numerusform>%n Kanal</numerusform>
            <numerusform>%n Kanäle</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorbis comments</source>
        <translation>Vorbis-Kommentare</translation>
    </message>
</context>
<context>
    <name>SXRowContextMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergeben</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>&amp;Tags bearbeiten …</translation>
    </message>
    <message>
        <source>File &amp;Information</source>
        <translation>Datei&amp;informationen</translation>
    </message>
    <message>
        <source>Show in &amp;Files</source>
        <translation>Im &amp;Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Cancel This Conversion</source>
        <translation>&amp;Konvertierung abbrechen</translation>
    </message>
    <message>
        <source>File actions</source>
        <translation>Dateiaktionen</translation>
    </message>
</context>
<context>
    <name>SXRunFeedback</name>
    <message>
        <source>Conversion finished</source>
        <translation>Konvertierung abgeschlossen</translation>
    </message>
</context>
<context>
    <name>SXRunSummary</name>
    <message numerus="yes">
        <source>%n files were already converted and were left as they were.</source>
        <translation>
            <numerusform>%n Datei war bereits konvertiert und blieb unverändert.</numerusform>
            <numerusform>%n Dateien waren bereits konvertiert und blieben unverändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not keep all their tags.</source>
        <translation>
            <numerusform>%n Datei konnte nicht alle Tags behalten.</numerusform>
            <numerusform>%n Dateien konnten nicht alle Tags behalten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXSettingsPanel</name>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Bitrate:</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation>Abtast&amp;rate:</translation>
    </message>
    <message>
        <source>Cha&amp;nnels:</source>
        <translation>&amp;Kanäle:</translation>
    </message>
    <message>
        <source>Add to m&amp;usic library</source>
        <translation>Zur &amp;Musikbibliothek hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Output Folder…</source>
        <translation>&amp;Ausgabeordner …</translation>
    </message>
    <message>
        <source>Show in F&amp;iles</source>
        <translation>Im &amp;Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Output Folder of This Format</source>
        <translation>Ausgabeordner dieses Formats</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Replay&amp;Gain-Tags:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Normali&amp;se loudness</source>
        <translation>Lautheit &amp;normalisieren</translation>
    </message>
    <message>
        <source>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below -1 dBTP; the output then gets no ReplayGain tags</source>
        <translation>Konvertiert mit dem gemessenen ReplayGain (im Album-Modus dem des Albums), der True Peak bleibt bei höchstens −1 dBTP; die Ausgabe erhält dann keine ReplayGain-Tags</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Namensmuster</translation>
    </message>
    <message>
        <source>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</source>
        <translation>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} und {filename}; „/“ legt Ordner an</translation>
    </message>
    <message>
        <source>Name pa&amp;ttern:</source>
        <translation>Nam&amp;ensmuster:</translation>
    </message>
    <message>
        <source>&amp;Keep the layout of added folders</source>
        <translation>&amp;Ordnerstruktur hinzugefügter Ordner beibehalten</translation>
    </message>
    <message>
        <source>The first file becomes: %1</source>
        <translation>Die erste Datei wird zu: %1</translation>
    </message>
</context>
<context>
    <name>SXStateStripModel</name>
    <message>
        <source>Converting...</source>
        <translation>Wird konvertiert …</translation>
    </message>
</context>
<context>
    <name>SXTimeText</name>
    <message numerus="yes">
        <source>%n seconds remaining</source>
        <translation>
            <numerusform>noch %n Sekunde</numerusform>
            <numerusform>noch %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second remaining</source>
        <translation>
            <numerusform>noch %n Sekunde</numerusform>
            <numerusform>noch %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2 remaining</source>
        <translation>noch %1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n minites</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minite</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
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
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
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
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>SXWorkspace</name>
    <message>
        <source>Warnning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Do you want to close all window without save information?</source>
        <translation>Alle Fenster schließen? Die Dateien in den Listen werden verworfen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Die Datei kann nicht abgespielt werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXWorkspaceScheduler</name>
    <message>
        <source>Please choose output folder:</source>
        <translation>Wählen Sie den Ausgabeordner:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot write into the output folder &quot;%1&quot;: %2</source>
        <translation>In den Ausgabeordner „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The conversion did not start</source>
        <translation>Die Konvertierung wurde nicht gestartet</translation>
    </message>
    <message numerus="yes">
        <source>%n files has been successfully converted.</source>
        <translation>
            <numerusform>%n Datei wurde konvertiert.</numerusform>
            <numerusform>%n Dateien wurden konvertiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>except %n files failed,including:</source>
        <translation>
            <numerusform> %n Datei ist fehlgeschlagen:</numerusform>
            <numerusform> %n Dateien sind fehlgeschlagen, darunter:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SXWorkspaceTexts</name>
    <message numerus="yes">
        <source>%n files, %1 hours, %2 in %3</source>
        <translation>
            <numerusform>%n Datei, %1 Stunden, %2 in %3</numerusform>
            <numerusform>%n Dateien, %1 Stunden, %2 in %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n containers</source>
        <translation>
            <numerusform>%n Container</numerusform>
            <numerusform>%n Containern</numerusform>
        </translation>
    </message>
    <message>
        <source>Converter to %1</source>
        <translation>Konvertiert nach: %1</translation>
    </message>
    <message>
        <source>item</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>items</source>
        <translation>Elemente</translation>
    </message>
    <message numerus="yes">
        <source>%n item</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1% — %2</source>
        <translation>%1&#xa0;% — %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>sonoria-cli: cannot watch for interrupts</source>
        <translation>sonoria-cli: Unterbrechungen können nicht überwacht werden</translation>
    </message>
    <message>
        <source>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</source>
        <translation>sonoria: Es kann kein Fenster geöffnet werden (keine Anzeige). Verwenden Sie sonoria-cli, um in einem Terminal zu konvertieren.</translation>
    </message>
    <message>
        <source>Converts audio and video files.</source>
        <translation>Konvertiert Audio- und Videodateien.</translation>
    </message>
    <message>
        <source>Mirror log lines to standard error.</source>
        <translation>Protokollzeilen auf die Standardfehlerausgabe spiegeln.</translation>
    </message>
    <message>
        <source>Audio or video files and folders to add.</source>
        <translation>Hinzuzufügende Audio- oder Videodateien und Ordner.</translation>
    </message>
</context>
</TS>
