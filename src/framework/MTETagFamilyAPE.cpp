#include "framework/MTETagFamilyAPE.h"

#include <taglib/apefile.h>
#include <taglib/apefooter.h>
#include <taglib/apeitem.h>
#include <taglib/apetag.h>
#include <taglib/mpcfile.h>
#include <taglib/wavpackfile.h>

namespace {

constexpr MTEKeyTable kKeys{"Title",   "Artist", "Album Artist", "Composer",         "Album",
                            "Year",    "Genre",  "Track",        "Copyright",        "Publisher",
                            "Comment", "Lyrics", "Grouping",     "Cover Art (Front)"};
static_assert(mteKeyTableComplete(kKeys));

} // namespace

QString MTETagFamilyAPE::name() const {
    return QStringLiteral("APE");
}

const MTEKeyTable& MTETagFamilyAPE::keyTable() const {
    return kKeys;
}

TagLib::APE::Tag* MTETagFamilyAPE::tagOf(TagLib::File& file, bool create) {
    if (auto* ape = dynamic_cast<TagLib::APE::File*>(&file))
        return ape->APETag(create);
    if (auto* wavPack = dynamic_cast<TagLib::WavPack::File*>(&file))
        return wavPack->APETag(create);
    if (auto* mpc = dynamic_cast<TagLib::MPC::File*>(&file))
        return mpc->APETag(create);
    return nullptr;
}

QString MTETagFamilyAPE::readField(TagLib::File& file, MTETagField field) const {
    const TagLib::APE::Tag* tag = tagOf(file, false);
    if (!tag)
        return {};
    // Item keys are case-insensitive; TagLib keeps them upper-cased.
    const TagLib::String key = toTString(ownKey(field)).upper();
    if (!tag->itemListMap().contains(key))
        return {};
    const TagLib::APE::Item item = tag->itemListMap().value(key);
    if (item.type() != TagLib::APE::Item::Text)
        return {};
    QStringList values;
    for (const TagLib::String& value : item.values())
        values.append(toQString(value));
    return joined(values);
}

void MTETagFamilyAPE::writeField(TagLib::File& file, MTETagField field,
                                 const QString& value) const {
    TagLib::APE::Tag* tag = tagOf(file, true);
    if (!tag)
        return;
    const TagLib::String key = toTString(ownKey(field));
    if (value.isEmpty())
        tag->removeItem(key);
    else
        tag->addValue(key, toTString(value), true);
}

bool MTETagFamilyAPE::hasArtwork(TagLib::File& file) const {
    const TagLib::APE::Tag* tag = tagOf(file, false);
    return tag && tag->itemListMap().contains(toTString(ownKey(MTETagField::AlbumImg)).upper());
}

MTEArtworkList MTETagFamilyAPE::readArtwork(TagLib::File& file) const {
    if (!hasArtwork(file))
        return {};
    const TagLib::APE::Item item =
        tagOf(file, false)->itemListMap().value(toTString(ownKey(MTETagField::AlbumImg)).upper());
    const QByteArray stored = toQByteArray(item.binaryData());
    const qsizetype nameEnd = stored.indexOf('\0');
    const QByteArray data = nameEnd < 0 ? stored : stored.mid(nameEnd + 1);
    if (data.isEmpty())
        return {};
    return {MTEArtwork{data, mimeTypeOf(data)}};
}

void MTETagFamilyAPE::writeArtwork(TagLib::File& file, const MTEArtworkList& images) const {
    TagLib::APE::Tag* tag = tagOf(file, true);
    if (!tag)
        return;
    const TagLib::String key = toTString(ownKey(MTETagField::AlbumImg));
    tag->removeItem(key);
    // The tag has room for one front cover; the first picture is the cover.
    if (images.isEmpty())
        return;
    const MTEArtwork& cover = images.front();
    const bool png = mimeTypeOf(cover.data, cover.mimeType) == QLatin1String("image/png");
    QByteArray stored = png ? QByteArray("cover.png") : QByteArray("cover.jpg");
    stored.append('\0');
    stored.append(cover.data);
    tag->setData(key, toByteVector(stored));
}

QString MTETagFamilyAPE::tagVersion(TagLib::File& file) const {
    const TagLib::APE::Tag* tag = tagOf(file, false);
    if (!tag)
        return {};
    return tag->footer()->version() >= 2000 ? QStringLiteral("APE v2") : QStringLiteral("APE v1");
}

TagLib::PropertyMap MTETagFamilyAPE::addProperties(TagLib::File& file,
                                                   const TagLib::PropertyMap& properties) const {
    return addPropertiesTo(tagOf(file, true), properties);
}

void MTETagFamilyAPE::removeAllButEncoder(TagLib::File& file) const {
    // APE tags have no encoder item of their own.
    TagLib::APE::Tag* tag = tagOf(file, false);
    if (!tag)
        return;
    const TagLib::APE::ItemListMap items = tag->itemListMap();
    for (const auto& [key, item] : items)
        tag->removeItem(key);
}
