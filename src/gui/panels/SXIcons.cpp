#include "gui/panels/SXIcons.h"

// Resources compiled into a static library are registered only when asked for by name.
static void registerGuiResources() {
    Q_INIT_RESOURCE(gui);
}

QIcon SXIcons::icon(const QString& ownName, const QString& themeName) {
    static const bool registered = (registerGuiResources(), true);
    Q_UNUSED(registered);
    const QIcon own(QStringLiteral(":/icons/") + ownName);
    if (themeName.isEmpty())
        return own;
    return QIcon::fromTheme(themeName, own);
}
