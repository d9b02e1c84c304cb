#include "gui/dialogs/SXMetadataEditDialog.h"

#include "base/SXLog.h"
#include "gui/dialogs/SXArtworkDropView.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace SXMetadataEditing;

namespace {
constexpr int kArtworkView = 200; // the artwork well is square
} // namespace

SXMetadataEditDialog::SXMetadataEditDialog(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("SXMetadataEditDialog"));
    setWindowModality(Qt::WindowModal);
    m_tabView = new QTabWidget(this);
    m_tabView->setObjectName(QStringLiteral("tabView"));
    m_tabView->addTab(buildTagsTab(), tr("&Tags"));
    m_tabView->addTab(buildArtworkTab(), tr("A&rtwork"));
    m_tabView->addTab(buildLyricsTab(), tr("&Lyrics"));
    connect(m_tabView, &QTabWidget::currentChanged, this, &SXMetadataEditDialog::updateTabView);

    const auto button = [this](const QString& text, const QString& name) {
        auto* b = new QPushButton(text, this);
        b->setObjectName(name);
        b->setAutoDefault(false);
        return b;
    };
    m_btnPre = button(tr("&Previous"), QStringLiteral("btnPre"));
    m_btnNext = button(tr("&Next"), QStringLiteral("btnNext"));
    m_btnCancel = button(tr("Cancel"), QStringLiteral("btnCancel"));
    m_btnOk = button(tr("OK"), QStringLiteral("btnOk"));
    m_btnOk->setDefault(true);
    connect(m_btnPre, &QPushButton::clicked, this, &SXMetadataEditDialog::clickPre);
    connect(m_btnNext, &QPushButton::clicked, this, &SXMetadataEditDialog::clickNext);
    connect(m_btnCancel, &QPushButton::clicked, this, &SXMetadataEditDialog::clickCancel);
    connect(m_btnOk, &QPushButton::clicked, this, &SXMetadataEditDialog::clickOk);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_btnPre);
    buttons->addWidget(m_btnNext);
    buttons->addStretch(1);
    buttons->addWidget(m_btnCancel);
    buttons->addWidget(m_btnOk);
    // Above the fields, never over them: the fields of a format that cannot carry tags are
    // shown disabled and the notice says why.
    m_viewdisable = new QLabel(canNotEditNotice(), this);
    m_viewdisable->setObjectName(QStringLiteral("viewdisable"));
    m_viewdisable->setAlignment(Qt::AlignCenter);
    m_viewdisable->setWordWrap(true);
    m_viewdisable->setFocusPolicy(Qt::StrongFocus);
    m_viewdisable->setAutoFillBackground(true);
    m_viewdisable->setBackgroundRole(QPalette::ToolTipBase);
    m_viewdisable->setForegroundRole(QPalette::ToolTipText);
    m_viewdisable->setMargin(8);
    m_viewdisable->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_viewdisable);
    layout->addWidget(m_tabView, 1);
    layout->addLayout(buttons);
    resize(520, 470);
    updateButtonState();
    enableEdit(false);
}

SXMetadataEditDialog::~SXMetadataEditDialog() = default;

QWidget* SXMetadataEditDialog::buildTagsTab() {
    auto* tab = new QWidget(this);
    auto* form = new QFormLayout(tab);
    for (const FieldInfo& info : tagFields()) {
        QWidget* editor = nullptr;
        if (info.field == Field::Comments)
            editor = new QPlainTextEdit(tab);
        else
            editor = new QLineEdit(tab);
        form->addRow(info.caption + QLatin1Char(':'), editor);
        addTextField(info, editor);
    }
    return tab;
}

QWidget* SXMetadataEditDialog::buildArtworkTab() {
    auto* tab = new QWidget(this);
    m_ivArtworkImg = new SXArtworkDropView(tab);
    m_ivArtworkImg->setObjectName(QStringLiteral("ivArtworkImg"));
    m_ivArtworkImg->setAccessibleName(tr("Artwork"));
    m_ivArtworkImg->setFixedSize(kArtworkView, kArtworkView);
    connect(m_ivArtworkImg, &SXArtworkDropView::didAcceptDrag, this,
            &SXMetadataEditDialog::takeArtwork);
    m_sldScale = new QSlider(Qt::Horizontal, tab);
    m_sldScale->setObjectName(QStringLiteral("sldScale"));
    m_sldScale->setAccessibleName(tr("Artwork size"));
    m_sldScale->setRange(0, 100);
    connect(m_sldScale, &QSlider::valueChanged, this, &SXMetadataEditDialog::scaleImage);
    m_btnAddImg = new QPushButton(tr("&Add…"), tab);
    m_btnAddImg->setObjectName(QStringLiteral("btnAddImg"));
    m_btnDeleteImg = new QPushButton(tr("&Delete"), tab);
    m_btnDeleteImg->setObjectName(QStringLiteral("btnDeleteImg"));
    connect(m_btnAddImg, &QPushButton::clicked, this, &SXMetadataEditDialog::clickAdd);
    connect(m_btnDeleteImg, &QPushButton::clicked, this, &SXMetadataEditDialog::clickDelete);
    auto* row = new QHBoxLayout;
    row->addWidget(m_btnAddImg);
    row->addWidget(m_btnDeleteImg);
    row->addStretch(1);
    auto* layout = new QVBoxLayout(tab);
    layout->addWidget(m_ivArtworkImg, 0, Qt::AlignHCenter);
    layout->addWidget(m_sldScale);
    layout->addLayout(row);
    layout->addStretch(1);
    return tab;
}

QWidget* SXMetadataEditDialog::buildLyricsTab() {
    auto* tab = new QWidget(this);
    auto* editor = new QPlainTextEdit(tab);
    auto* layout = new QVBoxLayout(tab);
    layout->addWidget(editor);
    addTextField(lyricsField(), editor);
    return tab;
}

void SXMetadataEditDialog::addTextField(const FieldInfo& info, QWidget* editor) {
    editor->setObjectName(info.outlet);
    editor->setAccessibleName(info.caption);
    const Field field = info.field;
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        m_lineFields.insert(field, line);
        // textEdited: only what the user types, never the filling from the record.
        connect(line, &QLineEdit::textEdited, this,
                [this, field](const QString& text) { fieldEdited(field, text); });
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(editor)) {
        text->setTabChangesFocus(true);
        m_textFields.insert(field, text);
        connect(text, &QPlainTextEdit::textChanged, this,
                [this, field, text] { fieldEdited(field, text->toPlainText()); });
    }
}

void SXMetadataEditDialog::fieldEdited(Field field, const QString& text) {
    if (const auto tags = m_musicInfo ? m_musicInfo->metHandler() : nullptr)
        writeField(*tags, field, text);
}

// --- The item ---

void SXMetadataEditDialog::setMusicInfo(const SXMusicInfoPtr& item) {
    m_musicInfo = item;
    if (isVisible())
        m_session.begin(item);
    const bool editable = isCanEditable(item.get());
    enableEdit(editable);
    const auto tags = item ? item->metHandler() : nullptr;
    const MTEArtworkList images = tags ? tags->albumImg() : MTEArtworkList();
    m_imgChangeBase = images.isEmpty() ? QImage() : decodeArtwork(images.last());
    m_baseMimeType = images.isEmpty() ? QString() : images.last().mimeType;
    updateTabView();
    updateButtonState();
    resetImageSlider();
    setWindowTitle(item ? QFileInfo(item->strFilePath()).fileName() : QString());
}

void SXMetadataEditDialog::updateTabView() {
    const auto tags = m_musicInfo ? m_musicInfo->metHandler() : nullptr;
    if (!tags)
        return;
    switch (m_tabView->currentIndex()) {
    case 0:
        for (auto it = m_lineFields.cbegin(); it != m_lineFields.cend(); ++it)
            it.value()->setText(readField(*tags, it.key()));
        break;
    case 1:
        showArtwork(m_imgChangeBase);
        return;
    default:
        break;
    }
    for (auto it = m_textFields.cbegin(); it != m_textFields.cend(); ++it) {
        const QSignalBlocker quiet(it.value()); // filling is not typing
        it.value()->setPlainText(readField(*tags, it.key()));
    }
}

void SXMetadataEditDialog::updateButtonState() {
    m_btnPre->setEnabled(m_listener && m_listener->canMetadataEditorPerform(m_musicInfo, 0));
    m_btnNext->setEnabled(m_listener && m_listener->canMetadataEditorPerform(m_musicInfo, 1));
}

void SXMetadataEditDialog::clickPre() {
    if (m_listener)
        setMusicInfo(m_listener->metadataEditorAsksForItem(m_musicInfo, 0));
}

void SXMetadataEditDialog::clickNext() {
    if (m_listener)
        setMusicInfo(m_listener->metadataEditorAsksForItem(m_musicInfo, 1));
}

void SXMetadataEditDialog::clickOk() {
    accept();
}

void SXMetadataEditDialog::clickCancel() {
    reject();
}

void SXMetadataEditDialog::done(int result) {
    // Escape and the window's close button arrive here as a rejection too.
    if (result == QDialog::Accepted)
        m_session.accept();
    else
        m_session.discard();
    saveWindowPosition(pos());
    QDialog::done(result);
}

void SXMetadataEditDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_session.begin(m_musicInfo);
    if (const std::optional<QPoint> origin = storedWindowPosition())
        move(*origin);
}

// --- Editing allowed or not ---

void SXMetadataEditDialog::enableEdit(bool flag) {
    // Navigation, the tabs and Cancel stay usable: the user may look and move on.
    for (QWidget* control :
         {static_cast<QWidget*>(m_btnDeleteImg), static_cast<QWidget*>(m_btnAddImg),
          static_cast<QWidget*>(m_ivArtworkImg), static_cast<QWidget*>(m_sldScale)})
        control->setEnabled(flag);
    for (QLineEdit* line : std::as_const(m_lineFields))
        line->setEnabled(flag);
    for (QPlainTextEdit* text : std::as_const(m_textFields))
        text->setEnabled(flag);
    m_viewdisable->setVisible(!flag);
    if (!flag)
        m_viewdisable->setFocus(); // no disabled field keeps the keyboard
}

// --- Artwork ---

QSize SXMetadataEditDialog::artworkViewSize() const {
    return m_ivArtworkImg->size();
}

void SXMetadataEditDialog::clickAdd() {
    auto* chooser = new QFileDialog(this, tr("Choose Artwork"));
    chooser->setObjectName(QStringLiteral("artworkChooser"));
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setOption(QFileDialog::DontUseNativeDialog);
    chooser->setFileMode(QFileDialog::ExistingFile);
    chooser->setNameFilter(tr("Pictures (%1)").arg(imageFilePatterns().join(QLatin1Char(' '))));
    connect(chooser, &QFileDialog::fileSelected, this, [this](const QString& path) {
        if (const std::optional<MTEArtwork> artwork = artworkFromFile(path))
            takeArtwork(*artwork);
    });
    chooser->open();
}

void SXMetadataEditDialog::takeArtwork(const MTEArtwork& artwork) {
    m_imgChangeBase = decodeArtwork(artwork);
    SXLog::line(QStringLiteral("the changed img = %1 %2x%3")
                    .arg(artwork.mimeType)
                    .arg(m_imgChangeBase.width())
                    .arg(m_imgChangeBase.height()));
    m_baseMimeType = artwork.mimeType;
    showArtwork(m_imgChangeBase);
    storeArtwork(artwork);
    resetImageSlider();
}

void SXMetadataEditDialog::clickDelete() {
    m_imgChangeBase = QImage();
    m_baseMimeType.clear();
    showArtwork(QImage());
    if (const auto tags = m_musicInfo ? m_musicInfo->metHandler() : nullptr)
        tags->setAlbumImg({});
}

void SXMetadataEditDialog::resetImageSlider() {
    if (m_imgChangeBase.isNull())
        return;
    const QSignalBlocker quiet(m_sldScale); // placing the slider is not moving it
    m_sldScale->setValue(initialSliderValue(m_imgChangeBase.size(), artworkViewSize()));
}

void SXMetadataEditDialog::scaleImage(int value) {
    if (m_imgChangeBase.isNull())
        return;
    const QSizeF target = scaledArtworkSize(m_imgChangeBase.size(), artworkViewSize(), value);
    SXLog::line(QStringLiteral("The orisize = {%1, %2}, destsize = {%3, %4}")
                    .arg(m_imgChangeBase.width())
                    .arg(m_imgChangeBase.height())
                    .arg(target.width())
                    .arg(target.height()));
    const MTEArtwork scaled = encodeArtwork(m_imgChangeBase, target.toSize(), m_baseMimeType);
    showArtwork(decodeArtwork(scaled));
    storeArtwork(scaled);
}

void SXMetadataEditDialog::showArtwork(const QImage& image) {
    m_ivArtworkImg->setPixmap(image.isNull() ? QPixmap() : QPixmap::fromImage(image));
}

void SXMetadataEditDialog::storeArtwork(const MTEArtwork& artwork) {
    if (const auto tags = m_musicInfo ? m_musicInfo->metHandler() : nullptr)
        tags->setAlbumImg({artwork});
}
