#include "support/PulseServer.h"
#include "support/TestSupport.h"
#include "support/gui/GuiTestSupport.h"

#include "gui/list/SXItemListView.h"
#include "gui/list/SXItemRowDelegate.h"
#include "gui/panels/SXFileInfoViewController.h"
#include "gui/panels/SXItemStateView.h"
#include "gui/window/SXMainAppController.h"
#include "gui/window/SXWindowToolbar.h"
#include "workspace/SXFileInfoText.h"
#include "workspace/SXMetadataEditing.h"
#include "workspace/SXWorkspace.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBuffer>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

// The window's preview and file information, driven as a user would: the toolbar command,
// the selection, Space on the list, the strip's pause button.
class TestPreviewWindow : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        qputenv("SONORIA_NO_DESKTOP_OPEN", "1");
        QVERIFY(SonoriaTest::makeTone(
            m_dir.filePath(u"tagged.mp3"_s), 6.0,
            {u"-metadata"_s, u"title=Morning"_s, u"-metadata"_s, u"artist=Ann"_s}));
        QVERIFY(SonoriaTest::makeMedia(m_dir.filePath(u"surround.flac"_s),
                                       u"sine=duration=1:sample_rate=48000"_s, {u"-ac"_s, u"6"_s}));
        if (!SonoriaTest::PulseServer::forThisProcess().start(&m_noSound))
            m_noSound.prepend(u"no PulseAudio to play into: "_s);
    }
    void init() {
        m_window = SonoriaGuiTest::openWindow();
        QVERIFY(m_window);
        m_window->workspace().store().setPresenter(&m_presenter);
    }
    void cleanup() {
        m_window->workspace().preview().stopPlayerWithRefreshUI();
        m_window.reset();
    }
    void infoPanelFollowsTheSelectionWithItsFallbacks() {
        const SXMusicInfoList rows = addFiles({u"tagged.mp3"_s, u"surround.flac"_s});
        QCOMPARE(rows.size(), 2);
        rows.at(1)->mediaInfo()->setDFileSize(3145728);
        QImage cover(120, 120, QImage::Format_RGB32);
        cover.fill(Qt::darkCyan);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        cover.save(&buffer, "PNG");
        rows.at(0)->metHandler()->setAlbumImg({{png, u"image/png"_s}});

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
        SonoriaGuiTest::grab(m_window.get(), u"window-info-panel"_s);
        // The list gave up room to the panel: its rows still fit it, duration and codec in sight.
        auto* list = m_window->findChild<SXItemListView*>();
        QTRY_COMPARE(list->visualRect(list->model()->index(0, 0)).width(),
                     list->viewport()->width());
        QVERIFY(!list->horizontalScrollBar()->isVisible());
        SONORIA_VERIFY_NONE(SonoriaGuiTest::accessibilityProblems(panel));

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
    void stripShowsThePreviewPlayedFromTheKeyboard() {
        if (!m_noSound.isEmpty())
            QSKIP(qPrintable(m_noSound));
        addFiles({u"tagged.mp3"_s});
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
        SonoriaGuiTest::grab(m_window->toolbar().toolBar(), u"strip-playing"_s);
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
        QVERIFY(
            !workspace.preview().isPlayingMusic(workspace.store().getCurTableDatasource().first()));
    }
    void rowGesturesPlayAndStopButNeverDuringARun() {
        if (!m_noSound.isEmpty())
            QSKIP(qPrintable(m_noSound));
        const SXMusicInfoList rows = addFiles({u"tagged.mp3"_s, u"surround.flac"_s});
        SXWorkspace& workspace = m_window->workspace();
        auto* list = m_window->findChild<SXItemListView*>();
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
    SXMusicInfoList addFiles(const QStringList& names) {
        QStringList paths;
        for (const QString& name : names)
            paths.append(m_dir.filePath(name));
        ::addFiles(m_window->workspace(), paths);
        // The keys below are the window's shortcuts, which act only while it is the active one.
        [&] { QVERIFY(SonoriaGuiTest::activate(m_window.get())); }();
        return m_window->workspace().store().getCurTableDatasource();
    }

    QTemporaryDir m_dir;
    QString m_noSound;
    std::unique_ptr<SXMainAppController> m_window;
    WorkspaceTestPresenter m_presenter;
};

SONORIA_GUI_TEST_MAIN(TestPreviewWindow)
#include "tst_previewwindow.moc"
