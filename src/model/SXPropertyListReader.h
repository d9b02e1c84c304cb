#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

// Reads an XML property list into plain Qt values: dict -> QVariantMap, array -> QVariantList,
// string -> QString, integer -> qlonglong, real -> double, true/false -> bool,
// data -> QByteArray (from base64), date -> QDateTime (UTC).
// Anything that is not a well-formed property list gives an invalid QVariant and, in *error, a
// sentence saying what was wrong and on which line.
class SXPropertyListReader {
public:
    static QVariant readFile(const QString& path, QString* error = nullptr);
    static QVariant readData(const QByteArray& xml, QString* error = nullptr);
};
