#pragma once

#include <QFileDialog>

class SXAddRun;

// The open dialog of a workspace window: files and folders chosen together, files filtered by
// the accepted extensions, window-modal. Its OK starts the add run with every chosen location
// in order. The desktop's own chooser (the portal's) picks either files or folders, never both
// in one go, so this is Qt's own dialog; a folder is added when it is selected and OK is
// pressed, and a double-click still opens it.
class SXAddFilesDialog final : public QFileDialog {
    Q_OBJECT
public:
    SXAddFilesDialog(SXAddRun& addRun, QWidget& window);

    // Opens a new dialog over `window`; it deletes itself when it closes.
    static SXAddFilesDialog* openFor(SXAddRun& addRun, QWidget& window);

public Q_SLOTS:
    void accept() override;

Q_SIGNALS:
    void locationsChosen(const QStringList& paths);
};
