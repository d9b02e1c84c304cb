#pragma once

#include "workspace/SXMetadataEditing.h"

#include <QDialog>
#include <QMap>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSlider;
class QTabWidget;
class SXArtworkDropView;

// The tag editor: a window-modal dialog over the workspace window with three tabs (tags,
// artwork, lyrics) for one item at a time, stepping to the previous or next row without
// closing. Every keystroke goes straight into the item's tag record; only OK keeps it, Cancel,
// Escape and closing the window put back every record shown. Filling the fields writes
// nothing. SXMetadataEditing decides what each control means.
class SXMetadataEditDialog final : public QDialog {
    Q_OBJECT
public:
    explicit SXMetadataEditDialog(QWidget* parent = nullptr);
    ~SXMetadataEditDialog() override;

    // The workspace; not owned.
    void setListener(SXMetadataEditListener* listener) { m_listener = listener; }
    void setMusicInfo(const SXMusicInfoPtr& item);
    SXMusicInfoPtr musicInfo() const { return m_musicInfo; }

    void clickPre();
    void clickNext();
    void clickOk();
    void clickCancel();
    void clickAdd();
    void clickDelete();
    void scaleImage(int value);
    // The artwork tab's picture, as a file chooser or a drop gives it.
    void takeArtwork(const MTEArtwork& artwork);
    QSize artworkViewSize() const;

protected:
    void done(int result) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildTagsTab();
    QWidget* buildArtworkTab();
    QWidget* buildLyricsTab();
    void addTextField(const SXMetadataEditing::FieldInfo& info, QWidget* editor);
    void fieldEdited(SXMetadataEditing::Field field, const QString& text);
    void updateTabView();
    void updateButtonState();
    void resetImageSlider();
    void enableEdit(bool flag);
    void showArtwork(const QImage& image);
    void storeArtwork(const MTEArtwork& artwork);

    SXMetadataEditListener* m_listener = nullptr;
    SXMusicInfoPtr m_musicInfo;
    SXMetadataEditing::EditSession m_session;
    QImage m_imgChangeBase; // the artwork at its own size; every scaled copy starts from it
    QString m_baseMimeType;
    QTabWidget* m_tabView = nullptr;
    QMap<SXMetadataEditing::Field, QLineEdit*> m_lineFields;
    QMap<SXMetadataEditing::Field, QPlainTextEdit*> m_textFields;
    SXArtworkDropView* m_ivArtworkImg = nullptr;
    QSlider* m_sldScale = nullptr;
    QPushButton* m_btnPre = nullptr;
    QPushButton* m_btnNext = nullptr;
    QPushButton* m_btnCancel = nullptr;
    QPushButton* m_btnOk = nullptr;
    QPushButton* m_btnAddImg = nullptr;
    QPushButton* m_btnDeleteImg = nullptr;
    QLabel* m_viewdisable = nullptr;
};
