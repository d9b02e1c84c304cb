#pragma once

#include "framework/MTETagFamily.h"

namespace TagLib::MP4 {
class Tag;
}

// MP4/M4A atoms. Fields without an atom of their own (publisher) live in free-form
// "----:com.apple.iTunes:" items, the only custom keys MP4 accepts.
class MTETagFamilyMP4 : public MTETagFamily {
public:
    QString name() const override;
    const MTEKeyTable& keyTable() const override;
    bool hasArtwork(TagLib::File& file) const override;
    MTEArtworkList readArtwork(TagLib::File& file) const override;
    QString tagVersion(TagLib::File& file) const override;
    void removeAllButEncoder(TagLib::File& file) const override;
    // Free-form items TagLib has no name for join under their own name ("REPLAYGAIN_TRACK_GAIN"),
    // and names MP4 has no atom for are stored as such items.
    TagLib::PropertyMap properties(TagLib::File& file) const override;
    TagLib::PropertyMap addProperties(TagLib::File& file,
                                      const TagLib::PropertyMap& properties) const override;

protected:
    QString readField(TagLib::File& file, MTETagField field) const override;
    void writeField(TagLib::File& file, MTETagField field, const QString& value) const override;
    void writeArtwork(TagLib::File& file, const MTEArtworkList& images) const override;

private:
    static TagLib::MP4::Tag* tagOf(TagLib::File& file);
};
