#include "framework/MTETagFamilyXiph.h"

#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/vorbisfile.h>
#include <taglib/xiphcomment.h>

#include <QMap>
#include <optional>

namespace {

constexpr MTEKeyTable kKeys{"TITLE",       "ARTIST",
                            "ALBUMARTIST", "COMPOSER",
                            "ALBUM",       "DATE",
                            "GENRE",       "TRACKNUMBER",
                            "COPYRIGHT",   "PUBLISHER",
                            "COMMENT",     "LYRICS",
                            "GROUPING",    "METADATA_BLOCK_PICTURE"};
static_assert(mteKeyTableComplete(kKeys));

// The encoder ffmpeg names in every file it writes.
const TagLib::String kEncoderField("ENCODER");

// Names other taggers use for the same field, read when the file lacks ours. Writing a field
// clears them too, so an old value cannot shadow the new one in another player.
QStringList alternativeNames(MTETagField field) {
    switch (field) {
    case MTETagField::AlbumArtist:
        return {QStringLiteral("ALBUM ARTIST")};
    case MTETagField::Publisher:
        return {QStringLiteral("ORGANIZATION"), QStringLiteral("LABEL")};
    case MTETagField::Comment:
        return {QStringLiteral("DESCRIPTION")};
    case MTETagField::Lyric:
        return {QStringLiteral("UNSYNCEDLYRICS")};
    default:
        return {};
    }
}

TagLib::List<TagLib::FLAC::Picture*> picturesOf(TagLib::File& file,
                                                TagLib::Ogg::XiphComment* comment) {
    if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(&file))
        return flac->pictureList();
    return comment ? comment->pictureList() : TagLib::List<TagLib::FLAC::Picture*>();
}

// The fields of a FLAC file's comment block, read raw, by upper-case name. TagLib ends a value
// at its first NUL ("before\0after" reads "before") although the block stores each field whole
// with its length. A NUL becomes a space, as in toQString(). nullopt when the block cannot be
// read this way (then TagLib's values stand).
using RawFields = QMap<QString, QStringList>;
// The comment block of a FLAC file (metadata block type 4), empty without one.
TagLib::ByteVector flacCommentBlock(TagLib::FLAC::File& flac) {
    const long long start = flac.find("fLaC");
    for (long long position = start + 4; start >= 0;) {
        flac.seek(position);
        const TagLib::ByteVector header = flac.readBlock(4);
        if (header.size() < 4)
            break;
        const unsigned int length = header.toUInt(1, 3, true);
        if ((header[0] & 0x7f) == 4)
            return flac.readBlock(length);
        if (header[0] & 0x80)
            break;
        position += 4 + length;
    }
    return {};
}

std::optional<RawFields> rawFlacFields(TagLib::File& file) {
    auto* flac = dynamic_cast<TagLib::FLAC::File*>(&file);
    const TagLib::ByteVector block = flac ? flacCommentBlock(*flac) : TagLib::ByteVector();
    const auto fits = [&block](unsigned int at, unsigned int size) {
        return at <= block.size() && size <= block.size() - at;
    };
    unsigned int at = 0;
    if (!fits(at, 4) || !fits(4, block.toUInt(0U, false)))
        return std::nullopt;
    at = 4 + block.toUInt(0U, false);
    if (!fits(at, 4))
        return std::nullopt;
    const unsigned int count = block.toUInt(at, false);
    at += 4;
    RawFields fields;
    for (unsigned int i = 0; i < count && fits(at, 4); ++i) {
        const unsigned int size = block.toUInt(at, false);
        if (!fits(at + 4, size))
            return std::nullopt;
        const QByteArray field(block.data() + at + 4, qsizetype(size));
        at += 4 + size;
        const qsizetype equals = field.indexOf('=');
        if (equals > 0)
            fields[QString::fromUtf8(field.left(equals)).toUpper()].append(
                QString::fromUtf8(field.mid(equals + 1)).replace(QChar(u'\0'), QLatin1Char(' ')));
    }
    return fields;
}

} // namespace

QString MTETagFamilyXiph::name() const {
    return QStringLiteral("Xiph");
}

const MTEKeyTable& MTETagFamilyXiph::keyTable() const {
    return kKeys;
}

TagLib::Ogg::XiphComment* MTETagFamilyXiph::commentOf(TagLib::File& file) {
    if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(&file))
        return flac->xiphComment(true);
    if (auto* vorbis = dynamic_cast<TagLib::Ogg::Vorbis::File*>(&file))
        return vorbis->tag();
    if (auto* opus = dynamic_cast<TagLib::Ogg::Opus::File*>(&file))
        return opus->tag();
    if (auto* speex = dynamic_cast<TagLib::Ogg::Speex::File*>(&file))
        return speex->tag();
    if (auto* oggFlac = dynamic_cast<TagLib::Ogg::FLAC::File*>(&file))
        return oggFlac->tag();
    return nullptr;
}

QString MTETagFamilyXiph::readField(TagLib::File& file, MTETagField field) const {
    TagLib::Ogg::XiphComment* comment = commentOf(file);
    if (!comment)
        return {};
    const TagLib::Ogg::FieldListMap& fields = comment->fieldListMap();
    const QStringList names = QStringList{ownKey(field)} + alternativeNames(field);
    for (const QString& name : names) {
        const TagLib::StringList values = fields.value(toTString(name));
        if (values.isEmpty())
            continue;
        QStringList texts;
        for (const TagLib::String& value : values)
            texts.append(toQString(value));
        const std::optional<RawFields> raw = rawFlacFields(file);
        const QStringList whole = raw ? raw->value(name.toUpper()) : QStringList();
        return joined(whole.size() == texts.size() ? whole : texts);
    }
    return {};
}

TagLib::PropertyMap MTETagFamilyXiph::properties(TagLib::File& file) const {
    TagLib::PropertyMap result = MTETagFamily::properties(file);
    const std::optional<RawFields> raw = rawFlacFields(file);
    if (!raw)
        return result;
    for (auto& [name, values] : result) {
        const QStringList whole = raw->value(toQString(name).toUpper());
        if (whole.size() != int(values.size()))
            continue;
        values.clear();
        for (const QString& value : whole)
            values.append(toTString(value));
    }
    return result;
}

void MTETagFamilyXiph::writeField(TagLib::File& file, MTETagField field,
                                  const QString& value) const {
    TagLib::Ogg::XiphComment* comment = commentOf(file);
    if (!comment)
        return;
    for (const QString& name : alternativeNames(field))
        comment->removeFields(toTString(name));
    const TagLib::String key = toTString(ownKey(field));
    comment->removeFields(key);
    if (!value.isEmpty())
        comment->addField(key, toTString(value));
}

bool MTETagFamilyXiph::hasArtwork(TagLib::File& file) const {
    return !picturesOf(file, commentOf(file)).isEmpty();
}

MTEArtworkList MTETagFamilyXiph::readArtwork(TagLib::File& file) const {
    MTEArtworkList images;
    for (const TagLib::FLAC::Picture* picture : picturesOf(file, commentOf(file))) {
        const QByteArray data = toQByteArray(picture->data());
        images.append({data, mimeTypeOf(data, toQString(picture->mimeType()))});
    }
    return images;
}

void MTETagFamilyXiph::writeArtwork(TagLib::File& file, const MTEArtworkList& images) const {
    auto* flac = dynamic_cast<TagLib::FLAC::File*>(&file);
    TagLib::Ogg::XiphComment* comment = commentOf(file);
    if (flac)
        flac->removePictures();
    else if (comment)
        comment->removeAllPictures();
    else
        return;
    for (qsizetype i = 0; i < images.size(); ++i) {
        // Both owners below take the picture over.
        auto* picture = new TagLib::FLAC::Picture;
        picture->setType(i == 0 ? TagLib::FLAC::Picture::FrontCover : TagLib::FLAC::Picture::Other);
        picture->setMimeType(toTString(mimeTypeOf(images[i].data, images[i].mimeType)));
        picture->setData(toByteVector(images[i].data));
        if (flac)
            flac->addPicture(picture);
        else
            comment->addPicture(picture);
    }
}

QString MTETagFamilyXiph::tagVersion(TagLib::File& file) const {
    return commentOf(file) ? QStringLiteral("Vorbis Comment") : QString();
}

TagLib::PropertyMap MTETagFamilyXiph::addProperties(TagLib::File& file,
                                                    const TagLib::PropertyMap& properties) const {
    return addPropertiesTo(commentOf(file), properties);
}

void MTETagFamilyXiph::removeAllButEncoder(TagLib::File& file) const {
    if (TagLib::Ogg::XiphComment* comment = commentOf(file)) {
        const TagLib::Ogg::FieldListMap fields = comment->fieldListMap();
        for (const auto& [name, values] : fields) {
            if (name != kEncoderField)
                comment->removeFields(name);
        }
        comment->removeAllPictures();
    }
    if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(&file))
        flac->removePictures();
}
