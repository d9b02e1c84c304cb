#pragma once

#include <QString>

// Who this program is: its identifier, its versions and the installation's own identifier.
class SXAppIdentity {
public:
    // The installation's identifier, created once and kept under the settings key "guid".
    static QString installationId();
    // Short version brought to exactly three components: "2.1" -> "2.1.0", "1.2.3.4" -> "1.2.3".
    static QString normalizedVersion(const QString& shortVersion);
    static QString appVersion();
    static QString buildNumber();
    static QString buildVersion(); // appVersion() + "." + buildNumber()
    static QString applicationId();
};
