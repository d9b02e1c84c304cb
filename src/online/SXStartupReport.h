#pragma once

#include <QObject>

class QNetworkAccessManager;

// The application object that tells the maker's service that the program started. The desktop
// program owns one for its whole run; HVConfigManager::startupRequests() uses it.
class SXStartupReport : public QObject {
    Q_OBJECT
public:
    explicit SXStartupReport(QObject* parent = nullptr);

    // GET "/common_task/reportstartup.php", fire and forget: the answer is not read and a
    // failure is not logged. Does nothing when the service address is switched off.
    void reportStartup();

    // The query text of the report, values inserted as they are. Creates the installation's
    // identifier on first use.
    static QString reportStartupQuery();

private:
    QNetworkAccessManager* m_network = nullptr;
};
