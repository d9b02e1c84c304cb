#include "SXServiceRequest.h"

#include "base/SXSettings.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

// Packagers may point a build at their own service with -DSONORIA_SERVICE_BASE_URL="...".
#ifndef SONORIA_SERVICE_BASE_URL
#define SONORIA_SERVICE_BASE_URL "https://service.sonoria.app"
#endif

namespace {
// A service that accepts the connection and then never answers must not keep a reply alive for
// the whole session.
constexpr int kTransferTimeoutMs = 30000;
} // namespace

QString SXServiceRequest::defaultBaseURL() {
    return QStringLiteral(SONORIA_SERVICE_BASE_URL);
}

QString SXServiceRequest::baseURL() {
    QString base = SXSettings::stringForKey(SXSettingsKey::ServiceBaseURL, defaultBaseURL());
    base = base.trimmed();
    // "http://host/" and "http://host" name the same service; the paths bring their own slash.
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return base;
}

bool SXServiceRequest::isEnabled() {
    return hasConsent() && !baseURL().isEmpty();
}

bool SXServiceRequest::hasConsent() {
    return SXSettings::boolForKey(SXServiceRequest::kConsentKey, false);
}

void SXServiceRequest::setConsent(bool agreed) {
    SXSettings::setValue(SXServiceRequest::kConsentKey, agreed);
    SXSettings::synchronize();
}

QUrl SXServiceRequest::urlFor(const QString& path, const QString& query) {
    if (!isEnabled())
        return {};
    const QString base = baseURL();
    const QString text = base + path + QLatin1Char('?') + query;
    // From encoded text, so that QUrl keeps the query's bytes instead of re-escaping delimiters.
    return QUrl::fromEncoded(text.toUtf8(), QUrl::TolerantMode);
}

QNetworkReply* SXServiceRequest::send(QNetworkAccessManager& manager, const QUrl& url) {
    QNetworkRequest request(url);
    // Neither an answer from a cache nor one kept for later: each start asks the service afresh.
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setTransferTimeout(kTransferTimeoutMs);
    return manager.get(request);
}
