#include "base/SXCoder.h"
#include "base/SXSettings.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

class TestSettings : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // A settings file as earlier versions wrote it (the keys' old spellings, which the code's
    // names no longer show) is read by today's names, and a save keeps those spellings.
    void fileOfAnEarlierVersionStillLoads() {
        QVERIFY(QDir().mkpath(QFileInfo(SXSettings::fileName()).path()));
        QFile file(SXSettings::fileName());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[General]\n"
                   "com.sx.MaxTastKey=3\n"
                   "com.sx.iTunesFmtKey=MP3\n"
                   "com.sx.iTunesPlaylistNameKey=Road trip\n"
                   "AppBSyncToiTunesKey=true\n"
                   "DEFAULT_OUTPUT_PATH_KEY=/music/out\n"
                   "DEFAUTL_SET_ORIGANIZED_KEY=false\n");
        file.close();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3);
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryFormat), QStringLiteral("MP3"));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName),
                 QStringLiteral("Road trip"));
        QVERIFY(SXSettings::boolForKey(SXSettingsKey::AppBSyncToLibrary));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::DefaultOutputPath),
                 QStringLiteral("/music/out"));
        QVERIFY(!SXSettings::boolForKey(SXSettingsKey::DefaultSetOrganized, true));
        SXSettings::setPreferenceValue();
        SXSettings::setValue(SXSettingsKey::libraryFormat, QStringLiteral("AAC"));
        SXSettings::synchronize();
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray saved = file.readAll();
        QVERIFY(saved.contains("com.sx.iTunesFmtKey=AAC") && saved.contains("AppBSyncToiTunesKey"));
        QVERIFY(saved.contains("com.sx.iTunesPlaylistNameKey=Road trip"));
        for (const QString& key :
             {SXSettingsKey::MaxTask, SXSettingsKey::libraryFormat,
              SXSettingsKey::libraryPlaylistName, SXSettingsKey::AppBSyncToLibrary,
              SXSettingsKey::DefaultOutputPath, SXSettingsKey::DefaultSetOrganized})
            SXSettings::removeKey(key);
        SXSettings::synchronize();
    }

    // The store lives under the isolated config home; the first run puts the defaults on disk,
    // later runs keep stored choices and only repair what is empty or zero.
    void registrationKeepsStoredChoices() {
        QVERIFY(SXSettings::fileName().startsWith(SonoriaTest::configHome() + "/"));
        QVERIFY(SXSettings::fileName().endsWith("Sonoria/Sonoria.conf"));
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 5);
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryFormat), QStringLiteral("AAC"));
        QCOMPARE(QSettings(SXSettings::fileName(), QSettings::IniFormat)
                     .value(SXSettingsKey::libraryPlaylistName),
                 QStringLiteral("Sonoria"));

        SXSettings::setValue(SXSettingsKey::MaxTask, 3); // not offered, still honoured
        SXSettings::setValue(SXSettingsKey::libraryFormat, QStringLiteral("MP3"));
        SXSettings::setValue(SXSettingsKey::libraryPlaylistName, QString());
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3);
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryFormat), QStringLiteral("MP3"));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName),
                 QStringLiteral("Sonoria"));
        SXSettings::setValue(SXSettingsKey::MaxTask, 0);
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 5);
    }

    // INI brings scalars back as text; the typed readers must not be fooled by that.
    void typedReadsOfTextValues() {
        QSettings raw(SXSettings::fileName(), QSettings::IniFormat);
        for (const auto& [key, text] : {std::pair{"flagTrue", "true"},
                                        {"flagOne", "1"},
                                        {"flagFalse", "false"},
                                        {"number", "12"},
                                        {"junk", "twelve"}})
            raw.setValue(key, QString(text));
        raw.setValue("list", QStringList{"a", "b"});
        raw.sync();
        QVERIFY(SXSettings::boolForKey("flagTrue") && SXSettings::boolForKey("flagOne"));
        QVERIFY(!SXSettings::boolForKey("flagFalse", true));
        QVERIFY(SXSettings::boolForKey("missing", true) && !SXSettings::boolForKey("missing"));
        QCOMPARE(SXSettings::integerForKey("number"), 12);
        QCOMPARE(SXSettings::integerForKey("junk", 7), 7);
        QCOMPARE(SXSettings::stringForKey("list", "x"), QStringLiteral("x"));
        QVERIFY(!SXSettings::contains("missing"));
    }

    // Keyed archives keep the order keys were first written in, nest, and tell missing keys.
    void coderRoundTripsNestedValues() {
        SXCoder child;
        child.encode("n", 3);
        SXCoder root;
        root.encode("b", QStringLiteral("two"));
        root.encode("a", 1.5);
        root.encodeObject("child", child);
        root.encode("b", QStringLiteral("again")); // rewrite keeps the slot
        bool ok = false;
        const SXCoder back = SXCoder::fromData(root.toData(), &ok);
        QVERIFY(ok);
        QCOMPARE(back.keys(), QStringList({"b", "a", "child"}));
        QCOMPARE(back.decodeString("b"), QStringLiteral("again"));
        QCOMPARE(back.decodeObject("child").decodeInt("n"), 3);
        QVERIFY(!back.decodeObject("a").allowsKeyedCoding());
        QVERIFY(!back.decode("missing").isValid());
    }
};

SONORIA_TEST_MAIN(TestSettings)
#include "tst_settings.moc"
