#pragma once

#include "framework/MTEArtwork.h"

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

class MTEAudioFile;

// What of a source's tags arrived in a converted file: each field the source carried (under
// TagLib's unified names, "TITLE", "LYRICS", and "PICTURE" for the cover art) is kept, changed
// on the way (a date shortened to a year, a cover scaled) or dropped, and each change or loss
// comes with its reason in words a user reads. Fields the converter leaves behind on purpose
// (the encoder's name, other programs' private fields) are not part of it.
class MTETagReport {
    Q_DECLARE_TR_FUNCTIONS(MTETagReport)

public:
    struct Entry {
        QString field;  // "TITLE", "PICTURE"
        QString before; // the source's value ("" for pictures)
        QString after;  // the output's value; empty when dropped
        QString reason; // why it changed or was dropped; empty when kept
        bool operator==(const Entry&) const = default;
    };

    QList<Entry> kept;
    QList<Entry> changed;
    QList<Entry> dropped;

    // Reads both files' tags. `asked` holds the values the tag editor set (unified name ->
    // value, an empty value for a field the user removed); those, not the source file's,
    // are what the output should carry. `askedPictures`, when set, are the pictures the editor
    // left (none when the user removed the cover) instead of the source's.
    static MTETagReport compare(const QString& sourcePath, const QString& outputPath,
                                const QMap<QString, QString>& asked = {},
                                const std::optional<MTEArtworkList>& askedPictures = {});

    // The record of a handle (as read and as edited) under the unified names, as `asked`.
    static QMap<QString, QString> recordOf(const MTEAudioFile& handle);

    bool lostAnything() const { return !dropped.isEmpty(); }
    bool isEmpty() const { return kept.isEmpty() && changed.isEmpty() && dropped.isEmpty(); }
    // One line per changed or dropped field ("Lyrics: AC3 files hold no tags"), changes first.
    QStringList lines() const;
    // The dropped fields alone, one line each.
    QStringList lostLines() const;
    // A field's name as people read it ("Lyrics", "Album artist", "Cover art").
    static QString fieldName(const QString& field);
};
