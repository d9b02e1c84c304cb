#pragma once

#include <QIcon>
#include <QString>

// The program's pictures: the desktop theme's icon where it has a fitting one, else our own
// drawing of the same name (":/icons/<name>"), so the window matches the desktop when it can.
namespace SXIcons {
QIcon icon(const QString& ownName, const QString& themeName = QString());
} // namespace SXIcons
