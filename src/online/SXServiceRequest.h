#pragma once

#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

// The one way the program talks to its maker's web service: a plain GET of base address + path +
// "?" + query, never answered from a cache and never stored in one.
//
// Nothing is sent until the user agrees in the preferences (kConsentKey): a
// desktop program may not phone home on its own. The base address (scheme, host and optional
// port) comes from the setting SXSettingsKey::ServiceBaseURL. When the setting is missing the
// built-in default is used; when it is stored empty the service is switched off. Either way, when
// off no request is made and nothing is logged, since the user asked for silence.
class SXServiceRequest {
public:
    // The settings key of the user's consent; missing means no.
    static inline const QString kConsentKey = QStringLiteral("ServiceConsentKey");

    static QString defaultBaseURL();
    // The address in use: the stored one, the default when none is stored, empty when off.
    static QString baseURL();
    // The user agreed and an address is in use.
    static bool isEnabled();
    static bool hasConsent();
    static void setConsent(bool agreed);

    // `query` is taken as it is: the values in it are not escaped, so the text the service
    // receives is the text built here (characters HTTP cannot carry raw, such as spaces, still
    // go out percent-encoded). Invalid when the service is off.
    static QUrl urlFor(const QString& path, const QString& query);

    // Sends the GET asynchronously. The caller owns the reply (deleteLater when finished).
    static QNetworkReply* send(QNetworkAccessManager& manager, const QUrl& url);
};
