#include "SXBundle.h"

#include "SonoriaVersion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString SXBundle::executablePath() {
    if (QCoreApplication::instance())
        return QCoreApplication::applicationFilePath();
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
}

QString SXBundle::executableDirectory() {
    return QFileInfo(executablePath()).absolutePath();
}

QStringList SXBundle::resourceDirectories() {
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

QString SXBundle::pathForResource(const QString& name, const QString& type) {
    const QString fileName = type.isEmpty() ? name : name + QLatin1Char('.') + type;
    for (const QString& dir : resourceDirectories()) {
        const QString candidate = dir + QLatin1Char('/') + fileName;
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return {};
}

QString SXBundle::shortVersionString() {
    return QStringLiteral(SONORIA_SHORT_VERSION);
}

QString SXBundle::bundleVersion() {
    return QStringLiteral(SONORIA_BUILD_NUMBER);
}

QString SXBundle::bundleIdentifier() {
    return QStringLiteral(SONORIA_BUNDLE_ID);
}

QString SXBundle::productName() {
    return QStringLiteral(SONORIA_PRODUCT_NAME);
}
