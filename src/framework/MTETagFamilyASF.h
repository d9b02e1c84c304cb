#pragma once

#include "framework/MTETagFamily.h"

namespace TagLib::ASF {
class Tag;
}

// ASF (WMA) attributes. Title, author, copyright and description live in the content
// description object rather than in attributes, so they go through TagLib's own accessors.
class MTETagFamilyASF : public MTETagFamily {
public:
    QString name() const override;
    const MTEKeyTable& keyTable() const override;
    bool hasArtwork(TagLib::File& file) const override;
    MTEArtworkList readArtwork(TagLib::File& file) const override;
    QString tagVersion(TagLib::File& file) const override;
    void removeAllButEncoder(TagLib::File& file) const override;
    // Attributes TagLib has no name for join under their own name in capitals
    // ("REPLAYGAIN_TRACK_GAIN"), and names ASF has no attribute for are stored under their own.
    TagLib::PropertyMap properties(TagLib::File& file) const override;
    TagLib::PropertyMap addProperties(TagLib::File& file,
                                      const TagLib::PropertyMap& properties) const override;

protected:
    QString readField(TagLib::File& file, MTETagField field) const override;
    void writeField(TagLib::File& file, MTETagField field, const QString& value) const override;
    void writeArtwork(TagLib::File& file, const MTEArtworkList& images) const override;

private:
    static TagLib::ASF::Tag* tagOf(TagLib::File& file);
};
