#pragma once

#include "framework/MTETagFamily.h"

namespace TagLib::ID3v2 {
class Tag;
}

// ID3v2 frames, carried by MPEG, WAV, AIFF and TrueAudio files. A basic field missing from the
// ID3v2 tag is taken from the file's other tags (ID3v1, RIFF INFO, APE on MPEG), so their text
// still reaches the handle and, on the next save, the ID3v2 tag.
class MTETagFamilyID3v2 : public MTETagFamily {
public:
    QString name() const override;
    const MTEKeyTable& keyTable() const override;
    bool hasArtwork(TagLib::File& file) const override;
    MTEArtworkList readArtwork(TagLib::File& file) const override;
    QString tagVersion(TagLib::File& file) const override;
    void removeAllButEncoder(TagLib::File& file) const override;
    TagLib::PropertyMap addProperties(TagLib::File& file,
                                      const TagLib::PropertyMap& properties) const override;

    // The file's ID3v2 tag; made when `create` is true and the file has none. Null for files
    // that cannot carry one.
    static TagLib::ID3v2::Tag* tagOf(TagLib::File& file, bool create);

protected:
    QString readField(TagLib::File& file, MTETagField field) const override;
    void writeField(TagLib::File& file, MTETagField field, const QString& value) const override;
    void writeArtwork(TagLib::File& file, const MTEArtworkList& images) const override;

private:
    static QString readBasicField(TagLib::File& file, MTETagField field);
};
