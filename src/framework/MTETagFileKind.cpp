#include "framework/MTETagFileKind.h"

#include "framework/MTEAudioFile.h"
#include "framework/MTETagFamilyAPE.h"
#include "framework/MTETagFamilyASF.h"
#include "framework/MTETagFamilyGeneric.h"
#include "framework/MTETagFamilyID3v2.h"
#include "framework/MTETagFamilyMP4.h"
#include "framework/MTETagFamilyXiph.h"

#include <QFile>
#include <QFileInfo>

#include <mutex>

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/asffile.h>
#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/mp4file.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/tfilestream.h>
#include <taglib/trueaudiofile.h>
#include <taglib/vorbisfile.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>

namespace {

template <typename Kind> bool is(TagLib::File& file) {
    return dynamic_cast<Kind*>(&file) != nullptr;
}

template <typename Kind> TagLib::File* make(const char* name, bool readProperties) {
    return new Kind(name, readProperties, TagLib::AudioProperties::Accurate);
}

struct ContentCheck {
    bool (*isSupported)(TagLib::IOStream*);
    TagLib::File* (*make)(const char*, bool);
};

// Kinds with a recognisable signature first; MPEG last, since a frame sync can turn up by
// chance in any audio data.
const ContentCheck kContentChecks[] = {
    {&TagLib::FLAC::File::isSupported, &make<TagLib::FLAC::File>},
    {&TagLib::Ogg::Vorbis::File::isSupported, &make<TagLib::Ogg::Vorbis::File>},
    {&TagLib::Ogg::Opus::File::isSupported, &make<TagLib::Ogg::Opus::File>},
    {&TagLib::Ogg::Speex::File::isSupported, &make<TagLib::Ogg::Speex::File>},
    {&TagLib::Ogg::FLAC::File::isSupported, &make<TagLib::Ogg::FLAC::File>},
    {&TagLib::MP4::File::isSupported, &make<TagLib::MP4::File>},
    {&TagLib::RIFF::WAV::File::isSupported, &make<TagLib::RIFF::WAV::File>},
    {&TagLib::RIFF::AIFF::File::isSupported, &make<TagLib::RIFF::AIFF::File>},
    {&TagLib::ASF::File::isSupported, &make<TagLib::ASF::File>},
    {&TagLib::APE::File::isSupported, &make<TagLib::APE::File>},
    {&TagLib::WavPack::File::isSupported, &make<TagLib::WavPack::File>},
    {&TagLib::MPC::File::isSupported, &make<TagLib::MPC::File>},
    {&TagLib::TrueAudio::File::isSupported, &make<TagLib::TrueAudio::File>},
    {&TagLib::MPEG::File::isSupported, &make<TagLib::MPEG::File>},
};

// The file opened as the kind its content shows; null when no signature matches.
TagLib::File* openByContent(const QByteArray& name, bool readProperties) {
    TagLib::FileStream stream(name.constData(), true);
    if (!stream.isOpen())
        return nullptr;
    for (const ContentCheck& check : kContentChecks) {
        if (check.isSupported(&stream))
            return check.make(name.constData(), readProperties);
    }
    return nullptr;
}

const MTETagFamilyID3v2 kID3v2;
const MTETagFamilyMP4 kMP4;
const MTETagFamilyXiph kXiph;
const MTETagFamilyAPE kAPE;
const MTETagFamilyASF kASF;
const MTETagFamilyGeneric kGeneric;

} // namespace

void MTETagFileKind::prepareForThreads() {
    // TagLib 1.13 fills the table of ID3v2 "involved people" keys on its first use without a
    // lock; two conversions saving tags at the same moment then insert into one map at once
    // and corrupt it (seen as a crash in a run of two items). Filled here once, it is only read.
    static std::once_flag once;
    std::call_once(once, [] { TagLib::ID3v2::TextIdentificationFrame::involvedPeopleMap(); });
}

std::unique_ptr<TagLib::FileRef> MTETagFileKind::open(const QString& path, bool readProperties) {
    prepareForThreads();
    // TagLib would happily open a folder and read nothing; ask only about regular files.
    if (!QFileInfo(path).isFile())
        return nullptr;
    const QByteArray name = QFile::encodeName(path);
    std::unique_ptr<TagLib::FileRef> ref;
    if (TagLib::File* file = openByContent(name, readProperties)) {
        ref = std::make_unique<TagLib::FileRef>(file);
    } else {
        // Only kinds without a signature check (tracker modules) are left to the extension:
        // text named .mp3 must not pass as audio.
        ref = std::make_unique<TagLib::FileRef>(name.constData(), readProperties,
                                                TagLib::AudioProperties::Accurate);
        if (!ref->isNull() && fileTypeOf(*ref->file()) != MTEAudioFile::FileTypeUnwritable)
            return nullptr;
    }
    if (ref->isNull() || !ref->file()->isValid())
        return nullptr;
    if (readProperties && (!ref->audioProperties() || ref->audioProperties()->sampleRate() <= 0))
        return nullptr;
    return ref;
}

int MTETagFileKind::fileTypeOf(TagLib::File& file) {
    if (is<TagLib::MPEG::File>(file) || is<TagLib::FLAC::File>(file))
        return MTEAudioFile::FileTypeMPEGOrFLAC;
    if (is<TagLib::MP4::File>(file))
        return MTEAudioFile::FileTypeMP4;
    if (is<TagLib::Ogg::Vorbis::File>(file))
        return MTEAudioFile::FileTypeOggVorbis;
    if (is<TagLib::Ogg::Opus::File>(file))
        return MTEAudioFile::FileTypeOpus;
    if (is<TagLib::RIFF::WAV::File>(file))
        return MTEAudioFile::FileTypeWAV;
    if (is<TagLib::RIFF::AIFF::File>(file))
        return MTEAudioFile::FileTypeAIFF;
    if (is<TagLib::ASF::File>(file))
        return MTEAudioFile::FileTypeASF;
    if (is<TagLib::APE::File>(file))
        return MTEAudioFile::FileTypeAPE;
    if (is<TagLib::WavPack::File>(file))
        return MTEAudioFile::FileTypeWavPack;
    if (is<TagLib::Ogg::FLAC::File>(file))
        return MTEAudioFile::FileTypeOggFLAC;
    if (is<TagLib::Ogg::Speex::File>(file))
        return MTEAudioFile::FileTypeSpeex;
    if (is<TagLib::MPC::File>(file))
        return MTEAudioFile::FileTypeMPC;
    if (is<TagLib::TrueAudio::File>(file))
        return MTEAudioFile::FileTypeTrueAudio;
    return MTEAudioFile::FileTypeUnwritable;
}

const MTETagFamily& MTETagFileKind::familyOf(TagLib::File& file) {
    switch (fileTypeOf(file)) {
    case MTEAudioFile::FileTypeMPEGOrFLAC:
        return is<TagLib::FLAC::File>(file) ? static_cast<const MTETagFamily&>(kXiph) : kID3v2;
    case MTEAudioFile::FileTypeWAV:
    case MTEAudioFile::FileTypeAIFF:
    case MTEAudioFile::FileTypeTrueAudio:
        return kID3v2;
    case MTEAudioFile::FileTypeMP4:
        return kMP4;
    case MTEAudioFile::FileTypeOggVorbis:
    case MTEAudioFile::FileTypeOpus:
    case MTEAudioFile::FileTypeOggFLAC:
    case MTEAudioFile::FileTypeSpeex:
        return kXiph;
    case MTEAudioFile::FileTypeAPE:
    case MTEAudioFile::FileTypeWavPack:
    case MTEAudioFile::FileTypeMPC:
        return kAPE;
    case MTEAudioFile::FileTypeASF:
        return kASF;
    default:
        return kGeneric;
    }
}

const MTETagFamily* MTETagFileKind::familyNamed(const QString& name) {
    for (const MTETagFamily* family : std::initializer_list<const MTETagFamily*>{
             &kID3v2, &kMP4, &kXiph, &kAPE, &kASF, &kGeneric}) {
        if (family->name() == name)
            return family;
    }
    return nullptr;
}

bool MTETagFileKind::edit(const QString& path, const MTETagFamily* expected,
                          const std::function<void(TagLib::File&, const MTETagFamily&)>& change,
                          QString* error) {
    auto fail = [error](const QString& message) {
        if (error)
            *error = message;
        return false;
    };
    auto unwritable = [&path] {
        return QStringLiteral("tags of this kind of file cannot be written: %1").arg(path);
    };
    if (expected && !expected->canWrite())
        return fail(unwritable());
    const auto ref = open(path, false);
    if (!ref)
        return fail(QStringLiteral("cannot open %1 as audio").arg(path));
    TagLib::File& file = *ref->file();
    const MTETagFamily& family = familyOf(file);
    if (expected && &family != expected)
        return fail(QStringLiteral("%1 carries %2 tags, not %3")
                        .arg(path, family.name(), expected->name()));
    if (!family.canWrite())
        return fail(unwritable());
    if (file.readOnly())
        return fail(QStringLiteral("%1 is not writable").arg(path));
    change(file, family);
    if (!save(file))
        return fail(QStringLiteral("could not write the tags of %1").arg(path));
    return true;
}

bool MTETagFileKind::save(TagLib::File& file) {
    if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(&file))
        return mpeg->save(TagLib::MPEG::File::ID3v2, TagLib::File::StripNone, TagLib::ID3v2::v3,
                          TagLib::File::DoNotDuplicate);
    if (auto* wav = dynamic_cast<TagLib::RIFF::WAV::File*>(&file))
        return wav->save(TagLib::RIFF::WAV::File::AllTags, TagLib::File::StripNone,
                         TagLib::ID3v2::v3);
    if (auto* aiff = dynamic_cast<TagLib::RIFF::AIFF::File*>(&file))
        return aiff->save(TagLib::ID3v2::v3);
    return file.save();
}
