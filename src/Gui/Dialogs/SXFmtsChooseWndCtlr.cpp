#include "Gui/Dialogs/SXFmtsChooseWndCtlr.h"

#include "Gui/Panels/SXPopUps.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

SXFmtsChooseWndCtlr::SXFmtsChooseWndCtlr(const QList<SXFormatSettingPtr>& leftFmts, QWidget* parent)
    : QDialog(parent)
    , m_chooser(leftFmts) {
    setObjectName(QStringLiteral("OtherFormat"));
    setWindowTitle(tr("New Format"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Add a container that converts to:"), this));
    auto* form = new QFormLayout;
    popFormat = addPopUp(form, tr("&Format:"), QStringLiteral("popFormat"));
    popBitRate = addPopUp(form, tr("&Bit rate:"), QStringLiteral("popBitRate"));
    popSmpRate = addPopUp(form, tr("&Sample rate:"), QStringLiteral("popSmpRate"));
    popChanel = addPopUp(form, tr("C&hannels:"), QStringLiteral("popChanel"));
    btnAddToiTunes = new QCheckBox(tr("Add to the music &library"), this);
    btnAddToiTunes->setObjectName(QStringLiteral("btnAddToiTunes"));
    form->addRow(QString(), btnAddToiTunes);
    layout->addLayout(form);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(popFormat, &QComboBox::textActivated, this, &SXFmtsChooseWndCtlr::changeFormatSelect);
    windowDidLoad();
}

QComboBox* SXFmtsChooseWndCtlr::addPopUp(QFormLayout* form, const QString& label,
                                         const QString& name) {
    auto* popUp = new QComboBox(this);
    popUp->setObjectName(name);
    auto* caption = new QLabel(label, this);
    caption->setBuddy(popUp);
    popUp->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    form->addRow(caption, popUp);
    return popUp;
}

void SXFmtsChooseWndCtlr::windowDidLoad() {
    const QStringList names = m_chooser.formatNames();
    if (names.isEmpty())
        return;
    popFormat->clear();
    popFormat->addItems(names);
    popFormat->setCurrentIndex(0);
    changeFormatSelect(names.first());
}

void SXFmtsChooseWndCtlr::changeFormatSelect(const QString& name) {
    const SXFormatChooser::Choices choices = m_chooser.changeFormatSelect(name);
    SXPopUps::fill(popBitRate, choices.bitRates, choices.bitRate);
    SXPopUps::fill(popChanel, choices.channels, choices.channel);
    SXPopUps::fill(popSmpRate, choices.sampleRates, choices.sampleRate);
    btnAddToiTunes->setVisible(choices.libraryVisible);
    btnAddToiTunes->setChecked(choices.libraryOn);
}

SXFormatSettingPtr SXFmtsChooseWndCtlr::getFormatSettingResult() const {
    return m_chooser.getFormatSettingResult({popFormat->currentText(), popSmpRate->currentText(),
                                             popBitRate->currentText(), popChanel->currentText(),
                                             btnAddToiTunes->isChecked()});
}
