#include "gui/dialogs/SXOutputFolderDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

SXOutputFolderDialog::SXOutputFolderDialog(const SXOutputFolderRequest& request, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("setOutput"));
    setWindowTitle(tr("Output Folder"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(480);

    auto* layout = new QVBoxLayout(this);
    auto* message = new QLabel(request.message, this);
    layout->addWidget(message);
    auto* row = new QHBoxLayout;
    m_folder = new QLineEdit(QDir::toNativeSeparators(request.startFolder), this);
    m_folder->setObjectName(QStringLiteral("folder"));
    m_folder->setAccessibleName(tr("Output folder"));
    message->setBuddy(m_folder);
    auto* browse = new QPushButton(tr("&Browse…"), this);
    browse->setObjectName(QStringLiteral("browse"));
    row->addWidget(m_folder, 1);
    row->addWidget(browse);
    layout->addLayout(row);

    btnOrgized = new QCheckBox(tr("Put the files of each format in a folder of its own"), this);
    btnOrgized->setObjectName(QStringLiteral("btnOrgized"));
    btnOrgized->setChecked(request.organizeByFormat);
    btnOverOpen = new QCheckBox(tr("Open the folder when the conversion is over"), this);
    btnOverOpen->setObjectName(QStringLiteral("btnOverOpen"));
    btnOverOpen->setChecked(request.openWhenDone);
    layout->addWidget(btnOrgized);
    layout->addWidget(btnOverOpen);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(request.prompt);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(browse, &QPushButton::clicked, this, &SXOutputFolderDialog::browse);
    connect(m_folder, &QLineEdit::textChanged, this, &SXOutputFolderDialog::updateOkButton);
    updateOkButton();
}

SXOutputFolderChoice SXOutputFolderDialog::choice() const {
    return {QDir::cleanPath(QDir::fromNativeSeparators(m_folder->text().trimmed())),
            btnOrgized->isChecked(), btnOverOpen->isChecked()};
}

void SXOutputFolderDialog::setFolder(const QString& folder) {
    m_folder->setText(QDir::toNativeSeparators(folder));
}

void SXOutputFolderDialog::browse() {
    auto* picker = new QFileDialog(this, tr("Choose Output Folder"), choice().folder);
    picker->setAttribute(Qt::WA_DeleteOnClose);
    picker->setFileMode(QFileDialog::Directory);
    picker->setOption(QFileDialog::ShowDirsOnly);
    picker->setWindowModality(Qt::WindowModal);
    connect(picker, &QFileDialog::fileSelected, this, &SXOutputFolderDialog::setFolder);
    picker->open();
}

void SXOutputFolderDialog::updateOkButton() {
    // A relative or empty path would land in whatever folder the program was started from.
    m_ok->setEnabled(QDir::isAbsolutePath(choice().folder));
}
