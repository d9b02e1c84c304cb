#pragma once

// What the catalogue's window registry needs to know of an open workspace window. The workspace
// controller implements it; the registry only points at controllers and never owns them, so a
// controller must unregister itself before it goes away.
class SXWindowController {
public:
    virtual ~SXWindowController() = default;

    // True while this controller's window is the one receiving the user's keyboard and menus.
    virtual bool isKeyWindow() const = 0;
};
