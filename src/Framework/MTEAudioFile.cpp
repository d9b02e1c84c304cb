#include "Framework/MTEAudioFile.h"

#include "Framework/MTETagFamily.h"
#include "Framework/MTETagFileKind.h"

#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

#include <taglib/audioproperties.h>
#include <taglib/fileref.h>

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

bool isSameFile(const QString& a, const QString& b) {
    const QString canonicalA = QFileInfo(a).canonicalFilePath();
    return !canonicalA.isEmpty() && canonicalA == QFileInfo(b).canonicalFilePath();
}

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

struct MTEAudioFile::Private {
    // Pictures stay in the file until first needed: Absent (the file has none), InFile (not
    // read yet), Held (in `values`, read or replaced).
    enum class Artwork { Absent, InFile, Held };

    mutable QMutex lock;
    QString filePath;
    int fileType = FileTypeUnwritable;
    const MTETagFamily* family = MTETagFileKind::familyNamed(QStringLiteral("Generic"));
    QMap<QString, QVariant> values;
    Artwork artwork = Artwork::Absent;
    QString tagVersion;
    int bitrate = 0;
    int sampleRate = 0;
    int status = 0;

    Private() = default;
    Private(const Private& other) {
        QMutexLocker locker(&other.lock);
        filePath = other.filePath;
        fileType = other.fileType;
        family = other.family;
        values = other.values;
        artwork = other.artwork;
        tagVersion = other.tagVersion;
        bitrate = other.bitrate;
        sampleRate = other.sampleRate;
        status = other.status;
    }
    Private& operator=(const Private&) = delete;

    QString artworkKey() const { return family->ownKey(MTETagField::AlbumImg); }

    // Called with `lock` held.
    void loadArtwork() {
        if (artwork != Artwork::InFile)
            return;
        MTEArtworkList images;
        if (const auto ref = MTETagFileKind::open(filePath, false);
            ref && &MTETagFileKind::familyOf(*ref->file()) == family)
            images = family->readArtwork(*ref->file());
        // A file changed since it was read may have lost its pictures; then there are none.
        if (images.isEmpty()) {
            values.remove(artworkKey());
            artwork = Artwork::Absent;
        } else {
            values.insert(artworkKey(), QVariant::fromValue(images));
            artwork = Artwork::Held;
        }
    }

    QVariant value(const QString& ownKey) {
        QMutexLocker locker(&lock);
        if (!ownKey.isEmpty() && ownKey == artworkKey())
            loadArtwork();
        return values.value(ownKey);
    }

    void setValue(const QString& ownKey, const QVariant& value) {
        if (ownKey.isEmpty())
            return;
        QMutexLocker locker(&lock);
        const bool isArtwork = ownKey == artworkKey();
        if (!value.isValid()) {
            values.remove(ownKey);
            if (isArtwork)
                artwork = Artwork::Absent;
            return;
        }
        if (isArtwork) {
            values.insert(ownKey, QVariant::fromValue(MTETagFamily::artworkFromVariant(value)));
            artwork = Artwork::Held;
        } else {
            values.insert(ownKey, value);
        }
    }

    QString text(MTETagField field) {
        const QString key = family->ownKey(field);
        return key.isEmpty() ? QString() : value(key).toString();
    }
    void setText(MTETagField field, const QString& text) { setValue(family->ownKey(field), text); }
};

MTEAudioFile::MTEAudioFile()
    : d(std::make_shared<Private>()) {}

std::shared_ptr<MTEAudioFile> MTEAudioFile::openWithPath(const QString& path, bool readTags) {
    const auto ref = MTETagFileKind::open(path);
    if (!ref)
        return nullptr;
    TagLib::File& file = *ref->file();
    std::shared_ptr<MTEAudioFile> handle(new MTEAudioFile);
    Private& p = *handle->d;
    p.filePath = path;
    p.fileType = MTETagFileKind::fileTypeOf(file);
    p.family = &MTETagFileKind::familyOf(file);
    if (readTags) {
        p.values = p.family->readText(file);
        p.artwork =
            p.family->hasArtwork(file) ? Private::Artwork::InFile : Private::Artwork::Absent;
        p.tagVersion = p.family->tagVersion(file);
        if (const TagLib::AudioProperties* properties = ref->audioProperties()) {
            p.bitrate = properties->bitrate();
            p.sampleRate = properties->sampleRate();
        }
    }
    return handle;
}

QString MTEAudioFile::filePath() const {
    QMutexLocker locker(&d->lock);
    return d->filePath;
}

int MTEAudioFile::eumFileType() const {
    QMutexLocker locker(&d->lock);
    return d->fileType;
}

QMap<QString, QString> MTEAudioFile::dicMap() const {
    return d->family->keyMap();
}

QMap<QString, QVariant> MTEAudioFile::dicReadInfo() const {
    QMutexLocker locker(&d->lock);
    d->loadArtwork();
    return d->values;
}

QVariant MTEAudioFile::readInfoValue(const QString& ownKey) const {
    return d->value(ownKey);
}

void MTEAudioFile::setReadInfoValue(const QString& ownKey, const QVariant& value) {
    d->setValue(ownKey, value);
}

int MTEAudioFile::status() const {
    QMutexLocker locker(&d->lock);
    return d->status;
}

void MTEAudioFile::setStatus(int status) {
    QMutexLocker locker(&d->lock);
    d->status = status;
}

bool MTEAudioFile::saveNew(const QString& path, QString* error) {
    auto fail = [error](const QString& message) {
        if (error)
            *error = message;
        return false;
    };
    if (!d->family->canWrite())
        return fail(QStringLiteral("tags of this kind of file cannot be written: %1").arg(path));
    QMap<QString, QVariant> values;
    {
        QMutexLocker locker(&d->lock);
        // Pictures still in the source must travel with the other fields; written back into
        // the same file they can stay where they are.
        if (!isSameFile(path, d->filePath))
            d->loadArtwork();
        values = d->values;
    }
    const auto ref = MTETagFileKind::open(path, false);
    if (!ref)
        return fail(QStringLiteral("cannot open %1 as audio").arg(path));
    TagLib::File& file = *ref->file();
    if (&MTETagFileKind::familyOf(file) != d->family)
        return fail(QStringLiteral("%1 carries %2 tags, not %3")
                        .arg(path, MTETagFileKind::familyOf(file).name(), d->family->name()));
    if (file.readOnly())
        return fail(QStringLiteral("%1 is not writable").arg(path));
    d->family->apply(file, values);
    if (!MTETagFileKind::save(file))
        return fail(QStringLiteral("could not write the tags of %1").arg(path));
    return true;
}

QString MTEAudioFile::strTagVersion() const {
    QMutexLocker locker(&d->lock);
    return d->tagVersion;
}

int MTEAudioFile::bitrate() const {
    QMutexLocker locker(&d->lock);
    return d->bitrate;
}

int MTEAudioFile::sampleRate() const {
    QMutexLocker locker(&d->lock);
    return d->sampleRate;
}

QString MTEAudioFile::title() const {
    return d->text(MTETagField::Title);
}
void MTEAudioFile::setTitle(const QString& value) {
    d->setText(MTETagField::Title, value);
}
QString MTEAudioFile::artist() const {
    return d->text(MTETagField::Artist);
}
void MTEAudioFile::setArtist(const QString& value) {
    d->setText(MTETagField::Artist, value);
}
QString MTEAudioFile::albumArtist() const {
    return d->text(MTETagField::AlbumArtist);
}
void MTEAudioFile::setAlbumArtist(const QString& value) {
    d->setText(MTETagField::AlbumArtist, value);
}
QString MTEAudioFile::composer() const {
    return d->text(MTETagField::Composer);
}
void MTEAudioFile::setComposer(const QString& value) {
    d->setText(MTETagField::Composer, value);
}
QString MTEAudioFile::album() const {
    return d->text(MTETagField::Album);
}
void MTEAudioFile::setAlbum(const QString& value) {
    d->setText(MTETagField::Album, value);
}
QString MTEAudioFile::date() const {
    return d->text(MTETagField::Date);
}
void MTEAudioFile::setDate(const QString& value) {
    d->setText(MTETagField::Date, value);
}
QString MTEAudioFile::genre() const {
    return d->text(MTETagField::Genre);
}
void MTEAudioFile::setGenre(const QString& value) {
    d->setText(MTETagField::Genre, value);
}
QString MTEAudioFile::track() const {
    return d->text(MTETagField::Track);
}
void MTEAudioFile::setTrack(const QString& value) {
    d->setText(MTETagField::Track, value);
}
QString MTEAudioFile::copyright() const {
    return d->text(MTETagField::Copyright);
}
void MTEAudioFile::setCopyright(const QString& value) {
    d->setText(MTETagField::Copyright, value);
}
QString MTEAudioFile::publisher() const {
    return d->text(MTETagField::Publisher);
}
void MTEAudioFile::setPublisher(const QString& value) {
    d->setText(MTETagField::Publisher, value);
}
QString MTEAudioFile::comment() const {
    return d->text(MTETagField::Comment);
}
void MTEAudioFile::setComment(const QString& value) {
    d->setText(MTETagField::Comment, value);
}
QString MTEAudioFile::lyric() const {
    return d->text(MTETagField::Lyric);
}
void MTEAudioFile::setLyric(const QString& value) {
    d->setText(MTETagField::Lyric, value);
}

MTEArtworkList MTEAudioFile::albumImg() const {
    const QString key = d->artworkKey();
    return key.isEmpty() ? MTEArtworkList() : MTETagFamily::artworkFromVariant(d->value(key));
}

void MTEAudioFile::setAlbumImg(const MTEArtworkList& images) {
    d->setValue(d->artworkKey(), QVariant::fromValue(images));
}

bool MTEAudioFile::isArtworkLoaded() const {
    QMutexLocker locker(&d->lock);
    return d->artwork == Private::Artwork::Held;
}

std::shared_ptr<MTEAudioFile> MTEAudioFile::copy() const {
    // Pictures not read yet stay in the file: the copy fetches them itself when asked.
    std::shared_ptr<MTEAudioFile> result(new MTEAudioFile);
    result->d = std::make_shared<Private>(*d);
    return result;
}

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
