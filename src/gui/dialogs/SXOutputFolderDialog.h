#pragma once

#include "workspace/SXWorkspacePresenter.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;

// The output folder of a run: "Please choose output folder:", the folder (typed, or picked with
// Browse…, where folders can also be created), and the two choices of the run: organise the
// output by format, open the folder when done. Window-modal over its workspace window.
class SXOutputFolderDialog final : public QDialog {
    Q_OBJECT
public:
    SXOutputFolderDialog(const SXOutputFolderRequest& request, QWidget* parent = nullptr);

    SXOutputFolderChoice choice() const;
    void setFolder(const QString& folder);

private:
    void browse();
    void updateOkButton();

    QLineEdit* m_folder = nullptr;
    QCheckBox* btnOrgized = nullptr;
    QCheckBox* btnOverOpen = nullptr;
    class QPushButton* m_ok = nullptr;
};
