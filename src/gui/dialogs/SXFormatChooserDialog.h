#pragma once

#include "workspace/SXFormatChooser.h"

#include <QDialog>

class QCheckBox;
class QComboBox;

// The format chooser: the formats without a container, the three value pop-ups of the chosen one,
// its ReplayGain tags and "Normalise loudness" (both off for a new container) and its
// music-library box. Window-modal over its workspace window; identified as
// "OtherFormat". What it shows and what OK makes come from SXFormatChooser.
class SXFormatChooserDialog final : public QDialog {
    Q_OBJECT
public:
    SXFormatChooserDialog(const QList<SXFormatSettingPtr>& leftFmts, QWidget* parent = nullptr);

    void changeFormatSelect(const QString& name);
    SXFormatSettingPtr getFormatSettingResult() const;

private:
    void windowDidLoad();
    QComboBox* addPopUp(class QFormLayout* form, const QString& label, const QString& name);

    SXFormatChooser m_chooser;
    QComboBox* popFormat = nullptr;
    QComboBox* popSmpRate = nullptr;
    QComboBox* popBitRate = nullptr;
    QComboBox* popChannel = nullptr;
    QComboBox* popReplayGain = nullptr;
    QCheckBox* btnNormalise = nullptr;
    QCheckBox* btnAddToLibrary = nullptr;
};
