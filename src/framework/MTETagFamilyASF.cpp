#include "framework/MTETagFamilyASF.h"

#include <taglib/asfattribute.h>
#include <taglib/asffile.h>
#include <taglib/asfpicture.h>
#include <taglib/asftag.h>

namespace {

constexpr MTEKeyTable kKeys{"Title",
                            "Author",
                            "WM/AlbumArtist",
                            "WM/Composer",
                            "WM/AlbumTitle",
                            "WM/Year",
                            "WM/Genre",
                            "WM/TrackNumber",
                            "Copyright",
                            "WM/Publisher",
                            "Description",
                            "WM/Lyrics",
                            "WM/ContentGroupDescription",
                            "WM/Picture"};
static_assert(mteKeyTableComplete(kKeys));

// The encoder ffmpeg names in every file it writes.
const TagLib::String kEncoderAttribute("WM/EncodingSettings");

QString nonEmpty(const QString& text) {
    return text.isEmpty() ? QString() : text;
}

} // namespace

QString MTETagFamilyASF::name() const {
    return QStringLiteral("ASF");
}

const MTEKeyTable& MTETagFamilyASF::keyTable() const {
    return kKeys;
}

TagLib::ASF::Tag* MTETagFamilyASF::tagOf(TagLib::File& file) {
    auto* asf = dynamic_cast<TagLib::ASF::File*>(&file);
    return asf ? asf->tag() : nullptr;
}

QString MTETagFamilyASF::readField(TagLib::File& file, MTETagField field) const {
    const TagLib::ASF::Tag* tag = tagOf(file);
    if (!tag)
        return {};
    switch (field) {
    case MTETagField::Title:
        return nonEmpty(toQString(tag->title()));
    case MTETagField::Artist:
        return nonEmpty(toQString(tag->artist()));
    case MTETagField::Copyright:
        return nonEmpty(toQString(tag->copyright()));
    case MTETagField::Comment:
        return nonEmpty(toQString(tag->comment()));
    default:
        break;
    }
    const TagLib::ASF::AttributeList attributes =
        tag->attributeListMap().value(toTString(ownKey(field)));
    if (attributes.isEmpty())
        return {};
    QStringList values;
    for (const TagLib::ASF::Attribute& attribute : attributes) {
        // Track numbers are often stored as a number rather than as text.
        if (attribute.type() == TagLib::ASF::Attribute::DWordType)
            values.append(QString::number(attribute.toUInt()));
        else
            values.append(toQString(attribute.toString()));
    }
    return joined(values);
}

void MTETagFamilyASF::writeField(TagLib::File& file, MTETagField field,
                                 const QString& value) const {
    TagLib::ASF::Tag* tag = tagOf(file);
    if (!tag)
        return;
    const TagLib::String text = toTString(value);
    switch (field) {
    case MTETagField::Title:
        tag->setTitle(text);
        return;
    case MTETagField::Artist:
        tag->setArtist(text);
        return;
    case MTETagField::Copyright:
        tag->setCopyright(text);
        return;
    case MTETagField::Comment:
        tag->setComment(text);
        return;
    default:
        break;
    }
    const TagLib::String key = toTString(ownKey(field));
    tag->removeItem(key);
    if (!value.isEmpty())
        tag->setAttribute(key, TagLib::ASF::Attribute(text));
}

bool MTETagFamilyASF::hasArtwork(TagLib::File& file) const {
    const TagLib::ASF::Tag* tag = tagOf(file);
    return tag && tag->contains(toTString(ownKey(MTETagField::AlbumImg)));
}

MTEArtworkList MTETagFamilyASF::readArtwork(TagLib::File& file) const {
    MTEArtworkList images;
    const TagLib::ASF::Tag* tag = tagOf(file);
    if (!tag)
        return images;
    const TagLib::ASF::AttributeList attributes =
        tag->attributeListMap().value(toTString(ownKey(MTETagField::AlbumImg)));
    for (const TagLib::ASF::Attribute& attribute : attributes) {
        const TagLib::ASF::Picture picture = attribute.toPicture();
        if (!picture.isValid())
            continue;
        const QByteArray data = toQByteArray(picture.picture());
        const MTEArtwork image{data, mimeTypeOf(data, toQString(picture.mimeType()))};
        // TagLib may store attributes in another order than they were added; the front
        // cover leads, as it did when written.
        if (picture.type() == TagLib::ASF::Picture::FrontCover)
            images.prepend(image);
        else
            images.append(image);
    }
    return images;
}

void MTETagFamilyASF::writeArtwork(TagLib::File& file, const MTEArtworkList& images) const {
    TagLib::ASF::Tag* tag = tagOf(file);
    if (!tag)
        return;
    const TagLib::String key = toTString(ownKey(MTETagField::AlbumImg));
    tag->removeItem(key);
    for (qsizetype i = 0; i < images.size(); ++i) {
        TagLib::ASF::Picture picture;
        picture.setType(i == 0 ? TagLib::ASF::Picture::FrontCover : TagLib::ASF::Picture::Other);
        picture.setMimeType(toTString(mimeTypeOf(images[i].data, images[i].mimeType)));
        picture.setPicture(toByteVector(images[i].data));
        tag->addAttribute(key, TagLib::ASF::Attribute(picture));
    }
}

QString MTETagFamilyASF::tagVersion(TagLib::File& file) const {
    return tagOf(file) ? QStringLiteral("ASF") : QString();
}

TagLib::PropertyMap MTETagFamilyASF::properties(TagLib::File& file) const {
    TagLib::PropertyMap result = MTETagFamily::properties(file);
    TagLib::ASF::Tag* tag = tagOf(file);
    if (!tag)
        return result;
    for (const TagLib::String& name : result.unsupportedData()) {
        TagLib::StringList values;
        for (const TagLib::ASF::Attribute& attribute : tag->attribute(name)) {
            if (attribute.type() == TagLib::ASF::Attribute::UnicodeType)
                values.append(attribute.toString());
        }
        if (!values.isEmpty() && !result.contains(name.upper()))
            result.insert(name.upper(), values);
    }
    return result;
}

TagLib::PropertyMap MTETagFamilyASF::addProperties(TagLib::File& file,
                                                   const TagLib::PropertyMap& properties) const {
    TagLib::ASF::Tag* tag = tagOf(file);
    const TagLib::PropertyMap refused = addPropertiesTo(tag, properties);
    if (!tag)
        return refused;
    // Attributes take any name.
    for (const auto& [name, values] : refused) {
        for (const TagLib::String& value : values)
            tag->addAttribute(customFieldName(name), TagLib::ASF::Attribute(value));
    }
    return {};
}

void MTETagFamilyASF::removeAllButEncoder(TagLib::File& file) const {
    TagLib::ASF::Tag* tag = tagOf(file);
    if (!tag)
        return;
    // The content description holds five fields outside the attribute list.
    tag->setTitle(TagLib::String());
    tag->setArtist(TagLib::String());
    tag->setCopyright(TagLib::String());
    tag->setComment(TagLib::String());
    tag->setRating(TagLib::String());
    const TagLib::ASF::AttributeListMap attributes = tag->attributeListMap();
    for (const auto& [name, values] : attributes) {
        if (name != kEncoderAttribute)
            tag->removeItem(name);
    }
}
