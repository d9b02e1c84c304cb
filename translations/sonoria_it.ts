<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CliCatalogue</name>
    <message>
        <source>not offered</source>
        <translation>non disponibile</translation>
    </message>
    <message>
        <source>offered, on</source>
        <translation>disponibile, attiva</translation>
    </message>
    <message>
        <source>offered, off</source>
        <translation>disponibile, non attiva</translation>
    </message>
    <message>
        <source>%1 does not offer %2 &quot;%3&quot; (offered: %4)</source>
        <translation>%1 non ammette il valore «%3» per %2 (valori ammessi: %4)</translation>
    </message>
    <message>
        <source>Output formats (* marks the default choice):
</source>
        <translation>Formati di destinazione (* indica la scelta predefinita):
</translation>
    </message>
    <message>
        <source>bit rates:</source>
        <translation>bitrate:</translation>
    </message>
    <message>
        <source>sample rates:</source>
        <translation>frequenze di campionamento:</translation>
    </message>
    <message>
        <source>channels:</source>
        <translation>canali:</translation>
    </message>
    <message>
        <source>music library:</source>
        <translation>libreria musicale:</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot; (formats: %2)</source>
        <translation>formato «%1» sconosciuto (formati: %2)</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>bitrate</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>frequenza di campionamento</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>canali</translation>
    </message>
    <message>
        <source>%1 does not offer delivery to the music library</source>
        <translation>%1 non consente di aggiungere file alla libreria musicale</translation>
    </message>
</context>
<context>
    <name>CliInfo</name>
    <message>
        <source>none</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>image</source>
        <translation>immagine</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n bytes</source>
        <translation>
            <numerusform>%1, %n byte</numerusform>
            <numerusform>%1, %n byte</numerusform>
        </translation>
    </message>
    <message>
        <source>sonoria-cli: cannot read &quot;%1&quot; as media</source>
        <translation>sonoria-cli: impossibile leggere «%1» come file multimediale</translation>
    </message>
    <message>
        <source>Artwork:</source>
        <translation>Copertina:</translation>
    </message>
</context>
<context>
    <name>CliOptionsParser</name>
    <message>
        <source>option --%1 given more than once</source>
        <translation>opzione --%1 indicata più di una volta</translation>
    </message>
    <message>
        <source>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</source>
        <translation>--jobs richiede un numero intero pari o superiore a 1, non «%1»</translation>
    </message>
    <message>
        <source>--output needs a folder</source>
        <translation>--output richiede una cartella</translation>
    </message>
    <message>
        <source>--list-formats and --info take no FILE|FOLDER arguments</source>
        <translation>--list-formats e --info non accettano argomenti FILE|CARTELLA</translation>
    </message>
    <message>
        <source>no input: give at least one FILE or FOLDER (see --help)</source>
        <translation>nessun input: indicare almeno un FILE o una CARTELLA (consultare --help)</translation>
    </message>
    <message>
        <source>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</source>
        <translation>--replaygain accetta «track» o «album», non «%1»</translation>
    </message>
    <message>
        <source>--check-tags takes two files: SOURCE and OUTPUT</source>
        <translation>--check-tags richiede due file: ORIGINE e USCITA</translation>
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
        <translation>Uso: sonoria-cli [opzioni] FILE|CARTELLA...
Converte file audio e video in formati audio.

  -f, --format NOME       formato di destinazione, un nome del catalogo (predefinito: «MP3»)
  -o, --output CARTELLA   cartella di destinazione (predefinita: l&apos;ultima memorizzata, altrimenti Musica/Sonoria)
      --no-organize       scrive direttamente in CARTELLA anziché in CARTELLA/&lt;nome del formato&gt;
  -j, --jobs N            conversioni simultanee (predefinito: il massimo memorizzato, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   una delle scelte offerte dal formato
      --pattern MODELLO   dà nome alle uscite dai loro tag: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; «/» crea cartelle
                          (predefinito «{filename}»: il nome dell&apos;origine)
      --mirror            mantiene la posizione di ogni file sotto la CARTELLA in cui è stato trovato
      --existing COSA     esiste già un&apos;uscita con il nome previsto: «skip» la lascia se è
                          completa e più recente della sua origine (predefinito: la preferenza
                          salvata, altrimenti skip), «both» le mantiene entrambe (numera il nuovo
                          file), «replace» sostituisce un&apos;uscita scritta da questo programma
                          (mai un altro file)
      --library           consegna i file completati alla libreria musicale e alla scaletta
      --replaygain MODO   misura il volume percepito e aggiunge i tag ReplayGain: «track»,
                          o «album» per i valori di traccia e di album (disattivato di norma)
      --normalise         converte al volume misurato (quello dell&apos;album con --replaygain album),
                          picco reale al massimo -1 dBTP; non vengono scritti tag ReplayGain
      --list-formats      stampa il catalogo: nomi, estensioni, scelte e valori predefiniti
      --info FILE         stampa ciò che il pannello delle informazioni mostra per un file
      --check-tags ORIGINE USCITA   confronta i tag di due file: cosa è arrivato, cosa è cambiato,
                          cosa è andato perso e perché (stato di uscita 1 se si è perso qualcosa)
  -n, --dry-run           carica e analizza, stampa cosa verrebbe convertito e dove, non converte nulla
  -v, --verbose           replica le righe del registro sullo standard error (come SONORIA_VERBOSE=1)
  -h, --help              mostra questo testo

Un nome che inizia con «-» richiede «--» prima di esso, oppure «./» davanti.
Le impostazioni memorizzate vengono lette, mai modificate.

Stato di uscita: 0 ogni file convertito; 1 un file non è riuscito, non è stato caricato o è stato
annullato (anche dopo SIGTERM, che annulla l&apos;esecuzione); 2 errore di utilizzo; 130 interrotto da
SIGINT (Ctrl-C annulla l&apos;esecuzione; i file parziali vengono rimossi).
</translation>
    </message>
    <message>
        <source>--existing takes skip, both or replace, not &quot;%1&quot;</source>
        <translation>--existing accetta skip, both o replace, non «%1»</translation>
    </message>
</context>
<context>
    <name>CliProgressBar</name>
    <message>
        <source>%1%  %2/%3 done</source>
        <translation>%1%  %2/%3 completati</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>, %1 non riusciti</translation>
    </message>
    <message>
        <source>estimating time remaining</source>
        <translation>stima del tempo rimanente in corso</translation>
    </message>
</context>
<context>
    <name>CliRun</name>
    <message>
        <source>failed to load: %1: %2</source>
        <translation>caricamento non riuscito: %1: %2</translation>
    </message>
    <message>
        <source>would convert: %1 -&gt; %2
</source>
        <translation>verrebbe convertito: %1 -&gt; %2
</translation>
    </message>
    <message numerus="yes">
        <source>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</source>
        <translation>
            <numerusform>%n file verrebbe convertito in %1 nella cartella %2 (con il nome che riceverebbe ora; non è stato convertito né creato nulla)
</numerusform>
            <numerusform>%n file verrebbero convertiti in %1 nella cartella %2 (ciascuno con il nome che riceverebbe ora; non è stato convertito né creato nulla)
</numerusform>
        </translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>completato: %1</translation>
    </message>
    <message>
        <source>done: %1 -&gt; %2</source>
        <translation>completato: %1 -&gt; %2</translation>
    </message>
    <message>
        <source>cancelled: %1</source>
        <translation>annullato: %1</translation>
    </message>
    <message>
        <source>failed: %1: %2</source>
        <translation>non riuscito: %1: %2</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, stopping the load</source>
        <translation>sonoria-cli: interrotto, arresto del caricamento</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, cancelling the conversions</source>
        <translation>sonoria-cli: interrotto, annullamento delle conversioni</translation>
    </message>
    <message>
        <source>tags: %1: %2</source>
        <translation>tag: %1: %2</translation>
    </message>
    <message>
        <source>already converted: %1 -&gt; %2</source>
        <translation>già convertito: %1 -&gt; %2</translation>
    </message>
</context>
<context>
    <name>CliTagCheck</name>
    <message>
        <source>sonoria-cli: %1: no such file</source>
        <translation>sonoria-cli: %1: file inesistente</translation>
    </message>
    <message>
        <source>kept     %1</source>
        <translation>mantenuto %1</translation>
    </message>
    <message>
        <source>changed  %1: %2</source>
        <translation>modificato %1: %2</translation>
    </message>
    <message>
        <source>lost     %1: %2</source>
        <translation>perso    %1: %2</translation>
    </message>
    <message>
        <source>The source carries no tags.</source>
        <translation>L&apos;origine non contiene tag.</translation>
    </message>
</context>
<context>
    <name>ConvertFailure</name>
    <message>
        <source>No space left on device</source>
        <translation>Spazio esaurito sul dispositivo</translation>
    </message>
    <message>
        <source>The disk quota is used up</source>
        <translation>La quota del disco è esaurita</translation>
    </message>
    <message>
        <source>The output folder is read-only</source>
        <translation>La cartella di destinazione è in sola lettura</translation>
    </message>
    <message>
        <source>You have no permission to write into the output folder</source>
        <translation>Permessi insufficienti per scrivere nella cartella di destinazione</translation>
    </message>
    <message>
        <source>The output folder&apos;s name is taken by a file</source>
        <translation>Il nome della cartella di destinazione è già usato da un file</translation>
    </message>
    <message>
        <source>The output folder does not exist</source>
        <translation>La cartella di destinazione non esiste</translation>
    </message>
    <message>
        <source>The file is larger than the output folder&apos;s file system allows</source>
        <translation>Il file è più grande di quanto consenta il file system della cartella di destinazione</translation>
    </message>
    <message>
        <source>The output folder&apos;s device reported an input/output error</source>
        <translation>Il dispositivo della cartella di destinazione ha segnalato un errore di input/output</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1</source>
        <translation>Impossibile scrivere nella cartella di destinazione: %1</translation>
    </message>
    <message>
        <source>Permission denied: %1</source>
        <translation>Permesso negato: %1</translation>
    </message>
    <message>
        <source>The source gave no audio to convert</source>
        <translation>La sorgente non ha fornito audio da convertire</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>Impossibile scrivere il file di destinazione: %1</translation>
    </message>
    <message>
        <source>ffmpeg could not decode the source: %1</source>
        <translation>ffmpeg non è riuscito a decodificare la sorgente: %1</translation>
    </message>
    <message>
        <source>ffmpeg was ended by signal %1 (%2)</source>
        <translation>ffmpeg è stato terminato dal segnale %1 (%2)</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1): %2</source>
        <translation>ffmpeg non è riuscito (stato di uscita %1): %2</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1)</source>
        <translation>ffmpeg non è riuscito (stato di uscita %1)</translation>
    </message>
    <message>
        <source>ffmpeg wrote no output file</source>
        <translation>ffmpeg non ha scritto alcun file di destinazione</translation>
    </message>
    <message>
        <source>The output is empty</source>
        <translation>Il file di destinazione è vuoto</translation>
    </message>
    <message>
        <source>The output cannot be read back as audio</source>
        <translation>Il file di destinazione non può essere riletto come audio</translation>
    </message>
    <message>
        <source>The output holds %1 audio instead of %2</source>
        <translation>Il file di destinazione contiene audio %1 anziché %2</translation>
    </message>
    <message>
        <source>The output is shorter than the source (%L1 s instead of %L2 s)</source>
        <translation>Il file di destinazione è più corto della sorgente (%L1 s anziché %L2 s)</translation>
    </message>
    <message>
        <source>The output is longer than the source (%L1 s instead of %L2 s)</source>
        <translation>Il file di destinazione è più lungo della sorgente (%L1 s anziché %L2 s)</translation>
    </message>
    <message>
        <source>The tags could not be written into the output: %1</source>
        <translation>Impossibile scrivere i tag nel file di destinazione: %1</translation>
    </message>
    <message>
        <source>The output could not be given its name: %1</source>
        <translation>Impossibile assegnare il nome al file di destinazione: %1</translation>
    </message>
    <message>
        <source>ffmpeg was not found</source>
        <translation>ffmpeg non è stato trovato</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>impossibile aprire il file</translation>
    </message>
    <message>
        <source>The converter failed: %1</source>
        <translation>Il convertitore non è riuscito: %1</translation>
    </message>
    <message numerus="yes">
        <source>The converter stopped responding for %n seconds</source>
        <translation>
            <numerusform>Il convertitore non ha risposto per %n secondo</numerusform>
            <numerusform>Il convertitore non ha risposto per %n secondi</numerusform>
        </translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (signal %1)</source>
        <translation>Il convertitore si è interrotto inaspettatamente (segnale %1)</translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (exit status %1)</source>
        <translation>Il convertitore si è interrotto inaspettatamente (stato di uscita %1)</translation>
    </message>
</context>
<context>
    <name>ConvertLoudness</name>
    <message>
        <source>The loudness of the source could not be measured: %1</source>
        <translation>Impossibile misurare il volume percepito dell&apos;origine: %1</translation>
    </message>
</context>
<context>
    <name>ConvertNaming</name>
    <message>
        <source>Unknown Artist</source>
        <translation>Artista sconosciuto</translation>
    </message>
    <message>
        <source>Unknown Album</source>
        <translation>Album sconosciuto</translation>
    </message>
    <message>
        <source>Unknown Title</source>
        <translation>Titolo sconosciuto</translation>
    </message>
    <message>
        <source>Unknown Track</source>
        <translation>Traccia sconosciuta</translation>
    </message>
    <message>
        <source>Unknown Disc</source>
        <translation>Disco sconosciuto</translation>
    </message>
    <message>
        <source>Unknown Year</source>
        <translation>Anno sconosciuto</translation>
    </message>
    <message>
        <source>Unknown Genre</source>
        <translation>Genere sconosciuto</translation>
    </message>
</context>
<context>
    <name>HVLoudness</name>
    <message>
        <source>its loudness cannot be measured</source>
        <translation>il suo volume percepito non è misurabile</translation>
    </message>
</context>
<context>
    <name>HVSampleReader</name>
    <message>
        <source>the file cannot be opened</source>
        <translation>il file non può essere aperto</translation>
    </message>
    <message>
        <source>the file holds no audio</source>
        <translation>il file non contiene audio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>il suo audio non può essere decodificato</translation>
    </message>
    <message>
        <source>the measurement was cancelled</source>
        <translation>la misurazione è stata annullata</translation>
    </message>
</context>
<context>
    <name>LSMediaLoader</name>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>Impossibile aprire il file: %1</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>Questa è una cartella, non un file</translation>
    </message>
    <message>
        <source>The file holds no audio that can be read</source>
        <translation>Il file non contiene audio leggibile</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet starts after the end of %2</source>
        <translation>La traccia %1 del cue sheet inizia dopo la fine di %2</translation>
    </message>
</context>
<context>
    <name>MTETagReport</name>
    <message>
        <source>%1 files cannot hold “%2”</source>
        <translation>I file %1 non possono contenere «%2»</translation>
    </message>
    <message>
        <source>%1 files hold no tags</source>
        <translation>I file %1 non contengono tag</translation>
    </message>
    <message>
        <source>%1 files keep it shortened to “%2”</source>
        <translation>I file %1 lo accorciano in «%2»</translation>
    </message>
    <message>
        <source>written as “%1”</source>
        <translation>scritto come «%1»</translation>
    </message>
    <message>
        <source>the cover was too large and was scaled</source>
        <translation>la copertina era troppo grande ed è stata ridotta</translation>
    </message>
    <message>
        <source>the cover was stored in another picture format</source>
        <translation>la copertina è stata salvata in un altro formato di immagine</translation>
    </message>
    <message>
        <source>%1 files keep only the first picture</source>
        <translation>I file %1 mantengono solo la prima immagine</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista dell&apos;album</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositore</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Raggruppamento</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genere</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Numero di traccia</translation>
    </message>
    <message>
        <source>Disc number</source>
        <translation>Numero di disco</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editore</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commento</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Copertina</translation>
    </message>
</context>
<context>
    <name>SXAboutText</name>
    <message>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, versione 3 o successiva</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (build %2)</translation>
    </message>
    <message>
        <source>Converts audio and video files to audio formats.</source>
        <translation>Converte file audio e video in formati audio.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licenza: %1</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Librerie in uso:</translation>
    </message>
</context>
<context>
    <name>SXAddFilesDialog</name>
    <message>
        <source>Add Files</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Audio and video files (%1)</source>
        <translation>File audio e video (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>SXAddRun</name>
    <message>
        <source>The file name is not valid UTF-8</source>
        <translation>Il nome del file non è UTF-8 valido</translation>
    </message>
    <message>
        <source>Loading Media Files...</source>
        <translation>Caricamento dei file multimediali…</translation>
    </message>
    <message>
        <source>Importing %1...</source>
        <translation>Importazione di %1…</translation>
    </message>
    <message numerus="yes">
        <source>Following file(s) load failed!</source>
        <translation>
            <numerusform>Impossibile aggiungere il seguente file:</numerusform>
            <numerusform>Impossibile aggiungere i seguenti file:</numerusform>
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
        <translation>Rilasciare qui un&apos;immagine</translation>
    </message>
</context>
<context>
    <name>SXCatalogueTexts</name>
    <message>
        <source>MPEG Layer III audio, playable everywhere</source>
        <translation>Audio MPEG Layer III, riproducibile ovunque</translation>
    </message>
    <message>
        <source>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</source>
        <translation>Advanced Audio Coding in un file MPEG-4: più piccolo di MP3 a parità di qualità</translation>
    </message>
    <message>
        <source>AAC ringtone for phones</source>
        <translation>Suoneria AAC per telefoni</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</source>
        <translation>Free Lossless Audio Codec: copia esatta del suono, circa la metà delle dimensioni di WAV</translation>
    </message>
    <message>
        <source>Apple Lossless in an MPEG-4 file: exact copy of the sound</source>
        <translation>Apple Lossless in un file MPEG-4: copia esatta del suono</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in a WAVE file</source>
        <translation>PCM a 16 bit non compresso in un file WAVE</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in an AIFF file</source>
        <translation>PCM a 16 bit non compresso in un file AIFF</translation>
    </message>
    <message>
        <source>Vorbis in an Ogg file: free and open lossy audio</source>
        <translation>Vorbis in un file Ogg: audio con perdita, libero e aperto</translation>
    </message>
    <message>
        <source>Opus in an Ogg file: the best quality at low bit rates</source>
        <translation>Opus in un file Ogg: la migliore qualità a bitrate bassi</translation>
    </message>
    <message>
        <source>Windows Media Audio 2</source>
        <translation>Windows Media Audio 2</translation>
    </message>
    <message>
        <source>Dolby Digital (AC-3) stream for video and home cinema</source>
        <translation>Flusso Dolby Digital (AC-3) per video e home theater</translation>
    </message>
    <message>
        <source>MPEG Layer II audio stream for broadcast and DVD</source>
        <translation>Flusso audio MPEG Layer II per trasmissioni e DVD</translation>
    </message>
    <message>
        <source>WavPack lossless audio: exact copy of the sound, compact and fast</source>
        <translation>Audio senza perdita WavPack: copia esatta del suono, compatto e veloce</translation>
    </message>
    <message>
        <source>Use Source</source>
        <translation>Come l&apos;originale</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Senza perdita</translation>
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
        <translation>Suoneria</translation>
    </message>
</context>
<context>
    <name>SXCommandValidation</name>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Stop convert all files</source>
        <translation>Ferma la conversione di tutti i file</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Start convert all files</source>
        <translation>Converti tutti i file</translation>
    </message>
</context>
<context>
    <name>SXContainerTabBar</name>
    <message>
        <source>Containers</source>
        <translation>Contenitori</translation>
    </message>
    <message>
        <source>Add new format</source>
        <translation>Aggiungi un nuovo formato</translation>
    </message>
</context>
<context>
    <name>SXContainerTabs</name>
    <message>
        <source>No Way!</source>
        <translation>Questa no</translation>
    </message>
    <message>
        <source>I refuse to close a tab named &quot;Drake&quot;</source>
        <translation>Una scheda chiamata «Drake» non può essere chiusa.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>All formats are opened, you can set the paramas in the setting window.</source>
        <translation>Ogni formato ha già una scheda. È possibile modificarne le impostazioni nel pannello sotto l&apos;elenco.</translation>
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
        <translation>Il cue sheet non è leggibile</translation>
    </message>
    <message>
        <source>The cue sheet lists no tracks</source>
        <translation>Il cue sheet non elenca tracce</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet ends before it starts</source>
        <translation>La traccia %1 del cue sheet finisce prima di iniziare</translation>
    </message>
    <message>
        <source>The cue sheet cannot be opened: %1</source>
        <translation>Impossibile aprire il cue sheet: %1</translation>
    </message>
    <message>
        <source>The audio file of the cue sheet is missing: %1</source>
        <translation>Manca il file audio del cue sheet: %1</translation>
    </message>
</context>
<context>
    <name>SXFailureTexts</name>
    <message>
        <source>ffmpeg failed without giving a reason</source>
        <translation>ffmpeg non è riuscito senza indicare il motivo</translation>
    </message>
    <message>
        <source>The file cannot be read as audio</source>
        <translation>Il file non può essere letto come audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Converted: %n.</source>
        <translation>
            <numerusform>Convertito: %n.</numerusform>
            <numerusform>Convertiti: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Failed: %n.</source>
        <translation>
            <numerusform>Non riuscito: %n.</numerusform>
            <numerusform>Non riusciti: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not loaded: %n.</source>
        <translation>
            <numerusform>Non caricato: %n.</numerusform>
            <numerusform>Non caricati: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Non riuscito: %1</translation>
    </message>
    <message>
        <source>Tags not kept:</source>
        <translation>Tag non mantenuti:</translation>
    </message>
    <message>
        <source>Already converted: the output was there, whole and newer than this file</source>
        <translation>Già convertito: l&apos;uscita c&apos;era già, completa e più recente di questo file</translation>
    </message>
</context>
<context>
    <name>SXFileInfoText</name>
    <message>
        <source>Unknow</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Costante</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabile</translation>
    </message>
    <message>
        <source>mod</source>
        <translation>Non noto</translation>
    </message>
    <message>
        <source>Failed because</source>
        <translation>Motivo dell&apos;errore</translation>
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
        <translation>File audio %1</translation>
    </message>
    <message>
        <source>%1 video file</source>
        <translation>File video %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Encoded with</source>
        <translation>Codificato con</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bit rate mode</source>
        <translation>Modalità del bitrate</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Frequenza di campionamento</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Channel count</source>
        <translation>Numero di canali</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Tag format</source>
        <translation>Formato dei tag</translation>
    </message>
    <message>
        <source>Tag version</source>
        <translation>Versione dei tag</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Data di modifica</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Tags not kept</source>
        <translation>Tag non mantenuti</translation>
    </message>
</context>
<context>
    <name>SXFileInfoViewController</name>
    <message>
        <source>File Information</source>
        <translation>Informazioni sul file</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Copertina</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Mostra nel &amp;gestore di file</translation>
    </message>
</context>
<context>
    <name>SXFormatChooserDialog</name>
    <message>
        <source>New Format</source>
        <translation>Nuovo formato</translation>
    </message>
    <message>
        <source>Add a container that converts to:</source>
        <translation>Aggiungi un contenitore che converte in:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Bitrate:</translation>
    </message>
    <message>
        <source>&amp;Sample rate:</source>
        <translation>Fre&amp;quenza di campionamento:</translation>
    </message>
    <message>
        <source>C&amp;hannels:</source>
        <translation>&amp;Canali:</translation>
    </message>
    <message>
        <source>Add to the music &amp;library</source>
        <translation>Aggiungi alla &amp;libreria musicale</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Tag Replay&amp;Gain:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivati</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>&amp;Normalise loudness</source>
        <translation>Nor&amp;malizza volume</translation>
    </message>
</context>
<context>
    <name>SXHelpView</name>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
</context>
<context>
    <name>SXItemListView</name>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Drop audio files here, or press Add Files</source>
        <translation>Rilasciare qui i file audio o premere Aggiungi file</translation>
    </message>
</context>
<context>
    <name>SXItemRowLookRules</name>
    <message>
        <source>pending</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>sending</source>
        <translation>Invio alla libreria musicale</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>Convertito</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>Conversione in corso</translation>
    </message>
    <message>
        <source>already converted</source>
        <translation>già convertito</translation>
    </message>
</context>
<context>
    <name>SXItemStateView</name>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Avanzamento totale</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Posizione di riproduzione</translation>
    </message>
    <message>
        <source>Resume (Shift+Space)</source>
        <translation>Riprendi (Maiusc+Spazio)</translation>
    </message>
    <message>
        <source>Pause (Shift+Space)</source>
        <translation>Pausa (Maiusc+Spazio)</translation>
    </message>
</context>
<context>
    <name>SXListDrop</name>
    <message numerus="yes">
        <source>Following location(s) are not files on this computer and were not added!</source>
        <translation>
            <numerusform>Questa posizione non è un file di questo computer e non è stata aggiunta:</numerusform>
            <numerusform>Queste posizioni non sono file di questo computer e non sono state aggiunte:</numerusform>
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
        <translation>Avanzamento del caricamento</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>SXMainAppController</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Aggiungi file…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>S&amp;vuota</translation>
    </message>
</context>
<context>
    <name>SXMenuHandler</name>
    <message>
        <source>&amp;New Container</source>
        <translation>&amp;Nuovo contenitore</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>New &amp;Format</source>
        <translation>Nuovo f&amp;ormato</translation>
    </message>
    <message>
        <source>&amp;Close Container</source>
        <translation>C&amp;hiudi contenitore</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferenze…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Eli&amp;mina</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Sv&amp;uota</translation>
    </message>
    <message>
        <source>&amp;Next File</source>
        <translation>File &amp;successivo</translation>
    </message>
    <message>
        <source>&amp;Previous File</source>
        <translation>File p&amp;recedente</translation>
    </message>
    <message>
        <source>Next &amp;Container</source>
        <translation>Contenitore successivo</translation>
    </message>
    <message>
        <source>Previous Conta&amp;iner</source>
        <translation>Contenitore prece&amp;dente</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Modifica ta&amp;g…</translation>
    </message>
    <message>
        <source>File Inf&amp;ormation</source>
        <translation>Informa&amp;zioni sul file</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>A&amp;vvia</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>In&amp;terrompi</translation>
    </message>
    <message>
        <source>Sonoria &amp;Help</source>
        <translation>Guida di Sonoria</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Invia feedbac&amp;k…</translation>
    </message>
    <message>
        <source>Sonoria &amp;Website</source>
        <translation>Sito &amp;web di Sonoria</translation>
    </message>
    <message>
        <source>&amp;About Sonoria</source>
        <translation>Informazioni su Sonoria</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>E&amp;lenco</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Converti</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;iuto</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditDialog</name>
    <message>
        <source>&amp;Tags</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>A&amp;rtwork</source>
        <translation>C&amp;opertina</translation>
    </message>
    <message>
        <source>&amp;Lyrics</source>
        <translation>Te&amp;sto</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Precedente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Su&amp;ccessivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Copertina</translation>
    </message>
    <message>
        <source>Artwork size</source>
        <translation>Dimensione della copertina</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Aggiungi…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Choose Artwork</source>
        <translation>Scegli copertina</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Immagini (%1)</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditing</name>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista dell&apos;album</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositore</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Raggruppamento</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genere</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editore</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commenti</translation>
    </message>
    <message>
        <source>Sorry, this kind format CAN NOT support for editing for metadata</source>
        <translation>Questo formato non può contenere tag, quindi non è possibile modificarli.</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>SXOutputFolderDialog</name>
    <message>
        <source>Output Folder</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Sfoglia…</translation>
    </message>
    <message>
        <source>Put the files of each format in a folder of its own</source>
        <translation>Metti i file di ogni formato in una cartella a sé</translation>
    </message>
    <message>
        <source>Open the folder when the conversion is over</source>
        <translation>Apri la cartella al termine della conversione</translation>
    </message>
    <message>
        <source>Choose Output Folder</source>
        <translation>Scegli la cartella di destinazione</translation>
    </message>
</context>
<context>
    <name>SXPreferences</name>
    <message>
        <source>Skip files already converted</source>
        <translation>Salta i file già convertiti</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Mantieni entrambi</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
</context>
<context>
    <name>SXPreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Con&amp;versions at once:</source>
        <translation>Con&amp;versioni simultanee:</translation>
    </message>
    <message>
        <source>Music &amp;library format:</source>
        <translation>Formato della &amp;libreria musicale:</translation>
    </message>
    <message>
        <source>&amp;Playlist name:</source>
        <translation>Nome della &amp;scaletta:</translation>
    </message>
    <message>
        <source>&amp;Send a start-up report and fetch feature switches</source>
        <translation>&amp;Invia un rapporto all&apos;avvio e ricevi l&apos;attivazione delle funzionalità</translation>
    </message>
    <message>
        <source>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</source>
        <translation>A ogni avvio Sonoria comunica quindi a %1 la propria versione, la versione del sistema e un numero di installazione casuale, e chiede quali funzionalità attivare.</translation>
    </message>
    <message>
        <source>&amp;Existing outputs:</source>
        <translation>Uscite &amp;esistenti:</translation>
    </message>
    <message>
        <source>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</source>
        <translation>Cosa fa una conversione quando esiste già un file con il nome della sua uscita: lasciare un risultato precedente completo e più recente della sua origine, numerare il nuovo file o sostituire un&apos;uscita scritta da Sonoria (mai un tuo file).</translation>
    </message>
</context>
<context>
    <name>SXReadableNames</name>
    <message>
        <source>PCM %1-bit float</source>
        <translation>PCM a %1 bit in virgola mobile</translation>
    </message>
    <message>
        <source>PCM %1-bit</source>
        <translation>PCM a %1 bit</translation>
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
            <numerusform>%n canale</numerusform>
            <numerusform>%n canali</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorbis comments</source>
        <translation>Commenti Vorbis</translation>
    </message>
</context>
<context>
    <name>SXRowContextMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Riproduci</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usa</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Ri&amp;prendi</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Modifica &amp;tag…</translation>
    </message>
    <message>
        <source>File &amp;Information</source>
        <translation>&amp;Informazioni sul file</translation>
    </message>
    <message>
        <source>Show in &amp;Files</source>
        <translation>Mostra in &amp;File</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ri&amp;muovi</translation>
    </message>
    <message>
        <source>&amp;Cancel This Conversion</source>
        <translation>&amp;Annulla questa conversione</translation>
    </message>
    <message>
        <source>File actions</source>
        <translation>Azioni sul file</translation>
    </message>
</context>
<context>
    <name>SXRunFeedback</name>
    <message>
        <source>Conversion finished</source>
        <translation>Conversione completata</translation>
    </message>
</context>
<context>
    <name>SXRunSummary</name>
    <message numerus="yes">
        <source>%n files were already converted and were left as they were.</source>
        <translation>
            <numerusform>%n file era già convertito ed è stato lasciato com&apos;era.</numerusform>
            <numerusform>%n file erano già convertiti e sono stati lasciati com&apos;erano.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not keep all their tags.</source>
        <translation>
            <numerusform>%n file non ha potuto mantenere tutti i suoi tag.</numerusform>
            <numerusform>%n file non hanno potuto mantenere tutti i loro tag.</numerusform>
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
        <translation>&amp;Frequenza di campionamento:</translation>
    </message>
    <message>
        <source>Cha&amp;nnels:</source>
        <translation>Ca&amp;nali:</translation>
    </message>
    <message>
        <source>Add to m&amp;usic library</source>
        <translation>Aggiungi alla &amp;libreria musicale</translation>
    </message>
    <message>
        <source>&amp;Output Folder…</source>
        <translation>Cartella di &amp;destinazione…</translation>
    </message>
    <message>
        <source>Show in F&amp;iles</source>
        <translation>Mostra in F&amp;ile</translation>
    </message>
    <message>
        <source>Output Folder of This Format</source>
        <translation>Cartella di destinazione di questo formato</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Tag Replay&amp;Gain:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivati</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Normali&amp;se loudness</source>
        <translation>Nor&amp;malizza volume</translation>
    </message>
    <message>
        <source>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below -1 dBTP; the output then gets no ReplayGain tags</source>
        <translation>Converte al ReplayGain misurato (quello dell&apos;album in modalità album), mantenendo il picco reale a −1 dBTP o meno; l&apos;uscita non riceve poi tag ReplayGain</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Modello del nome</translation>
    </message>
    <message>
        <source>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</source>
        <translation>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} e {filename}; «/» crea cartelle</translation>
    </message>
    <message>
        <source>Name pa&amp;ttern:</source>
        <translation>Modello del nom&amp;e:</translation>
    </message>
    <message>
        <source>&amp;Keep the layout of added folders</source>
        <translation>Mantieni la &amp;struttura delle cartelle aggiunte</translation>
    </message>
    <message>
        <source>The first file becomes: %1</source>
        <translation>Il primo file diventa: %1</translation>
    </message>
</context>
<context>
    <name>SXStateStripModel</name>
    <message>
        <source>Converting...</source>
        <translation>Conversione…</translation>
    </message>
</context>
<context>
    <name>SXTimeText</name>
    <message numerus="yes">
        <source>%n seconds remaining</source>
        <translation>
            <numerusform>%n secondo rimanente</numerusform>
            <numerusform>%n secondi rimanenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second remaining</source>
        <translation>
            <numerusform>%n secondo rimanente</numerusform>
            <numerusform>%n secondi rimanenti</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2 remaining</source>
        <translation>%1 %2 rimanenti</translation>
    </message>
    <message numerus="yes">
        <source>%n minites</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minite</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second</source>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n ora</numerusform>
            <numerusform>%n ore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour</source>
        <translation>
            <numerusform>%n ora</numerusform>
            <numerusform>%n ore</numerusform>
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
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
</context>
<context>
    <name>SXWorkspace</name>
    <message>
        <source>Warnning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Do you want to close all window without save information?</source>
        <translation>Chiudere tutte le finestre? I file negli elenchi verranno dimenticati.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Impossibile riprodurre il file</translation>
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
        <translation>Scegliere la cartella di destinazione:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot write into the output folder &quot;%1&quot;: %2</source>
        <translation>Impossibile scrivere nella cartella di destinazione «%1»: %2</translation>
    </message>
    <message>
        <source>The conversion did not start</source>
        <translation>La conversione non è stata avviata</translation>
    </message>
    <message numerus="yes">
        <source>%n files has been successfully converted.</source>
        <translation>
            <numerusform>%n file è stato convertito.</numerusform>
            <numerusform>%n file sono stati convertiti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>except %n files failed,including:</source>
        <translation>
            <numerusform> Conversione non riuscita per %n file:</numerusform>
            <numerusform> Conversione non riuscita per %n file, tra cui:</numerusform>
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
            <numerusform>%n file, %1 ore, %2 in %3</numerusform>
            <numerusform>%n file, %1 ore, %2 in %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n containers</source>
        <translation>
            <numerusform>%n contenitore</numerusform>
            <numerusform>%n contenitori</numerusform>
        </translation>
    </message>
    <message>
        <source>Converter to %1</source>
        <translation>Converti in %1</translation>
    </message>
    <message>
        <source>item</source>
        <translation>elemento</translation>
    </message>
    <message>
        <source>items</source>
        <translation>elementi</translation>
    </message>
    <message numerus="yes">
        <source>%n item</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementi</numerusform>
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
        <source>sonoria-cli: cannot watch for interrupts</source>
        <translation>sonoria-cli: impossibile controllare le interruzioni</translation>
    </message>
    <message>
        <source>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</source>
        <translation>sonoria: impossibile aprire una finestra (nessun display). Usare sonoria-cli per convertire da un terminale.</translation>
    </message>
    <message>
        <source>Converts audio and video files.</source>
        <translation>Converte file audio e video.</translation>
    </message>
    <message>
        <source>Mirror log lines to standard error.</source>
        <translation>Replica le righe del registro sullo standard error.</translation>
    </message>
    <message>
        <source>Audio or video files and folders to add.</source>
        <translation>File e cartelle audio o video da aggiungere.</translation>
    </message>
</context>
</TS>
