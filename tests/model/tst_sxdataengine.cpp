#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "base/SXSettings.h"
#include "model/SXConversionChoices.h"
#include "model/SXDataEngine.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

// Title, extension and codec of the formats a small preset file can hold.
const char* const kFourFormats[4][3] = {{"One", "one", "mp3"},
                                        {"Two", "two", "aac"},
                                        {"Three", "three", "aac"},
                                        {"Four", "two", "mp3"}};

// A preset file with the first `count` of kFourFormats; each offers two choices per list.
QByteArray presetXml(int count = 4) {
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                     "<key>Audios</key><array>";
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
           "<key>Formats</key><integer>7</integer></dict></plist>\n";
    return xml;
}

} // namespace

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
    void shippedPresetIsConsistent() {
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
    }

    // Every title the shipped catalogue offers is read once into a number: digits are that
    // number, "Use Source" the source's own value (-1 here), "Lossless" no bit rate at all. A
    // word the table does not know fails its row, so a new catalogue word needs a meaning first.
    void titlesReadAsChoices_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("lossless");
        const QMap<QString, int> words{
            {u"Use Source"_s, -1}, {u"Lossless"_s, -1}, {u"Stereo"_s, 2}, {u"Mono"_s, 1}};
        QSet<QString> seen;
        SXDataEngine* engine = SXDataEngine::shareInstance();
        for (const QString& name : engine->getAllOutputFormats()) {
            const SXFormatSettingPtr format = engine->getFormatWithName(name);
            const QList<std::pair<QString, QStringList>> lists{
                {u"bit rate"_s, format->aryBiteRate()},
                {u"sample rate"_s, format->arySampleRate()},
                {u"channels"_s, format->aryChannels()}};
            for (const auto& [kind, titles] : lists) {
                for (const QString& title : titles) {
                    if (seen.contains(kind + title))
                        continue;
                    seen.insert(kind + title);
                    bool number = false;
                    const int value = title.toInt(&number);
                    QTest::addRow("%s %s", qPrintable(kind), qPrintable(title))
                        << kind << title << (number ? value : words.value(title, -2))
                        << (title == u"Lossless"_s);
                }
            }
        }
        QTest::newRow("bit rate with its unit") << u"bit rate"_s << u"192 kbps"_s << 192 << false;
        QTest::newRow("sample rate with a blank")
            << u"sample rate"_s << u" 44100"_s << 44100 << false;
    }
    void titlesReadAsChoices() {
        QFETCH(QString, kind);
        QFETCH(QString, title);
        QFETCH(int, value);
        QFETCH(bool, lossless);
        const SXConversionChoices choices =
            SXConversionChoices::fromTitles(kind == "bit rate"_L1 ? title : u"Use Source"_s,
                                            kind == "sample rate"_L1 ? title : u"Use Source"_s,
                                            kind == "channels"_L1 ? title : u"Use Source"_s);
        const std::optional<int> read = kind == "bit rate"_L1      ? choices.bitRate
                                        : kind == "sample rate"_L1 ? choices.sampleRate
                                                                   : choices.channels;
        QCOMPARE(read.value_or(-1), value);
        QCOMPARE(choices.lossless, lossless);
    }

    void lookupIsCaseSensitiveAndCopiesAreIndependent() {
        SXDataEngine* engine = SXDataEngine::shareInstance();
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

    void readsEveryFieldOfAPreset() {
        SXDataEngine engine(writePreset(u"four.plist"_s, presetXml()));
        QCOMPARE(engine.getAllOutputFormats(), QStringList({"One", "Two", "Three", "Four"}));
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
    }

    // Missing keys leave fields empty, unknown codecs give no encoder, blanks around commas stay.
    void incompleteEntriesLeaveFieldsEmpty() {
        const QByteArray xml =
            "<plist><dict><key>Audios</key><array>"
            "<dict><key>title</key><string>Bare</string>"
            "<key>acodec</key><dict><key>default</key><string>nothing</string></dict>"
            "<key>abitrate</key><dict><key>default</key><string> 96</string>"
            "<key>values</key><string>64, 96,,128</string></dict></dict>"
            "</array></dict></plist>";
        SXDataEngine engine(writePreset(u"bare.plist"_s, xml));
        const SXFormatSettingPtr bare = engine.getFormatWithName(u"Bare"_s);
        QVERIFY(bare && bare->decodecName().isNull() && bare->sampleRate().isEmpty());
        QVERIFY(bare->arySampleRate().isEmpty() && bare->aryChannels().isEmpty());
        QCOMPARE(bare->enumAddToLibrary(), 0);
        QCOMPARE(bare->aryBiteRate(), QStringList({"64", " 96", "", "128"}));
        QCOMPARE(bare->bitRate(), u" 96"_s);
        QVERIFY(engine.getCanEditMetadataMusicType().isEmpty());
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
        for (const auto& [ext, kind] : {std::pair{"mp3", 0},
                                        {"MP3", 0},
                                        {"FlaC", 0},
                                        {"m4a", 1},
                                        {"MP4", 1},
                                        {"m4r", 4},
                                        {"ogg", 4},
                                        {".mp3", 4},
                                        {"", 4}})
            QVERIFY2(SXDataEngine::getTagFileFormatByFileType(ext) == kind, ext);
    }
};

SONORIA_TEST_MAIN(TestSXDataEngine)
#include "tst_sxdataengine.moc"
