#include "gui/panels/SXPopUps.h"

#include <QComboBox>
#include <QSignalBlocker>

void SXPopUps::fill(QComboBox* popUp, SXCatalogueTexts::Choice kind, const QStringList& titles,
                    const QString& selected) {
    const QSignalBlocker blocker(popUp);
    popUp->clear();
    for (const QString& title : titles)
        popUp->addItem(SXCatalogueTexts::choiceTitle(kind, title), title);
    // An empty choice leaves the pop-up as filling left it; an unknown one selects nothing.
    if (!selected.isEmpty())
        popUp->setCurrentIndex(int(titles.indexOf(selected)));
}

QString SXPopUps::selectedTitle(const QComboBox* popUp) {
    return popUp->currentData().toString();
}
