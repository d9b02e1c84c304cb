#include "workspace/SXAboutText.h"

#include "base/SXInstallation.h"

#include <QCoreApplication>

#include <taglib/taglib.h>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
}

namespace {

QString versionText(unsigned version) {
    return QStringLiteral("%1.%2.%3")
        .arg(AV_VERSION_MAJOR(version))
        .arg(AV_VERSION_MINOR(version))
        .arg(AV_VERSION_MICRO(version));
}

} // namespace

QString SXAboutText::licence() {
    return QCoreApplication::translate("SXAboutText",
                                       "GNU General Public License, version 3 or later");
}

QString SXAboutText::qtVersion() {
    return QString::fromLatin1(qVersion());
}

QString SXAboutText::ffmpegVersion() {
    return QString::fromLatin1(av_version_info());
}

QString SXAboutText::avformatVersion() {
    return versionText(avformat_version());
}

QString SXAboutText::avcodecVersion() {
    return versionText(avcodec_version());
}

QString SXAboutText::taglibVersion() {
    return QStringLiteral("%1.%2.%3")
        .arg(TAGLIB_MAJOR_VERSION)
        .arg(TAGLIB_MINOR_VERSION)
        .arg(TAGLIB_PATCH_VERSION);
}

SXAboutText SXAboutText::current() {
    const QString product = SXInstallation::productName();
    SXAboutText about;
    about.title = QCoreApplication::translate("SXAboutText", "About %1").arg(product);
    about.text =
        QStringLiteral("<h3>%1 %2</h3><p>%3</p><p>%4</p><p>%5</p><ul><li>Qt %6</li>"
                       "<li>FFmpeg %7 (libavformat %8, libavcodec %9)</li><li>TagLib %10</li></ul>")
            .arg(product.toHtmlEscaped(),
                 QCoreApplication::translate("SXAboutText", "%1 (build %2)")
                     .arg(SXInstallation::version(), SXInstallation::buildNumber())
                     .toHtmlEscaped(),
                 QCoreApplication::translate("SXAboutText",
                                             "Converts audio and video files to audio formats.")
                     .toHtmlEscaped(),
                 QCoreApplication::translate("SXAboutText", "Licence: %1")
                     .arg(licence())
                     .toHtmlEscaped(),
                 QCoreApplication::translate("SXAboutText", "Libraries in use:").toHtmlEscaped(),
                 qtVersion().toHtmlEscaped(), ffmpegVersion().toHtmlEscaped(), avformatVersion(),
                 avcodecVersion(), taglibVersion());
    return about;
}
