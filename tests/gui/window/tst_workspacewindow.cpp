#include "base/SXSettings.h"
#include "gui/dialogs/SXFormatChooserDialog.h"
#include "gui/list/SXItemListView.h"
#include "gui/list/SXItemRowDelegate.h"
#include "gui/panels/SXFileInfoViewController.h"
#include "gui/panels/SXItemStateView.h"
#include "gui/window/SXContainerTabBar.h"
#include "gui/window/SXWindowToolbar.h"
#include "model/SXDataEngine.h"
#include "online/SXPreferences.h"
#include "support/PulseServer.h"
#include "support/gui/GuiTestSupport.h"
#include "workspace/SXFileInfoText.h"
#include "workspace/SXWorkspaceTexts.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QStyleOptionTab>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace SonoriaGuiTest;

// One workspace window driven through its widgets: the container tabs and their rules, the
// format chooser, the settings panel, the help bar and the file buttons, the keyboard and the
// accessible names; the preview and the file information as a user drives them (the toolbar
// command, the selection, Space on the list, the strip's pause button).
class TestWorkspaceWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(SonoriaTest::makeTone(
            m_media.filePath(u"tagged.mp3"_s), 6.0,
            {u"-metadata"_s, u"title=Morning"_s, u"-metadata"_s, u"artist=Ann"_s}));
        QVERIFY(SonoriaTest::makeMedia(m_media.filePath(u"surround.flac"_s),
                                       u"sine=duration=1:sample_rate=48000"_s, {u"-ac"_s, u"6"_s}));
        if (!SonoriaTest::PulseServer::forThisProcess().start(&m_noSound))
            m_noSound.prepend(u"no PulseAudio to play into: "_s);
    }
    void init() {
        m_window = openWindow();
        QVERIFY(m_window);
    }
    void cleanup() {
        m_window->workspace().preview().stopPlayerWithRefreshUI();
        m_window.reset();
    }
    void tabsShowContainersAndCloseOnlyWhereAllowed() {
        SXContainerTabBar& tabs = m_window->tabBar();
        QCOMPARE(tabs.count(), m_window->workspace().store().tabLabels().size());
        QCOMPARE(tabs.tabToolTip(tabIndex(u"MP3"_s)),
                 u"Converter to MPEG Layer III audio, playable everywhere"_s);
        QCOMPARE(tabs.addButton()->toolTip(), u"Add new format"_s);
        for (const QString& fixed : SXDataEngine::getCanNotRemoveFormatContainer()) {
            QWidget* close = tabs.tabButton(tabIndex(fixed), QTabBar::RightSide);
            QVERIFY2(!close || !close->isVisible(), qPrintable(fixed));
        }

        // A container added by the user closes by its button; the tab next to it takes over.
        m_window->workspace().tabs().addContainerWithFormat(
            SXDataEngine::shareInstance()->getFormatWithName(u"FLAC"_s));
        const int flac = tabIndex(u"FLAC"_s);
        QCOMPARE(tabs.currentIndex(), flac);
        auto* close = qobject_cast<QAbstractButton*>(tabs.tabButton(flac, QTabBar::RightSide));
        QVERIFY(close && close->isVisible());
        // A run locks the tabs and the panel: no adding, no closing, no editing.
        m_window->workspace().store().setAppState(AppStateConverting);
        QVERIFY(!tabs.addButton()->isVisible() && !close->isVisible());
        QVERIFY(!child<QComboBox>("popBitRate")->isEnabled());
        QVERIFY(!child<QPushButton>("btnAddFile")->isEnabled());
        grab(m_window.get(), u"window-converting"_s);
        m_window->workspace().store().setAppState(AppStateIdle);
        QVERIFY(tabs.addButton()->isVisible() && close->isVisible());
        QVERIFY(child<QComboBox>("popBitRate")->isEnabled());
        close->click();
        QCOMPARE(tabIndex(u"FLAC"_s), -1);
        QVERIFY(!m_window->workspace().store().tabLabels().contains(u"FLAC"_s));
        QCOMPARE(tabs.currentIndex(), m_window->workspace().store().selectedTabIndex());
    }
    // Every control of the window and of the chooser has a name and Tab reaches it; when every
    // format has a container, an alert comes instead of the chooser.
    void chooserAddsTheChosenContainerOrGivesWayToAnAlert() {
        SONORIA_VERIFY_NONE(accessibilityProblems(m_window.get()));
        grab(m_window.get(), u"window"_s);
        const int before = m_window->tabBar().count();
        SXFormatChooserDialog* chooser = openChooser();
        QVERIFY(chooser);
        QCOMPARE(chooser->objectName(), u"OtherFormat"_s);
        QVERIFY(chooser->isModal());
        SONORIA_VERIFY_NONE(accessibilityProblems(chooser));
        chooser->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
        QTRY_VERIFY(!m_window->findChild<SXFormatChooserDialog*>());
        QCOMPARE(m_window->tabBar().count(), before);

        chooser = openChooser();
        QVERIFY(chooser);
        auto* format = chooser->findChild<QComboBox*>(u"popFormat"_s);
        QCOMPARE(format->findText(u"MP3"_s), -1); // already has a container
        // Chosen by keyboard, as a user without a mouse would.
        format->setFocus();
        while (format->currentIndex() < format->findText(u"FLAC"_s))
            QTest::keyClick(format, Qt::Key_Down);
        auto* sampleRate = chooser->findChild<QComboBox*>(u"popSmpRate"_s);
        QVERIFY(sampleRate->count() > 1);
        const QString catalogueRate = sampleRate->currentData().toString();
        sampleRate->setFocus();
        QTest::keyClick(sampleRate, Qt::Key_End);
        const QString chosenRate = sampleRate->currentData().toString();
        grab(chooser, u"chooser"_s);
        chooser->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();

        QTRY_VERIFY(tabIndex(u"FLAC"_s) >= 0);
        QCOMPARE(m_window->tabBar().currentIndex(), tabIndex(u"FLAC"_s));
        QCOMPARE(child<QComboBox>("popSmpRate")->currentData().toString(), chosenRate);
        QVERIFY(chosenRate != catalogueRate);
        // The container got a copy: the catalogue still offers its own default.
        QCOMPARE(SXDataEngine::shareInstance()->getFormatWithName(u"FLAC"_s)->sampleRate(),
                 catalogueRate);

        SXWorkspace& ws = m_window->workspace();
        for (const SXFormatSettingPtr& setting : ws.tabs().formatsWithoutContainer())
            ws.tabs().addContainerWithFormat(setting);
        QVERIFY(ws.tabs().formatsWithoutContainer().isEmpty());
        QTest::mouseClick(m_window->tabBar().addButton(), Qt::LeftButton);
        QMessageBox* alert = openDialog<QMessageBox>(m_window.get());
        QVERIFY(alert);
        QCOMPARE(messageTexts(alert),
                 (QStringList{u"All formats are opened, you can set the paramas in "
                              "the setting window."_s,
                              QString(), u"Yes"_s}));
        grab(alert, u"alert-all-formats"_s);
        grab(m_window.get(), u"window-all-containers"_s);
        QVERIFY(clickMessageButton(alert, u"Yes"_s));
        QTRY_VERIFY(!m_window->findChild<SXFormatChooserDialog*>());
    }
    void settingsPanelMirrorsAndEditsTheSelectedContainerAndItsNaming() {
        SXWorkspace& ws = m_window->workspace();
        auto* bitRate = child<QComboBox>("popBitRate");
        auto* library = child<QCheckBox>("btnAddToLibrary");

        m_window->tabBar().setCurrentIndex(tabIndex(u"MP3"_s));
        const SXFormatSettingPtr mp3 = ws.store().getSelectedTabFormatSetting();
        QCOMPARE(bitRate->currentData().toString(), mp3->bitRate());
        QVERIFY(library->isVisible());

        // Choosing by keyboard writes the selected container's setting, nobody else's.
        bitRate->setFocus();
        QTest::keyClick(bitRate, Qt::Key_Home);
        const QString lowest = bitRate->currentData().toString();
        QCOMPARE(mp3->bitRate(), lowest);
        QTest::mouseClick(library, Qt::LeftButton);
        QCOMPARE(mp3->enumAddToLibrary(), library->isChecked() ? 1 : 0);

        // A format without a library option hides the box; going back shows the edited values.
        m_window->tabBar().setCurrentIndex(tabIndex(u"Ringtone"_s));
        QCOMPARE(ws.store().getSelectedTabFormatSetting()->enumAddToLibrary(), -1);
        QVERIFY(!library->isVisible());
        m_window->tabBar().setCurrentIndex(tabIndex(u"MP3"_s));
        QVERIFY(library->isVisible());
        QCOMPARE(bitRate->currentData().toString(), lowest);
        QCOMPARE(library->isChecked(), mp3->enumAddToLibrary() == 1);

        // The output naming: the pattern and the folder layout, with the first file's name shown.
        const QString source = m_media.filePath(u"x.flac"_s);
        QVERIFY(SonoriaTest::makeTone(source, 0.5,
                                      {"-metadata", "artist=Nina", "-metadata", "title=One"}));
        QVERIFY(addFiles(ws, {source}));
        auto* pattern = child<QLineEdit>("fdNamePattern");
        auto* preview = child<QLabel>("lblNamePreview");
        QCOMPARE(preview->text(), u"The first file becomes: x.mp3"_s);
        pattern->setFocus();
        QTest::keyClicks(pattern, u"{artist}/{title}"_s);
        QCOMPARE(mp3->namePattern(), u"{artist}/{title}"_s);
        QCOMPARE(preview->text(), u"The first file becomes: Nina/One.mp3"_s);
        child<QCheckBox>("btnMirrorFolders")->setFocus();
        QTest::keyClick(child<QCheckBox>("btnMirrorFolders"), Qt::Key_Space);
        QVERIFY(mp3->mirrorFolders());
        // Stored with the container's other choices, for the next start.
        const QString stored = QSettings(SXSettings::fileName(), QSettings::NativeFormat)
                                   .value(u"SXContainerChoices/MP3"_s)
                                   .toString();
        QVERIFY2(stored.contains(u"\"namePattern\":\"{artist}/{title}\""_s) &&
                     stored.contains(u"\"mirrorFolders\":true"_s),
                 qPrintable(stored));
    }
    void helpBarAndFileButtonsFollowTheItemsAndTheSizeIsKept() {
        SXWorkspace& ws = m_window->workspace();
        auto* remove = child<QPushButton>("btnDelete");
        auto* clear = child<QPushButton>("btnClear");
        auto* help = child<QLabel>("helpBar");
        QVERIFY(!remove->isEnabled() && !clear->isEnabled());
        // The empty list says what to do: its middle is not blank.
        auto* list = child<QListView>("itemList");
        const QSize size = list->viewport()->size();
        const QRect middle(size.width() / 4, size.height() / 3, size.width() / 2,
                           size.height() / 3);
        QVERIFY(!isBlank(list->viewport(), middle));
        grab(m_window.get(), u"window-empty"_s);

        QVERIFY(addFiles(ws, {m_media.filePath(u"surround.flac"_s)}));
        QCOMPARE(ws.store().currentTabItemCount(), 1);
        QVERIFY(remove->isEnabled() && clear->isEnabled());
        const QString text = SXWorkspaceTexts::helpBarText(ws.store());
        QVERIFY(text.startsWith(u"1 file"_s));
        QCOMPARE(help->text(), text);
        const int selected = m_window->tabBar().currentIndex();
        QVERIFY(m_window->tabBar().accessibleTabName(selected).contains(u'1'));
        grab(m_window.get(), u"window-one-item"_s);
        QVERIFY(isBlank(list->viewport(), middle)); // one row, no hint

        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(ws.store().currentTabItemCount(), 0);
        QVERIFY(!remove->isEnabled() && !clear->isEnabled());
        QVERIFY(!m_window->tabBar().accessibleTabName(selected).contains(u'1'));

        // The empty window closes at once, and the next one opens at its size.
        m_window->resize(1100, 700);
        m_window->close();
        QTRY_VERIFY(!m_window->isVisible());
        QVERIFY(!SXPreferences::mainWindowGeometry().isEmpty());
        m_window = std::make_unique<SXMainAppController>();
        QCOMPARE(m_window->size(), QSize(1100, 700));
    }
    void tabBadgesMakeRoomForTheirCounts_data() {
        QTest::addColumn<int>("count");
        for (int count : {1, 10, 100, 1000})
            QTest::addRow("%d", count) << count;
    }
    void tabBadgesMakeRoomForTheirCounts() {
        QFETCH(int, count);
        SXWorkspace& ws = m_window->workspace();
        SXContainerTabBar& tabs = m_window->tabBar();
        const QStringList labels = ws.store().tabLabels();
        // The counts as the workspace reports them: from one digit to four, the tab grows.
        Q_EMIT ws.store().tabCountsChanged(labels, QList<int>(labels.size(), count));
        grab(&tabs, u"tabs-%1"_s.arg(count));
        for (int i = 0; i < tabs.count(); ++i) {
            QWidget* badge = tabs.tabButton(i, QTabBar::LeftSide);
            QWidget* close = tabs.tabButton(i, QTabBar::RightSide);
            // Where the label is drawn: the style's text rectangle beside the tab's buttons, the
            // text centred in it.
            QStyleOptionTab option;
            option.initFrom(&tabs);
            option.rect = tabs.tabRect(i);
            option.text = tabs.tabText(i);
            option.shape = tabs.shape();
            option.documentMode = tabs.documentMode();
            option.leftButtonSize = badge->size();
            if (close) // a hidden close button keeps its room, as QTabBar paints it
                option.rightButtonSize = close->size();
            const QRect box =
                tabs.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &tabs);
            const QSize textSize(tabs.fontMetrics().horizontalAdvance(option.text), box.height());
            const QRect text = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, textSize, box);
            const QString where = u"%1 with %2"_s.arg(option.text).arg(count);
            QVERIFY2(!text.intersects(badge->geometry()), qPrintable(where));
            QVERIFY2(tabs.tabRect(i).contains(badge->geometry()), qPrintable(where));
            QVERIFY2(!(close && close->isVisible() && text.intersects(close->geometry())),
                     qPrintable(where));
        }
    }
    void infoPanelFollowsTheSelectionWithItsFallbacks() {
        const SXMusicInfoList rows = addMedia({u"tagged.mp3"_s, u"surround.flac"_s});
        QCOMPARE(rows.size(), 2);
        rows.at(1)->mediaInfo()->setDFileSize(3145728);
        const QString cover = m_media.filePath(u"cover.png"_s);
        QVERIFY(SonoriaTest::makeMedia(cover, u"color=c=darkcyan:s=120x120"_s,
                                       {u"-frames:v"_s, u"1"_s}));
        rows.at(0)->metHandler()->setAlbumImg({{SonoriaTest::readFile(cover), u"image/png"_s}});

        SXWorkspace& workspace = m_window->workspace();
        auto* panel = m_window->findChild<SXFileInfoViewController*>();
        workspace.store().setSelectedRows({0, 1});
        m_window->perform(SXCommand::FileInfo);
        QVERIFY(panel->isVisible());
        QCOMPARE(workspace.store().selectedRows(),
                 QList<int>{0}); // only the first row stays selected
        QCOMPARE(panel->labelText(u"tfInfoTitle"_s), u"Morning"_s);
        QCOMPARE(panel->labelText(u"tfInfoArtist"_s), u"Ann"_s);
        QVERIFY(!panel->findChild<QLabel*>(u"ivInfoArtwork"_s)->pixmap().isNull());
        grab(m_window.get(), u"window-info-panel"_s);
        // The list gave up room to the panel: its rows still fit it, duration and codec in sight.
        auto* list = m_window->findChild<SXItemListView*>();
        QTRY_COMPARE(list->visualRect(list->model()->index(0, 0)).width(),
                     list->viewport()->width());
        QVERIFY(!list->horizontalScrollBar()->isVisible());
        SONORIA_VERIFY_NONE(accessibilityProblems(panel));

        // It follows the selection, with the core's texts for the row (tst_fileinfotext).
        workspace.store().setSelectedRows({1});
        for (const SXFileInfoLine& line : SXFileInfoText::linesForItem(*rows.at(1)))
            QCOMPARE(panel->labelText(line.labelName), line.text);
        QVERIFY(panel->findChild<QLabel*>(u"ivInfoArtwork"_s)->pixmap().isNull());

        workspace.store().setAppState(
            AppStateConverting); // its toolbar item is disabled: it closes
        QVERIFY(!panel->isVisible());
        workspace.store().setAppState(AppStateIdle);
        m_window->perform(SXCommand::FileInfo);
        m_window->perform(SXCommand::FileInfo); // a second click closes it
        QVERIFY(!panel->isVisible());
    }
    void previewFollowsTheKeyboardTheStripAndTheRows() {
        if (!m_noSound.isEmpty())
            QSKIP(qPrintable(m_noSound));
        const SXMusicInfoList rows = addMedia({u"tagged.mp3"_s, u"surround.flac"_s});
        SXWorkspace& workspace = m_window->workspace();
        workspace.store().setSelectedRows({0});
        QSignalSpy progress(&workspace.preview(), &SXWorkspacePreview::previewProgress);
        auto* list = m_window->findChild<SXItemListView*>();
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Space);
        // The player reports its start from its own thread; a loaded machine takes a moment.
        QTRY_COMPARE_WITH_TIMEOUT(workspace.store().enumAppState(), int(AppStatePlaying), 5000);
        QVERIFY(progress.wait(5000) && progress.wait(5000));

        SXItemStateView* strip = m_window->toolbar().stateView();
        const SXStateStripModel::Look& look = strip->model().look();
        QCOMPARE(look.name, u"Morning - Ann"_s);
        QVERIFY2(look.playTime != u"00:00"_s, qPrintable(look.playTime));
        QVERIFY(look.slider > 0 && look.musicTime.startsWith(u'-'));
        grab(m_window->toolbar().toolBar(), u"strip-playing"_s);
        // A click on the track seeks to that point, not a page towards it.
        auto* slider = strip->findChild<QSlider*>(u"playPosition"_s);
        QSignalSpy moved(strip, &SXItemStateView::sliderMoved);
        QTest::mouseClick(slider, Qt::LeftButton, {},
                          {slider->width() * 3 / 4, slider->height() / 2});
        QVERIFY(!moved.isEmpty());
        const double at = moved.last().first().toDouble();
        QVERIFY2(at > 70 && at < 80, qPrintable(QString::number(at)));

        strip->findChild<QToolButton*>(u"btnPause"_s)->click();
        QVERIFY(workspace.preview().isPreviewPaused());
        QTest::keyClick(m_window.get(), Qt::Key_Space, Qt::ShiftModifier);
        QVERIFY(!workspace.preview().isPreviewPaused());
        QTest::keyClick(list, Qt::Key_Space); // Space again stops it
        QCOMPARE(workspace.store().enumAppState(), int(AppStateIdle));
        QVERIFY(!workspace.preview().isPlayingMusic(rows.at(0)));

        QWidget* viewport = list->viewport();
        const auto centre = [list](int row) {
            return list->visualRect(list->model()->index(row, 0)).center();
        };
        const auto playButton = [list](int row) {
            return SXItemRowGeometry::of(list->visualRect(list->model()->index(row, 0)))
                .play.center();
        };
        const auto doubleClick = [viewport](const QPoint& at) {
            QTest::mouseClick(viewport, Qt::LeftButton, {}, at);
            QTest::mouseDClick(viewport, Qt::LeftButton, {}, at);
            QTest::mouseRelease(viewport, Qt::LeftButton, {}, at);
        };

        doubleClick(centre(1));
        QCOMPARE(workspace.store().enumAppState(), int(AppStatePlaying));
        QVERIFY(workspace.preview().isPlayingMusic(rows.at(1)));
        doubleClick(centre(1)); // a double-click never stops the row it plays
        QVERIFY(workspace.preview().isPlayingMusic(rows.at(1)));
        QTest::mouseClick(viewport, Qt::LeftButton, {}, playButton(1)); // its button does
        QCOMPARE(workspace.store().enumAppState(), int(AppStateIdle));
        QVERIFY(!workspace.preview().isPlayingMusic(rows.at(1)));
        QTest::mouseClick(viewport, Qt::LeftButton, {}, playButton(0));
        QVERIFY(workspace.preview().isPlayingMusic(rows.at(0)));

        workspace.preview().stopPlayerWithRefreshUI();
        workspace.store().setAppState(AppStateConverting);
        doubleClick(centre(1));
        QTest::mouseClick(viewport, Qt::LeftButton, {}, playButton(0));
        QCOMPARE(workspace.store().enumAppState(), int(AppStateConverting));
        QVERIFY(!workspace.preview().isPlayingMusic(rows.at(0)) &&
                !workspace.preview().isPlayingMusic(rows.at(1)));
        workspace.store().setAppState(AppStateIdle);
    }

private:
    SXMusicInfoList addMedia(const QStringList& names) {
        // The preview's alerts go to the test's presenter, not to message boxes.
        m_window->workspace().store().setPresenter(&m_presenter);
        QStringList paths;
        for (const QString& name : names)
            paths.append(m_media.filePath(name));
        ::addFiles(m_window->workspace(), paths);
        // The keys below are the window's shortcuts, which act only while it is the active one.
        [&] { QVERIFY(activate(m_window.get())); }();
        return m_window->workspace().store().getCurTableDatasource();
    }
    template <class T> T* child(const char* name) const {
        return m_window->findChild<T*>(QLatin1String(name));
    }
    int tabIndex(const QString& label) const {
        for (int i = 0; i < m_window->tabBar().count(); ++i) {
            if (m_window->tabBar().tabText(i) == label)
                return i;
        }
        return -1;
    }
    SXFormatChooserDialog* openChooser() {
        QToolButton* add = m_window->tabBar().addButton();
        if (!add || !add->isVisible())
            return nullptr;
        QTest::mouseClick(add, Qt::LeftButton);
        return openDialog<SXFormatChooserDialog>(m_window.get());
    }

    QTemporaryDir m_media;
    QString m_noSound;
    std::unique_ptr<SXMainAppController> m_window;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_GUI_TEST_MAIN(TestWorkspaceWindow)
#include "tst_workspacewindow.moc"
