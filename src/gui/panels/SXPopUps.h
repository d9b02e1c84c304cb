#pragma once

#include <QString>
#include <QStringList>

class QComboBox;

// Pop-up menus filled from a format's choice texts, as the chooser and the settings panel use
// them. Filling never echoes back: signals are blocked meanwhile.
namespace SXPopUps {
// Replaces the items with `titles` and selects the one titled `selected`: the first item stays
// selected when `selected` is empty, none is when no item bears that title.
void fill(QComboBox* popUp, const QStringList& titles, const QString& selected);
} // namespace SXPopUps
