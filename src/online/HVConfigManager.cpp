#include "HVConfigManager.h"

#include "base/SXAppIdentity.h"
#include "base/SXFolderScan.h"
#include "base/SXInstallation.h"
#include "base/SXLog.h"
#include "base/SXSettings.h"
#include "base/SXSystemInfo.h"
#include "online/SXServiceRequest.h"
#include "online/SXStartupReport.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QStringDecoder>
#include <QThread>

namespace {
const QString kConfigPath = QStringLiteral("/common_task/getconfig.php");

// The service's switches are booleans; numbers and the usual words are accepted as well. Any
// other value cannot say "off", so it leaves the switch on, as a missing key does.
bool switchValue(const QJsonObject& config, const QString& key) {
    const QJsonValue value = config.value(key);
    if (value.isBool())
        return value.toBool();
    if (value.isDouble())
        return value.toDouble() != 0.0;
    if (value.isString()) {
        const QString text = value.toString().trimmed().toLower();
        if (text == QLatin1String("false") || text == QLatin1String("no"))
            return false;
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (isNumber)
            return number != 0.0;
    }
    return true;
}
} // namespace

HVConfigManager::HVConfigManager()
    : m_network(new QNetworkAccessManager(this)) {}

HVConfigManager* HVConfigManager::sharedInstance() {
    // Lives until the process ends, so the file-list consumer may ask it at any time.
    static HVConfigManager* const instance = [] {
        Q_ASSERT(!QCoreApplication::instance() ||
                 QThread::currentThread() == QCoreApplication::instance()->thread());
        auto* created = new HVConfigManager;
        SXFolderScan::setExperimentalSwitch(
            [] { return HVConfigManager::sharedInstance()->experimental(); });
        return created;
    }();
    return instance;
}

void HVConfigManager::startupRequests(SXStartupReport& appHelper) {
    appHelper.reportStartup();
    sharedInstance()->getOnlineConfig();
}

QString HVConfigManager::onlineConfigQuery() {
    // The short version goes out as the build stamped it, not brought to three components.
    // One pass of arg(), so a value that happens to contain "%4" is not substituted again.
    return QStringLiteral("appver=%1&appid=%2&sysver=%3&appstore=%4")
        .arg(SXInstallation::version(), SXAppIdentity::applicationId(),
             SXSystemInfo::systemVersionString(), QString::number(0));
}

void HVConfigManager::getOnlineConfig() {
    Q_ASSERT(QThread::currentThread() == thread());
    if (!SXServiceRequest::isEnabled())
        return;
    const QUrl url = SXServiceRequest::urlFor(kConfigPath, onlineConfigQuery());
    QNetworkReply* reply = SXServiceRequest::send(*m_network, url);
    connect(reply, &QNetworkReply::finished, this, [this, reply] { handleConfigReply(reply); });
}

void HVConfigManager::handleConfigReply(QNetworkReply* reply) {
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        SXLog::line(QStringLiteral("get configure error : %1").arg(reply->errorString()));
        Q_EMIT onlineConfigFinished(false);
        return;
    }
    applyConfiguration(reply->readAll());
    Q_EMIT onlineConfigFinished(true);
}

void HVConfigManager::applyConfiguration(const QByteArray& body) {
    // A body that is not UTF-8 text holding a JSON object reads as an empty object: both
    // switches on.
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(body);
    const QJsonObject config =
        utf8.hasError() ? QJsonObject() : QJsonDocument::fromJson(text.toUtf8()).object();
    setSupportVOB(switchValue(config, SXSettingsKey::SupportVOB));
    setExperimental(switchValue(config, SXSettingsKey::Experimental));
}

bool HVConfigManager::supportVOB() const {
    const bool stored = SXSettings::boolForKey(SXSettingsKey::SupportVOB, true);
    Q_UNUSED(stored); // recorded only; the switch is on in this version
    return true;
}

bool HVConfigManager::experimental() const {
    const bool stored = SXSettings::boolForKey(SXSettingsKey::Experimental, true);
    Q_UNUSED(stored); // recorded only; the switch is on in this version
    return true;
}

void HVConfigManager::setSupportVOB(bool on) {
    SXSettings::setValue(SXSettingsKey::SupportVOB, on);
    SXSettings::synchronize();
}

void HVConfigManager::setExperimental(bool on) {
    SXSettings::setValue(SXSettingsKey::Experimental, on);
    SXSettings::synchronize();
}
