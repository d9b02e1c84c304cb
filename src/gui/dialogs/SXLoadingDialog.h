#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;
class SXAddRun;

// The dialog over a workspace window while an add run probes its files: "Loading Media
// Files...", then "Importing <name>..." per file, a determinate bar and Cancel. It is
// window-modal and follows the workspace's load signals; Cancel (or Escape) asks the workspace
// to cancel, which hides the dialog at once.
class SXLoadingDialog final : public QDialog {
    Q_OBJECT
public:
    SXLoadingDialog(SXAddRun& addRun, QWidget& window);

    QString progressText() const;
    double progressValue() const; // 0..1

public Q_SLOTS:
    void reject() override;

private:
    void begin(const QString& text);
    void showText(const QString& text);
    void showValue(double fraction);
    void finish();

    SXAddRun& m_addRun;
    QLabel* _tfProgressName = nullptr;
    QProgressBar* _piIndicator = nullptr;
    QPushButton* m_cancel = nullptr;
};
