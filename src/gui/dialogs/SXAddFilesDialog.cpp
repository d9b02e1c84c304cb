#include "gui/dialogs/SXAddFilesDialog.h"

#include "base/SXFolderScan.h"
#include "workspace/SXAddRun.h"

#include <QAbstractItemView>
#include <QFileInfo>

SXAddFilesDialog::SXAddFilesDialog(SXAddRun& addRun, QWidget& window)
    : QFileDialog(&window, tr("Add Files")) {
    setObjectName(QStringLiteral("openFiles"));
    setOption(QFileDialog::DontUseNativeDialog);
    setWindowModality(Qt::WindowModal);
    setFileMode(QFileDialog::ExistingFiles);
    setLabelText(QFileDialog::Accept, tr("Add"));
    QStringList patterns;
    for (const QString& ext : SXFolderScan::acceptedExtensions())
        patterns.append(QStringLiteral("*.") + ext);
    setNameFilters({tr("Audio and video files (%1)").arg(patterns.join(QLatin1Char(' '))),
                    tr("All files (*)")});
    // Folders and files side by side can be selected together in both of the dialog's views.
    for (const QString& name : {QStringLiteral("listView"), QStringLiteral("treeView")}) {
        if (auto* view = findChild<QAbstractItemView*>(name))
            view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    }
    connect(this, &SXAddFilesDialog::locationsChosen, &addRun, &SXAddRun::loadAndParseFiles);
}

SXAddFilesDialog* SXAddFilesDialog::openFor(SXAddRun& addRun, QWidget& window) {
    auto* dialog = new SXAddFilesDialog(addRun, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    return dialog;
}

void SXAddFilesDialog::accept() {
    // The dialog would open a selected folder instead of choosing it: take every selected
    // location as it is, as long as each exists.
    const QStringList paths = selectedFiles();
    if (paths.isEmpty())
        return;
    for (const QString& path : paths) {
        if (!QFileInfo::exists(path))
            return;
    }
    QDialog::accept();
    Q_EMIT locationsChosen(paths);
}
