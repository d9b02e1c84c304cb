#pragma once

#include "base/SXCoder.h"
#include "framework/MTEArtwork.h"

#include <QMap>
#include <QString>
#include <QVariant>
#include <memory>

// The tag handle of one audio file: what its tags say, in the file kind's own keys, plus the
// generic names the rest of the program uses. A handle reads the file and closes it again; it
// never keeps the file open. Generic field names (the keys of dicMap()):
//   title artist albumArtist composer album date genre track copyright publisher comment lyric
//   grouping albumImg
// albumImg's value is an MTEArtworkList; every other value is a QString.
class MTEAudioFile {
public:
    // File kinds. 0, 1 and 4 are the codes getTagFileFormatByFileType() hands out (MP3 and FLAC
    // share 0, MP4 is 1, 4 cannot be written); every other kind TagLib writes has its own code.
    enum FileType : int {
        FileTypeMPEGOrFLAC = 0,
        FileTypeMP4 = 1,
        FileTypeOggVorbis = 2,
        FileTypeOpus = 3,
        FileTypeUnwritable = 4,
        FileTypeWAV = 5,
        FileTypeAIFF = 6,
        FileTypeASF = 7,
        FileTypeAPE = 8,
        FileTypeWavPack = 9,
        FileTypeOggFLAC = 10,
        FileTypeSpeex = 11,
        FileTypeMPC = 12,
        FileTypeTrueAudio = 13,
    };

    virtual ~MTEAudioFile() = default;

    QString filePath() const;
    int eumFileType() const;

    // Generic field name -> this kind's own key (ID3v2 frame id, MP4 atom, Vorbis comment
    // name, APE/ASF key).
    QMap<QString, QString> dicMap() const;
    // Own key -> value, as read (and as edited since). Cover art is fetched from the file the
    // first time it is asked for, unless it was replaced before.
    QMap<QString, QVariant> dicReadInfo() const;
    QVariant readInfoValue(const QString& ownKey) const;
    void setReadInfoValue(const QString& ownKey, const QVariant& value);

    int status() const;
    void setStatus(int status);

    // Writes the tags held here into the file at `path` (which must be of this handle's kind).
    // Fields absent from dicReadInfo() stay as the file has them; an empty text or an empty
    // albumImg list removes the field. False with *error set when nothing could be written.
    bool saveNew(const QString& path, QString* error = nullptr);

    QString strTagVersion() const; // for example "ID3 v2.4"
    int bitrate() const;           // kbit/s, from the audio properties
    int sampleRate() const;        // Hz

    // Generic accessors; an empty string means "not set".
    QString title() const;
    void setTitle(const QString& value);
    QString artist() const;
    void setArtist(const QString& value);
    QString albumArtist() const;
    void setAlbumArtist(const QString& value);
    QString composer() const;
    void setComposer(const QString& value);
    QString album() const;
    void setAlbum(const QString& value);
    QString date() const;
    void setDate(const QString& value);
    QString genre() const;
    void setGenre(const QString& value);
    QString track() const;
    void setTrack(const QString& value);
    QString copyright() const;
    void setCopyright(const QString& value);
    QString publisher() const;
    void setPublisher(const QString& value);
    QString comment() const;
    void setComment(const QString& value);
    QString lyric() const;
    void setLyric(const QString& value);
    QString grouping() const;
    void setGrouping(const QString& value);
    MTEArtworkList albumImg() const;
    void setAlbumImg(const MTEArtworkList& images);

    // Whether the pictures are held in memory: false until they are first asked for (or
    // replaced), so a handle of a file with large cover art stays small.
    bool isArtworkLoaded() const;

    // An independent handle with the same values (edits to one never reach the other).
    std::shared_ptr<MTEAudioFile> copy() const;
    // Takes back the values of `saved` (a copy() of this handle), in place, so every holder of
    // this handle sees the record as it was when the copy was made.
    void restoreValues(const MTEAudioFile& saved);

    void encodeWithCoder(SXCoder& coder) const;
    static std::shared_ptr<MTEAudioFile> decodeWithCoder(const SXCoder& coder);

protected:
    MTEAudioFile();
    MTEAudioFile(const MTEAudioFile&) = default;

private:
    friend class MTEAudioFileMgr;
    // Opens `path` once: the kind, and with `readTags` the text fields, audio properties and
    // whether pictures are present. Null when TagLib cannot open it as audio.
    static std::shared_ptr<MTEAudioFile> openWithPath(const QString& path, bool readTags);

    struct Private;
    std::shared_ptr<Private> d; // copy() deep-copies it
};
