#include "gui/dialogs/SXFormatChooserDialog.h"
#include "gui/window/SXContainerTabBar.h"
#include "gui/window/SXMainAppController.h"
#include "gui/window/SXWindowPresenter.h"
#include "model/SXDataEngine.h"
#include "online/SXPreferences.h"
#include "support/gui/GuiTestSupport.h"
#include "workspace/SXWorkspace.h"
#include "workspace/SXWorkspaceTexts.h"
#include "workspace/WorkspaceTestPresenter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleOptionTab>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace SonoriaGuiTest;

// One workspace window driven through its widgets: the container tabs and their rules, the
// format chooser, the settings panel, the help bar and the file buttons, the keyboard and the
// accessible names.
class TestWorkspaceWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_window = openWindow();
        QVERIFY(m_window);
    }
    void cleanup() { m_window.reset(); }
    void tabsShowContainersAndCloseOnlyWhereAllowed() {
        SXContainerTabBar& tabs = m_window->tabBar();
        QCOMPARE(tabs.count(), m_window->workspace().store().tabLabels().size());
        const int mp3 = tabIndex(u"MP3"_s);
        QVERIFY(mp3 >= 0);
        QCOMPARE(tabs.tabToolTip(mp3), u"Converter to MPEG Layer III audio, playable everywhere"_s);
        QCOMPARE(tabs.addButton()->toolTip(), u"Add new format"_s);
        for (const QString& fixed : SXDataEngine::getCanNotRemoveFormatContainer()) {
            QWidget* close = tabs.tabButton(tabIndex(fixed), QTabBar::RightSide);
            QVERIFY2(!close || !close->isVisible(), qPrintable(fixed));
        }

        // A container added by the user closes by its button; the tab next to it takes over.
        m_window->workspace().tabs().addContainerWithFormat(
            SXDataEngine::shareInstance()->getFormatWithName(u"FLAC"_s));
        const int flac = tabIndex(u"FLAC"_s);
        QVERIFY(flac >= 0);
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
        auto* buttons = chooser->findChild<QDialogButtonBox*>();
        buttons->button(QDialogButtonBox::Cancel)->click();
        QTRY_VERIFY(!m_window->findChild<SXFormatChooserDialog*>());
        QCOMPARE(m_window->tabBar().count(), before);

        chooser = openChooser();
        QVERIFY(chooser);
        auto* format = chooser->findChild<QComboBox*>(u"popFormat"_s);
        QCOMPARE(format->findText(u"MP3"_s), -1); // already has a container
        // Chosen by keyboard, as a user without a mouse would.
        format->setFocus();
        const int flac = format->findText(u"FLAC"_s);
        QVERIFY(flac >= 0);
        while (format->currentIndex() < flac)
            QTest::keyClick(format, Qt::Key_Down);
        auto* sampleRate = chooser->findChild<QComboBox*>(u"popSmpRate"_s);
        QVERIFY(sampleRate->count() > 1);
        const QString catalogueRate = sampleRate->currentData().toString();
        sampleRate->setFocus();
        QTest::keyClick(sampleRate, Qt::Key_End);
        const QString chosenRate = sampleRate->currentData().toString();
        grab(chooser, u"chooser"_s);
        buttons = chooser->findChild<QDialogButtonBox*>();
        buttons->button(QDialogButtonBox::Ok)->click();

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
    void settingsPanelMirrorsAndEditsTheSelectedContainer() {
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
    }
    void helpBarBadgesAndFileButtonsFollowTheItems() {
        SXWorkspace& ws = m_window->workspace();
        auto* remove = child<QPushButton>("btnDelete");
        auto* clear = child<QPushButton>("btnClear");
        auto* help = child<QLabel>("helpBar");
        QVERIFY(!remove->isEnabled() && !clear->isEnabled());
        // The empty list says what to do: its middle is not blank.
        auto* list = child<QListView>("itemList");
        const QImage empty = list->viewport()->grab().toImage();
        const QRect middle(empty.width() / 4, empty.height() / 3, empty.width() / 2,
                           empty.height() / 3);
        const auto inked = [&middle](const QImage& image) {
            for (int y = middle.top(); y <= middle.bottom(); ++y)
                for (int x = middle.left(); x <= middle.right(); ++x)
                    if (image.pixel(x, y) != image.pixel(middle.topLeft()))
                        return true;
            return false;
        };
        QVERIFY(inked(empty));
        grab(m_window.get(), u"window-empty"_s);

        const QString path = m_media.filePath(u"tone.wav"_s);
        QVERIFY(SonoriaTest::makeTone(path));
        QVERIFY(addFiles(ws, {path}));
        QCOMPARE(ws.store().currentTabItemCount(), 1);
        QVERIFY(remove->isEnabled() && clear->isEnabled());
        const QString text = SXWorkspaceTexts::helpBarText(ws.store());
        QVERIFY(text.startsWith(u"1 file"_s));
        QCOMPARE(help->text(), text);
        const int selected = m_window->tabBar().currentIndex();
        QVERIFY(m_window->tabBar().accessibleTabName(selected).contains(u'1'));
        grab(m_window.get(), u"window-one-item"_s);
        QVERIFY(!inked(list->viewport()->grab().toImage())); // one row, no hint

        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(ws.store().currentTabItemCount(), 0);
        QVERIFY(!remove->isEnabled() && !clear->isEnabled());
        QVERIFY(!m_window->tabBar().accessibleTabName(selected).contains(u'1'));
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
    void geometryIsRememberedBetweenRuns() {
        m_window->resize(1100, 700);
        m_window->close();
        QTRY_VERIFY(!m_window->isVisible());
        QVERIFY(!SXPreferences::mainWindowGeometry().isEmpty());
        m_window = std::make_unique<SXMainAppController>();
        QCOMPARE(m_window->size(), QSize(1100, 700));
    }

private:
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
    std::unique_ptr<SXMainAppController> m_window;
};

SONORIA_GUI_TEST_MAIN(TestWorkspaceWindow)
#include "tst_workspacewindow.moc"
