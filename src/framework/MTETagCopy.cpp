#include "framework/MTETagCopy.h"

#include "framework/MTETagFamily.h"
#include "framework/MTETagFileKind.h"

#include <taglib/fileref.h>

namespace {

// TagLib's well-known property names for what the record does not hold, and the ReplayGain
// values. Anything else a source carries (the program that encoded it, its container's
// details, other programs' private fields) stays behind.
const char* const kOtherFieldNames[] = {
    "SUBTITLE",
    "DISCNUMBER",
    "DISCSUBTITLE",
    "ORIGINALDATE",
    "TITLESORT",
    "ALBUMSORT",
    "ARTISTSORT",
    "ALBUMARTISTSORT",
    "COMPOSERSORT",
    "LYRICIST",
    "CONDUCTOR",
    "REMIXER",
    "ARRANGER",
    "ENGINEER",
    "PRODUCER",
    "DJMIXER",
    "MIXER",
    "ORIGINALALBUM",
    "ORIGINALARTIST",
    "ORIGINALLYRICIST",
    "ISRC",
    "ASIN",
    "BPM",
    "MOOD",
    "MEDIA",
    "CATALOGNUMBER",
    "BARCODE",
    "RELEASECOUNTRY",
    "RELEASESTATUS",
    "RELEASETYPE",
    "COMPILATION",
    "MUSICBRAINZ_TRACKID",
    "MUSICBRAINZ_ALBUMID",
    "MUSICBRAINZ_RELEASEGROUPID",
    "MUSICBRAINZ_RELEASETRACKID",
    "MUSICBRAINZ_WORKID",
    "MUSICBRAINZ_ARTISTID",
    "MUSICBRAINZ_ALBUMARTISTID",
    "ACOUSTID_ID",
    "ACOUSTID_FINGERPRINT",
    "MUSICIP_PUID",
    "REPLAYGAIN_TRACK_GAIN",
    "REPLAYGAIN_TRACK_PEAK",
    "REPLAYGAIN_ALBUM_GAIN",
    "REPLAYGAIN_ALBUM_PEAK",
    "REPLAYGAIN_REFERENCE_LOUDNESS",
};
// Performers come with their instrument: "PERFORMER:PIANO".
const TagLib::String kPerformerPrefix("PERFORMER:");

bool isOtherField(const TagLib::String& name) {
    if (name.startsWith(kPerformerPrefix))
        return true;
    for (const char* known : kOtherFieldNames) {
        if (name == known)
            return true;
    }
    return false;
}

// The well-known fields of the source file beyond the record, under TagLib's property names.
TagLib::PropertyMap otherFieldsOf(const QString& sourcePath) {
    TagLib::PropertyMap others;
    const auto ref = sourcePath.isEmpty() ? nullptr : MTETagFileKind::open(sourcePath, false);
    if (!ref)
        return others;
    TagLib::File& file = *ref->file();
    for (const auto& [name, values] : MTETagFileKind::familyOf(file).properties(file)) {
        if (isOtherField(name))
            others.insert(name, values);
    }
    return others;
}

// An own key of the source leads through the generic name that maps to it (the last of several)
// to the destination's key. Fields the destination kind cannot hold are dropped; values are
// copied as they are.
void copyRecord(const MTEAudioFile& source, MTEAudioFile& destination) {
    const QMap<QString, QString> sourceMap = source.dicMap();
    const QMap<QString, QString> destinationMap = destination.dicMap();
    const QMap<QString, QVariant> values = source.dicReadInfo();
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        // Several generic names may share one own key; the last one decides.
        QString generic;
        for (auto entry = sourceMap.cbegin(); entry != sourceMap.cend(); ++entry) {
            if (entry.value() == value.key())
                generic = entry.key();
        }
        const QString destinationKey = destinationMap.value(generic);
        if (!generic.isEmpty() && !destinationKey.isEmpty() && value.value().isValid())
            destination.setReadInfoValue(destinationKey, value.value());
    }
}

// The gain fields of either form: a measured gain makes the source's wrong, and an output whose
// samples already carry the gain must not tell a player to apply it again.
bool isLoudnessField(const TagLib::String& name) {
    return name.startsWith("REPLAYGAIN_") || name.startsWith("R128_");
}

void putLoudness(TagLib::PropertyMap& others, const MTELoudnessFields& loudness) {
    if (!loudness.replace)
        return;
    TagLib::StringList doomed;
    for (const auto& [name, values] : others) {
        if (isLoudnessField(name))
            doomed.append(name);
    }
    for (const TagLib::String& name : doomed)
        others.erase(name);
    for (auto field = loudness.fields.cbegin(); field != loudness.fields.cend(); ++field)
        others.replace(
            TagLib::String(field.key().toStdString(), TagLib::String::UTF8),
            TagLib::StringList(TagLib::String(field.value().toStdString(), TagLib::String::UTF8)));
}

} // namespace

bool MTETagCopy::carriesProperty(const QString& name) {
    return isOtherField(TagLib::String(name.toStdString(), TagLib::String::UTF8));
}

bool MTETagCopy::copy(const MTEAudioFile* source, MTEAudioFile& destination, const QString& path,
                      QString* error, const MTELoudnessFields& loudness) {
    if (source)
        copyRecord(*source, destination);
    const QMap<QString, QVariant> record = destination.dicReadInfo();
    TagLib::PropertyMap others = otherFieldsOf(source ? source->filePath() : QString());
    putLoudness(others, loudness);
    return MTETagFileKind::edit(
        path, nullptr,
        [&](TagLib::File& file, const MTETagFamily& family) {
            family.removeAllButEncoder(file);
            family.addProperties(file, others);
            family.apply(file, record);
        },
        error);
}

void MTETagCopy::overrideWithCueTrack(const SXCueTrack& track, MTEAudioFile& handle) {
    const auto put = [](const QString& value, auto setter) {
        if (!value.isEmpty())
            setter(value);
    };
    put(track.title, [&](const QString& v) { handle.setTitle(v); });
    put(track.performer, [&](const QString& v) { handle.setArtist(v); });
    put(track.album, [&](const QString& v) { handle.setAlbum(v); });
    put(track.albumPerformer, [&](const QString& v) { handle.setAlbumArtist(v); });
    put(track.date, [&](const QString& v) { handle.setDate(v); });
    put(track.genre, [&](const QString& v) { handle.setGenre(v); });
    handle.setTrack(QStringLiteral("%1/%2").arg(track.number).arg(track.total));
}
