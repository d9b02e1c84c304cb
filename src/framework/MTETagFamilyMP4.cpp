#include "framework/MTETagFamilyMP4.h"

#include <taglib/mp4coverart.h>
#include <taglib/mp4file.h>
#include <taglib/mp4item.h>
#include <taglib/mp4tag.h>

namespace {

// Atom names as UTF-8 ("©" is U+00A9, which TagLib's atom keys hold as one Latin-1 byte).
constexpr MTEKeyTable kKeys{"©nam", "©ART", "aART", "©wrt", "©alb",
                            "©day", "©gen", "trkn", "cprt", "----:com.apple.iTunes:PUBLISHER",
                            "©cmt", "©lyr", "©grp", "covr"};
static_assert(mteKeyTableComplete(kKeys));

// The encoder ffmpeg names in every file it writes.
const TagLib::String kEncoderAtom("\251too", TagLib::String::Latin1);
// Free-form items of iTunes' own namespace, the only custom keys MP4 accepts.
const TagLib::String kFreeFormPrefix("----:com.apple.iTunes:");

// Another common name for the publisher, read when the file has no PUBLISHER item.
const char* const kLabelKey = "----:com.apple.iTunes:LABEL";

// "3" or "3/12" -> (3, 0) or (3, 12); nullopt when the text holds no track number.
std::optional<std::pair<int, int>> parseTrack(const QString& text) {
    const QStringList parts = text.split(QLatin1Char('/'));
    bool ok = false;
    const int number = parts.value(0).trimmed().toInt(&ok);
    if (!ok)
        return std::nullopt;
    const int total = parts.size() > 1 ? parts[1].trimmed().toInt() : 0;
    return std::make_pair(number, total);
}

TagLib::MP4::CoverArt::Format coverFormat(const QString& mimeType) {
    if (mimeType == QLatin1String("image/png"))
        return TagLib::MP4::CoverArt::PNG;
    if (mimeType == QLatin1String("image/bmp"))
        return TagLib::MP4::CoverArt::BMP;
    if (mimeType == QLatin1String("image/gif"))
        return TagLib::MP4::CoverArt::GIF;
    return TagLib::MP4::CoverArt::JPEG;
}

QString coverMimeType(TagLib::MP4::CoverArt::Format format) {
    switch (format) {
    case TagLib::MP4::CoverArt::PNG:
        return QStringLiteral("image/png");
    case TagLib::MP4::CoverArt::BMP:
        return QStringLiteral("image/bmp");
    case TagLib::MP4::CoverArt::GIF:
        return QStringLiteral("image/gif");
    case TagLib::MP4::CoverArt::JPEG:
        return QStringLiteral("image/jpeg");
    default:
        return {};
    }
}

} // namespace

QString MTETagFamilyMP4::name() const {
    return QStringLiteral("MP4");
}

const MTEKeyTable& MTETagFamilyMP4::keyTable() const {
    return kKeys;
}

TagLib::MP4::Tag* MTETagFamilyMP4::tagOf(TagLib::File& file) {
    auto* mp4 = dynamic_cast<TagLib::MP4::File*>(&file);
    return mp4 ? mp4->tag() : nullptr;
}

QString MTETagFamilyMP4::readField(TagLib::File& file, MTETagField field) const {
    TagLib::MP4::Tag* tag = tagOf(file);
    if (!tag)
        return {};
    TagLib::String key = toTString(ownKey(field));
    if (field == MTETagField::Publisher && !tag->contains(key))
        key = kLabelKey;
    if (!tag->contains(key))
        return {};
    const TagLib::MP4::Item item = tag->item(key);
    if (field == MTETagField::Track) {
        const TagLib::MP4::Item::IntPair pair = item.toIntPair();
        if (pair.first <= 0)
            return {};
        return pair.second > 0 ? QStringLiteral("%1/%2").arg(pair.first).arg(pair.second)
                               : QString::number(pair.first);
    }
    QStringList values;
    for (const TagLib::String& value : item.toStringList())
        values.append(toQString(value));
    return joined(values);
}

void MTETagFamilyMP4::writeField(TagLib::File& file, MTETagField field,
                                 const QString& value) const {
    TagLib::MP4::Tag* tag = tagOf(file);
    if (!tag)
        return;
    const TagLib::String key = toTString(ownKey(field));
    if (field == MTETagField::Publisher)
        tag->removeItem(kLabelKey);
    tag->removeItem(key);
    if (value.isEmpty())
        return;
    if (field == MTETagField::Track) {
        // trkn holds two numbers; text that is not a number cannot be stored there.
        if (const auto track = parseTrack(value))
            tag->setItem(key, TagLib::MP4::Item(track->first, track->second));
        return;
    }
    tag->setItem(key, TagLib::MP4::Item(TagLib::StringList(toTString(value))));
}

bool MTETagFamilyMP4::hasArtwork(TagLib::File& file) const {
    TagLib::MP4::Tag* tag = tagOf(file);
    return tag && tag->contains("covr") && !tag->item("covr").toCoverArtList().isEmpty();
}

MTEArtworkList MTETagFamilyMP4::readArtwork(TagLib::File& file) const {
    MTEArtworkList images;
    TagLib::MP4::Tag* tag = tagOf(file);
    if (!tag || !tag->contains("covr"))
        return images;
    for (const TagLib::MP4::CoverArt& cover : tag->item("covr").toCoverArtList()) {
        const QByteArray data = toQByteArray(cover.data());
        images.append({data, mimeTypeOf(data, coverMimeType(cover.format()))});
    }
    return images;
}

void MTETagFamilyMP4::writeArtwork(TagLib::File& file, const MTEArtworkList& images) const {
    TagLib::MP4::Tag* tag = tagOf(file);
    if (!tag)
        return;
    tag->removeItem("covr");
    if (images.isEmpty())
        return;
    TagLib::MP4::CoverArtList covers;
    for (const MTEArtwork& image : images)
        covers.append(TagLib::MP4::CoverArt(coverFormat(mimeTypeOf(image.data, image.mimeType)),
                                            toByteVector(image.data)));
    tag->setItem("covr", TagLib::MP4::Item(covers));
}

QString MTETagFamilyMP4::tagVersion(TagLib::File& file) const {
    return tagOf(file) ? QStringLiteral("MP4") : QString();
}

void MTETagFamilyMP4::removeAllButEncoder(TagLib::File& file) const {
    TagLib::MP4::Tag* tag = tagOf(file);
    if (!tag)
        return;
    const TagLib::MP4::ItemMap items = tag->itemMap();
    for (const auto& [key, item] : items) {
        if (key != kEncoderAtom)
            tag->removeItem(key);
    }
}

TagLib::PropertyMap MTETagFamilyMP4::properties(TagLib::File& file) const {
    TagLib::PropertyMap result = MTETagFamily::properties(file);
    const TagLib::MP4::Tag* tag = tagOf(file);
    if (!tag)
        return result;
    for (const TagLib::String& key : result.unsupportedData()) {
        if (!key.startsWith(kFreeFormPrefix) || !tag->contains(key))
            continue;
        const TagLib::String name = key.substr(kFreeFormPrefix.size()).upper();
        const TagLib::StringList values = tag->item(key).toStringList();
        if (!values.isEmpty() && !result.contains(name))
            result.insert(name, values);
    }
    return result;
}

TagLib::PropertyMap MTETagFamilyMP4::addProperties(TagLib::File& file,
                                                   const TagLib::PropertyMap& properties) const {
    TagLib::MP4::Tag* tag = tagOf(file);
    const TagLib::PropertyMap refused = addPropertiesTo(tag, properties);
    if (!tag)
        return refused;
    for (const auto& [name, values] : refused)
        tag->setItem(kFreeFormPrefix + customFieldName(name), TagLib::MP4::Item(values));
    return {};
}
