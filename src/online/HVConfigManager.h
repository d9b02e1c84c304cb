#pragma once

#include <QObject>

class SXStartupReport;
class QNetworkAccessManager;
class QNetworkReply;

// The two feature switches the maker's service hands out, fetched once per start and kept in the
// settings store under "SupportVOBKey" and "ExperimentalKey". Both switches are on in this
// version whatever the service said: the getters read the stored value only to record it and
// answer true regardless. That is deliberate; the stored values keep what the service answered.
//
// A process-wide object, made by the first call of sharedInstance() (on the main thread) and
// never destroyed. Its network replies are handled on the main thread.
class HVConfigManager : public QObject {
    Q_OBJECT
public:
    static HVConfigManager* sharedInstance();

    // What the desktop program does at its start, in this order: the start-up report through
    // `appHelper`, then the configuration request. Neither waits for an answer. The command-line
    // tool never calls this: it must not phone home. `appHelper` has to outlive its request.
    static void startupRequests(SXStartupReport& appHelper);

    // GET "/common_task/getconfig.php"; the answer updates the stored switches. Does nothing when
    // the service address is switched off.
    void getOnlineConfig();

    bool supportVOB() const;
    bool experimental() const;
    void setSupportVOB(bool on);
    void setExperimental(bool on);

    // The query text of the configuration request, values inserted as they are.
    static QString onlineConfigQuery();

Q_SIGNALS:
    // The configuration request ended; `applied` is false after a network or HTTP error, in which
    // case the stored switches were left as they were.
    void onlineConfigFinished(bool applied);

private:
    HVConfigManager();
    void handleConfigReply(QNetworkReply* reply);
    void applyConfiguration(const QByteArray& body);

    QNetworkAccessManager* m_network = nullptr;
};
