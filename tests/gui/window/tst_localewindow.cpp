#include "base/SXPathFailure.h"
#include "base/SXTranslations.h"
#include "gui/dialogs/SXFormatChooserDialog.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "gui/window/SXContainerTabBar.h"
#include "support/gui/GuiTestSupport.h"
#include "workspace/SXWorkspaceScheduler.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QLocale>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace SonoriaGuiTest;

// The window, the run's summary, the format chooser and the preferences in every language the
// program has a catalogue for: each is grabbed for a person to look at, and no text may be cut
// off (German and French run long).
class TestLocaleWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_media.isValid());
        m_source = m_media.filePath(u"Morning Walk.flac"_s);
        QVERIFY(SonoriaTest::makeTone(m_source, 2.0));
    }
    void everyTextFits_data() {
        QTest::addColumn<QString>("language");
        const QStringList languages = SXTranslations::availableLanguages();
        QVERIFY(languages.contains(u"en"_s));
        for (const QString& language : languages)
            QTest::newRow(qPrintable(language)) << language;
    }
    void everyTextFits() {
        QFETCH(QString, language);
        const QList<QTranslator*> translators = SXTranslations::load(language, this);
        QVERIFY(!translators.isEmpty());
        for (QTranslator* translator : translators)
            QCoreApplication::installTranslator(translator);
        QLocale::setDefault(QLocale(language));
        const auto restore = qScopeGuard([&translators] {
            for (QTranslator* translator : translators) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
            QLocale::setDefault(QLocale::c());
        });

        const auto window = openWindow({960, 600});
        QVERIFY(window);
        SXWorkspace& ws = window->workspace();
        QVERIFY(addFiles(ws, {m_source}));
        QCOMPARE(ws.store().currentTabItemCount(), 1);
        QTest::qWait(50);
        grab(window.get(), u"locale-window-"_s + language);
        SONORIA_VERIFY_NONE(clippedTexts(window.get()));

        // The summary of a run with failures, in the words the scheduler uses.
        const SXPathFailureList failures{
            {m_media.filePath(u"Evening Song.flac"_s),
             QCoreApplication::translate("ConvertFailure", "No space left on device")},
            {m_media.filePath(u"Night.wav"_s),
             QCoreApplication::translate("ConvertFailure", "The output folder is read-only")}};
        ws.store().runAlert({SXWorkspaceScheduler::summaryMessage(4, failures),
                             QString(),
                             {QCoreApplication::translate("SXWorkspaceScheduler", "OK")}});
        QMessageBox* summary = openDialog<QMessageBox>(window.get());
        QVERIFY(summary);
        QVERIFY(QTest::qWaitForWindowExposed(summary));
        // The English catalogue corrects the source text's grammar.
        if (language == u"en"_s)
            QVERIFY2(summary->text().startsWith(u"4 files have been converted."_s),
                     qPrintable(summary->text()));
        grab(summary, u"locale-summary-"_s + language);
        SONORIA_VERIFY_NONE(clippedTexts(summary));
        QTest::keyClick(summary, Qt::Key_Return);
        QTRY_VERIFY(!summary->isVisible());

        // The dialogs with the most words: the format chooser and the preferences.
        QTest::mouseClick(window->tabBar().addButton(), Qt::LeftButton);
        auto* chooser = openDialog<SXFormatChooserDialog>(window.get());
        QVERIFY(chooser);
        QVERIFY(QTest::qWaitForWindowExposed(chooser));
        grab(chooser, u"locale-chooser-"_s + language);
        SONORIA_VERIFY_NONE(clippedTexts(chooser));
        QTest::keyClick(chooser, Qt::Key_Escape);
        QTRY_VERIFY(!chooser->isVisible());

        SXPreferencesDialog preferences;
        preferences.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preferences));
        grab(&preferences, u"locale-preferences-"_s + language);
        SONORIA_VERIFY_NONE(clippedTexts(&preferences));
    }

private:
    QTemporaryDir m_media;
    QString m_source;
};

SONORIA_GUI_TEST_MAIN(TestLocaleWindow)
#include "tst_localewindow.moc"
