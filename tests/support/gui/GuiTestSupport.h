#pragma once

#include "support/TestSupport.h"

#include "gui/window/SXMainAppController.h"
#include "workspace/SXWorkspace.h"

#include <QApplication>
#include <QStringList>
#include <QTest>
#include <QWidget>
#include <memory>

class QMessageBox;

// Helpers of the window tests: an offscreen application, the dialogs a window opened with
// open(), pictures for human eyes, and the accessibility walk.
namespace SonoriaGuiTest {

// Prepares a temporary home and settings store, suppresses opening files and pages on the
// desktop, then builds the application. Call from main() only (the macro does).
void prepareGuiEnvironment();

// The visible window-modal dialog of type T over `window` (its newest), waiting up to 5 s.
template <class T> T* openDialog(QWidget* window) {
    T* found = nullptr;
    (void)QTest::qWaitFor(
        [&] {
            const QList<T*> dialogs = window->findChildren<T*>();
            for (T* dialog : dialogs) {
                if (dialog->isVisible())
                    found = dialog;
            }
            return found != nullptr;
        },
        5000);
    return found;
}

// Makes `window` the active window once the activation events that a closed window-modal dialog
// left behind on this platform have been handled: replayed later, they would take the activation
// away just as a key or a shortcut arrives. False when it is not active within 5 s.
bool activate(QWidget* window);

// A shown, active workspace window of `size` with the fixed containers; null when it does not
// become active.
inline std::unique_ptr<SXMainAppController> openWindow(QSize size = {900, 560}) {
    auto window = std::make_unique<SXMainAppController>();
    window->workspace().tabs().addDefaultTabs();
    window->resize(size);
    window->show();
    return activate(window.get()) ? std::move(window) : nullptr;
}

// The texts of a message box: its text, informative text and button texts.
QStringList messageTexts(QMessageBox* box);
// Clicks the button of a message box that reads `text`; false when there is none.
bool clickMessageButton(QMessageBox* box, const QString& text);

// Whether `rect` of `widget`, as it is drawn now, is one colour: nothing drawn there.
bool isBlank(QWidget* widget, const QRect& rect);

// Writes a picture of `widget` to $SONORIA_GRAB_DIR/<name>.png when that variable is set.
void grab(QWidget* widget, const QString& name);

// Every visible control under `root` without an accessible name or text, and every focusable
// control that Tab does not reach from the first: empty when all is well.
QStringList accessibilityProblems(QWidget* root);

// Every Alt+letter that two visible controls of `root`'s window share (buttons, captions with a
// buddy, group boxes, the menu bar's titles, tabs): empty when each mnemonic is unique.
QStringList mnemonicClashes(QWidget* root);

// Every visible label, button or tab under `root` narrower than its text needs (a word cut off
// or elided): empty when every text fits.
QStringList clippedTexts(QWidget* root);

} // namespace SonoriaGuiTest

#define SONORIA_GUI_TEST_MAIN(TestObject)                                                          \
    int main(int argc, char** argv) {                                                              \
        SonoriaGuiTest::prepareGuiEnvironment();                                                   \
        QApplication app(argc, argv);                                                              \
        QApplication::setApplicationDisplayName(QStringLiteral("Sonoria"));                        \
        TestObject tc;                                                                             \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }
