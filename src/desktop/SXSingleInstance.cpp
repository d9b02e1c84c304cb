#include "desktop/SXSingleInstance.h"

#include "base/SXLog.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUrl>
#include <QVariantMap>

const QString SXSingleInstance::serviceName = QStringLiteral("app.sonoria.Sonoria");
const QString SXSingleInstance::objectPath = QStringLiteral("/app/sonoria/Sonoria");

namespace {

const QString kInterface = QStringLiteral("org.freedesktop.Application");

// The bus face of SXSingleInstance: the three methods of org.freedesktop.Application under the
// names the interface gives them. Sonoria has no actions, so ActivateAction only comes forward.
class SXApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit SXApplicationAdaptor(SXSingleInstance* owner)
        : QDBusAbstractAdaptor(owner)
        , m_owner(owner) {}

public Q_SLOTS:
    void Activate(const QVariantMap& /*platformData*/) { Q_EMIT m_owner->openRequested({}); }
    void Open(const QStringList& uris, const QVariantMap& /*platformData*/) {
        Q_EMIT m_owner->openRequested(SXSingleInstance::localPaths(uris));
    }
    void ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                        const QVariantMap& /*platformData*/) {
        SXLog::line(QStringLiteral("no such application action: %1").arg(name));
        Q_EMIT m_owner->openRequested({});
    }

private:
    SXSingleInstance* m_owner;
};

} // namespace

SXSingleInstance::SXSingleInstance(QObject* parent)
    : QObject(parent) {
    new SXApplicationAdaptor(this);
}

SXSingleInstance::~SXSingleInstance() {
    if (!m_claimed)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(serviceName);
    bus.unregisterObject(objectPath);
}

bool SXSingleInstance::claim() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    // The object first: whoever sees the name must find the interface behind it.
    if (!bus.registerObject(objectPath, this))
        return false;
    if (!bus.registerService(serviceName)) {
        bus.unregisterObject(objectPath);
        return false;
    }
    m_claimed = true;
    return true;
}

bool SXSingleInstance::handOver(const QStringList& paths, int timeoutMs) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName, objectPath, kInterface,
                                                       paths.isEmpty() ? QStringLiteral("Activate")
                                                                       : QStringLiteral("Open"));
    if (!paths.isEmpty()) {
        QStringList uris;
        for (const QString& path : paths)
            uris.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
        call << uris;
    }
    call << QVariantMap();
    const QDBusMessage reply = bus.call(call, QDBus::Block, timeoutMs);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return true;
    SXLog::line(QStringLiteral("the running Sonoria did not answer: %1").arg(reply.errorMessage()));
    return false;
}

QStringList SXSingleInstance::localPaths(const QStringList& uris) {
    QStringList paths;
    for (const QString& uri : uris) {
        const QUrl url(uri);
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
        else
            SXLog::line(QStringLiteral("not a local file, not added: %1").arg(uri));
    }
    return paths;
}

#include "SXSingleInstance.moc"
