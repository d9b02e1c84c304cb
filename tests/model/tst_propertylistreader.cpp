#include "support/TestSupport.h"

#include "model/SXPropertyListReader.h"

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
    void readsEveryValueType_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char* name, const QByteArray& body, const QVariant& expected) {
            QTest::newRow(name) << body << expected;
        };
        row("escapes", "<string>a &lt;b&gt; &amp; &quot;c&quot; &#x41;&#66;</string>",
            QString("a <b> & \"c\" AB"));
        row("unicode", "<string>été 日本 🎵</string>", QString("été 日本 🎵"));
        row("blanks kept", "<string>  two  spaces  </string>", QString("  two  spaces  "));
        row("empty string", "<string/>", QString(""));
        row("cdata", "<string><![CDATA[<not a tag>]]></string>", QString("<not a tag>"));
        row("negative", "<integer>-42</integer>", qlonglong(-42));
        row("largest signed", "<integer>9223372036854775807</integer>",
            std::numeric_limits<qlonglong>::max());
        row("largest unsigned", "<integer>18446744073709551615</integer>",
            std::numeric_limits<qulonglong>::max());
        row("exponent", "<real>-2.5e3</real>", -2500.0);
        row("fraction", "<real>0.125</real>", 0.125);
        row("true", "<true/>", true);
        row("false", "<false/>", false);
        row("data over lines", "<data>\n    AAEC\n    /w==\n  </data>",
            QByteArray("\x00\x01\x02\xff", 4));
        row("date", "<date>2021-03-04T05:06:07Z</date>",
            QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC));
        row("nested",
            "<array><dict><key>inner</key><array><integer>1</integer><array/></array></dict>"
            "<dict/><string>x</string></array>",
            QVariantList{QVariantMap{{"inner", QVariantList{qlonglong(1), QVariantList()}}},
                         QVariantMap(), QString("x")});
        row("keys", "<dict><key>ü key</key><string>v</string><key>n</key><true/></dict>",
            QVariantMap{{"ü key", QString("v")}, {"n", true}});
    }

    void readsEveryValueType() {
        QFETCH(QByteArray, body);
        QFETCH(QVariant, expected);
        QString error;
        const QVariant value = SXPropertyListReader::readData(wrap(body), &error);
        QVERIFY2(value.isValid(), qPrintable(error));
        QCOMPARE(value.typeId(), expected.typeId());
        QCOMPARE(value, expected);
    }

    void readsFiles() {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("one.plist"));
        QVERIFY(SonoriaTest::writeFile(path, wrap("<array><integer>3</integer></array>")));
        QCOMPARE(SXPropertyListReader::readFile(path).toList().value(0).toInt(), 3);
        QString error;
        QVERIFY(!SXPropertyListReader::readFile(dir.filePath("no.plist"), &error).isValid());
        QVERIFY2(error.startsWith(QStringLiteral("cannot open ")), qPrintable(error));
    }

    void rejectsMalformedInput_data() {
        QTest::addColumn<QByteArray>("xml");
        for (const auto& [name, xml] : std::initializer_list<std::pair<const char*, QByteArray>>{
                 {"empty input", ""},
                 {"unclosed element", wrap("<dict><key>a</key><string>b</dict>")},
                 {"truncated", "<plist><dict><key>a</key><string>b</str"},
                 {"key without value", wrap("<dict><key>a</key></dict>")},
                 {"value without key", wrap("<dict><string>a</string></dict>")},
                 {"bad integer", wrap("<integer>12a</integer>")},
                 {"real as integer", wrap("<integer>1.5</integer>")},
                 {"bad real", wrap("<real>fast</real>")},
                 {"bad base64", wrap("<data>@@@</data>")},
                 {"bad date", wrap("<date>yesterday</date>")},
                 {"unknown element", wrap("<number>3</number>")},
                 {"element inside string", wrap("<string>a<b/>c</string>")},
                 {"two root values", wrap("<string>a</string><string>b</string>")},
                 {"empty plist", wrap("")},
                 {"other root", "<dict><key>a</key><string>b</string></dict>"},
                 {"content after plist", wrap("<true/>") + "<plist><true/></plist>"},
                 {"undefined entity", wrap("<string>&nbsp;</string>")}})
            QTest::newRow(name) << xml;
    }

    void rejectsMalformedInput() {
        QFETCH(QByteArray, xml);
        QString error;
        QVERIFY(!SXPropertyListReader::readData(xml, &error).isValid());
        QVERIFY2(error.startsWith(QStringLiteral("line ")), qPrintable(error));
    }
};

SONORIA_TEST_MAIN(TestPropertyListReader)
#include "tst_propertylistreader.moc"
