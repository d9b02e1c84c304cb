#include "base/SXSettings.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "gui/panels/SXSettingsPanel.h"
#include "support/TestSupport.h"
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

// The window's side of output naming: the panel's pattern and folder layout reach the container
// and the settings file, with the first file's name shown; the preferences store what a run does
// with outputs already there. All by keyboard, every control named.
class TestNamingChoices : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
    void preferencesStoreTheChoiceForExistingOutputs() {
        SXSettings::removeKey(SXSettingsKey::ExistingOutputs);
        SXPreferencesDialog window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* existing = window.findChild<QComboBox*>(u"pbtnExistingOutputs"_s);
        QVERIFY(existing);
        QCOMPARE(existing->currentText(), u"Skip files already converted"_s);
        QCOMPARE(existing->accessibleName(), u"Existing outputs"_s);
        existing->setFocus();
        QTest::keyClick(existing, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::ExistingOutputs).toString(), u"both"_s);
        QTest::keyClick(existing, Qt::Key_Down);
        QCOMPARE(storedOnDisk(SXSettingsKey::ExistingOutputs).toString(), u"replace"_s);
        QCOMPARE(mnemonicClashes(&window), QStringList());
    }

private:
    static QVariant storedOnDisk(const QString& key) {
        return QSettings(SXSettings::fileName(), QSettings::NativeFormat).value(key);
    }
};

SONORIA_GUI_TEST_MAIN(TestNamingChoices)
#include "tst_namingchoices.moc"
