#include "framework/MTETagFamilyGeneric.h"

#include <taglib/tfile.h>
#include <taglib/tpropertymap.h>

namespace {

// TagLib's own property names; it has none for pictures.
constexpr MTEKeyTable kKeys{"TITLE",   "ARTIST", "ALBUMARTIST", "COMPOSER",  "ALBUM",
                            "DATE",    "GENRE",  "TRACKNUMBER", "COPYRIGHT", "LABEL",
                            "COMMENT", "LYRICS", "GROUPING",    ""};
static_assert(mteKeyTableComplete(kKeys));

} // namespace

QString MTETagFamilyGeneric::name() const {
    return QStringLiteral("Generic");
}

const MTEKeyTable& MTETagFamilyGeneric::keyTable() const {
    return kKeys;
}

QString MTETagFamilyGeneric::readField(TagLib::File& file, MTETagField field) const {
    const TagLib::StringList values = file.properties().value(toTString(ownKey(field)));
    if (values.isEmpty())
        return {};
    QStringList texts;
    for (const TagLib::String& value : values)
        texts.append(toQString(value));
    return joined(texts);
}

void MTETagFamilyGeneric::writeField(TagLib::File&, MTETagField, const QString&) const {}

bool MTETagFamilyGeneric::hasArtwork(TagLib::File&) const {
    return false;
}

MTEArtworkList MTETagFamilyGeneric::readArtwork(TagLib::File&) const {
    return {};
}

void MTETagFamilyGeneric::writeArtwork(TagLib::File&, const MTEArtworkList&) const {}

QString MTETagFamilyGeneric::tagVersion(TagLib::File&) const {
    return {};
}

TagLib::PropertyMap
MTETagFamilyGeneric::addProperties(TagLib::File&, const TagLib::PropertyMap& properties) const {
    return properties;
}

void MTETagFamilyGeneric::removeAllButEncoder(TagLib::File&) const {}
