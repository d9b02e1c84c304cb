#pragma once

#include "framework/MTETagFamily.h"

namespace TagLib::APE {
class Tag;
}

// APE tags of Monkey's Audio, WavPack and Musepack files. Pictures are binary items holding a
// file name, a zero byte and the picture's bytes.
class MTETagFamilyAPE : public MTETagFamily {
public:
    QString name() const override;
    const MTEKeyTable& keyTable() const override;
    bool hasArtwork(TagLib::File& file) const override;
    MTEArtworkList readArtwork(TagLib::File& file) const override;
    QString tagVersion(TagLib::File& file) const override;
    void removeAllButEncoder(TagLib::File& file) const override;
    TagLib::PropertyMap addProperties(TagLib::File& file,
                                      const TagLib::PropertyMap& properties) const override;

protected:
    QString readField(TagLib::File& file, MTETagField field) const override;
    void writeField(TagLib::File& file, MTETagField field, const QString& value) const override;
    void writeArtwork(TagLib::File& file, const MTEArtworkList& images) const override;

private:
    static TagLib::APE::Tag* tagOf(TagLib::File& file, bool create);
};
