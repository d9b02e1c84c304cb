#include "framework/SXCueSheet.h"

#include "base/SXSafeName.h"

#include "framework/MTETagFileKind.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QStringDecoder>

#include <algorithm>
#include <iconv.h>
#include <libcue.h>
#include <memory>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>
#include <uchardet/uchardet.h>

namespace {

// libcue's parser keeps its state in globals: one sheet at a time in the whole process.
QMutex g_parserLock;

// Audio kinds a sheet's FILE is looked for under when the named one is gone.
const char* const kAudioExtensions[] = {"flac", "wav", "ape", "wv",   "tta", "aiff",
                                        "aif",  "m4a", "ogg", "opus", "mp3", "wma"};

QString fromCue(const char* text) {
    return text ? QString::fromUtf8(text).trimmed() : QString();
}

// An 8-bit text converted to UTF-8 by iconv; empty when the encoding is unknown or the bytes do
// not fit it.
QString convertWithIconv(const QByteArray& bytes, const char* encoding) {
    const iconv_t converter = ::iconv_open("UTF-8", encoding);
    if (converter == reinterpret_cast<iconv_t>(-1))
        return {};
    QByteArray input = bytes;
    QByteArray output(bytes.size() * 4 + 16, '\0');
    char* in = input.data();
    size_t inLeft = size_t(input.size());
    char* out = output.data();
    size_t outLeft = size_t(output.size());
    const size_t done = ::iconv(converter, &in, &inLeft, &out, &outLeft);
    ::iconv_close(converter);
    if (done == size_t(-1))
        return {};
    output.truncate(output.size() - qsizetype(outLeft));
    return QString::fromUtf8(output);
}

QString detectedEncoding(const QByteArray& bytes) {
    const uchardet_t detector = ::uchardet_new();
    if (!detector)
        return {};
    QString name;
    if (::uchardet_handle_data(detector, bytes.constData(), size_t(bytes.size())) == 0) {
        ::uchardet_data_end(detector);
        name = QString::fromLatin1(::uchardet_get_charset(detector));
    }
    ::uchardet_delete(detector);
    return name;
}

// The FILE of a sheet as a path: written on another system it may use backslashes and a
// folder of that system, of which only the name is any use here.
QString resolveFile(const QString& named, const QString& sheetPath) {
    QString name = named;
    if (name.contains(QLatin1Char('\\')))
        name = name.mid(name.lastIndexOf(QLatin1Char('\\')) + 1);
    if (QDir::isAbsolutePath(name))
        return QDir::cleanPath(name);
    return QDir::cleanPath(QFileInfo(sheetPath).absolutePath() + QLatin1Char('/') + name);
}

// The named file, else the first file beside it with its base name and an audio extension.
QString existingAudio(const QString& path) {
    if (QFileInfo(path).isFile())
        return path;
    const QFileInfo named(path);
    for (const char* extension : kAudioExtensions) {
        const QString candidate = named.absolutePath() + QLatin1Char('/') +
                                  named.completeBaseName() + QLatin1Char('.') +
                                  QLatin1String(extension);
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return {};
}

struct CdDeleter {
    void operator()(Cd* cd) const { ::cd_delete(cd); }
};

} // namespace

qint64 SXCueTrack::startSample(double sampleRate) const {
    return qint64(startFrame * qint64(sampleRate) / kFramesPerSecond);
}

qint64 SXCueTrack::endSample(double sampleRate) const {
    return endFrame < 0 ? -1 : qint64(endFrame * qint64(sampleRate) / kFramesPerSecond);
}

double SXCueTrack::seconds(double fileSeconds) const {
    const double start = double(startFrame) / kFramesPerSecond;
    const double end = endFrame < 0 ? fileSeconds : double(endFrame) / kFramesPerSecond;
    return end > start ? end - start : 0.0;
}

QString SXCueTrack::identity() const {
    return sheet + QStringLiteral("#%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString SXCueTrack::outputName() const {
    const QString numbered = QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    return SXSafeName::component(title.isEmpty() ? numbered : numbered + QLatin1Char(' ') + title);
}

QString SXCueSheet::decode(const QByteArray& bytes) {
    QByteArray text = bytes;
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString decoded = utf8.decode(text);
    if (!utf8.hasError())
        return decoded;
    // A sheet holds few letters beyond ASCII, and on so few uchardet takes Windows-1252 for a
    // Mac encoding; sheets in those come from Windows rippers, Mac ones write UTF-8. A guess
    // that gives C1 control characters is no text either.
    const QString encoding = detectedEncoding(text);
    if (!encoding.isEmpty() && !encoding.startsWith(QLatin1String("MAC"), Qt::CaseInsensitive) &&
        encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive)) {
        const QString converted = convertWithIconv(text, encoding.toLatin1().constData());
        const bool controls = std::any_of(converted.cbegin(), converted.cend(), [](QChar c) {
            return c.unicode() >= 0x80 && c.unicode() < 0xA0;
        });
        if (!converted.isEmpty() && !controls)
            return converted;
    }
    return convertWithIconv(text, "WINDOWS-1252");
}

SXCueSheetResult SXCueSheet::parse(const QString& text, const QString& sheetPath,
                                   const QString& audioPath) {
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    // libcue refuses a last line without its line end.
    if (!lines.endsWith(u'\n'))
        lines += u'\n';
    const QByteArray utf8 = lines.toUtf8();

    SXCueSheetResult result;
    QMutexLocker locker(&g_parserLock);
    const std::unique_ptr<Cd, CdDeleter> cd(::cue_parse_string(utf8.constData()));
    if (!cd) {
        result.error =
            QCoreApplication::translate("SXCueSheet", "The cue sheet cannot be read as one");
        return result;
    }
    const int count = ::cd_get_ntrack(cd.get());
    if (count <= 0) {
        result.error = QCoreApplication::translate("SXCueSheet", "The cue sheet lists no tracks");
        return result;
    }
    Cdtext* const discText = ::cd_get_cdtext(cd.get());
    Rem* const discRem = ::cd_get_rem(cd.get());
    const QString album = fromCue(::cdtext_get(PTI_TITLE, discText));
    const QString albumPerformer = fromCue(::cdtext_get(PTI_PERFORMER, discText));
    QList<const Track*> tracks;
    for (int i = 1; i <= count; ++i)
        tracks.append(::cd_get_track(cd.get(), i));
    for (int i = 0; i < count; ++i) {
        const Track* track = tracks.at(i);
        Cdtext* const own = ::track_get_cdtext(track);
        SXCueTrack entry;
        entry.number = i + 1;
        entry.total = count;
        entry.title = fromCue(::cdtext_get(PTI_TITLE, own));
        entry.performer = fromCue(::cdtext_get(PTI_PERFORMER, own));
        if (entry.performer.isEmpty())
            entry.performer = albumPerformer;
        entry.album = album;
        entry.albumPerformer = albumPerformer;
        entry.date = fromCue(::rem_get(REM_DATE, ::track_get_rem(track)));
        if (entry.date.isEmpty())
            entry.date = fromCue(::rem_get(REM_DATE, discRem));
        entry.genre = fromCue(::cdtext_get(PTI_GENRE, own));
        if (entry.genre.isEmpty())
            entry.genre = fromCue(::cdtext_get(PTI_GENRE, discText));
        const QString named = fromCue(::track_get_filename(track));
        entry.file = audioPath.isEmpty() ? resolveFile(named, sheetPath) : audioPath;
        entry.sheet = sheetPath;
        const long index1 = ::track_get_index(track, 1);
        entry.startFrame = index1 >= 0 ? index1 : ::track_get_start(track);
        if (i + 1 < count) {
            const Track* next = tracks.at(i + 1);
            const long nextIndex1 = ::track_get_index(next, 1);
            if (fromCue(::track_get_filename(next)) == named)
                entry.endFrame = nextIndex1 >= 0 ? nextIndex1 : ::track_get_start(next);
        }
        if (entry.endFrame >= 0 && entry.endFrame <= entry.startFrame) {
            result.error = QCoreApplication::translate(
                               "SXCueSheet", "Track %1 of the cue sheet ends before it starts")
                               .arg(entry.number);
            result.tracks.clear();
            return result;
        }
        result.tracks.append(entry);
    }
    return result;
}

SXCueSheetResult SXCueSheet::read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        SXCueSheetResult failed;
        failed.error =
            QCoreApplication::translate("SXCueSheet", "The cue sheet cannot be opened: %1")
                .arg(file.errorString());
        return failed;
    }
    SXCueSheetResult result = parse(decode(file.readAll()), path);
    for (SXCueTrack& track : result.tracks) {
        const QString found = existingAudio(track.file);
        if (found.isEmpty()) {
            const QString missing = QFileInfo(track.file).fileName();
            result.tracks.clear();
            result.error = QCoreApplication::translate(
                               "SXCueSheet", "The audio file of the cue sheet is missing: %1")
                               .arg(missing);
            return result;
        }
        track.file = found;
    }
    return result;
}

SXCueSheetResult SXCueSheet::embedded(const QString& audioPath) {
    const QString extension = QFileInfo(audioPath).suffix().toLower();
    if (extension != QLatin1String("flac") && extension != QLatin1String("wv") &&
        extension != QLatin1String("ape"))
        return {};
    const QByteArray encoded = QFile::encodeName(audioPath);
    MTETagFileKind::prepareForThreads();
    TagLib::FileRef ref(encoded.constData(), false);
    if (ref.isNull())
        return {};
    const TagLib::PropertyMap properties = ref.file()->properties();
    const auto found = properties.find("CUESHEET");
    if (found == properties.end() || found->second.isEmpty())
        return {};
    const TagLib::String& sheet = found->second.front();
    SXCueSheetResult result = parse(QString::fromUtf8(sheet.toCString(true)), audioPath, audioPath);
    // A sheet that does not parse leaves the file as what it is, one piece of audio.
    if (!result.error.isEmpty())
        return {};
    return result;
}
