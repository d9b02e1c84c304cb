#pragma once

#include <QList>

// What the window registry needs to know of an open workspace window. The workspace implements
// it; the registry only points at controllers and never owns them, so a controller must
// unregister itself before it goes away.
class SXWindowController {
public:
    virtual ~SXWindowController() = default;

    // True while this controller's window is the one receiving the user's keyboard and menus.
    virtual bool isKeyWindow() const = 0;
};

// The open workspace windows of the process, in the order they registered: menu commands go to
// the key window, and the last window to close asks before it forgets its files. Main thread
// only.
class SXWindowRegistry {
public:
    static SXWindowRegistry& instance();

    // Adding the same controller twice lists it twice; removing removes every entry. Null is
    // ignored.
    void registerWindow(SXWindowController* controller);
    void unregisterWindow(SXWindowController* controller);
    // The registry itself, so callers see later changes.
    const QList<SXWindowController*>& registeredWindows() const { return m_windows; }
    // The first registered controller whose window is key, or nullptr.
    SXWindowController* keyWindowRecord() const;

private:
    QList<SXWindowController*> m_windows;
};
