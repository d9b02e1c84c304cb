#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "model/SXConversionChoices.h"
#include "model/SXDataEngine.h"
#include "model/SXPropertyListReader.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// A property list holding `body`.
QByteArray wrap(const QByteArray& body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body +
           "</plist>\n";
}

// Title, extension and codec of the formats a small preset file can hold.
const char* const kFourFormats[4][3] = {{"One", "one", "mp3"},
                                        {"Two", "two", "aac"},
                                        {"Three", "three", "aac"},
                                        {"Four", "two", "mp3"}};

// A preset file with the first `count` of kFourFormats; each offers two choices per list.
QByteArray presetXml(int count = 4) {
    QByteArray xml = "<dict><key>Audios</key><array>";
    for (int i = 0; i < count; ++i) {
        xml += QStringLiteral("<dict><key>title</key><string>%1</string>"
                              "<key>description</key><string>%1 text</string>"
                              "<key>ext</key><string>%2</string>"
                              "<key>image</key><string>%2.png</string>"
                              "<key>acodec</key><dict><key>default</key><string>%3</string></dict>"
                              "<key>samplerate</key><dict><key>default</key><string>44100</string>"
                              "<key>values</key><string>44100,48000</string></dict>"
                              "<key>abitrate</key><dict><key>default</key><string>128</string>"
                              "<key>values</key><string>128,192</string></dict>"
                              "<key>channel</key><dict><key>default</key><string>Stereo</string>"
                              "<key>values</key><string>Stereo,Mono</string></dict>"
                              "<key>isAddToiTunes</key><integer>1</integer></dict>")
                   .arg(kFourFormats[i][0], kFourFormats[i][1], kFourFormats[i][2])
                   .toUtf8();
    }
    xml += "</array><key>codecMap</key><dict><key>mp3</key><string>libmp3lame</string>"
           "<key>aac</key><string>aac</string></dict>"
           "<key>canEditTagFmtNames</key><array><string>One</string></array>"
           "<key>Devices</key><array><string>phone</string></array>"
           "<key>Formats</key><integer>7</integer></dict>";
    return wrap(xml);
}

} // namespace

// The catalogue of output formats, and the property-list reader its preset files are read with.
class TestSXDataEngine : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString writePreset(const QString& name, const QByteArray& bytes) {
        const QString path = m_dir.filePath(name);
        return SonoriaTest::writeFile(path, bytes) ? path : QString();
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        // The shared instance reads the library preference once; make sure it finds none.
        SXSettings::removeKey(SXSettingsKey::libraryFormat);
        QVERIFY(SXDataEngine::shareInstance() != nullptr);
    }

    void cleanup() { SXSettings::removeKey(SXSettingsKey::libraryFormat); }

    // The shipped preset: fixed containers first, every default among its choices, every
    // encoder resolved, no output folder of its own, every editable name a real format.
    void shippedPresetIsConsistentAndCopiesAreIndependent() {
        SXDataEngine* engine = SXDataEngine::shareInstance();
        const QStringList names = engine->getAllOutputFormats();
        QCOMPARE(names.mid(0, 3), SXDataEngine::getCanNotRemoveFormatContainer());
        QCOMPARE(names.size(), QSet<QString>(names.begin(), names.end()).size());
        for (const QString& name : names) {
            const SXFormatSettingPtr format = engine->getFormatWithName(name);
            QVERIFY2(format && format->arySampleRate().contains(format->sampleRate()) &&
                         format->aryBiteRate().contains(format->bitRate()) &&
                         format->aryChannels().contains(format->channels()) &&
                         !format->decodecName().isEmpty() && !format->outputExtName().isEmpty() &&
                         !format->fmtDescribe().isEmpty() && !format->strImgFileName().isEmpty() &&
                         format->outputPath().isEmpty(),
                     qPrintable(name));
        }
        for (const QString& editable : engine->getCanEditMetadataMusicType())
            QVERIFY2(names.contains(editable), qPrintable(editable));

        // Lookups go by the exact name and hand out copies of their own.
        for (const QString& name : {u"mp3"_s, u"Mp3"_s, QString()})
            QVERIFY(!engine->getFormatWithName(name));

        const SXFormatSettingPtr first = engine->getFormatWithName(u"MP3"_s);
        const SXFormatSettingPtr second = engine->getFormatWithName(u"MP3"_s);
        QVERIFY(first && second && first != second);
        const QString rate = first->sampleRate();
        first->setSampleRate(u"8000"_s);
        first->setFmtName(u"Changed"_s);
        first->setEnumAddToLibrary(1);
        first->setOutputPath(u"/elsewhere"_s);
        QVERIFY(!engine->getFormatWithName(u"Changed"_s));
        // Only the choice lists are shared, by the catalogue and all its copies.
        for (const SXFormatSettingPtr& other : {second, engine->getFormatWithName(u"MP3"_s)})
            QVERIFY(other->sampleRate() == rate && other->fmtName() == "MP3" &&
                    other->enumAddToLibrary() == 0 && other->outputPath() != "/elsewhere" &&
                    first->aryBiteRate().isSharedWith(other->aryBiteRate()));
        const SXFormatSettingPtr copied = first->copy();
        QVERIFY(copied->aryChannels().isSharedWith(first->aryChannels()));
        QVERIFY(copied->sampleRate() == "8000" && copied->outputPath() == "/elsewhere" &&
                copied->enumAddToLibrary() == 1);
    }

    // Every title the shipped catalogue offers is read into a number: digits are that number,
    // "Use Source" the source's own value (-1 here), "Lossless" no bit rate at all. A word this
    // test does not know fails, so a new catalogue word needs a meaning first.
    void titlesReadAsChoices() {
        const QMap<QString, int> words{
            {u"Use Source"_s, -1}, {u"Lossless"_s, -1}, {u"Stereo"_s, 2}, {u"Mono"_s, 1}};
        // Whether `title`, chosen in list `kind` (bit rate, sample rate, channels), reads right.
        const auto readsRight = [&words](int kind, const QString& title) {
            QStringList titles(3, u"Use Source"_s);
            titles[kind] = title;
            const SXConversionChoices choices =
                SXConversionChoices::fromTitles(titles[0], titles[1], titles[2]);
            const std::optional<int> read =
                std::array{choices.bitRate, choices.sampleRate, choices.channels}[kind];
            bool number = false;
            const int value = title.toInt(&number);
            return read.value_or(-1) == (number ? value : words.value(title, -2)) &&
                   choices.lossless == (title == u"Lossless"_s);
        };
        SXDataEngine* engine = SXDataEngine::shareInstance();
        for (const QString& name : engine->getAllOutputFormats()) {
            const SXFormatSettingPtr format = engine->getFormatWithName(name);
            const QStringList lists[] = {format->aryBiteRate(), format->arySampleRate(),
                                         format->aryChannels()};
            for (int kind = 0; kind < 3; ++kind) {
                for (const QString& title : lists[kind])
                    QVERIFY2(readsRight(kind, title), qPrintable(name + u": "_s + title));
            }
        }
        // A unit after the number and a blank before it are no part of it.
        const SXConversionChoices units =
            SXConversionChoices::fromTitles(u"192 kbps"_s, u" 44100"_s, u"Use Source"_s);
        QVERIFY(units.bitRate == 192 && units.sampleRate == 44100 && !units.lossless);
    }

    void readsEveryFieldOfAPreset() {
        SXDataEngine engine(writePreset(u"four.plist"_s, presetXml()));
        const SXFormatSettingPtr one = engine.getFormatWithName(u"One"_s);
        QVERIFY(one->fmtDescribe() == "One text" && one->decodecName() == "libmp3lame" &&
                one->strImgFileName() == "one.png");
        QCOMPARE(one->arySampleRate(), QStringList({"44100", "48000"}));
        QCOMPARE(one->aryChannels(), QStringList({"Stereo", "Mono"}));
        QVERIFY(one->bitRate() == "128" && one->enumAddToLibrary() == 1);
        QCOMPARE(engine.getDecodecWithCodecName(u"aac"_s), u"aac"_s);
        QVERIFY(engine.getDecodecWithCodecName(u"AAC"_s).isNull());
        QCOMPARE(engine.getCanEditMetadataMusicType(), QStringList{u"One"_s});
        QVERIFY(engine.aryDevices().toList().value(0) == "phone" && engine.aryFormats() == 7);

        // Missing keys leave fields empty, unknown codecs give no encoder, blanks around commas
        // stay.
        const QByteArray xml =
            "<plist><dict><key>Audios</key><array>"
            "<dict><key>title</key><string>Bare</string>"
            "<key>acodec</key><dict><key>default</key><string>nothing</string></dict>"
            "<key>abitrate</key><dict><key>default</key><string> 96</string>"
            "<key>values</key><string>64, 96,,128</string></dict></dict>"
            "</array></dict></plist>";
        SXDataEngine bareEngine(writePreset(u"bare.plist"_s, xml));
        const SXFormatSettingPtr bare = bareEngine.getFormatWithName(u"Bare"_s);
        QVERIFY(bare && bare->decodecName().isNull() && bare->sampleRate().isEmpty() &&
                bare->arySampleRate().isEmpty() && bare->aryChannels().isEmpty() &&
                bare->enumAddToLibrary() == 0);
        QCOMPARE(bare->aryBiteRate(), QStringList({"64", " 96", "", "128"}));
        QCOMPARE(bare->bitRate(), u" 96"_s);
        QVERIFY(bareEngine.getCanEditMetadataMusicType().isEmpty());
    }

    void musicLibrarySlot_data() {
        QTest::addColumn<QString>("preference");
        QTest::addColumn<QStringList>("expectedNames");
        QTest::addColumn<QString>("copiedFrom");
        QTest::addColumn<int>("formats");
        const QStringList asInFile{"One", "Two", "Three", "Four"};
        QTest::newRow("third format already has it") << "three" << asInFile << QString() << 4;
        QTest::newRow("no format has it") << "zzz" << asInFile << QString() << 4;
        QTest::newRow("differs only in case") << "Two" << asInFile << QString() << 4;
        QTest::newRow("unset") << QString() << asInFile << QString() << 4;
        QTest::newRow("first of two with it")
            << "two" << QStringList{"One", "Two", "two", "Four"} << "Two" << 4;
        QTest::newRow("first format")
            << "one" << QStringList{"One", "Two", "one", "Four"} << "One" << 4;
        QTest::newRow("needs three formats")
            << "two" << QStringList{"One", "Two"} << QString() << 2;
    }

    void musicLibrarySlot() {
        QFETCH(QString, preference);
        QFETCH(QStringList, expectedNames);
        QFETCH(QString, copiedFrom);
        QFETCH(int, formats);
        if (!preference.isNull())
            SXSettings::setValue(SXSettingsKey::libraryFormat, preference);
        SXDataEngine engine(writePreset(u"slot.plist"_s, presetXml(formats)));
        QCOMPARE(engine.getAllOutputFormats(), expectedNames);
        if (copiedFrom.isEmpty())
            return;
        const SXFormatSettingPtr slot = engine.getFormatWithName(preference);
        const SXFormatSettingPtr source = engine.getFormatWithName(copiedFrom);
        QCOMPARE(slot->outputExtName(), preference);
        QCOMPARE(slot->decodecName(), source->decodecName());
        QCOMPARE(slot->strImgFileName(), source->strImgFileName());
        QVERIFY(slot->aryBiteRate().isSharedWith(source->aryBiteRate()));
        // The description names the displaced record as an object, not by its text.
        static const QRegularExpression objectText(u"^<SXFormatSetting: 0x[0-9a-f]+>$"_s);
        QVERIFY2(objectText.match(slot->fmtDescribe()).hasMatch(), qPrintable(slot->fmtDescribe()));
        QCOMPARE(source->fmtDescribe(), copiedFrom + u" text"_s);
    }

    void unreadablePresetLeavesCatalogueEmpty_data() {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << QByteArray() << u"cannot open"_s;
        QTest::newRow("truncated") << presetXml().left(300) << u"line "_s;
        QTest::newRow("not a plist") << QByteArray("<html><body/></html>") << u"line "_s;
        QTest::newRow("root is an array")
            << QByteArray("<plist><array/></plist>") << u"does not hold a dictionary"_s;
    }

    void unreadablePresetLeavesCatalogueEmpty() {
        QFETCH(QByteArray, contents);
        QFETCH(QString, reason);
        const QString path = contents.isNull() ? m_dir.filePath(u"absent.plist"_s)
                                               : writePreset(u"bad.plist"_s, contents);
        LogCapture log;
        SXDataEngine engine(path);
        QVERIFY(engine.getAllOutputFormats().isEmpty() && !engine.getFormatWithName("One") &&
                engine.getCanEditMetadataMusicType().isEmpty() &&
                engine.getDecodecWithCodecName("mp3").isNull());
        QCOMPARE(log.lines().size(), 1);
        QVERIFY2(log.lines()[0].startsWith("load formats failed: ") &&
                     log.lines()[0].contains(reason),
                 qPrintable(log.lines()[0]));
    }

    void tagFileKinds() {
        const std::pair<int, QStringList> kinds[] = {
            {0, {"mp3", "MP3", "FlaC"}}, {1, {"m4a", "MP4"}}, {4, {"m4r", "ogg", ".mp3", ""}}};
        for (const auto& [kind, extensions] : kinds) {
            for (const QString& ext : extensions)
                QVERIFY2(SXDataEngine::getTagFileFormatByFileType(ext) == kind, qPrintable(ext));
        }
    }

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

SONORIA_TEST_MAIN(TestSXDataEngine)
#include "tst_sxdataengine.moc"
