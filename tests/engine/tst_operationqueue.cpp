#include "engine/SXOperationQueue.h"
#include "support/TestSupport.h"

#include <QScopeGuard>
#include <QSemaphore>
#include <atomic>

namespace {
// How many operations of one test run at once, and the most that ever did.
struct Counter {
    std::atomic<int> running{0};
    std::atomic<int> peak{0};
};

// Records that it ran, and holds its worker until the test opens its own gate.
class GateOperation : public SXOperation {
public:
    explicit GateOperation(Counter* counter)
        : m_counter(counter) {}
    void main() override {
        ran = true;
        // Counted before it says it entered: once the test has seen two enter and opens their
        // gates, the first may finish before the second would otherwise have counted itself.
        const int now = ++m_counter->running;
        for (int seen = m_counter->peak;
             now > seen && !m_counter->peak.compare_exchange_weak(seen, now);)
            ;
        entered.release();
        open.acquire();
        --m_counter->running;
    }
    std::atomic<bool> ran{false};
    QSemaphore entered;
    QSemaphore open;

private:
    Counter* m_counter;
};
using GatePtr = std::shared_ptr<GateOperation>;
} // namespace

class OperationQueueTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Two run at once, the others wait in the order added. A waiting operation that is
    // cancelled leaves the list at once and never runs; cancelling everything leaves the running
    // ones listed until they end, and the waiting ones never run nor report. Once done, the
    // queue lets go of every operation.
    void runsInOrderWithinTheLimit() {
        Counter counter; // outlives the queue, which waits for the operations it holds
        SXOperationQueue queue;
        queue.setMaxConcurrentOperationCount(2);
        QList<GatePtr> ops;
        QList<SXOperationPtr> listed;
        for (int i = 0; i < 7; ++i) {
            ops.append(std::make_shared<GateOperation>(&counter));
            listed.append(ops.last());
        }
        const auto openGates = qScopeGuard([&ops] { // also on failure
            for (const GatePtr& op : std::as_const(ops))
                op->open.release();
        });
        std::atomic<int> finished{0}; // counted on the workers' threads
        QObject::connect(&queue, &SXOperationQueue::operationFinished, [&finished] { ++finished; });
        for (const GatePtr& op : std::as_const(ops))
            queue.addOperation(op);
        QVERIFY(ops[0]->entered.tryAcquire(1, 10000) && ops[1]->entered.tryAcquire(1, 10000));
        QVERIFY(ops[0]->isExecuting());
        QCOMPARE(queue.operations(), listed);
        ops[2]->cancel();
        QVERIFY(ops[2]->isCancelled());
        listed.removeAt(2);
        QCOMPARE(queue.operations(), listed);

        ops[0]->open.release();
        ops[1]->open.release();
        QVERIFY(ops[3]->entered.tryAcquire(1, 10000) && ops[4]->entered.tryAcquire(1, 10000));
        queue.cancelAllOperations();
        // The first two may still be on their way out of the list.
        QTRY_COMPARE(queue.operations().size(), 2);
        QVERIFY(queue.operations().contains(ops[3]) && queue.operations().contains(ops[4]));
        ops[3]->open.release();
        ops[4]->open.release();
        queue.waitUntilAllOperationsAreFinished();
        QCOMPARE(counter.peak.load(), 2);
        for (int i : {0, 1, 3, 4})
            QVERIFY(ops[i]->ran && ops[i]->isFinished());
        QVERIFY(!ops[2]->ran && !ops[5]->ran && !ops[6]->ran);
        QCOMPARE(queue.operationCount(), 0);
        QTRY_COMPARE(finished.load(), 4);

        std::weak_ptr<GateOperation> watched = ops.first();
        ops.clear();
        listed.clear();
        QTRY_VERIFY(watched.expired());
    }
};

SONORIA_TEST_MAIN(OperationQueueTest)
#include "tst_operationqueue.moc"
