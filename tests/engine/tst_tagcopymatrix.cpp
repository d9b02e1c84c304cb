#include "ConvertTestSupport.h"
#include "NativeTags.h"

#include "framework/MTEAudioFileMgr.h"
#include "framework/MTETagReport.h"
#include "support/TestSupport.h"

#include <QHash>
#include <QMultiMap>
#include <QTemporaryDir>
#include <array>
#include <span>

#include <taglib/vorbisfile.h>
#include <taglib/wavfile.h>

// Every source kind converted to every output kind with tags: the output's tags, read back field
// by field with TagLib at the level of the kind's own frames, atoms and comments (so a field
// written twice shows), must be the source's fields, each once with the source's value, and
// nothing else but the encoder's name. Kinds without a native reader here (WAV, AIFF, WMA,
// WavPack) are read through TagLib's common property names, as other players read them.
using namespace ConvertTest;
using namespace NativeTags;

namespace {

TagLib::String tstring(const QString& value) {
    return TagLib::String(value.toStdString(), TagLib::String::UTF8);
}
TagLib::ByteVector bytes(const QByteArray& data) {
    return TagLib::ByteVector(data.constData(), unsigned(data.size()));
}

// The output families: ID3v2 frames, MP4 atoms, Xiph comments, and the rest (by property).
enum Family { ID3v2, MP4, Xiph, Other };

// One field of the source: the property a tagger writes, and where each family keeps it.
struct Field {
    const char* property;
    std::array<const char*, 3> keys; // by Family
    const char* value;
};
const Field kFields[] = {
    {"TITLE", {"TIT2", "©nam", "TITLE"}, "Título — 東京"},
    {"ARTIST", {"TPE1", "©ART", "ARTIST"}, "The Artist"},
    {"ALBUM", {"TALB", "©alb", "ALBUM"}, "The Album"},
    {"ALBUMARTIST", {"TPE2", "aART", "ALBUMARTIST"}, "Various Artists"},
    {"COMPOSER", {"TCOM", "©wrt", "COMPOSER"}, "Composer Ö"},
    {"DATE", {"TDRC", "©day", "DATE"}, "2021"},
    {"GENRE", {"TCON", "©gen", "GENRE"}, "Jazz"},
    {"TRACKNUMBER", {"TRCK", "trkn", "TRACKNUMBER"}, "3/12"},
    {"DISCNUMBER", {"TPOS", "disk", "DISCNUMBER"}, "1/2"},
    {"COPYRIGHT", {"TCOP", "cprt", "COPYRIGHT"}, "2021 Someone"},
    {"LABEL", {"TPUB", "----:com.apple.iTunes:PUBLISHER", "PUBLISHER"}, "Label Records"},
    {"COMMENT", {"COMM", "©cmt", "COMMENT"}, "a comment"},
    {"LYRICS", {"USLT", "©lyr", "LYRICS"}, "La la la\nsecond line ♪"},
    {"MUSICBRAINZ_ALBUMID",
     {"TXXX:MusicBrainz Album Id", "----:com.apple.iTunes:MusicBrainz Album Id",
      "MUSICBRAINZ_ALBUMID"},
     "9e6ef6b1-5f7c-4d4b-8a3e-2f1c0b3a9d11"},
    {"REPLAYGAIN_TRACK_GAIN",
     {"TXXX:REPLAYGAIN_TRACK_GAIN", "----:com.apple.iTunes:replaygain_track_gain",
      "REPLAYGAIN_TRACK_GAIN"},
     "-6.50 dB"},
};
// A field no player knows: it stays with the source.
const char* const kPrivateField = "PRIVATEFIELD";

// The encoder's name, which ffmpeg writes and which may stay, by Family.
const std::array<const char*, 3> kEncoderKeys{"TSSE", "©too", "ENCODER"};

// The family of each output extension that has one.
const QHash<QString, Family> kFamilies{{u"mp3"_s, ID3v2}, {u"m4a"_s, MP4},  {u"m4r"_s, MP4},
                                       {u"flac"_s, Xiph}, {u"ogg"_s, Xiph}, {u"opus"_s, Xiph}};

// What the output of a row must carry: the source's fields, none (a source without tags), or
// the source's fields as the tag editor left them.
enum class Content { Tagged, Untagged, Edited };

// The problems of an output of the Other family, "" when none: each source value must be there
// once (not at all for a source without tags, so what ffmpeg carried over went), in the tag or,
// in WAV files, in the RIFF INFO list beside it; the private field never.
QString propertyProblems(const QString& path, Content content) {
    const TagLib::FileRef ref(QFile::encodeName(path).constData());
    if (ref.isNull())
        return u"unreadable"_s;
    const TagLib::PropertyMap properties = ref.file()->properties();
    QStringList values, unsupported;
    for (const auto& [name, list] : properties) {
        for (const TagLib::String& value : list)
            values.append(text(value));
    }
    for (const TagLib::String& name : properties.unsupportedData())
        unsupported.append(text(name).toLower());
    if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(ref.file())) {
        for (const auto& [id, value] : wav->InfoTag()->fieldListMap())
            values.append(text(value));
    }
    QStringList problems;
    for (const Field& field : kFields) {
        const QString property = QString::fromLatin1(field.property);
        // ASF has no attribute of its own for ReplayGain: it travels under its own name.
        const auto count =
            values.count(QString::fromUtf8(field.value)) +
            (property.startsWith(u"REPLAYGAIN"_s) && unsupported.contains(property.toLower()));
        if (count != (content == Content::Tagged ? 1 : 0))
            problems.append(property + u" found "_s + QString::number(count) + u" times"_s);
    }
    if (values.contains(u"only the source knows"_s) || unsupported.contains(u"privatefield"_s))
        problems.append(QString::fromLatin1(kPrivateField));
    return problems.join(u", "_s);
}

// Tags a source the way taggers do: TagLib's property names, the picture in the kind's own
// picture field.
TagLib::PropertyMap sourceProperties() {
    TagLib::PropertyMap properties;
    for (const Field& field : kFields)
        properties.replace(field.property, tstring(QString::fromUtf8(field.value)));
    properties.replace(kPrivateField, TagLib::String("only the source knows"));
    return properties;
}

TagLib::ID3v2::AttachedPictureFrame* id3v2Picture(const QByteArray& cover) {
    auto* frame = new TagLib::ID3v2::AttachedPictureFrame;
    frame->setType(TagLib::ID3v2::AttachedPictureFrame::FrontCover);
    frame->setMimeType("image/png");
    frame->setPicture(bytes(cover));
    return frame;
}

TagLib::FLAC::Picture* xiphPicture(const QByteArray& cover) {
    auto* picture = new TagLib::FLAC::Picture;
    picture->setType(TagLib::FLAC::Picture::FrontCover);
    picture->setMimeType("image/png");
    picture->setData(bytes(cover));
    return picture;
}

bool tagSource(const QString& path, const QString& kind, const QByteArray& cover) {
    const QByteArray name = QFile::encodeName(path);
    if (kind.startsWith("MP3"_L1)) {
        TagLib::MPEG::File file(name.constData());
        file.ID3v2Tag(true)->setProperties(sourceProperties());
        file.ID3v2Tag()->addFrame(id3v2Picture(cover));
        const auto version = kind.endsWith("2.4"_L1) ? TagLib::ID3v2::v4 : TagLib::ID3v2::v3;
        return file.save(TagLib::MPEG::File::ID3v2, TagLib::File::StripOthers, version);
    }
    if (kind == "WAV"_L1) {
        TagLib::RIFF::WAV::File file(name.constData());
        file.ID3v2Tag()->setProperties(sourceProperties());
        file.ID3v2Tag()->addFrame(id3v2Picture(cover));
        return file.save(TagLib::RIFF::WAV::File::ID3v2, TagLib::File::StripNone);
    }
    if (kind == "M4A"_L1) {
        TagLib::MP4::File file(name.constData());
        // MP4 has no atom for the rest: free-form items, named as other taggers name them.
        for (const auto& [key, values] : file.tag()->setProperties(sourceProperties()))
            file.tag()->setItem("----:com.apple.iTunes:" + tstring(text(key).toLower()),
                                TagLib::MP4::Item(values));
        file.tag()->setItem("covr", TagLib::MP4::CoverArtList().append(TagLib::MP4::CoverArt(
                                        TagLib::MP4::CoverArt::PNG, bytes(cover))));
        return file.save();
    }
    if (kind == "FLAC"_L1) {
        TagLib::FLAC::File file(name.constData());
        file.xiphComment(true)->setProperties(sourceProperties());
        file.addPicture(xiphPicture(cover));
        return file.save();
    }
    if (kind == "Ogg Vorbis"_L1) {
        TagLib::Ogg::Vorbis::File file(name.constData());
        file.tag()->setProperties(sourceProperties());
        file.tag()->addPicture(xiphPicture(cover));
        return file.save();
    }
    return kind == "M4A without tags"_L1;
}

struct SourceKind {
    const char* name;
    const char* extension;
    const char* codec;
    Content content;
};
const SourceKind kSources[] = {
    {"MP3 ID3v2.3", "mp3", "libmp3lame", Content::Tagged},
    {"MP3 ID3v2.4", "mp3", "libmp3lame", Content::Tagged},
    {"FLAC", "flac", "flac", Content::Tagged},
    {"M4A", "m4a", "aac", Content::Tagged},
    {"Ogg Vorbis", "ogg", "libvorbis", Content::Tagged},
    {"WAV", "wav", "pcm_s16le", Content::Tagged},
    {"M4A without tags", "m4a", "aac", Content::Untagged},
};

struct OutputKind {
    const char* format;
    const char* codec;
    const char* extension;
};
const OutputKind kOutputs[] = {
    {"MP3", "libmp3lame", "mp3"},       {"AAC", "aac", "m4a"},
    {"Ringtone", "aac", "m4r"},         {"FLAC", "flac", "flac"},
    {"Ogg Vorbis", "libvorbis", "ogg"}, {"Opus", "libopus", "opus"},
    {"Apple Lossless", "alac", "m4a"},  {"WAV", "pcm_s16le", "wav"},
    {"AIFF", "pcm_s16be", "aiff"},      {"WMA", "wmav2", "wma"},
    {"WavPack", "wavpack", "wv"},
};

const char* const kEditedTitle = "Edited ✓";

QString row(const SourceKind& source, const OutputKind& output, Content content) {
    return QString::fromUtf8(source.name) +
           (content == Content::Edited ? u" edited"_s : QString()) + u" to "_s +
           QString::fromUtf8(output.format);
}

QStringList expectedLines(Family family, Content content) {
    QMultiMap<QString, QString> fields;
    for (const Field& field : content == Content::Untagged ? std::span<const Field>()
                                                           : std::span<const Field>(kFields)) {
        const QByteArray property(field.property);
        if (content == Content::Edited && property == "LYRICS")
            continue;
        const char* value =
            content == Content::Edited && property == "TITLE" ? kEditedTitle : field.value;
        fields.insert(QString::fromUtf8(field.keys[family]), QString::fromUtf8(value));
    }
    return lines(fields);
}

} // namespace

Q_DECLARE_METATYPE(Content)

class TagCopyMatrixTest : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    QByteArray m_cover;
    SXOperationQueue m_queue;
    QMap<QString, ConvertOperationPtr> m_runs; // by row name

    void start(const QString& source, const SourceKind& sourceKind, const OutputKind& output,
               Content content) {
        auto item = makeItem(source, 1.0, output.format, output.codec, output.extension);
        // Opus takes 48 kHz, not the 44.1 kHz of the sources.
        item.job.choices.sampleRate = QByteArray(output.extension) == "opus" ? 48000 : 44100;
        const auto handle = MTEAudioFileMgr::createAudioFileWithPath(source, true);
        if (handle && content == Content::Edited) {
            handle->setTitle(QString::fromUtf8(kEditedTitle));
            handle->setLyric(QString());
            handle->setAlbumImg({});
        }
        item->setMetHandler(handle);
        const QString name = row(sourceKind, output, content);
        auto operation = makeOperation(item, m_dir.filePath(u"out/"_s + name), nullptr);
        m_runs.insert(name, operation);
        m_queue.addOperation(operation);
    }

private Q_SLOTS:
    // All conversions at once, on one queue, as a run of the workspace would start them.
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        const QString cover = m_dir.filePath(u"cover.png"_s);
        QVERIFY(SonoriaTest::makeMedia(cover, u"color=c=red:s=16x16"_s, {u"-frames:v"_s, u"1"_s}));
        m_cover = SonoriaTest::readFile(cover);
        m_queue.setMaxConcurrentOperationCount(4);
        for (const SourceKind& kind : kSources) {
            const QString name = QString::fromUtf8(kind.name);
            const QString source =
                m_dir.filePath(name + u"/song."_s + QString::fromUtf8(kind.extension));
            QVERIFY(QDir().mkpath(QFileInfo(source).path()));
            QVERIFY(SonoriaTest::makeTone(source, 1.0, {u"-c:a"_s, kind.codec}));
            QVERIFY2(tagSource(source, name, m_cover), kind.name);
            for (const OutputKind& output : kOutputs)
                start(source, kind, output, kind.content);
            if (&kind == &kSources[0])
                start(source, kind, kOutputs[4], Content::Edited);
        }
        m_queue.waitUntilAllOperationsAreFinished();
    }

    void outputCarriesTheSourceFieldsOnce_data() {
        QTest::addColumn<QString>("row");
        QTest::addColumn<Content>("content");
        for (const SourceKind& source : kSources) {
            for (const OutputKind& output : kOutputs) {
                const QString name = row(source, output, source.content);
                QTest::newRow(qPrintable(name)) << name << source.content;
            }
        }
        const QString edited = row(kSources[0], kOutputs[4], Content::Edited);
        QTest::newRow(qPrintable(edited)) << edited << Content::Edited;
    }
    void outputCarriesTheSourceFieldsOnce() {
        QFETCH(QString, row);
        QFETCH(Content, content);
        const ConvertOperationPtr operation = m_runs.value(row);
        QVERIFY(operation);
        QCOMPARE(stateOf(operation->musicToConvert()), int(CvtStateFinished));
        // What the run tells the user of the tags must be what the disk shows below: every field
        // arrives as asked, so nothing is reported lost or changed (a removed cover included).
        const MTETagReport report = operation->musicToConvert()->tagReport();
        QVERIFY2(report.lines().isEmpty(), qPrintable(report.lines().join(u'\n')));
        QCOMPARE(report.kept.isEmpty(), content == Content::Untagged);
        for (const MTETagReport::Entry& entry : report.kept)
            QVERIFY(entry.field != u"TITLE"_s ||
                    entry.after == QString::fromUtf8(content == Content::Edited
                                                         ? kEditedTitle
                                                         : kFields[0].value));
        const QString output = operation->strOutFilePath();
        const Family family = kFamilies.value(QFileInfo(output).suffix(), Other);
        const QList<QByteArray> cover =
            content == Content::Tagged ? QList<QByteArray>{m_cover} : QList<QByteArray>();
        if (family == Other) {
            const QString problems = propertyProblems(output, content);
            QVERIFY2(problems.isEmpty(), qPrintable(problems));
            QList<QByteArray> pictures;
            for (const MTEArtwork& picture :
                 MTEAudioFileMgr::createAudioFileWithPath(output, true)->albumImg())
                pictures.append(picture.data);
            QCOMPARE(pictures, cover);
            return;
        }
        Tags tags = NativeTags::read(output);
        QVERIFY(tags.fields.count(QString::fromUtf8(kEncoderKeys[family])) <= 1);
        tags.fields.remove(QString::fromUtf8(kEncoderKeys[family]));
        QCOMPARE(lines(tags.fields), expectedLines(family, content));
        QCOMPARE(tags.pictures, cover);
    }
};

SONORIA_TEST_MAIN(TagCopyMatrixTest)
#include "tst_tagcopymatrix.moc"
