<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CliCatalogue</name>
    <message>
        <source>not offered</source>
        <translation>no disponible</translation>
    </message>
    <message>
        <source>offered, on</source>
        <translation>disponible, activada</translation>
    </message>
    <message>
        <source>offered, off</source>
        <translation>disponible, desactivada</translation>
    </message>
    <message>
        <source>%1 does not offer %2 &quot;%3&quot; (offered: %4)</source>
        <translation>%1 no admite el valor «%3» para %2 (valores admitidos: %4)</translation>
    </message>
    <message>
        <source>Output formats (* marks the default choice):
</source>
        <translation>Formatos de salida (* indica la opción predeterminada):
</translation>
    </message>
    <message>
        <source>bit rates:</source>
        <translation>tasas de bits:</translation>
    </message>
    <message>
        <source>sample rates:</source>
        <translation>frecuencias de muestreo:</translation>
    </message>
    <message>
        <source>channels:</source>
        <translation>canales:</translation>
    </message>
    <message>
        <source>music library:</source>
        <translation>biblioteca musical:</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot; (formats: %2)</source>
        <translation>formato desconocido «%1» (formatos: %2)</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>tasa de bits</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>frecuencia de muestreo</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>canales</translation>
    </message>
    <message>
        <source>%1 does not offer delivery to the music library</source>
        <translation>%1 no permite añadir archivos a la biblioteca musical</translation>
    </message>
</context>
<context>
    <name>CliInfo</name>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>image</source>
        <translation>imagen</translation>
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
        <translation>sonoria-cli: no se puede leer «%1» como archivo multimedia</translation>
    </message>
    <message>
        <source>Artwork:</source>
        <translation>Carátula:</translation>
    </message>
</context>
<context>
    <name>CliOptionsParser</name>
    <message>
        <source>option --%1 given more than once</source>
        <translation>la opción --%1 se ha indicado más de una vez</translation>
    </message>
    <message>
        <source>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</source>
        <translation>--jobs necesita un número entero igual o mayor que 1, no «%1»</translation>
    </message>
    <message>
        <source>--output needs a folder</source>
        <translation>--output necesita una carpeta</translation>
    </message>
    <message>
        <source>--list-formats and --info take no FILE|FOLDER arguments</source>
        <translation>--list-formats y --info no admiten argumentos ARCHIVO|CARPETA</translation>
    </message>
    <message>
        <source>no input: give at least one FILE or FOLDER (see --help)</source>
        <translation>no hay entrada: indique al menos un ARCHIVO o una CARPETA (consulte --help)</translation>
    </message>
    <message>
        <source>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</source>
        <translation>--replaygain admite «track» o «album», no «%1»</translation>
    </message>
    <message>
        <source>--check-tags takes two files: SOURCE and OUTPUT</source>
        <translation>--check-tags necesita dos archivos: ORIGEN y SALIDA</translation>
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
        <translation>Uso: sonoria-cli [opciones] ARCHIVO|CARPETA...
Convierte archivos de audio y vídeo a formatos de audio.

  -f, --format NOMBRE     formato de salida, un nombre del catálogo (predeterminado: «MP3»)
  -o, --output CARPETA    carpeta de salida (predeterminada: la última guardada; si no, Música/Sonoria)
      --no-organize       escribir en la propia CARPETA en lugar de en CARPETA/&lt;nombre del formato&gt;
  -j, --jobs N            conversiones simultáneas (predeterminado: el máximo guardado, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   una de las opciones que ofrece el formato
      --pattern PATRÓN    nombrar las salidas según sus etiquetas: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; «/» crea carpetas
                          (por omisión «{filename}»: el nombre del propio origen)
      --mirror            mantener el lugar de cada archivo bajo la CARPETA donde se encontró
      --existing QUÉ      ya existe una salida con el nombre previsto: «skip» la deja si está
                          completa y es más reciente que su origen (por omisión: la preferencia
                          guardada, si no skip), «both» conserva ambas (numera el archivo nuevo),
                          «replace» reemplaza una salida escrita por este programa (nunca
                          otro archivo)
      --library           entregar los archivos terminados a la biblioteca musical y a la lista de reproducción
      --replaygain MODO   medir la sonoridad y etiquetar las salidas con ReplayGain: «track»,
                          o «album» para valores de pista y de álbum (desactivado por omisión)
      --normalise         convertir a la sonoridad medida (la del álbum con --replaygain album),
                          pico real de -1 dBTP como máximo; no se escriben etiquetas ReplayGain
      --list-formats      mostrar el catálogo: nombres, extensiones, opciones y valores predeterminados
      --info ARCHIVO      mostrar lo que el panel de información muestra para un archivo
      --check-tags ORIGEN SALIDA   comparar las etiquetas de dos archivos: qué llegó, qué cambió,
                          qué se perdió y por qué (estado de salida 1 si se perdió algo)
  -n, --dry-run           cargar y analizar, mostrar qué se convertiría y dónde, sin convertir nada
  -v, --verbose           replicar las líneas del registro en la salida de error estándar (igual que SONORIA_VERBOSE=1)
  -h, --help              mostrar este texto

Un nombre que empiece por «-» necesita «--» delante, o «./» al principio.
La configuración guardada se lee, pero nunca se modifica.

Estado de salida: 0 si se convirtieron todos los archivos; 1 si un archivo falló, no se pudo cargar
o se canceló (también tras SIGTERM, que cancela la ejecución); 2 error de uso; 130 interrumpido por
SIGINT (Ctrl-C cancela la ejecución; se eliminan las salidas parciales).
</translation>
    </message>
    <message>
        <source>--existing takes skip, both or replace, not &quot;%1&quot;</source>
        <translation>--existing admite skip, both o replace, no «%1»</translation>
    </message>
</context>
<context>
    <name>CliProgressBar</name>
    <message>
        <source>%1%  %2/%3 done</source>
        <translation>%1 %  %2/%3 completados</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>, %1 fallidos</translation>
    </message>
    <message>
        <source>estimating time remaining</source>
        <translation>calculando el tiempo restante</translation>
    </message>
</context>
<context>
    <name>CliRun</name>
    <message>
        <source>failed to load: %1: %2</source>
        <translation>no se pudo cargar: %1: %2</translation>
    </message>
    <message>
        <source>would convert: %1 -&gt; %2
</source>
        <translation>se convertiría: %1 -&gt; %2
</translation>
    </message>
    <message numerus="yes">
        <source>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</source>
        <translation>
            <numerusform>%n archivo se convertiría a %1 en %2 (con el nombre que recibiría ahora; no se ha convertido ni creado nada)
</numerusform>
            <numerusform>%n archivos se convertirían a %1 en %2 (cada uno con el nombre que recibiría ahora; no se ha convertido ni creado nada)
</numerusform>
        </translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>terminado: %1</translation>
    </message>
    <message>
        <source>done: %1 -&gt; %2</source>
        <translation>terminado: %1 -&gt; %2</translation>
    </message>
    <message>
        <source>cancelled: %1</source>
        <translation>cancelado: %1</translation>
    </message>
    <message>
        <source>failed: %1: %2</source>
        <translation>falló: %1: %2</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, stopping the load</source>
        <translation>sonoria-cli: interrumpido, deteniendo la carga</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, cancelling the conversions</source>
        <translation>sonoria-cli: interrumpido, cancelando las conversiones</translation>
    </message>
    <message>
        <source>tags: %1: %2</source>
        <translation>etiquetas: %1: %2</translation>
    </message>
    <message>
        <source>already converted: %1 -&gt; %2</source>
        <translation>ya convertido: %1 -&gt; %2</translation>
    </message>
</context>
<context>
    <name>CliTagCheck</name>
    <message>
        <source>sonoria-cli: %1: no such file</source>
        <translation>sonoria-cli: %1: no existe el archivo</translation>
    </message>
    <message>
        <source>kept     %1</source>
        <translation>conservado %1</translation>
    </message>
    <message>
        <source>changed  %1: %2</source>
        <translation>cambiado %1: %2</translation>
    </message>
    <message>
        <source>lost     %1: %2</source>
        <translation>perdido  %1: %2</translation>
    </message>
    <message>
        <source>The source carries no tags.</source>
        <translation>El origen no tiene etiquetas.</translation>
    </message>
</context>
<context>
    <name>ConvertFailure</name>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>The disk quota is used up</source>
        <translation>La cuota de disco se ha agotado</translation>
    </message>
    <message>
        <source>The output folder is read-only</source>
        <translation>La carpeta de salida es de solo lectura</translation>
    </message>
    <message>
        <source>You have no permission to write into the output folder</source>
        <translation>No tiene permiso para escribir en la carpeta de salida</translation>
    </message>
    <message>
        <source>The output folder&apos;s name is taken by a file</source>
        <translation>Hay un archivo con el nombre de la carpeta de salida</translation>
    </message>
    <message>
        <source>The output folder does not exist</source>
        <translation>La carpeta de salida no existe</translation>
    </message>
    <message>
        <source>The file is larger than the output folder&apos;s file system allows</source>
        <translation>El archivo es más grande de lo que permite el sistema de archivos de la carpeta de salida</translation>
    </message>
    <message>
        <source>The output folder&apos;s device reported an input/output error</source>
        <translation>El dispositivo de la carpeta de salida informó de un error de entrada/salida</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1</source>
        <translation>No se puede escribir en la carpeta de salida: %1</translation>
    </message>
    <message>
        <source>Permission denied: %1</source>
        <translation>Permiso denegado: %1</translation>
    </message>
    <message>
        <source>The source gave no audio to convert</source>
        <translation>El origen no proporcionó audio que convertir</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>No se pudo escribir la salida: %1</translation>
    </message>
    <message>
        <source>ffmpeg could not decode the source: %1</source>
        <translation>ffmpeg no pudo decodificar el origen: %1</translation>
    </message>
    <message>
        <source>ffmpeg was ended by signal %1 (%2)</source>
        <translation>ffmpeg terminó por la señal %1 (%2)</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1): %2</source>
        <translation>ffmpeg falló (estado de salida %1): %2</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1)</source>
        <translation>ffmpeg falló (estado de salida %1)</translation>
    </message>
    <message>
        <source>ffmpeg wrote no output file</source>
        <translation>ffmpeg no escribió ningún archivo de salida</translation>
    </message>
    <message>
        <source>The output is empty</source>
        <translation>La salida está vacía</translation>
    </message>
    <message>
        <source>The output cannot be read back as audio</source>
        <translation>La salida no se puede volver a leer como audio</translation>
    </message>
    <message>
        <source>The output holds %1 audio instead of %2</source>
        <translation>La salida contiene audio %1 en lugar de %2</translation>
    </message>
    <message>
        <source>The output is shorter than the source (%L1 s instead of %L2 s)</source>
        <translation>La salida es más corta que el origen (%L1 s en lugar de %L2 s)</translation>
    </message>
    <message>
        <source>The output is longer than the source (%L1 s instead of %L2 s)</source>
        <translation>La salida es más larga que el origen (%L1 s en lugar de %L2 s)</translation>
    </message>
    <message>
        <source>The tags could not be written into the output: %1</source>
        <translation>No se pudieron escribir las etiquetas en la salida: %1</translation>
    </message>
    <message>
        <source>The output could not be given its name: %1</source>
        <translation>No se pudo dar su nombre a la salida: %1</translation>
    </message>
    <message>
        <source>ffmpeg was not found</source>
        <translation>No se encontró ffmpeg</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>no se puede abrir el archivo</translation>
    </message>
    <message>
        <source>The converter failed: %1</source>
        <translation>El conversor falló: %1</translation>
    </message>
    <message numerus="yes">
        <source>The converter stopped responding for %n seconds</source>
        <translation>
            <numerusform>El conversor dejó de responder durante %n segundo</numerusform>
            <numerusform>El conversor dejó de responder durante %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (signal %1)</source>
        <translation>El conversor se detuvo de forma inesperada (señal %1)</translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (exit status %1)</source>
        <translation>El conversor se detuvo de forma inesperada (estado de salida %1)</translation>
    </message>
</context>
<context>
    <name>ConvertLoudness</name>
    <message>
        <source>The loudness of the source could not be measured: %1</source>
        <translation>No se pudo medir la sonoridad del origen: %1</translation>
    </message>
</context>
<context>
    <name>ConvertNaming</name>
    <message>
        <source>Unknown Artist</source>
        <translation>Artista desconocido</translation>
    </message>
    <message>
        <source>Unknown Album</source>
        <translation>Álbum desconocido</translation>
    </message>
    <message>
        <source>Unknown Title</source>
        <translation>Título desconocido</translation>
    </message>
    <message>
        <source>Unknown Track</source>
        <translation>Pista desconocida</translation>
    </message>
    <message>
        <source>Unknown Disc</source>
        <translation>Disco desconocido</translation>
    </message>
    <message>
        <source>Unknown Year</source>
        <translation>Año desconocido</translation>
    </message>
    <message>
        <source>Unknown Genre</source>
        <translation>Género desconocido</translation>
    </message>
</context>
<context>
    <name>HVLoudness</name>
    <message>
        <source>its loudness cannot be measured</source>
        <translation>su sonoridad no se puede medir</translation>
    </message>
</context>
<context>
    <name>HVSampleReader</name>
    <message>
        <source>the file cannot be opened</source>
        <translation>el archivo no se puede abrir</translation>
    </message>
    <message>
        <source>the file holds no audio</source>
        <translation>el archivo no contiene audio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>su audio no se puede decodificar</translation>
    </message>
    <message>
        <source>the measurement was cancelled</source>
        <translation>la medición se canceló</translation>
    </message>
</context>
<context>
    <name>LSMediaLoader</name>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>No se puede abrir el archivo: %1</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>Esto es una carpeta, no un archivo</translation>
    </message>
    <message>
        <source>The file holds no audio that can be read</source>
        <translation>El archivo no contiene audio que se pueda leer</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet starts after the end of %2</source>
        <translation>La pista %1 de la hoja CUE empieza después del final de %2</translation>
    </message>
</context>
<context>
    <name>MTETagReport</name>
    <message>
        <source>%1 files cannot hold “%2”</source>
        <translation>Los archivos %1 no pueden guardar «%2»</translation>
    </message>
    <message>
        <source>%1 files hold no tags</source>
        <translation>Los archivos %1 no admiten etiquetas</translation>
    </message>
    <message>
        <source>%1 files keep it shortened to “%2”</source>
        <translation>Los archivos %1 lo guardan acortado como «%2»</translation>
    </message>
    <message>
        <source>written as “%1”</source>
        <translation>escrito como «%1»</translation>
    </message>
    <message>
        <source>the cover was too large and was scaled</source>
        <translation>la carátula era demasiado grande y se redujo</translation>
    </message>
    <message>
        <source>the cover was stored in another picture format</source>
        <translation>la carátula se guardó en otro formato de imagen</translation>
    </message>
    <message>
        <source>%1 files keep only the first picture</source>
        <translation>Los archivos %1 solo guardan la primera imagen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista del álbum</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupación</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Número de pista</translation>
    </message>
    <message>
        <source>Disc number</source>
        <translation>Número de disco</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editorial</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Carátula</translation>
    </message>
</context>
<context>
    <name>SXAboutText</name>
    <message>
        <source>GNU General Public License, version 3 or later</source>
        <translation>Licencia Pública General de GNU, versión 3 o posterior</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (compilación %2)</translation>
    </message>
    <message>
        <source>Converts audio and video files to audio formats.</source>
        <translation>Convierte archivos de audio y vídeo a formatos de audio.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licencia: %1</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Bibliotecas en uso:</translation>
    </message>
</context>
<context>
    <name>SXAddFilesDialog</name>
    <message>
        <source>Add Files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Audio and video files (%1)</source>
        <translation>Archivos de audio y vídeo (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>SXAddRun</name>
    <message>
        <source>The file name is not valid UTF-8</source>
        <translation>El nombre del archivo no es UTF-8 válido</translation>
    </message>
    <message>
        <source>Loading Media Files...</source>
        <translation>Cargando archivos multimedia…</translation>
    </message>
    <message>
        <source>Importing %1...</source>
        <translation>Importando %1…</translation>
    </message>
    <message numerus="yes">
        <source>Following file(s) load failed!</source>
        <translation>
            <numerusform>No se pudo añadir el siguiente archivo:</numerusform>
            <numerusform>No se pudieron añadir los siguientes archivos:</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SXArtworkDropView</name>
    <message>
        <source>Drop a picture here</source>
        <translation>Suelte una imagen aquí</translation>
    </message>
</context>
<context>
    <name>SXCatalogueTexts</name>
    <message>
        <source>MPEG Layer III audio, playable everywhere</source>
        <translation>Audio MPEG Layer III, reproducible en cualquier lugar</translation>
    </message>
    <message>
        <source>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</source>
        <translation>Advanced Audio Coding en un archivo MPEG-4: más pequeño que MP3 con la misma calidad</translation>
    </message>
    <message>
        <source>AAC ringtone for phones</source>
        <translation>Tono de llamada AAC para teléfonos</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</source>
        <translation>Free Lossless Audio Codec: copia exacta del sonido, de aproximadamente la mitad del tamaño de WAV</translation>
    </message>
    <message>
        <source>Apple Lossless in an MPEG-4 file: exact copy of the sound</source>
        <translation>Apple Lossless en un archivo MPEG-4: copia exacta del sonido</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in a WAVE file</source>
        <translation>PCM de 16 bits sin comprimir en un archivo WAVE</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in an AIFF file</source>
        <translation>PCM de 16 bits sin comprimir en un archivo AIFF</translation>
    </message>
    <message>
        <source>Vorbis in an Ogg file: free and open lossy audio</source>
        <translation>Vorbis en un archivo Ogg: audio con pérdida, libre y abierto</translation>
    </message>
    <message>
        <source>Opus in an Ogg file: the best quality at low bit rates</source>
        <translation>Opus en un archivo Ogg: la mejor calidad a tasas de bits bajas</translation>
    </message>
    <message>
        <source>Windows Media Audio 2</source>
        <translation>Windows Media Audio 2</translation>
    </message>
    <message>
        <source>Dolby Digital (AC-3) stream for video and home cinema</source>
        <translation>Flujo Dolby Digital (AC-3) para vídeo y cine en casa</translation>
    </message>
    <message>
        <source>MPEG Layer II audio stream for broadcast and DVD</source>
        <translation>Flujo de audio MPEG Layer II para radiodifusión y DVD</translation>
    </message>
    <message>
        <source>WavPack lossless audio: exact copy of the sound, compact and fast</source>
        <translation>Audio sin pérdida WavPack: copia exacta del sonido, compacto y rápido</translation>
    </message>
    <message>
        <source>Use Source</source>
        <translation>Como el original</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Estéreo</translation>
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
        <translation>Tono de llamada</translation>
    </message>
</context>
<context>
    <name>SXCommandValidation</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop convert all files</source>
        <translation>Detener la conversión de todos los archivos</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Start convert all files</source>
        <translation>Convertir todos los archivos</translation>
    </message>
</context>
<context>
    <name>SXContainerTabBar</name>
    <message>
        <source>Containers</source>
        <translation>Contenedores</translation>
    </message>
    <message>
        <source>Add new format</source>
        <translation>Añadir un formato nuevo</translation>
    </message>
</context>
<context>
    <name>SXContainerTabs</name>
    <message>
        <source>No Way!</source>
        <translation>Esta no</translation>
    </message>
    <message>
        <source>I refuse to close a tab named &quot;Drake&quot;</source>
        <translation>No se puede cerrar una pestaña llamada «Drake».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>All formats are opened, you can set the paramas in the setting window.</source>
        <translation>Todos los formatos tienen ya una pestaña. Puede cambiar su configuración en el panel que hay debajo de la lista.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SXCueSheet</name>
    <message>
        <source>The cue sheet cannot be read as one</source>
        <translation>La hoja CUE no se puede leer</translation>
    </message>
    <message>
        <source>The cue sheet lists no tracks</source>
        <translation>La hoja CUE no contiene pistas</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet ends before it starts</source>
        <translation>La pista %1 de la hoja CUE termina antes de empezar</translation>
    </message>
    <message>
        <source>The cue sheet cannot be opened: %1</source>
        <translation>No se puede abrir la hoja CUE: %1</translation>
    </message>
    <message>
        <source>The audio file of the cue sheet is missing: %1</source>
        <translation>Falta el archivo de audio de la hoja CUE: %1</translation>
    </message>
</context>
<context>
    <name>SXFailureTexts</name>
    <message>
        <source>ffmpeg failed without giving a reason</source>
        <translation>ffmpeg falló sin indicar el motivo</translation>
    </message>
    <message>
        <source>The file cannot be read as audio</source>
        <translation>El archivo no se puede leer como audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Converted: %n.</source>
        <translation>
            <numerusform>Convertido: %n.</numerusform>
            <numerusform>Convertidos: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Failed: %n.</source>
        <translation>
            <numerusform>Fallido: %n.</numerusform>
            <numerusform>Fallidos: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not loaded: %n.</source>
        <translation>
            <numerusform>No cargado: %n.</numerusform>
            <numerusform>No cargados: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Falló: %1</translation>
    </message>
    <message>
        <source>Tags not kept:</source>
        <translation>Etiquetas no conservadas:</translation>
    </message>
    <message>
        <source>Already converted: the output was there, whole and newer than this file</source>
        <translation>Ya convertido: la salida ya existía, completa y más reciente que este archivo</translation>
    </message>
</context>
<context>
    <name>SXFileInfoText</name>
    <message>
        <source>Unknow</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constante</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>mod</source>
        <translation>Se desconoce</translation>
    </message>
    <message>
        <source>Failed because</source>
        <translation>Motivo del fallo</translation>
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
        <translation>Archivo de audio %1</translation>
    </message>
    <message>
        <source>%1 video file</source>
        <translation>Archivo de vídeo %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
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
        <translation>Codificado con</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Bit rate mode</source>
        <translation>Modo de tasa de bits</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Channel count</source>
        <translation>Número de canales</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Tag format</source>
        <translation>Formato de etiquetas</translation>
    </message>
    <message>
        <source>Tag version</source>
        <translation>Versión de etiquetas</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Tags not kept</source>
        <translation>Etiquetas no conservadas</translation>
    </message>
</context>
<context>
    <name>SXFileInfoViewController</name>
    <message>
        <source>File Information</source>
        <translation>Información del archivo</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Mostrar en el gestor de &amp;archivos</translation>
    </message>
</context>
<context>
    <name>SXFormatChooserDialog</name>
    <message>
        <source>New Format</source>
        <translation>Formato nuevo</translation>
    </message>
    <message>
        <source>Add a container that converts to:</source>
        <translation>Añadir un contenedor que convierta a:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Tasa de bits:</translation>
    </message>
    <message>
        <source>&amp;Sample rate:</source>
        <translation>Frecuencia de &amp;muestreo:</translation>
    </message>
    <message>
        <source>C&amp;hannels:</source>
        <translation>&amp;Canales:</translation>
    </message>
    <message>
        <source>Add to the music &amp;library</source>
        <translation>Añadir a la &amp;biblioteca musical</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Etiquetas Replay&amp;Gain:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivadas</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>&amp;Normalise loudness</source>
        <translation>Norma&amp;lizar sonoridad</translation>
    </message>
</context>
<context>
    <name>SXHelpView</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
</context>
<context>
    <name>SXItemListView</name>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Drop audio files here, or press Add Files</source>
        <translation>Suelte aquí archivos de audio o pulse Añadir archivos</translation>
    </message>
</context>
<context>
    <name>SXItemRowLookRules</name>
    <message>
        <source>pending</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>sending</source>
        <translation>Enviando a la biblioteca musical</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>Convertido</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>Convirtiendo</translation>
    </message>
    <message>
        <source>already converted</source>
        <translation>ya convertido</translation>
    </message>
</context>
<context>
    <name>SXItemStateView</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Total progress</source>
        <translation>Progreso total</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Posición de reproducción</translation>
    </message>
    <message>
        <source>Resume (Shift+Space)</source>
        <translation>Continuar (Mayús+Espacio)</translation>
    </message>
    <message>
        <source>Pause (Shift+Space)</source>
        <translation>Pausar (Mayús+Espacio)</translation>
    </message>
</context>
<context>
    <name>SXListDrop</name>
    <message numerus="yes">
        <source>Following location(s) are not files on this computer and were not added!</source>
        <translation>
            <numerusform>Esta ubicación no es un archivo de este equipo y no se añadió:</numerusform>
            <numerusform>Estas ubicaciones no son archivos de este equipo y no se añadieron:</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SXLoadingDialog</name>
    <message>
        <source>Loading progress</source>
        <translation>Progreso de la carga</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SXMainAppController</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Vaciar</translation>
    </message>
</context>
<context>
    <name>SXMenuHandler</name>
    <message>
        <source>&amp;New Container</source>
        <translation>&amp;Nuevo contenedor</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>New &amp;Format</source>
        <translation>Nuevo for&amp;mato</translation>
    </message>
    <message>
        <source>&amp;Close Container</source>
        <translation>Ce&amp;rrar contenedor</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>&amp;Next File</source>
        <translation>Archivo si&amp;guiente</translation>
    </message>
    <message>
        <source>&amp;Previous File</source>
        <translation>Arc&amp;hivo anterior</translation>
    </message>
    <message>
        <source>Next &amp;Container</source>
        <translation>C&amp;ontenedor siguiente</translation>
    </message>
    <message>
        <source>Previous Conta&amp;iner</source>
        <translation>Contenedor anterior</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Editar eti&amp;quetas…</translation>
    </message>
    <message>
        <source>File Inf&amp;ormation</source>
        <translation>In&amp;formación del archivo</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>Sonoria &amp;Help</source>
        <translation>A&amp;yuda de Sonoria</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Enviar comentarios…</translation>
    </message>
    <message>
        <source>Sonoria &amp;Website</source>
        <translation>Sitio &amp;web de Sonoria</translation>
    </message>
    <message>
        <source>&amp;About Sonoria</source>
        <translation>Acerca &amp;de Sonoria</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convertir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditDialog</name>
    <message>
        <source>&amp;Tags</source>
        <translation>&amp;Etiquetas</translation>
    </message>
    <message>
        <source>A&amp;rtwork</source>
        <translation>&amp;Carátula</translation>
    </message>
    <message>
        <source>&amp;Lyrics</source>
        <translation>&amp;Letra</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>Artwork size</source>
        <translation>Tamaño de la carátula</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>Aña&amp;dir…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Eli&amp;minar</translation>
    </message>
    <message>
        <source>Choose Artwork</source>
        <translation>Elegir carátula</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
</context>
<context>
    <name>SXMetadataEditing</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista del álbum</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupación</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editorial</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Sorry, this kind format CAN NOT support for editing for metadata</source>
        <translation>Este formato no admite etiquetas, por lo que no se pueden editar.</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Letra</translation>
    </message>
</context>
<context>
    <name>SXOutputFolderDialog</name>
    <message>
        <source>Output Folder</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>Put the files of each format in a folder of its own</source>
        <translation>Guardar los archivos de cada formato en una carpeta propia</translation>
    </message>
    <message>
        <source>Open the folder when the conversion is over</source>
        <translation>Abrir la carpeta al terminar la conversión</translation>
    </message>
    <message>
        <source>Choose Output Folder</source>
        <translation>Elegir la carpeta de salida</translation>
    </message>
</context>
<context>
    <name>SXPreferences</name>
    <message>
        <source>Skip files already converted</source>
        <translation>Omitir los archivos ya convertidos</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
</context>
<context>
    <name>SXPreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Con&amp;versions at once:</source>
        <translation>Con&amp;versiones simultáneas:</translation>
    </message>
    <message>
        <source>Music &amp;library format:</source>
        <translation>Formato de la &amp;biblioteca musical:</translation>
    </message>
    <message>
        <source>&amp;Playlist name:</source>
        <translation>Nombre de la lista de re&amp;producción:</translation>
    </message>
    <message>
        <source>&amp;Send a start-up report and fetch feature switches</source>
        <translation>&amp;Enviar un informe al iniciar y obtener la activación de funciones</translation>
    </message>
    <message>
        <source>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</source>
        <translation>Entonces, en cada inicio, Sonoria comunica a %1 su versión, la versión del sistema y un número de instalación aleatorio, y pregunta qué funciones activar.</translation>
    </message>
    <message>
        <source>&amp;Existing outputs:</source>
        <translation>&amp;Salidas existentes:</translation>
    </message>
    <message>
        <source>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</source>
        <translation>Qué hace una conversión cuando ya existe un archivo con el nombre de su salida: dejar un resultado anterior completo y más reciente que su origen, numerar el archivo nuevo o reemplazar una salida escrita por Sonoria (nunca un archivo suyo).</translation>
    </message>
</context>
<context>
    <name>SXReadableNames</name>
    <message>
        <source>PCM %1-bit float</source>
        <translation>PCM de %1 bits en coma flotante</translation>
    </message>
    <message>
        <source>PCM %1-bit</source>
        <translation>PCM de %1 bits</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Estéreo</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n canal</numerusform>
            <numerusform>%n canales</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorbis comments</source>
        <translation>Comentarios Vorbis</translation>
    </message>
</context>
<context>
    <name>SXRowContextMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausar</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Editar e&amp;tiquetas…</translation>
    </message>
    <message>
        <source>File &amp;Information</source>
        <translation>&amp;Información del archivo</translation>
    </message>
    <message>
        <source>Show in &amp;Files</source>
        <translation>Mostrar en &amp;Archivos</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Cancel This Conversion</source>
        <translation>Ca&amp;ncelar esta conversión</translation>
    </message>
    <message>
        <source>File actions</source>
        <translation>Acciones del archivo</translation>
    </message>
</context>
<context>
    <name>SXRunFeedback</name>
    <message>
        <source>Conversion finished</source>
        <translation>Conversión terminada</translation>
    </message>
</context>
<context>
    <name>SXRunSummary</name>
    <message numerus="yes">
        <source>%n files were already converted and were left as they were.</source>
        <translation>
            <numerusform>%n archivo ya estaba convertido y se dejó como estaba.</numerusform>
            <numerusform>%n archivos ya estaban convertidos y se dejaron como estaban.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not keep all their tags.</source>
        <translation>
            <numerusform>%n archivo no pudo conservar todas sus etiquetas.</numerusform>
            <numerusform>%n archivos no pudieron conservar todas sus etiquetas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXSettingsPanel</name>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Tasa de bits:</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation>&amp;Frecuencia de muestreo:</translation>
    </message>
    <message>
        <source>Cha&amp;nnels:</source>
        <translation>Ca&amp;nales:</translation>
    </message>
    <message>
        <source>Add to m&amp;usic library</source>
        <translation>Añadir a la &amp;biblioteca musical</translation>
    </message>
    <message>
        <source>&amp;Output Folder…</source>
        <translation>Carpeta de &amp;salida…</translation>
    </message>
    <message>
        <source>Show in F&amp;iles</source>
        <translation>Mostrar en &amp;Archivos</translation>
    </message>
    <message>
        <source>Output Folder of This Format</source>
        <translation>Carpeta de salida de este formato</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Etiquetas Replay&amp;Gain:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivadas</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Normali&amp;se loudness</source>
        <translation>Norma&amp;lizar sonoridad</translation>
    </message>
    <message>
        <source>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below -1 dBTP; the output then gets no ReplayGain tags</source>
        <translation>Convierte con el ReplayGain medido (el del álbum en modo álbum), manteniendo el pico real en −1 dBTP o menos; la salida no recibe entonces etiquetas ReplayGain</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Patrón de nombre</translation>
    </message>
    <message>
        <source>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</source>
        <translation>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} y {filename}; «/» crea carpetas</translation>
    </message>
    <message>
        <source>Name pa&amp;ttern:</source>
        <translation>&amp;Patrón de nombre:</translation>
    </message>
    <message>
        <source>&amp;Keep the layout of added folders</source>
        <translation>&amp;Mantener la estructura de las carpetas añadidas</translation>
    </message>
    <message>
        <source>The first file becomes: %1</source>
        <translation>El primer archivo será: %1</translation>
    </message>
</context>
<context>
    <name>SXStateStripModel</name>
    <message>
        <source>Converting...</source>
        <translation>Convirtiendo…</translation>
    </message>
</context>
<context>
    <name>SXTimeText</name>
    <message numerus="yes">
        <source>%n seconds remaining</source>
        <translation>
            <numerusform>%n segundo restante</numerusform>
            <numerusform>%n segundos restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second remaining</source>
        <translation>
            <numerusform>%n segundo restante</numerusform>
            <numerusform>%n segundos restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2 remaining</source>
        <translation>%1 %2 restantes</translation>
    </message>
    <message numerus="yes">
        <source>%n minites</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minite</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n hora</numerusform>
            <numerusform>%n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour</source>
        <translation>
            <numerusform>%n hora</numerusform>
            <numerusform>%n horas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXWindowPresenter</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SXWindowToolbar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>SXWorkspace</name>
    <message>
        <source>Warnning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Do you want to close all window without save information?</source>
        <translation>¿Cerrar todas las ventanas? Se olvidarán los archivos de las listas.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SXWorkspacePreview</name>
    <message>
        <source>Can not play the file</source>
        <translation>No se puede reproducir el archivo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SXWorkspaceScheduler</name>
    <message>
        <source>Please choose output folder:</source>
        <translation>Elija la carpeta de salida:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cannot write into the output folder &quot;%1&quot;: %2</source>
        <translation>No se puede escribir en la carpeta de salida «%1»: %2</translation>
    </message>
    <message>
        <source>The conversion did not start</source>
        <translation>La conversión no se inició</translation>
    </message>
    <message numerus="yes">
        <source>%n files has been successfully converted.</source>
        <translation>
            <numerusform>Se ha convertido %n archivo.</numerusform>
            <numerusform>Se han convertido %n archivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>except %n files failed,including:</source>
        <translation>
            <numerusform> No se pudo convertir %n archivo:</numerusform>
            <numerusform> No se pudieron convertir %n archivos, entre ellos:</numerusform>
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
            <numerusform>%n archivo, %1 horas, %2 en %3</numerusform>
            <numerusform>%n archivos, %1 horas, %2 en %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n containers</source>
        <translation>
            <numerusform>%n contenedor</numerusform>
            <numerusform>%n contenedores</numerusform>
        </translation>
    </message>
    <message>
        <source>Converter to %1</source>
        <translation>Convertir a %1</translation>
    </message>
    <message>
        <source>item</source>
        <translation>elemento</translation>
    </message>
    <message>
        <source>items</source>
        <translation>elementos</translation>
    </message>
    <message numerus="yes">
        <source>%n item</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1% — %2</source>
        <translation>%1 % — %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>sonoria-cli: cannot watch for interrupts</source>
        <translation>sonoria-cli: no se pueden vigilar las interrupciones</translation>
    </message>
    <message>
        <source>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</source>
        <translation>sonoria: no se puede abrir una ventana (no hay pantalla). Use sonoria-cli para convertir desde una terminal.</translation>
    </message>
    <message>
        <source>Converts audio and video files.</source>
        <translation>Convierte archivos de audio y vídeo.</translation>
    </message>
    <message>
        <source>Mirror log lines to standard error.</source>
        <translation>Replicar las líneas del registro en la salida de error estándar.</translation>
    </message>
    <message>
        <source>Audio or video files and folders to add.</source>
        <translation>Archivos y carpetas de audio o vídeo que añadir.</translation>
    </message>
</context>
</TS>
