#include "support/TestSupport.h"

#include "workspace/SXWindowRegistry.h"

namespace {

// Stands in for a workspace window: only its key state matters to the registry.
class FakeWindow : public SXWindowController {
public:
    bool key = false;
    bool isKeyWindow() const override { return key; }
};

} // namespace

class TestWindowRegistry : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Windows are kept in the order added, duplicates included; the first key window answers.
    void keepsOrderAndDuplicates() {
        SXWindowRegistry registry;
        FakeWindow a, b, c;
        QCOMPARE(registry.keyWindowRecord(), nullptr);
        for (FakeWindow* window : {&a, static_cast<FakeWindow*>(nullptr), &b, &a, &c})
            registry.registerWindow(window);
        QCOMPARE(registry.registeredWindows(), (QList<SXWindowController*>{&a, &b, &a, &c}));
        QCOMPARE(registry.keyWindowRecord(), nullptr);
        c.key = b.key = true;
        QCOMPARE(registry.keyWindowRecord(), &b);
        // The registry is handed out itself, so callers see later changes.
        const QList<SXWindowController*>& live = registry.registeredWindows();
        registry.unregisterWindow(&a);
        registry.unregisterWindow(nullptr);
        QCOMPARE(live, (QList<SXWindowController*>{&b, &c}));
        registry.unregisterWindow(&b);
        QCOMPARE(registry.keyWindowRecord(), &c);
    }
};

SONORIA_TEST_MAIN(TestWindowRegistry)
#include "tst_windowregistry.moc"
