#include "gui/dialogs/SXArtworkDropView.h"

#include "workspace/SXMetadataEditing.h"

#include <QBuffer>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>

SXArtworkDropView::SXArtworkDropView(QWidget* parent)
    : QLabel(parent) {
    setAcceptDrops(true);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setToolTip(tr("Drop a picture here"));
}

std::optional<MTEArtwork> SXArtworkDropView::artworkOf(const QMimeData* data) {
    if (!data)
        return std::nullopt;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile())
            return SXMetadataEditing::artworkFromFile(url.toLocalFile());
    }
    if (data->hasImage()) {
        const QImage image = qvariant_cast<QImage>(data->imageData());
        if (image.isNull())
            return std::nullopt;
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return MTEArtwork{bytes, QStringLiteral("image/png")};
    }
    return std::nullopt;
}

void SXArtworkDropView::dragEnterEvent(QDragEnterEvent* event) {
    if (isEnabled() && (event->mimeData()->hasUrls() || event->mimeData()->hasImage()))
        event->acceptProposedAction();
}

void SXArtworkDropView::dropEvent(QDropEvent* event) {
    const std::optional<MTEArtwork> artwork = artworkOf(event->mimeData());
    if (!artwork || !isEnabled())
        return;
    event->acceptProposedAction();
    Q_EMIT didAcceptDrag(*artwork);
}
