#include "SXInstallation.h"

#include "SonoriaVersion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString SXInstallation::executablePath() {
    if (QCoreApplication::instance())
        return QCoreApplication::applicationFilePath();
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
}

QString SXInstallation::executableDirectory() {
    return QFileInfo(executablePath()).absolutePath();
}

QStringList SXInstallation::resourceDirectories() {
    QStringList dirs;
    const QString fromEnv = qEnvironmentVariable("SONORIA_RESOURCES_DIR");
    if (!fromEnv.isEmpty())
        dirs << fromEnv;
    const QString exeDir = executableDirectory();
    // The build stages the resources in <build>/share/sonoria, so the same relative place serves
    // the installed programs and every program of the build tree.
    dirs << QDir::cleanPath(exeDir + QStringLiteral("/../share/sonoria"))
         << exeDir + QStringLiteral("/Resources");
    return dirs;
}

QString SXInstallation::pathForResource(const QString& name, const QString& type) {
    const QString fileName = type.isEmpty() ? name : name + QLatin1Char('.') + type;
    for (const QString& dir : resourceDirectories()) {
        const QString candidate = dir + QLatin1Char('/') + fileName;
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return {};
}

QString SXInstallation::version() {
    return QStringLiteral(SONORIA_SHORT_VERSION);
}

QString SXInstallation::buildNumber() {
    return QStringLiteral(SONORIA_BUILD_NUMBER);
}

QString SXInstallation::applicationId() {
    return QStringLiteral(SONORIA_APPLICATION_ID);
}

QString SXInstallation::productName() {
    return QStringLiteral(SONORIA_PRODUCT_NAME);
}
