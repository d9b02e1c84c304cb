#include "gui/panels/SXPopUps.h"

#include <QComboBox>
#include <QSignalBlocker>

void SXPopUps::fill(QComboBox* popUp, const QStringList& titles, const QString& selected) {
    const QSignalBlocker blocker(popUp);
    popUp->clear();
    popUp->addItems(titles);
    // An empty choice leaves the pop-up as filling left it; an unknown one selects nothing.
    if (!selected.isEmpty())
        popUp->setCurrentIndex(int(titles.indexOf(selected)));
}
