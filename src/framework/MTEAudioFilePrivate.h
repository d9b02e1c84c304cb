#pragma once

#include "framework/MTEAudioFile.h"
#include "framework/MTETagFamily.h"
#include "framework/MTETagFileKind.h"

#include <QMutex>
#include <QMutexLocker>

#include <taglib/fileref.h>

// What a tag handle holds, shared by the files that define its operations (reading and saving,
// the generic fields, the archive).
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
