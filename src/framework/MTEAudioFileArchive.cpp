#include "framework/MTEAudioFilePrivate.h"

// A handle's archived form, for items dragged between windows: the values read and edited, and
// pictures only when they are already held (others are fetched from the file again).
namespace {

const QString kPathKey = QStringLiteral("strFilePath");
const QString kFileTypeKey = QStringLiteral("eumFileType");
const QString kFamilyKey = QStringLiteral("strTagFamily");
const QString kStatusKey = QStringLiteral("status");
const QString kTagVersionKey = QStringLiteral("strTagVersion");
const QString kBitrateKey = QStringLiteral("bitrate");
const QString kSampleRateKey = QStringLiteral("sampleRate");
const QString kValuesKey = QStringLiteral("dicReadInfo");
const QString kImagesKey = QStringLiteral("albumImg");
const QString kImagesInFileKey = QStringLiteral("bArtworkInFile");

QVariantList archivedImages(const MTEArtworkList& images) {
    QVariantList list;
    for (const MTEArtwork& image : images)
        list.append(QVariantMap{{QStringLiteral("data"), image.data},
                                {QStringLiteral("mimeType"), image.mimeType}});
    return list;
}

MTEArtworkList restoredImages(const QVariantList& list) {
    MTEArtworkList images;
    for (const QVariant& entry : list) {
        const QVariantMap map = entry.toMap();
        images.append({map.value(QStringLiteral("data")).toByteArray(),
                       map.value(QStringLiteral("mimeType")).toString()});
    }
    return images;
}

} // namespace

void MTEAudioFile::encodeWithCoder(SXCoder& coder) const {
    if (!coder.allowsKeyedCoding())
        return;
    QMutexLocker locker(&d->lock);
    coder.encode(kPathKey, d->filePath);
    coder.encode(kFileTypeKey, d->fileType);
    coder.encode(kFamilyKey, d->family->name());
    coder.encode(kStatusKey, d->status);
    coder.encode(kTagVersionKey, d->tagVersion);
    coder.encode(kBitrateKey, d->bitrate);
    coder.encode(kSampleRateKey, d->sampleRate);
    QVariantMap texts = d->values;
    texts.remove(d->artworkKey());
    coder.encode(kValuesKey, texts);
    if (d->artwork == Private::Artwork::Held)
        coder.encode(kImagesKey, archivedImages(MTETagFamily::artworkFromVariant(
                                     d->values.value(d->artworkKey()))));
    coder.encode(kImagesInFileKey, d->artwork == Private::Artwork::InFile);
}

std::shared_ptr<MTEAudioFile> MTEAudioFile::decodeWithCoder(const SXCoder& coder) {
    if (!coder.allowsKeyedCoding())
        return nullptr;
    const MTETagFamily* family = MTETagFileKind::familyNamed(coder.decodeString(kFamilyKey));
    if (!family)
        return nullptr;
    std::shared_ptr<MTEAudioFile> handle(new MTEAudioFile);
    Private& p = *handle->d;
    p.family = family;
    p.filePath = coder.decodeString(kPathKey);
    p.fileType = coder.decodeInt(kFileTypeKey);
    p.status = coder.decodeInt(kStatusKey);
    p.tagVersion = coder.decodeString(kTagVersionKey);
    p.bitrate = coder.decodeInt(kBitrateKey);
    p.sampleRate = coder.decodeInt(kSampleRateKey);
    p.values = coder.decode(kValuesKey).toMap();
    if (coder.containsValueForKey(kImagesKey)) {
        p.values.insert(p.artworkKey(),
                        QVariant::fromValue(restoredImages(coder.decode(kImagesKey).toList())));
        p.artwork = Private::Artwork::Held;
    } else if (coder.decodeBool(kImagesInFileKey)) {
        p.artwork = Private::Artwork::InFile;
    }
    return handle;
}
