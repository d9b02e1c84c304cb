#include "framework/MTEAudioFile.h"

#include "framework/MTEAudioFilePrivate.h"

#include <QFileInfo>

#include <taglib/audioproperties.h>

namespace {

bool isSameFile(const QString& a, const QString& b) {
    const QString canonicalA = QFileInfo(a).canonicalFilePath();
    return !canonicalA.isEmpty() && canonicalA == QFileInfo(b).canonicalFilePath();
}

} // namespace

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
    QMap<QString, QVariant> values;
    {
        QMutexLocker locker(&d->lock);
        // Pictures still in the source must travel with the other fields; written back into
        // the same file they can stay where they are.
        if (!isSameFile(path, d->filePath))
            d->loadArtwork();
        values = d->values;
    }
    return MTETagFileKind::edit(
        path, d->family,
        [&values](TagLib::File& file, const MTETagFamily& family) { family.apply(file, values); },
        error);
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

void MTEAudioFile::restoreValues(const MTEAudioFile& saved) {
    if (saved.d == d)
        return;
    const Private old(*saved.d); // copied under its own lock, so the two are never held together
    QMutexLocker locker(&d->lock);
    d->values = old.values;
    d->artwork = old.artwork;
}
