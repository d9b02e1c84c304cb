#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// One embedded picture, kept as the encoded bytes the file carries (decoding is left to whoever
// shows it, so thousands of handles do not hold thousands of decoded images).
struct MTEArtwork {
    QByteArray data;
    QString mimeType; // "image/jpeg", "image/png"; empty when unknown
    bool operator==(const MTEArtwork& other) const = default;
};
using MTEArtworkList = QList<MTEArtwork>;
Q_DECLARE_METATYPE(MTEArtwork)
Q_DECLARE_METATYPE(MTEArtworkList)
