#pragma once

#include <QFile>
#include <QList>
#include <QMultiMap>
#include <QString>
#include <QStringList>

#include <taglib/apetag.h>
#include <taglib/asffile.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/commentsframe.h>
#include <taglib/fileref.h>
#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mp4tag.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/tpropertymap.h>
#include <taglib/unsynchronizedlyricsframe.h>
#include <taglib/wavpackfile.h>
#include <taglib/xiphcomment.h>

// A file's tags as its own kind keeps them: ID3v2 frames, MP4 atoms, Xiph comments, ASF
// attributes and APE items, one entry per value so that a field written twice shows; other kinds
// under TagLib's property names. Shared by the tests that read what a conversion wrote.
namespace NativeTags {

using namespace Qt::StringLiterals;

inline QString text(const TagLib::String& value) {
    return QString::fromStdString(value.to8Bit(true));
}
inline QByteArray qbytes(const TagLib::ByteVector& data) {
    return QByteArray(data.data(), qsizetype(data.size()));
}

struct Tags {
    QMultiMap<QString, QString> fields;
    QList<QByteArray> pictures;
};

inline void readID3v2(const TagLib::ID3v2::Tag& tag, Tags* out) {
    for (TagLib::ID3v2::Frame* frame : tag.frameList()) {
        const QString id = QString::fromLatin1(frame->frameID().data(), 4);
        if (auto* picture = dynamic_cast<TagLib::ID3v2::AttachedPictureFrame*>(frame)) {
            out->pictures.append(qbytes(picture->picture()));
        } else if (auto* user = dynamic_cast<TagLib::ID3v2::UserTextIdentificationFrame*>(frame)) {
            const TagLib::StringList values = user->fieldList();
            for (unsigned i = 1; i < values.size(); ++i) // the first is the description
                out->fields.insert(id + u':' + text(user->description()), text(values[i]));
        } else if (auto* textFrame = dynamic_cast<TagLib::ID3v2::TextIdentificationFrame*>(frame)) {
            for (const TagLib::String& value : textFrame->fieldList())
                out->fields.insert(id, text(value));
        } else if (auto* comment = dynamic_cast<TagLib::ID3v2::CommentsFrame*>(frame)) {
            out->fields.insert(id, text(comment->text()));
        } else if (auto* lyrics = dynamic_cast<TagLib::ID3v2::UnsynchronizedLyricsFrame*>(frame)) {
            out->fields.insert(id, text(lyrics->text()));
        } else {
            out->fields.insert(id, text(frame->toString()));
        }
    }
}

inline void readMP4(const TagLib::MP4::Tag& tag, Tags* out) {
    for (const auto& [key, item] : tag.itemMap()) {
        const QString name = text(key);
        if (name == "covr"_L1) {
            for (const TagLib::MP4::CoverArt& cover : item.toCoverArtList())
                out->pictures.append(qbytes(cover.data()));
        } else if (name == "trkn"_L1 || name == "disk"_L1) {
            out->fields.insert(name,
                               u"%1/%2"_s.arg(item.toIntPair().first).arg(item.toIntPair().second));
        } else {
            for (const TagLib::String& value : item.toStringList())
                out->fields.insert(name, text(value));
        }
    }
}

inline void readXiph(TagLib::Ogg::XiphComment& comment, Tags* out) {
    for (const auto& [name, values] : comment.fieldListMap()) {
        for (const TagLib::String& value : values)
            out->fields.insert(text(name), text(value));
    }
    for (const TagLib::FLAC::Picture* picture : comment.pictureList())
        out->pictures.append(qbytes(picture->data()));
}

// An ID3v1 or APE tag beside an MP3's ID3v2 tag, or ID3 tags in a FLAC file, show as a field
// "another tag".
inline Tags read(const QString& path) {
    Tags out;
    const TagLib::FileRef ref(QFile::encodeName(path).constData());
    if (auto* mpeg = dynamic_cast<TagLib::MPEG::File*>(ref.file())) {
        if (mpeg->hasID3v1Tag() || mpeg->hasAPETag())
            out.fields.insert(u"another tag"_s, path);
        if (mpeg->hasID3v2Tag())
            readID3v2(*mpeg->ID3v2Tag(), &out);
    } else if (auto* mp4 = dynamic_cast<TagLib::MP4::File*>(ref.file()); mp4 && mp4->tag()) {
        readMP4(*mp4->tag(), &out);
    } else if (auto* flac = dynamic_cast<TagLib::FLAC::File*>(ref.file())) {
        if (flac->hasID3v1Tag() || flac->hasID3v2Tag())
            out.fields.insert(u"another tag"_s, path);
        readXiph(*flac->xiphComment(true), &out);
        for (const TagLib::FLAC::Picture* picture : flac->pictureList())
            out.pictures.append(qbytes(picture->data()));
    } else if (auto* asf = dynamic_cast<TagLib::ASF::File*>(ref.file()); asf && asf->tag()) {
        for (const auto& [key, attributes] : asf->tag()->attributeListMap()) {
            for (const TagLib::ASF::Attribute& attribute : attributes)
                out.fields.insert(text(key), text(attribute.toString()));
        }
    } else if (auto* wv = dynamic_cast<TagLib::WavPack::File*>(ref.file()); wv && wv->APETag()) {
        for (const auto& [key, item] : wv->APETag()->itemListMap())
            out.fields.insert(u"APE:"_s + text(key), text(item.toString()));
    } else if (auto* xiph = dynamic_cast<TagLib::Ogg::XiphComment*>(ref.tag())) {
        readXiph(*xiph, &out);
    } else if (ref.file()) {
        for (const auto& [key, values] : ref.file()->properties()) {
            for (const TagLib::String& value : values)
                out.fields.insert(text(key), text(value));
        }
    }
    return out;
}

// "key=value" per value, sorted, so a failed comparison names the first field that differs.
inline QStringList lines(const QMultiMap<QString, QString>& fields) {
    QStringList result;
    for (auto it = fields.cbegin(); it != fields.cend(); ++it)
        result.append(it.key() + u'=' + it.value());
    result.sort();
    return result;
}

} // namespace NativeTags
