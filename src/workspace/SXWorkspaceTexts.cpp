#include "workspace/SXWorkspaceTexts.h"

#include "workspace/SXCatalogueTexts.h"

#include "workspace/SXContainerStore.h"

#include <QLocale>

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
    // The counts choose their source text the way the words always read ("1 containers"); the
    // catalogue gives each count its plural form.
    const int containerCount = int(containers.size());
    const QLocale locale;
    return tr("%n files, %1 hours, %2 in %3", nullptr, files)
        .arg(locale.toString(seconds / 3600.0, 'f', 1),
             locale.formattedDataSize(qint64(bytes), 1, QLocale::DataSizeTraditionalFormat),
             tr("%n containers", nullptr, containerCount));
}

QString SXWorkspaceTexts::tabToolTip(const SXFormatSettingPtr& setting) {
    return setting
               ? tr("Converter to %1").arg(SXCatalogueTexts::description(setting->fmtDescribe()))
               : QString();
}

QString SXWorkspaceTexts::countNoun(int count) {
    return count == 1 ? tr("item") : tr("items");
}

QString SXWorkspaceTexts::countText(int count) {
    return count == 1 ? tr("%n item", nullptr, count) : tr("%n items", nullptr, count);
}

QString SXWorkspaceTexts::tabAccessibleName(const QString& label, int count) {
    return tr("%1, %2").arg(SXCatalogueTexts::formatName(label), countText(count));
}

QString SXWorkspaceTexts::windowTitle(const QString& appName, int state, double percent) {
    if (state != AppStateConverting)
        return appName;
    const int whole = std::isnan(percent) ? 0 : int(std::clamp(percent, 0.0, 100.0));
    return tr("%1% — %2").arg(whole).arg(appName);
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
