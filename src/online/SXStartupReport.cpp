#include "SXStartupReport.h"

#include "base/SXAppIdentity.h"
#include "base/SXSystemInfo.h"
#include "online/SXServiceRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

namespace {
const QString kReportPath = QStringLiteral("/common_task/reportstartup.php");
// The distribution channel of this build, as the service counts them.
constexpr int kChannelId = 5;
} // namespace

SXStartupReport::SXStartupReport(QObject* parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this)) {}

QString SXStartupReport::reportStartupQuery() {
    return QStringLiteral("appver=%1&appid=%2&sysver=%3&channelid=%4&userid=%5")
        .arg(SXAppIdentity::buildVersion(), SXAppIdentity::applicationId(),
             SXSystemInfo::systemVersionString(), QString::number(kChannelId),
             SXAppIdentity::installationId());
}

void SXStartupReport::reportStartup() {
    // Checked first: a switched-off service must not even cause an identifier to be created.
    if (!SXServiceRequest::isEnabled())
        return;
    const QUrl url = SXServiceRequest::urlFor(kReportPath, reportStartupQuery());
    QNetworkReply* reply = SXServiceRequest::send(*m_network, url);
    // Only the reply object needs cleaning up; what the service answered does not matter.
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
}
