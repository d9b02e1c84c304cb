#pragma once

#include "framework/MTETagFamily.h"

namespace TagLib::Ogg {
class XiphComment;
}

// Vorbis comments of Ogg Vorbis, Opus, Speex, Ogg FLAC and FLAC files. Pictures go into FLAC's
// own picture blocks for FLAC files and into METADATA_BLOCK_PICTURE comments for Ogg files.
class MTETagFamilyXiph : public MTETagFamily {
public:
    QString name() const override;
    const MTEKeyTable& keyTable() const override;
    bool hasArtwork(TagLib::File& file) const override;
    MTEArtworkList readArtwork(TagLib::File& file) const override;
    QString tagVersion(TagLib::File& file) const override;
    void removeAllButEncoder(TagLib::File& file) const override;
    // TagLib's properties, with FLAC values that hold a NUL read whole (see readField).
    TagLib::PropertyMap properties(TagLib::File& file) const override;
    TagLib::PropertyMap addProperties(TagLib::File& file,
                                      const TagLib::PropertyMap& properties) const override;

protected:
    QString readField(TagLib::File& file, MTETagField field) const override;
    void writeField(TagLib::File& file, MTETagField field, const QString& value) const override;
    void writeArtwork(TagLib::File& file, const MTEArtworkList& images) const override;

private:
    static TagLib::Ogg::XiphComment* commentOf(TagLib::File& file);
};
