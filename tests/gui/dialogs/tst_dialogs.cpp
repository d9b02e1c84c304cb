#include "support/gui/GuiTestSupport.h"

#include "base/SXSettings.h"
#include "framework/MTEAudioFileMgr.h"
#include "gui/dialogs/SXArtworkDropView.h"
#include "gui/dialogs/SXMetadataEditDialog.h"
#include "gui/dialogs/SXPreferencesDialog.h"
#include "model/SXDataEngine.h"
#include "online/SXServiceRequest.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

using namespace Qt::StringLiterals;
using namespace SXMetadataEditing;

namespace {
// Writes a PNG of `size` and returns its path.
QString pictureFile(const QTemporaryDir& dir, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(0x3d, 0x8f, 0xd1));
    const QString path = dir.filePath(u"cover-%1x%2.png"_s.arg(size.width()).arg(size.height()));
    image.save(path);
    return path;
}

// A file manager's drag of `file` onto `view`, entering and dropping.
void dropFile(QWidget* view, const QString& file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view, &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view, &drop);
}

// How many values a converted file's tags hold under `key`.
int tagCount(const QString& file, const char* key) {
    TagLib::FileRef ref(QFile::encodeName(file).constData());
    return ref.isNull() ? -1 : int(ref.file()->properties()[key].size());
}
} // namespace

// The tag editor and the preferences, driven as a user would. The preference window has no OK
// button: every change must be in the settings file at once, where the next start (another
// process) reads it.
class TestDialogs : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        for (const QString& name : {u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s})
            QVERIFY(SonoriaTest::makeTone(m_dir.filePath(name), 1.0,
                                          {u"-metadata"_s, u"title=Old %1"_s.arg(name)}));
    }
    void init() {
        SXSettings::setValue(SXSettingsKey::MaxTask, 5);
        SXSettings::setValue(SXSettingsKey::libraryFormat, u"AAC"_s);
        SXSettings::setValue(SXSettingsKey::libraryPlaylistName, u"Sonoria"_s);
        SXSettings::removeKey(SXServiceRequest::kConsentKey);
        SXSettings::removeKey(SXSettingsKey::ExistingOutputs);
        SXSettings::synchronize();
        m_presenter = WorkspaceTestPresenter();
        m_workspace = std::make_unique<SXWorkspace>();
        prepareWorkspace(*m_workspace, &m_presenter);
        m_window = std::make_unique<QWidget>();
        m_window->resize(700, 500);
        m_window->show();
        m_editor = new SXMetadataEditDialog(m_window.get());
        m_editor->setListener(&m_workspace->addRun());
    }
    void cleanup() {
        m_window.reset();
        m_workspace.reset();
    }
    void fillingWritesNothingTypingWritesOnlyItsFieldAndThePlaceIsKept() {
        const SXMusicInfoPtr item = addFiles(u"MP3"_s, {u"a.mp3"_s}).first();
        const auto tags = item->metHandler();
        const QMap<QString, QVariant> before = tags->dicReadInfo();
        m_editor->setMusicInfo(item);
        m_editor->open();
        QCOMPARE(line("tfTitle")->text(), u"Old a.mp3"_s);
        QCOMPARE(m_editor->windowTitle(), u"a.mp3"_s);
        for (int tab : {2, 1, 0}) {
            m_editor->findChild<QTabWidget*>(u"tabView"_s)->setCurrentIndex(tab);
            // Every control of the page has a name a screen reader says, and Tab reaches it.
            SONORIA_VERIFY_NONE(SonoriaGuiTest::accessibilityProblems(m_editor));
        }
        QCOMPARE(tags->dicReadInfo(), before); // shown, not written back

        QTest::keyClicks(line("tfArtist"), u"Ann"_s);
        QTest::keyClicks(text("tvComments"), u"Nice"_s);
        QCOMPARE(tags->artist(), u"Ann"_s);
        QCOMPARE(tags->comment(), u"Nice"_s);
        QCOMPARE(tags->album(), QString());
        grab(u"editor-tags"_s);

        // Its place is remembered as a point string, by OK and by the title bar's close button.
        QCOMPARE(parsePointString(u"{120, -35}"_s), QPoint(120, -35));
        QCOMPARE(parsePointString(u"{12.4, 7}"_s), QPoint(12, 7));
        QVERIFY(!parsePointString(u"120,35"_s));
        m_editor->move(140, 90);
        m_editor->findChild<QPushButton*>(u"btnOk"_s)->click();
        const QPoint saved = m_editor->pos();
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::MetadataWndPosition), pointString(saved));
        m_editor->move(0, 0);
        m_editor->open();
        QCOMPARE(m_editor->pos(), saved);
        m_editor->close();
        QCOMPARE(SXSettings::stringForKey(SXSettingsKey::MetadataWndPosition), pointString(saved));
    }
    void onlyOkKeepsTheEdits_data() {
        QTest::addColumn<QString>("leave");
        QTest::addColumn<bool>("kept");
        QTest::newRow("Escape") << u"Escape"_s << false;
        QTest::newRow("Cancel") << u"btnCancel"_s << false;
        QTest::newRow("close button") << u"close"_s << false;
        QTest::newRow("OK") << u"btnOk"_s << true;
    }
    void onlyOkKeepsTheEdits() {
        QFETCH(QString, leave);
        QFETCH(bool, kept);
        const SXMusicInfoList rows = addFiles(u"MP3"_s, {u"a.mp3"_s, u"b.mp3"_s});
        const QMap<QString, QVariant> before = rows.at(1)->metHandler()->dicReadInfo();
        m_editor->setMusicInfo(rows.at(0));
        m_editor->open();
        QVERIFY(QTest::qWaitForWindowExposed(m_editor));
        QTest::keyClicks(line("tfArtist"), u"Ann"_s);
        QTest::mouseClick(m_editor->findChild<QPushButton*>(u"btnNext"_s), Qt::LeftButton);
        QTest::keyClicks(line("tfArtist"), u"Bob"_s); // a second item shown in the same visit
        if (leave == u"Escape")
            QTest::keyClick(line("tfArtist"), Qt::Key_Escape);
        else if (leave == u"close")
            m_editor->close(); // what the title bar's button asks of the window
        else
            QTest::mouseClick(m_editor->findChild<QPushButton*>(leave), Qt::LeftButton);
        QVERIFY(!m_editor->isVisible());
        QCOMPARE(rows.at(0)->metHandler()->artist(), kept ? u"Ann"_s : QString());
        if (kept)
            QCOMPARE(rows.at(1)->metHandler()->artist(), u"Bob"_s);
        else
            QCOMPARE(rows.at(1)->metHandler()->dicReadInfo(), before);
    }
    void stepsThroughTheShownList() {
        const SXMusicInfoList rows = addFiles(u"MP3"_s, {u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s});
        QPushButton* previous = m_editor->findChild<QPushButton*>(u"btnPre"_s);
        QPushButton* next = m_editor->findChild<QPushButton*>(u"btnNext"_s);
        m_editor->setMusicInfo(rows.at(2));
        QVERIFY(previous->isEnabled() && !next->isEnabled());
        QCOMPARE(m_workspace->addRun().metadataEditorAsksForItem(rows.at(2), 1), nullptr);
        previous->click();
        QCOMPARE(m_editor->musicInfo(), rows.at(1));
        QCOMPARE(m_workspace->store().selectedRows(), QList<int>{1});
        QCOMPARE(line("tfTitle")->text(), u"Old b.mp3"_s);
        previous->click();
        QVERIFY(!previous->isEnabled() && next->isEnabled());
        m_editor->setListener(nullptr);
        m_editor->setMusicInfo(rows.at(1));
        QVERIFY(!previous->isEnabled() && !next->isEnabled());
    }
    void formatsThatCannotCarryTagsShowDisabledFields() {
        const SXMusicInfoList rows = addFiles(u"AC3"_s, {u"a.mp3"_s, u"b.mp3"_s});
        m_editor->setMusicInfo(rows.at(0));
        m_editor->open();
        auto* notice = m_editor->findChild<QLabel*>(u"viewdisable"_s);
        QVERIFY(notice->isVisible());
        QCOMPARE(notice->text(),
                 u"Sorry, this kind format CAN NOT support for editing for metadata"_s);
        // Disabled fields with the notice above them, not editable-looking fields under it.
        auto* tabs = m_editor->findChild<QTabWidget*>(u"tabView"_s);
        QVERIFY(notice->geometry().bottom() < tabs->geometry().top());
        QVERIFY(!line("tfTitle")->isEnabled() && !text("tvLycirs")->isEnabled());
        QVERIFY(!line("tfGrouping")->isEnabled());
        QVERIFY(!m_editor->findChild<QPushButton*>(u"btnAddImg"_s)->isEnabled());
        QVERIFY(m_editor->findChild<QPushButton*>(u"btnNext"_s)->isEnabled()); // navigation stays
        grab(u"editor-readonly"_s);
        m_editor->findChild<QPushButton*>(u"btnNext"_s)->click();
        QCOMPARE(m_editor->musicInfo(), rows.at(1));
    }
    void artworkSizes_data() {
        QTest::addColumn<QSize>("image");
        QTest::addColumn<int>("initialSlider");
        QTest::addColumn<QList<int>>("sliderValues");
        QTest::addColumn<QList<QSize>>("storedSizes");
        QTest::newRow("600x600 in 200x200") << QSize(600, 600) << 100 << QList<int>{0, 50, 100}
                                            << QList<QSize>{{200, 200}, {400, 400}, {600, 600}};
        QTest::newRow("100x50 in 200x200")
            << QSize(100, 50) << 0 << QList<int>{0, 100} << QList<QSize>{{100, 50}, {400, 200}};
        QTest::newRow("equal size keeps its own")
            << QSize(200, 200) << 0 << QList<int>{0, 100} << QList<QSize>{{200, 200}, {200, 200}};
        QTest::newRow("equal width keeps its own")
            << QSize(200, 80) << 0 << QList<int>{60} << QList<QSize>{{200, 80}};
    }
    void artworkSizes() {
        QFETCH(QSize, image);
        QFETCH(int, initialSlider);
        QFETCH(QList<int>, sliderValues);
        QFETCH(QList<QSize>, storedSizes);
        const SXMusicInfoPtr item = addFiles(u"MP3"_s, {u"a.mp3"_s}).first();
        m_editor->setMusicInfo(item);
        m_editor->open();
        m_editor->findChild<QTabWidget*>(u"tabView"_s)->setCurrentIndex(1);
        QCOMPARE(m_editor->artworkViewSize(), QSize(200, 200));
        dropFile(m_editor->findChild<SXArtworkDropView*>(u"ivArtworkImg"_s),
                 pictureFile(m_dir, image));
        QCOMPARE(item->metHandler()->albumImg().size(), 1);
        QCOMPARE(decodeArtwork(item->metHandler()->albumImg().first()).size(), image);
        auto* slider = m_editor->findChild<QSlider*>(u"sldScale"_s);
        QCOMPARE(slider->value(), initialSlider);
        for (int i = 0; i < sliderValues.size(); ++i) {
            slider->setValue(sliderValues.at(i) == 0 ? 1 : 0); // so the wanted value is a move
            slider->setValue(sliderValues.at(i));
            const MTEArtworkList stored = item->metHandler()->albumImg();
            QCOMPARE(stored.size(), 1);
            QCOMPARE(decodeArtwork(stored.first()).size(), storedSizes.at(i));
        }
        if (image == QSize(600, 600)) {
            slider->setValue(50);
            grab(u"editor-artwork"_s);
        }
        m_editor->findChild<QPushButton*>(u"btnDeleteImg"_s)->click();
        QVERIFY(item->metHandler()->albumImg().isEmpty());
    }
    void editsReachTheConvertedFileOnce_data() {
        QTest::addColumn<QString>("container");
        QTest::addColumn<bool>("keepArtwork");
        // Each kind carrying each field once is the tag copy matrix's (tst_tagcopymatrix); here the
        // dialog's edits reach a converted file, with its artwork and without.
        QTest::newRow("FLAC") << u"FLAC"_s << true;
        QTest::newRow("MP3, artwork deleted") << u"MP3"_s << false;
    }
    void editsReachTheConvertedFileOnce() {
        QFETCH(QString, container);
        QFETCH(bool, keepArtwork);
        const SXMusicInfoPtr item = addFiles(container, {u"b.mp3"_s}).first();
        m_editor->setMusicInfo(item);
        m_editor->open();
        QTest::keyClick(line("tfTitle"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line("tfTitle"), u"New title"_s);
        QTest::keyClicks(line("tfGrouping"), u"Live sets"_s);
        m_editor->findChild<QTabWidget*>(u"tabView"_s)->setCurrentIndex(2);
        QTest::keyClicks(text("tvLycirs"), u"la la la"_s);
        if (container == u"FLAC")
            grab(u"editor-lyrics"_s);
        m_editor->findChild<QTabWidget*>(u"tabView"_s)->setCurrentIndex(1);
        dropFile(m_editor->findChild<SXArtworkDropView*>(u"ivArtworkImg"_s),
                 pictureFile(m_dir, {300, 300}));
        if (!keepArtwork)
            m_editor->findChild<QPushButton*>(u"btnDeleteImg"_s)->click();
        m_editor->findChild<QPushButton*>(u"btnOk"_s)->click();

        QTemporaryDir out;
        QSignalSpy finished(&m_workspace->scheduler(), &SXWorkspaceScheduler::itemFinished);
        QSignalSpy run(&m_workspace->scheduler(), &SXWorkspaceScheduler::runFinished);
        m_workspace->scheduler().doRealConverterTask(out.path());
        QVERIFY(run.wait(60000));
        const QString output = finished.value(0).value(1).toString();
        const auto written = MTEAudioFileMgr::createAudioFileWithPath(output, true);
        QVERIFY2(written, qPrintable(output));
        QCOMPARE(written->title(), u"New title"_s);
        QCOMPARE(written->lyric(), u"la la la"_s);
        QCOMPARE(written->grouping(), u"Live sets"_s);
        QCOMPARE(written->albumImg().size(), keepArtwork ? 1 : 0);
        QCOMPARE(tagCount(output, "TITLE"), 1);
        QCOMPARE(tagCount(output, "LYRICS"), 1);
        QCOMPARE(tagCount(output, "GROUPING"), 1); // under the name other programs read
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
        SonoriaGuiTest::grab(&window, u"preferences"_s);

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
        SONORIA_VERIFY_NONE(SonoriaGuiTest::accessibilityProblems(&window));
        QCOMPARE(existing->accessibleName(), u"Existing outputs"_s);

        // The next window shows what is stored; a value outside the choices shows none, and
        // showing it writes nothing back.
        SXSettings::setValue(SXSettingsKey::MaxTask, 3);
        SXPreferencesDialog next;
        QCOMPARE(next.findChild<QComboBox*>(u"pbtnMaxTasks"_s)->currentIndex(), -1);
        QCOMPARE(next.findChild<QComboBox*>(u"pbtnLibraryFormat"_s)->currentText(), u"MP3"_s);
        QCOMPARE(SXSettings::integerForKey(SXSettingsKey::MaxTask), 3);
    }

private:
    // What another process would read from the settings file right now.
    static QVariant storedOnDisk(const QString& key) {
        return QSettings(SXSettings::fileName(), QSettings::NativeFormat).value(key);
    }
    SXMusicInfoList addFiles(const QString& container, const QStringList& names) {
        if (!m_workspace->tabs().selectContainer(container))
            m_workspace->tabs().addContainerWithFormat(
                SXDataEngine::shareInstance()->getFormatWithName(container));
        QStringList paths;
        for (const QString& name : names)
            paths.append(m_dir.filePath(name));
        ::addFiles(*m_workspace, paths);
        return m_workspace->store().getDataForFormat(container);
    }
    QLineEdit* line(const char* name) const { return m_editor->findChild<QLineEdit*>(name); }
    QPlainTextEdit* text(const char* name) const {
        return m_editor->findChild<QPlainTextEdit*>(name);
    }
    void grab(const QString& name) { SonoriaGuiTest::grab(m_editor, name); }

    QTemporaryDir m_dir;
    WorkspaceTestPresenter m_presenter;
    std::unique_ptr<SXWorkspace> m_workspace;
    std::unique_ptr<QWidget> m_window;
    SXMetadataEditDialog* m_editor = nullptr;
};

SONORIA_GUI_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
