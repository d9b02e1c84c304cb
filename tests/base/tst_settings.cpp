#include "base/SXCoder.h"
#include "base/SXSettings.h"
#include "support/TestSupport.h"

#include <QSettings>

class TestSettings : public QObject {
    Q_OBJECT
private Q_SLOTS:
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
