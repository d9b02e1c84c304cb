#include "base/SXAppIdentity.h"
#include "base/SXInstallation.h"
#include "base/SXSettings.h"
#include "base/SXSystemInfo.h"
#include "online/HVConfigManager.h"
#include "online/SXServiceRequest.h"
#include "online/SXStartupReport.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>

namespace {
constexpr int kWaitMs = 20000;

struct ReceivedRequest {
    QByteArray target; // path and query exactly as they came over the wire
    QByteArray head;   // request line and headers, in lower case
};

// A one-request-per-connection HTTP/1.1 server on 127.0.0.1 that records what it receives and
// answers every request with the same status and body.
class TinyHttpServer : public QObject {
public:
    explicit TinyHttpServer(int status = 200, const QByteArray& body = "{}")
        : m_status(status)
        , m_body(body) {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                socket->setParent(this);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
            }
        });
        QVERIFY(m_server.listen(QHostAddress::LocalHost, 0));
    }
    QString baseURL() const {
        return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
    }
    QList<ReceivedRequest> requests;

private:
    void read(QTcpSocket* socket) {
        QByteArray& pending = m_pending[socket];
        pending += socket->readAll();
        const qsizetype end = pending.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        requests << ReceivedRequest{pending.split(' ').value(1), pending.left(end).toLower()};
        socket->write("HTTP/1.1 " + QByteArray::number(m_status) + " Status\r\n" +
                      "Content-Type: application/json\r\nConnection: close\r\nContent-Length: " +
                      QByteArray::number(m_body.size()) + "\r\n\r\n" + m_body);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QTcpSocket*, QByteArray> m_pending;
    int m_status;
    QByteArray m_body;
};

// What a fresh reader of the settings file sees, bypassing every in-process copy.
QVariant storedOnDisk(const QString& key) {
    return QSettings(SXSettings::fileName(), QSettings::IniFormat).value(key);
}

} // namespace

class TestRemoteConfig : public QObject {
    Q_OBJECT

    HVConfigManager* config() { return HVConfigManager::sharedInstance(); }

    // Runs one configuration request against the service at `base` and waits for its end.
    bool fetchConfig(const QString& base) {
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, base);
        QSignalSpy finished(config(), &HVConfigManager::onlineConfigFinished);
        config()->getOnlineConfig();
        return finished.wait(kWaitMs) && finished.size() == 1;
    }

private Q_SLOTS:
    // The user's consent, which every request below needs, is the subject of the last test.
    void init() { SXServiceRequest::setConsent(true); }

    void configAnswerSetsStoredSwitches_data() {
        QTest::addColumn<int>("status"); // 0: nobody listening
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("vob");
        QTest::addColumn<bool>("experimental");
        const auto row = [](const char* name, int status, const QByteArray& body, bool vob,
                            bool experimental) {
            QTest::newRow(name) << status << body << vob << experimental;
        };
        row("empty object", 200, "{}", true, true);
        row("vob off", 200, R"({"SupportVOBKey": false})", false, true);
        row("both given, others ignored", 200,
            R"({"SupportVOBKey": true, "ExperimentalKey": false, "x": 0})", true, false);
        row("numbers", 200, R"({"SupportVOBKey": 0, "ExperimentalKey": 1})", false, true);
        row("not json", 200, "<html>busy</html>", true, true);
        row("json array", 200, R"([{"SupportVOBKey": false}])", true, true);
        row("not utf-8", 200, "{\"SupportVOBKey\": false, \"n\": \"\xff\xfe\"}", true, true);
        row("http 500", 500, "{}", false, false);
        row("nobody listening", 0, {}, false, false);
    }

    // The stored switches start opposite to what an answer must store, so every store shows; a
    // failed request logs one error and leaves them as they were. What was stored is a record
    // only: both switches stay on in this version.
    void configAnswerSetsStoredSwitches() {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, vob);
        QFETCH(bool, experimental);
        const bool failure = status != 200;
        config()->setSupportVOB(failure == vob);
        config()->setExperimental(failure == experimental);
        LogCapture log;
        TinyHttpServer server(status, body);
        QString base = server.baseURL();
        if (status == 0) {
            const TinyHttpServer gone;
            base = gone.baseURL();
        }
        QVERIFY(fetchConfig(base));
        QCOMPARE(server.requests.size(), status == 0 ? 0 : 1);
        QCOMPARE(storedOnDisk(SXSettingsKey::SupportVOB).toBool(), vob);
        QCOMPARE(storedOnDisk(SXSettingsKey::Experimental).toBool(), experimental);
        QVERIFY(config()->supportVOB() && config()->experimental());
        if (failure)
            QCOMPARE(log.lines().filter(QRegularExpression("^get configure error : .")).size(), 1);
    }

    // Two starts of the program, each with its own application object: the first sends the
    // start-up report and the configuration request, the second (with a base address ending in
    // "/") the report alone. Both reports carry the one stored installation id.
    void startupRequestsGoOutAsBuiltWithoutCaching() {
        SXSettings::removeKey(SXSettingsKey::Guid);
        TinyHttpServer server;
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, server.baseURL());
        QSignalSpy finished(config(), &HVConfigManager::onlineConfigFinished);
        {
            SXStartupReport helper;
            HVConfigManager::startupRequests(helper);
            QVERIFY(finished.wait(kWaitMs));
            QTRY_COMPARE_WITH_TIMEOUT(server.requests.size(), 2, kWaitMs);
        }
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, server.baseURL() + QLatin1Char('/'));
        SXStartupReport second;
        second.reportStartup();
        QTRY_COMPARE_WITH_TIMEOUT(server.requests.size(), 3, kWaitMs);
        const QString guid = storedOnDisk(SXSettingsKey::Guid).toString(); // made at once
        QCOMPARE(guid.size(), 36);

        // Three version components from the build's short version (read as tst_basehelpers'
        // versions test reads them), then the build number.
        const QString query = "&appid=" + SXAppIdentity::applicationId() +
                              "&sysver=" + SXSystemInfo::systemVersionString();
        const QString report = "/common_task/reportstartup.php?appver=" +
                               SXAppIdentity::normalizedVersion(SXInstallation::version()) +
                               QLatin1Char('.') + SXInstallation::buildNumber() + query +
                               "&channelid=5&userid=" + guid;
        const QString configuration =
            "/common_task/getconfig.php?appver=" + SXInstallation::version() + query +
            "&appstore=0";
        QStringList targets;
        for (const ReceivedRequest& request : std::as_const(server.requests)) {
            QVERIFY(request.head.startsWith("get "));
            // Qt translates "never from a cache" into these headers so proxies do not answer.
            QVERIFY(request.head.contains("\ncache-control: no-cache\r"));
            QVERIFY(request.head.contains("\npragma: no-cache\r"));
            targets << QString::fromUtf8(request.target);
        }
        QCOMPARE(targets.filter("/getconfig.php"), QStringList{configuration});
        QCOMPARE(targets.filter("/reportstartup.php"), QStringList({report, report}));

        // The identifier is the one value taken from the settings store: query delimiters in it
        // go out as they are, not escaped.
        const QString oddId = QStringLiteral("a+b/c:d;e,f@g!h$i'j(k)*~l");
        SXSettings::setValue(SXSettingsKey::Guid, oddId);
        SXStartupReport third;
        third.reportStartup();
        QTRY_COMPARE_WITH_TIMEOUT(server.requests.size(), 4, kWaitMs);
        QVERIFY2(server.requests.last().target.endsWith("&userid=" + oddId.toUtf8()),
                 server.requests.last().target.constData());
    }

    void nothingGoesOutWithoutConsentOrAddress_data() {
        QTest::addColumn<bool>("consent");
        QTest::addColumn<bool>("address");
        QTest::newRow("never asked") << false << true;
        QTest::newRow("address stored empty") << true << false;
    }

    // Without the user's consent, or with the service switched off, a start sends nothing,
    // creates no identifier and logs nothing; the consent itself makes requests go out.
    void nothingGoesOutWithoutConsentOrAddress() {
        QFETCH(bool, consent);
        QFETCH(bool, address);
        TinyHttpServer server;
        SXSettings::removeKey(SXServiceRequest::kConsentKey);
        if (consent)
            SXServiceRequest::setConsent(true);
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, address ? server.baseURL() : QString());
        SXSettings::removeKey(SXSettingsKey::Guid);
        QVERIFY(!SXServiceRequest::isEnabled());
        QSignalSpy finished(config(), &HVConfigManager::onlineConfigFinished);
        LogCapture log;
        {
            SXStartupReport helper;
            HVConfigManager::startupRequests(helper);
        }

        // The command-line tool must not phone home either, whatever the settings say.
        SXServiceRequest::setConsent(true);
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, server.baseURL());
        QCOMPARE(SonoriaTest::run(SONORIA_CLI_PATH, {"--list-formats"}), 0); // same config home

        // A request sent now arrives after anything the calls above could have sent.
        QVERIFY(fetchConfig(server.baseURL()));
        QCOMPARE(server.requests.size(), 1);
        QVERIFY(server.requests.first().target.startsWith("/common_task/getconfig.php?"));
        QCOMPARE(finished.size(), 1);
        QVERIFY(log.lines().isEmpty());
        QVERIFY(!storedOnDisk(SXSettingsKey::Guid).isValid());
    }
};

SONORIA_TEST_MAIN(TestRemoteConfig)
#include "tst_remoteconfig.moc"
