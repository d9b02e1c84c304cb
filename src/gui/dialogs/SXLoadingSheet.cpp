#include "gui/dialogs/SXLoadingSheet.h"

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

SXLoadingSheet::SXLoadingSheet(SXAddRun& addRun, QWidget& window)
    : QDialog(&window)
    , m_addRun(addRun) {
    setObjectName(QStringLiteral("loadingSheet"));
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
    m_cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    m_cancel->setObjectName(QStringLiteral("btnCancel"));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &SXLoadingSheet::reject);

    connect(&addRun, &SXAddRun::loadStarted, this, &SXLoadingSheet::beginSheet);
    connect(&addRun, &SXAddRun::loadProgressText, this, &SXLoadingSheet::showText);
    connect(&addRun, &SXAddRun::loadProgressValue, this, &SXLoadingSheet::showValue);
    connect(&addRun, &SXAddRun::loadCancelled, this, &SXLoadingSheet::endSheet);
    connect(&addRun, &SXAddRun::loadFinished, this, &SXLoadingSheet::endSheet);
}

QString SXLoadingSheet::progressText() const {
    return _tfProgressName->text();
}

double SXLoadingSheet::progressValue() const {
    return double(_piIndicator->value()) / kBarSteps;
}

void SXLoadingSheet::beginSheet(const QString& text) {
    showText(text);
    showValue(0.0);
    if (!isVisible())
        open();
}

void SXLoadingSheet::showText(const QString& text) {
    _tfProgressName->setText(text);
    setAccessibleDescription(text);
}

void SXLoadingSheet::showValue(double fraction) {
    _piIndicator->setValue(int(std::clamp(fraction, 0.0, 1.0) * kBarSteps));
}

void SXLoadingSheet::reject() {
    // The workspace cancels its loader and answers with loadCancelled, which ends the sheet.
    m_addRun.cancelLoading();
}

void SXLoadingSheet::endSheet() {
    if (!isVisible())
        return;
    const bool hadKeyboard = isActiveWindow();
    QDialog::done(QDialog::Accepted);
    // The sheet ends by itself, not by a click in the window: hand the keyboard back so that
    // shortcuts and Space on the list work at once (not every platform does it for us).
    if (hadKeyboard)
        parentWidget()->activateWindow();
}
