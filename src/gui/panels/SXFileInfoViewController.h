#pragma once

#include "model/SXMusicInfo.h"

#include <QDockWidget>
#include <QMap>

class QFormLayout;
class QLabel;
class QMainWindow;
class QPushButton;
class SXContainerStore;

// The file information panel: a 360 x 560 panel on the right of a workspace window showing,
// read-only, what is known about the first selected item (SXFileInfoText gives every text and
// fallback) with its artwork, and a button that shows the file in the file manager. It follows
// the selection while open and closes when its toolbar item would be disabled.
class SXFileInfoViewController final : public QDockWidget {
    Q_OBJECT
public:
    // Docks itself on the right of `window`, hidden.
    SXFileInfoViewController(QMainWindow& window, SXContainerStore& store);

    void setMusicInfo(const SXMusicInfoPtr& item);
    SXMusicInfoPtr musicInfo() const { return m_musicInfo; }
    // The toolbar button and the menu: shows the first selected row's item, or closes.
    void clickInfo();
    void update();
    void clickOpenFile();
    // The text of one label (tfInfoTitle, ...), for tests and accessibility.
    QString labelText(const QString& labelName) const;

private:
    void followWorkspace();

    SXContainerStore& m_store;
    SXMusicInfoPtr m_musicInfo;
    QMap<QString, QLabel*> m_labels;
    QFormLayout* m_form = nullptr;
    QLabel* m_ivInfoArtwork = nullptr;
    QPushButton* m_btnOpenFile = nullptr;
};
