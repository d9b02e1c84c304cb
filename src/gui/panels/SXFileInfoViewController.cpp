#include "gui/panels/SXFileInfoViewController.h"

#include "desktop/SXFileManager.h"
#include "workspace/SXCommandValidation.h"
#include "workspace/SXContainerStore.h"
#include "workspace/SXFileInfoText.h"
#include "workspace/SXMetadataEditing.h"

#include <QFormLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kArtworkSide = 160;
}

SXFileInfoViewController::SXFileInfoViewController(QMainWindow& window, SXContainerStore& store)
    : QDockWidget(tr("File Information"), &window)
    , m_store(store) {
    setObjectName(QStringLiteral("SXFileInfoViewController"));
    setFeatures(QDockWidget::DockWidgetClosable);
    setAllowedAreas(Qt::RightDockWidgetArea);
    auto* content = new QWidget(this);
    content->setMinimumSize(360, 560);
    auto* layout = new QVBoxLayout(content);
    m_ivInfoArtwork = new QLabel(content);
    m_ivInfoArtwork->setObjectName(QStringLiteral("ivInfoArtwork"));
    m_ivInfoArtwork->setAccessibleName(tr("Artwork"));
    m_ivInfoArtwork->setFixedSize(kArtworkSide, kArtworkSide);
    m_ivInfoArtwork->setAlignment(Qt::AlignCenter);
    m_ivInfoArtwork->setFrameShape(QFrame::StyledPanel);
    layout->addWidget(m_ivInfoArtwork, 0, Qt::AlignHCenter);
    auto* form = new QFormLayout;
    m_form = form;
    form->setLabelAlignment(Qt::AlignRight);
    for (const SXFileInfoLine& line : SXFileInfoText::linesForItem(SXMusicInfo())) {
        auto* label = new QLabel(content);
        label->setObjectName(line.labelName);
        label->setAccessibleName(line.caption);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        label->setWordWrap(true);
        form->addRow(line.caption + QLatin1Char(':'), label);
        form->setRowVisible(label, line.shown);
        m_labels.insert(line.labelName, label);
    }
    layout->addLayout(form);
    m_btnOpenFile = new QPushButton(tr("Show in File &Manager"), content);
    m_btnOpenFile->setObjectName(QStringLiteral("btnOpenFile"));
    connect(m_btnOpenFile, &QPushButton::clicked, this, &SXFileInfoViewController::clickOpenFile);
    layout->addWidget(m_btnOpenFile, 0, Qt::AlignRight);
    layout->addStretch(1);
    setWidget(content);
    window.addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
    followWorkspace();
}

void SXFileInfoViewController::followWorkspace() {
    const auto follow = [this] {
        if (!isVisible())
            return;
        const bool enabled =
            sxValidateToolbarCommand(SXCommand::FileInfo, m_store.enumAppState(),
                                     m_store.getTotalNeedConvertMusic(), m_store.isSelectedMusic());
        if (!enabled) {
            hide();
            return;
        }
        setMusicInfo(m_store.selectedItems().value(0));
        update();
    };
    connect(&m_store, &SXContainerStore::selectionChanged, this, follow);
    connect(&m_store, &SXContainerStore::listChanged, this, follow);
    connect(&m_store, &SXContainerStore::appStateChanged, this, follow);
}

void SXFileInfoViewController::clickInfo() {
    if (isVisible()) {
        hide();
        return;
    }
    const QList<int> rows = m_store.selectedRows();
    if (rows.isEmpty())
        return;
    if (rows.size() > 1)
        m_store.setSelectedRows({rows.first()});
    setMusicInfo(m_store.selectedItems().value(0));
    update();
    show();
}

void SXFileInfoViewController::setMusicInfo(const SXMusicInfoPtr& item) {
    m_musicInfo = item;
}

void SXFileInfoViewController::update() {
    if (!m_musicInfo)
        return;
    for (const SXFileInfoLine& line : SXFileInfoText::linesForItem(*m_musicInfo)) {
        if (QLabel* label = m_labels.value(line.labelName)) {
            label->setText(line.text);
            m_form->setRowVisible(label, line.shown);
        }
    }
    // The picture is read from the file here, once for the item shown, never per row.
    const std::optional<MTEArtwork> artwork = SXFileInfoText::artworkForItem(*m_musicInfo);
    const QImage image = artwork ? SXMetadataEditing::decodeArtwork(*artwork) : QImage();
    m_ivInfoArtwork->setPixmap(image.isNull() ? QPixmap()
                                              : QPixmap::fromImage(image.scaled(
                                                    kArtworkSide, kArtworkSide, Qt::KeepAspectRatio,
                                                    Qt::SmoothTransformation)));
}

void SXFileInfoViewController::clickOpenFile() {
    if (m_musicInfo)
        SXFileManager::revealItem(m_musicInfo->strFilePath());
}

QString SXFileInfoViewController::labelText(const QString& labelName) const {
    const QLabel* label = m_labels.value(labelName);
    return label ? label->text() : QString();
}
