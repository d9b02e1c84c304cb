#pragma once

#include "model/SXFormatSetting.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class SXContainerStore;

// The settings of the selected container under the list: bit rate, sample rate and channels,
// the ReplayGain tags and "Normalise loudness",
// the music-library box (hidden for a format without the option), the container's output
// folder and the reveal button; under them the name pattern with the first item's resulting
// name, and whether added folders are mirrored. It mirrors formatSettingShown and writes
// each change through SXSettingPanelActions.
class SXSettingsPanel final : public QWidget {
    Q_OBJECT
public:
    explicit SXSettingsPanel(SXContainerStore& store, QWidget* parent = nullptr);

    void showSetting(const SXFormatSettingPtr& setting);
    void setSettingPanelEnable(bool enabled);

private:
    QComboBox* addPopUp(const QString& label, const QString& name);
    void buildButtons();
    void buildNaming();
    void showNamePreview();
    void clickSavePath();

    SXContainerStore& m_store;
    int m_columns = 0; // pop-ups placed so far, one column each
    QComboBox* _popBitRate = nullptr;
    QComboBox* _popSmpRate = nullptr;
    QComboBox* _popChannel = nullptr;
    QComboBox* _popReplayGain = nullptr;
    QCheckBox* _btnNormalise = nullptr;
    QCheckBox* _btnAddToLibrary = nullptr;
    QPushButton* _btnSavePath = nullptr;
    QPushButton* _btnReveal = nullptr;
    QLineEdit* _fdNamePattern = nullptr;
    QLabel* _lblNamePreview = nullptr;
    QCheckBox* _btnMirrorFolders = nullptr;
};
