#include "base/SXSettings.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "gui/panels/SXSettingsPanel.h"
#include "online/SXServiceRequest.h"
#include "support/gui/GuiTestSupport.h"
#include "workspace/SXWorkspace.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>

using namespace SonoriaGuiTest;
using namespace Qt::StringLiterals;

// The preference window has no OK button: every change must be in the settings file at once,
// where the next start (another process) reads it. The settings panel's output naming reaches the
// container and the settings file alike, with the first file's name shown. All by keyboard,
// every control named.
class TestPreferences : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        SXSettings::setValue(SXSettingsKey::MaxTask, 5);
        SXSettings::setValue(SXSettingsKey::libraryFormat, u"AAC"_s);
        SXSettings::setValue(SXSettingsKey::libraryPlaylistName, u"Sonoria"_s);
        SXSettings::removeKey(SXServiceRequest::kConsentKey);
        SXSettings::removeKey(SXSettingsKey::ExistingOutputs);
        SXSettings::synchronize();
    }
    void everyChangeIsStoredAtOnce() {
        SXPreferencesDialog window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* tasks = window.findChild<QComboBox*>(u"pbtnMaxTasks"_s);
        auto* library = window.findChild<QComboBox*>(u"pbtnLibraryFormat"_s);
        auto* playlist = window.findChild<QLineEdit*>(u"fdPlaylistName"_s);
        auto* existing = window.findChild<QComboBox*>(u"pbtnExistingOutputs"_s);
        QCOMPARE(tasks->currentText(), u"5"_s);
        QCOMPARE(library->currentText(), u"AAC"_s);
        QCOMPARE(playlist->text(), u"Sonoria"_s);
        QCOMPARE(existing->currentText(), u"Skip files already converted"_s);
        grab(&window, u"preferences"_s);

        tasks->setFocus();
        QTest::keyClick(tasks, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::MaxTask).toInt(), 10);
        QTest::keyClick(tasks, Qt::Key_Home);
        QCOMPARE(storedOnDisk(SXSettingsKey::MaxTask).toInt(), 2);

        library->setFocus();
        QTest::keyClick(library, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::libraryFormat).toString(), u"MP3"_s);

        playlist->setFocus();
        playlist->selectAll();
        QTest::keyClicks(playlist, u"Road Mix"_s);
        QCOMPARE(storedOnDisk(SXSettingsKey::libraryPlaylistName).toString(), u"Road Mix"_s);
        QTest::keyClick(playlist, Qt::Key_Backspace);
        QCOMPARE(storedOnDisk(SXSettingsKey::libraryPlaylistName).toString(), u"Road Mi"_s);

        // What a run does with outputs already there.
        existing->setFocus();
        QTest::keyClick(existing, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::ExistingOutputs).toString(), u"both"_s);
        QTest::keyClick(existing, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::ExistingOutputs).toString(), u"replace"_s);

        // The network consent starts off and is the user's own act.
        auto* consent = window.findChild<QCheckBox*>(u"chkServiceConsent"_s);
        QVERIFY(!consent->isChecked() && !storedOnDisk(SXServiceRequest::kConsentKey).isValid());
        consent->setFocus();
        QTest::keyClick(consent, Qt::Key_Space);
        QCOMPARE(storedOnDisk(SXServiceRequest::kConsentKey).toString(), u"true"_s);
        QTest::keyClick(consent, Qt::Key_Space);
        QCOMPARE(storedOnDisk(SXServiceRequest::kConsentKey).toString(), u"false"_s);

        // Tab runs through the controls, and each has a name to read out.
        SONORIA_VERIFY_NONE(accessibilityProblems(&window));
        QCOMPARE(existing->accessibleName(), u"Existing outputs"_s);
    }
    void aStoredValueOutsideTheChoicesShowsNoChoice() {
        SXSettings::setValue(SXSettingsKey::MaxTask, 3);
        SXSettings::setValue(SXSettingsKey::libraryFormat, u"MP3"_s);
        SXPreferencesDialog window;
        QCOMPARE(window.findChild<QComboBox*>(u"pbtnMaxTasks"_s)->currentIndex(), -1);
        QCOMPARE(window.findChild<QComboBox*>(u"pbtnLibraryFormat"_s)->currentText(), u"MP3"_s);
        // Showing it wrote nothing back.
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3);
    }
    void panelEditsTheContainersNaming() {
        QTemporaryDir dir;
        const QString source = dir.filePath(u"x.flac"_s);
        QVERIFY(SonoriaTest::makeTone(source, 0.5,
                                      {"-metadata", "artist=Nina", "-metadata", "title=One"}));
        SXWorkspace workspace;
        workspace.tabs().addDefaultTabs();
        QVERIFY(addFiles(workspace, u"MP3"_s, {source}));

        SXSettingsPanel panel(workspace.store());
        panel.showSetting(workspace.store().getSelectedTabFormatSetting());
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        auto* pattern = panel.findChild<QLineEdit*>(u"fdNamePattern"_s);
        auto* preview = panel.findChild<QLabel*>(u"lblNamePreview"_s);
        auto* mirror = panel.findChild<QCheckBox*>(u"btnMirrorFolders"_s);
        QVERIFY(pattern && preview && mirror);
        QCOMPARE(preview->text(), u"The first file becomes: x.mp3"_s);

        pattern->setFocus();
        QTest::keyClicks(pattern, u"{artist}/{title}"_s);
        const SXFormatSettingPtr setting = workspace.store().getSelectedTabFormatSetting();
        QCOMPARE(setting->namePattern(), u"{artist}/{title}"_s);
        QCOMPARE(preview->text(), u"The first file becomes: Nina/One.mp3"_s);
        mirror->setFocus();
        QTest::keyClick(mirror, Qt::Key_Space);
        QVERIFY(setting->mirrorFolders());
        // Stored with the container's other choices, for the next start.
        const QString stored = storedOnDisk(u"SXContainerChoices/MP3"_s).toString();
        QVERIFY2(stored.contains(u"\"namePattern\":\"{artist}/{title}\""_s) &&
                     stored.contains(u"\"mirrorFolders\":true"_s),
                 qPrintable(stored));
        SONORIA_VERIFY_NONE(accessibilityProblems(&panel));
    }

private:
    // What another process would read from the settings file right now.
    static QVariant storedOnDisk(const QString& key) {
        return QSettings(SXSettings::fileName(), QSettings::NativeFormat).value(key);
    }
};

SONORIA_GUI_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
