#include "framework/MTETagFamily.h"

#include <QStringList>

#include <taglib/tfile.h>

QMap<QString, QString> MTETagFamily::keyMap() const {
    QMap<QString, QString> result;
    const MTEKeyTable& table = keyTable();
    for (std::size_t i = 0; i < kMTETagFieldCount; ++i) {
        if (table[i][0] != '\0')
            result.insert(QString::fromLatin1(kMTEGenericFieldNames[i]),
                          QString::fromUtf8(table[i]));
    }
    return result;
}

QString MTETagFamily::ownKey(MTETagField field) const {
    return QString::fromUtf8(keyTable()[static_cast<std::size_t>(field)]);
}

std::optional<MTETagField> MTETagFamily::fieldOfOwnKey(const QString& ownKey) const {
    if (ownKey.isEmpty())
        return std::nullopt;
    const MTEKeyTable& table = keyTable();
    for (std::size_t i = 0; i < kMTETagFieldCount; ++i) {
        if (ownKey == QString::fromUtf8(table[i]))
            return static_cast<MTETagField>(i);
    }
    return std::nullopt;
}

QMap<QString, QVariant> MTETagFamily::readText(TagLib::File& file) const {
    QMap<QString, QVariant> values;
    for (std::size_t i = 0; i < kMTETagFieldCount; ++i) {
        const auto field = static_cast<MTETagField>(i);
        if (field == MTETagField::AlbumImg || keyTable()[i][0] == '\0')
            continue;
        const QString value = readField(file, field);
        if (!value.isNull())
            values.insert(ownKey(field), value);
    }
    return values;
}

void MTETagFamily::apply(TagLib::File& file, const QMap<QString, QVariant>& values) const {
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const std::optional<MTETagField> field = fieldOfOwnKey(it.key());
        if (!field)
            continue;
        if (*field == MTETagField::AlbumImg)
            writeArtwork(file, artworkFromVariant(it.value()));
        else
            writeField(file, *field, it.value().toString());
    }
}

TagLib::PropertyMap MTETagFamily::properties(TagLib::File& file) const {
    return file.properties();
}

TagLib::PropertyMap MTETagFamily::refusedOf(const TagLib::PropertyMap& rejected,
                                            const TagLib::PropertyMap& asked) {
    TagLib::PropertyMap refused;
    for (const auto& [name, values] : rejected) {
        if (asked.contains(name))
            refused.insert(name, values);
    }
    return refused;
}

TagLib::String MTETagFamily::customFieldName(const TagLib::String& name) {
    const QString text = toQString(name);
    return toTString(text.startsWith(QLatin1String("REPLAYGAIN_")) ? text.toLower() : text);
}

MTEArtworkList MTETagFamily::artworkFromVariant(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<MTEArtworkList>())
        return value.value<MTEArtworkList>();
    if (value.metaType() == QMetaType::fromType<MTEArtwork>())
        return {value.value<MTEArtwork>()};
    // Raw picture bytes, as a tag editor might hand them over.
    if (value.metaType() == QMetaType::fromType<QByteArray>() && !value.toByteArray().isEmpty())
        return {MTEArtwork{value.toByteArray(), mimeTypeOf(value.toByteArray())}};
    return {};
}

TagLib::String MTETagFamily::toTString(const QString& text) {
    return TagLib::String(text.toStdString(), TagLib::String::UTF8);
}

QString MTETagFamily::toQString(const TagLib::String& text) {
    QString value = QString::fromStdString(text.to8Bit(true));
    // A NUL inside a value ("before\0after", as ID3v2.4 separates several values and other
    // families store verbatim) would end it wherever a C string carries it on (ffmpeg, the
    // clipboard, a terminal), silently dropping what follows. A space keeps both parts readable,
    // the way TagLib itself joins several values of one ID3v2 frame.
    value.replace(QChar(u'\0'), QLatin1Char(' '));
    return value;
}

QByteArray MTETagFamily::toQByteArray(const TagLib::ByteVector& bytes) {
    return QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

TagLib::ByteVector MTETagFamily::toByteVector(const QByteArray& bytes) {
    return TagLib::ByteVector(bytes.constData(), static_cast<unsigned int>(bytes.size()));
}

QString MTETagFamily::mimeTypeOf(const QByteArray& data, const QString& declared) {
    if (!declared.isEmpty())
        return declared.toLower() == QLatin1String("image/jpg") ? QStringLiteral("image/jpeg")
                                                                : declared;
    if (data.startsWith("\xFF\xD8\xFF"))
        return QStringLiteral("image/jpeg");
    if (data.startsWith("\x89PNG"))
        return QStringLiteral("image/png");
    if (data.startsWith("GIF8"))
        return QStringLiteral("image/gif");
    if (data.startsWith("BM"))
        return QStringLiteral("image/bmp");
    return {};
}

QString MTETagFamily::joined(const QStringList& values) {
    // Several values of one field become one text; writing it back stores a single value.
    return values.join(QStringLiteral(" / "));
}
