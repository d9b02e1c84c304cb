#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace TagLib {
class File;
class FileRef;
} // namespace TagLib

class MTETagFamily;

// Which kind of audio file TagLib opened, which tag family it carries, and how each kind is
// saved. The kind comes from the content; the extension only decides for kinds TagLib cannot
// recognise by content.
class MTETagFileKind {
public:
    // Opens `path` as audio; null when TagLib cannot, or finds no audio stream in it.
    // Without `readProperties` only the tags are parsed, which is all a picture fetch or a save
    // needs.
    static std::unique_ptr<TagLib::FileRef> open(const QString& path, bool readProperties = true);
    // Builds TagLib's lazily filled tables once, on one thread, before files are opened on
    // several at the same time (open() calls it; so must any other user of TagLib).
    static void prepareForThreads();

    // The handle's file kind code (MTEAudioFile::FileType).
    static int fileTypeOf(TagLib::File& file);
    static const MTETagFamily& familyOf(TagLib::File& file);
    // The family of that name(), or null.
    static const MTETagFamily* familyNamed(const QString& name);

    // Opens `path` to change its tags, lets `change` change them and writes them back. With
    // `expected`, the file must carry that family's tags. False with *error when the kind's tags
    // cannot be written, the file cannot be opened or written, or carries other tags.
    static bool edit(const QString& path, const MTETagFamily* expected,
                     const std::function<void(TagLib::File&, const MTETagFamily&)>& change,
                     QString* error = nullptr);

    // Writes the tags held in `file` back to disk. MP3 gets ID3v2.3 and never a tag kind it
    // did not carry before.
    static bool save(TagLib::File& file);
};
