<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CliCatalogue</name>
    <message>
        <source>not offered</source>
        <translation>non proposé</translation>
    </message>
    <message>
        <source>offered, on</source>
        <translation>proposé, activé</translation>
    </message>
    <message>
        <source>offered, off</source>
        <translation>proposé, désactivé</translation>
    </message>
    <message>
        <source>%1 does not offer %2 &quot;%3&quot; (offered: %4)</source>
        <translation>%1 ne propose pas la valeur «&#xa0;%3&#xa0;» pour «&#xa0;%2&#xa0;» (valeurs proposées&#xa0;: %4)</translation>
    </message>
    <message>
        <source>Output formats (* marks the default choice):
</source>
        <translation>Formats de sortie (* indique le choix par défaut)&#xa0;:
</translation>
    </message>
    <message>
        <source>bit rates:</source>
        <translation>débits&#xa0;:</translation>
    </message>
    <message>
        <source>sample rates:</source>
        <translation>fréquences&#xa0;:</translation>
    </message>
    <message>
        <source>channels:</source>
        <translation>canaux&#xa0;:</translation>
    </message>
    <message>
        <source>music library:</source>
        <translation>bibliothèque musicale&#xa0;:</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot; (formats: %2)</source>
        <translation>format inconnu «&#xa0;%1&#xa0;» (formats&#xa0;: %2)</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>débit binaire</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>canaux</translation>
    </message>
    <message>
        <source>%1 does not offer delivery to the music library</source>
        <translation>%1 ne propose pas l’envoi vers la bibliothèque musicale</translation>
    </message>
</context>
<context>
    <name>CliInfo</name>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>image</source>
        <translation>image</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n bytes</source>
        <translation>
            <numerusform>%1, %n octet</numerusform>
            <numerusform>%1, %n octets</numerusform>
        </translation>
    </message>
    <message>
        <source>sonoria-cli: cannot read &quot;%1&quot; as media</source>
        <translation>sonoria-cli&#xa0;: impossible de lire «&#xa0;%1&#xa0;» comme fichier multimédia</translation>
    </message>
    <message>
        <source>Artwork:</source>
        <translation>Pochette&#xa0;:</translation>
    </message>
</context>
<context>
    <name>CliOptionsParser</name>
    <message>
        <source>option --%1 given more than once</source>
        <translation>option --%1 donnée plusieurs fois</translation>
    </message>
    <message>
        <source>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</source>
        <translation>--jobs attend un nombre entier supérieur ou égal à 1, et non «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--output needs a folder</source>
        <translation>--output attend un dossier</translation>
    </message>
    <message>
        <source>--list-formats and --info take no FILE|FOLDER arguments</source>
        <translation>--list-formats et --info n’acceptent aucun argument FICHIER ou DOSSIER</translation>
    </message>
    <message>
        <source>no input: give at least one FILE or FOLDER (see --help)</source>
        <translation>aucune entrée&#xa0;: indiquez au moins un FICHIER ou un DOSSIER (voir --help)</translation>
    </message>
    <message>
        <source>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</source>
        <translation>--replaygain attend « track » ou « album », pas « %1 »</translation>
    </message>
    <message>
        <source>--check-tags takes two files: SOURCE and OUTPUT</source>
        <translation>--check-tags attend deux fichiers : SOURCE et SORTIE</translation>
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
        <translation>Utilisation&#xa0;: sonoria-cli [options] FICHIER|DOSSIER…
Convertit des fichiers audio et vidéo en formats audio.

  -f, --format NOM        format de sortie, un nom du catalogue (par défaut «&#xa0;MP3&#xa0;»)
  -o, --output DOSSIER    dossier de sortie (par défaut&#xa0;: le dernier dossier enregistré, sinon Musique/Sonoria)
      --no-organize       écrire directement dans DOSSIER au lieu de DOSSIER/&lt;nom du format&gt;
  -j, --jobs N            conversions simultanées (par défaut&#xa0;: le maximum enregistré, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   l’un des choix proposés par le format
      --pattern MODÈLE    nommer les sorties d’après leurs étiquettes : {artist} {albumartist} {album}
                          {title} {track} {track:02} {disc} {year} {genre} {filename} ; « / » crée
                          des dossiers (par défaut « {filename} » : le nom de la source)
      --mirror            garder la place de chaque fichier sous le DOSSIER où il a été trouvé
      --existing QUOI     une sortie portant le nom prévu existe déjà : « skip » la laisse si elle
                          est complète et plus récente que sa source (par défaut : la préférence
                          enregistrée, sinon skip), « both » garde les deux (le nouveau fichier est
                          numéroté), « replace » remplace une sortie écrite par ce programme
                          (jamais un autre fichier)
      --library           envoyer les fichiers terminés vers la bibliothèque musicale et la liste de lecture
      --replaygain MODE   mesurer le volume sonore et écrire les étiquettes ReplayGain&#xa0;: « track »,
                          ou « album » pour les valeurs de piste et d’album (désactivé par défaut)
      --normalise         convertir au volume mesuré (celui de l’album avec --replaygain album),
                          pic réel à -1 dBTP au plus&#xa0;; aucune étiquette ReplayGain n’est écrite
      --list-formats      afficher le catalogue&#xa0;: noms, extensions, choix et valeurs par défaut
      --info FICHIER      afficher ce que le panneau d’informations montre pour un fichier
      --check-tags SOURCE SORTIE   comparer les étiquettes de deux fichiers&#xa0;: ce qui est arrivé,
                          modifié ou perdu, et pourquoi (code de sortie 1 si quelque chose est perdu)
  -n, --dry-run           charger et analyser, afficher ce qui serait converti et où, ne rien convertir
  -v, --verbose           recopier les lignes du journal sur la sortie d’erreur standard (comme SONORIA_VERBOSE=1)
  -h, --help              afficher ce texte

Un nom qui commence par «&#xa0;-&#xa0;» doit être précédé de «&#xa0;--&#xa0;» ou commencer par «&#xa0;./&#xa0;».
Les paramètres enregistrés sont lus, jamais modifiés.

Code de retour&#xa0;: 0 tous les fichiers ont été convertis&#xa0;; 1 un fichier a échoué, n’a pas pu
être chargé ou a été annulé (y compris après SIGTERM, qui annule l’exécution)&#xa0;; 2 erreur
d’utilisation&#xa0;; 130 interrompu par SIGINT (Ctrl+C annule l’exécution&#xa0;; les sorties
partielles sont supprimées).
</translation>
    </message>
    <message>
        <source>--existing takes skip, both or replace, not &quot;%1&quot;</source>
        <translation>--existing attend skip, both ou replace, pas « %1 »</translation>
    </message>
</context>
<context>
    <name>CliProgressBar</name>
    <message>
        <source>%1%  %2/%3 done</source>
        <translation>%1&#xa0;%  %2/%3 terminés</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>, %1 en échec</translation>
    </message>
    <message>
        <source>estimating time remaining</source>
        <translation>estimation du temps restant</translation>
    </message>
</context>
<context>
    <name>CliRun</name>
    <message>
        <source>failed to load: %1: %2</source>
        <translation>échec du chargement&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>would convert: %1 -&gt; %2
</source>
        <translation>serait converti&#xa0;: %1 -&gt; %2
</translation>
    </message>
    <message numerus="yes">
        <source>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</source>
        <translation>
            <numerusform>%n fichier serait converti en %1 dans %2 (avec le nom qu’il recevrait maintenant&#xa0;; rien n’a été converti ni créé)
</numerusform>
            <numerusform>%n fichiers seraient convertis en %1 dans %2 (chacun avec le nom qu’il recevrait maintenant&#xa0;; rien n’a été converti ni créé)
</numerusform>
        </translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>terminé&#xa0;: %1</translation>
    </message>
    <message>
        <source>done: %1 -&gt; %2</source>
        <translation>terminé&#xa0;: %1 -&gt; %2</translation>
    </message>
    <message>
        <source>cancelled: %1</source>
        <translation>annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>failed: %1: %2</source>
        <translation>échec&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, stopping the load</source>
        <translation>sonoria-cli&#xa0;: interrompu, arrêt du chargement</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, cancelling the conversions</source>
        <translation>sonoria-cli&#xa0;: interrompu, annulation des conversions</translation>
    </message>
    <message>
        <source>tags: %1: %2</source>
        <translation>étiquettes : %1 : %2</translation>
    </message>
    <message>
        <source>already converted: %1 -&gt; %2</source>
        <translation>déjà converti : %1 -&gt; %2</translation>
    </message>
</context>
<context>
    <name>CliTagCheck</name>
    <message>
        <source>sonoria-cli: %1: no such file</source>
        <translation>sonoria-cli : %1 : fichier introuvable</translation>
    </message>
    <message>
        <source>kept     %1</source>
        <translation>conservé %1</translation>
    </message>
    <message>
        <source>changed  %1: %2</source>
        <translation>modifié %1 : %2</translation>
    </message>
    <message>
        <source>lost     %1: %2</source>
        <translation>perdu   %1 : %2</translation>
    </message>
    <message>
        <source>The source carries no tags.</source>
        <translation>La source ne contient aucune étiquette.</translation>
    </message>
</context>
<context>
    <name>ConvertFailure</name>
    <message>
        <source>No space left on device</source>
        <translation>Plus d’espace disponible sur le périphérique</translation>
    </message>
    <message>
        <source>The disk quota is used up</source>
        <translation>Le quota de disque est épuisé</translation>
    </message>
    <message>
        <source>The output folder is read-only</source>
        <translation>Le dossier de sortie est en lecture seule</translation>
    </message>
    <message>
        <source>You have no permission to write into the output folder</source>
        <translation>Vous n’avez pas l’autorisation d’écrire dans le dossier de sortie</translation>
    </message>
    <message>
        <source>The output folder&apos;s name is taken by a file</source>
        <translation>Le nom du dossier de sortie est déjà pris par un fichier</translation>
    </message>
    <message>
        <source>The output folder does not exist</source>
        <translation>Le dossier de sortie n’existe pas</translation>
    </message>
    <message>
        <source>The file is larger than the output folder&apos;s file system allows</source>
        <translation>Le fichier est plus volumineux que ne le permet le système de fichiers du dossier de sortie</translation>
    </message>
    <message>
        <source>The output folder&apos;s device reported an input/output error</source>
        <translation>Le périphérique du dossier de sortie a signalé une erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1</source>
        <translation>Impossible d’écrire dans le dossier de sortie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Permission denied: %1</source>
        <translation>Permission refusée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The source gave no audio to convert</source>
        <translation>La source n’a fourni aucune donnée audio à convertir</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>Le fichier de sortie n’a pas pu être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>ffmpeg could not decode the source: %1</source>
        <translation>ffmpeg n’a pas pu décoder la source&#xa0;: %1</translation>
    </message>
    <message>
        <source>ffmpeg was ended by signal %1 (%2)</source>
        <translation>ffmpeg a été arrêté par le signal %1 (%2)</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1): %2</source>
        <translation>ffmpeg a échoué (code de retour %1)&#xa0;: %2</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1)</source>
        <translation>ffmpeg a échoué (code de retour %1)</translation>
    </message>
    <message>
        <source>ffmpeg wrote no output file</source>
        <translation>ffmpeg n’a écrit aucun fichier de sortie</translation>
    </message>
    <message>
        <source>The output is empty</source>
        <translation>Le fichier de sortie est vide</translation>
    </message>
    <message>
        <source>The output cannot be read back as audio</source>
        <translation>Le fichier de sortie ne peut pas être relu comme audio</translation>
    </message>
    <message>
        <source>The output holds %1 audio instead of %2</source>
        <translation>Le fichier de sortie contient de l’audio %1 au lieu de %2</translation>
    </message>
    <message>
        <source>The output is shorter than the source (%L1 s instead of %L2 s)</source>
        <translation>Le fichier de sortie est plus court que la source (%L1 s au lieu de %L2 s)</translation>
    </message>
    <message>
        <source>The output is longer than the source (%L1 s instead of %L2 s)</source>
        <translation>Le fichier de sortie est plus long que la source (%L1 s au lieu de %L2 s)</translation>
    </message>
    <message>
        <source>The tags could not be written into the output: %1</source>
        <translation>Les étiquettes n’ont pas pu être écrites dans le fichier de sortie&#xa0;: %1</translation>
    </message>
    <message>
        <source>The output could not be given its name: %1</source>
        <translation>Le fichier de sortie n’a pas pu recevoir son nom&#xa0;: %1</translation>
    </message>
    <message>
        <source>ffmpeg was not found</source>
        <translation>ffmpeg est introuvable</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>le fichier ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>The converter failed: %1</source>
        <translation>Le convertisseur a échoué : %1</translation>
    </message>
    <message numerus="yes">
        <source>The converter stopped responding for %n seconds</source>
        <translation>
            <numerusform>Le convertisseur n’a pas répondu pendant %n seconde</numerusform>
            <numerusform>Le convertisseur n’a pas répondu pendant %n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (signal %1)</source>
        <translation>Le convertisseur s’est arrêté de façon inattendue (signal %1)</translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (exit status %1)</source>
        <translation>Le convertisseur s’est arrêté de façon inattendue (code de sortie %1)</translation>
    </message>
</context>
<context>
    <name>ConvertLoudness</name>
    <message>
        <source>The loudness of the source could not be measured: %1</source>
        <translation>Impossible de mesurer le volume sonore de la source : %1</translation>
    </message>
</context>
<context>
    <name>ConvertNaming</name>
    <message>
        <source>Unknown Artist</source>
        <translation>Artiste inconnu</translation>
    </message>
    <message>
        <source>Unknown Album</source>
        <translation>Album inconnu</translation>
    </message>
    <message>
        <source>Unknown Title</source>
        <translation>Titre inconnu</translation>
    </message>
    <message>
        <source>Unknown Track</source>
        <translation>Piste inconnue</translation>
    </message>
    <message>
        <source>Unknown Disc</source>
        <translation>Disque inconnu</translation>
    </message>
    <message>
        <source>Unknown Year</source>
        <translation>Année inconnue</translation>
    </message>
    <message>
        <source>Unknown Genre</source>
        <translation>Genre inconnu</translation>
    </message>
</context>
<context>
    <name>HVLoudness</name>
    <message>
        <source>its loudness cannot be measured</source>
        <translation>son volume sonore ne peut pas être mesuré</translation>
    </message>
</context>
<context>
    <name>HVSampleReader</name>
    <message>
        <source>the file cannot be opened</source>
        <translation>le fichier ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>the file holds no audio</source>
        <translation>le fichier ne contient pas d’audio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>son audio ne peut pas être décodé</translation>
    </message>
    <message>
        <source>the measurement was cancelled</source>
        <translation>la mesure a été annulée</translation>
    </message>
</context>
<context>
    <name>LSMediaLoader</name>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>Impossible d’ouvrir le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>Ceci est un dossier, pas un fichier</translation>
    </message>
    <message>
        <source>The file holds no audio that can be read</source>
        <translation>Le fichier ne contient aucune donnée audio lisible</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet starts after the end of %2</source>
        <translation>La piste %1 de la feuille CUE commence après la fin de %2</translation>
    </message>
</context>
<context>
    <name>MTETagReport</name>
    <message>
        <source>%1 files cannot hold “%2”</source>
        <translation>Les fichiers %1 ne peuvent pas contenir « %2 »</translation>
    </message>
    <message>
        <source>%1 files hold no tags</source>
        <translation>Les fichiers %1 ne contiennent pas d’étiquettes</translation>
    </message>
    <message>
        <source>%1 files keep it shortened to “%2”</source>
        <translation>Les fichiers %1 le raccourcissent en « %2 »</translation>
    </message>
    <message>
        <source>written as “%1”</source>
        <translation>écrit « %1 »</translation>
    </message>
    <message>
        <source>the cover was too large and was scaled</source>
        <translation>la pochette était trop grande et a été réduite</translation>
    </message>
    <message>
        <source>the cover was stored in another picture format</source>
        <translation>la pochette a été enregistrée dans un autre format d’image</translation>
    </message>
    <message>
        <source>%1 files keep only the first picture</source>
        <translation>Les fichiers %1 ne gardent que la première image</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artiste de l’album</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositeur</translation>
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
        <translation>Regroupement</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Numéro de piste</translation>
    </message>
    <message>
        <source>Disc number</source>
        <translation>Numéro de disque</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Paroles</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Pochette</translation>
    </message>
</context>
<context>
    <name>SXAboutText</name>
    <message>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, version 3 ou ultérieure</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (compilation %2)</translation>
    </message>
    <message>
        <source>Converts audio and video files to audio formats.</source>
        <translation>Convertit des fichiers audio et vidéo en formats audio.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licence&#xa0;: %1</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Bibliothèques utilisées&#xa0;:</translation>
    </message>
</context>
<context>
    <name>SXAddFilesDialog</name>
    <message>
        <source>Add Files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Audio and video files (%1)</source>
        <translation>Fichiers audio et vidéo (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>SXAddRun</name>
    <message>
        <source>The file name is not valid UTF-8</source>
        <translation>Le nom du fichier n’est pas en UTF-8 valide</translation>
    </message>
    <message>
        <source>Loading Media Files...</source>
        <translation>Chargement des fichiers multimédias…</translation>
    </message>
    <message>
        <source>Importing %1...</source>
        <translation>Importation de %1…</translation>
    </message>
    <message numerus="yes">
        <source>Following file(s) load failed!</source>
        <translation>
            <numerusform>Le fichier suivant n’a pas pu être ajouté&#xa0;:</numerusform>
            <numerusform>Les fichiers suivants n’ont pas pu être ajoutés&#xa0;:</numerusform>
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
        <translation>Déposez une image ici</translation>
    </message>
</context>
<context>
    <name>SXCatalogueTexts</name>
    <message>
        <source>MPEG Layer III audio, playable everywhere</source>
        <translation>Audio MPEG Layer III, lisible partout</translation>
    </message>
    <message>
        <source>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</source>
        <translation>Advanced Audio Coding dans un fichier MPEG-4&#xa0;: plus compact que le MP3 à qualité égale</translation>
    </message>
    <message>
        <source>AAC ringtone for phones</source>
        <translation>Sonnerie AAC pour téléphones</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</source>
        <translation>Free Lossless Audio Codec&#xa0;: copie exacte du son, environ deux fois plus petite qu’un WAV</translation>
    </message>
    <message>
        <source>Apple Lossless in an MPEG-4 file: exact copy of the sound</source>
        <translation>Apple Lossless dans un fichier MPEG-4&#xa0;: copie exacte du son</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in a WAVE file</source>
        <translation>PCM 16 bits non compressé dans un fichier WAVE</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in an AIFF file</source>
        <translation>PCM 16 bits non compressé dans un fichier AIFF</translation>
    </message>
    <message>
        <source>Vorbis in an Ogg file: free and open lossy audio</source>
        <translation>Vorbis dans un fichier Ogg&#xa0;: audio avec perte, libre et ouvert</translation>
    </message>
    <message>
        <source>Opus in an Ogg file: the best quality at low bit rates</source>
        <translation>Opus dans un fichier Ogg&#xa0;: la meilleure qualité à faible débit</translation>
    </message>
    <message>
        <source>Windows Media Audio 2</source>
        <translation>Windows Media Audio 2</translation>
    </message>
    <message>
        <source>Dolby Digital (AC-3) stream for video and home cinema</source>
        <translation>Flux Dolby Digital (AC-3) pour la vidéo et le home cinéma</translation>
    </message>
    <message>
        <source>MPEG Layer II audio stream for broadcast and DVD</source>
        <translation>Flux audio MPEG Layer II pour la diffusion et le DVD</translation>
    </message>
    <message>
        <source>WavPack lossless audio: exact copy of the sound, compact and fast</source>
        <translation>Audio sans perte WavPack&#xa0;: copie exacte du son, compacte et rapide</translation>
    </message>
    <message>
        <source>Use Source</source>
        <translation>Comme la source</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stéréo</translation>
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
        <translation>Sonnerie</translation>
    </message>
</context>
<context>
    <name>SXCommandValidation</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop convert all files</source>
        <translation>Arrêter la conversion de tous les fichiers</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Start convert all files</source>
        <translation>Convertir tous les fichiers</translation>
    </message>
</context>
<context>
    <name>SXContainerTabBar</name>
    <message>
        <source>Containers</source>
        <translation>Conteneurs</translation>
    </message>
    <message>
        <source>Add new format</source>
        <translation>Ajouter un nouveau format</translation>
    </message>
</context>
<context>
    <name>SXContainerTabs</name>
    <message>
        <source>No Way!</source>
        <translation>Pas celui-ci</translation>
    </message>
    <message>
        <source>I refuse to close a tab named &quot;Drake&quot;</source>
        <translation>Un onglet nommé «&#xa0;Drake&#xa0;» ne peut pas être fermé.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>All formats are opened, you can set the paramas in the setting window.</source>
        <translation>Chaque format a déjà un onglet. Vous pouvez modifier ses réglages dans le panneau sous la liste.</translation>
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
        <translation>La feuille CUE est illisible</translation>
    </message>
    <message>
        <source>The cue sheet lists no tracks</source>
        <translation>La feuille CUE ne contient aucune piste</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet ends before it starts</source>
        <translation>La piste %1 de la feuille CUE se termine avant de commencer</translation>
    </message>
    <message>
        <source>The cue sheet cannot be opened: %1</source>
        <translation>Impossible d’ouvrir la feuille CUE : %1</translation>
    </message>
    <message>
        <source>The audio file of the cue sheet is missing: %1</source>
        <translation>Le fichier audio de la feuille CUE est introuvable : %1</translation>
    </message>
</context>
<context>
    <name>SXFailureTexts</name>
    <message>
        <source>ffmpeg failed without giving a reason</source>
        <translation>ffmpeg a échoué sans donner de raison</translation>
    </message>
    <message>
        <source>The file cannot be read as audio</source>
        <translation>Le fichier ne peut pas être lu comme audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>Converted: %n.</source>
        <translation>
            <numerusform>Converti&#xa0;: %n.</numerusform>
            <numerusform>Convertis&#xa0;: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Failed: %n.</source>
        <translation>
            <numerusform>Échec&#xa0;: %n.</numerusform>
            <numerusform>Échecs&#xa0;: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not loaded: %n.</source>
        <translation>
            <numerusform>Non chargé&#xa0;: %n.</numerusform>
            <numerusform>Non chargés&#xa0;: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Échec&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tags not kept:</source>
        <translation>Étiquettes non conservées :</translation>
    </message>
    <message>
        <source>Already converted: the output was there, whole and newer than this file</source>
        <translation>Déjà converti : la sortie existait déjà, complète et plus récente que ce fichier</translation>
    </message>
</context>
<context>
    <name>SXFileInfoText</name>
    <message>
        <source>Unknow</source>
        <translation>Inconnu</translation>
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
        <translation>Indéterminé</translation>
    </message>
    <message>
        <source>Failed because</source>
        <translation>Cause de l’échec</translation>
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
        <translation>Fichier audio %1</translation>
    </message>
    <message>
        <source>%1 video file</source>
        <translation>Fichier vidéo %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Encoded with</source>
        <translation>Encodé avec</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Débit binaire</translation>
    </message>
    <message>
        <source>Bit rate mode</source>
        <translation>Mode de débit</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Channel count</source>
        <translation>Nombre de canaux</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Tag format</source>
        <translation>Format des étiquettes</translation>
    </message>
    <message>
        <source>Tag version</source>
        <translation>Version des étiquettes</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Tags not kept</source>
        <translation>Étiquettes non conservées</translation>
    </message>
</context>
<context>
    <name>SXFileInfoViewController</name>
    <message>
        <source>File Information</source>
        <translation>Informations sur le fichier</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Afficher dans le &amp;gestionnaire de fichiers</translation>
    </message>
</context>
<context>
    <name>SXFormatChooserDialog</name>
    <message>
        <source>New Format</source>
        <translation>Nouveau format</translation>
    </message>
    <message>
        <source>Add a container that converts to:</source>
        <translation>Ajouter un conteneur qui convertit en&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Débit binaire&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Sample rate:</source>
        <translation>F&amp;réquence d’échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;hannels:</source>
        <translation>&amp;Canaux&#xa0;:</translation>
    </message>
    <message>
        <source>Add to the music &amp;library</source>
        <translation>Ajouter à la &amp;bibliothèque musicale</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Étiquettes Replay&amp;Gain&#xa0;:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivées</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>&amp;Normalise loudness</source>
        <translation>&amp;Normaliser le volume sonore</translation>
    </message>
</context>
<context>
    <name>SXHelpView</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
</context>
<context>
    <name>SXItemListView</name>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Drop audio files here, or press Add Files</source>
        <translation>Déposez des fichiers audio ici ou cliquez sur «&#xa0;Ajouter des fichiers&#xa0;»</translation>
    </message>
</context>
<context>
    <name>SXItemRowLookRules</name>
    <message>
        <source>pending</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>sending</source>
        <translation>Envoi vers la bibliothèque musicale</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>Converti</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>Conversion en cours</translation>
    </message>
    <message>
        <source>already converted</source>
        <translation>déjà converti</translation>
    </message>
</context>
<context>
    <name>SXItemStateView</name>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Progression totale</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Position de lecture</translation>
    </message>
    <message>
        <source>Resume (Shift+Space)</source>
        <translation>Reprendre (Maj+Espace)</translation>
    </message>
    <message>
        <source>Pause (Shift+Space)</source>
        <translation>Pause (Maj+Espace)</translation>
    </message>
</context>
<context>
    <name>SXListDrop</name>
    <message numerus="yes">
        <source>Following location(s) are not files on this computer and were not added!</source>
        <translation>
            <numerusform>Cet emplacement n’est pas un fichier de cet ordinateur et n’a pas été ajouté :</numerusform>
            <numerusform>Ces emplacements ne sont pas des fichiers de cet ordinateur et n’ont pas été ajoutés :</numerusform>
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
        <translation>Progression du chargement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SXMainAppController</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>SXMenuHandler</name>
    <message>
        <source>&amp;New Container</source>
        <translation>&amp;Nouveau conteneur</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>New &amp;Format</source>
        <translation>A&amp;jouter un format</translation>
    </message>
    <message>
        <source>&amp;Close Container</source>
        <translation>F&amp;ermer le conteneur</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Next File</source>
        <translation>Fic&amp;hier suivant</translation>
    </message>
    <message>
        <source>&amp;Previous File</source>
        <translation>Fichier pr&amp;écédent</translation>
    </message>
    <message>
        <source>Next &amp;Container</source>
        <translation>Conteneur &amp;suivant</translation>
    </message>
    <message>
        <source>Previous Conta&amp;iner</source>
        <translation>Contene&amp;ur précédent</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>&amp;Modifier les étiquettes…</translation>
    </message>
    <message>
        <source>File Inf&amp;ormation</source>
        <translation>&amp;Informations sur le fichier</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>Sonoria &amp;Help</source>
        <translation>Aide de Sonoria</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Envo&amp;yer un commentaire…</translation>
    </message>
    <message>
        <source>Sonoria &amp;Website</source>
        <translation>Site &amp;web de Sonoria</translation>
    </message>
    <message>
        <source>&amp;About Sonoria</source>
        <translation>&amp;À propos de Sonoria</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Conversion</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditDialog</name>
    <message>
        <source>&amp;Tags</source>
        <translation>&amp;Étiquettes</translation>
    </message>
    <message>
        <source>A&amp;rtwork</source>
        <translation>&amp;Pochette</translation>
    </message>
    <message>
        <source>&amp;Lyrics</source>
        <translation>Pa&amp;roles</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>Pré&amp;cédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>Artwork size</source>
        <translation>Taille de la pochette</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Choose Artwork</source>
        <translation>Choisir une pochette</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditing</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artiste de l’album</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Regroupement</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Sorry, this kind format CAN NOT support for editing for metadata</source>
        <translation>Ce format ne peut pas contenir d’étiquettes, elles ne peuvent donc pas être modifiées.</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Paroles</translation>
    </message>
</context>
<context>
    <name>SXOutputFolderDialog</name>
    <message>
        <source>Output Folder</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>Put the files of each format in a folder of its own</source>
        <translation>Placer les fichiers de chaque format dans un dossier distinct</translation>
    </message>
    <message>
        <source>Open the folder when the conversion is over</source>
        <translation>Ouvrir le dossier à la fin de la conversion</translation>
    </message>
    <message>
        <source>Choose Output Folder</source>
        <translation>Choisir le dossier de sortie</translation>
    </message>
</context>
<context>
    <name>SXPreferences</name>
    <message>
        <source>Skip files already converted</source>
        <translation>Ignorer les fichiers déjà convertis</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
<context>
    <name>SXPreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Con&amp;versions at once:</source>
        <translation>&amp;Conversions simultanées&#xa0;:</translation>
    </message>
    <message>
        <source>Music &amp;library format:</source>
        <translation>Format de la &amp;bibliothèque musicale&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Playlist name:</source>
        <translation>Nom de la &amp;liste de lecture&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Send a start-up report and fetch feature switches</source>
        <translation>&amp;Envoyer un rapport au démarrage et récupérer les fonctionnalités à activer</translation>
    </message>
    <message>
        <source>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</source>
        <translation>Sonoria communique alors à %1, à chaque démarrage, sa version, celle du système et un numéro d’installation aléatoire, et demande quelles fonctionnalités activer.</translation>
    </message>
    <message>
        <source>&amp;Existing outputs:</source>
        <translation>S&amp;orties existantes&#xa0;:</translation>
    </message>
    <message>
        <source>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</source>
        <translation>Ce que fait une conversion quand un fichier portant le nom de sa sortie existe déjà : laisser un résultat antérieur complet et plus récent que sa source, numéroter le nouveau fichier, ou remplacer une sortie écrite par Sonoria (jamais l’un de vos fichiers).</translation>
    </message>
</context>
<context>
    <name>SXReadableNames</name>
    <message>
        <source>PCM %1-bit float</source>
        <translation>PCM %1 bits à virgule flottante</translation>
    </message>
    <message>
        <source>PCM %1-bit</source>
        <translation>PCM %1 bits</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n canal</numerusform>
            <numerusform>%n canaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorbis comments</source>
        <translation>Commentaires Vorbis</translation>
    </message>
</context>
<context>
    <name>SXRowContextMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Modifier les &amp;étiquettes…</translation>
    </message>
    <message>
        <source>File &amp;Information</source>
        <translation>&amp;Informations sur le fichier</translation>
    </message>
    <message>
        <source>Show in &amp;Files</source>
        <translation>Afficher dans le &amp;gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;tirer</translation>
    </message>
    <message>
        <source>&amp;Cancel This Conversion</source>
        <translation>&amp;Annuler cette conversion</translation>
    </message>
    <message>
        <source>File actions</source>
        <translation>Actions sur le fichier</translation>
    </message>
</context>
<context>
    <name>SXRunFeedback</name>
    <message>
        <source>Conversion finished</source>
        <translation>Conversion terminée</translation>
    </message>
</context>
<context>
    <name>SXRunSummary</name>
    <message numerus="yes">
        <source>%n files were already converted and were left as they were.</source>
        <translation>
            <numerusform>%n fichier était déjà converti et a été laissé tel quel.</numerusform>
            <numerusform>%n fichiers étaient déjà convertis et ont été laissés tels quels.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not keep all their tags.</source>
        <translation>
            <numerusform>%n fichier n’a pas pu garder toutes ses étiquettes.</numerusform>
            <numerusform>%n fichiers n’ont pas pu garder toutes leurs étiquettes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXSettingsPanel</name>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Débit binaire&#xa0;:</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation>F&amp;réquence d’échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <source>Cha&amp;nnels:</source>
        <translation>&amp;Canaux&#xa0;:</translation>
    </message>
    <message>
        <source>Add to m&amp;usic library</source>
        <translation>Ajouter à la &amp;bibliothèque musicale</translation>
    </message>
    <message>
        <source>&amp;Output Folder…</source>
        <translation>Dossier de &amp;sortie…</translation>
    </message>
    <message>
        <source>Show in F&amp;iles</source>
        <translation>&amp;Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Output Folder of This Format</source>
        <translation>Dossier de sortie de ce format</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Étiquettes Replay&amp;Gain&#xa0;:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivées</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Normali&amp;se loudness</source>
        <translation>&amp;Normaliser le volume sonore</translation>
    </message>
    <message>
        <source>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below -1 dBTP; the output then gets no ReplayGain tags</source>
        <translation>Convertit au ReplayGain mesuré (celui de l’album en mode album), en gardant le pic réel à −1&#xa0;dBTP au plus ; la sortie ne reçoit alors pas d’étiquettes ReplayGain</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Modèle de nom</translation>
    </message>
    <message>
        <source>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</source>
        <translation>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} et {filename} ; « / » crée des dossiers</translation>
    </message>
    <message>
        <source>Name pa&amp;ttern:</source>
        <translation>Modèle de no&amp;m&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Keep the layout of added folders</source>
        <translation>Conserver l’arborescence des dossiers a&amp;joutés</translation>
    </message>
    <message>
        <source>The first file becomes: %1</source>
        <translation>Le premier fichier devient : %1</translation>
    </message>
</context>
<context>
    <name>SXStateStripModel</name>
    <message>
        <source>Converting...</source>
        <translation>Conversion…</translation>
    </message>
</context>
<context>
    <name>SXTimeText</name>
    <message numerus="yes">
        <source>%n seconds remaining</source>
        <translation>
            <numerusform>il reste %n seconde</numerusform>
            <numerusform>il reste %n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second remaining</source>
        <translation>
            <numerusform>il reste %n seconde</numerusform>
            <numerusform>il reste %n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2 remaining</source>
        <translation>il reste %1 %2</translation>
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
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n heure</numerusform>
            <numerusform>%n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour</source>
        <translation>
            <numerusform>%n heure</numerusform>
            <numerusform>%n heures</numerusform>
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
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>SXWorkspace</name>
    <message>
        <source>Warnning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Do you want to close all window without save information?</source>
        <translation>Fermer toutes les fenêtres&#xa0;? Les fichiers des listes seront oubliés.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Impossible de lire le fichier</translation>
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
        <translation>Choisissez le dossier de sortie&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot write into the output folder &quot;%1&quot;: %2</source>
        <translation>Impossible d’écrire dans le dossier de sortie «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The conversion did not start</source>
        <translation>La conversion n’a pas démarré</translation>
    </message>
    <message numerus="yes">
        <source>%n files has been successfully converted.</source>
        <translation>
            <numerusform>%n fichier a été converti.</numerusform>
            <numerusform>%n fichiers ont été convertis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>except %n files failed,including:</source>
        <translation>
            <numerusform> %n fichier a échoué&#xa0;:</numerusform>
            <numerusform> %n fichiers ont échoué, dont&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SXWorkspaceTexts</name>
    <message numerus="yes">
        <source>%n files, %1 hours, %2 in %3</source>
        <translation>
            <numerusform>%n fichier, %1&#xa0;h, %2 dans %3</numerusform>
            <numerusform>%n fichiers, %1&#xa0;h, %2 dans %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n containers</source>
        <translation>
            <numerusform>%n conteneur</numerusform>
            <numerusform>%n conteneurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Converter to %1</source>
        <translation>Convertit en&#xa0;: %1</translation>
    </message>
    <message>
        <source>item</source>
        <translation>élément</translation>
    </message>
    <message>
        <source>items</source>
        <translation>éléments</translation>
    </message>
    <message numerus="yes">
        <source>%n item</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
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
        <translation>sonoria-cli&#xa0;: impossible de surveiller les interruptions</translation>
    </message>
    <message>
        <source>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</source>
        <translation>sonoria&#xa0;: impossible d’ouvrir une fenêtre (aucun affichage). Utilisez sonoria-cli pour convertir depuis un terminal.</translation>
    </message>
    <message>
        <source>Converts audio and video files.</source>
        <translation>Convertit des fichiers audio et vidéo.</translation>
    </message>
    <message>
        <source>Mirror log lines to standard error.</source>
        <translation>Recopier les lignes du journal sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <source>Audio or video files and folders to add.</source>
        <translation>Fichiers audio ou vidéo et dossiers à ajouter.</translation>
    </message>
</context>
</TS>
