#include "workspace/SXMetadataEditing.h"

#include "base/SXSettings.h"
#include "model/SXDataEngine.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QRegularExpression>

namespace SXMetadataEditing {

QList<FieldInfo> tagFields() {
    return {
        {Field::Title, QStringLiteral("tfTitle"),
         QCoreApplication::translate("SXMetadataEditing", "Title")},
        {Field::Artist, QStringLiteral("tfArtist"),
         QCoreApplication::translate("SXMetadataEditing", "Artist")},
        {Field::AlbumArtist, QStringLiteral("tfAlbumArtist"),
         QCoreApplication::translate("SXMetadataEditing", "Album artist")},
        {Field::Composer, QStringLiteral("tfComposer"),
         QCoreApplication::translate("SXMetadataEditing", "Composer")},
        {Field::Album, QStringLiteral("tfAlbum"),
         QCoreApplication::translate("SXMetadataEditing", "Album")},
        {Field::Year, QStringLiteral("tfYear"),
         QCoreApplication::translate("SXMetadataEditing", "Year")},
        {Field::Grouping, QStringLiteral("tfGrouping"),
         QCoreApplication::translate("SXMetadataEditing", "Grouping")},
        {Field::Genre, QStringLiteral("tfGenre"),
         QCoreApplication::translate("SXMetadataEditing", "Genre")},
        {Field::TrackNum, QStringLiteral("tfTrackNum"),
         QCoreApplication::translate("SXMetadataEditing", "Track")},
        {Field::Copyright, QStringLiteral("tfCopyright"),
         QCoreApplication::translate("SXMetadataEditing", "Copyright")},
        {Field::Publisher, QStringLiteral("tfPublisher"),
         QCoreApplication::translate("SXMetadataEditing", "Publisher")},
        {Field::Comments, QStringLiteral("tvComments"),
         QCoreApplication::translate("SXMetadataEditing", "Comments")},
    };
}

QString canNotEditNotice() {
    return QCoreApplication::translate(
        "SXMetadataEditing", "Sorry, this kind format CAN NOT support for editing for metadata");
}

FieldInfo lyricsField() {
    return {Field::Lyrics, QStringLiteral("tvLycirs"),
            QCoreApplication::translate("SXMetadataEditing", "Lyrics")};
}

namespace {
using Getter = QString (MTEAudioFile::*)() const;
using Setter = void (MTEAudioFile::*)(const QString&);
struct Accessors {
    Getter get = nullptr;
    Setter set = nullptr;
};

Accessors accessorsOf(Field field) {
    switch (field) {
    case Field::Title:
        return {&MTEAudioFile::title, &MTEAudioFile::setTitle};
    case Field::Artist:
        return {&MTEAudioFile::artist, &MTEAudioFile::setArtist};
    case Field::AlbumArtist:
        return {&MTEAudioFile::albumArtist, &MTEAudioFile::setAlbumArtist};
    case Field::Composer:
        return {&MTEAudioFile::composer, &MTEAudioFile::setComposer};
    case Field::Album:
        return {&MTEAudioFile::album, &MTEAudioFile::setAlbum};
    case Field::Year:
        return {&MTEAudioFile::date, &MTEAudioFile::setDate};
    case Field::Genre:
        return {&MTEAudioFile::genre, &MTEAudioFile::setGenre};
    case Field::TrackNum:
        return {&MTEAudioFile::track, &MTEAudioFile::setTrack};
    case Field::Copyright:
        return {&MTEAudioFile::copyright, &MTEAudioFile::setCopyright};
    case Field::Publisher:
        return {&MTEAudioFile::publisher, &MTEAudioFile::setPublisher};
    case Field::Comments:
        return {&MTEAudioFile::comment, &MTEAudioFile::setComment};
    case Field::Lyrics:
        return {&MTEAudioFile::lyric, &MTEAudioFile::setLyric};
    case Field::Grouping:
        return {&MTEAudioFile::grouping, &MTEAudioFile::setGrouping};
    }
    return {};
}
} // namespace

QString readField(const MTEAudioFile& tags, Field field) {
    const Accessors accessors = accessorsOf(field);
    return accessors.get ? (tags.*accessors.get)() : QString();
}

void writeField(MTEAudioFile& tags, Field field, const QString& text) {
    const Accessors accessors = accessorsOf(field);
    if (accessors.set)
        (tags.*accessors.set)(text);
}

bool isCanEditable(const SXMusicInfo* item) {
    return item && SXDataEngine::shareInstance()->getCanEditMetadataMusicType().contains(
                       item->getStrMusicType());
}

int initialSliderValue(QSizeF image, QSizeF view) {
    // Both sides are measured against the view's height, as the editor always has.
    return image.width() > view.height() || image.height() > view.height() ? 100 : 0;
}

QSizeF scaledArtworkSize(QSizeF image, QSizeF view, int sliderValue) {
    const double ow = image.width(), oh = image.height();
    const double bw = view.width(), bh = view.height();
    const double k = sliderValue / 100.0, r = 1.0 - k;
    double w = 0, h = 0;
    if (ow > bw || oh > bh) {
        const bool bothLarger = ow > bw && oh > bh;
        if ((bothLarger && ow > oh) || (!bothLarger && ow > bw)) {
            w = ow - r * (ow - bw);
            h = oh / ow * w;
        } else if (bothLarger) {
            h = oh - r * (oh - bh);
            w = ow / oh * h;
        } else { // only the height is larger: the width stays
            h = oh - r * (oh - bh);
            w = ow;
        }
    } else if (ow < bw && oh < bh) {
        if (bw > bh) {
            w = ow + k * (bw - ow);
            h = oh / ow * w;
        } else {
            h = oh + k * (bh - oh);
            w = ow / oh * h;
        }
    } else if (ow < bw) { // equal heights
        w = ow + k * (bw - ow);
        h = oh / ow * w;
    }
    // Equal widths or an equal size leave no area: show the image as it is instead.
    if (!(w > 0 && h > 0))
        return image;
    return {w, h};
}

MTEArtwork encodeArtwork(const QImage& base, QSize size, const QString& likeMimeType) {
    const QImage scaled = base.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const bool jpeg = likeMimeType == QLatin1String("image/jpeg");
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    scaled.save(&buffer, jpeg ? "JPEG" : "PNG", jpeg ? 90 : -1);
    return {bytes, jpeg ? QStringLiteral("image/jpeg") : QStringLiteral("image/png")};
}

QImage decodeArtwork(const MTEArtwork& artwork) {
    return QImage::fromData(artwork.data);
}

QStringList imageFilePatterns() {
    QStringList patterns;
    for (const QString& type : SXDataEngine::getCanUseImageType())
        patterns.append(QStringLiteral("*.") + type.toLower());
    return patterns;
}

std::optional<MTEArtwork> artworkFromFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    if (format.isEmpty() || QImage::fromData(bytes).isNull())
        return std::nullopt;
    const QString mime = format == "jpeg" ? QStringLiteral("image/jpeg")
                                          : QStringLiteral("image/") + QString::fromLatin1(format);
    return MTEArtwork{bytes, mime};
}

void EditSession::begin(const SXMusicInfoPtr& item) {
    const auto tags = item ? item->metHandler() : nullptr;
    if (!tags)
        return;
    for (const auto& saved : std::as_const(m_saved)) {
        if (saved.first == item)
            return;
    }
    m_saved.append({item, tags->copy()});
}

void EditSession::accept() {
    m_saved.clear();
}

void EditSession::discard() {
    for (const auto& [item, saved] : std::as_const(m_saved)) {
        if (const auto tags = item->metHandler())
            tags->restoreValues(*saved);
    }
    m_saved.clear();
}

QString pointString(QPoint point) {
    return QStringLiteral("{%1, %2}").arg(point.x()).arg(point.y());
}

std::optional<QPoint> parsePointString(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*\{\s*(-?[\d.]+)\s*,\s*(-?[\d.]+)\s*\}\s*$)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QLocale c = QLocale::c();
    return QPoint(qRound(c.toDouble(match.captured(1))), qRound(c.toDouble(match.captured(2))));
}

std::optional<QPoint> storedWindowPosition() {
    return parsePointString(SXSettings::stringForKey(SXSettingsKey::MetadataWndPosition));
}

void saveWindowPosition(QPoint origin) {
    SXSettings::setValue(SXSettingsKey::MetadataWndPosition, pointString(origin));
    SXSettings::synchronize();
}

} // namespace SXMetadataEditing
