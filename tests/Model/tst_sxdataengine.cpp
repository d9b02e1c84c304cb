#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include "Model/SXDataEngine.h"
#include "Model/SXWindowController.h"
#include "Shared/SXSettings.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

// Stands in for a workspace window: only its key state matters to the registry.
class FakeWindow : public SXWindowController {
public:
    bool key = false;
    bool isKeyWindow() const override { return key; }
};

struct PresetEntry {
    QString title;
    QString ext;
    QString codec;
};

// A small preset file with the given formats; every entry offers two choices per list.
QByteArray presetXml(const QList<PresetEntry>& entries) {
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                     "<key>Audios</key><array>";
    for (const PresetEntry& e : entries) {
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
                   .arg(e.title, e.ext, e.codec)
                   .toUtf8();
    }
    xml += "</array><key>codecMap</key><dict><key>mp3</key><string>libmp3lame</string>"
           "<key>aac</key><string>aac</string></dict>"
           "<key>canEditTagFmtNames</key><array><string>One</string></array>"
           "<key>Devices</key><array><string>phone</string></array>"
           "<key>Formats</key><integer>7</integer></dict></plist>\n";
    return xml;
}

const QList<PresetEntry> kFourFormats{
    {QStringLiteral("One"), QStringLiteral("one"), QStringLiteral("mp3")},
    {QStringLiteral("Two"), QStringLiteral("two"), QStringLiteral("aac")},
    {QStringLiteral("Three"), QStringLiteral("three"), QStringLiteral("aac")},
    {QStringLiteral("Four"), QStringLiteral("two"), QStringLiteral("mp3")}};

} // namespace

class TestSXDataEngine : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString writePreset(const QString& name, const QByteArray& bytes) {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return {};
        file.write(bytes);
        return path;
    }

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        // The shared instance reads the library preference once; make sure it finds none.
        SXSettings::removeKey(SXSettingsKey::iTunesFmt);
        QVERIFY(SXDataEngine::shareInstance() != nullptr);
    }

    void cleanup() { SXSettings::removeKey(SXSettingsKey::iTunesFmt); }

    // The shipped preset: fixed containers first, every default among its choices, every
    // encoder resolved, every editable name a real format.
    void shippedPresetIsConsistent() {
        SXDataEngine* engine = SXDataEngine::shareInstance();
        QCOMPARE(SXDataEngine::shareInstance(), engine);
        const QStringList names = engine->getAllOutputFormats();
        QVERIFY(names.size() >= 12);
        const QStringList fixed{QStringLiteral("MP3"), QStringLiteral("AAC"),
                                QStringLiteral("Ringtone")};
        QCOMPARE(SXDataEngine::getCanNotRemoveFormatContainer(), fixed);
        QCOMPARE(names.mid(0, 3), fixed);
        QCOMPARE(names.size(), QSet<QString>(names.begin(), names.end()).size());
        for (const QString& name : names) {
            const SXFormatSettingPtr format = engine->getFormatWithName(name);
            QVERIFY2(format, qPrintable(name));
            QVERIFY2(format->arySampleRate().contains(format->sampleRate()), qPrintable(name));
            QVERIFY2(format->aryBiteRate().contains(format->biteRate()), qPrintable(name));
            QVERIFY2(format->aryChannels().contains(format->channels()), qPrintable(name));
            QVERIFY2(!format->decodecName().isEmpty(), qPrintable(name));
            QVERIFY2(!format->outputExtName().isEmpty(), qPrintable(name));
            QVERIFY2(!format->fmtDescribe().isEmpty(), qPrintable(name));
            QVERIFY2(!format->strImgFileName().isEmpty(), qPrintable(name));
            QVERIFY2(format->outputPath().endsWith(QStringLiteral("/Music/Sonoria/") + name),
                     qPrintable(format->outputPath()));
            QVERIFY(!format->isSaveAsOriginal());
        }
        for (const QString& editable : engine->getCanEditMetadataMusicType())
            QVERIFY2(names.contains(editable), qPrintable(editable));
        QCOMPARE(engine->getFormatWithName(QStringLiteral("Ringtone"))->outputExtName(),
                 QStringLiteral("m4r"));
        QCOMPARE(engine->getFormatWithName(QStringLiteral("Ringtone"))->enumAddToiTunes(), -1);
    }

    void lookupIsCaseSensitiveAndCopiesAreIndependent() {
        SXDataEngine* engine = SXDataEngine::shareInstance();
        QVERIFY(!engine->getFormatWithName(QStringLiteral("mp3")));
        QVERIFY(!engine->getFormatWithName(QStringLiteral("Mp3")));
        QVERIFY(!engine->getFormatWithName(QString()));

        const SXFormatSettingPtr first = engine->getFormatWithName(QStringLiteral("MP3"));
        const SXFormatSettingPtr second = engine->getFormatWithName(QStringLiteral("MP3"));
        QVERIFY(first && second && first != second);
        const QString rate = first->sampleRate();
        first->setSampleRate(QStringLiteral("8000"));
        first->setFmtName(QStringLiteral("Changed"));
        first->setEnumAddToiTunes(1);
        first->setOutputPath(QStringLiteral("/elsewhere"));
        QCOMPARE(second->sampleRate(), rate);
        QCOMPARE(second->fmtName(), QStringLiteral("MP3"));
        QCOMPARE(second->enumAddToiTunes(), 0);
        const SXFormatSettingPtr third = engine->getFormatWithName(QStringLiteral("MP3"));
        QCOMPARE(third->sampleRate(), rate);
        QVERIFY(third->outputPath() != QStringLiteral("/elsewhere"));
        QVERIFY(!engine->getFormatWithName(QStringLiteral("Changed")));

        // The choice lists are one list shared by the catalogue and all its copies.
        QVERIFY(first->aryBiteRate().isSharedWith(second->aryBiteRate()));
        QVERIFY(first->arySampleRate().isSharedWith(third->arySampleRate()));
        QVERIFY(second->aryChannels().isSharedWith(third->aryChannels()));
        const SXFormatSettingPtr copied = first->copy();
        QVERIFY(copied->aryChannels().isSharedWith(first->aryChannels()));
        QCOMPARE(copied->sampleRate(), QStringLiteral("8000"));
        QCOMPARE(copied->outputPath(), QStringLiteral("/elsewhere"));
        QCOMPARE(copied->enumAddToiTunes(), 1);
    }

    void readsEveryFieldOfAPreset() {
        SXDataEngine engine(writePreset(QStringLiteral("four.plist"), presetXml(kFourFormats)));
        QCOMPARE(engine.getAllOutputFormats(),
                 (QStringList{QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three"),
                              QStringLiteral("Four")}));
        const SXFormatSettingPtr one = engine.getFormatWithName(QStringLiteral("One"));
        QCOMPARE(one->fmtDescribe(), QStringLiteral("One text"));
        QCOMPARE(one->decodecName(), QStringLiteral("libmp3lame"));
        QCOMPARE(one->strImgFileName(), QStringLiteral("one.png"));
        QCOMPARE(one->arySampleRate(),
                 (QStringList{QStringLiteral("44100"), QStringLiteral("48000")}));
        QCOMPARE(one->aryChannels(),
                 (QStringList{QStringLiteral("Stereo"), QStringLiteral("Mono")}));
        QCOMPARE(one->biteRate(), QStringLiteral("128"));
        QCOMPARE(one->enumAddToiTunes(), 1);
        QCOMPARE(engine.getDecodecWithCodecName(QStringLiteral("aac")), QStringLiteral("aac"));
        QVERIFY(engine.getDecodecWithCodecName(QStringLiteral("AAC")).isNull());
        QCOMPARE(engine.getCanEditMetadataMusicType(), QStringList{QStringLiteral("One")});
        QCOMPARE(engine.aryDevices().toList().value(0).toString(), QStringLiteral("phone"));
        QCOMPARE(engine.aryFormats().toInt(), 7);
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
        SXDataEngine engine(writePreset(QStringLiteral("bare.plist"), xml));
        const SXFormatSettingPtr bare = engine.getFormatWithName(QStringLiteral("Bare"));
        QVERIFY(bare);
        QVERIFY(bare->decodecName().isNull());
        QVERIFY(bare->arySampleRate().isEmpty());
        QVERIFY(bare->aryChannels().isEmpty());
        QVERIFY(bare->sampleRate().isEmpty());
        QCOMPARE(bare->enumAddToiTunes(), 0);
        QCOMPARE(bare->aryBiteRate(), (QStringList{QStringLiteral("64"), QStringLiteral(" 96"),
                                                   QString(), QStringLiteral("128")}));
        QCOMPARE(bare->biteRate(), QStringLiteral(" 96"));
        QVERIFY(engine.getCanEditMetadataMusicType().isEmpty());
    }

    void musicLibrarySlot_data() {
        QTest::addColumn<QString>("preference");
        QTest::addColumn<QStringList>("expectedNames");
        QTest::addColumn<QString>("copiedFrom");
        const QStringList asInFile{QStringLiteral("One"), QStringLiteral("Two"),
                                   QStringLiteral("Three"), QStringLiteral("Four")};
        QTest::newRow("third format already has it")
            << QStringLiteral("three") << asInFile << QString();
        QTest::newRow("no format has it") << QStringLiteral("zzz") << asInFile << QString();
        QTest::newRow("differs only in case") << QStringLiteral("Two") << asInFile << QString();
        QTest::newRow("unset") << QString() << asInFile << QString();
        QTest::newRow("first of two with it")
            << QStringLiteral("two")
            << QStringList{QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("two"),
                           QStringLiteral("Four")}
            << QStringLiteral("Two");
        QTest::newRow("first format") << QStringLiteral("one")
                                      << QStringList{QStringLiteral("One"), QStringLiteral("Two"),
                                                     QStringLiteral("one"), QStringLiteral("Four")}
                                      << QStringLiteral("One");
    }

    void musicLibrarySlot() {
        QFETCH(QString, preference);
        QFETCH(QStringList, expectedNames);
        QFETCH(QString, copiedFrom);
        if (!preference.isNull())
            SXSettings::setValue(SXSettingsKey::iTunesFmt, preference);
        SXDataEngine engine(writePreset(QStringLiteral("slot.plist"), presetXml(kFourFormats)));
        QCOMPARE(engine.getAllOutputFormats(), expectedNames);
        if (copiedFrom.isEmpty()) {
            QCOMPARE(engine.getFormatWithName(QStringLiteral("Three"))->fmtDescribe(),
                     QStringLiteral("Three text"));
            return;
        }
        const SXFormatSettingPtr slot = engine.getFormatWithName(preference);
        const SXFormatSettingPtr source = engine.getFormatWithName(copiedFrom);
        QCOMPARE(slot->outputExtName(), preference);
        QCOMPARE(slot->decodecName(), source->decodecName());
        QCOMPARE(slot->strImgFileName(), source->strImgFileName());
        QVERIFY(slot->aryBiteRate().isSharedWith(source->aryBiteRate()));
        // The description names the displaced record as an object, not by its text.
        static const QRegularExpression objectText(
            QStringLiteral("^<SXFormatSetting: 0x[0-9a-f]+>$"));
        QVERIFY2(objectText.match(slot->fmtDescribe()).hasMatch(), qPrintable(slot->fmtDescribe()));
        QCOMPARE(source->fmtDescribe(), copiedFrom + QStringLiteral(" text"));
    }

    void slotNeedsThreeFormats() {
        SXSettings::setValue(SXSettingsKey::iTunesFmt, QStringLiteral("two"));
        SXDataEngine engine(
            writePreset(QStringLiteral("two.plist"), presetXml(kFourFormats.mid(0, 2))));
        QCOMPARE(engine.getAllOutputFormats(),
                 (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    }

    void unreadablePresetLeavesCatalogueEmpty_data() {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << QByteArray() << QStringLiteral("cannot open");
        QTest::newRow("truncated") << presetXml(kFourFormats).left(300) << QStringLiteral("line ");
        QTest::newRow("not a plist")
            << QByteArray("<html><body/></html>") << QStringLiteral("line ");
        QTest::newRow("root is an array") << QByteArray("<plist><array/></plist>")
                                          << QStringLiteral("does not hold a dictionary");
    }

    void unreadablePresetLeavesCatalogueEmpty() {
        QFETCH(QByteArray, contents);
        QFETCH(QString, reason);
        const QString path = contents.isNull() ? m_dir.filePath(QStringLiteral("absent.plist"))
                                               : writePreset(QStringLiteral("bad.plist"), contents);
        LogCapture log;
        SXDataEngine engine(path);
        QVERIFY(engine.getAllOutputFormats().isEmpty());
        QVERIFY(!engine.getFormatWithName(QStringLiteral("One")));
        QVERIFY(engine.getCanEditMetadataMusicType().isEmpty());
        QVERIFY(engine.getDecodecWithCodecName(QStringLiteral("mp3")).isNull());
        QCOMPARE(log.lines().size(), 1);
        const QString line = log.lines().constFirst();
        QVERIFY2(line.startsWith(QStringLiteral("load formats failed: ")) && line.contains(reason),
                 qPrintable(line));
    }

    void registryKeepsOrderAndDuplicates() {
        SXDataEngine engine(writePreset(QStringLiteral("reg.plist"), presetXml(kFourFormats)));
        FakeWindow a, b, c;
        QVERIFY(engine.getAllMainWndCtlr().isEmpty());
        QCOMPARE(engine.getKeyWindowCtlr(), nullptr);
        engine.addNewMainWndCtlr(&a);
        engine.addNewMainWndCtlr(nullptr);
        engine.addNewMainWndCtlr(&b);
        engine.addNewMainWndCtlr(&a);
        engine.addNewMainWndCtlr(&c);
        QCOMPARE(engine.getAllMainWndCtlr(), (QList<SXWindowController*>{&a, &b, &a, &c}));
        QCOMPARE(engine.getKeyWindowCtlr(), nullptr);
        c.key = true;
        QCOMPARE(engine.getKeyWindowCtlr(), &c);
        b.key = true;
        QCOMPARE(engine.getKeyWindowCtlr(), &b);

        engine.removeMainWndCtlr(&a);
        engine.removeMainWndCtlr(nullptr);
        QCOMPARE(engine.getAllMainWndCtlr(), (QList<SXWindowController*>{&b, &c}));
        engine.removeMainWndCtlr(&b);
        QCOMPARE(engine.getKeyWindowCtlr(), &c);
        engine.removeMainWndCtlr(&c);
        QCOMPARE(engine.getKeyWindowCtlr(), nullptr);
        // The registry is handed out itself, so callers see later changes.
        const QList<SXWindowController*>& live = engine.getAllMainWndCtlr();
        engine.addNewMainWndCtlr(&a);
        QCOMPARE(live.size(), 1);
    }

    void tagFileKinds_data() {
        QTest::addColumn<QString>("ext");
        QTest::addColumn<int>("kind");
        QTest::newRow("mp3") << QStringLiteral("mp3") << 0;
        QTest::newRow("MP3") << QStringLiteral("MP3") << 0;
        QTest::newRow("FlaC") << QStringLiteral("FlaC") << 0;
        QTest::newRow("m4a") << QStringLiteral("m4a") << 1;
        QTest::newRow("MP4") << QStringLiteral("MP4") << 1;
        QTest::newRow("m4r") << QStringLiteral("m4r") << 4;
        QTest::newRow("ogg") << QStringLiteral("ogg") << 4;
        QTest::newRow("dotted") << QStringLiteral(".mp3") << 4;
        QTest::newRow("empty") << QString() << 4;
    }

    void tagFileKinds() {
        QFETCH(QString, ext);
        QFETCH(int, kind);
        QCOMPARE(SXDataEngine::getTagFileFormatByFileType(ext), kind);
    }
};

SONORIA_TEST_MAIN(TestSXDataEngine)
#include "tst_sxdataengine.moc"
