#include "framework/MTETagFamilyID3v2.h"

#include <taglib/aifffile.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/commentsframe.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/trueaudiofile.h>
#include <taglib/unsynchronizedlyricsframe.h>
#include <taglib/wavfile.h>

#include <vector>

namespace {

constexpr MTEKeyTable kKeys{"TIT2", "TPE1", "TPE2", "TCOM", "TALB", "TDRC", "TCON",
                            "TRCK", "TCOP", "TPUB", "COMM", "USLT", "GRP1", "APIC"};
static_assert(mteKeyTableComplete(kKeys));

// The encoder ffmpeg names in every file it writes.
const TagLib::ByteVector kEncoderFrame("TSSE", 4);
const TagLib::ByteVector kInfoEncoderField("ISFT", 4);

// Players look lyrics and comments up under the language "eng" with an empty description.
const TagLib::ByteVector kLanguage("eng", 3);

// TagLib names these user text frames in capitals; taggers and the readers that look them up
// by exact name use this spelling.
const char* const kUserFrameDescriptions[] = {
    "MusicBrainz Album Id",
    "MusicBrainz Artist Id",
    "MusicBrainz Album Artist Id",
    "MusicBrainz Release Group Id",
    "MusicBrainz Release Track Id",
    "MusicBrainz Work Id",
    "MusicBrainz Album Release Country",
    "MusicBrainz Album Status",
    "MusicBrainz Album Type",
    "Acoustid Id",
    "Acoustid Fingerprint",
    "MusicIP PUID",
};

TagLib::String userFrameDescription(const TagLib::String& description) {
    for (const char* known : kUserFrameDescriptions) {
        const TagLib::String spelling(known);
        if (description.upper() == spelling.upper())
            return spelling;
    }
    return description;
}

TagLib::String::Type encodingFor(const TagLib::String& text) {
    return text.isLatin1() ? TagLib::String::Latin1 : TagLib::String::UTF16;
}

// The plain comment: the first COMM frame without a description (others carry player data
// such as normalisation values), else the first one at all.
TagLib::ID3v2::CommentsFrame* plainComment(const TagLib::ID3v2::FrameList& frames) {
    TagLib::ID3v2::CommentsFrame* first = nullptr;
    for (TagLib::ID3v2::Frame* frame : frames) {
        auto* comment = dynamic_cast<TagLib::ID3v2::CommentsFrame*>(frame);
        if (!comment)
            continue;
        if (comment->description().isEmpty())
            return comment;
        if (!first)
            first = comment;
    }
    return first;
}

} // namespace

QString MTETagFamilyID3v2::name() const {
    return QStringLiteral("ID3v2");
}

const MTEKeyTable& MTETagFamilyID3v2::keyTable() const {
    return kKeys;
}

TagLib::ID3v2::Tag* MTETagFamilyID3v2::tagOf(TagLib::File& file, bool create) {
    if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(&file))
        return mpeg->ID3v2Tag(create);
    if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(&file))
        return wav->ID3v2Tag();
    if (auto* aiff = dynamic_cast<TagLib::RIFF::AIFF::File*>(&file))
        return aiff->tag();
    if (auto* tta = dynamic_cast<TagLib::TrueAudio::File*>(&file))
        return tta->ID3v2Tag(create);
    return nullptr;
}

QString MTETagFamilyID3v2::readField(TagLib::File& file, MTETagField field) const {
    TagLib::ID3v2::Tag* tag = tagOf(file, false);
    if (!tag)
        return readBasicField(file, field);
    const TagLib::ID3v2::FrameListMap& frameMap = tag->frameListMap();
    TagLib::ID3v2::FrameList frames =
        frameMap.value(TagLib::ByteVector(keyTable()[static_cast<std::size_t>(field)]));
    // Most taggers and players on this desktop keep the grouping in TIT1; GRP1 is the newer
    // frame some players write. Read either, GRP1 first; writing uses GRP1.
    if (frames.isEmpty() && field == MTETagField::Grouping)
        frames = frameMap.value(TagLib::ByteVector("TIT1", 4));
    if (frames.isEmpty())
        return readBasicField(file, field);
    switch (field) {
    case MTETagField::Comment: {
        const auto* comment = plainComment(frames);
        return comment ? toQString(comment->text()) : QString();
    }
    case MTETagField::Lyric: {
        const auto* lyric = dynamic_cast<TagLib::ID3v2::UnsynchronizedLyricsFrame*>(frames.front());
        return lyric ? toQString(lyric->text()) : QString();
    }
    case MTETagField::Genre:
        // Resolves ID3v1 genre numbers such as "(17)" to their names.
        return toQString(tag->genre());
    default:
        break;
    }
    if (const auto* text = dynamic_cast<TagLib::ID3v2::TextIdentificationFrame*>(frames.front())) {
        QStringList values;
        for (const TagLib::String& value : text->fieldList())
            values.append(toQString(value));
        return joined(values);
    }
    return toQString(frames.front()->toString());
}

QString MTETagFamilyID3v2::readBasicField(TagLib::File& file, MTETagField field) {
    const TagLib::Tag* basic = file.tag();
    if (!basic)
        return {};
    auto nonEmpty = [](const QString& text) { return text.isEmpty() ? QString() : text; };
    switch (field) {
    case MTETagField::Title:
        return nonEmpty(toQString(basic->title()));
    case MTETagField::Artist:
        return nonEmpty(toQString(basic->artist()));
    case MTETagField::Album:
        return nonEmpty(toQString(basic->album()));
    case MTETagField::Comment:
        return nonEmpty(toQString(basic->comment()));
    case MTETagField::Genre:
        return nonEmpty(toQString(basic->genre()));
    case MTETagField::Date:
        return basic->year() ? QString::number(basic->year()) : QString();
    case MTETagField::Track:
        return basic->track() ? QString::number(basic->track()) : QString();
    default:
        return {};
    }
}

void MTETagFamilyID3v2::writeField(TagLib::File& file, MTETagField field,
                                   const QString& value) const {
    TagLib::ID3v2::Tag* tag = tagOf(file, true);
    if (!tag)
        return;
    const TagLib::ByteVector id(keyTable()[static_cast<std::size_t>(field)]);
    const TagLib::String text = toTString(value);
    if (field == MTETagField::Comment) {
        // Only the plain comment is ours; descriptive comments of other programs stay.
        while (auto* old = plainComment(tag->frameListMap().value(id))) {
            if (!old->description().isEmpty())
                break;
            tag->removeFrame(old);
        }
        if (value.isEmpty())
            return;
        auto* frame = new TagLib::ID3v2::CommentsFrame(encodingFor(text));
        frame->setLanguage(kLanguage);
        frame->setText(text);
        tag->addFrame(frame);
        return;
    }
    tag->removeFrames(id);
    if (value.isEmpty())
        return;
    if (field == MTETagField::Lyric) {
        auto* frame = new TagLib::ID3v2::UnsynchronizedLyricsFrame(encodingFor(text));
        frame->setLanguage(kLanguage);
        frame->setText(text);
        tag->addFrame(frame);
        return;
    }
    auto* frame = new TagLib::ID3v2::TextIdentificationFrame(id, encodingFor(text));
    frame->setText(text);
    tag->addFrame(frame);
}

bool MTETagFamilyID3v2::hasArtwork(TagLib::File& file) const {
    const TagLib::ID3v2::Tag* tag = tagOf(file, false);
    return tag && !tag->frameListMap().value("APIC").isEmpty();
}

MTEArtworkList MTETagFamilyID3v2::readArtwork(TagLib::File& file) const {
    MTEArtworkList images;
    const TagLib::ID3v2::Tag* tag = tagOf(file, false);
    if (!tag)
        return images;
    for (TagLib::ID3v2::Frame* frame : tag->frameListMap().value("APIC")) {
        if (const auto* picture = dynamic_cast<TagLib::ID3v2::AttachedPictureFrame*>(frame)) {
            const QByteArray data = toQByteArray(picture->picture());
            images.append({data, mimeTypeOf(data, toQString(picture->mimeType()))});
        }
    }
    return images;
}

void MTETagFamilyID3v2::writeArtwork(TagLib::File& file, const MTEArtworkList& images) const {
    TagLib::ID3v2::Tag* tag = tagOf(file, true);
    if (!tag)
        return;
    tag->removeFrames("APIC");
    for (qsizetype i = 0; i < images.size(); ++i) {
        auto* frame = new TagLib::ID3v2::AttachedPictureFrame;
        frame->setType(i == 0 ? TagLib::ID3v2::AttachedPictureFrame::FrontCover
                              : TagLib::ID3v2::AttachedPictureFrame::Other);
        frame->setMimeType(toTString(mimeTypeOf(images[i].data, images[i].mimeType)));
        frame->setPicture(toByteVector(images[i].data));
        tag->addFrame(frame);
    }
}

QString MTETagFamilyID3v2::tagVersion(TagLib::File& file) const {
    const TagLib::ID3v2::Tag* tag = tagOf(file, false);
    if (tag && !tag->frameList().isEmpty())
        return QStringLiteral("ID3 v2.%1").arg(tag->header()->majorVersion());
    if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(&file); mpeg && mpeg->hasID3v1Tag())
        return QStringLiteral("ID3 v1");
    if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(&file); wav && wav->hasInfoTag())
        return QStringLiteral("RIFF INFO");
    return {};
}

TagLib::PropertyMap MTETagFamilyID3v2::addProperties(TagLib::File& file,
                                                     const TagLib::PropertyMap& properties) const {
    TagLib::ID3v2::Tag* tag = tagOf(file, true);
    const TagLib::PropertyMap refused = addPropertiesTo(tag, properties);
    if (!tag)
        return refused;
    for (TagLib::ID3v2::Frame* frame : tag->frameList("TXXX")) {
        if (auto* user = dynamic_cast<TagLib::ID3v2::UserTextIdentificationFrame*>(frame))
            user->setDescription(userFrameDescription(user->description()));
    }
    return refused;
}

void MTETagFamilyID3v2::removeAllButEncoder(TagLib::File& file) const {
    if (TagLib::ID3v2::Tag* tag = tagOf(file, false)) {
        // Not a copy of the tag's list: that would share its ownership of the frames.
        std::vector<TagLib::ID3v2::Frame*> doomed;
        for (TagLib::ID3v2::Frame* frame : tag->frameList()) {
            if (frame->frameID() != kEncoderFrame)
                doomed.push_back(frame);
        }
        for (TagLib::ID3v2::Frame* frame : doomed)
            tag->removeFrame(frame);
    }
    // WAV files carry a RIFF INFO list beside the ID3v2 chunk.
    if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(&file); wav && wav->hasInfoTag()) {
        TagLib::RIFF::Info::Tag* info = wav->InfoTag();
        for (const auto& [id, text] : info->fieldListMap()) {
            if (id != kInfoEncoderField)
                info->removeField(id);
        }
    }
}
