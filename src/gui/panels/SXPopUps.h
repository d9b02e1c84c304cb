#pragma once

#include "workspace/SXCatalogueTexts.h"

#include <QString>
#include <QStringList>

class QComboBox;

// Pop-up menus filled from a format's choice texts, as the chooser and the settings panel use
// them. Each item shows the choice as people read it and carries the catalogue's own title as
// its data, which is what the core is given back. Filling never echoes back: signals are
// blocked meanwhile.
namespace SXPopUps {
// Replaces the items with `titles` and selects the one titled `selected`: the first item stays
// selected when `selected` is empty, none is when no item bears that title.
void fill(QComboBox* popUp, SXCatalogueTexts::Choice kind, const QStringList& titles,
          const QString& selected);
// The catalogue title of the selected item; empty when none is selected.
QString selectedTitle(const QComboBox* popUp);
} // namespace SXPopUps
