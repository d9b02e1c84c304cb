#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

// A keyed archive: values stored under string keys in the order they were written, serialised
// with QDataStream. Nested objects are archived into a child coder and stored as its bytes.
// A coder made without keyed coding ignores every write and answers every read with nothing,
// which is how records behave when asked to archive into a coder that cannot hold keys.
class SXCoder {
public:
    explicit SXCoder(bool keyed = true)
        : m_keyed(keyed) {}

    bool allowsKeyedCoding() const { return m_keyed; }

    void encode(const QString& key, const QVariant& value);
    void encodeObject(const QString& key, const SXCoder& child);

    bool containsValueForKey(const QString& key) const;
    QVariant decode(const QString& key) const;
    QString decodeString(const QString& key) const;
    double decodeDouble(const QString& key) const;
    int decodeInt(const QString& key) const;
    bool decodeBool(const QString& key) const;
    // The child coder stored under `key`; a keyless coder when there is none.
    SXCoder decodeObject(const QString& key) const;

    QStringList keys() const; // in writing order

    QByteArray toData() const;
    // Parses bytes made by toData(); `ok` is false (and the coder empty) for anything else.
    static SXCoder fromData(const QByteArray& data, bool* ok = nullptr);

private:
    bool m_keyed;
    QList<QPair<QString, QVariant>> m_entries;
};
