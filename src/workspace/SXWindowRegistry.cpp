#include "workspace/SXWindowRegistry.h"

SXWindowRegistry& SXWindowRegistry::instance() {
    static SXWindowRegistry registry;
    return registry;
}

void SXWindowRegistry::registerWindow(SXWindowController* controller) {
    if (controller)
        m_windows.append(controller);
}

void SXWindowRegistry::unregisterWindow(SXWindowController* controller) {
    if (controller)
        m_windows.removeAll(controller);
}

SXWindowController* SXWindowRegistry::keyWindowRecord() const {
    for (SXWindowController* controller : m_windows) {
        if (controller->isKeyWindow())
            return controller;
    }
    return nullptr;
}
