#include "support/gui/GuiTestSupport.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMultiMap>
#include <QTabBar>

namespace SonoriaGuiTest {

bool activate(QWidget* window) {
    QTest::qWait(20);
    return QTest::qWaitFor(
        [window] {
            window->activateWindow();
            return QApplication::activeWindow() == window;
        },
        5000);
}

void prepareGuiEnvironment() {
    SonoriaTest::prepareEnvironment();
    qputenv("SONORIA_NO_DESKTOP_OPEN", "1");
    // Headless by default; SONORIA_TEST_PLATFORM=xcb (under Xvfb) sends the same key and mouse
    // events through a real X server.
    qputenv("QT_QPA_PLATFORM",
            qEnvironmentVariable("SONORIA_TEST_PLATFORM", QStringLiteral("offscreen")).toUtf8());
}

QStringList messageTexts(QMessageBox* box) {
    QStringList texts{box->text(), box->informativeText()};
    for (QAbstractButton* button : box->buttons())
        texts.append(button->text());
    return texts;
}

bool clickMessageButton(QMessageBox* box, const QString& text) {
    for (QAbstractButton* button : box->buttons()) {
        if (button->text() == text) {
            button->click();
            return true;
        }
    }
    return false;
}

bool isBlank(QWidget* widget, const QRect& rect) {
    const QImage image = widget->grab(rect).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
}

void grab(QWidget* widget, const QString& name) {
    const QString folder = qEnvironmentVariable("SONORIA_GRAB_DIR");
    if (folder.isEmpty() || !widget)
        return;
    QDir().mkpath(folder);
    widget->grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
}

namespace {

bool isControl(QWidget* widget) {
    return qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget) ||
           qobject_cast<QLineEdit*>(widget) || qobject_cast<QAbstractSlider*>(widget) ||
           qobject_cast<QAbstractItemView*>(widget) || qobject_cast<QTabBar*>(widget);
}

QString nameOf(QWidget* widget) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(QAccessible::Name) : QString();
}

} // namespace

QStringList accessibilityProblems(QWidget* root) {
    QStringList problems;
    QList<QWidget*> focusable;
    const QList<QWidget*> all = root->findChildren<QWidget*>();
    for (QWidget* widget : all) {
        if (!widget->isVisibleTo(root) || !isControl(widget))
            continue;
        // The line edit inside an editable combo box is named by its box.
        if (qobject_cast<QComboBox*>(widget->parentWidget()))
            continue;
        if (nameOf(widget).trimmed().isEmpty())
            problems.append(QStringLiteral("unnamed %1 \"%2\"")
                                .arg(QString::fromLatin1(widget->metaObject()->className()),
                                     widget->objectName()));
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
            focusable.append(widget);
    }
    if (focusable.isEmpty())
        return problems;
    // Follow the focus chain once around from the first focusable control.
    QList<QWidget*> reached;
    QWidget* current = focusable.first();
    for (int step = 0; step < 4 * all.size() && current; ++step) {
        reached.append(current);
        current = current->nextInFocusChain();
        if (current == focusable.first())
            break;
    }
    for (QWidget* widget : std::as_const(focusable)) {
        if (!reached.contains(widget))
            problems.append(QStringLiteral("Tab never reaches \"%1\"").arg(nameOf(widget)));
    }
    return problems;
}

QStringList mnemonicClashes(QWidget* root) {
    QStringList clashes;
    QMultiMap<QKeySequence, QString> owners;
    const auto note = [&owners](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            owners.insert(key, QString(text).remove(QLatin1Char('&')));
    };
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : std::as_const(widgets)) {
        if (!widget->isVisibleTo(root) && widget != root)
            continue;
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            note(button->text());
        else if (auto* label = qobject_cast<QLabel*>(widget); label && label->buddy())
            note(label->text());
        else if (auto* box = qobject_cast<QGroupBox*>(widget))
            note(box->title());
        else if (auto* bar = qobject_cast<QMenuBar*>(widget)) {
            for (QAction* menu : bar->actions()) {
                note(menu->text());
                // Each menu's items are a scope of their own while it is open.
                if (menu->menu())
                    clashes.append(mnemonicClashes(menu->menu()));
            }
        } else if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                note(tabs->tabText(i));
        }
    }
    if (auto* menu = qobject_cast<QMenu*>(root)) {
        for (QAction* item : menu->actions())
            note(item->text());
    }
    for (const QKeySequence& key : owners.uniqueKeys()) {
        const QStringList texts = owners.values(key);
        if (texts.size() > 1)
            clashes.append(key.toString() + QStringLiteral(": ") +
                           texts.join(QStringLiteral(", ")));
    }
    return clashes;
}

QStringList clippedTexts(QWidget* root) {
    QStringList clipped;
    const auto check = [&clipped](QWidget* widget, const QString& text, int needed) {
        if (widget->isVisible() && !text.isEmpty() && widget->width() < needed)
            clipped.append(QStringLiteral("%1 \"%2\": %3 < %4 px")
                               .arg(widget->metaObject()->className(), text)
                               .arg(widget->width())
                               .arg(needed));
    };
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : std::as_const(widgets)) {
        if (auto* label = qobject_cast<QLabel*>(widget); label && !label->wordWrap())
            check(label, label->text(), label->minimumSizeHint().width());
        else if (auto* button = qobject_cast<QAbstractButton*>(widget))
            check(button, button->text(), button->sizeHint().width());
        else if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                const QString text = tabs->tabText(i);
                const int needed = tabs->fontMetrics().horizontalAdvance(text);
                if (tabs->tabRect(i).width() < needed)
                    clipped.append(QStringLiteral("tab \"%1\"").arg(text));
            }
        }
    }
    return clipped;
}

} // namespace SonoriaGuiTest
