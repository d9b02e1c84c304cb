#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;

// The preferences: how many conversions run at once, what a run does with outputs that are
// already there, the music library's format, the
// playlist's name and the consent to the start-up requests. A small window of its own; every
// change is stored at once, there is no OK, only Close (also Escape and Ctrl+W).
class SXPreferencesDialog final : public QWidget {
    Q_OBJECT
public:
    explicit SXPreferencesDialog(QWidget* parent = nullptr);

    void windowDidLoad();

private:
    QComboBox* pbtnMaxTasks = nullptr;
    QComboBox* pbtnExistingOutputs = nullptr;
    QComboBox* pbtnLibraryFormat = nullptr;
    QLineEdit* fdPlaylistName = nullptr;
    QCheckBox* chkServiceConsent = nullptr;
};
