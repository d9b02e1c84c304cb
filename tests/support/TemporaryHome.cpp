#include "TemporaryHome.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace SonoriaTest {

EnvironmentGuard::~EnvironmentGuard() {
    // Latest first, so a variable changed twice ends with its oldest value.
    std::for_each(m_saved.rbegin(), m_saved.rend(), [](const auto& saved) {
        if (saved.second)
            qputenv(saved.first.constData(), *saved.second);
        else
            qunsetenv(saved.first.constData());
    });
}

void EnvironmentGuard::set(const char* name, const QString& value) {
    save(name);
    qputenv(name, QFile::encodeName(value));
}

void EnvironmentGuard::unset(const char* name) {
    save(name);
    qunsetenv(name);
}

void EnvironmentGuard::save(const char* name) {
    m_saved.append(
        {name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt});
}

TemporaryHome::TemporaryHome()
    : m_root(QDir::tempPath() + QStringLiteral("/sonoria-test-home-XXXXXX")) {
    m_valid = m_root.isValid() && QDir().mkpath(configHome()) && QDir().mkpath(dataHome());
    m_environment.set("HOME", processHome());
    m_environment.set("XDG_CONFIG_HOME", configHome());
    m_environment.set("XDG_DATA_HOME", dataHome());
    m_environment.set("XDG_CACHE_HOME", processHome() + QStringLiteral("/.cache"));
    m_environment.set("XDG_STATE_HOME", processHome() + QStringLiteral("/.local/state"));
    // Some sessions export the user folders; they would lead out of the temporary home.
    for (const char* name : {"XDG_MUSIC_DIR", "XDG_VIDEOS_DIR", "XDG_DOCUMENTS_DIR"})
        m_environment.unset(name);
}

} // namespace SonoriaTest
