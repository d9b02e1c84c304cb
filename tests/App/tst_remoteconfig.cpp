#include "App/HVConfigManager.h"
#include "App/MacAppHelper.h"
#include "App/SXServiceRequest.h"
#include "Shared/GlobalFun.h"
#include "Shared/SXBundle.h"
#include "Shared/SXSettings.h"
#include "support/LogCapture.h"
#include "support/TestSupport.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>

namespace {
constexpr int kWaitMs = 20000;

struct ReceivedRequest {
    QByteArray method;
    QByteArray target;                    // path and query exactly as they came over the wire
    QMap<QByteArray, QByteArray> headers; // names in lower case
};

// A one-request-per-connection HTTP/1.1 server on 127.0.0.1 that records what it receives and
// answers every request with the same status and body.
class TinyHttpServer : public QObject {
public:
    TinyHttpServer() {
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
    void respond(int status, const QByteArray& body) {
        m_status = status;
        m_body = body;
    }
    QList<ReceivedRequest> requests;

private:
    void read(QTcpSocket* socket) {
        QByteArray& pending = m_pending[socket];
        pending += socket->readAll();
        const qsizetype end = pending.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const QList<QByteArray> lines = pending.left(end).split('\n');
        const QList<QByteArray> first = lines.value(0).trimmed().split(' ');
        ReceivedRequest request{first.value(0), first.value(1), {}};
        for (const QByteArray& line : lines.mid(1))
            if (const qsizetype colon = line.indexOf(':'); colon > 0)
                request.headers.insert(line.left(colon).trimmed().toLower(),
                                       line.mid(colon + 1).trimmed());
        requests << request;
        socket->write("HTTP/1.1 " + QByteArray::number(m_status) + " Status\r\n" +
                      "Content-Type: application/json\r\nConnection: close\r\nContent-Length: " +
                      QByteArray::number(m_body.size()) + "\r\n\r\n" + m_body);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QTcpSocket*, QByteArray> m_pending;
    int m_status = 200;
    QByteArray m_body = "{}";
};

// What a fresh reader of the settings file sees, bypassing every in-process copy.
QVariant storedOnDisk(const QString& key) {
    return QSettings(SXSettings::fileName(), QSettings::IniFormat).value(key);
}

bool boolOnDisk(const QString& key) {
    const QString text = storedOnDisk(key).toString();
    return text == QLatin1String("true") || text == QLatin1String("1");
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
    void configRequestGoesOutAsBuiltWithoutCaching() {
        TinyHttpServer server;
        QVERIFY(fetchConfig(server.baseURL()));
        QCOMPARE(server.requests.size(), 1);
        const ReceivedRequest& request = server.requests.first();
        QCOMPARE(request.method, QByteArray("GET"));
        const QByteArray expected =
            "/common_task/getconfig.php?appver=" + SXBundle::shortVersionString().toUtf8() +
            "&appid=" + GlobalFun::bundleID().toUtf8() +
            "&sysver=" + GlobalFun::getSystemVersionString().toUtf8() + "&appstore=0";
        QCOMPARE(request.target, expected);
        // Qt translates "never from a cache" into these headers so proxies do not answer either.
        QCOMPARE(request.headers.value("cache-control"), QByteArray("no-cache"));
        QCOMPARE(request.headers.value("pragma"), QByteArray("no-cache"));
    }

    void configAnswerSetsStoredSwitches_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("vob");
        QTest::addColumn<bool>("experimental");
        QTest::newRow("empty object") << QByteArray("{}") << true << true;
        QTest::newRow("vob off") << QByteArray(R"({"SupportVOBKey": false})") << false << true;
        QTest::newRow("both given, others ignored")
            << QByteArray(R"({"SupportVOBKey": true, "ExperimentalKey": false, "x": 0})") << true
            << false;
        QTest::newRow("numbers") << QByteArray(R"({"SupportVOBKey": 0, "ExperimentalKey": 1})")
                                 << false << true;
        QTest::newRow("not json") << QByteArray("<html>busy</html>") << true << true;
        QTest::newRow("json array") << QByteArray(R"([{"SupportVOBKey": false}])") << true << true;
        QTest::newRow("not utf-8")
            << QByteArray("{\"SupportVOBKey\": false, \"n\": \"\xff\xfe\"}") << true << true;
    }
    void configAnswerSetsStoredSwitches() {
        QFETCH(QByteArray, body);
        QFETCH(bool, vob);
        QFETCH(bool, experimental);
        // Start from the opposite of the expected values so every store is observable.
        config()->setSupportVOB(!vob);
        config()->setExperimental(!experimental);
        TinyHttpServer server;
        server.respond(200, body);
        QVERIFY(fetchConfig(server.baseURL()));
        QCOMPARE(boolOnDisk(SXSettingsKey::SupportVOB), vob);
        QCOMPARE(boolOnDisk(SXSettingsKey::Experimental), experimental);
        // What was stored is a record only: both switches stay on in this version.
        QVERIFY(config()->supportVOB());
        QVERIFY(config()->experimental());
    }

    void configFailureLogsAndKeepsSwitches_data() {
        QTest::addColumn<bool>("serverUp");
        QTest::newRow("http 500") << true;
        QTest::newRow("nobody listening") << false;
    }
    void configFailureLogsAndKeepsSwitches() {
        QFETCH(bool, serverUp);
        config()->setSupportVOB(false);
        config()->setExperimental(false);
        LogCapture log;
        TinyHttpServer server;
        server.respond(500, "{}");
        QString closedBase;
        {
            TinyHttpServer gone;
            closedBase = gone.baseURL();
        }
        QVERIFY(fetchConfig(serverUp ? server.baseURL() : closedBase));
        QCOMPARE(server.requests.size(), serverUp ? 1 : 0);
        const QStringList errors =
            log.lines().filter(QRegularExpression("^get configure error : "));
        QCOMPARE(errors.size(), 1);
        QVERIFY2(errors.first().size() > QStringLiteral("get configure error : ").size(),
                 qPrintable(errors.first()));
        QCOMPARE(boolOnDisk(SXSettingsKey::SupportVOB), false);
        QCOMPARE(boolOnDisk(SXSettingsKey::Experimental), false);
    }

    void reportCarriesBuildVersionAndKeepsInstallationId() {
        SXSettings::removeKey(SXSettingsKey::Guid);
        TinyHttpServer server;
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, server.baseURL() + QLatin1Char('/'));
        // Two starts of the program, each with its own application object.
        for (int start = 0; start < 2; ++start) {
            MacAppHelper helper;
            helper.reportStartup();
            QTRY_COMPARE_WITH_TIMEOUT(server.requests.size(), start + 1, kWaitMs);
        }
        const QString guid = storedOnDisk(SXSettingsKey::Guid).toString();
        QVERIFY(!guid.isEmpty());

        // Three version components from the build's short version, then the build number.
        QStringList parts = SXBundle::shortVersionString().split(QLatin1Char('.'));
        while (parts.size() < 3)
            parts << QStringLiteral("0");
        const QString appver =
            parts.mid(0, 3).join(QLatin1Char('.')) + QLatin1Char('.') + SXBundle::bundleVersion();
        const QByteArray expected = "/common_task/reportstartup.php?appver=" + appver.toUtf8() +
                                    "&appid=" + GlobalFun::bundleID().toUtf8() +
                                    "&sysver=" + GlobalFun::getSystemVersionString().toUtf8() +
                                    "&channelid=5&userid=" + guid.toUtf8();
        for (const ReceivedRequest& request : std::as_const(server.requests)) {
            QCOMPARE(request.target, expected);
            QCOMPARE(request.headers.value("cache-control"), QByteArray("no-cache"));
        }

        // The identifier is the one value taken from the settings store: query delimiters in it
        // go out as they are, not escaped.
        const QString oddId = QStringLiteral("a+b/c:d;e,f@g!h$i'j(k)*~l");
        SXSettings::setValue(SXSettingsKey::Guid, oddId);
        MacAppHelper third;
        third.reportStartup();
        QTRY_COMPARE_WITH_TIMEOUT(server.requests.size(), 3, kWaitMs);
        QVERIFY2(server.requests.last().target.endsWith("&userid=" + oddId.toUtf8()),
                 server.requests.last().target.constData());
        SXSettings::removeKey(SXSettingsKey::Guid);
    }

    void startupSendsReportAndConfiguration() {
        TinyHttpServer server;
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, server.baseURL());
        QSignalSpy finished(config(), &HVConfigManager::onlineConfigFinished);
        MacAppHelper helper;
        HVConfigManager::startupRequests(helper);
        QVERIFY(finished.wait(kWaitMs));
        QTRY_COMPARE_WITH_TIMEOUT(server.requests.size(), 2, kWaitMs);
        QStringList paths;
        for (const ReceivedRequest& request : std::as_const(server.requests))
            paths << QString::fromUtf8(request.target.left(request.target.indexOf('?')));
        paths.sort();
        QCOMPARE(paths, QStringList({QStringLiteral("/common_task/getconfig.php"),
                                     QStringLiteral("/common_task/reportstartup.php")}));
    }

    void emptyBaseAddressSendsNothing() {
        TinyHttpServer server;
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, QString());
        SXSettings::removeKey(SXSettingsKey::Guid);
        QVERIFY(!SXServiceRequest::isEnabled());
        QSignalSpy finished(config(), &HVConfigManager::onlineConfigFinished);
        LogCapture log;
        MacAppHelper helper;
        HVConfigManager::startupRequests(helper);

        // The command-line tool must not phone home either, whatever the settings say.
        SXSettings::setValue(SXSettingsKey::ServiceBaseURL, server.baseURL());
        QProcess cli;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), SonoriaTest::configHome());
        cli.setProcessEnvironment(env);
        cli.start(QStringLiteral(SONORIA_CLI_PATH), {QStringLiteral("--list-formats")});
        QVERIFY(cli.waitForFinished(60000));

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
