#include "support/TestSupport.h"
#include "workspace/SXRedrawThrottle.h"

#include <QElapsedTimer>
#include <QTest>
#include <atomic>
#include <thread>
#include <vector>

// Many threads asking for a redraw at once: the rows are drawn a bounded number of times, on the
// main thread, and once more after the last request, so the final state is never left undrawn.
class RedrawThrottleTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void manyRequestsFewCallsAndTheLastIsDrawn() {
        constexpr int kIntervalMs = 40;
        QObject context;
        int calls = 0;
        bool offMainThread = false;
        std::atomic<int> requested{0};
        int requestedAtLastCall = -1;
        SXRedrawThrottle throttle(context, kIntervalMs, [&] {
            ++calls;
            offMainThread |= QThread::currentThread() != context.thread();
            requestedAtLastCall = requested.load();
        });

        QElapsedTimer clock;
        clock.start();
        std::atomic<bool> stop{false};
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&] {
                while (!stop.load()) {
                    requested.fetch_add(1);
                    throttle.request();
                    std::this_thread::sleep_for(std::chrono::microseconds(200));
                }
            });
        QTest::qWait(400);
        stop.store(true);
        for (std::thread& thread : threads)
            thread.join();
        const int total = requested.load();
        QTRY_COMPARE_WITH_TIMEOUT(requestedAtLastCall, total, 5000);
        const qint64 elapsed = clock.elapsed();

        QVERIFY(!offMainThread);
        QVERIFY2(total > 100, qPrintable(QString::number(total)));
        QVERIFY(calls >= 2);
        // One call per interval at most, and one for the last requests.
        QVERIFY2(calls <= elapsed / kIntervalMs + 2,
                 qPrintable(QStringLiteral("%1 calls in %2 ms").arg(calls).arg(elapsed)));
    }
};

SONORIA_TEST_MAIN(RedrawThrottleTest)
#include "tst_redrawthrottle.moc"
