#include "model/SXPropertyListReader.h"

#include <QDateTime>
#include <QFile>
#include <QXmlStreamReader>

namespace {

class PlistParser {
public:
    explicit PlistParser(const QByteArray& xml)
        : m_xml(xml) {}

    QVariant parse(QString* error) {
        QVariant root;
        if (nextElement() && m_xml.name() == QLatin1String("plist") && nextElement()) {
            root = readValue();
            // The single value must be followed by </plist> and nothing else.
            if (!m_failed && nextElement())
                fail(QStringLiteral("more than one value in <plist>"));
        } else if (!m_failed) {
            fail(QStringLiteral("no <plist> element with a value"));
        }
        while (!m_failed && !m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            fail(m_xml.errorString());
        if (m_failed) {
            if (error)
                *error = m_error;
            return {};
        }
        return root;
    }

private:
    // Advances to the next start element inside the current one; false at its end element.
    bool nextElement() {
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isStartElement())
                return true;
            if (m_xml.isEndElement())
                return false;
        }
        return false;
    }

    void fail(const QString& what) {
        if (m_failed)
            return;
        m_failed = true;
        m_error = QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(what);
    }

    QString readText() {
        const QString text = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        if (m_xml.hasError())
            fail(m_xml.errorString());
        return text;
    }

    QVariant readValue() {
        const QString tag = m_xml.name().toString();
        if (tag == QLatin1String("dict"))
            return readDict();
        if (tag == QLatin1String("array"))
            return readArray();
        if (tag == QLatin1String("true") || tag == QLatin1String("false")) {
            if (nextElement())
                fail(QStringLiteral("<%1> must be empty").arg(tag));
            return tag == QLatin1String("true");
        }
        const QString text = readText();
        if (tag == QLatin1String("string"))
            return text;
        if (tag == QLatin1String("integer"))
            return readInteger(text.trimmed());
        if (tag == QLatin1String("real"))
            return readReal(text.trimmed());
        if (tag == QLatin1String("data"))
            return readBase64(text);
        if (tag == QLatin1String("date"))
            return readDate(text.trimmed());
        fail(QStringLiteral("unknown element <%1>").arg(tag));
        return {};
    }

    QVariant readDict() {
        QVariantMap map;
        while (!m_failed && nextElement()) {
            if (m_xml.name() != QLatin1String("key")) {
                fail(QStringLiteral("<dict> holds <%1> where a <key> belongs")
                         .arg(m_xml.name().toString()));
                break;
            }
            const QString key = readText();
            if (m_failed)
                break;
            if (!nextElement()) {
                fail(QStringLiteral("key \"%1\" has no value").arg(key));
                break;
            }
            map.insert(key, readValue());
        }
        return map;
    }

    QVariant readArray() {
        QVariantList list;
        while (!m_failed && nextElement())
            list.append(readValue());
        return list;
    }

    QVariant readInteger(const QString& text) {
        bool ok = false;
        const qlonglong value = text.toLongLong(&ok);
        if (ok)
            return value;
        // Property lists may hold unsigned 64-bit values beyond the signed range.
        const qulonglong large = text.toULongLong(&ok);
        if (ok)
            return large;
        fail(QStringLiteral("\"%1\" is not an integer").arg(text));
        return {};
    }

    QVariant readReal(const QString& text) {
        bool ok = false;
        const double value = text.toDouble(&ok);
        if (!ok)
            fail(QStringLiteral("\"%1\" is not a real number").arg(text));
        return value;
    }

    QVariant readBase64(const QString& text) {
        QByteArray compact = text.toLatin1();
        compact.replace(' ', "").replace('\n', "").replace('\t', "").replace('\r', "");
        auto decoded =
            QByteArray::fromBase64Encoding(compact, QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded)
            fail(QStringLiteral("<data> is not base64"));
        return *decoded;
    }

    QVariant readDate(const QString& text) {
        QDateTime date = QDateTime::fromString(text, Qt::ISODate);
        if (!date.isValid())
            fail(QStringLiteral("\"%1\" is not a date").arg(text));
        return date.toUTC();
    }

    QXmlStreamReader m_xml;
    bool m_failed = false;
    QString m_error;
};

} // namespace

QVariant SXPropertyListReader::readFile(const QString& path, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot open %1: %2").arg(path, file.errorString());
        return {};
    }
    return readData(file.readAll(), error);
}

QVariant SXPropertyListReader::readData(const QByteArray& xml, QString* error) {
    return PlistParser(xml).parse(error);
}
