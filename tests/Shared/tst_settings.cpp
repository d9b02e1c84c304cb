#include "Shared/SXCoder.h"
#include "Shared/SXSettings.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QSettings>

class TestSettings : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        for (const QString& key :
             {SXSettingsKey::MaxTask, SXSettingsKey::iTunesFmt, SXSettingsKey::iTunesPlaylistName})
            SXSettings::removeKey(key);
    }

    void storeLivesUnderTheIsolatedConfigHome() {
        QVERIFY(SXSettings::fileName().startsWith(SonoriaTest::configHome()));
        QVERIFY(SXSettings::fileName().endsWith(QStringLiteral("Sonoria/Sonoria.conf")));
    }

    void firstRunRegistersTheDefaults() {
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 5);
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::iTunesFmt), QStringLiteral("AAC"));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::iTunesPlaylistName),
                 QStringLiteral("Sonoria"));
        // The defaults are on disk, not only in this process's cache.
        QSettings raw(SXSettings::fileName(), QSettings::IniFormat);
        QCOMPARE(raw.value(SXSettingsKey::MaxTask).toString(), QStringLiteral("5"));
    }

    void storedChoicesSurviveRegistration() {
        SXSettings::setValue(SXSettingsKey::MaxTask, 3); // not offered, still honoured
        SXSettings::setValue(SXSettingsKey::iTunesFmt, QStringLiteral("MP3"));
        SXSettings::setValue(SXSettingsKey::iTunesPlaylistName, QString());
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3);
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::iTunesFmt), QStringLiteral("MP3"));
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::iTunesPlaylistName),
                 QStringLiteral("Sonoria"));
        SXSettings::setValue(SXSettingsKey::MaxTask, 0);
        SXSettings::setPreferenceValue();
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 5);
    }

    // INI brings scalars back as text; the typed readers must not be fooled by that.
    void typedReadsOfTextValues() {
        QSettings raw(SXSettings::fileName(), QSettings::IniFormat);
        raw.setValue(QStringLiteral("flagTrue"), QStringLiteral("true"));
        raw.setValue(QStringLiteral("flagOne"), QStringLiteral("1"));
        raw.setValue(QStringLiteral("flagFalse"), QStringLiteral("false"));
        raw.setValue(QStringLiteral("number"), QStringLiteral("12"));
        raw.setValue(QStringLiteral("junk"), QStringLiteral("twelve"));
        raw.setValue(QStringLiteral("list"), QStringList{QStringLiteral("a"), QStringLiteral("b")});
        raw.sync();
        QVERIFY(SXSettings::boolForKey(QStringLiteral("flagTrue")));
        QVERIFY(SXSettings::boolForKey(QStringLiteral("flagOne")));
        QVERIFY(!SXSettings::boolForKey(QStringLiteral("flagFalse"), true));
        QVERIFY(SXSettings::boolForKey(QStringLiteral("missing"), true));
        QVERIFY(!SXSettings::boolForKey(QStringLiteral("missing")));
        QCOMPARE(SXSettings::integerForKey(QStringLiteral("number")), 12);
        QCOMPARE(SXSettings::integerForKey(QStringLiteral("junk"), 7), 7);
        QCOMPARE(SXSettings::stringForKey(QStringLiteral("list"), QStringLiteral("x")),
                 QStringLiteral("x"));
        QVERIFY(!SXSettings::contains(QStringLiteral("missing")));
    }

    void coderRoundTripsNestedValues() {
        SXCoder child;
        child.encode(QStringLiteral("n"), 3);
        SXCoder root;
        root.encode(QStringLiteral("b"), QStringLiteral("two"));
        root.encode(QStringLiteral("a"), 1.5);
        root.encodeObject(QStringLiteral("child"), child);
        root.encode(QStringLiteral("b"), QStringLiteral("again")); // rewrite keeps the slot
        bool ok = false;
        const SXCoder back = SXCoder::fromData(root.toData(), &ok);
        QVERIFY(ok);
        QCOMPARE(back.keys(),
                 (QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("child")}));
        QCOMPARE(back.decodeString(QStringLiteral("b")), QStringLiteral("again"));
        QCOMPARE(back.decodeObject(QStringLiteral("child")).decodeInt(QStringLiteral("n")), 3);
        QVERIFY(!back.decodeObject(QStringLiteral("a")).allowsKeyedCoding());
        QVERIFY(!back.decode(QStringLiteral("missing")).isValid());
    }
};

SONORIA_TEST_MAIN(TestSettings)
#include "tst_settings.moc"
