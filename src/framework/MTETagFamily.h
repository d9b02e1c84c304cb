#pragma once

#include "framework/MTEAudioFile.h"
#include "framework/MTETagField.h"

#include <QMap>
#include <QString>
#include <QVariant>
#include <optional>

#include <taglib/tbytevector.h>
#include <taglib/tpropertymap.h>
#include <taglib/tstring.h>

namespace TagLib {
class File;
}

// One tag family (ID3v2, MP4 atoms, Xiph comments, APE, ASF, ...): its own keys for the generic
// fields and how to read and write them on an opened TagLib file. A family is stateless; one
// shared instance serves every file of the kinds that carry it.
class MTETagFamily {
public:
    virtual ~MTETagFamily() = default;

    // Stable name, used to find the family again when a handle is restored from an archive.
    virtual QString name() const = 0;
    virtual const MTEKeyTable& keyTable() const = 0;
    virtual bool canWrite() const { return true; }

    // Generic name -> own key, for the fields this family can hold.
    QMap<QString, QString> keyMap() const;
    QString ownKey(MTETagField field) const;
    std::optional<MTETagField> fieldOfOwnKey(const QString& ownKey) const;

    // Own key -> QString of every text field present in the file. Pictures are left out: they
    // are fetched on demand through readArtwork().
    QMap<QString, QVariant> readText(TagLib::File& file) const;
    virtual bool hasArtwork(TagLib::File& file) const = 0;
    virtual MTEArtworkList readArtwork(TagLib::File& file) const = 0;

    // Puts `values` (own key -> value) into the file's tag without saving. An empty text
    // removes the field, an empty picture list removes the pictures, absent keys stay as the
    // file has them, and keys this family does not know are ignored.
    void apply(TagLib::File& file, const QMap<QString, QVariant>& values) const;

    virtual QString tagVersion(TagLib::File& file) const = 0;

    // Removes every field and picture the file's tags hold, except the field that names the
    // encoder which wrote the audio.
    virtual void removeAllButEncoder(TagLib::File& file) const = 0;
    // Every field of the file under TagLib's unified property names.
    virtual TagLib::PropertyMap properties(TagLib::File& file) const;
    // Adds `properties` to the family's tag, each under the family's own field for that name,
    // and keeps the fields already there. Returns what the family has no field for.
    virtual TagLib::PropertyMap addProperties(TagLib::File& file,
                                              const TagLib::PropertyMap& properties) const = 0;

    static MTEArtworkList artworkFromVariant(const QVariant& value);

protected:
    // The name of a field of one's own choosing for the property `name`, for families that have
    // no field of their own for it. ReplayGain fields are spelt in lower case, as the programs
    // that write and read them there spell them.
    static TagLib::String customFieldName(const TagLib::String& name);
    // addProperties() on `tag` (none: everything is refused). TagLib 1.13's setProperties() is
    // not virtual, so the caller names the tag's own type.
    template <typename Tag>
    static TagLib::PropertyMap addPropertiesTo(Tag* tag, const TagLib::PropertyMap& properties) {
        if (!tag)
            return properties;
        // setProperties() replaces the whole tag: hand it what is there plus what is added.
        TagLib::PropertyMap merged = tag->properties();
        for (const auto& [name, values] : properties)
            merged.replace(name, values);
        return refusedOf(tag->setProperties(merged), properties);
    }
    // A null QString when the field is absent.
    virtual QString readField(TagLib::File& file, MTETagField field) const = 0;
    virtual void writeField(TagLib::File& file, MTETagField field, const QString& value) const = 0;
    virtual void writeArtwork(TagLib::File& file, const MTEArtworkList& images) const = 0;

    static TagLib::String toTString(const QString& text);
    static QString toQString(const TagLib::String& text);
    static QByteArray toQByteArray(const TagLib::ByteVector& bytes);
    static TagLib::ByteVector toByteVector(const QByteArray& bytes);
    // The declared type when there is one, else what the picture's first bytes say.
    static QString mimeTypeOf(const QByteArray& data, const QString& declared = {});
    static QString joined(const QStringList& values);

private:
    // The names of `asked` among those setProperties() `rejected`.
    static TagLib::PropertyMap refusedOf(const TagLib::PropertyMap& rejected,
                                         const TagLib::PropertyMap& asked);
};
