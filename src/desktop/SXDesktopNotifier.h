#pragma once

#include <QString>

// A notification on the desktop (org.freedesktop.Notifications) for what the user should learn
// while looking elsewhere, such as the end of a run. Sent without waiting for an answer; without
// a notification service nothing happens.
class SXDesktopNotifier {
public:
    // Shows `summary` with `body` under the application's name and icon, tied to its desktop
    // entry so that the desktop can group and raise it.
    static bool notify(const QString& summary, const QString& body);
};
