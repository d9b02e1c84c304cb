#include "SXCoder.h"

#include <QDataStream>
#include <QIODevice>

namespace {
constexpr quint32 kMagic = 0x53584b41; // "SXKA"
constexpr quint32 kFormatVersion = 1;
} // namespace

void SXCoder::encode(const QString& key, const QVariant& value) {
    if (!m_keyed)
        return;
    for (auto& entry : m_entries) {
        if (entry.first == key) {
            entry.second = value;
            return;
        }
    }
    m_entries.append({key, value});
}

void SXCoder::encodeObject(const QString& key, const SXCoder& child) {
    encode(key, child.toData());
}

bool SXCoder::containsValueForKey(const QString& key) const {
    for (const auto& entry : m_entries)
        if (entry.first == key)
            return true;
    return false;
}

QVariant SXCoder::decode(const QString& key) const {
    if (!m_keyed)
        return {};
    for (const auto& entry : m_entries)
        if (entry.first == key)
            return entry.second;
    return {};
}

QString SXCoder::decodeString(const QString& key) const {
    return decode(key).toString();
}

double SXCoder::decodeDouble(const QString& key) const {
    return decode(key).toDouble();
}

int SXCoder::decodeInt(const QString& key) const {
    return decode(key).toInt();
}

bool SXCoder::decodeBool(const QString& key) const {
    return decode(key).toBool();
}

SXCoder SXCoder::decodeObject(const QString& key) const {
    const QVariant value = decode(key);
    if (!value.isValid())
        return SXCoder(false);
    bool ok = false;
    SXCoder child = fromData(value.toByteArray(), &ok);
    return ok ? child : SXCoder(false);
}

QStringList SXCoder::keys() const {
    QStringList result;
    for (const auto& entry : m_entries)
        result << entry.first;
    return result;
}

QByteArray SXCoder::toData() const {
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_4);
    out << kMagic << kFormatVersion << static_cast<quint32>(m_entries.size());
    for (const auto& entry : m_entries)
        out << entry.first << entry.second;
    return data;
}

SXCoder SXCoder::fromData(const QByteArray& data, bool* ok) {
    if (ok)
        *ok = false;
    QDataStream in(data);
    in.setVersion(QDataStream::Qt_6_4);
    quint32 magic = 0, version = 0, count = 0;
    in >> magic >> version >> count;
    if (in.status() != QDataStream::Ok || magic != kMagic || version != kFormatVersion)
        return SXCoder();
    SXCoder coder;
    for (quint32 i = 0; i < count; ++i) {
        QString key;
        QVariant value;
        in >> key >> value;
        if (in.status() != QDataStream::Ok)
            return SXCoder();
        coder.m_entries.append({key, value});
    }
    if (ok)
        *ok = true;
    return coder;
}
