#include "framework/MTETagReport.h"

#include "framework/MTEAudioFile.h"
#include "framework/MTETagCopy.h"
#include "framework/MTETagFamily.h"
#include "framework/MTETagFileKind.h"

#include <QFileInfo>
#include <QImage>

#include <taglib/fileref.h>

namespace {

const QString kPicture = QStringLiteral("PICTURE");

// The unified names of the fields the tag editor's record holds; with the well-known fields the
// copy carries over, they are what a user can expect to arrive.
const char* const kRecordFields[] = {"TITLE", "ARTIST",   "ALBUMARTIST", "COMPOSER",    "ALBUM",
                                     "DATE",  "GROUPING", "GENRE",       "TRACKNUMBER", "COPYRIGHT",
                                     "LABEL", "COMMENT",  "LYRICS"};

bool expected(const QString& field) {
    for (const char* record : kRecordFields) {
        if (field == QLatin1String(record))
            return true;
    }
    return MTETagCopy::carriesProperty(field);
}

struct Tags {
    bool readable = false; // the file's kind has tags the program can write
    QMap<QString, QString> fields;
    MTEArtworkList pictures;
};

Tags readTags(const QString& path) {
    Tags tags;
    const auto ref = MTETagFileKind::open(path, false);
    if (!ref)
        return tags;
    TagLib::File& file = *ref->file();
    const MTETagFamily& family = MTETagFileKind::familyOf(file);
    tags.readable = family.canWrite();
    for (const auto& [name, values] : family.properties(file)) {
        QString field = QString::fromStdString(name.to8Bit(true));
        // ID3v2 and ASF read their publisher as LABEL; Xiph comments and MP4 keep it under
        // PUBLISHER, which is where the copy writes it. One field either way.
        if (field == QLatin1String("PUBLISHER"))
            field = QStringLiteral("LABEL");
        if (expected(field) && !tags.fields.contains(field))
            tags.fields.insert(field, QString::fromStdString(values.toString("; ").to8Bit(true)));
    }
    tags.pictures = family.readArtwork(file);
    return tags;
}

// "WAV", "AC3": what people call a file by its extension.
QString kindName(const QString& path) {
    return QFileInfo(path).suffix().toUpper();
}

} // namespace

MTETagReport MTETagReport::compare(const QString& sourcePath, const QString& outputPath,
                                   const QMap<QString, QString>& asked,
                                   const std::optional<MTEArtworkList>& askedPictures) {
    Tags source = readTags(sourcePath);
    if (askedPictures)
        source.pictures = *askedPictures;
    for (auto value = asked.cbegin(); value != asked.cend(); ++value) {
        if (value.value().isEmpty())
            source.fields.remove(value.key());
        else
            source.fields.insert(value.key(), value.value());
    }
    const Tags output = readTags(outputPath);
    const QString kind = kindName(outputPath);
    MTETagReport report;
    const auto lost = [&](const QString& field) {
        return output.readable ? tr("%1 files cannot hold “%2”").arg(kind, fieldName(field))
                               : tr("%1 files hold no tags").arg(kind);
    };
    for (auto field = source.fields.cbegin(); field != source.fields.cend(); ++field) {
        const QString after = output.fields.value(field.key());
        Entry entry{field.key(), field.value(), after, {}};
        if (after == field.value()) {
            report.kept.append(entry);
        } else if (after.isEmpty()) {
            entry.reason = lost(field.key());
            report.dropped.append(entry);
        } else {
            entry.reason = field.value().startsWith(after)
                               ? tr("%1 files keep it shortened to “%2”").arg(kind, after)
                               : tr("written as “%1”").arg(after);
            report.changed.append(entry);
        }
    }
    if (!source.pictures.isEmpty()) {
        Entry entry{kPicture, {}, {}, {}};
        if (output.pictures.isEmpty()) {
            entry.reason = lost(kPicture);
            report.dropped.append(entry);
        } else if (output.pictures.first().data == source.pictures.first().data) {
            report.kept.append(entry);
        } else {
            const QSize before = QImage::fromData(source.pictures.first().data).size();
            const QSize after = QImage::fromData(output.pictures.first().data).size();
            entry.reason = after.isValid() && before.isValid() && after != before
                               ? tr("the cover was too large and was scaled")
                               : tr("the cover was stored in another picture format");
            report.changed.append(entry);
        }
        if (output.pictures.size() < source.pictures.size() && !output.pictures.isEmpty())
            report.dropped.append(
                {kPicture, {}, {}, tr("%1 files keep only the first picture").arg(kind)});
    }
    return report;
}

QMap<QString, QString> MTETagReport::recordOf(const MTEAudioFile& handle) {
    return {{QStringLiteral("TITLE"), handle.title()},
            {QStringLiteral("ARTIST"), handle.artist()},
            {QStringLiteral("ALBUMARTIST"), handle.albumArtist()},
            {QStringLiteral("COMPOSER"), handle.composer()},
            {QStringLiteral("ALBUM"), handle.album()},
            {QStringLiteral("DATE"), handle.date()},
            {QStringLiteral("GROUPING"), handle.grouping()},
            {QStringLiteral("GENRE"), handle.genre()},
            {QStringLiteral("TRACKNUMBER"), handle.track()},
            {QStringLiteral("COPYRIGHT"), handle.copyright()},
            {QStringLiteral("LABEL"), handle.publisher()},
            {QStringLiteral("COMMENT"), handle.comment()},
            {QStringLiteral("LYRICS"), handle.lyric()}};
}

QStringList MTETagReport::lines() const {
    QStringList lines;
    for (const Entry& entry : changed)
        lines.append(tr("%1: %2").arg(fieldName(entry.field), entry.reason));
    return lines + lostLines();
}

QStringList MTETagReport::lostLines() const {
    QStringList lines;
    for (const Entry& entry : dropped)
        lines.append(tr("%1: %2").arg(fieldName(entry.field), entry.reason));
    return lines;
}

QString MTETagReport::fieldName(const QString& field) {
    static const QMap<QString, const char*> names{
        {QStringLiteral("TITLE"), QT_TR_NOOP("Title")},
        {QStringLiteral("ARTIST"), QT_TR_NOOP("Artist")},
        {QStringLiteral("ALBUMARTIST"), QT_TR_NOOP("Album artist")},
        {QStringLiteral("COMPOSER"), QT_TR_NOOP("Composer")},
        {QStringLiteral("ALBUM"), QT_TR_NOOP("Album")},
        {QStringLiteral("DATE"), QT_TR_NOOP("Date")},
        {QStringLiteral("GROUPING"), QT_TR_NOOP("Grouping")},
        {QStringLiteral("GENRE"), QT_TR_NOOP("Genre")},
        {QStringLiteral("TRACKNUMBER"), QT_TR_NOOP("Track number")},
        {QStringLiteral("DISCNUMBER"), QT_TR_NOOP("Disc number")},
        {QStringLiteral("COPYRIGHT"), QT_TR_NOOP("Copyright")},
        {QStringLiteral("LABEL"), QT_TR_NOOP("Publisher")},
        {QStringLiteral("COMMENT"), QT_TR_NOOP("Comment")},
        {QStringLiteral("LYRICS"), QT_TR_NOOP("Lyrics")},
        {QStringLiteral("PICTURE"), QT_TR_NOOP("Cover art")},
    };
    const auto found = names.constFind(field);
    return found == names.cend() ? field : tr(*found);
}
