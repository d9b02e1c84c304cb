#include "Shared/SXLog.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {
const char* const kUsage = R"(Usage: sonoria-cli [options] FILE|FOLDER...
Convert audio and video files to audio formats.

  -f, --format NAME       output format, a catalogue name (default "MP3")
  -o, --output DIR        output folder (default: the stored last folder, else Music/Sonoria)
      --no-organize       write into DIR itself instead of DIR/<format name>
  -j, --jobs N            simultaneous conversions (default: the stored maximum, 5)
  -b, --bitrate V  -r, --samplerate V  -c, --channels V   one of the format's offered choices
      --library           deliver finished files to the music library and playlist
      --list-formats      print the catalogue: names, extensions, choices and defaults
      --info FILE         print what the file information panel shows for a file
  -n, --dry-run           load and probe, print what would be converted and where, convert nothing
  -v, --verbose           mirror the log lines to standard error
  -h, --help              show this text
)";
} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    SXLog::install(SXLog::verboseFromEnvironment());
    QTextStream(stdout) << kUsage;
    return 0;
}
