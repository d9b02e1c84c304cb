#pragma once

#include "framework/MTEAudioFile.h"

#include <QLabel>
#include <optional>

class QMimeData;

// The artwork well of the tag editor: shows one picture and takes a picture dropped on it,
// either as a file from the file manager or as image data from another program.
class SXArtworkDropView final : public QLabel {
    Q_OBJECT
public:
    explicit SXArtworkDropView(QWidget* parent = nullptr);

Q_SIGNALS:
    void didAcceptDrag(const MTEArtwork& artwork);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    static std::optional<MTEArtwork> artworkOf(const QMimeData* data);
};
