#include "base/SXSettings.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "online/SXServiceRequest.h"
#include "support/gui/GuiTestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSettings>

using namespace SonoriaGuiTest;

// The preference window has no OK button: every change must be in the settings file at once,
// where the next start (another process) reads it.
class TestPreferences : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        SXSettings::setValue(SXSettingsKey::MaxTask, 5);
        SXSettings::setValue(SXSettingsKey::libraryFormat, QStringLiteral("AAC"));
        SXSettings::setValue(SXSettingsKey::libraryPlaylistName, QStringLiteral("Sonoria"));
        SXSettings::removeKey(SXServiceRequest::kConsentKey);
        SXSettings::synchronize();
    }
    void everyChangeIsStoredAtOnce() {
        SXPreferencesDialog window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* tasks = window.findChild<QComboBox*>(QStringLiteral("pbtnMaxTasks"));
        auto* library = window.findChild<QComboBox*>(QStringLiteral("pbtnLibraryFormat"));
        auto* playlist = window.findChild<QLineEdit*>(QStringLiteral("fdPlaylistName"));
        QCOMPARE(tasks->currentText(), QStringLiteral("5"));
        QCOMPARE(library->currentText(), QStringLiteral("AAC"));
        QCOMPARE(playlist->text(), QStringLiteral("Sonoria"));
        grab(&window, QStringLiteral("preferences"));

        tasks->setFocus();
        QTest::keyClick(tasks, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::MaxTask).toInt(), 10);
        QTest::keyClick(tasks, Qt::Key_Home);
        QCOMPARE(storedOnDisk(SXSettingsKey::MaxTask).toInt(), 2);

        library->setFocus();
        QTest::keyClick(library, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::libraryFormat).toString(), QStringLiteral("MP3"));

        playlist->setFocus();
        playlist->selectAll();
        QTest::keyClicks(playlist, QStringLiteral("Road Mix"));
        QCOMPARE(storedOnDisk(SXSettingsKey::libraryPlaylistName).toString(),
                 QStringLiteral("Road Mix"));
        QTest::keyClick(playlist, Qt::Key_Backspace);
        QCOMPARE(storedOnDisk(SXSettingsKey::libraryPlaylistName).toString(),
                 QStringLiteral("Road Mi"));

        // The network consent starts off and is the user's own act.
        auto* consent = window.findChild<QCheckBox*>(QStringLiteral("chkServiceConsent"));
        QVERIFY(!consent->isChecked() && !storedOnDisk(SXServiceRequest::kConsentKey).isValid());
        consent->setFocus();
        QTest::keyClick(consent, Qt::Key_Space);
        QCOMPARE(storedOnDisk(SXServiceRequest::kConsentKey).toString(), QStringLiteral("true"));
        QTest::keyClick(consent, Qt::Key_Space);
        QCOMPARE(storedOnDisk(SXServiceRequest::kConsentKey).toString(), QStringLiteral("false"));

        // Tab runs through the four controls, and each has a name to read out.
        SONORIA_VERIFY_NONE(accessibilityProblems(&window));
    }
    void aStoredValueOutsideTheChoicesShowsNoChoice() {
        SXSettings::setValue(SXSettingsKey::MaxTask, 3);
        SXSettings::setValue(SXSettingsKey::libraryFormat, QStringLiteral("MP3"));
        SXPreferencesDialog window;
        auto* tasks = window.findChild<QComboBox*>(QStringLiteral("pbtnMaxTasks"));
        QCOMPARE(tasks->currentIndex(), -1);
        QCOMPARE(window.findChild<QComboBox*>(QStringLiteral("pbtnLibraryFormat"))->currentText(),
                 QStringLiteral("MP3"));
        // Showing it wrote nothing back.
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3);
    }

private:
    // What another process would read from the settings file right now.
    static QVariant storedOnDisk(const QString& key) {
        return QSettings(SXSettings::fileName(), QSettings::NativeFormat).value(key);
    }
};

SONORIA_GUI_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
