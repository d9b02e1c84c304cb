#pragma once

#include <QString>

// What the program knows about its own installation: where its executable and resources are,
// and the identity and version strings that the build stamped into it.
class SXInstallation {
public:
    static QString executablePath();
    static QString executableDirectory();

    // Full path of resource `name` with extension `type` ("Formats", "plist"), or an empty
    // string. Looked up, in order: $SONORIA_RESOURCES_DIR, <exe>/../share/sonoria (installed, and
    // the build tree's staged copy), <exe>/Resources. No path of the build is compiled in.
    static QString pathForResource(const QString& name, const QString& type);
    static QStringList resourceDirectories();

    static QString version();       // "1.0.0", the release
    static QString buildNumber();   // the build's own number
    static QString applicationId(); // the reverse-domain name of the desktop entry
    static QString productName();   // "Sonoria"
};
