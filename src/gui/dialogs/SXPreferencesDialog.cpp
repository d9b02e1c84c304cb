#include "gui/dialogs/SXPreferencesDialog.h"

#include "online/SXPreferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>

namespace {
QLabel* caption(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setBuddy(buddy);
    buddy->setAccessibleName(QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    return label;
}
} // namespace

SXPreferencesDialog::SXPreferencesDialog(QWidget* parent)
    : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("SXPreferencesDialog"));
    setWindowTitle(tr("Preferences"));
    // Closing the workspace window quits even while the preferences are open.
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* form = new QFormLayout(this);
    pbtnMaxTasks = new QComboBox(this);
    pbtnMaxTasks->setObjectName(QStringLiteral("pbtnMaxTasks"));
    pbtnMaxTasks->addItems(SXPreferences::maxTasksTitles());
    pbtnExistingOutputs = new QComboBox(this);
    pbtnExistingOutputs->setObjectName(QStringLiteral("pbtnExistingOutputs"));
    pbtnExistingOutputs->addItems(SXPreferences::existingOutputsTitles());
    pbtnLibraryFormat = new QComboBox(this);
    pbtnLibraryFormat->setObjectName(QStringLiteral("pbtnLibraryFormat"));
    pbtnLibraryFormat->addItems(SXPreferences::libraryFormatTitles());
    fdPlaylistName = new QLineEdit(this);
    fdPlaylistName->setObjectName(QStringLiteral("fdPlaylistName"));
    form->addRow(caption(tr("Con&versions at once:"), pbtnMaxTasks, this), pbtnMaxTasks);
    form->addRow(caption(tr("&Existing outputs:"), pbtnExistingOutputs, this), pbtnExistingOutputs);
    pbtnExistingOutputs->setToolTip(
        tr("What a conversion does when a file with its output's name is already there: leave an "
           "earlier result that is whole and newer than its source, number the new file, or "
           "replace an output Sonoria wrote (never a file of yours)."));
    form->addRow(caption(tr("Music &library format:"), pbtnLibraryFormat, this), pbtnLibraryFormat);
    form->addRow(caption(tr("&Playlist name:"), fdPlaylistName, this), fdPlaylistName);
    chkServiceConsent =
        new QCheckBox(tr("&Send a start-up report and fetch feature switches"), this);
    chkServiceConsent->setObjectName(QStringLiteral("chkServiceConsent"));
    auto* consentText = new QLabel(
        tr("At each start Sonoria then tells %1 its version, the system's version and a random "
           "installation number, and asks which features to switch on.")
            .arg(SXPreferences::serviceAddress()),
        this);
    consentText->setWordWrap(true);
    chkServiceConsent->setToolTip(consentText->text());
    form->addRow(chkServiceConsent);
    form->addRow(consentText);
    // Every change is already stored: closing is the only thing left to do, by the button,
    // Escape or Ctrl+W as in any small settings window.
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    for (const QKeySequence& keys :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)}) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, &QWidget::close);
    }
    windowDidLoad();

    connect(pbtnMaxTasks, &QComboBox::textActivated, this, &SXPreferences::setMaxTasks);
    connect(pbtnExistingOutputs, &QComboBox::activated, this, &SXPreferences::setExistingOutputs);
    connect(pbtnLibraryFormat, &QComboBox::activated, this, &SXPreferences::setLibraryFormat);
    connect(fdPlaylistName, &QLineEdit::textEdited, this, &SXPreferences::controlTextDidChange);
    connect(chkServiceConsent, &QCheckBox::toggled, this, &SXPreferences::setServiceConsent);
}

void SXPreferencesDialog::windowDidLoad() {
    const QSignalBlocker a(pbtnMaxTasks), b(pbtnLibraryFormat), c(fdPlaylistName),
        d(chkServiceConsent), e(pbtnExistingOutputs);
    pbtnMaxTasks->setCurrentIndex(SXPreferences::maxTasksIndex());
    pbtnExistingOutputs->setCurrentIndex(SXPreferences::existingOutputsIndex());
    pbtnLibraryFormat->setCurrentIndex(SXPreferences::libraryFormatIndex());
    fdPlaylistName->setText(SXPreferences::playlistName());
    chkServiceConsent->setChecked(SXPreferences::serviceConsent());
}
