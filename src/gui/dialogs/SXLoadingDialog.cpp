#include "gui/dialogs/SXLoadingDialog.h"

#include "workspace/SXAddRun.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kBarSteps = 1000;
}

SXLoadingDialog::SXLoadingDialog(SXAddRun& addRun, QWidget& window)
    : QDialog(&window)
    , m_addRun(addRun) {
    setObjectName(QStringLiteral("loadingDialog"));
    setWindowTitle(QApplication::applicationDisplayName());
    setWindowModality(Qt::WindowModal);
    auto* layout = new QVBoxLayout(this);
    _tfProgressName = new QLabel(this);
    _tfProgressName->setObjectName(QStringLiteral("tfProgressName"));
    _tfProgressName->setMinimumWidth(380);
    _tfProgressName->setTextFormat(Qt::PlainText);
    layout->addWidget(_tfProgressName);
    _piIndicator = new QProgressBar(this);
    _piIndicator->setObjectName(QStringLiteral("piIndicator"));
    _piIndicator->setAccessibleName(tr("Loading progress"));
    _piIndicator->setRange(0, kBarSteps);
    _piIndicator->setTextVisible(false);
    layout->addWidget(_piIndicator);
    auto* buttons = new QDialogButtonBox(this);
    m_cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    m_cancel->setObjectName(QStringLiteral("btnCancel"));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &SXLoadingDialog::reject);

    connect(&addRun, &SXAddRun::loadStarted, this, &SXLoadingDialog::begin);
    connect(&addRun, &SXAddRun::loadProgressText, this, &SXLoadingDialog::showText);
    connect(&addRun, &SXAddRun::loadProgressValue, this, &SXLoadingDialog::showValue);
    connect(&addRun, &SXAddRun::loadCancelled, this, &SXLoadingDialog::finish);
    connect(&addRun, &SXAddRun::loadFinished, this, &SXLoadingDialog::finish);
}

QString SXLoadingDialog::progressText() const {
    return _tfProgressName->text();
}

double SXLoadingDialog::progressValue() const {
    return double(_piIndicator->value()) / kBarSteps;
}

void SXLoadingDialog::begin(const QString& text) {
    showText(text);
    showValue(0.0);
    if (!isVisible())
        open();
}

void SXLoadingDialog::showText(const QString& text) {
    _tfProgressName->setText(text);
    setAccessibleDescription(text);
}

void SXLoadingDialog::showValue(double fraction) {
    _piIndicator->setValue(int(std::clamp(fraction, 0.0, 1.0) * kBarSteps));
}

void SXLoadingDialog::reject() {
    // The workspace cancels its loader and answers with loadCancelled, which ends the dialog.
    m_addRun.cancelLoading();
}

void SXLoadingDialog::finish() {
    if (!isVisible())
        return;
    const bool hadKeyboard = isActiveWindow();
    QDialog::done(QDialog::Accepted);
    // The dialog ends by itself, not by a click in the window: hand the keyboard back so that
    // shortcuts and Space on the list work at once (not every platform does it for us).
    if (hadKeyboard)
        parentWidget()->activateWindow();
}
