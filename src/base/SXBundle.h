#pragma once

#include <QString>

// What the program knows about its own installation: where its executable and resources are,
// and the identity and version strings that the build stamped into it.
class SXBundle {
public:
    static QString executablePath();
    static QString executableDirectory();

    // Full path of resource `name` with extension `type` ("Formats", "plist"), or an empty
    // string. Looked up, in order: $SONORIA_RESOURCES_DIR, <exe>/../share/sonoria (installed, and
    // the build tree's staged copy), <exe>/Resources. No path of the build is compiled in.
    static QString pathForResource(const QString& name, const QString& type);
    static QStringList resourceDirectories();

    static QString shortVersionString(); // "CFBundleShortVersionString"
    static QString bundleVersion();      // "CFBundleVersion", the build number
    static QString bundleIdentifier();
    static QString productName(); // "Sonoria"
};
