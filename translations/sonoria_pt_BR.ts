<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CliCatalogue</name>
    <message>
        <source>not offered</source>
        <translation>não disponível</translation>
    </message>
    <message>
        <source>offered, on</source>
        <translation>disponível, ativado</translation>
    </message>
    <message>
        <source>offered, off</source>
        <translation>disponível, desativado</translation>
    </message>
    <message>
        <source>%1 does not offer %2 &quot;%3&quot; (offered: %4)</source>
        <translation>%1 não aceita o valor “%3” para %2 (valores aceitos: %4)</translation>
    </message>
    <message>
        <source>Output formats (* marks the default choice):
</source>
        <translation>Formatos de saída (* indica a opção padrão):
</translation>
    </message>
    <message>
        <source>bit rates:</source>
        <translation>taxas de bits:</translation>
    </message>
    <message>
        <source>sample rates:</source>
        <translation>taxas de amostragem:</translation>
    </message>
    <message>
        <source>channels:</source>
        <translation>canais:</translation>
    </message>
    <message>
        <source>music library:</source>
        <translation>biblioteca de músicas:</translation>
    </message>
    <message>
        <source>unknown format &quot;%1&quot; (formats: %2)</source>
        <translation>formato desconhecido “%1” (formatos: %2)</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>taxa de bits</translation>
    </message>
    <message>
        <source>sample rate</source>
        <translation>taxa de amostragem</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>canais</translation>
    </message>
    <message>
        <source>%1 does not offer delivery to the music library</source>
        <translation>%1 não permite adicionar arquivos à biblioteca de músicas</translation>
    </message>
</context>
<context>
    <name>CliInfo</name>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>image</source>
        <translation>imagem</translation>
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
        <translation>sonoria-cli: não foi possível ler “%1” como mídia</translation>
    </message>
    <message>
        <source>Artwork:</source>
        <translation>Capa:</translation>
    </message>
</context>
<context>
    <name>CliOptionsParser</name>
    <message>
        <source>option --%1 given more than once</source>
        <translation>opção --%1 informada mais de uma vez</translation>
    </message>
    <message>
        <source>--jobs needs a whole number of 1 or more, not &quot;%1&quot;</source>
        <translation>--jobs precisa de um número inteiro igual ou maior que 1, não “%1”</translation>
    </message>
    <message>
        <source>--output needs a folder</source>
        <translation>--output precisa de uma pasta</translation>
    </message>
    <message>
        <source>--list-formats and --info take no FILE|FOLDER arguments</source>
        <translation>--list-formats e --info não aceitam argumentos ARQUIVO|PASTA</translation>
    </message>
    <message>
        <source>no input: give at least one FILE or FOLDER (see --help)</source>
        <translation>nenhuma entrada: informe ao menos um ARQUIVO ou uma PASTA (veja --help)</translation>
    </message>
    <message>
        <source>--replaygain takes &quot;track&quot; or &quot;album&quot;, not &quot;%1&quot;</source>
        <translation>--replaygain aceita “track” ou “album”, não “%1”</translation>
    </message>
    <message>
        <source>--check-tags takes two files: SOURCE and OUTPUT</source>
        <translation>--check-tags precisa de dois arquivos: ORIGEM e SAÍDA</translation>
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
        <translation>Uso: sonoria-cli [opções] ARQUIVO|PASTA...
Converte arquivos de áudio e vídeo para formatos de áudio.

  -f, --format NOME       formato de saída, um nome do catálogo (padrão: “MP3”)
  -o, --output PASTA      pasta de saída (padrão: a última pasta armazenada; senão, Música/Sonoria)
      --no-organize       grava na própria PASTA em vez de em PASTA/&lt;nome do formato&gt;
  -j, --jobs N            conversões simultâneas (padrão: o máximo armazenado, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   uma das opções oferecidas pelo formato
      --pattern PADRÃO    nomear as saídas pelas etiquetas: {artist} {albumartist} {album} {title}
                          {track} {track:02} {disc} {year} {genre} {filename}; “/” cria pastas
                          (padrão “{filename}”: o nome da própria origem)
      --mirror            manter o lugar de cada arquivo abaixo da PASTA onde foi encontrado
      --existing O-QUÊ    já existe uma saída com o nome previsto: “skip” a deixa se ela estiver
                          completa e for mais recente que a origem (padrão: a preferência
                          salva, senão skip), “both” mantém as duas (numera o novo arquivo),
                          “replace” substitui uma saída gravada por este programa (nunca
                          outro arquivo)
      --library           entrega os arquivos concluídos à biblioteca de músicas e à lista de reprodução
      --replaygain MODO   medir a sonoridade e marcar as saídas com ReplayGain: “track”,
                          ou “album” para valores de faixa e de álbum (desativado por padrão)
      --normalise         converter na sonoridade medida (a do álbum com --replaygain album),
                          pico real de no máximo -1 dBTP; nenhuma etiqueta ReplayGain é gravada
      --list-formats      exibe o catálogo: nomes, extensões, opções e valores padrão
      --info ARQUIVO      exibe o que o painel de informações mostra para um arquivo
      --check-tags ORIGEM SAÍDA   comparar as etiquetas de dois arquivos: o que chegou, o que mudou,
                          o que se perdeu e por quê (status de saída 1 se algo se perdeu)
  -n, --dry-run           carrega e analisa, exibe o que seria convertido e onde, sem converter nada
  -v, --verbose           espelha as linhas de log na saída de erro padrão (assim como SONORIA_VERBOSE=1)
  -h, --help              mostra este texto

Um nome que começa com “-” precisa de “--” antes dele, ou de “./” na frente.
As configurações armazenadas são lidas, nunca alteradas.

Status de saída: 0 todos os arquivos convertidos; 1 um arquivo falhou, não pôde ser carregado ou
foi cancelado (também após SIGTERM, que cancela a execução); 2 erro de uso; 130 interrompido por
SIGINT (Ctrl-C cancela a execução; as saídas parciais são removidas).
</translation>
    </message>
    <message>
        <source>--existing takes skip, both or replace, not &quot;%1&quot;</source>
        <translation>--existing aceita skip, both ou replace, não “%1”</translation>
    </message>
</context>
<context>
    <name>CliProgressBar</name>
    <message>
        <source>%1%  %2/%3 done</source>
        <translation>%1%  %2/%3 concluídos</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>, %1 com falha</translation>
    </message>
    <message>
        <source>estimating time remaining</source>
        <translation>estimando o tempo restante</translation>
    </message>
</context>
<context>
    <name>CliRun</name>
    <message>
        <source>failed to load: %1: %2</source>
        <translation>falha ao carregar: %1: %2</translation>
    </message>
    <message>
        <source>would convert: %1 -&gt; %2
</source>
        <translation>seria convertido: %1 -&gt; %2
</translation>
    </message>
    <message numerus="yes">
        <source>%n files would be converted to %1 in %2 (each with the name it would get now; nothing was converted or created)
</source>
        <translation>
            <numerusform>%n arquivo seria convertido para %1 em %2 (com o nome que receberia agora; nada foi convertido ou criado)
</numerusform>
            <numerusform>%n arquivos seriam convertidos para %1 em %2 (cada um com o nome que receberia agora; nada foi convertido ou criado)
</numerusform>
        </translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>concluído: %1</translation>
    </message>
    <message>
        <source>done: %1 -&gt; %2</source>
        <translation>concluído: %1 -&gt; %2</translation>
    </message>
    <message>
        <source>cancelled: %1</source>
        <translation>cancelado: %1</translation>
    </message>
    <message>
        <source>failed: %1: %2</source>
        <translation>falhou: %1: %2</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, stopping the load</source>
        <translation>sonoria-cli: interrompido, parando o carregamento</translation>
    </message>
    <message>
        <source>sonoria-cli: interrupted, cancelling the conversions</source>
        <translation>sonoria-cli: interrompido, cancelando as conversões</translation>
    </message>
    <message>
        <source>tags: %1: %2</source>
        <translation>etiquetas: %1: %2</translation>
    </message>
    <message>
        <source>already converted: %1 -&gt; %2</source>
        <translation>já convertido: %1 -&gt; %2</translation>
    </message>
</context>
<context>
    <name>CliTagCheck</name>
    <message>
        <source>sonoria-cli: %1: no such file</source>
        <translation>sonoria-cli: %1: arquivo inexistente</translation>
    </message>
    <message>
        <source>kept     %1</source>
        <translation>mantido  %1</translation>
    </message>
    <message>
        <source>changed  %1: %2</source>
        <translation>alterado %1: %2</translation>
    </message>
    <message>
        <source>lost     %1: %2</source>
        <translation>perdido  %1: %2</translation>
    </message>
    <message>
        <source>The source carries no tags.</source>
        <translation>A origem não tem etiquetas.</translation>
    </message>
</context>
<context>
    <name>ConvertFailure</name>
    <message>
        <source>No space left on device</source>
        <translation>Não há espaço disponível no dispositivo</translation>
    </message>
    <message>
        <source>The disk quota is used up</source>
        <translation>A cota de disco se esgotou</translation>
    </message>
    <message>
        <source>The output folder is read-only</source>
        <translation>A pasta de saída é somente leitura</translation>
    </message>
    <message>
        <source>You have no permission to write into the output folder</source>
        <translation>Você não tem permissão para gravar na pasta de saída</translation>
    </message>
    <message>
        <source>The output folder&apos;s name is taken by a file</source>
        <translation>O nome da pasta de saída já é usado por um arquivo</translation>
    </message>
    <message>
        <source>The output folder does not exist</source>
        <translation>A pasta de saída não existe</translation>
    </message>
    <message>
        <source>The file is larger than the output folder&apos;s file system allows</source>
        <translation>O arquivo é maior do que o sistema de arquivos da pasta de saída permite</translation>
    </message>
    <message>
        <source>The output folder&apos;s device reported an input/output error</source>
        <translation>O dispositivo da pasta de saída relatou um erro de entrada/saída</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1</source>
        <translation>Não foi possível gravar na pasta de saída: %1</translation>
    </message>
    <message>
        <source>Permission denied: %1</source>
        <translation>Permissão negada: %1</translation>
    </message>
    <message>
        <source>The source gave no audio to convert</source>
        <translation>A origem não forneceu áudio para converter</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>Não foi possível gravar a saída: %1</translation>
    </message>
    <message>
        <source>ffmpeg could not decode the source: %1</source>
        <translation>O ffmpeg não conseguiu decodificar a origem: %1</translation>
    </message>
    <message>
        <source>ffmpeg was ended by signal %1 (%2)</source>
        <translation>O ffmpeg foi encerrado pelo sinal %1 (%2)</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1): %2</source>
        <translation>O ffmpeg falhou (status de saída %1): %2</translation>
    </message>
    <message>
        <source>ffmpeg failed (exit status %1)</source>
        <translation>O ffmpeg falhou (status de saída %1)</translation>
    </message>
    <message>
        <source>ffmpeg wrote no output file</source>
        <translation>O ffmpeg não gravou nenhum arquivo de saída</translation>
    </message>
    <message>
        <source>The output is empty</source>
        <translation>A saída está vazia</translation>
    </message>
    <message>
        <source>The output cannot be read back as audio</source>
        <translation>A saída não pode ser lida novamente como áudio</translation>
    </message>
    <message>
        <source>The output holds %1 audio instead of %2</source>
        <translation>A saída contém áudio %1 em vez de %2</translation>
    </message>
    <message>
        <source>The output is shorter than the source (%L1 s instead of %L2 s)</source>
        <translation>A saída é mais curta que a origem (%L1 s em vez de %L2 s)</translation>
    </message>
    <message>
        <source>The output is longer than the source (%L1 s instead of %L2 s)</source>
        <translation>A saída é mais longa que a origem (%L1 s em vez de %L2 s)</translation>
    </message>
    <message>
        <source>The tags could not be written into the output: %1</source>
        <translation>Não foi possível gravar as etiquetas na saída: %1</translation>
    </message>
    <message>
        <source>The output could not be given its name: %1</source>
        <translation>Não foi possível dar o nome à saída: %1</translation>
    </message>
    <message>
        <source>ffmpeg was not found</source>
        <translation>O ffmpeg não foi encontrado</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>não foi possível abrir o arquivo</translation>
    </message>
    <message>
        <source>The converter failed: %1</source>
        <translation>O conversor falhou: %1</translation>
    </message>
    <message numerus="yes">
        <source>The converter stopped responding for %n seconds</source>
        <translation>
            <numerusform>O conversor parou de responder por %n segundo</numerusform>
            <numerusform>O conversor parou de responder por %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (signal %1)</source>
        <translation>O conversor parou inesperadamente (sinal %1)</translation>
    </message>
    <message>
        <source>The converter stopped unexpectedly (exit status %1)</source>
        <translation>O conversor parou inesperadamente (status de saída %1)</translation>
    </message>
</context>
<context>
    <name>ConvertLoudness</name>
    <message>
        <source>The loudness of the source could not be measured: %1</source>
        <translation>Não foi possível medir a sonoridade da origem: %1</translation>
    </message>
</context>
<context>
    <name>ConvertNaming</name>
    <message>
        <source>Unknown Artist</source>
        <translation>Artista desconhecido</translation>
    </message>
    <message>
        <source>Unknown Album</source>
        <translation>Álbum desconhecido</translation>
    </message>
    <message>
        <source>Unknown Title</source>
        <translation>Título desconhecido</translation>
    </message>
    <message>
        <source>Unknown Track</source>
        <translation>Faixa desconhecida</translation>
    </message>
    <message>
        <source>Unknown Disc</source>
        <translation>Disco desconhecido</translation>
    </message>
    <message>
        <source>Unknown Year</source>
        <translation>Ano desconhecido</translation>
    </message>
    <message>
        <source>Unknown Genre</source>
        <translation>Gênero desconhecido</translation>
    </message>
</context>
<context>
    <name>HVLoudness</name>
    <message>
        <source>its loudness cannot be measured</source>
        <translation>sua sonoridade não pode ser medida</translation>
    </message>
</context>
<context>
    <name>HVSampleReader</name>
    <message>
        <source>the file cannot be opened</source>
        <translation>o arquivo não pode ser aberto</translation>
    </message>
    <message>
        <source>the file holds no audio</source>
        <translation>o arquivo não contém áudio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>seu áudio não pode ser decodificado</translation>
    </message>
    <message>
        <source>the measurement was cancelled</source>
        <translation>a medição foi cancelada</translation>
    </message>
</context>
<context>
    <name>LSMediaLoader</name>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>Não foi possível abrir o arquivo: %1</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>Isto é uma pasta, não um arquivo</translation>
    </message>
    <message>
        <source>The file holds no audio that can be read</source>
        <translation>O arquivo não contém áudio que possa ser lido</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet starts after the end of %2</source>
        <translation>A faixa %1 da folha CUE começa depois do fim de %2</translation>
    </message>
</context>
<context>
    <name>MTETagReport</name>
    <message>
        <source>%1 files cannot hold “%2”</source>
        <translation>Arquivos %1 não podem guardar “%2”</translation>
    </message>
    <message>
        <source>%1 files hold no tags</source>
        <translation>Arquivos %1 não têm etiquetas</translation>
    </message>
    <message>
        <source>%1 files keep it shortened to “%2”</source>
        <translation>Arquivos %1 o guardam encurtado como “%2”</translation>
    </message>
    <message>
        <source>written as “%1”</source>
        <translation>gravado como “%1”</translation>
    </message>
    <message>
        <source>the cover was too large and was scaled</source>
        <translation>a capa era grande demais e foi reduzida</translation>
    </message>
    <message>
        <source>the cover was stored in another picture format</source>
        <translation>a capa foi gravada em outro formato de imagem</translation>
    </message>
    <message>
        <source>%1 files keep only the first picture</source>
        <translation>Arquivos %1 guardam apenas a primeira imagem</translation>
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
        <translation>Artista do álbum</translation>
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
        <translation>Data</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupamento</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Gênero</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Número da faixa</translation>
    </message>
    <message>
        <source>Disc number</source>
        <translation>Número do disco</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Direitos autorais</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editora</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentário</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Capa</translation>
    </message>
</context>
<context>
    <name>SXAboutText</name>
    <message>
        <source>GNU General Public License, version 3 or later</source>
        <translation>Licença Pública Geral GNU, versão 3 ou posterior</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (compilação %2)</translation>
    </message>
    <message>
        <source>Converts audio and video files to audio formats.</source>
        <translation>Converte arquivos de áudio e vídeo para formatos de áudio.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licença: %1</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Bibliotecas em uso:</translation>
    </message>
</context>
<context>
    <name>SXAddFilesDialog</name>
    <message>
        <source>Add Files</source>
        <translation>Adicionar arquivos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Audio and video files (%1)</source>
        <translation>Arquivos de áudio e vídeo (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
</context>
<context>
    <name>SXAddRun</name>
    <message>
        <source>The file name is not valid UTF-8</source>
        <translation>O nome do arquivo não é UTF-8 válido</translation>
    </message>
    <message>
        <source>Loading Media Files...</source>
        <translation>Carregando arquivos de mídia…</translation>
    </message>
    <message>
        <source>Importing %1...</source>
        <translation>Importando %1…</translation>
    </message>
    <message numerus="yes">
        <source>Following file(s) load failed!</source>
        <translation>
            <numerusform>Não foi possível adicionar o seguinte arquivo:</numerusform>
            <numerusform>Não foi possível adicionar os seguintes arquivos:</numerusform>
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
        <translation>Solte uma imagem aqui</translation>
    </message>
</context>
<context>
    <name>SXCatalogueTexts</name>
    <message>
        <source>MPEG Layer III audio, playable everywhere</source>
        <translation>Áudio MPEG Layer III, reproduzível em qualquer lugar</translation>
    </message>
    <message>
        <source>Advanced Audio Coding in an MPEG-4 file: smaller than MP3 at the same quality</source>
        <translation>Advanced Audio Coding em um arquivo MPEG-4: menor que MP3 com a mesma qualidade</translation>
    </message>
    <message>
        <source>AAC ringtone for phones</source>
        <translation>Toque AAC para celulares</translation>
    </message>
    <message>
        <source>Free Lossless Audio Codec: exact copy of the sound, about half the size of WAV</source>
        <translation>Free Lossless Audio Codec: cópia exata do som, com cerca de metade do tamanho de WAV</translation>
    </message>
    <message>
        <source>Apple Lossless in an MPEG-4 file: exact copy of the sound</source>
        <translation>Apple Lossless em um arquivo MPEG-4: cópia exata do som</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in a WAVE file</source>
        <translation>PCM de 16 bits sem compressão em um arquivo WAVE</translation>
    </message>
    <message>
        <source>Uncompressed 16-bit PCM in an AIFF file</source>
        <translation>PCM de 16 bits sem compressão em um arquivo AIFF</translation>
    </message>
    <message>
        <source>Vorbis in an Ogg file: free and open lossy audio</source>
        <translation>Vorbis em um arquivo Ogg: áudio com perdas, livre e aberto</translation>
    </message>
    <message>
        <source>Opus in an Ogg file: the best quality at low bit rates</source>
        <translation>Opus em um arquivo Ogg: a melhor qualidade em taxas de bits baixas</translation>
    </message>
    <message>
        <source>Windows Media Audio 2</source>
        <translation>Windows Media Audio 2</translation>
    </message>
    <message>
        <source>Dolby Digital (AC-3) stream for video and home cinema</source>
        <translation>Fluxo Dolby Digital (AC-3) para vídeo e home theater</translation>
    </message>
    <message>
        <source>MPEG Layer II audio stream for broadcast and DVD</source>
        <translation>Fluxo de áudio MPEG Layer II para transmissão e DVD</translation>
    </message>
    <message>
        <source>WavPack lossless audio: exact copy of the sound, compact and fast</source>
        <translation>Áudio sem perdas WavPack: cópia exata do som, compacto e rápido</translation>
    </message>
    <message>
        <source>Use Source</source>
        <translation>Igual à origem</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sem perdas</translation>
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
        <translation>Toque</translation>
    </message>
</context>
<context>
    <name>SXCommandValidation</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stop convert all files</source>
        <translation>Parar a conversão de todos os arquivos</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Start convert all files</source>
        <translation>Converter todos os arquivos</translation>
    </message>
</context>
<context>
    <name>SXContainerTabBar</name>
    <message>
        <source>Containers</source>
        <translation>Contêineres</translation>
    </message>
    <message>
        <source>Add new format</source>
        <translation>Adicionar um novo formato</translation>
    </message>
</context>
<context>
    <name>SXContainerTabs</name>
    <message>
        <source>No Way!</source>
        <translation>Esta não</translation>
    </message>
    <message>
        <source>I refuse to close a tab named &quot;Drake&quot;</source>
        <translation>Uma aba chamada “Drake” não pode ser fechada.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>All formats are opened, you can set the paramas in the setting window.</source>
        <translation>Todos os formatos já têm uma aba. Você pode alterar as configurações de cada um no painel abaixo da lista.</translation>
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
        <translation>A folha CUE não pode ser lida</translation>
    </message>
    <message>
        <source>The cue sheet lists no tracks</source>
        <translation>A folha CUE não lista faixas</translation>
    </message>
    <message>
        <source>Track %1 of the cue sheet ends before it starts</source>
        <translation>A faixa %1 da folha CUE termina antes de começar</translation>
    </message>
    <message>
        <source>The cue sheet cannot be opened: %1</source>
        <translation>Não é possível abrir a folha CUE: %1</translation>
    </message>
    <message>
        <source>The audio file of the cue sheet is missing: %1</source>
        <translation>O arquivo de áudio da folha CUE não existe: %1</translation>
    </message>
</context>
<context>
    <name>SXFailureTexts</name>
    <message>
        <source>ffmpeg failed without giving a reason</source>
        <translation>O ffmpeg falhou sem informar o motivo</translation>
    </message>
    <message>
        <source>The file cannot be read as audio</source>
        <translation>O arquivo não pode ser lido como áudio</translation>
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
            <numerusform>Com falha: %n.</numerusform>
            <numerusform>Com falha: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not loaded: %n.</source>
        <translation>
            <numerusform>Não carregado: %n.</numerusform>
            <numerusform>Não carregados: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Falhou: %1</translation>
    </message>
    <message>
        <source>Tags not kept:</source>
        <translation>Etiquetas não mantidas:</translation>
    </message>
    <message>
        <source>Already converted: the output was there, whole and newer than this file</source>
        <translation>Já convertido: a saída já existia, completa e mais recente que este arquivo</translation>
    </message>
</context>
<context>
    <name>SXFileInfoText</name>
    <message>
        <source>Unknow</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constante</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>mod</source>
        <translation>Não conhecido</translation>
    </message>
    <message>
        <source>Failed because</source>
        <translation>Motivo da falha</translation>
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
        <translation>Arquivo de áudio %1</translation>
    </message>
    <message>
        <source>%1 video file</source>
        <translation>Arquivo de vídeo %1</translation>
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
        <translation>Codificado com</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>Bit rate mode</source>
        <translation>Modo da taxa de bits</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Channel count</source>
        <translation>Número de canais</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Tag format</source>
        <translation>Formato das etiquetas</translation>
    </message>
    <message>
        <source>Tag version</source>
        <translation>Versão das etiquetas</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Tags not kept</source>
        <translation>Etiquetas não mantidas</translation>
    </message>
</context>
<context>
    <name>SXFileInfoViewController</name>
    <message>
        <source>File Information</source>
        <translation>Informações do arquivo</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Mostrar no gerenciador de &amp;arquivos</translation>
    </message>
</context>
<context>
    <name>SXFormatChooserDialog</name>
    <message>
        <source>New Format</source>
        <translation>Novo formato</translation>
    </message>
    <message>
        <source>Add a container that converts to:</source>
        <translation>Adicionar um contêiner que converta para:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Taxa de bits:</translation>
    </message>
    <message>
        <source>&amp;Sample rate:</source>
        <translation>Taxa de a&amp;mostragem:</translation>
    </message>
    <message>
        <source>C&amp;hannels:</source>
        <translation>&amp;Canais:</translation>
    </message>
    <message>
        <source>Add to the music &amp;library</source>
        <translation>Adicionar à &amp;biblioteca de músicas</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Etiquetas Replay&amp;Gain:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativadas</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Faixa</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>&amp;Normalise loudness</source>
        <translation>Norma&amp;lizar volume</translation>
    </message>
</context>
<context>
    <name>SXHelpView</name>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
</context>
<context>
    <name>SXItemListView</name>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Drop audio files here, or press Add Files</source>
        <translation>Solte arquivos de áudio aqui ou clique em Adicionar arquivos</translation>
    </message>
</context>
<context>
    <name>SXItemRowLookRules</name>
    <message>
        <source>pending</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>sending</source>
        <translation>Enviando para a biblioteca de músicas</translation>
    </message>
    <message>
        <source>finish</source>
        <translation>Convertido</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>Convertendo</translation>
    </message>
    <message>
        <source>already converted</source>
        <translation>já convertido</translation>
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
        <translation>Progresso total</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Posição de reprodução</translation>
    </message>
    <message>
        <source>Resume (Shift+Space)</source>
        <translation>Continuar (Shift+Espaço)</translation>
    </message>
    <message>
        <source>Pause (Shift+Space)</source>
        <translation>Pausar (Shift+Espaço)</translation>
    </message>
</context>
<context>
    <name>SXListDrop</name>
    <message numerus="yes">
        <source>Following location(s) are not files on this computer and were not added!</source>
        <translation>
            <numerusform>Este local não é um arquivo deste computador e não foi adicionado:</numerusform>
            <numerusform>Estes locais não são arquivos deste computador e não foram adicionados:</numerusform>
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
        <translation>Progresso do carregamento</translation>
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
        <translation>&amp;Adicionar arquivos…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Limpar</translation>
    </message>
</context>
<context>
    <name>SXMenuHandler</name>
    <message>
        <source>&amp;New Container</source>
        <translation>&amp;Novo contêiner</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>New &amp;Format</source>
        <translation>Novo &amp;formato</translation>
    </message>
    <message>
        <source>&amp;Close Container</source>
        <translation>Fec&amp;har contêiner</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferências…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>&amp;Next File</source>
        <translation>Próxi&amp;mo arquivo</translation>
    </message>
    <message>
        <source>&amp;Previous File</source>
        <translation>Arqui&amp;vo anterior</translation>
    </message>
    <message>
        <source>Next &amp;Container</source>
        <translation>Próximo c&amp;ontêiner</translation>
    </message>
    <message>
        <source>Previous Conta&amp;iner</source>
        <translation>Contêiner anterior</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Editar eti&amp;quetas…</translation>
    </message>
    <message>
        <source>File Inf&amp;ormation</source>
        <translation>Informações &amp;do arquivo</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Pa&amp;rar</translation>
    </message>
    <message>
        <source>Sonoria &amp;Help</source>
        <translation>A&amp;juda do Sonoria</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Enviar comentários…</translation>
    </message>
    <message>
        <source>Sonoria &amp;Website</source>
        <translation>Página &amp;web do Sonoria</translation>
    </message>
    <message>
        <source>&amp;About Sonoria</source>
        <translation>Sobr&amp;e o Sonoria</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>Lis&amp;ta</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Converter</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
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
        <translation>&amp;Capa</translation>
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
        <translation>&amp;Próximo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Artwork size</source>
        <translation>Tamanho da capa</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;dicionar…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>Choose Artwork</source>
        <translation>Escolher capa</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imagens (%1)</translation>
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
        <translation>Artista do álbum</translation>
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
        <translation>Ano</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupamento</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Gênero</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Faixa</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editora</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentários</translation>
    </message>
    <message>
        <source>Sorry, this kind format CAN NOT support for editing for metadata</source>
        <translation>Este formato não comporta etiquetas, então elas não podem ser editadas.</translation>
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
        <translation>Pasta de saída</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Pasta de saída</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Procurar…</translation>
    </message>
    <message>
        <source>Put the files of each format in a folder of its own</source>
        <translation>Colocar os arquivos de cada formato em uma pasta própria</translation>
    </message>
    <message>
        <source>Open the folder when the conversion is over</source>
        <translation>Abrir a pasta quando a conversão terminar</translation>
    </message>
    <message>
        <source>Choose Output Folder</source>
        <translation>Escolher pasta de saída</translation>
    </message>
</context>
<context>
    <name>SXPreferences</name>
    <message>
        <source>Skip files already converted</source>
        <translation>Pular arquivos já convertidos</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Manter os dois</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
</context>
<context>
    <name>SXPreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Con&amp;versions at once:</source>
        <translation>Con&amp;versões simultâneas:</translation>
    </message>
    <message>
        <source>Music &amp;library format:</source>
        <translation>Formato da &amp;biblioteca de músicas:</translation>
    </message>
    <message>
        <source>&amp;Playlist name:</source>
        <translation>Nome da lista de re&amp;produção:</translation>
    </message>
    <message>
        <source>&amp;Send a start-up report and fetch feature switches</source>
        <translation>&amp;Enviar um relatório ao iniciar e obter a ativação de recursos</translation>
    </message>
    <message>
        <source>At each start Sonoria then tells %1 its version, the system&apos;s version and a random installation number, and asks which features to switch on.</source>
        <translation>A cada inicialização, o Sonoria informa a %1 a versão dele, a versão do sistema e um número de instalação aleatório, e pergunta quais recursos ativar.</translation>
    </message>
    <message>
        <source>&amp;Existing outputs:</source>
        <translation>&amp;Saídas existentes:</translation>
    </message>
    <message>
        <source>What a conversion does when a file with its output&apos;s name is already there: leave an earlier result that is whole and newer than its source, number the new file, or replace an output Sonoria wrote (never a file of yours).</source>
        <translation>O que uma conversão faz quando já existe um arquivo com o nome da sua saída: deixar um resultado anterior completo e mais recente que a origem, numerar o novo arquivo ou substituir uma saída gravada pelo Sonoria (nunca um arquivo seu).</translation>
    </message>
</context>
<context>
    <name>SXReadableNames</name>
    <message>
        <source>PCM %1-bit float</source>
        <translation>PCM de %1 bits em ponto flutuante</translation>
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
            <numerusform>%n canais</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorbis comments</source>
        <translation>Comentários Vorbis</translation>
    </message>
</context>
<context>
    <name>SXRowContextMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproduzir</translation>
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
        <translation>&amp;Informações do arquivo</translation>
    </message>
    <message>
        <source>Show in &amp;Files</source>
        <translation>Mostrar em &amp;Arquivos</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>&amp;Cancel This Conversion</source>
        <translation>Ca&amp;ncelar esta conversão</translation>
    </message>
    <message>
        <source>File actions</source>
        <translation>Ações do arquivo</translation>
    </message>
</context>
<context>
    <name>SXRunFeedback</name>
    <message>
        <source>Conversion finished</source>
        <translation>Conversão concluída</translation>
    </message>
</context>
<context>
    <name>SXRunSummary</name>
    <message numerus="yes">
        <source>%n files were already converted and were left as they were.</source>
        <translation>
            <numerusform>%n arquivo já estava convertido e foi deixado como estava.</numerusform>
            <numerusform>%n arquivos já estavam convertidos e foram deixados como estavam.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not keep all their tags.</source>
        <translation>
            <numerusform>%n arquivo não pôde manter todas as suas etiquetas.</numerusform>
            <numerusform>%n arquivos não puderam manter todas as suas etiquetas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SXSettingsPanel</name>
    <message>
        <source>&amp;Bit rate:</source>
        <translation>&amp;Taxa de bits:</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation>Taxa de a&amp;mostragem:</translation>
    </message>
    <message>
        <source>Cha&amp;nnels:</source>
        <translation>Ca&amp;nais:</translation>
    </message>
    <message>
        <source>Add to m&amp;usic library</source>
        <translation>Adicionar à &amp;biblioteca de músicas</translation>
    </message>
    <message>
        <source>&amp;Output Folder…</source>
        <translation>Pasta de &amp;saída…</translation>
    </message>
    <message>
        <source>Show in F&amp;iles</source>
        <translation>Mostrar em &amp;Arquivos</translation>
    </message>
    <message>
        <source>Output Folder of This Format</source>
        <translation>Pasta de saída deste formato</translation>
    </message>
    <message>
        <source>Replay&amp;Gain tags:</source>
        <translation>Etiquetas Replay&amp;Gain:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativadas</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Faixa</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Normali&amp;se loudness</source>
        <translation>Norma&amp;lizar volume</translation>
    </message>
    <message>
        <source>Converts at the measured ReplayGain (the album&apos;s in album mode), keeping the true peak at or below -1 dBTP; the output then gets no ReplayGain tags</source>
        <translation>Converte com o ReplayGain medido (o do álbum no modo álbum), mantendo o pico real em −1 dBTP ou menos; a saída então não recebe etiquetas ReplayGain</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Padrão de nome</translation>
    </message>
    <message>
        <source>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} and {filename}; &quot;/&quot; makes folders</source>
        <translation>{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, {disc}, {year}, {genre} e {filename}; “/” cria pastas</translation>
    </message>
    <message>
        <source>Name pa&amp;ttern:</source>
        <translation>&amp;Padrão de nome:</translation>
    </message>
    <message>
        <source>&amp;Keep the layout of added folders</source>
        <translation>Manter a estrutura das pastas a&amp;dicionadas</translation>
    </message>
    <message>
        <source>The first file becomes: %1</source>
        <translation>O primeiro arquivo vira: %1</translation>
    </message>
</context>
<context>
    <name>SXStateStripModel</name>
    <message>
        <source>Converting...</source>
        <translation>Convertendo…</translation>
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
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SXWindowToolbar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barra de ferramentas</translation>
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
        <translation>Informações</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
</context>
<context>
    <name>SXWorkspace</name>
    <message>
        <source>Warnning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Do you want to close all window without save information?</source>
        <translation>Fechar todas as janelas? Os arquivos das listas serão esquecidos.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Não foi possível reproduzir o arquivo</translation>
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
        <translation>Escolha a pasta de saída:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot write into the output folder &quot;%1&quot;: %2</source>
        <translation>Não foi possível gravar na pasta de saída “%1”: %2</translation>
    </message>
    <message>
        <source>The conversion did not start</source>
        <translation>A conversão não foi iniciada</translation>
    </message>
    <message numerus="yes">
        <source>%n files has been successfully converted.</source>
        <translation>
            <numerusform>%n arquivo foi convertido.</numerusform>
            <numerusform>%n arquivos foram convertidos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>except %n files failed,including:</source>
        <translation>
            <numerusform> %n arquivo falhou:</numerusform>
            <numerusform> %n arquivos falharam, incluindo:</numerusform>
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
            <numerusform>%n arquivo, %1 horas, %2 em %3</numerusform>
            <numerusform>%n arquivos, %1 horas, %2 em %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n containers</source>
        <translation>
            <numerusform>%n contêiner</numerusform>
            <numerusform>%n contêineres</numerusform>
        </translation>
    </message>
    <message>
        <source>Converter to %1</source>
        <translation>Converter para %1</translation>
    </message>
    <message>
        <source>item</source>
        <translation>item</translation>
    </message>
    <message>
        <source>items</source>
        <translation>itens</translation>
    </message>
    <message numerus="yes">
        <source>%n item</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n itens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n itens</numerusform>
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
        <translation>sonoria-cli: não foi possível monitorar interrupções</translation>
    </message>
    <message>
        <source>sonoria: cannot open a window (no display). Use sonoria-cli to convert from a terminal.</source>
        <translation>sonoria: não foi possível abrir uma janela (sem tela). Use o sonoria-cli para converter a partir de um terminal.</translation>
    </message>
    <message>
        <source>Converts audio and video files.</source>
        <translation>Converte arquivos de áudio e vídeo.</translation>
    </message>
    <message>
        <source>Mirror log lines to standard error.</source>
        <translation>Espelhar as linhas de log na saída de erro padrão.</translation>
    </message>
    <message>
        <source>Audio or video files and folders to add.</source>
        <translation>Arquivos e pastas de áudio ou vídeo a adicionar.</translation>
    </message>
</context>
</TS>
