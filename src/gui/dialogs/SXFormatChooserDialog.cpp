#include "gui/dialogs/SXFormatChooserDialog.h"

#include "gui/panels/SXPopUps.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

SXFormatChooserDialog::SXFormatChooserDialog(const QList<SXFormatSettingPtr>& leftFmts,
                                             QWidget* parent)
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
    popChannel = addPopUp(form, tr("C&hannels:"), QStringLiteral("popChannel"));
    popReplayGain = addPopUp(form, tr("Replay&Gain tags:"), QStringLiteral("popReplayGain"));
    // In the order of SXReplayGainMode.
    popReplayGain->addItems({tr("Off"), tr("Track"), tr("Album")});
    btnNormalise = new QCheckBox(tr("&Normalise loudness"), this);
    btnNormalise->setObjectName(QStringLiteral("btnNormalise"));
    form->addRow(QString(), btnNormalise);
    btnAddToLibrary = new QCheckBox(tr("Add to the music &library"), this);
    btnAddToLibrary->setObjectName(QStringLiteral("btnAddToLibrary"));
    form->addRow(QString(), btnAddToLibrary);
    layout->addLayout(form);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(popFormat, &QComboBox::activated, this,
            [this](int index) { changeFormatSelect(popFormat->itemData(index).toString()); });
    windowDidLoad();
}

QComboBox* SXFormatChooserDialog::addPopUp(QFormLayout* form, const QString& label,
                                           const QString& name) {
    auto* popUp = new QComboBox(this);
    popUp->setObjectName(name);
    auto* caption = new QLabel(label, this);
    caption->setBuddy(popUp);
    popUp->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    form->addRow(caption, popUp);
    return popUp;
}

void SXFormatChooserDialog::windowDidLoad() {
    const QStringList names = m_chooser.formatNames();
    if (names.isEmpty())
        return;
    popFormat->clear();
    for (const QString& name : names)
        popFormat->addItem(SXCatalogueTexts::formatName(name), name);
    popFormat->setCurrentIndex(0);
    changeFormatSelect(names.first());
}

void SXFormatChooserDialog::changeFormatSelect(const QString& name) {
    const SXFormatChooser::Choices choices = m_chooser.changeFormatSelect(name);
    SXPopUps::fill(popBitRate, SXCatalogueTexts::Choice::BitRate, choices.bitRates,
                   choices.bitRate);
    SXPopUps::fill(popChannel, SXCatalogueTexts::Choice::Channels, choices.channels,
                   choices.channel);
    SXPopUps::fill(popSmpRate, SXCatalogueTexts::Choice::SampleRate, choices.sampleRates,
                   choices.sampleRate);
    btnAddToLibrary->setVisible(choices.libraryVisible);
    btnAddToLibrary->setChecked(choices.libraryOn);
}

SXFormatSettingPtr SXFormatChooserDialog::getFormatSettingResult() const {
    SXFormatSettingPtr result = m_chooser.getFormatSettingResult(
        {popFormat->currentData().toString(), SXPopUps::selectedTitle(popSmpRate),
         SXPopUps::selectedTitle(popBitRate), SXPopUps::selectedTitle(popChannel),
         btnAddToLibrary->isChecked()});
    if (result) {
        result->setReplayGain(SXReplayGainMode(popReplayGain->currentIndex()));
        result->setNormalise(btnNormalise->isChecked());
    }
    return result;
}
