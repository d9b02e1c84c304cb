#include "workspace/SXWorkspaceTexts.h"

#include "workspace/SXContainerStore.h"

#include <cmath>

QString SXWorkspaceTexts::helpBarText(const SXContainerStore& workspace) {
    int files = 0;
    double seconds = 0;
    double bytes = 0;
    const QStringList containers = workspace.containerNames();
    for (const QString& name : containers) {
        for (const SXMusicInfoPtr& item : workspace.getDataForFormat(name)) {
            ++files;
            if (const LSMediaPtr media = item->mediaInfo()) {
                seconds += media->duration();
                bytes += media->dFileSize();
            }
        }
    }
    if (files == 0)
        return QString();
    return QString::asprintf("%d files, %.1f hours, %.1f MB in %d containers", files,
                             seconds / 3600.0, bytes / 1048576.0, int(containers.size()));
}

QString SXWorkspaceTexts::tabToolTip(const SXFormatSettingPtr& setting) {
    return setting ? QStringLiteral("Converter to ") + setting->fmtDescribe() : QString();
}

QString SXWorkspaceTexts::countNoun(int count) {
    return count == 1 ? QStringLiteral("item") : QStringLiteral("items");
}

QString SXWorkspaceTexts::tabAccessibleName(const QString& label, int count) {
    return QStringLiteral("%1, %2 %3").arg(label).arg(count).arg(countNoun(count));
}

QString SXWorkspaceTexts::windowTitle(const QString& appName, int state, double percent) {
    if (state != AppStateConverting)
        return appName;
    const int whole = std::isnan(percent) ? 0 : int(std::clamp(percent, 0.0, 100.0));
    return QStringLiteral("%1% \u2014 %2").arg(whole).arg(appName);
}

QString SXWorkspaceTexts::cappedNameLines(const QStringList& names) {
    QString text;
    for (int i = 0; i < names.size(); ++i) {
        text += names.at(i) + QLatin1Char('\n');
        if (i == 10) {
            text += QStringLiteral("...");
            break;
        }
    }
    return text;
}
