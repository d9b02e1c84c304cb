#pragma once

#include "framework/MTEAudioFile.h"
#include "model/SXMusicInfo.h"

#include <QImage>
#include <QList>
#include <QPoint>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <optional>

// What the tag editor asks the workspace that opened it: whether there is a previous (0) or a
// next (1) item in the shown list, and that item, with its row selected.
class SXMetadataEditListener {
public:
    virtual ~SXMetadataEditListener() = default;
    virtual bool canMetadataEditorPerform(const SXMusicInfoPtr& editing, int function) const = 0;
    virtual SXMusicInfoPtr metadataEditorAsksForItem(const SXMusicInfoPtr& editing,
                                                     int function) = 0;
};

// The tag editor's decisions, without its window: which fields it shows and which tag each one
// writes, whether an item may be edited, how the artwork is sized, where the window goes.
namespace SXMetadataEditing {

// The fields in the order the window shows them.
enum class Field {
    Title,
    Artist,
    AlbumArtist,
    Composer,
    Album,
    Year,
    Grouping,
    Genre,
    TrackNum,
    Copyright,
    Publisher,
    Comments,
    Lyrics,
};
struct FieldInfo {
    Field field;
    QString outlet;  // the control's object name (tfTitle, tvComments, ...)
    QString caption; // the label beside it
};
// The eleven one-line fields and the comments box (the tags tab); the lyrics have their own tab.
QList<FieldInfo> tagFields();
FieldInfo lyricsField();

QString readField(const MTEAudioFile& tags, Field field);
// Stores what the user typed.
void writeField(MTEAudioFile& tags, Field field, const QString& text);

// Only containers whose format may carry edited tags.
bool isCanEditable(const SXMusicInfo* item);

// The artwork slider (0..100) for an image in a view: 100 when the image is taller or wider
// than the view's height, otherwise 0; both mean "the image at its own size".
int initialSliderValue(QSizeF image, QSizeF view);
// The size the artwork is drawn and stored at for a slider value: a large image runs from
// fitting the view (0) to its own size (100), a small one from its own size (0) to filling the
// view (100). Where the rule gives no area (an image exactly as wide or as large as the view),
// the image keeps its own size.
QSizeF scaledArtworkSize(QSizeF image, QSizeF view, int sliderValue);
// `base` drawn into `size`, encoded like `like` (JPEG stays JPEG, anything else becomes PNG).
MTEArtwork encodeArtwork(const QImage& base, QSize size, const QString& likeMimeType);
// The picture of an artwork record; null when it cannot be decoded.
QImage decodeArtwork(const MTEArtwork& artwork);
// "*.png *.jpeg *.jpg": the picture types the catalogue accepts as artwork.
QStringList imageFilePatterns();
// A picture file as the tags will carry it: its own bytes and type. None when it is no image.
std::optional<MTEArtwork> artworkFromFile(const QString& path);

// The notice above the fields of a format that cannot carry tags.
QString canNotEditNotice();

// The records of the items shown since the window opened, as they were before any edit: the
// fields write straight into an item's record, so leaving without OK must put them back.
class EditSession {
public:
    // Remembers `item`'s record unless it already is.
    void begin(const SXMusicInfoPtr& item);
    // OK: the edits stay.
    void accept();
    // Cancel, Escape or closing the window: every shown item's record is as it was.
    void discard();

private:
    QList<std::pair<SXMusicInfoPtr, std::shared_ptr<MTEAudioFile>>> m_saved;
};

// The window's remembered origin under "com.snr.metadataWndPosition", as "{x, y}".
QString pointString(QPoint point);
std::optional<QPoint> parsePointString(const QString& text);
std::optional<QPoint> storedWindowPosition();
void saveWindowPosition(QPoint origin);

} // namespace SXMetadataEditing
