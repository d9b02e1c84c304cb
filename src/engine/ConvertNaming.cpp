#include "engine/ConvertNaming.h"

#include "base/SXSafeName.h"
#include "framework/MTEAudioFile.h"
#include "framework/MTETagFamily.h"
#include "framework/MTETagFileKind.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <taglib/fileref.h>

namespace {

QString firstOf(std::initializer_list<QString> candidates) {
    for (const QString& candidate : candidates) {
        if (!candidate.trimmed().isEmpty())
            return candidate.trimmed();
    }
    return {};
}

// "3/12" is the third of twelve; "03" is 3. A number that reads as none is kept as tagged.
QString number(const QString& tagged, int width) {
    const QString own = tagged.section(QLatin1Char('/'), 0, 0).trimmed();
    bool ok = false;
    const int value = own.toInt(&ok);
    if (!ok || value < 0)
        return own;
    return QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
}

// The year of a date in any of the forms tags use ("2019", "2019-05-01", "May 2019").
QString year(const QString& date) {
    static const QRegularExpression fourDigits(QStringLiteral(R"((?<!\d)\d{4}(?!\d))"));
    const QRegularExpressionMatch match = fourDigits.match(date);
    return match.hasMatch() ? match.captured() : date.trimmed();
}

// The value of one field, or its "Unknown …" text; nullopt for a name that is no field.
std::optional<QString> fieldValue(const QString& name, int width, const ConvertNameTags& tags) {
    const auto orElse = [](const QString& value, const QString& unknown) {
        return value.isEmpty() ? unknown : value;
    };
    if (name == u"artist")
        return orElse(firstOf({tags.artist}), ConvertNaming::tr("Unknown Artist"));
    if (name == u"albumartist")
        return orElse(firstOf({tags.albumArtist, tags.artist}),
                      ConvertNaming::tr("Unknown Artist"));
    if (name == u"album")
        return orElse(firstOf({tags.album}), ConvertNaming::tr("Unknown Album"));
    if (name == u"title")
        return orElse(firstOf({tags.title, tags.fileName}), ConvertNaming::tr("Unknown Title"));
    if (name == u"track")
        return orElse(number(firstOf({tags.track}), width), ConvertNaming::tr("Unknown Track"));
    if (name == u"disc")
        return orElse(number(firstOf({tags.disc}), width), ConvertNaming::tr("Unknown Disc"));
    if (name == u"year")
        return orElse(year(firstOf({tags.date})), ConvertNaming::tr("Unknown Year"));
    if (name == u"genre")
        return orElse(firstOf({tags.genre}), ConvertNaming::tr("Unknown Genre"));
    if (name == u"filename")
        return orElse(tags.fileName, ConvertNaming::tr("Unknown Title"));
    return std::nullopt;
}

// One part of the pattern with its fields filled in. Text that is no field ("{x}", a lone
// brace) stays as written, so a typing mistake shows in the name instead of vanishing.
QString expandPart(const QString& part, const ConvertNameTags& tags) {
    static const QRegularExpression field(QStringLiteral(R"(\{([a-z]+)(?::(\d{1,2}))?\})"));
    QString result;
    qsizetype done = 0;
    QRegularExpressionMatchIterator it = field.globalMatch(part);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const std::optional<QString> value =
            fieldValue(match.captured(1), match.captured(2).toInt(), tags);
        if (!value)
            continue;
        result += part.mid(done, match.capturedStart() - done) + *value;
        done = match.capturedEnd();
    }
    return result + part.mid(done);
}

} // namespace

ConvertNameTags ConvertNameTags::of(const MTEAudioFile* handle, const QString& fileName,
                                    const QString& disc) {
    ConvertNameTags tags;
    tags.fileName = fileName;
    tags.disc = disc;
    if (!handle)
        return tags;
    tags.artist = handle->artist();
    tags.albumArtist = handle->albumArtist();
    tags.album = handle->album();
    tags.title = handle->title();
    tags.track = handle->track();
    tags.date = handle->date();
    tags.genre = handle->genre();
    return tags;
}

QString ConvertNaming::expand(const QString& pattern, const ConvertNameTags& tags,
                              int reservedBytes) {
    QStringList parts = pattern.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts.removeIf([](const QString& part) { return part.trimmed().isEmpty(); });
    if (parts.isEmpty())
        parts.append(defaultPattern());
    QStringList path;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const bool last = i == parts.size() - 1;
        path.append(SXSafeName::component(expandPart(parts.at(i), tags),
                                          last ? std::max(1, SXSafeName::kMaxBytes - reservedBytes)
                                               : SXSafeName::kMaxBytes));
    }
    return path.join(QLatin1Char('/'));
}

QString ConvertNaming::mirroredFolder(const QString& sourcePath, const QString& addedFrom) {
    if (addedFrom.isEmpty())
        return {};
    const QString relative =
        QDir(QDir::cleanPath(addedFrom)).relativeFilePath(QFileInfo(sourcePath).absolutePath());
    if (relative.isEmpty() || relative == u"." || relative == u".." ||
        relative.startsWith(QStringLiteral("../")) || QDir::isAbsolutePath(relative))
        return {};
    QStringList parts;
    for (const QString& part : relative.split(QLatin1Char('/'), Qt::SkipEmptyParts))
        parts.append(SXSafeName::component(part));
    return parts.join(QLatin1Char('/'));
}

QString ConvertNaming::discOf(const QString& path) {
    const auto ref = MTETagFileKind::open(path, false);
    if (!ref || !ref->file())
        return {};
    TagLib::File& file = *ref->file();
    const TagLib::PropertyMap properties = MTETagFileKind::familyOf(file).properties(file);
    const auto found = properties.find("DISCNUMBER");
    if (found == properties.end() || found->second.isEmpty())
        return {};
    return QString::fromStdString(found->second.front().to8Bit(true));
}
