#include "gui/window/SXWindowPresenter.h"

#include "desktop/SXFileManager.h"
#include "gui/dialogs/SXFormatChooserDialog.h"
#include "gui/dialogs/SXOutputFolderDialog.h"
#include "workspace/SXFormatChooser.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox* messageBox(QWidget& window, const SXAlert& alert, QMessageBox::Icon icon) {
    auto* box = new QMessageBox(&window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->setWindowTitle(QApplication::applicationDisplayName());
    box->setIcon(icon);
    box->setText(alert.messageText);
    box->setInformativeText(alert.informativeText);
    // A long list (every failed file with its folder and reason) scrolls behind a button
    // instead of stretching the alert past the screen.
    if (!alert.details.isEmpty())
        box->setDetailedText(alert.details);
    const QStringList buttons =
        alert.buttons.isEmpty()
            ? QStringList{QCoreApplication::translate("SXWindowPresenter", "OK")}
            : alert.buttons;
    for (int i = 0; i < buttons.size(); ++i) {
        QPushButton* button = box->addButton(buttons.at(i), QMessageBox::AcceptRole);
        button->setProperty("sxIndex", i);
        // Escape answers like the default button: the safe choice comes first.
        if (i == 0) {
            box->setDefaultButton(button);
            box->setEscapeButton(button);
        }
    }
    return box;
}

} // namespace

SXWindowPresenter::SXWindowPresenter(QWidget& window)
    : QObject(&window)
    , m_window(window) {}

void SXWindowPresenter::runModalAlert(const SXAlert& alert, Answer<int> chosenButton) {
    // A choice between answers is a warning; a lone OK only informs.
    const QMessageBox::Icon icon =
        alert.buttons.size() > 1 ? QMessageBox::Warning : QMessageBox::Information;
    QMessageBox* box = messageBox(m_window, alert, icon);
    connect(box, &QMessageBox::finished, this, [box, chosenButton] {
        const QAbstractButton* clicked = box->clickedButton();
        chosenButton(clicked ? clicked->property("sxIndex").toInt() : 0);
    });
    box->open();
}

void SXWindowPresenter::showNotice(const SXAlert& alert) {
    messageBox(m_window, alert, QMessageBox::Warning)->open();
}

void SXWindowPresenter::chooseOutputFolder(const SXOutputFolderRequest& request,
                                           Answer<std::optional<SXOutputFolderChoice>> chosen) {
    auto* dialog = new SXOutputFolderDialog(request, &m_window);
    connect(dialog, &QDialog::finished, this, [dialog, chosen](int result) {
        chosen(result == QDialog::Accepted ? std::optional(dialog->choice()) : std::nullopt);
    });
    dialog->open();
}

void SXWindowPresenter::chooseNewFormat(const QList<SXFormatSettingPtr>& formats,
                                        Answer<SXFormatSettingPtr> chosen) {
    auto* dialog = new SXFormatChooserDialog(formats, &m_window);
    connect(dialog, &QDialog::finished, this, [dialog, chosen](int result) {
        chosen(result == QDialog::Accepted ? dialog->getFormatSettingResult() : nullptr);
    });
    dialog->open();
}

void SXWindowPresenter::beep() {
    QApplication::beep();
    Q_EMIT beeped();
}

void SXWindowPresenter::openFolder(const QString& path) {
    SXFileManager::openFolder(path);
}
