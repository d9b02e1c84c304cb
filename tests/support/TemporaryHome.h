#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QTemporaryDir>

#include <optional>

namespace SonoriaTest {

// Sets and unsets environment variables; the earlier values come back when the object goes.
class EnvironmentGuard {
public:
    EnvironmentGuard() = default;
    ~EnvironmentGuard();
    EnvironmentGuard(const EnvironmentGuard&) = delete;
    EnvironmentGuard& operator=(const EnvironmentGuard&) = delete;

    void set(const char* name, const QString& value);
    void unset(const char* name);

private:
    void save(const char* name);

    QList<QPair<QByteArray, std::optional<QByteArray>>> m_saved;
};

// A fresh, empty home for the duration of the object. The process's home ($HOME) and the XDG
// folders all point inside one temporary folder. Every test executable runs inside one (see
// prepareEnvironment); a test that needs a home nobody has touched yet makes its own.
class TemporaryHome {
public:
    TemporaryHome();

    bool isValid() const { return m_valid; }
    QString processHome() const { return m_root.filePath(QStringLiteral("home")); }
    QString configHome() const { return processHome() + QStringLiteral("/.config"); }
    QString dataHome() const { return processHome() + QStringLiteral("/.local/share"); }

private:
    QTemporaryDir m_root;
    bool m_valid = false;
    EnvironmentGuard m_environment; // declared last: restored before the folder goes
};

} // namespace SonoriaTest
