#include "LSMedia.h"

#include <QStringLiteral>

#define SX_LOCKED_PROPERTY(Type, getter, setter, field)                                            \
    Type LSMedia::getter() const {                                                                 \
        QMutexLocker guard(&m_lock);                                                               \
        return field;                                                                              \
    }                                                                                              \
    void LSMedia::setter(Type value) {                                                             \
        QMutexLocker guard(&m_lock);                                                               \
        field = value;                                                                             \
    }

SX_LOCKED_PROPERTY(int, eumCvtState, setEumCvtState, m_eumCvtState)
SX_LOCKED_PROPERTY(double, dFileSize, setDFileSize, m_dFileSize)
SX_LOCKED_PROPERTY(bool, alreadyConverted, setAlreadyConverted, m_alreadyConverted)

#undef SX_LOCKED_PROPERTY

#define SX_LOCKED_STRING(getter, setter, field)                                                    \
    QString LSMedia::getter() const {                                                              \
        QMutexLocker guard(&m_lock);                                                               \
        return field;                                                                              \
    }                                                                                              \
    void LSMedia::setter(const QString& value) {                                                   \
        QMutexLocker guard(&m_lock);                                                               \
        field = value;                                                                             \
    }

SX_LOCKED_STRING(strLastModified, setStrLastModified, m_strLastModified)
SX_LOCKED_STRING(strOutFileName, setStrOutFileName, m_strOutFileName)
SX_LOCKED_STRING(failReason, setFailReason, m_failReason)
SX_LOCKED_STRING(addedFromFolder, setAddedFromFolder, m_addedFromFolder)
SX_LOCKED_STRING(discNumber, setDiscNumber, m_discNumber)

#undef SX_LOCKED_STRING

std::optional<SXCueTrack> LSMedia::cueTrack() const {
    QMutexLocker guard(&m_lock);
    return m_cueTrack;
}

void LSMedia::setCueTrack(const std::optional<SXCueTrack>& track) {
    QMutexLocker guard(&m_lock);
    m_cueTrack = track;
}

namespace {
// A track travels with its item between windows, under keys of its own.
void encodeCueTrack(SXCoder& coder, const SXCueTrack& track) {
    coder.encode(QStringLiteral("cueNumber"), track.number);
    coder.encode(QStringLiteral("cueTotal"), track.total);
    coder.encode(QStringLiteral("cueTitle"), track.title);
    coder.encode(QStringLiteral("cuePerformer"), track.performer);
    coder.encode(QStringLiteral("cueAlbum"), track.album);
    coder.encode(QStringLiteral("cueAlbumPerformer"), track.albumPerformer);
    coder.encode(QStringLiteral("cueDate"), track.date);
    coder.encode(QStringLiteral("cueGenre"), track.genre);
    coder.encode(QStringLiteral("cueFile"), track.file);
    coder.encode(QStringLiteral("cueSheet"), track.sheet);
    coder.encode(QStringLiteral("cueStartFrame"), track.startFrame);
    coder.encode(QStringLiteral("cueEndFrame"), track.endFrame);
}

SXCueTrack decodeCueTrack(const SXCoder& coder) {
    SXCueTrack track;
    track.number = coder.decodeInt(QStringLiteral("cueNumber"));
    track.total = coder.decodeInt(QStringLiteral("cueTotal"));
    track.title = coder.decodeString(QStringLiteral("cueTitle"));
    track.performer = coder.decodeString(QStringLiteral("cuePerformer"));
    track.album = coder.decodeString(QStringLiteral("cueAlbum"));
    track.albumPerformer = coder.decodeString(QStringLiteral("cueAlbumPerformer"));
    track.date = coder.decodeString(QStringLiteral("cueDate"));
    track.genre = coder.decodeString(QStringLiteral("cueGenre"));
    track.file = coder.decodeString(QStringLiteral("cueFile"));
    track.sheet = coder.decodeString(QStringLiteral("cueSheet"));
    track.startFrame = coder.decode(QStringLiteral("cueStartFrame")).toLongLong();
    track.endFrame = coder.decode(QStringLiteral("cueEndFrame")).toLongLong();
    return track;
}
} // namespace

std::shared_ptr<LSMedia> LSMedia::copy() const {
    auto result = std::make_shared<LSMedia>();
    copyBaseTo(*result);
    result->setEumCvtState(eumCvtState());
    result->setStrOutFileName(strOutFileName());
    result->setFailReason(failReason());
    result->setAddedFromFolder(addedFromFolder());
    result->setDiscNumber(discNumber());
    result->setAlreadyConverted(alreadyConverted());
    result->setStrLastModified(strLastModified());
    result->setDFileSize(dFileSize());
    result->setCueTrack(cueTrack());
    return result;
}

QString LSMedia::description() const {
    return QStringLiteral("id:%1, filePath = %2")
        .arg(QString::asprintf("%p", static_cast<const void*>(this)), filePath());
}

void LSMedia::encodeWithCoder(SXCoder& coder) const {
    if (!coder.allowsKeyedCoding())
        return;
    HVMediaInfoItem::encodeWithCoder(coder);
    coder.encode(QStringLiteral("strLastModified"), strLastModified());
    coder.encode(QStringLiteral("dFileSize"), dFileSize());
    coder.encode(QStringLiteral("eumCvtState"), eumCvtState());
    coder.encode(QStringLiteral("eumMediaType"), eumMediaType());
    // Archives have always carried the output settings under these keys. The record no longer
    // holds them, so they are written as a record that has not run yet wrote them (the probe's
    // values, no encoder) and an archive keeps every key an earlier build reads; nobody reads
    // them back.
    coder.encode(QStringLiteral("dAOBitrate"), audioBitrate() / 1000.0);
    coder.encode(QStringLiteral("dAOSamplerate"), audioSamplerate());
    coder.encode(QStringLiteral("iAOChannels"), audioChannels());
    coder.encode(QStringLiteral("vOACodecName"), QString());
    coder.encode(QStringLiteral("strOutFileExt"), QString());
    coder.encode(QStringLiteral("strOutFileName"), strOutFileName());
    if (const std::optional<SXCueTrack> track = cueTrack())
        encodeCueTrack(coder, *track);
    // A file moved to another container keeps its place below the folder it came from and its
    // disc number. Written only when there is one, so the archive of any other record keeps
    // exactly the keys it always had.
    if (const QString folder = addedFromFolder(); !folder.isEmpty())
        coder.encode(QStringLiteral("addedFromFolder"), folder);
    if (const QString disc = discNumber(); !disc.isEmpty())
        coder.encode(QStringLiteral("discNumber"), disc);
}

void LSMedia::initWithCoder(const SXCoder& coder) {
    if (!coder.allowsKeyedCoding())
        return;
    HVMediaInfoItem::initWithCoder(coder);
    setStrLastModified(coder.decodeString(QStringLiteral("strLastModified")));
    setDFileSize(coder.decodeDouble(QStringLiteral("dFileSize")));
    setEumCvtState(coder.decodeInt(QStringLiteral("eumCvtState")));
    setEumMediaType(coder.decodeInt(QStringLiteral("eumMediaType")));
    setStrOutFileName(coder.decodeString(QStringLiteral("strOutFileName")));
    if (coder.containsValueForKey(QStringLiteral("cueSheet")))
        setCueTrack(decodeCueTrack(coder));
    setAddedFromFolder(coder.decodeString(QStringLiteral("addedFromFolder")));
    setDiscNumber(coder.decodeString(QStringLiteral("discNumber")));
}

std::shared_ptr<LSMedia> LSMedia::decodeWithCoder(const SXCoder& coder) {
    auto media = std::make_shared<LSMedia>();
    media->initWithCoder(coder);
    return media;
}
