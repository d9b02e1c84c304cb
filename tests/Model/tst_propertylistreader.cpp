#include "support/TestSupport.h"

#include "Model/SXPropertyListReader.h"

#include <QDateTime>
#include <QTemporaryDir>

namespace {
QByteArray wrap(const QByteArray& body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body +
           "</plist>\n";
}
} // namespace

class TestPropertyListReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsEveryValueType() {
        const QByteArray xml = wrap(
            "<dict>\n"
            "  <key>escaped</key><string>a &lt;b&gt; &amp; &quot;c&quot; &#x41;&#66;</string>\n"
            "  <key>unicode</key><string>\xc3\xa9t\xc3\xa9 \xe6\x97\xa5\xe6\x9c\xac "
            "\xf0\x9f\x8e\xb5</string>\n"
            "  <key>blank</key><string>  two  spaces  </string>\n"
            "  <key>empty</key><string/>\n"
            "  <key>cdata</key><string><![CDATA[<not a tag>]]></string>\n"
            "  <key>negative</key><integer>-42</integer>\n"
            "  <key>big</key><integer>9223372036854775807</integer>\n"
            "  <key>unsigned</key><integer>18446744073709551615</integer>\n"
            "  <key>real</key><real>-2.5e3</real>\n"
            "  <key>fraction</key><real>0.125</real>\n"
            "  <key>yes</key><true/>\n"
            "  <key>no</key><false/>\n"
            "  <key>data</key><data>\n    AAEC\n    /w==\n  </data>\n"
            "  <key>date</key><date>2021-03-04T05:06:07Z</date>\n"
            "  <key>nested</key><array><dict><key>inner</key><array><integer>1</integer>"
            "<array/></array></dict><dict/><string>x</string></array>\n"
            "  <key>\xc3\xbc key</key><string>v</string>\n"
            "</dict>");
        QString error;
        const QVariant value = SXPropertyListReader::readData(xml, &error);
        QVERIFY2(value.isValid(), qPrintable(error));
        const QVariantMap map = value.toMap();
        QCOMPARE(map.size(), 16);
        QCOMPARE(map[QStringLiteral("escaped")].toString(), QStringLiteral("a <b> & \"c\" AB"));
        QCOMPARE(map[QStringLiteral("unicode")].toString(),
                 QString::fromUtf8("\xc3\xa9t\xc3\xa9 \xe6\x97\xa5\xe6\x9c\xac \xf0\x9f\x8e\xb5"));
        QCOMPARE(map[QStringLiteral("blank")].toString(), QStringLiteral("  two  spaces  "));
        QCOMPARE(map[QStringLiteral("empty")].typeId(), QMetaType::QString);
        QVERIFY(map[QStringLiteral("empty")].toString().isEmpty());
        QCOMPARE(map[QStringLiteral("cdata")].toString(), QStringLiteral("<not a tag>"));
        QCOMPARE(map[QStringLiteral("negative")].toLongLong(), -42);
        QCOMPARE(map[QStringLiteral("big")].toLongLong(), std::numeric_limits<qint64>::max());
        QCOMPARE(map[QStringLiteral("unsigned")].toULongLong(),
                 std::numeric_limits<quint64>::max());
        QCOMPARE(map[QStringLiteral("real")].typeId(), QMetaType::Double);
        QCOMPARE(map[QStringLiteral("real")].toDouble(), -2500.0);
        QCOMPARE(map[QStringLiteral("fraction")].toDouble(), 0.125);
        QCOMPARE(map[QStringLiteral("yes")].typeId(), QMetaType::Bool);
        QCOMPARE(map[QStringLiteral("yes")].toBool(), true);
        QCOMPARE(map[QStringLiteral("no")].toBool(), false);
        QCOMPARE(map[QStringLiteral("data")].toByteArray(), QByteArray("\x00\x01\x02\xff", 4));
        QCOMPARE(map[QStringLiteral("date")].toDateTime(),
                 QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC));
        const QVariantList nested = map[QStringLiteral("nested")].toList();
        QCOMPARE(nested.size(), 3);
        const QVariantList inner = nested[0].toMap()[QStringLiteral("inner")].toList();
        QCOMPARE(inner.size(), 2);
        QCOMPARE(inner[0].toInt(), 1);
        QCOMPARE(inner[1].typeId(), QMetaType::QVariantList);
        QVERIFY(nested[1].toMap().isEmpty());
        QCOMPARE(nested[2].toString(), QStringLiteral("x"));
        QCOMPARE(map[QString::fromUtf8("\xc3\xbc key")].toString(), QStringLiteral("v"));
    }

    void readsScalarRootAndFiles() {
        QCOMPARE(SXPropertyListReader::readData(wrap("<string>only</string>")).toString(),
                 QStringLiteral("only"));
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("one.plist"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(wrap("<array><integer>3</integer></array>"));
        file.close();
        QCOMPARE(SXPropertyListReader::readFile(path).toList().value(0).toInt(), 3);

        QString error;
        QVERIFY(!SXPropertyListReader::readFile(dir.filePath(QStringLiteral("no.plist")), &error)
                     .isValid());
        QVERIFY2(error.startsWith(QStringLiteral("cannot open ")), qPrintable(error));
    }

    void rejectsMalformedInput_data() {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("empty input") << QByteArray();
        QTest::newRow("unclosed element") << wrap("<dict><key>a</key><string>b</dict>");
        QTest::newRow("truncated") << QByteArray("<plist><dict><key>a</key><string>b</str");
        QTest::newRow("key without value") << wrap("<dict><key>a</key></dict>");
        QTest::newRow("value without key") << wrap("<dict><string>a</string></dict>");
        QTest::newRow("bad integer") << wrap("<integer>12a</integer>");
        QTest::newRow("real as integer") << wrap("<integer>1.5</integer>");
        QTest::newRow("bad real") << wrap("<real>fast</real>");
        QTest::newRow("bad base64") << wrap("<data>@@@</data>");
        QTest::newRow("bad date") << wrap("<date>yesterday</date>");
        QTest::newRow("unknown element") << wrap("<number>3</number>");
        QTest::newRow("element inside string") << wrap("<string>a<b/>c</string>");
        QTest::newRow("two root values") << wrap("<string>a</string><string>b</string>");
        QTest::newRow("empty plist") << wrap("");
        QTest::newRow("other root") << QByteArray("<dict><key>a</key><string>b</string></dict>");
        QTest::newRow("content after plist") << wrap("<true/>") + "<plist><true/></plist>";
        QTest::newRow("undefined entity") << wrap("<string>&nbsp;</string>");
    }

    void rejectsMalformedInput() {
        QFETCH(QByteArray, xml);
        QString error;
        const QVariant value = SXPropertyListReader::readData(xml, &error);
        QVERIFY(!value.isValid());
        QVERIFY2(error.startsWith(QStringLiteral("line ")), qPrintable(error));
    }
};

SONORIA_TEST_MAIN(TestPropertyListReader)
#include "tst_propertylistreader.moc"
