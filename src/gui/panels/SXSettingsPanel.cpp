#include "gui/panels/SXSettingsPanel.h"

#include "engine/ConvertNaming.h"
#include "gui/panels/SXIcons.h"
#include "gui/panels/SXPopUps.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXSettingPanelActions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

SXSettingsPanel::SXSettingsPanel(SXContainerStore& store, QWidget* parent)
    : QWidget(parent)
    , m_store(store) {
    setObjectName(QStringLiteral("settingsPanel"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    _popBitRate = addPopUp(tr("&Bit rate:"), QStringLiteral("popBitRate"));
    _popSmpRate = addPopUp(tr("Sample &rate:"), QStringLiteral("popSmpRate"));
    _popChannel = addPopUp(tr("Cha&nnels:"), QStringLiteral("popChannel"));
    _popReplayGain = addPopUp(tr("Replay&Gain tags:"), QStringLiteral("popReplayGain"));
    // In the order of SXReplayGainMode.
    _popReplayGain->addItems({tr("Off"), tr("Track"), tr("Album")});
    buildButtons();
    buildNaming();

    connect(_popBitRate, &QComboBox::activated, this, [this] {
        SXSettingPanelActions::setBitRate(m_store, SXPopUps::selectedTitle(_popBitRate));
    });
    connect(_popSmpRate, &QComboBox::activated, this, [this] {
        SXSettingPanelActions::setSampleRate(m_store, SXPopUps::selectedTitle(_popSmpRate));
    });
    connect(_popChannel, &QComboBox::activated, this, [this] {
        SXSettingPanelActions::setChannels(m_store, SXPopUps::selectedTitle(_popChannel));
    });
    connect(_popReplayGain, &QComboBox::activated, this, [this](int index) {
        SXSettingPanelActions::setReplayGain(m_store, SXReplayGainMode(index));
    });
    connect(_btnNormalise, &QCheckBox::clicked, this,
            [this](bool on) { SXSettingPanelActions::setNormalise(m_store, on); });
    connect(_btnAddToLibrary, &QCheckBox::clicked, this,
            [this](bool on) { SXSettingPanelActions::setAddToLibrary(m_store, on); });
    connect(_btnSavePath, &QPushButton::clicked, this, &SXSettingsPanel::clickSavePath);
    connect(_btnReveal, &QPushButton::clicked, this,
            [this] { SXSettingPanelActions::revealOutputFolder(m_store); });
    connect(_fdNamePattern, &QLineEdit::textEdited, this, [this](const QString& pattern) {
        SXSettingPanelActions::setNamePattern(m_store, pattern);
        showNamePreview();
    });
    connect(_btnMirrorFolders, &QCheckBox::clicked, this, [this](bool on) {
        SXSettingPanelActions::setMirrorFolders(m_store, on);
        showNamePreview();
    });
    connect(&m_store, &SXContainerStore::formatSettingShown, this, &SXSettingsPanel::showSetting);
    connect(&m_store, &SXContainerStore::listChanged, this, &SXSettingsPanel::showNamePreview);
}

QComboBox* SXSettingsPanel::addPopUp(const QString& label, const QString& name) {
    auto* grid = static_cast<QGridLayout*>(layout());
    const int column = m_columns++;
    auto* popUp = new QComboBox(this);
    popUp->setObjectName(name);
    popUp->setMinimumContentsLength(8);
    popUp->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    auto* caption = new QLabel(label, this);
    caption->setBuddy(popUp);
    grid->addWidget(caption, 0, column);
    grid->addWidget(popUp, 1, column);
    return popUp;
}

void SXSettingsPanel::buildButtons() {
    auto* grid = static_cast<QGridLayout*>(layout());
    const int column = m_columns;
    _btnAddToLibrary = new QCheckBox(tr("Add to m&usic library"), this);
    _btnAddToLibrary->setObjectName(QStringLiteral("btnAddToLibrary"));
    _btnSavePath =
        new QPushButton(SXIcons::icon(QStringLiteral("outputFolder"), QStringLiteral("folder")),
                        tr("&Output Folder…"), this);
    _btnSavePath->setObjectName(QStringLiteral("btnSavePath"));
    _btnReveal =
        new QPushButton(SXIcons::icon(QStringLiteral("reveal"), QStringLiteral("folder-open")),
                        tr("Show in F&iles"), this);
    _btnReveal->setObjectName(QStringLiteral("btnReveal"));
    _btnNormalise = new QCheckBox(tr("Normali&se loudness"), this);
    _btnNormalise->setObjectName(QStringLiteral("btnNormalise"));
    _btnNormalise->setToolTip(
        tr("Converts at the measured ReplayGain (the album's in album mode), keeping the true "
           "peak at or below -1 dBTP; the output then gets no ReplayGain tags"));
    grid->addWidget(_btnAddToLibrary, 0, column);
    grid->addWidget(_btnNormalise, 1, column);
    grid->addWidget(_btnSavePath, 0, column + 1);
    grid->addWidget(_btnReveal, 1, column + 1);
    grid->setColumnStretch(column + 2, 1);
}

void SXSettingsPanel::buildNaming() {
    auto* grid = static_cast<QGridLayout*>(layout());
    _fdNamePattern = new QLineEdit(this);
    _fdNamePattern->setObjectName(QStringLiteral("fdNamePattern"));
    _fdNamePattern->setAccessibleName(tr("Name pattern"));
    _fdNamePattern->setPlaceholderText(ConvertNaming::defaultPattern());
    _fdNamePattern->setToolTip(tr("{artist}, {albumartist}, {album}, {title}, {track}, {track:02}, "
                                  "{disc}, {year}, {genre} and {filename}; \"/\" makes folders"));
    auto* caption = new QLabel(tr("Name pa&ttern:"), this);
    caption->setBuddy(_fdNamePattern);
    _lblNamePreview = new QLabel(this);
    _lblNamePreview->setObjectName(QStringLiteral("lblNamePreview"));
    _lblNamePreview->setTextFormat(Qt::PlainText);
    _btnMirrorFolders = new QCheckBox(tr("&Keep the layout of added folders"), this);
    _btnMirrorFolders->setObjectName(QStringLiteral("btnMirrorFolders"));
    grid->addWidget(caption, 2, 0);
    grid->addWidget(_fdNamePattern, 2, 1, 1, 2);
    grid->addWidget(_btnMirrorFolders, 2, 3, 1, 2);
    grid->addWidget(_lblNamePreview, 3, 0, 1, 5);
}

void SXSettingsPanel::showNamePreview() {
    const QString preview = SXSettingPanelActions::namePreview(m_store);
    _lblNamePreview->setText(preview.isEmpty() ? QString()
                                               : tr("The first file becomes: %1").arg(preview));
    _lblNamePreview->setAccessibleName(_lblNamePreview->text());
}

void SXSettingsPanel::showSetting(const SXFormatSettingPtr& setting) {
    if (!setting)
        return;
    SXPopUps::fill(_popBitRate, SXCatalogueTexts::Choice::BitRate, setting->aryBiteRate(),
                   setting->bitRate());
    SXPopUps::fill(_popChannel, SXCatalogueTexts::Choice::Channels, setting->aryChannels(),
                   setting->channels());
    SXPopUps::fill(_popSmpRate, SXCatalogueTexts::Choice::SampleRate, setting->arySampleRate(),
                   setting->sampleRate());
    _popReplayGain->setCurrentIndex(int(setting->replayGain()));
    _btnNormalise->setChecked(setting->normalise());
    _btnAddToLibrary->setVisible(setting->enumAddToLibrary() != -1);
    _btnAddToLibrary->setChecked(setting->enumAddToLibrary() == 1);
    _btnSavePath->setToolTip(
        QDir::toNativeSeparators(SXSettingPanelActions::containerOutputFolder(m_store)));
    if (_fdNamePattern->text() != setting->namePattern())
        _fdNamePattern->setText(setting->namePattern());
    _btnMirrorFolders->setChecked(setting->mirrorFolders());
    showNamePreview();
}

void SXSettingsPanel::setSettingPanelEnable(bool enabled) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             _popBitRate, _popSmpRate, _popChannel, _popReplayGain, _btnNormalise, _btnAddToLibrary,
             _btnSavePath, _fdNamePattern, _btnMirrorFolders})
        control->setEnabled(enabled);
}

void SXSettingsPanel::clickSavePath() {
    auto* picker = new QFileDialog(window(), tr("Output Folder of This Format"), QDir::homePath());
    picker->setAttribute(Qt::WA_DeleteOnClose);
    picker->setObjectName(QStringLiteral("formatOutputFolder"));
    picker->setFileMode(QFileDialog::Directory);
    picker->setOption(QFileDialog::ShowDirsOnly);
    picker->setWindowModality(Qt::WindowModal);
    connect(picker, &QFileDialog::fileSelected, this, [this](const QString& folder) {
        SXSettingPanelActions::setOutputFolder(m_store, folder);
        showSetting(m_store.getSelectedTabFormatSetting());
    });
    picker->open();
}
